#include "ExpectedLog.h"
#include "ObjectTestStyle.h"
#include "TemporaryContent.h"
#include "UObject/ConstructorHelpers.h"
#include "gtest/gtest.h"

namespace
{
	class ConstructorHelper : public testing::Test
	{
	protected:
		virtual void TearDown() override
		{
			UObjectTestFinder::FoundPath.Empty();
			UObjectTestFinder::MissingPath.Empty();
			UObjectTestFinder::ClassPath.Empty();
		}
	};
}

TEST_F(ConstructorHelper, FindsAndRootsAnAsset)
{
	const Host::FTemporaryContent Content(TEXT("/FinderTest/"));
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Whole": 3}})");
	UObjectTestFinder::FoundPath = TEXT("/FinderTest/Style.Style");

	UObjectTestFinder* Finder = NewObject<UObjectTestFinder>();

	ASSERT_TRUE(Finder->bFoundSucceeded);
	EXPECT_EQ(Finder->Found->Whole, 3);
	EXPECT_TRUE(Finder->Found->IsRooted());
	Finder->Found->RemoveFromRoot();
}

TEST_F(ConstructorHelper, MissingAssetIsAnErrorThatNamesTheClassAndThePath)
{
	Host::FExpectedLog Expected(TEXT("CDO Constructor (ObjectTestFinder): Failed to find /Test/NoSuch.NoSuch"));
	UObjectTestFinder::MissingPath = TEXT("/Test/NoSuch.NoSuch");

	UObjectTestFinder* Finder = NewObject<UObjectTestFinder>();

	EXPECT_FALSE(Finder->bMissingSucceeded);
	EXPECT_EQ(Finder->Missing, nullptr);
}

TEST_F(ConstructorHelper, FindsANativeClass)
{
	UObjectTestFinder::ClassPath = TEXT("/Script/CoreUObjectTestTypes.ObjectTestOtherPart");

	EXPECT_EQ(NewObject<UObjectTestFinder>()->FoundClass.Get(), UObjectTestOtherPart::StaticClass());
}

TEST_F(ConstructorHelper, MissingBlueprintClassIsAnError)
{
	Host::FExpectedLog Expected(TEXT("CDO Constructor (ObjectTestFinder): Failed to find /Test/NoBlueprint"));
	UObjectTestFinder::ClassPath = TEXT("/Test/NoBlueprint");

	EXPECT_EQ(NewObject<UObjectTestFinder>()->FoundClass.Get(), nullptr);
}

TEST(ConstructorHelpersDeathTest, OutsideAConstructorIsRefused)
{
	EXPECT_DEATH(ConstructorHelpers::FObjectFinder<UObjectTestStyle>(TEXT("/Test/A.A")), "outside of a constructor");
}
