#include "Containers/SparseArray.h"

#include "CountedValue.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	/** Index and value of every element in the order of iteration. */
	template <typename T>
	std::string Show(const TSparseArray<T>& Array)
	{
		std::string Result;
		for (auto It = Array.CreateConstIterator(); It; ++It)
		{
			Result += std::to_string(It.GetIndex()) + ":" + std::to_string(*It) + " ";
		}
		return Result;
	}

	TSparseArray<int32> MakeArray(int32 Num)
	{
		TSparseArray<int32> Array;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Array.Add(Index * 10);
		}
		return Array;
	}
}

TEST(SparseArrayTest, AnIndexStaysWhenOthersAreRemoved)
{
	TSparseArray<int32> Array = MakeArray(4);
	Array.RemoveAt(1);
	EXPECT_EQ(3, Array.Num());
	EXPECT_EQ(4, Array.GetMaxIndex());
	EXPECT_FALSE(Array.IsValidIndex(1));
	EXPECT_EQ("0:0 2:20 3:30 ", Show(Array));
}

TEST(SparseArrayTest, TheHoleMadeLastIsFilledFirst)
{
	TSparseArray<int32> Array = MakeArray(5);
	Array.RemoveAt(1);
	Array.RemoveAt(3);
	EXPECT_EQ(3, Array.Add(1));
	EXPECT_EQ(1, Array.Add(2));
	EXPECT_EQ(5, Array.Add(3));
}

TEST(SparseArrayTest, EmptyAndResetStartAfreshFromIndexZero)
{
	TSparseArray<int32> Array = MakeArray(3);
	Array.RemoveAt(1);
	Array.Reset();
	EXPECT_EQ(0, Array.Add(1));
	Array.RemoveAt(0);
	Array.Empty();
	EXPECT_EQ(0, Array.Add(1));
}

TEST(SparseArrayTest, CopiesKeepHolesAndTheirOrder)
{
	TSparseArray<int32> Array = MakeArray(4);
	Array.RemoveAt(2);
	Array.RemoveAt(0);
	TSparseArray<int32> Copy = Array;
	EXPECT_EQ("1:10 3:30 ", Show(Copy));
	EXPECT_EQ(0, Copy.Add(1));
	EXPECT_EQ(2, Copy.Add(2));
}

TEST(SparseArrayTest, CopiesOfObjectsKeepHolesToo)
{
	TSparseArray<FString> Array;
	Array.Add(TEXT("a"));
	Array.Add(TEXT("b"));
	Array.RemoveAt(0);
	TSparseArray<FString> Copy;
	Copy = Array;
	EXPECT_EQ("b", ToUtf8(Copy[1]));
	EXPECT_EQ(0, Copy.Add(TEXT("c")));
}

TEST(SparseArrayTest, ShrinkDropsHolesAtTheEndOnly)
{
	TSparseArray<int32> Array = MakeArray(5);
	Array.RemoveAt(1);
	Array.RemoveAt(4);
	Array.RemoveAt(3);
	Array.Shrink();
	EXPECT_EQ(3, Array.GetMaxIndex());
	EXPECT_EQ(1, Array.Add(99));
	EXPECT_EQ(3, Array.Add(98));
}

TEST(SparseArrayTest, CompactFillsHolesFromTheEnd)
{
	TSparseArray<int32> Array = MakeArray(5);
	Array.RemoveAt(0);
	Array.RemoveAt(2);
	EXPECT_TRUE(Array.Compact());
	EXPECT_EQ("0:40 1:10 2:30 ", Show(Array));
	EXPECT_FALSE(Array.Compact());
	EXPECT_EQ(3, Array.Add(1));
}

TEST(SparseArrayTest, CompactStableKeepsTheOrder)
{
	TSparseArray<int32> Array = MakeArray(5);
	Array.RemoveAt(0);
	Array.RemoveAt(2);
	EXPECT_TRUE(Array.CompactStable());
	EXPECT_EQ("0:10 1:30 2:40 ", Show(Array));
	EXPECT_EQ(3, Array.Add(1));
}

TEST(SparseArrayTest, RemovalWhileIteratingGoesOnBehind)
{
	TSparseArray<int32> Array = MakeArray(100);
	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (It.GetIndex() % 3 != 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(34, Array.Num());
}

TEST(SparseArrayTest, EveryElementIsDestroyedOnce)
{
	{
		TSparseArray<FCountedValue> Array;
		for (int32 Index = 0; Index < 70; ++Index)
		{
			Array.Add(Index);
		}
		Array.RemoveAt(3, 60);
		Array.Sort([](const FCountedValue& A, const FCountedValue& B) { return B < A; });
		EXPECT_EQ(69, Array[0].Value);
		TSparseArray<FCountedValue> Moved = MoveTemp(Array);
		EXPECT_EQ(10, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(SparseArrayDeathTest, AHoleIsNoElement)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TSparseArray<int32> Array = MakeArray(2);
	Array.RemoveAt(0);
	EXPECT_DEATH(Array[0] = 1, "Assertion failed: IsValidIndex");
	EXPECT_DEATH(Array.RemoveAt(0), "Assertion failed: IsValidIndex");
}
