#include "Templates/UniquePtr.h"

#include "CountedValue.h"
#include "gtest/gtest.h"

TEST(UniquePtrTest, OwnsItsObjectAlone)
{
	TUniquePtr<FCountedValue> First = MakeUnique<FCountedValue>(3);
	TUniquePtr<FCountedValue> Second = MoveTemp(First);
	EXPECT_FALSE(First.IsValid());
	EXPECT_EQ(3, Second->Value);
	Second = MakeUnique<FCountedValue>(4);
	EXPECT_EQ(1, FCountedValue::NumAlive);
	Second.Reset();
	EXPECT_EQ(0, FCountedValue::NumAlive);
	EXPECT_TRUE(Second == nullptr);
}

TEST(UniquePtrTest, ReleaseGivesTheObjectUp)
{
	TUniquePtr<FCountedValue> Pointer = MakeUnique<FCountedValue>(3);
	FCountedValue* Released = Pointer.Release();
	EXPECT_EQ(1, FCountedValue::NumAlive);
	delete Released;
}

TEST(UniquePtrTest, OwnsArrays)
{
	{
		TUniquePtr<FCountedValue[]> Values = MakeUnique<FCountedValue[]>(5);
		Values[4].Value = 9;
		EXPECT_EQ(5, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(UniquePtrTest, CallsItsDeleter)
{
	int32 NumCalls = 0;
	auto Deleter = [&NumCalls](int32* Object)
	{
		++NumCalls;
		delete Object;
	};
	{
		TUniquePtr<int32, decltype(Deleter)> Pointer(new int32(1), MoveTemp(Deleter));
	}
	EXPECT_EQ(1, NumCalls);
}
