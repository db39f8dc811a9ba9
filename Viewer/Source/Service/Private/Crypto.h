#pragma once

#include "Containers/ArrayView.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** The cryptography of the service; all of it is libsodium's. May be called on any thread. */
	class FCrypto
	{
	public:
		/** That many random bytes, fit for secrets. */
		static TArray<uint8> MakeRandom(int32 Count);

		/** BLAKE2b with 256 bits, as 64 hexadecimal digits. */
		static FString Hash(TConstArrayView<uint8> Bytes);

		/** Argon2id with a salt of its own, at libsodium's cost for interactive use. Empty when there is no memory for it. */
		static FString HashPassword(const FString& Password);
		/** In a time that depends on the cost of the hash alone. */
		static bool VerifyPassword(const FString& PasswordHash, const FString& Password);
		/** Whether it is a hash as HashPassword makes them, of a cost that a program can be asked to pay: 1 GiB, 16 rounds. */
		static bool IsPasswordHash(const FString& Text);

		/** Base 64 in the alphabet for addresses, without padding. */
		static FString ToBase64(TConstArrayView<uint8> Bytes);
		/** False for anything else than what ToBase64 gives for that many bytes. */
		static bool FromBase64(const FString& Text, int32 Count, TArray<uint8>& OutBytes);
	};
}
