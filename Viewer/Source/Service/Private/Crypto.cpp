#include "Crypto.h"

#include "Containers/StringConv.h"
#include "Misc/AssertionMacros.h"

#include <sodium.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace
{
	constexpr int Base64Variant = sodium_base64_VARIANT_URLSAFE_NO_PADDING;
	constexpr unsigned MaxMemoryKib = 1024 * 1024;
	constexpr unsigned MaxRounds = 16;

	void Prepare()
	{
		static const bool bReady = sodium_init() >= 0;
		checkf(bReady, TEXT("libsodium finds no random numbers on this system"));
	}
}

TArray<uint8> Host::FCrypto::MakeRandom(int32 Count)
{
	Prepare();
	TArray<uint8> Bytes;
	Bytes.SetNumUninitialized(Count);
	randombytes_buf(Bytes.GetData(), SIZE_T(Count));
	return Bytes;
}

FString Host::FCrypto::Hash(TConstArrayView<uint8> Bytes)
{
	Prepare();
	uint8 Digest[crypto_generichash_BYTES];
	crypto_generichash(Digest, sizeof(Digest), Bytes.GetData(), static_cast<unsigned long long>(Bytes.Num()), nullptr, 0);
	char Text[2 * sizeof(Digest) + 1];
	sodium_bin2hex(Text, sizeof(Text), Digest, sizeof(Digest));
	return FString(UTF8_TO_TCHAR(Text));
}

FString Host::FCrypto::HashPassword(const FString& Password)
{
	Prepare();
	const FTCHARToUTF8 Utf8(*Password, Password.Len());
	char Text[crypto_pwhash_STRBYTES];
	const bool bHashed = crypto_pwhash_str(Text, Utf8.Get(), static_cast<unsigned long long>(Utf8.Length()), crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE) == 0;
	return bHashed ? FString(UTF8_TO_TCHAR(Text)) : FString();
}

bool Host::FCrypto::VerifyPassword(const FString& PasswordHash, const FString& Password)
{
	Prepare();
	const FTCHARToUTF8 Utf8(*Password, Password.Len());
	return crypto_pwhash_str_verify(TCHAR_TO_UTF8(*PasswordHash), Utf8.Get(), static_cast<unsigned long long>(Utf8.Length())) == 0;
}

bool Host::FCrypto::IsPasswordHash(const FString& Text)
{
	Prepare();
	const std::string Utf8 = TCHAR_TO_UTF8(*Text);
	unsigned Memory = 0;
	unsigned Rounds = 0;
	return Utf8.size() < crypto_pwhash_STRBYTES && Utf8.starts_with(crypto_pwhash_STRPREFIX)
		&& std::sscanf(Utf8.c_str(), "$argon2id$v=19$m=%u,t=%u,p=1$", &Memory, &Rounds) == 2
		&& Memory > 0 && Memory <= MaxMemoryKib && Rounds > 0 && Rounds <= MaxRounds
		// It reads the whole of it; whether another cost is wanted does not matter.
		&& crypto_pwhash_str_needs_rehash(Utf8.c_str(), crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE) >= 0;
}

FString Host::FCrypto::ToBase64(TConstArrayView<uint8> Bytes)
{
	std::string Text(sodium_base64_encoded_len(SIZE_T(Bytes.Num()), Base64Variant), '\0');
	sodium_bin2base64(Text.data(), Text.size(), Bytes.GetData(), SIZE_T(Bytes.Num()), Base64Variant);
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

bool Host::FCrypto::FromBase64(const FString& Text, int32 Count, TArray<uint8>& OutBytes)
{
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	OutBytes.SetNumUninitialized(Count);
	size_t Size = 0;
	return sodium_base642bin(OutBytes.GetData(), SIZE_T(Count), Utf8.Get(), SIZE_T(Utf8.Length()), nullptr, &Size, nullptr, Base64Variant) == 0
		&& Size == SIZE_T(Count);
}
