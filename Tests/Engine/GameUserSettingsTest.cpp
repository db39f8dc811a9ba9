#include "GameFramework/GameUserSettings.h"

#include "EngineTest.h"

#include "Engine/Engine.h"
#include "HAL/FileManager.h"
#include "HAL/IConsoleManager.h"
#include "Host/ConfigFiles.h"
#include "Host/Displays.h"
#include "Host/PathRoots.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "RestoredVariable.h"
#include "TemporaryContent.h"
#include "Widgets/SWindow.h"

namespace
{
	using Host::FExpectedLog;

	/** The running engine's settings, with no file in the beginning and in the end. */
	class FGameUserSettingsTest : public Host::FEngineTest
	{
	protected:
		FGameUserSettingsTest()
		{
			Forget();
			Settings->LoadSettings(true);
		}

		virtual void TearDown() override
		{
			Forget();
			Loop.GetWindow()->SetWindowMode(EWindowMode::Windowed);
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
			Settings->LoadSettings(true);
			Settings->ApplyNonResolutionSettings();
			FEngineTest::TearDown();
		}

		void Forget()
		{
			GConfig->Flush(true, GGameUserSettingsIni);
			IFileManager::Get().Delete(*File);
			IFileManager::Get().Delete(*(File + TEXT(".damaged")));
		}

		void Write(const TCHAR* Text)
		{
			ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *File, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
		}

		FString Read()
		{
			FString Text;
			EXPECT_TRUE(FFileHelper::LoadFileToString(Text, *File));
			return Text;
		}

		FVector2D GetWindowSize() const { return Loop.GetWindow()->GetClientSizeInScreen(); }

		UGameUserSettings* const Settings = UGameUserSettings::GetGameUserSettings();
		const FString File = Host::FConfigFiles::GetUserFile(GGameUserSettingsIni);
	};

