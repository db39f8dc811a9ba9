#include "Algo/Accumulate.h"
#include "Algo/AllOf.h"
#include "Algo/AnyOf.h"
#include "Algo/BinarySearch.h"
#include "Algo/Count.h"
#include "Algo/Find.h"
#include "Algo/MaxElement.h"
#include "Algo/MinElement.h"
#include "Algo/NoneOf.h"
#include "Algo/Reverse.h"
#include "Algo/Transform.h"

#include "CoreMinimal.h"
#include "gtest/gtest.h"

namespace
{
	bool IsEven(int32 Value)
	{
		return Value % 2 == 0;
	}
}

TEST(AlgoTest, ReversesInPlace)
{
	TArray<int32> Odd{ 1, 2, 3 };
	Algo::Reverse(Odd);
	EXPECT_EQ((TArray<int32>{ 3, 2, 1 }), Odd);
	int32 Even[] = { 1, 2, 3, 4 };
	Algo::Reverse(Even);
	EXPECT_EQ(4, Even[0]);
	EXPECT_EQ(3, Even[1]);
}

TEST(AlgoTest, FindsElements)
{
	TArray<int32> Array{ 1, 2, 3, 4 };
	EXPECT_EQ(&Array[2], Algo::Find(Array, 3));
	EXPECT_EQ(nullptr, Algo::Find(Array, 9));
	EXPECT_EQ(&Array[1], Algo::FindByPredicate(Array, IsEven));
	const TArray<FString> Texts{ TEXT("a"), TEXT("bb") };
	EXPECT_EQ(&Texts[1], Algo::FindBy(Texts, 2, &FString::Len));
}

TEST(AlgoTest, AsksAllElements)
{
	const TArray<int32> Array{ 2, 4, 5 };
	EXPECT_FALSE(Algo::AllOf(Array, IsEven));
	EXPECT_TRUE(Algo::AnyOf(Array, IsEven));
	EXPECT_FALSE(Algo::NoneOf(Array, IsEven));
	EXPECT_TRUE(Algo::AllOf(TArray<int32>(), IsEven));
	EXPECT_EQ(2u, Algo::CountIf(Array, IsEven));
	EXPECT_EQ(1u, Algo::Count(Array, 5));
}

TEST(AlgoTest, TransformsAndAccumulates)
{
	const TArray<int32> Array{ 1, 2, 3 };
	TArray<FString> Texts;
	Algo::Transform(Array, Texts, &FString::FromInt);
	EXPECT_EQ((TArray<FString>{ TEXT("1"), TEXT("2"), TEXT("3") }), Texts);
	TSet<int32> Evens;
	Algo::TransformIf(Array, Evens, IsEven, [](int32 Value) { return Value * 10; });
	EXPECT_EQ((TArray<int32>{ 20 }), Evens.Array());
	EXPECT_EQ(16, Algo::Accumulate(Array, 10));
}

TEST(AlgoTest, FindsExtremes)
{
	const TArray<int32> Array{ 2, 1, 3, 1 };
	EXPECT_EQ(&Array[1], Algo::MinElement(Array));
	EXPECT_EQ(&Array[2], Algo::MaxElement(Array));
	const TArray<int32> Empty;
	EXPECT_EQ(nullptr, Algo::MinElement(Empty));
}

TEST(AlgoTest, SearchesSortedRanges)
{
	const TArray<int32> Array{ 1, 3, 3, 5 };
	EXPECT_EQ(1, Algo::LowerBound(Array, 3));
	EXPECT_EQ(3, Algo::UpperBound(Array, 3));
	EXPECT_EQ(4, Algo::LowerBound(Array, 9));
	EXPECT_EQ(3, Algo::BinarySearch(Array, 5));
	EXPECT_EQ(INDEX_NONE, Algo::BinarySearch(Array, 4));
}
