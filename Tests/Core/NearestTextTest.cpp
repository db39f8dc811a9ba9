#include "CoreMinimal.h"
#include "Host/NearestText.h"
#include "gtest/gtest.h"

namespace
{
	const TArray<FString> Words = { TEXT("Padding"), TEXT("Position"), TEXT("Size") };
}

TEST(NearestText, FindsTheWordThatNeedsTheFewestChanges)
{
	EXPECT_EQ(Host::FindNearest(TEXT("Pading"), Words, 2), FString(TEXT("Padding")));
	EXPECT_EQ(Host::FindNearest(TEXT("Postion"), Words, 2), FString(TEXT("Position")));
	EXPECT_EQ(Host::FindNearest(TEXT("Sizes"), Words, 2), FString(TEXT("Size")));
}

TEST(NearestText, CaseIsNoChange)
{
	EXPECT_EQ(Host::FindNearest(TEXT("PADDING"), Words, 0), FString(TEXT("Padding")));
}

TEST(NearestText, TooManyChangesFindNothing)
{
	EXPECT_EQ(Host::FindNearest(TEXT("Pdng"), Words, 2), FString());
	EXPECT_EQ(Host::FindNearest(TEXT("Pdng"), Words, 3), FString(TEXT("Padding")));
}

TEST(NearestText, FirstOfSeveralIsTaken)
{
	EXPECT_EQ(Host::FindNearest(TEXT("B"), { TEXT("Ba"), TEXT("Bb") }, 1), FString(TEXT("Ba")));
}

TEST(NearestText, TextsLongerThanNamesAreNotCompared)
{
	const FString Long = FString::ChrN(65, TEXT('a'));
	EXPECT_EQ(Host::FindNearest(Long, { Long }, 1), FString());
}
