#include "Templates/Function.h"

#include "Containers/Array.h"
#include "CountedValue.h"
#include "Templates/UniquePtr.h"
#include "gtest/gtest.h"

namespace
{
	int32 Twice(int32 Value)
	{
		return Value * 2;
	}

	int32 CallWith(TFunctionRef<int32(int32)> Function, int32 Value)
	{
		return Function(Value);
	}

	struct FPoint
	{
		int32 X;
		int32 Plus(int32 Value) const { return X + Value; }
	};
}

TEST(FunctionTest, HoldsWhateverCanBeCalled)
{
	TFunction<int32(int32)> Function = [](int32 Value) { return Value + 1; };
	EXPECT_EQ(4, Function(3));
	Function = Twice;
	EXPECT_EQ(6, Function(3));
	Function = &Twice;
	EXPECT_EQ(6, Function(3));
	TFunction<int32(const FPoint&, int32)> Method = &FPoint::Plus;
	EXPECT_EQ(5, Method(FPoint{ 2 }, 3));
}

TEST(FunctionTest, KnowsWhetherItIsSet)
{
	TFunction<void()> Function;
	EXPECT_FALSE(Function.IsSet());
	EXPECT_TRUE(Function == nullptr);
	Function = [] {};
	EXPECT_TRUE((bool)Function);
	Function = nullptr;
	EXPECT_FALSE(Function.IsSet());
	int32 (*NullFunction)(int32) = nullptr;
	EXPECT_FALSE(TFunction<int32(int32)>(NullFunction).IsSet());
	EXPECT_FALSE((TFunction<void(int32)>(TFunction<int32(int32)>()).IsSet()));
}

TEST(FunctionTest, CopiesHaveAStateOfTheirOwn)
{
	TFunction<int32()> First = [Count = 0]() mutable { return ++Count; };
	First();
	TFunction<int32()> Second = First;
	EXPECT_EQ(2, Second());
	EXPECT_EQ(3, Second());
	EXPECT_EQ(2, First());
}

TEST(FunctionTest, SmallAndLargeFunctorsEndOnce)
{
	{
		const FCountedValue Value(5);
		int64 Ballast[16] = { 1 };
		TFunction<int32()> Small = [Value] { return Value.Value; };
		TFunction<int64()> Large = [Value, Ballast] { return Value.Value + Ballast[0]; };
		TFunction<int32()> SmallCopy = Small;
		TFunction<int64()> LargeCopy = Large;
		TFunction<int64()> LargeMoved = MoveTemp(Large);
		Small = MoveTemp(SmallCopy);
		EXPECT_FALSE(Large.IsSet());
		EXPECT_EQ(5, Small());
		EXPECT_EQ(6, LargeMoved());
		EXPECT_EQ(6, LargeCopy());
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(FunctionTest, AUniqueFunctionHoldsWhatCannotBeCopied)
{
	TUniqueFunction<int32()> Function = [Pointer = MakeUnique<int32>(7)] { return *Pointer; };
	TUniqueFunction<int32()> Moved = MoveTemp(Function);
	EXPECT_FALSE(Function.IsSet());
	EXPECT_EQ(7, Moved());
	EXPECT_FALSE((std::is_copy_constructible_v<TUniqueFunction<int32()>>));
}

TEST(FunctionTest, ArgumentsAreMovedThrough)
{
	FCountedValue::ResetCounts();
	TFunction<int32(FCountedValue)> Function = [](FCountedValue Value) { return Value.Value; };
	EXPECT_EQ(3, Function(FCountedValue(3)));
	EXPECT_EQ(0, FCountedValue::NumCopies);
}

TEST(FunctionTest, ArraysOfFunctionsGrow)
{
	TArray<TFunction<int32()>> Functions;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Functions.Add([Index, Text = MakeShared<int32>(Index)] { return Index + *Text; });
	}
	EXPECT_EQ(198, Functions[99]());
}

TEST(FunctionRefTest, RefersToACallable)
{
	int32 Offset = 1;
	const auto AddOffset = [&Offset](int32 Value) { return Value + Offset++; };
	EXPECT_EQ(4, CallWith(AddOffset, 3));
	EXPECT_EQ(5, CallWith(AddOffset, 3));
	EXPECT_EQ(6, CallWith(Twice, 3));
	EXPECT_EQ(6, CallWith(TFunction<int32(int32)>(Twice), 3));
}

TEST(FunctionDeathTest, CallingAnUnsetFunctionHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(TFunction<void()>()(), "Assertion failed: IsSet\\(\\)");
}
