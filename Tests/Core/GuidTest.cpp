#include "Misc/Guid.h"

#include "CoreMinimal.h"
#include "Misc/Crc.h"
#include "TestText.h"
#include "gtest/gtest.h"

TEST(GuidTest, NewOnesDiffer)
{
	const FGuid A = FGuid::NewGuid();
	EXPECT_TRUE(A.IsValid());
	EXPECT_NE(A, FGuid::NewGuid());
	EXPECT_FALSE(FGuid().IsValid());
}

TEST(GuidTest, BothFormsComeBack)
{
	const FGuid Guid(0x01234567, 0x89ABCDEF, 0xFEDCBA98, 0x76543210);
	EXPECT_EQ("0123456789ABCDEFFEDCBA9876543210", ToUtf8(Guid.ToString()));
	EXPECT_EQ("01234567-89AB-CDEF-FEDC-BA9876543210", ToUtf8(Guid.ToString(EGuidFormats::DigitsWithHyphens)));
	for (const EGuidFormats Format : {EGuidFormats::Digits, EGuidFormats::DigitsWithHyphens})
	{
		FGuid Read;
		EXPECT_TRUE(FGuid::Parse(Guid.ToString(Format), Read));
		EXPECT_EQ(Guid, Read);
	}
}

TEST(GuidTest, OtherTextIsRefused)
{
	FGuid Read;
	EXPECT_FALSE(FGuid::Parse(TEXT(""), Read));
	EXPECT_FALSE(FGuid::Parse(TEXT("0123456789ABCDEFFEDCBA987654321G"), Read));
	EXPECT_FALSE(FGuid::Parse(TEXT("01234567+89AB-CDEF-FEDC-BA9876543210"), Read));
	EXPECT_FALSE(Read.IsValid());
}

TEST(CrcTest, TheCheckValueOfTheStandardComesOut)
{
	EXPECT_EQ(0xCBF43926u, FCrc::MemCrc32("123456789", 9));
	EXPECT_EQ(FCrc::MemCrc32("123456789", 9), FCrc::MemCrc32("6789", 4, FCrc::MemCrc32("12345", 5)));
}

TEST(CrcTest, CharactersCountAsFourBytes)
{
	EXPECT_EQ(FCrc::MemCrc32("a\0\0\0b\0\0\0", 8), FCrc::StrCrc32(TEXT("ab")));
}
