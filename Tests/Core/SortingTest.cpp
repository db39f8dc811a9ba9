#include "Templates/Sorting.h"

#include "Algo/IsSorted.h"
#include "Algo/Sort.h"
#include "Algo/StableSort.h"
#include "CoreMinimal.h"
#include "gtest/gtest.h"

#include <algorithm>
#include <random>
#include <vector>

namespace
{
	struct FRanked
	{
		int32 Rank;
		int32 Place;
	};

	/** Arrays of the shapes that sorting algorithms dislike. */
	std::vector<TArray<int32>> MakeShapes(int32 Num)
	{
		std::mt19937 Random(17);
		std::vector<TArray<int32>> Shapes(6);
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Shapes[0].Add((int32)(Random() % 1000000));
			Shapes[1].Add((int32)(Random() % 4));
			Shapes[2].Add(Index);
			Shapes[3].Add(Num - Index);
			Shapes[4].Add(Index < Num / 2 ? Index : Num - Index);
			Shapes[5].Add(7);
		}
		return Shapes;
	}
}

TEST(SortingTest, SortOrdersEveryShapeAsTheLibraryDoes)
{
	for (const int32 Num : { 0, 1, 2, 3, 15, 16, 17, 18, 100, 5000 })
	{
		for (TArray<int32> Shape : MakeShapes(Num))
		{
			std::vector<int32> Expected(Shape.GetData(), Shape.GetData() + Num);
			std::sort(Expected.begin(), Expected.end());
			Shape.Sort();
			EXPECT_TRUE(std::equal(Expected.begin(), Expected.end(), Shape.GetData()));
		}
	}
}

TEST(SortingTest, StableSortKeepsTheOrderOfEqualElements)
{
	std::mt19937 Random(5);
	TArray<FRanked> Array;
	for (int32 Index = 0; Index < 3000; ++Index)
	{
		Array.Add({ (int32)(Random() % 20), Index });
	}
	Array.StableSort([](const FRanked& A, const FRanked& B) { return A.Rank < B.Rank; });
	for (int32 Index = 1; Index < Array.Num(); ++Index)
	{
		const FRanked& Before = Array[Index - 1];
		const FRanked& Here = Array[Index];
		EXPECT_TRUE(Before.Rank < Here.Rank || (Before.Rank == Here.Rank && Before.Place < Here.Place));
	}
}

TEST(SortingTest, HeapSortOrders)
{
	for (TArray<int32> Shape : MakeShapes(500))
	{
		Shape.HeapSort();
		EXPECT_TRUE(Algo::IsSorted(Shape));
	}
}

TEST(SortingTest, ASenselessPredicateLosesNoElement)
{
	const auto AlwaysTrue = [](int32, int32) { return true; };
	const auto NeverTrue = [](int32, int32) { return false; };
	std::mt19937 Random(3);
	const auto Chance = [&Random](int32, int32) { return Random() % 2 == 0; };
	const auto Check = [](const auto& Predicate)
	{
		for (const int32 Num : { 2, 16, 17, 40, 1000 })
		{
			for (const TArray<int32>& Shape : MakeShapes(Num))
			{
				TArray<int32> Sorted = Shape;
				TArray<int32> StablySorted = Shape;
				Sorted.Sort(Predicate);
				StablySorted.StableSort(Predicate);
				TArray<int32> Expected = Shape;
				Expected.Sort();
				Sorted.Sort();
				StablySorted.Sort();
				EXPECT_EQ(Expected, Sorted);
				EXPECT_EQ(Expected, StablySorted);
			}
		}
	};
	Check(AlwaysTrue);
	Check(NeverTrue);
	Check(Chance);
}

TEST(SortingTest, BadMediansDoNotMakeSortQuadratic)
{
	constexpr int32 Num = 100000;
	for (TArray<int32>& Shape : MakeShapes(Num))
	{
		int64 NumComparisons = 0;
		Shape.Sort([&NumComparisons](int32 A, int32 B)
		{
			++NumComparisons;
			return A < B;
		});
		EXPECT_LT(NumComparisons, (int64)Num * 17 * 3);
	}
}

TEST(SortingTest, AlgoSortPassesPointersAsTheyAre)
{
	int32 Values[] = { 3, 1, 2 };
	TArray<int32*> Array{ &Values[2], &Values[0], &Values[1] };
	Algo::Sort(Array, [](const int32* A, const int32* B) { return A < B; });
	EXPECT_EQ(&Values[0], Array[0]);
	Algo::StableSort(Array, [](const int32* A, const int32* B) { return *A < *B; });
	EXPECT_EQ(1, *Array[0]);
}

TEST(SortingTest, SortByGoesByAProjection)
{
	TArray<FRanked> Array{ { 3, 0 }, { 1, 1 }, { 2, 2 } };
	Algo::SortBy(Array, &FRanked::Rank);
	EXPECT_EQ(1, Array[0].Place);
	Algo::SortBy(Array, &FRanked::Rank, TGreater<>());
	EXPECT_EQ(0, Array[0].Place);
	Algo::StableSortBy(Array, &FRanked::Place);
	EXPECT_EQ(3, Array[0].Rank);
}
