#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "ProjectStyle.h"
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
	class FGalleryPictureBase : public Host::FEngineTest
	{
	protected:
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
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			UseWindow(FVector2D(800.0, 600.0), 1.0f);
			Host::FEngineTest::TearDown();
		}
	};

	class FGalleryPictureTest : public FGalleryPictureBase, public testing::WithParamInterface<FGalleryCase>
	{
	};

	TEST_P(FGalleryPictureTest, LooksAsItWasApproved)
	{
		const FGalleryCase& Case = GetParam();
		UseShippedStyle(Case.Style);
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
			UseShippedStyle(GetParam().Style);
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

	struct FHandledCase
	{
		const TCHAR* Screen;
		/** What the user's hands are on. */
		const TCHAR* Locator;
		const TCHAR* Style;
	};

	/** The other pages under the hands of a user, in a style. */
	class FHandledPictureTest : public FGalleryPictureBase, public testing::WithParamInterface<FHandledCase>
	{
	protected:
		/** Shows the page and gives the place of what is handled on it. */
		FVector2D ShowPage()
		{
			UseShippedStyle(GetParam().Style);
			UseWindow(FVector2D(1280.0, 800.0), 1.0f);
			ShowScreen(GetParam().Screen);
			// A click of the test before is no half of a double click.
			Driver.Wait(1.0);
			return Driver.GetMiddle(*Driver.Find(GetParam().Locator));
		}

		void ExpectPictureOf(const TCHAR* State)
		{
			ExpectPicture(FString::Printf(TEXT("%s%s-%s-1x"), GetParam().Screen, State, GetParam().Style));
		}
	};

	TEST_P(FHandledPictureTest, Hovered)
	{
		Driver.MoveTo(ShowPage());
		// What moves under the pointer comes to rest.
		Driver.Wait(0.3);
		ExpectPictureOf(TEXT("Hovered"));
	}

	TEST_P(FHandledPictureTest, Pressed)
	{
		Driver.MoveTo(ShowPage());
		Driver.Press();
		Driver.Wait(0.3);
		ExpectPictureOf(TEXT("Pressed"));
		Driver.Release();
	}

	TEST_P(FHandledPictureTest, Selected)
	{
		Driver.ClickAt(ShowPage());
		Driver.MoveTo(FVector2D(1000.0, 60.0));
		Driver.Wait(0.3);
		ExpectPictureOf(TEXT("Selected"));
	}

	INSTANTIATE_TEST_SUITE_P(Pages, FHandledPictureTest, testing::Values(
		FHandledCase{ TEXT("Groups"), TEXT("AnyOne/C"), TEXT("UIStyle_Hx_Light") }, FHandledCase{ TEXT("Groups"), TEXT("AnyOne/C"), TEXT("UIStyle_Hx_Dark") },
		FHandledCase{ TEXT("Tiles"), TEXT("Loft/SelectableButton"), TEXT("UIStyle_Hx_Light") }, FHandledCase{ TEXT("Tiles"), TEXT("Loft/SelectableButton"), TEXT("UIStyle_Hx_Dark") },
		FHandledCase{ TEXT("Fields"), TEXT("City/Field"), TEXT("UIStyle_Hx_Light") }, FHandledCase{ TEXT("Fields"), TEXT("City/Field"), TEXT("UIStyle_Hx_Dark") }),
		[](const testing::TestParamInfo<FHandledCase>& Info)
		{
			return Host::ToStd(FString::Printf(TEXT("%s_%s"), Info.param.Screen, Info.param.Style));
		});
}
