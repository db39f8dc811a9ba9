#include "SettingsScreenTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/CheckBox.h"
#include "Components/Slider.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GameFramework/GameUserSettings.h"
#include "HAL/IConsoleManager.h"
#include "Host/Displays.h"
#include "Misc/ConfigCacheIni.h"
#include "UserWidget/Settings/HalvexSettingDropdown.h"
#include "Widgets/SWindow.h"
#include "gmock/gmock.h"

using testing::ElementsAre;

const FIntPoint FSettingsScreenTest::FirstSize(1280, 1600);
const FIntPoint FSettingsScreenTest::OtherSize(1024, 1500);

void FSettingsScreenTest::SetUp()
{
	Host::FEngineTest::SetUp();
	Host::FDisplays::Set({ { OtherSize.X, OtherSize.Y, 60 }, { FirstSize.X, FirstSize.Y, 60 }, { 1920, 1700, 60 } }, { 1920, 1700, 60 });
	Settings().SetToDefaults();
	Settings().SetOverallScalabilityLevel(1);
	Settings().SetAudioQualityLevel(0);
	Settings().SetScreenResolution(FirstSize);
	Settings().SetFullscreenMode(EWindowMode::Windowed);
	Settings().SetVSyncEnabled(false);
	Settings().ConfirmVideoMode();
	Settings().ApplySettings(false);
}

void FSettingsScreenTest::TearDown()
{
	Host::FEngineTest::TearDown();
	Host::FDisplays::Reset();
	Settings().SetToDefaults();
	Settings().SetScreenResolution(FIntPoint(800, 600));
	Settings().SetFullscreenMode(EWindowMode::Windowed);
	Settings().ConfirmVideoMode();
	Settings().ApplySettings(false);
}

UGameUserSettings& FSettingsScreenTest::Settings()
{
	return *UGameUserSettings::GetGameUserSettings();
}

void FSettingsScreenTest::ShowScreen(const TCHAR* Name)
{
	UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/HalvexPro/Screens/%s.%s_C"), Name, Name));
	CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
	Loop.RunUntilIdle();
}

UComboBoxString& FSettingsScreenTest::GetBox(const TCHAR* Row) const
{
	return *CastChecked<UHalvexSettingDropdown>(Driver.Find(Row))->SettingWidget;
}

void FSettingsScreenTest::Choose(const TCHAR* Row, const TCHAR* Option)
{
	Click(*(FString(Row) + TEXT("/SettingWidget")));
	// The list lies over boxes that may show the same text, and is drawn after them.
	const FString Locator = FString(TEXT("text:")) + Option;
	Click(*FString::Printf(TEXT("%s#%d"), *Locator, Driver.Count(Locator)));
}

void FSettingsScreenTest::Toggle(const TCHAR* Row)
{
	Click(*(FString(Row) + TEXT("/SettingWidget")));
}

void FSettingsScreenTest::Click(const TCHAR* Locator)
{
	EXPECT_TRUE(Driver.Click(Locator)) << Host::ToStd(Driver.GetError());
}

FIntPoint FSettingsScreenTest::GetWindowSize() const
{
	const FVector2D Size = Loop.GetWindow()->GetClientSizeInScreen();
	return FIntPoint(FMath::RoundToInt(Size.X), FMath::RoundToInt(Size.Y));
}

std::string FSettingsScreenTest::ReadSaved(const TCHAR* Section, const TCHAR* Key)
{
	FString Value;
	GConfig->GetString(Section, Key, Value, GGameUserSettingsIni);
	return Host::ToStd(Value);
}

namespace
{
	const TCHAR* const VideoSection = TEXT("/Script/Engine.GameUserSettings");
	const TCHAR* const QualitySection = TEXT("ScalabilityGroups");

	const TCHAR* const LevelRows[] = { TEXT("Shadow"), TEXT("AntiAliasing"), TEXT("Texture"), TEXT("Shading"), TEXT("Reflection"),
		TEXT("GlobalIllumination"), TEXT("PostProcess"), TEXT("VisualEffect"), TEXT("Foliage"), TEXT("ViewDistance") };

