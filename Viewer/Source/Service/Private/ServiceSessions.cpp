#include "ServiceSessions.h"

#include "Crypto.h"
#include "Host/JsonDocument.h"
#include "Host/JsonWriter.h"

namespace
{
	constexpr int32 TokenBytes = 32;
	/** A refresh token is its family's number and a secret. */
	constexpr int32 FamilyBytes = 16;
	constexpr int32 RefreshBytes = FamilyBytes + TokenBytes;
	constexpr int32 MaxSessions = 10000;
	constexpr int32 MaxFamilies = 1000;

	/** Removes what has ended; and what ends next while there are too many. */
	template <typename EntryType>
	void Limit(TMap<FString, EntryType>& Entries, int32 Max, double Now)
	{
		for (auto It = Entries.CreateIterator(); It; ++It)
		{
			if (Now >= It.Value().End)
			{
				It.RemoveCurrent();
			}
		}
		while (Entries.Num() >= Max)
		{
			FString First;
			double FirstEnd = TNumericLimits<double>::Max();
			for (const auto& Entry : Entries)
			{
				if (Entry.Value.End < FirstEnd)
				{
					First = Entry.Key;
					FirstEnd = Entry.Value.End;
				}
			}
			Entries.Remove(First);
		}
	}

	bool ParseToken(const FString& Token, FString& OutHash)
	{
		TArray<uint8> Bytes;
		if (!Host::FCrypto::FromBase64(Token, TokenBytes, Bytes))
		{
			return false;
		}
		OutHash = Host::FCrypto::Hash(Bytes);
		return true;
	}

	bool ParseRefreshToken(const FString& Token, TArray<uint8>& OutFamily, FString& OutFamilyHash, FString& OutHash)
	{
		TArray<uint8> Bytes;
		if (!Host::FCrypto::FromBase64(Token, RefreshBytes, Bytes))
		{
			return false;
		}
		OutFamily = TArray<uint8>(Bytes.GetData(), FamilyBytes);
		OutFamilyHash = Host::FCrypto::Hash(OutFamily);
		OutHash = Host::FCrypto::Hash(Bytes);
		return true;
	}
}

Host::FServiceSessions::FServiceSessions(int32 InTokenSeconds, int32 InRefreshSeconds)
	: TokenSeconds(InTokenSeconds)
	, RefreshSeconds(InRefreshSeconds)
{
}

Host::FServiceSessions::FTokens Host::FServiceSessions::Begin(const FUser& User, bool bRemember, double Now)
{
	MakeRoom(Now);
	FTokens Tokens;
	FString FamilyHash;
	if (bRemember)
	{
		const TArray<uint8> Family = FCrypto::MakeRandom(FamilyBytes);
		FamilyHash = FCrypto::Hash(Family);
		FFamily& Entry = Families.Add(FamilyHash);
		Entry.UserId = User.Id;
		Tokens.RefreshToken = MakeRefreshToken(Family, Entry, Now);
	}
	Tokens.Token = AddToken(User, FamilyHash, Now);
	return Tokens;
}

bool Host::FServiceSessions::Find(const FString& Token, double Now, FUser& OutUser) const
{
	FString TokenHash;
	const FSession* const Session = ParseToken(Token, TokenHash) ? Sessions.Find(TokenHash) : nullptr;
	if (!Session || Now >= Session->End)
	{
		return false;
	}
	OutUser = Session->User;
	return true;
}

bool Host::FServiceSessions::Refresh(const FString& RefreshToken, double Now, FUser& OutUser, FTokens& OutTokens)
{
	MakeRoom(Now);
	TArray<uint8> Family;
	FString FamilyHash;
	FString TokenHash;
	FFamily* const Entry = ParseRefreshToken(RefreshToken, Family, FamilyHash, TokenHash) ? Families.Find(FamilyHash) : nullptr;
	if (!Entry)
	{
		return false;
	}
	if (!Entry->TokenHash.Equals(TokenHash))
	{
		EndFamily(FamilyHash);
		return false;
	}
	OutUser = { Entry->UserId, false };
	OutTokens.RefreshToken = MakeRefreshToken(Family, *Entry, Now);
	OutTokens.Token = AddToken(OutUser, FamilyHash, Now);
	return true;
}

void Host::FServiceSessions::End(const FString& Token, const FString& RefreshToken)
{
	FString TokenHash;
	if (ParseToken(Token, TokenHash))
	{
		Sessions.Remove(TokenHash);
	}
	TArray<uint8> Family;
	FString FamilyHash;
	if (ParseRefreshToken(RefreshToken, Family, FamilyHash, TokenHash))
	{
		EndFamily(FamilyHash);
	}
}

FString Host::FServiceSessions::AddToken(const FUser& User, const FString& Family, double Now)
{
	const TArray<uint8> Bytes = FCrypto::MakeRandom(TokenBytes);
	Sessions.Add(FCrypto::Hash(Bytes), { User, Family, Now + TokenSeconds });
	return FCrypto::ToBase64(Bytes);
}

FString Host::FServiceSessions::MakeRefreshToken(TConstArrayView<uint8> Family, FFamily& Entry, double Now)
{
	TArray<uint8> Bytes(Family.GetData(), Family.Num());
	Bytes.Append(FCrypto::MakeRandom(TokenBytes));
	Entry.TokenHash = FCrypto::Hash(Bytes);
	Entry.End = Now + RefreshSeconds;
	bChanged = true;
	return FCrypto::ToBase64(Bytes);
}

void Host::FServiceSessions::EndFamily(const FString& Family)
{
	bChanged |= Families.Remove(Family) > 0;
	for (auto It = Sessions.CreateIterator(); It; ++It)
	{
		if (It.Value().Family.Equals(Family))
		{
			It.RemoveCurrent();
		}
	}
}

void Host::FServiceSessions::MakeRoom(double Now)
{
	Limit(Sessions, MaxSessions, Now);
	Limit(Families, MaxFamilies, Now);
}

FString Host::FServiceSessions::WriteRemembered() const
{
	FJsonWriter Writer;
	Writer.BeginArray();
	for (const TPair<FString, FFamily>& Entry : Families)
	{
		Writer.BeginObject();
		Writer.Key(TEXT("family"));
		Writer.String(Entry.Key);
		Writer.Key(TEXT("user"));
		Writer.String(Entry.Value.UserId);
		Writer.Key(TEXT("token"));
		Writer.String(Entry.Value.TokenHash);
		Writer.Key(TEXT("end"));
		Writer.Number(Entry.Value.End);
		Writer.EndObject();
	}
	Writer.EndArray();
	return Writer.ToString();
}

void Host::FServiceSessions::ReadRemembered(const FString& Text, double Now)
{
	FJsonDocument Document;
	if (!Document.Parse(Text, TEXT("sessions")))
	{
		return;
	}
	Families.Empty();
	for (const FJsonNode Node : Document.GetRoot())
	{
		FString Key;
		FFamily Family;
		if (Node.Find(TEXT("family")).TryGetString(Key) && Node.Find(TEXT("user")).TryGetString(Family.UserId)
			&& Node.Find(TEXT("token")).TryGetString(Family.TokenHash) && Node.Find(TEXT("end")).TryGetNumber(Family.End))
		{
			Families.Add(Key, Family);
		}
	}
	MakeRoom(Now);
}

bool Host::FServiceSessions::TakeChange()
{
	const bool bWas = bChanged;
	bChanged = false;
	return bWas;
}
