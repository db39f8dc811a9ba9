#include "Containers/BitArray.h"

#include "gtest/gtest.h"

TEST(BitArrayTest, KeepsBits)
{
	TBitArray<> Bits(false, 70);
	EXPECT_EQ(70, Bits.Num());
	Bits[3] = true;
	Bits[69] = true;
	EXPECT_TRUE(Bits[69]);
	EXPECT_EQ(2, Bits.CountSetBits());
	EXPECT_EQ(3, Bits.Find(true));
	EXPECT_EQ(70, Bits.Add(true));
	Bits.SetRange(0, 3, true);
	EXPECT_EQ(4, Bits.Find(false));
}

TEST(BitArrayTest, BitsBehindTheEndAreNotFound)
{
	TBitArray<> Bits(true, 33);
	EXPECT_EQ(33, Bits.CountSetBits());
	EXPECT_EQ(INDEX_NONE, Bits.Find(false));
	Bits.SetNum(31, false);
	EXPECT_EQ(31, Bits.CountSetBits());
	Bits.SetNum(40, false);
	EXPECT_EQ(31, Bits.Find(false));
	EXPECT_EQ(Bits, TBitArray<>(Bits));
}

TEST(BitArrayTest, IteratesOverSetBits)
{
	TBitArray<> Bits(false, 200);
	TArray<int32> Expected{ 0, 31, 32, 63, 64, 128, 199 };
	for (const int32 Index : Expected)
	{
		Bits[Index] = true;
	}
	TArray<int32> Found;
	for (TConstSetBitIterator<> It(Bits); It; ++It)
	{
		Found.Add(It.GetIndex());
	}
	EXPECT_EQ(Expected, Found);
	EXPECT_EQ(64, TConstSetBitIterator<>(Bits, 64).GetIndex());
	EXPECT_EQ(128, TConstSetBitIterator<>(Bits, 65).GetIndex());
	EXPECT_FALSE(TConstSetBitIterator<>(TBitArray<>()));
}
