#include "Containers/Array.h"

#include "Containers/ArrayView.h"
#include "CountedValue.h"
#include "ExpectedLog.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	/** The elements as a text, for comparing at a glance. */
	template <typename RangeType>
	std::string Show(const RangeType& Range)
	{
		std::string Result;
		for (const auto& Element : Range)
		{
			Result += (Result.empty() ? "" : " ") + std::to_string(Element);
		}
		return Result;
	}
}

static_assert(sizeof(TArray<int32>) == 16, "An array is an address, a number and a capacity");

TEST(ArrayTest, AddReturnsTheIndex)
{
	TArray<int32> Array;
	EXPECT_EQ(0, Array.Add(7));
	EXPECT_EQ(1, Array.Add(8));
	EXPECT_EQ("7 8", Show(Array));
}

TEST(ArrayTest, AddUniqueReturnsTheIndexOfAnEqualElement)
{
	TArray<int32> Array{ 5, 6 };
	EXPECT_EQ(1, Array.AddUnique(6));
	EXPECT_EQ(2, Array.AddUnique(7));
	EXPECT_EQ("5 6 7", Show(Array));
}

TEST(ArrayTest, RemoveTakesAllEqualElementsAndKeepsTheOrder)
{
	TArray<int32> Array{ 1, 2, 1, 3, 1, 4 };
	EXPECT_EQ(3, Array.Remove(1));
	EXPECT_EQ("2 3 4", Show(Array));
	EXPECT_EQ(0, Array.Remove(9));
}

TEST(ArrayTest, RemoveSingleTakesTheFirstOnly)
{
	TArray<int32> Array{ 1, 2, 1 };
	EXPECT_EQ(1, Array.RemoveSingle(1));
	EXPECT_EQ("2 1", Show(Array));
	EXPECT_EQ(0, Array.RemoveSingle(5));
}

TEST(ArrayTest, RemoveAllKeepsTheOrder)
{
	TArray<int32> Array{ 1, 2, 3, 4, 5 };
	EXPECT_EQ(2, Array.RemoveAll([](int32 Value) { return Value % 2 == 0; }));
	EXPECT_EQ("1 3 5", Show(Array));
}

TEST(ArrayTest, RemoveSwapFillsFromTheEnd)
{
	TArray<int32> Array{ 1, 2, 3, 1, 4 };
	EXPECT_EQ(2, Array.RemoveSwap(1));
	EXPECT_EQ("4 2 3", Show(Array));
	EXPECT_EQ(1, Array.RemoveSingleSwap(4));
	EXPECT_EQ("3 2", Show(Array));
}

TEST(ArrayTest, RemoveAtTakesARange)
{
	TArray<int32> Array{ 0, 1, 2, 3, 4 };
	Array.RemoveAt(1, 2);
	EXPECT_EQ("0 3 4", Show(Array));
	Array.RemoveAtSwap(0);
	EXPECT_EQ("4 3", Show(Array));
}

TEST(ArrayTest, RemoveAtMayKeepItsMemory)
{
	TArray<int32> Array;
	Array.SetNum(1000);
	const int32 Max = Array.Max();
	Array.RemoveAt(0, 999, EAllowShrinking::No);
	EXPECT_EQ(Max, Array.Max());
	Array.RemoveAt(0, EAllowShrinking::Yes);
	EXPECT_LT(Array.Max(), Max);
}

TEST(ArrayTest, InsertMakesRoom)
{
	TArray<int32> Array{ 1, 4 };
	EXPECT_EQ(1, Array.Insert(2, 1));
	Array.Insert({ 8, 9 }, 0);
	EXPECT_EQ("8 9 1 2 4", Show(Array));
}

TEST(ArrayTest, PopReturnsTheLastElement)
{
	TArray<FString> Array{ TEXT("a"), TEXT("b") };
	EXPECT_EQ("b", ToUtf8(Array.Pop()));
	EXPECT_EQ(1, Array.Num());
	EXPECT_EQ("a", ToUtf8(Array.Last()));
}

TEST(ArrayTest, FindGivesIndexNoneForAnAbsentElement)
{
	const TArray<int32> Array{ 3, 4, 3 };
	int32 Index = 0;
	EXPECT_EQ(0, Array.Find(3));
	EXPECT_EQ(2, Array.FindLast(3));
	EXPECT_TRUE(Array.Find(4, Index));
	EXPECT_EQ(1, Index);
	EXPECT_FALSE(Array.Find(5, Index));
	EXPECT_EQ(INDEX_NONE, Index);
}

