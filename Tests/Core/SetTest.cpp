#include "Containers/Set.h"

#include "CountedValue.h"
#include "ExpectedLog.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string Show(const TSet<int32>& Set)
	{
		std::string Result;
		for (const int32 Element : Set)
		{
			Result += (Result.empty() ? "" : " ") + std::to_string(Element);
		}
		return Result;
	}
}

TEST(SetTest, AnElementIsInItOnce)
{
	TSet<FString> Set;
	bool bAlreadyThere = true;
	const FSetElementId Id = Set.Add(TEXT("a"), &bAlreadyThere);
	EXPECT_FALSE(bAlreadyThere);
	EXPECT_EQ(Id, Set.Add(TEXT("A"), &bAlreadyThere));
	EXPECT_TRUE(bAlreadyThere);
	EXPECT_EQ(1, Set.Num());
	EXPECT_EQ("A", ToUtf8(Set[Id]));
}

TEST(SetTest, FindOrAddKeepsTheElementThatIsThere)
{
	TSet<FString> Set{ TEXT("a") };
	EXPECT_EQ("a", ToUtf8(Set.FindOrAdd(TEXT("A"))));
	EXPECT_EQ("b", ToUtf8(Set.FindOrAdd(TEXT("b"))));
}

TEST(SetTest, TheHoleMadeLastIsFilledFirst)
{
	TSet<int32> Set{ 1, 2, 3 };
	EXPECT_EQ(1, Set.Remove(1));
	EXPECT_EQ(1, Set.Remove(2));
	EXPECT_EQ(0, Set.Remove(2));
	Set.Add(8);
	Set.Add(9);
	EXPECT_EQ("9 8 3", Show(Set));
}

TEST(SetTest, CombinesSets)
{
	const TSet<int32> A{ 1, 2, 3 };
	const TSet<int32> B{ 2, 3, 4 };
	EXPECT_EQ("1 2 3 4", Show(A.Union(B)));
	EXPECT_EQ("2 3", Show(A.Intersect(B)));
	EXPECT_EQ("1", Show(A.Difference(B)));
	EXPECT_TRUE(A.Includes({ 1, 3 }));
	EXPECT_FALSE(A.Includes(B));
}

TEST(SetTest, SortsAndListsItsElements)
{
	TSet<int32> Set{ 3, 1, 2 };
	Set.Sort(TLess<>());
	EXPECT_EQ((TArray<int32>{ 1, 2, 3 }), Set.Array());
	EXPECT_TRUE(Set.Contains(3));
	EXPECT_EQ((TArray<int32>{ 5, 6 }), TSet<int32>(TArray<int32>{ 5, 6, 5 }).Array());
}

TEST(SetTest, RemovalWhileIterating)
{
	TSet<int32> Set;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Set.Add(Index);
	}
	for (auto It = Set.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 1)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(100, Set.Num());
	EXPECT_TRUE(Set.Contains(64));
	EXPECT_FALSE(Set.Contains(65));
}

TEST(SetTest, InlineElementsNeedNoHeap)
{
	TSet<int32, DefaultKeyFuncs<int32>, TInlineSetAllocator<8>> Set;
	for (int32 Index = 0; Index < 8; ++Index)
	{
		Set.Add(Index);
	}
	EXPECT_EQ(0u, Set.GetAllocatedSize());
	Set.Add(8);
	EXPECT_GT(Set.GetAllocatedSize(), 0u);
	EXPECT_TRUE(Set.Contains(0));
	EXPECT_TRUE(Set.Contains(8));
}

TEST(SetTest, AChangeInsideARangedForIsReported)
{
	TSet<int32> Set{ 1, 2 };
	Set.Reserve(10);
	const Host::FExpectedLog Expected(TEXT("Container has changed during ranged-for iteration!"));
	for (const int32 Element : Set)
	{
		if (Element == 1)
		{
			Set.Add(3);
		}
	}
}

TEST(SetTest, EveryElementIsDestroyedOnce)
{
	{
		TSet<FCountedValue> Set;
		for (int32 Index = 0; Index < 40; ++Index)
		{
			Set.Add(FCountedValue(Index % 20));
		}
		EXPECT_EQ(20, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}
