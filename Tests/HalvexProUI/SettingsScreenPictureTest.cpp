#include "SettingsScreenTest.h"

#include "GameFramework/GameUserSettings.h"
#include "GoldenPicture.h"
#include "Host/Displays.h"
#include "ProjectStyle.h"

namespace
{
	/** The settings screen in a shipped style, as wide as its panel. */
	class FSettingsScreenPictureTest : public FSettingsScreenTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void SetUp() override
		{
			FSettingsScreenTest::SetUp();
			Host::FDisplays::Set({ { 640, 900, 60 }, { 800, 900, 60 } }, { 1280, 900, 60 });
			Settings().SetScreenResolution(FIntPoint(640, 900));
			Settings().ConfirmVideoMode();
			Settings().ApplySettings(false);
			UseShippedStyle(GetParam());
			Driver.MoveTo(FVector2D(0.0, 0.0));
			ShowScreen(TEXT("Settings"));
		}

		virtual void TearDown() override
		{
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			FSettingsScreenTest::TearDown();
		}

		void ExpectPicture(const TCHAR* State)
		{
			Host::FPicture Picture;
			ASSERT_TRUE(Loop.TakePicture(Picture));
			Host::ExpectGolden(FString::Printf(TEXT("Settings%s-%s-1x"), State, GetParam()), Picture);
		}
	};

	TEST_P(FSettingsScreenPictureTest, Closed)
	{
		ExpectPicture(TEXT(""));
	}

	TEST_P(FSettingsScreenPictureTest, ListOpen)
	{
		Click(TEXT("Shadow/SettingWidget"));
		Driver.Move(FString::Printf(TEXT("text:Epic#%d"), Driver.Count(TEXT("text:Epic"))));
		ExpectPicture(TEXT("ListOpen"));
	}

	TEST_P(FSettingsScreenPictureTest, ChangesWaiting)
	{
		Choose(TEXT("Shadow"), TEXT("Epic"));
		Toggle(TEXT("FullScreen"));
		Driver.MoveTo(FVector2D(0.0, 0.0));
		ExpectPicture(TEXT("Waiting"));
	}

	TEST_P(FSettingsScreenPictureTest, VideoModeCountedDown)
	{
		Choose(TEXT("Resolution"), TEXT("800x900"));
		Click(TEXT("Btn_ApplyConfirmation"));
		Driver.Wait(5.5);
		Driver.MoveTo(FVector2D(0.0, 0.0));
		ExpectPicture(TEXT("Counting"));
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FSettingsScreenPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
