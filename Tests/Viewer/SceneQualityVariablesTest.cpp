#include "SceneVariables.h"

#include "Host/SceneQualityVariables.h"

#include "gtest/gtest.h"

using namespace Host;

namespace
{
	class FSceneQualityVariablesTest : public testing::Test
	{
	protected:
		FSceneVariables Variables;
		int32 NumChanges = 0;
		FSceneQualityVariables Quality{ FSimpleDelegate::CreateLambda([this] { ++NumChanges; }) };
	};
}

TEST_F(FSceneQualityVariablesTest, ZeroPercentIsTheWholeSize)
{
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("0"));
	EXPECT_FLOAT_EQ(Quality.Get().ScreenPercentage, 100.0f);
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("-40"));
	EXPECT_FLOAT_EQ(Quality.Get().ScreenPercentage, 100.0f);
}

TEST_F(FSceneQualityVariablesTest, TellsOfEachChangeOnce)
{
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("62.5"));
	EXPECT_FLOAT_EQ(Quality.Get().ScreenPercentage, 62.5f);
	Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("1"));
	EXPECT_EQ(Quality.Get().AntiAliasing, 1);
	Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
	EXPECT_EQ(Quality.Get().Shadows, 0);
	EXPECT_EQ(NumChanges, 3);

	Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("62.5"));
	EXPECT_EQ(NumChanges, 3) << "the same values again";
}

TEST_F(FSceneQualityVariablesTest, ValuesBeyondTheRangeAreCut)
{
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("7"));
	EXPECT_FLOAT_EQ(Quality.Get().ScreenPercentage, 25.0f);
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("1000"));
	EXPECT_FLOAT_EQ(Quality.Get().ScreenPercentage, 200.0f);
	Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("9"));
	EXPECT_EQ(Quality.Get().AntiAliasing, 4);
	Variables.Set(TEXT("sg.ShadowQuality"), TEXT("-3"));
	EXPECT_EQ(Quality.Get().Shadows, 0);
}

TEST_F(FSceneQualityVariablesTest, OtherGroupsDoNotMatter)
{
	Variables.Set(TEXT("sg.TextureQuality"), TEXT("0"));
	Variables.Set(TEXT("sg.FoliageQuality"), TEXT("1"));
	EXPECT_EQ(NumChanges, 0);
}
