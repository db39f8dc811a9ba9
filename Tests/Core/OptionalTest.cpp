#include "Misc/Optional.h"

#include "CountedValue.h"
#include "gtest/gtest.h"

TEST(OptionalTest, HoldsAValueOrNone)
{
	TOptional<int32> Optional;
	EXPECT_FALSE(Optional.IsSet());
	EXPECT_EQ(7, Optional.Get(7));
	Optional = 3;
	EXPECT_TRUE(Optional.IsSet());
	EXPECT_EQ(3, Optional.GetValue());
	EXPECT_EQ(3, Optional.Get(7));
	EXPECT_EQ(3, *Optional.GetPtrOrNull());
	Optional.Reset();
	EXPECT_EQ(nullptr, Optional.GetPtrOrNull());
	Optional = 4;
	Optional = NullOpt;
	EXPECT_FALSE(Optional);
}

TEST(OptionalTest, ValuesEndOnce)
{
	{
		TOptional<FCountedValue> First(InPlace, 5);
		TOptional<FCountedValue> Second = First;
		TOptional<FCountedValue> Third = MoveTemp(First);
		Second = Third;
		Third = FCountedValue(6);
		First.Reset();
		EXPECT_EQ(5, Second->Value);
		EXPECT_EQ(6, Third->Value);
		EXPECT_EQ(2, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(OptionalTest, ComparesValuesAndTheirAbsence)
{
	EXPECT_TRUE(TOptional<int32>(3) == TOptional<int32>(3));
	EXPECT_FALSE(TOptional<int32>(3) == TOptional<int32>());
	EXPECT_TRUE(TOptional<int32>() == TOptional<int32>());
	EXPECT_TRUE(TOptional<int32>(3) == 3);
}

TEST(OptionalDeathTest, AskingForAValueThatIsNotThereHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH((void)TOptional<int32>().GetValue(), "Assertion failed: IsSet\\(\\)");
}