TEST(ArrayTest, SearchesByKeyAndPredicate)
{
	TArray<FString> Array{ TEXT("One"), TEXT("Two") };
	EXPECT_EQ(1, Array.IndexOfByKey(TEXT("TWO")));
	EXPECT_EQ(&Array[0], Array.FindByKey(FString(TEXT("one"))));
	EXPECT_EQ(nullptr, Array.FindByKey(TEXT("three")));
	EXPECT_EQ(&Array[1], Array.FindByPredicate([](const FString& Text) { return Text.StartsWith(TEXT("T")); }));
	EXPECT_TRUE(Array.ContainsByPredicate([](const FString& Text) { return Text.Len() == 3; }));
	EXPECT_EQ(1, Array.FilterByPredicate([](const FString& Text) { return Text == TEXT("two"); }).Num());
}

TEST(ArrayTest, APredicateMayBeAMember)
{
	const TArray<FString> Array{ TEXT("a"), TEXT("") };
	EXPECT_EQ(1, Array.IndexOfByPredicate(&FString::IsEmpty));
}

TEST(ArrayTest, CopiesShareNothing)
{
	TArray<int32> First{ 1, 2 };
	TArray<int32> Second = First;
	Second[0] = 9;
	EXPECT_EQ(1, First[0]);
	EXPECT_NE(First, Second);
	Second = First;
	EXPECT_EQ(First, Second);
}

TEST(ArrayTest, EqualityGoesByLengthAndOrder)
{
	EXPECT_EQ((TArray<int32>{ 1, 2 }), (TArray<int32>{ 1, 2 }));
	EXPECT_NE((TArray<int32>{ 1, 2 }), (TArray<int32>{ 2, 1 }));
	EXPECT_NE((TArray<int32>{ 1, 2 }), (TArray<int32>{ 1, 2, 3 }));
	EXPECT_EQ((TArray<FString>{ TEXT("a") }), (TArray<FString>{ TEXT("A") }));
}

TEST(ArrayTest, MovingAnArrayMovesNoElement)
{
	TArray<FCountedValue> First{ 1, 2, 3 };
	FCountedValue::ResetCounts();
	TArray<FCountedValue> Second = MoveTemp(First);
	EXPECT_EQ(0, First.Num());
	EXPECT_EQ(3, Second.Num());
	EXPECT_EQ(0, FCountedValue::NumCopies + FCountedValue::NumMoves);
}

TEST(ArrayTest, GrowingMovesElementsByTheirBytes)
{
	TArray<FCountedValue> Array;
	Array.Emplace(1);
	FCountedValue::ResetCounts();
	Array.Reserve(1000);
	Array.Insert(FCountedValue(2), 0);
	EXPECT_EQ(0, FCountedValue::NumCopies);
	EXPECT_EQ(1, FCountedValue::NumMoves);
	EXPECT_EQ(1, Array[1].Value);
}

