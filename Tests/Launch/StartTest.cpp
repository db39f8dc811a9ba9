#include "EngineTest.h"

#include "Components/TextBlock.h"
#include "Engine/DataTable.h"
#include "Engine/Engine.h"
#include "Engine/Font.h"
#include "Engine/GameViewportClient.h"
#include "HAL/IConsoleManager.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexUIStyleConfiguration.h"

/** The engine of this program was started with the folder Plugin beside this file: a configuration, and content that is not what it should be. */
namespace
{
	using FStartTest = Host::FEngineTest;

	TAutoConsoleVariable<int32> StartedEarly(TEXT("test.StartedEarly"), 1, TEXT("Registered before the engine started."));

	/** Announced before the start, for which the lines come; never destroyed, as lines are judged when an announcement ends. */
	Host::FExpectedLog& Announce(const TCHAR* Part)
	{
		return *new Host::FExpectedLog(Part, Host::FExpectedLog::AnyCount);
	}
	Host::FExpectedLog& BrokenFont = Announce(TEXT("Monserrat.asset.json:2:"));
	Host::FExpectedLog& NoFont = Announce(TEXT("CDO Constructor (HalvexUIStyleConfiguration): Failed to find /HalvexPro/Widgets/Fonts/Monserrat/Monserrat.Monserrat"));
	Host::FExpectedLog& NoIconFont = Announce(TEXT("CDO Constructor (HalvexUIStyleConfiguration): Failed to find /HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree"));
	Host::FExpectedLog& NoIconTable = Announce(TEXT("CDO Constructor (HalvexUIStyleConfiguration): Failed to find /HalvexPro/Widgets/FontIcon/FontAwesomeFree/DT_FontAwesomeFree.DT_FontAwesomeFree"));
	Host::FExpectedLog& NoStyle = Announce(TEXT("CDO Constructor (HalvexProUISettings): Failed to find /HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"));

	TEST_F(FStartTest, TheEngineConfigurationSetsConsoleVariables)
	{
		EXPECT_EQ(StartedEarly.GetValueOnGameThread(), 5);
		const TAutoConsoleVariable<int32> StartedLate(TEXT("test.StartedLate"), 1, TEXT("Registered while the engine runs."));
		EXPECT_EQ(StartedLate.GetValueOnGameThread(), 6);
		// A setter of code ranks higher.
		StartedEarly->Set(7);
		EXPECT_EQ(StartedEarly.GetValueOnGameThread(), 7);
	}

	TEST_F(FStartTest, ContentThatTheStyleNeedsIsReportedOnceAndLeftEmpty)
	{
		EXPECT_EQ(BrokenFont.GetCount(), 1);
		EXPECT_EQ(NoFont.GetCount(), 1);
		EXPECT_EQ(NoIconFont.GetCount(), 1);
		EXPECT_EQ(NoIconTable.GetCount(), 1);
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		EXPECT_FALSE(Style->FontStyle.Font);
		ASSERT_EQ(Style->FontIconMap.Num(), 1);
		EXPECT_FALSE(Style->FontIconMap[TEXT("FontAwesomeFree")].Font);
		EXPECT_FALSE(Style->FontIconMap[TEXT("FontAwesomeFree")].FontIconList);
		// The rest of it was made all the same, and nothing is looked up again.
		EXPECT_EQ(Style->ColorStyleMap.Num(), 3);
		EXPECT_EQ(Style->ColorSimpleMap.Num(), 3);
		EXPECT_EQ(Style->FontStyle.FontSizing.Num(), 15);
		EXPECT_EQ(NoFont.GetCount(), 1);
	}

	TEST_F(FStartTest, WithoutTheShippedStyleTheSettingStaysEmpty)
	{
		EXPECT_EQ(NoStyle.GetCount(), 1);
		EXPECT_TRUE(GetDefault<UHalvexProUISettings>()->ProjectUIConfiguration.IsNull());
		ASSERT_NE(UHalvexUISubsystem::Get(), nullptr);
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FStartTest, TextIsShownWithoutAnyFont)
	{
		UTextBlock* Text = NewObject<UTextBlock>();
		Text->SetText(FText::FromString(TEXT("Still here")));
		GEngine->GameViewport->AddViewportWidgetContent(Text->TakeWidget());
		Loop.RunUntilIdle();
		Host::FPicture Picture;
		ASSERT_TRUE(Loop.TakePicture(Picture));
		EXPECT_TRUE(Picture.Pixels.ContainsByPredicate([&Picture](const FColor& Pixel) { return Pixel != Picture.Pixels.Last(); }));
	}
}