	TEST_F(FGameUserSettingsTest, TheEngineHasOneWithTheWindowAsItIs)
	{
		ASSERT_NE(Settings, nullptr);
		EXPECT_EQ(Settings, GEngine->GetGameUserSettings());
		EXPECT_EQ(Settings->GetScreenResolution(), FIntPoint(800, 600));
		EXPECT_EQ(Settings->GetFullscreenMode(), EWindowMode::Windowed);
		EXPECT_FALSE(Settings->IsVSyncEnabled());
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), 3);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 0);
		EXPECT_FALSE(Settings->IsDirty());
	}

	TEST_F(FGameUserSettingsTest, LevelsAreBroughtIntoRange)
	{
		// Rows hand on -1 for a label that they do not know.
		Settings->SetShadowQuality(-1);
		Settings->SetFoliageQuality(9);
		Settings->SetAudioQualityLevel(-1);
		EXPECT_EQ(Settings->GetShadowQuality(), 0);
		EXPECT_EQ(Settings->GetFoliageQuality(), 4);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 0);
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), -1);
		Settings->SetOverallScalabilityLevel(5);
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), 4);
		EXPECT_EQ(Settings->GetShadowQuality(), 4);
	}

	TEST_F(FGameUserSettingsTest, EachGroupHasItsOwnConsoleVariable)
	{
		Settings->SetViewDistanceQuality(0);
		Settings->SetPostProcessingQuality(1);
		Settings->SetVisualEffectQuality(2);
		Settings->SetTextureQuality(4);
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.TextureQuality")), 3);
		Settings->ApplyNonResolutionSettings();
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.ViewDistanceQuality")), 0);
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.PostProcessQuality")), 1);
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.EffectsQuality")), 2);
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.TextureQuality")), 4);
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableIntValue(TEXT("sg.ShadingQuality")), 3);
		EXPECT_FALSE(IFileManager::Get().FileExists(*File));
	}

	TEST_F(FGameUserSettingsTest, ApplyingSavesAndARestartReadsIt)
	{
		Settings->SetScreenResolution(FIntPoint(640, 480));
		Settings->SetVSyncEnabled(true);
		Settings->SetAudioQualityLevel(2);
		Settings->SetShadowQuality(1);
		EXPECT_TRUE(Settings->IsDirty());
		Settings->ApplySettings(false);
		EXPECT_FALSE(Settings->IsDirty());
		EXPECT_EQ(GetWindowSize(), FVector2D(640.0, 480.0));
		EXPECT_TRUE(UKismetSystemLibrary::GetConsoleVariableBoolValue(TEXT("r.VSync")));
		EXPECT_TRUE(Read().Contains(TEXT("[/Script/Engine.GameUserSettings]")));

		GConfig->Flush(true, GGameUserSettingsIni);
		UGameUserSettings* Restarted = NewObject<UGameUserSettings>();
		Restarted->LoadSettings();
		EXPECT_EQ(Restarted->GetScreenResolution(), FIntPoint(640, 480));
		EXPECT_TRUE(Restarted->IsVSyncEnabled());
		EXPECT_EQ(Restarted->GetAudioQualityLevel(), 2);
		EXPECT_EQ(Restarted->GetShadowQuality(), 1);
		EXPECT_EQ(Restarted->GetShadingQuality(), 3);
	}

	TEST_F(FGameUserSettingsTest, LoadingDropsWhatWasNotSavedAndReadsTheFileAnewOnlyWhenForced)
	{
		Settings->SetAudioQualityLevel(1);
		Settings->SaveSettings();
		Settings->SetAudioQualityLevel(3);
		Settings->LoadSettings();
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 1);
		Write(TEXT("[/Script/Engine.GameUserSettings]\nAudioQualityLevel=4\n"));
		Settings->LoadSettings();
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 1);
		Settings->LoadSettings(true);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 4);
	}

	TEST_F(FGameUserSettingsTest, BorderlessTakesTheDesktopAndRevertingComesBack)
	{
		Settings->ConfirmVideoMode();
		Settings->SetFullscreenMode(EWindowMode::WindowedFullscreen);
		Settings->ApplyResolutionSettings(false);
		EXPECT_EQ(GetWindowSize(), FVector2D(1920.0, 1080.0));
		EXPECT_EQ(Loop.GetWindow()->GetWindowMode(), EWindowMode::WindowedFullscreen);
		Settings->RevertVideoMode();
		Settings->ApplyResolutionSettings(false);
		EXPECT_EQ(GetWindowSize(), FVector2D(800.0, 600.0));
		EXPECT_EQ(Settings->GetFullscreenMode(), EWindowMode::Windowed);
	}

	TEST_F(FGameUserSettingsTest, TheCommandLineCountsMoreOnlyWhenAskedFor)
	{
		const FString Before = FCommandLine::Get();
		FCommandLine::Set(TEXT("-ResX=700 -ResY=500"));
		Settings->SetScreenResolution(FIntPoint(640, 480));
		Settings->ApplyResolutionSettings(true);
		EXPECT_EQ(GetWindowSize(), FVector2D(700.0, 500.0));
		Settings->ApplyResolutionSettings(false);
		EXPECT_EQ(GetWindowSize(), FVector2D(640.0, 480.0));
		FCommandLine::Set(*Before);
	}

	TEST_F(FGameUserSettingsTest, WrongValuesAreOneLineEachAndTheOthersCount)
	{
		Write(TEXT("[/Script/Engine.GameUserSettings]\nResolutionSizeX=-5\nResolutionSizeY=480\nAudioQualityLevel=loud\nbUseVSync=True\n")
			TEXT("[ScalabilityGroups]\nsg.ShadowQuality=77\nsg.FoliageQuality=many\nsg.TextureQuality=1\n"));
		const FExpectedLog Size(TEXT("ResolutionSizeX and ResolutionSizeY: expected 100 to 16384, found -5 and 480; 800 and 600 are used"));
		const FExpectedLog Audio(TEXT("AudioQualityLevel: expected int32, found 'loud'"));
		const FExpectedLog Shadow(TEXT("sg.ShadowQuality: expected 0 to 4, found 77; 4 is used"));
		const FExpectedLog Foliage(TEXT("sg.FoliageQuality: expected a number, found 'many'"));
		Settings->LoadSettings(true);
		EXPECT_EQ(Settings->GetScreenResolution(), FIntPoint(800, 600));
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 0);
		EXPECT_TRUE(Settings->IsVSyncEnabled());
		EXPECT_EQ(Settings->GetShadowQuality(), 4);
		EXPECT_EQ(Settings->GetFoliageQuality(), 3);
		EXPECT_EQ(Settings->GetTextureQuality(), 1);
	}

	TEST_F(FGameUserSettingsTest, ABinaryFileGivesDefaultsAndIsKeptBesideWhenSaved)
	{
		const TArray<uint8> Bytes = { 0x00, 0xFF, 0x12, 0x00 };
		ASSERT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *File));
		const FExpectedLog LeftOut(TEXT("the configuration file is left out"));
		Settings->LoadSettings(true);
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), 3);
		Settings->SaveSettings();
		EXPECT_TRUE(Read().Contains(TEXT("sg.ShadowQuality=3")));
		EXPECT_TRUE(IFileManager::Get().FileExists(*(File + TEXT(".damaged"))));
	}

	TEST_F(FGameUserSettingsTest, WhatCannotBeSavedStaysForTheNextTime)
	{
		// A folder in place of the file cannot be written, by whomever.
		ASSERT_TRUE(IFileManager::Get().MakeDirectory(*File, true));
		Settings->SetAudioQualityLevel(2);
		{
			const FExpectedLog CannotBeSaved(TEXT("the configuration cannot be saved"));
			Settings->SaveSettings();
		}
		ASSERT_TRUE(IFileManager::Get().DeleteDirectory(*File, true, true));
		Settings->SaveSettings();
		EXPECT_TRUE(Read().Contains(TEXT("AudioQualityLevel=2")));
	}

	TEST_F(FGameUserSettingsTest, ResettingTakesWhatTheProgramShows)
	{
		Settings->SetScreenResolution(FIntPoint(1024, 768));
		Settings->SetOverallScalabilityLevel(0);
		Settings->SetVSyncEnabled(true);
		Settings->ResetToCurrentSettings();
		EXPECT_EQ(Settings->GetScreenResolution(), FIntPoint(800, 600));
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), 3);
		EXPECT_FALSE(Settings->IsVSyncEnabled());
	}

	TEST_F(FGameUserSettingsTest, TheUsersScreenPercentageOutranksTheResolutionScale)
	{
		const Host::FRestoredVariable Percentage(TEXT("r.ScreenPercentage"));
		Settings->SetResolutionScaleNormalized(0.5f);
		Settings->ApplyNonResolutionSettings();
		EXPECT_FLOAT_EQ(Percentage->GetFloat(), 50.0f);
		UKismetSystemLibrary::ExecuteConsoleCommand(nullptr, TEXT("r.ScreenPercentage 75"));
		Settings->ApplyNonResolutionSettings();
		EXPECT_FLOAT_EQ(Percentage->GetFloat(), 75.0f);
	}

	TEST_F(FGameUserSettingsTest, ResolutionsAreListedOnceTheSmallestFirst)
	{
		TArray<FIntPoint> Full;
		EXPECT_TRUE(UKismetSystemLibrary::GetSupportedFullscreenResolutions(Full));
		ASSERT_EQ(Full.Num(), 6);
		EXPECT_EQ(Full[0], FIntPoint(800, 600)) << "the window's own, which the screen lacks";
		EXPECT_EQ(Full[1], FIntPoint(1280, 720));
		EXPECT_EQ(Full.Last(), FIntPoint(3840, 2160));
		TArray<FIntPoint> Windowed;
		EXPECT_TRUE(UKismetSystemLibrary::GetConvenientWindowedResolutions(Windowed));
		EXPECT_EQ(Windowed.Last(), FIntPoint(1600, 900));
	}

	TEST_F(FGameUserSettingsTest, TheDesktopsResolutionIsAlwaysListed)
	{
		Host::FDisplays::Set({ { 1280, 720, 60 } }, { 1400, 900, 0 });
		TArray<FIntPoint> Full;
		EXPECT_TRUE(UKismetSystemLibrary::GetSupportedFullscreenResolutions(Full));
		Host::FDisplays::Reset();
		EXPECT_EQ(Full, TArray<FIntPoint>({ FIntPoint(800, 600), FIntPoint(1280, 720), FIntPoint(1400, 900) }));
	}

	TEST_F(FGameUserSettingsTest, DefaultsAreThoseOfAProgramThatStarts)
	{
		Settings->SetScreenResolution(FIntPoint(640, 480));
		Settings->SetFullscreenMode(EWindowMode::Fullscreen);
		Settings->SetVSyncEnabled(true);
		Settings->SetFrameRateLimit(30.0f);
		Settings->SetAudioQualityLevel(2);
		Settings->SetOverallScalabilityLevel(0);
		Settings->SetResolutionScaleNormalized(0.5f);
		Settings->ApplyResolutionSettings(false);
		Settings->SetToDefaults();
		EXPECT_EQ(Settings->GetScreenResolution(), FIntPoint(800, 600)) << "not what the window has now";
		EXPECT_EQ(Settings->GetFullscreenMode(), EWindowMode::Windowed);
		EXPECT_EQ(Settings->GetPreferredFullscreenMode(), EWindowMode::WindowedFullscreen);
		EXPECT_EQ(Settings->GetLastConfirmedScreenResolution(), FIntPoint(800, 600));
		EXPECT_FALSE(Settings->IsVSyncEnabled());
		EXPECT_EQ(Settings->GetFrameRateLimit(), 0.0f);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 0);
		EXPECT_EQ(Settings->GetOverallScalabilityLevel(), 3);
		EXPECT_EQ(Settings->GetResolutionScaleNormalized(), 1.0f);
	}

	TEST_F(FGameUserSettingsTest, WhatTheUserHasSavedOutlivesOtherDefaultsOfTheProject)
	{
		const FString Section = Settings->GetClass()->GetPathName();
		const FString ProjectDir = FPaths::ProjectDir();
		const Host::FTemporaryContent Project{ TEXT("/Project/") };
		Host::FPathRoots::SetProjectDir(Project.GetFolder());
		EXPECT_TRUE(Host::FConfigFiles::SaveProjectDefault(GGameUserSettingsIni, Section, TEXT("AudioQualityLevel"), { TEXT("2") }));
		Settings->LoadSettings(true);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 2);
		// What equals the default is saved all the same: the user has seen it and left it.
		Settings->SaveSettings();
		EXPECT_TRUE(Host::FConfigFiles::SaveProjectDefault(GGameUserSettingsIni, Section, TEXT("AudioQualityLevel"), { TEXT("4") }));
		Settings->LoadSettings(true);
		EXPECT_EQ(Settings->GetAudioQualityLevel(), 2);
		Host::FPathRoots::SetProjectDir(ProjectDir);
	}

	TEST_F(FGameUserSettingsTest, ABorderlessWindowHasTheRightSizeWhateverIsChosen)
	{
		Settings->SetScreenResolution(FIntPoint(640, 480));
		EXPECT_TRUE(Settings->IsScreenResolutionDirty());
		Settings->SetFullscreenMode(EWindowMode::WindowedFullscreen);
		EXPECT_FALSE(Settings->IsScreenResolutionDirty());
		EXPECT_TRUE(Settings->IsDirty());
		Settings->ApplyResolutionSettings(false);
		EXPECT_FALSE(Settings->IsDirty());
	}

	TEST_F(FGameUserSettingsTest, AnUnknownCommandIsOneLine)
	{
		const FExpectedLog Unknown(TEXT("'no.such.thing 1' is no console command"));
		UKismetSystemLibrary::ExecuteConsoleCommand(nullptr, TEXT("no.such.thing 1"));
		EXPECT_EQ(UKismetSystemLibrary::GetConsoleVariableFloatValue(TEXT("no.such.thing")), 0.0f);
	}
}
