#include "Templates/Tuple.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

TEST(TupleTest, APairHasKeyAndValue)
{
	const TPair<FString, int32> Pair(TEXT("a"), 1);
	EXPECT_EQ("a", ToUtf8(Pair.Key));
	EXPECT_EQ(1, Pair.Value);
	EXPECT_EQ(1, Pair.Get<1>());
	const auto& [Key, Value] = Pair;
	EXPECT_EQ(&Pair.Key, &Key);
	EXPECT_EQ(&Pair.Value, &Value);
	EXPECT_EQ(0, (TPair<int32, int32>().Value));
}

TEST(TupleTest, HoldsElementsOfManyTypes)
{
	auto Tuple = MakeTuple(1, FString(TEXT("b")), 2.5);
	EXPECT_EQ("b", ToUtf8(Tuple.Get<1>()));
	auto& [First, Second, Third] = Tuple;
	First = 9;
	EXPECT_EQ(9, Tuple.Get<0>());
	EXPECT_EQ(2.5, Third);
	EXPECT_EQ(1, Second.Len());
}

TEST(TupleTest, ComparesAndHashesByElements)
{
	EXPECT_TRUE(MakeTuple(1, 2, 3) == MakeTuple(1, 2, 3));
	EXPECT_FALSE(MakeTuple(1, 2, 3) == MakeTuple(1, 2, 4));
	EXPECT_EQ(GetTypeHash(MakeTuple(1, 2, 3)), GetTypeHash(MakeTuple(1, 2, 3)));
	EXPECT_NE(GetTypeHash(MakeTuple(1, 2, 3)), GetTypeHash(MakeTuple(3, 2, 1)));
	TMap<TPair<int32, FName>, int32> Map;
	Map.Add({ 1, TEXT("a") }, 5);
	EXPECT_EQ(5, Map.FindRef({ 1, TEXT("A") }));
}

TEST(TupleTest, AppliesAFunctionToItsElements)
{
	const auto Digits = [](int32 A, int32 B, int32 C) { return A * 100 + B * 10 + C; };
	EXPECT_EQ(123, MakeTuple(2, 3).ApplyAfter(Digits, 1));
	EXPECT_EQ(231, MakeTuple(2, 3).ApplyBefore(Digits, 1));
	EXPECT_EQ(123, MakeTuple(1, 2, 3).ApplyAfter(Digits));
}