TEST(ArrayTest, EveryElementIsDestroyedOnce)
{
	{
		TArray<FCountedValue> Array{ 1, 2, 3, 4, 5, 6 };
		Array.RemoveAt(1, 2);
		Array.RemoveAtSwap(0);
		Array.Append(TArray<FCountedValue>{ 7, 8 });
		Array.SetNum(2);
		EXPECT_EQ(2, FCountedValue::NumAlive);
		Array.Empty();
		EXPECT_EQ(0, FCountedValue::NumAlive);
		Array.Add(1);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(ArrayTest, ReservedElementsNeedNoFurtherAllocation)
{
	TArray<int32> Array;
	Array.Reserve(100);
	const int32* Data = Array.GetData();
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Array.Add(Index);
	}
	EXPECT_EQ(Data, Array.GetData());
	Array.Reset();
	EXPECT_EQ(Data, Array.GetData());
	EXPECT_EQ(100, Array.Max());
	Array.Empty();
	EXPECT_EQ(0, Array.Max());
}

TEST(ArrayTest, ShrinkGivesSlackBack)
{
	TArray<int32> Array{ 1 };
	Array.Reserve(50);
	Array.Shrink();
	EXPECT_EQ(1, Array.Max());
	EXPECT_EQ(1, Array[0]);
}

TEST(ArrayTest, InlineElementsNeedNoHeap)
{
	TArray<FString, TInlineAllocator<4>> Array{ TEXT("a"), TEXT("b") };
	EXPECT_EQ(0u, Array.GetAllocatedSize());
	TArray<FString, TInlineAllocator<4>> Moved = MoveTemp(Array);
	EXPECT_EQ("b", ToUtf8(Moved[1]));
	Moved.SetNum(10);
	EXPECT_GT(Moved.GetAllocatedSize(), 0u);
	EXPECT_EQ("a", ToUtf8(Moved[0]));
	Moved.SetNum(3, EAllowShrinking::No);
	Moved.Shrink();
	EXPECT_EQ(0u, Moved.GetAllocatedSize());
	EXPECT_EQ("b", ToUtf8(Moved[1]));
}

TEST(ArrayTest, SortGivesThePredicateDereferencedPointers)
{
	int32 Values[] = { 3, 1, 2 };
	TArray<int32*> Array{ &Values[0], &Values[1], &Values[2] };
	Array.Sort([](const int32& A, const int32& B) { return A < B; });
	EXPECT_EQ(1, *Array[0]);
	EXPECT_EQ(3, *Array[2]);
	Array.Sort();
	EXPECT_EQ(1, *Array[0]);
}

TEST(ArrayTest, SortGivesThePredicateSmartPointersAsTheyAre)
{
	TArray<TSharedPtr<int32>> Array{ MakeShared<int32>(2), MakeShared<int32>(1) };
	Array.Sort([](const TSharedPtr<int32>& A, const TSharedPtr<int32>& B) { return *A < *B; });
	EXPECT_EQ(1, *Array[0]);
}

TEST(ArrayTest, IterationByIndexAllowsRemoval)
{
	TArray<int32> Array{ 1, 2, 3, 4 };
	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ("1 3", Show(Array));
}

TEST(ArrayTest, ChangingTheLengthInsideARangedForIsReported)
{
	TArray<int32> Array{ 1, 2, 3 };
	Array.Reserve(8);
	const Host::FExpectedLog Expected(TEXT("Container has changed during ranged-for iteration!"));
	for (const int32 Value : Array)
	{
		if (Value == 1)
		{
			Array.Add(4);
		}
	}
}

TEST(ArrayTest, AsAHeapTheFirstElementComesFirst)
{
	TArray<int32> Array;
	for (const int32 Value : { 5, 2, 8, 1, 9 })
	{
		Array.HeapPush(Value);
	}
	EXPECT_EQ(1, Array.HeapTop());
	Array.HeapRemoveAt(Array.Find(5));
	std::string Popped;
	while (!Array.IsEmpty())
	{
		int32 Value = 0;
		Array.HeapPop(Value);
		Popped += std::to_string(Value);
	}
	EXPECT_EQ("1289", Popped);
}

TEST(ArrayDeathTest, AnIndexOutOfRangeHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TArray<int32> Array{ 1 };
	EXPECT_DEATH(Array[1] = 0, "Array index out of bounds: 1 into an array of size 1");
	EXPECT_DEATH(Array[-1] = 0, "Array index out of bounds: -1");
	EXPECT_DEATH(TArray<int32>().Last(), "Array index out of bounds");
	EXPECT_DEATH(TArray<int32>().Pop(), "Array index out of bounds");
	EXPECT_DEATH(Array.RemoveAt(0, 2), "Assertion failed");
}

TEST(ArrayDeathTest, AddingAnElementOfTheArrayItselfHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TArray<int32> Array{ 1 };
	EXPECT_DEATH(Array.Add(Array[0]), "Assertion failed");
}

TEST(ArrayViewTest, ViewsWithoutCopying)
{
	TArray<int32> Array{ 1, 2, 3, 4 };
	TArrayView<int32> View = Array;
	View[0] = 9;
	EXPECT_EQ(9, Array[0]);
	EXPECT_EQ("2 3", Show(View.Slice(1, 2)));
	EXPECT_EQ("3 4", Show(TConstArrayView<int32>(Array).Right(2)));
	EXPECT_EQ(2, View.Find(3));
}