	float GetScreenPercentage()
	{
		return IConsoleManager::Get().FindConsoleVariable(TEXT("r.ScreenPercentage"))->GetFloat();
	}

	TEST_F(FSettingsScreenTest, RowsShowTheirSettings)
	{
		int32 Level = 0;
		for (void (UGameUserSettings::*const Set)(int32) : { &UGameUserSettings::SetShadowQuality, &UGameUserSettings::SetAntiAliasingQuality, &UGameUserSettings::SetTextureQuality,
			&UGameUserSettings::SetShadingQuality, &UGameUserSettings::SetReflectionQuality, &UGameUserSettings::SetGlobalIlluminationQuality, &UGameUserSettings::SetPostProcessingQuality,
			&UGameUserSettings::SetVisualEffectQuality, &UGameUserSettings::SetFoliageQuality, &UGameUserSettings::SetViewDistanceQuality })
		{
			(Settings().*Set)(Level++ % 5);
		}
		Settings().SetAudioQualityLevel(3);
		Settings().SetVSyncEnabled(true);
		ShowScreen(TEXT("Settings"));

		Level = 0;
		for (const TCHAR* const Row : LevelRows)
		{
			EXPECT_EQ(GetBox(Row).GetSelectedIndex(), Level++ % 5) << TCHAR_TO_UTF8(Row);
		}
		EXPECT_EQ(GetBox(TEXT("Audio")).GetSelectedIndex(), 3);
		EXPECT_EQ(GetChoice(TEXT("Resolution")), "1280x1600");
		EXPECT_FALSE(CastChecked<UCheckBox>(Driver.Find(TEXT("FullScreen/SettingWidget")))->IsChecked());
		EXPECT_TRUE(CastChecked<UCheckBox>(Driver.Find(TEXT("VSync/SettingWidget")))->IsChecked());
		EXPECT_TRUE(IsShown(TEXT("text:100 %")));
		EXPECT_FALSE(IsWaiting());
	}

	TEST_F(FSettingsScreenTest, OnlyTheModesOfTheDisplayAreOffered)
	{
		ShowScreen(TEXT("Settings"));
		const UComboBoxString& Box = GetBox(TEXT("Resolution"));
		std::vector<std::string> Offered;
		for (int32 Index = 0; Index < Box.GetOptionCount(); ++Index)
		{
			Offered.push_back(Host::ToStd(Box.GetOptionAtIndex(Index)));
		}
		EXPECT_THAT(Offered, ElementsAre("1024x1500", "1280x1600", "1920x1700"));
	}

