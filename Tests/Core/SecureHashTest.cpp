#include "Misc/SecureHash.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <string>

namespace
{
	std::string Hash(const std::string& Text)
	{
		return ToUtf8(FSHA1::HashBuffer(Text.data(), Text.size()).ToString());
	}
}

TEST(SecureHashTest, DigestsAreThoseOfTheStandardsExamples)
{
	EXPECT_EQ("DA39A3EE5E6B4B0D3255BFEF95601890AFD80709", Hash(""));
	EXPECT_EQ("A9993E364706816ABA3E25717850C26C9CD0D89D", Hash("abc"));
	EXPECT_EQ("84983E441C3BD26EBAAE4AA1F95129E5E54670F1", Hash("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"));
	EXPECT_EQ("34AA973CD4C4DAA4F61EEB2BDBAD27316534016F", Hash(std::string(1000000, 'a')));
}

TEST(SecureHashTest, EveryLengthAroundABlocksEndIsPaddedWell)
{
	EXPECT_EQ("C1C8BBDC22796E28C0E15163D20899B65621D65A", Hash(std::string(55, 'a')));
	EXPECT_EQ("C2DB330F6083854C99D4B5BFB6E8F29F201BE699", Hash(std::string(56, 'a')));
	EXPECT_EQ("0098BA824B5C16427BD7A1122A5A442A25EC644D", Hash(std::string(64, 'a')));
}
