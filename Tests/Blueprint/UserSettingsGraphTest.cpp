#include "EngineTest.h"

#include "GameFramework/GameUserSettings.h"
#include "Host/Displays.h"
#include "Host/ScriptHost.h"
#include "TemporaryContent.h"

namespace
{
	/** The user's settings, as the graph of a settings screen uses them. */
	class FUserSettingsGraphTest : public Host::FEngineTest
	{
	protected:
		FUserSettingsGraphTest()
		{
			Host::FDisplays::Set({ { 1280, 720, 60 }, { 1920, 1080, 60 } }, { 1920, 1080, 60 });
			Settings->SetToDefaults();
		}

		virtual void TearDown() override
		{
			Settings->SetToDefaults();
			Settings->ApplyResolutionSettings(false);
			Host::FDisplays::Reset();
			FEngineTest::TearDown();
		}

		bool Run(const char* Text)
		{
			return Scripts.RunFile(Content.Write(TEXT("script.lua"),
				("local Settings = Class('/Script/Engine.GameUserSettings'):GetGameUserSettings()\n"
				"local System = Class('/Script/Engine.KismetSystemLibrary')\n" + std::string(Text)).c_str()));
		}

		UGameUserSettings* const Settings = UGameUserSettings::GetGameUserSettings();
		Host::FTemporaryContent Content{ TEXT("/Scripts/") };
		Host::FScriptHost Scripts;
	};

	TEST_F(FUserSettingsGraphTest, ResolutionsAreTablesWithXAndY)
	{
		EXPECT_TRUE(Run("Settings:SetScreenResolution({ X = 1280, Y = 720 })\n"
			"local Size = Settings:GetScreenResolution()\n"
			"assert(Size.X == 1280 and Size.Y == 720)\n"
			"local Desktop = Settings:GetDesktopResolution()\n"
			"assert(Desktop.X == 1920 and Desktop.Y == 1080)\n"
			"local Default = Settings:GetDefaultResolution()\n"
			"assert(Default.X == 800 and Default.Y == 600)"));
		EXPECT_EQ(Settings->GetScreenResolution(), FIntPoint(1280, 720));
	}

	TEST_F(FUserSettingsGraphTest, WindowModesAreNames)
	{
		EXPECT_TRUE(Run("assert(Settings:GetFullscreenMode() == 'Windowed')\n"
			"assert(Settings:GetDefaultWindowMode() == 'Windowed')\n"
			"Settings:SetFullscreenMode('Fullscreen')\n"
			"assert(Settings:GetPreferredFullscreenMode() == 'Fullscreen')\n"
			"Settings:SetFullscreenMode('WindowedFullscreen')\n"
			"assert(Settings:GetFullscreenMode() == 'WindowedFullscreen')\n"
			"assert(Settings:GetPreferredFullscreenMode() == 'WindowedFullscreen')"));
		EXPECT_EQ(Settings->GetFullscreenMode(), EWindowMode::WindowedFullscreen);
		const Host::FExpectedLog Unknown(TEXT("EWindowMode has no enumerator 'Sideways'"));
		EXPECT_FALSE(Run("Settings:SetFullscreenMode('Sideways')"));
	}

	TEST_F(FUserSettingsGraphTest, AVideoModeIsKeptOrPutBack)
	{
		EXPECT_TRUE(Run("Settings:ConfirmVideoMode()\n"
			"Settings:SetScreenResolution({ X = 1280, Y = 720 })\n"
			"Settings:SetFullscreenMode('WindowedFullscreen')\n"
			"assert(Settings:IsFullscreenModeDirty() and Settings:IsDirty())\n"
			"assert(not Settings:IsScreenResolutionDirty(), 'a borderless window has the size of the desktop')\n"
			"assert(Settings:GetLastConfirmedScreenResolution().X == 800)\n"
			"assert(Settings:GetLastConfirmedFullscreenMode() == 'Windowed')\n"
			"Settings:RevertVideoMode()\n"
			"assert(not Settings:IsDirty())\n"
			"Settings:SetScreenResolution({ X = 1280, Y = 720 })\n"
			"Settings:ApplyResolutionSettings(false)\n"
			"assert(not Settings:IsDirty())\n"
			"Settings:ConfirmVideoMode()\n"
			"assert(Settings:GetLastConfirmedScreenResolution().X == 1280)"));
	}

	TEST_F(FUserSettingsGraphTest, TheLimitOfFramesIsANumber)
	{
		EXPECT_TRUE(Run("assert(Settings:GetFrameRateLimit() == 0)\nSettings:SetFrameRateLimit(90)\nassert(Settings:GetFrameRateLimit() == 90)"));
	}

	TEST_F(FUserSettingsGraphTest, ListsOfResolutionsAreFurtherResults)
	{
		EXPECT_TRUE(Run("local Found, Sizes = System:GetSupportedFullscreenResolutions()\n"
			"assert(Found and Sizes[#Sizes].X == 1920 and Sizes[#Sizes].Y == 1080)\n"
			"local Fits, Windows = System:GetConvenientWindowedResolutions()\n"
			"assert(Fits and Windows[1].X == 640 and Windows[#Windows].Y == 900)"));
	}
}