	TEST_F(FSettingsScreenTest, ChangeWaitsUntilItIsApplied)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		EXPECT_TRUE(IsWaiting());
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ShadowQuality")), "1");
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_FALSE(IsWaiting());
		EXPECT_FALSE(IsCounting()) << "the window is as it was";
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ShadowQuality")), "3");
	}

	TEST_F(FSettingsScreenTest, DiscardPutsTheSavedValuesBack)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		Toggle(TEXT("VSync"));
		Click(TEXT("Discard"));
		EXPECT_FALSE(IsWaiting());
		EXPECT_FALSE(IsCounting());
		EXPECT_EQ(GetChoice(TEXT("Shadow")), "Medium");
		EXPECT_EQ(GetChoice(TEXT("Resolution")), "1280x1600");
		EXPECT_FALSE(CastChecked<UCheckBox>(Driver.Find(TEXT("VSync/SettingWidget")))->IsChecked());
		EXPECT_EQ(GetWindowSize(), FirstSize);
	}

	TEST_F(FSettingsScreenTest, OverallQualityShowsInAllLevelsAtOnce)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Overall"), TEXT("Cinematic"));
		for (const TCHAR* const Row : LevelRows)
		{
			EXPECT_EQ(GetChoice(Row), "Cinematic") << TCHAR_TO_UTF8(Row);
		}
		EXPECT_EQ(GetChoice(TEXT("Audio")), "Low") << "sound is no part of it";
	}

	TEST_F(FSettingsScreenTest, OverallQualityIsCustomWhileLevelsDiffer)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		EXPECT_TRUE(IsShown(TEXT("Overall/text:Custom")));
		EXPECT_EQ(GetChoice(TEXT("Texture")), "Medium") << "and no level was changed by showing it";
		Choose(TEXT("Shadow"), TEXT("Medium"));
		EXPECT_FALSE(IsShown(TEXT("Overall/text:Custom")));
		EXPECT_EQ(GetChoice(TEXT("Overall")), "Medium");
	}

	TEST_F(FSettingsScreenTest, AutoApplyAppliesAndSavesAtOnce)
	{
		ShowScreen(TEXT("SettingsAutoApply"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		EXPECT_FALSE(IsWaiting());
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ShadowQuality")), "3");
		Choose(TEXT("Overall"), TEXT("Low"));
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ShadowQuality")), "0");
		EXPECT_EQ(GetChoice(TEXT("Shadow")), "Low");
	}

	TEST_F(FSettingsScreenTest, CustomApplyAppliesQualityAtOnceAndLetsTheDisplayWait)
	{
		ShowScreen(TEXT("SettingsCustomApply"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		EXPECT_FALSE(IsWaiting());
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ShadowQuality")), "3");
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		EXPECT_TRUE(IsWaiting());
		EXPECT_EQ(GetWindowSize(), FirstSize);
	}

	TEST_F(FSettingsScreenTest, ResolutionIsDisabledWhileBorderless)
	{
		ShowScreen(TEXT("Settings"));
		EXPECT_TRUE(Driver.Find(TEXT("Resolution"))->GetIsEnabled());
		Toggle(TEXT("FullScreen"));
		EXPECT_FALSE(Driver.Find(TEXT("Resolution"))->GetIsEnabled());
		Toggle(TEXT("FullScreen"));
		EXPECT_TRUE(Driver.Find(TEXT("Resolution"))->GetIsEnabled());
	}

	TEST_F(FSettingsScreenTest, NewVideoModeIsCountedDownAndKept)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		EXPECT_FALSE(IsCounting());
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_TRUE(IsCounting());
		EXPECT_FALSE(IsWaiting());
		EXPECT_EQ(GetWindowSize(), OtherSize);
		EXPECT_TRUE(IsShown(TEXT("text:The old one comes back in 15 seconds.")));
		Driver.Wait(14.5);
		EXPECT_TRUE(IsShown(TEXT("text:The old one comes back in 1 second.")));
		Click(TEXT("Keep"));
		EXPECT_FALSE(IsCounting());
		Driver.Wait(20.0);
		EXPECT_EQ(GetWindowSize(), OtherSize);
		EXPECT_EQ(ReadSaved(VideoSection, TEXT("LastUserConfirmedResolutionSizeX")), "1024");
		EXPECT_EQ(ReadSaved(VideoSection, TEXT("ResolutionSizeX")), "1024");
	}

	TEST_F(FSettingsScreenTest, VideoModeThatIsNotKeptGoesBack)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		Click(TEXT("Btn_ApplyConfirmation"));
		Driver.Wait(14.5);
		EXPECT_EQ(GetWindowSize(), OtherSize);
		Driver.Wait(1.0);
		EXPECT_FALSE(IsCounting());
		EXPECT_EQ(GetWindowSize(), FirstSize);
		EXPECT_EQ(GetChoice(TEXT("Resolution")), "1280x1600");
		EXPECT_EQ(ReadSaved(VideoSection, TEXT("ResolutionSizeX")), "1280");
	}

	TEST_F(FSettingsScreenTest, RevertNowPutsTheOldModeBackAtOnce)
	{
		ShowScreen(TEXT("Settings"));
		Toggle(TEXT("FullScreen"));
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_EQ(GetWindowSize(), FIntPoint(1920, 1700)) << "the desktop's";
		EXPECT_TRUE(IsCounting());
		Click(TEXT("RevertNow"));
		EXPECT_FALSE(IsCounting());
		EXPECT_EQ(GetWindowSize(), FirstSize);
		EXPECT_FALSE(CastChecked<UCheckBox>(Driver.Find(TEXT("FullScreen/SettingWidget")))->IsChecked());
		EXPECT_EQ(ReadSaved(VideoSection, TEXT("FullscreenMode")), "2");
	}

	TEST_F(FSettingsScreenTest, NothingElseCanBeChangedDuringTheCount)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_FALSE(Driver.Find(TEXT("Rows"))->GetIsEnabled());
		Click(TEXT("RevertNow"));
		EXPECT_TRUE(Driver.Find(TEXT("Rows"))->GetIsEnabled());
	}

	TEST_F(FSettingsScreenTest, ModeThatCameBackByItselfIsNotAskedFor)
	{
		ShowScreen(TEXT("Settings"));
		Toggle(TEXT("FullScreen"));
		Toggle(TEXT("FullScreen"));
		EXPECT_TRUE(IsWaiting());
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_FALSE(IsCounting());
	}

	TEST_F(FSettingsScreenTest, EachApplyCountsAnew)
	{
		ShowScreen(TEXT("SettingsAutoApply"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		EXPECT_TRUE(IsCounting());
		Driver.Wait(10.0);
		Click(TEXT("RevertNow"));
		Toggle(TEXT("FullScreen"));
		EXPECT_TRUE(IsShown(TEXT("text:The old one comes back in 15 seconds.")));
		Driver.Wait(10.0);
		EXPECT_TRUE(IsShown(TEXT("text:The old one comes back in 5 seconds."))) << "the seconds of the count before do not run on";
		Click(TEXT("RevertNow"));
	}

	TEST_F(FSettingsScreenTest, LeavingTheScreenDuringTheCountPutsTheOldModeBack)
	{
		ShowScreen(TEXT("Settings"));
		Choose(TEXT("Resolution"), TEXT("1024x1500"));
		Click(TEXT("Btn_ApplyConfirmation"));
		CastChecked<UUserWidget>(Driver.Find(TEXT("class:Settings")))->RemoveFromParent();
		Loop.RunUntilIdle();
		EXPECT_EQ(GetWindowSize(), FirstSize);
		EXPECT_EQ(ReadSaved(VideoSection, TEXT("ResolutionSizeX")), "1280");
	}

	TEST_F(FSettingsScreenTest, ScreenPercentageFollowsTheSliderOnceApplied)
	{
		ShowScreen(TEXT("Settings"));
		const float Before = GetScreenPercentage();
		ASSERT_TRUE(Driver.DragBy(TEXT("ScreenPercentage/Slider"), FVector2D(-300.0, 0.0))) << Host::ToStd(Driver.GetError());
		EXPECT_TRUE(IsShown(TEXT("text:25 %")));
		EXPECT_EQ(GetScreenPercentage(), Before);
		EXPECT_TRUE(IsWaiting());
		Click(TEXT("Btn_ApplyConfirmation"));
		EXPECT_EQ(GetScreenPercentage(), 25.0f);
		EXPECT_EQ(ReadSaved(QualitySection, TEXT("sg.ResolutionQuality")).substr(0, 2), "25") << "for the next start";
		EXPECT_TRUE(IsShown(TEXT("text:25 %")));
	}

	TEST_F(FSettingsScreenTest, ScreenPercentageMovesByKeys)
	{
		ShowScreen(TEXT("SettingsAutoApply"));
		ASSERT_TRUE(Driver.Focus(TEXT("ScreenPercentage/Slider"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Left);
		EXPECT_TRUE(IsShown(TEXT("text:95 %")));
		EXPECT_EQ(GetScreenPercentage(), 95.0f);
	}
}
