#include <gtest/gtest.h>

#include "InputCoreTypes.h"

TEST(InputKeyTest, KeysKnowWhatTheyAre)
{
	EXPECT_TRUE(EKeys::LeftMouseButton.IsMouseButton());
	EXPECT_TRUE(EKeys::MouseScrollUp.IsMouseButton());
	EXPECT_FALSE(EKeys::A.IsMouseButton());
	EXPECT_TRUE(EKeys::LeftShift.IsModifierKey());
	EXPECT_TRUE(EKeys::MouseWheelAxis.IsAxis1D());
}

TEST(InputKeyTest, UnknownNamesAreNoKeys)
{
	EXPECT_TRUE(FKey(TEXT("Escape")).IsValid());
	EXPECT_EQ(FKey(TEXT("escape")), EKeys::Escape);
	EXPECT_FALSE(FKey(TEXT("NoSuchKey")).IsValid());
	EXPECT_FALSE(FKey().IsValid());
	EXPECT_EQ(FKey(), EKeys::Invalid);
}

TEST(InputKeyTest, NamesForPeople)
{
	EXPECT_EQ(EKeys::LeftMouseButton.GetDisplayName().ToString(), TEXT("Left Mouse Button"));
	EXPECT_EQ(EKeys::Zero.GetDisplayName().ToString(), TEXT("0"));
	EXPECT_EQ(EKeys::LeftMouseButton.ToString(), TEXT("LeftMouseButton"));
}

TEST(InputKeyTest, EachKeyIsListedOnce)
{
	TArray<FKey> Keys;
	EKeys::GetAllKeys(Keys);
	TSet<FKey> Distinct;
	for (const FKey& Key : Keys)
	{
		EXPECT_TRUE(Key.IsValid());
		Distinct.Add(Key);
	}
	EXPECT_EQ(Distinct.Num(), Keys.Num());
	EXPECT_GT(Keys.Num(), 100);
}
