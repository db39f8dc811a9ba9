#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "Widgets/SWindow.h"

namespace
{
	struct FGalleryCase
	{
		const TCHAR* Screen;
		const TCHAR* Style;
		int32 Scale;
	};

	/** Shows a screen of the gallery in a style and at a scale. */
	class FGalleryPictureTest : public Host::FEngineTest, public testing::WithParamInterface<FGalleryCase>
	{
	protected:
		static void UseStyle(const TCHAR* Name)
		{
			GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = FSoftObjectPath(FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Name, Name));
			UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		}

		void UseWindow(FVector2D Size, float Scale)
		{
			Loop.GetWindow()->Resize(Size);
			Loop.GetWindow()->SetDPIScaleFactor(Scale);
		}

		void ShowScreen(const TCHAR* Name)
		{
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/HalvexPro/Screens/%s.%s_C"), Name, Name));
			CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
			Loop.RunUntilIdle();
		}

		void ExpectPicture(const FString& Name)
		{
			Host::FPicture Picture;
			ASSERT_TRUE(Loop.TakePicture(Picture));
			Host::ExpectGolden(Name, Picture);
		}

		virtual void TearDown() override
		{
			UseStyle(TEXT("UIStyle_Hx_Light"));
			UseWindow(FVector2D(800.0, 600.0), 1.0f);
			Host::FEngineTest::TearDown();
		}
	};

	TEST_P(FGalleryPictureTest, LooksAsItWasApproved)
	{
		const FGalleryCase& Case = GetParam();
		UseStyle(Case.Style);
		UseWindow(FVector2D(1280.0, 800.0) * Case.Scale, static_cast<float>(Case.Scale));
		ShowScreen(Case.Screen);
		ExpectPicture(FString::Printf(TEXT("%s-%s-%dx"), Case.Screen, Case.Style, Case.Scale));
	}

	INSTANTIATE_TEST_SUITE_P(Screens, FGalleryPictureTest, testing::Values(
		FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Light"), 2 },
		FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Dark"), 1 }, FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Dark"), 2 },
		FGalleryCase{ TEXT("Type"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Type"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Icons"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Icons"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Shapes"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Shapes"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Buttons"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Buttons"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Groups"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Groups"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Tiles"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Tiles"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Fields"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Fields"), TEXT("UIStyle_Hx_Dark"), 1 }),
		[](const testing::TestParamInfo<FGalleryCase>& Info)
		{
			return Host::ToStd(FString::Printf(TEXT("%s_%s_%dx"), Info.param.Screen, Info.param.Style, Info.param.Scale));
		});

	/** Buttons under the hands of a user, in a style. */
	class FButtonPictureTest : public FGalleryPictureTest
	{
	protected:
		void ShowButtons()
		{
			UseStyle(GetParam().Style);
			UseWindow(FVector2D(1280.0, 800.0), 1.0f);
			ShowScreen(GetParam().Screen);
		}

		FVector2D FindButton(const TCHAR* Sample) const
		{
			return Driver.GetMiddle(*Driver.Find(FString(Sample) + TEXT("/SelectableButton")));
		}
	};

	TEST_P(FButtonPictureTest, Hovered)
	{
		ShowButtons();
		Driver.MoveTo(FindButton(TEXT("FollowHover")));
		ExpectPicture(FString::Printf(TEXT("Hovered-%s-1x"), GetParam().Style));
	}

	TEST_P(FButtonPictureTest, Pressed)
	{
		ShowButtons();
		Driver.MoveTo(FindButton(TEXT("ModeToggle")));
		Driver.Press();
		ExpectPicture(FString::Printf(TEXT("Pressed-%s-1x"), GetParam().Style));
		Driver.Release();
	}

	TEST_P(FButtonPictureTest, Selected)
	{
		ShowButtons();
		for (const TCHAR* Sample : { TEXT("ModeNone"), TEXT("ModeToggle"), TEXT("ModeBlocked"), TEXT("FollowSelection"), TEXT("FollowBoth") })
		{
			Driver.ClickAt(FindButton(Sample));
		}
		Driver.MoveTo(FVector2D(1000.0, 60.0));
		ExpectPicture(FString::Printf(TEXT("Selected-%s-1x"), GetParam().Style));
	}

	INSTANTIATE_TEST_SUITE_P(Buttons, FButtonPictureTest, testing::Values(
		FGalleryCase{ TEXT("Buttons"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Buttons"), TEXT("UIStyle_Hx_Dark"), 1 }),
		[](const testing::TestParamInfo<FGalleryCase>& Info)
		{
			return Host::ToStd(FString(Info.param.Style));
		});
}
