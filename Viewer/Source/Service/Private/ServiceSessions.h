#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/**
	 * Who is signed in. A token stands for a user for a while. A refresh token stands for a remembered sign-in, its family: using
	 * one gives the next one of the family, and one that was used before ends the family with all its tokens, as somebody else
	 * must have it. All are random, and only their hashes are kept.
	 */
	class FServiceSessions
	{
	public:
		FServiceSessions(int32 InTokenSeconds, int32 InRefreshSeconds);

		struct FUser
		{
			/** Of a user of the project. */
			FString Id;
			bool bGuest = false;
		};

		struct FTokens
		{
			FString Token;
			/** Empty for none. */
			FString RefreshToken;
		};

		FTokens Begin(const FUser& User, bool bRemember, double Now);

		/** The user behind a token. False when it is unknown or has run out. */
		bool Find(const FString& Token, double Now, FUser& OutUser) const;

		/** Spends a refresh token. False when it is unknown, spent, or has run out. */
		bool Refresh(const FString& RefreshToken, double Now, FUser& OutUser, FTokens& OutTokens);

		/** Makes both void, and with the refresh token its family; either may be empty or unknown. */
		void End(const FString& Token, const FString& RefreshToken);

		/**
		 * The remembered sign-ins as a JSON text, and back: those of a text replace the ones that there are. What is wrong in a
		 * text is left out; one that is no JSON changes nothing.
		 */
		FString WriteRemembered() const;
		void ReadRemembered(const FString& Text, double Now);
		/** Whether what WriteRemembered gives has changed since it was last asked. */
		bool TakeChange();

	private:
		struct FSession
		{
			FUser User;
			/** Empty when it is not remembered. */
			FString Family;
			double End = 0.0;
		};

		struct FFamily
		{
			FString UserId;
			/** Of the one refresh token that is not spent. */
			FString TokenHash;
			double End = 0.0;
		};

		FString AddToken(const FUser& User, const FString& Family, double Now);
		FString MakeRefreshToken(TConstArrayView<uint8> FamilyBytes, FFamily& Family, double Now);
		void EndFamily(const FString& Family);
		/** Takes out what has run out, and what would be too many. */
		void MakeRoom(double Now);

		const int32 TokenSeconds;
		const int32 RefreshSeconds;
		/** By the hash of the token. */
		TMap<FString, FSession> Sessions;
		/** By the hash of what the refresh tokens of a family have in common. */
		TMap<FString, FFamily> Families;
		bool bChanged = false;
	};
}
