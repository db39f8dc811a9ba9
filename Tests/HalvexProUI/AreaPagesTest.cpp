#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "ProjectStyle.h"
#include "Widgets/HxMovableArea.h"
#include "Widgets/HxZoomyArea.h"
#include "Widgets/SWindow.h"
#include "gmock/gmock.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

using testing::StartsWith;

namespace
{
	/** The gallery's pages of areas that are zoomed and dragged, as a user finds them. */
	class FAreaPagesTest : public Host::FEngineTest
	{
	protected:
		void ShowScreen(const TCHAR* Name)
		{
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/HalvexPro/Screens/%s.%s_C"), Name, Name));
			CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
			Loop.RunUntilIdle();
		}

		virtual void TearDown() override
		{
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
			Host::FEngineTest::TearDown();
		}

		template <typename T>
		T& Get(const TCHAR* Locator)
		{
			T* Found = Cast<T>(Driver.FindOne(Locator));
			checkf(Found, TEXT("%s"), *Driver.GetError());
			return *Found;
		}

		std::string GetTextOf(const TCHAR* Locator) { return Host::ToStd(Get<UTextBlock>(Locator).GetText()); }
		void Click(const TCHAR* Locator) { EXPECT_TRUE(Driver.Click(Locator)) << Host::ToStd(Driver.GetError()); }

		UWidget& GetPaper() { return *Get<UHxZoomyArea>(TEXT("Area")).GetContent(); }

		/** Time in which any easing comes to its end. */
		void WaitForEasing() { Driver.Wait(2.5); }

		void ExpectPictureOf(const TCHAR* Locator, const FString& Name)
		{
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(Locator, Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(Name, Picture);
		}
	};

	TEST_F(FAreaPagesTest, WheelAndButtonsZoomThePlanAndTheReadOutTells)
	{
		ShowScreen(TEXT("Zoom"));
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "100 %");
		EXPECT_TRUE(Driver.WheelOver(TEXT("PlanHost"), 1.0f));
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "110 %") << "at once";
		EXPECT_LT(GetPaper().GetRenderTransform().Scale.X, 1.1);
		WaitForEasing();
		EXPECT_NEAR(GetPaper().GetRenderTransform().Scale.X, 1.1, 1.0e-6);
		Click(TEXT("In"));
		WaitForEasing();
		Click(TEXT("In"));
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "130 %");
		WaitForEasing();
		Click(TEXT("Out"));
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "120 %");
	}

	TEST_F(FAreaPagesTest, ZoomStaysWithinTheLimitsOfThePage)
	{
		ShowScreen(TEXT("Zoom"));
		Click(TEXT("Smooth"));
		for (int32 Notch = 0; Notch < 40; ++Notch)
		{
			Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		}
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "400 %");
		for (int32 Notch = 0; Notch < 60; ++Notch)
		{
			Driver.Wheel(-1.0f);
		}
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "50 %");
	}

	TEST_F(FAreaPagesTest, PlanWithoutSmoothnessGoesAtOnce)
	{
		ShowScreen(TEXT("Zoom"));
		Click(TEXT("Smooth"));
		Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		EXPECT_NEAR(GetPaper().GetRenderTransform().Scale.X, 1.1, 1.0e-6);
		EXPECT_TRUE(Driver.DragBy(TEXT("PlanHost"), FVector2D(120.0, -30.0)));
		EXPECT_TRUE(GetPaper().GetRenderTransform().Translation.Equals(FVector2D(120.0, -30.0), 0.001));
	}

	TEST_F(FAreaPagesTest, ResetPutsThePlanBackForGood)
	{
		ShowScreen(TEXT("Zoom"));
		EXPECT_TRUE(Driver.DragBy(TEXT("PlanHost"), FVector2D(120.0, -30.0)));
		Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		WaitForEasing();
		EXPECT_TRUE(GetPaper().GetRenderTransform().Translation.Equals(FVector2D(120.0, -30.0), 0.001));
		Click(TEXT("Reset"));
		EXPECT_TRUE(GetPaper().GetRenderTransform().IsIdentity());
		EXPECT_EQ(GetTextOf(TEXT("Percent")), "100 %");
		Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		WaitForEasing();
		EXPECT_TRUE(GetPaper().GetRenderTransform().Translation.IsNearlyZero());
	}

	TEST_F(FAreaPagesTest, PageSaysWhileThePlanIsDragged)
	{
		ShowScreen(TEXT("Zoom"));
		Driver.Move(TEXT("PlanHost"));
		Driver.Press();
		EXPECT_EQ(GetTextOf(TEXT("Hand")), "The plan follows the mouse");
		Driver.Release();
		EXPECT_EQ(GetTextOf(TEXT("Hand")), "Turn the wheel, drag the plan");
	}

	TEST_F(FAreaPagesTest, PanelsAreDraggedAndPutBack)
	{
		ShowScreen(TEXT("Panels"));
		Host::FExpectedLog Tracking(TEXT("Tracking"), 20);
		const FVector2D Head = Driver.GetMiddle(Get<UTextBlock>(TEXT("text:Apartment 12")));
		Driver.DragTo(Head, Head + FVector2D(300.0, 80.0));
		EXPECT_TRUE(Get<UHxMovableArea>(TEXT("Apartment")).GetRenderTransform().Translation.Equals(FVector2D(300.0, 80.0), 0.001));
		const FVector2D Title = Driver.GetMiddle(Get<UTextBlock>(TEXT("text:Layers")));
		Driver.DragTo(Title + FVector2D(80.0, -32.0), Title + FVector2D(60.0, -82.0));
		EXPECT_EQ(GetTextOf(TEXT("State")), "Apartment moved by 300, 80; Layers moved by -20, -50");
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("Layers: OnStopCaptureMouse\nLayers: OnStartCaptureMouse\nApartment: OnStopCaptureMouse"));
		Click(TEXT("Restore"));
		EXPECT_TRUE(Get<UHxMovableArea>(TEXT("Apartment")).GetRenderTransform().IsIdentity());
		EXPECT_TRUE(Get<UHxMovableArea>(TEXT("Layers")).GetRenderTransform().IsIdentity());
		EXPECT_EQ(GetTextOf(TEXT("State")), "Both panels stand where the layout has put them");
	}

	/** Their looks, without the navigation beside them, in a style. */
	class FAreaPagesPictureTest : public FAreaPagesTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		void ShowPage(const TCHAR* Name)
		{
			UseShippedStyle(GetParam());
			ShowScreen(Name);
		}

		FString NameFor(const TCHAR* What) const { return FString::Printf(TEXT("%s-%s-1x"), What, GetParam()); }
	};

	TEST_P(FAreaPagesPictureTest, Zoom)
	{
		ShowPage(TEXT("Zoom"));
		ExpectPictureOf(TEXT("Scroll"), NameFor(TEXT("ZoomPage")));
	}

	TEST_P(FAreaPagesPictureTest, TurnedAndScaledPlanIsCutOff)
	{
		ShowPage(TEXT("Zoom"));
		Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		Get<UHxZoomyArea>(TEXT("Area")).SetZoomValue(1.7f);
		GetPaper().SetRenderTransformAngle(-24.0f);
		WaitForEasing();
		ExpectPictureOf(TEXT("Scroll"), NameFor(TEXT("ZoomTurned")));
	}

	TEST_P(FAreaPagesPictureTest, Panels)
	{
		ShowPage(TEXT("Panels"));
		ExpectPictureOf(TEXT("Scroll"), NameFor(TEXT("PanelsPage")));
	}

	TEST_P(FAreaPagesPictureTest, DraggedPanels)
	{
		ShowPage(TEXT("Panels"));
		Host::FExpectedLog Tracking(TEXT("Tracking"), Host::FExpectedLog::AnyCount);
		const FVector2D Head = Driver.GetMiddle(Get<UTextBlock>(TEXT("text:Apartment 12")));
		Driver.DragTo(Head, Head + FVector2D(150.0, 110.0));
		const FVector2D Grip = Driver.GetMiddle(Get<UTextBlock>(TEXT("text:Layers"))) + FVector2D(80.0, -32.0);
		Driver.MoveTo(Grip);
		Driver.Press();
		Driver.MoveTo(Grip + FVector2D(-90.0, 20.0));
		ExpectPictureOf(TEXT("Scroll"), NameFor(TEXT("PanelsDragged")));
		Driver.Release();
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FAreaPagesPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });

	constexpr int32 Notches = 8;

	TEST_F(FAreaPagesTest, ZoomedPlanLooksAsItWasApproved)
	{
		ShowScreen(TEXT("Zoom"));
		Click(TEXT("Smooth"));
		for (int32 Notch = 0; Notch < Notches; ++Notch)
		{
			Driver.WheelOver(TEXT("PlanHost"), 1.0f);
		}
		Driver.DragBy(TEXT("PlanHost"), FVector2D(130.0, 70.0));
		ExpectPictureOf(TEXT("PlanHost"), TEXT("ZoomedPlan"));
	}

	/** In a viewer of its own: a program has one renderer. */
	TEST_F(FAreaPagesTest, ZoomedPlanIsDrawnByOpenGlAsByTheCpu)
	{
		const std::filesystem::path Stem = std::filesystem::temp_directory_path() / ("ZoomedPlan" + std::to_string(::getpid()));
		const std::string Script = Stem.string() + ".lua";
		const std::string File = Stem.string() + ".png";
		std::ofstream(Script) << "Click(\"Smooth\")\nfor Notch = 1, " << Notches << " do Wheel(\"PlanHost\", 1) end\nDragBy(\"PlanHost\", 130, 70)\nPictureOf(\"PlanHost\", \"" << File << "\")\n";
		// Graphics drivers keep a few buffers of their own until the program ends, which are no leaks of the viewer.
		const std::string Command = "ASAN_OPTIONS=detect_leaks=0 " HALVEX_VIEWER " --headless --renderer gl --screen Zoom --size 1280x800 --script " + Script;
		ASSERT_EQ(std::system(Command.c_str()), 0) << Command;

		Host::FPicture Picture;
		FString Error;
		ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR(File.c_str()), Picture, Error)) << Host::ToStd(Error);
		std::filesystem::remove(Script);
		std::filesystem::remove(File);
		// Edges are rounded to another last bit, and blended once more.
		constexpr int32 Tolerance = 3;
		Host::ExpectNearGolden(TEXT("ZoomedPlan"), Picture, Tolerance);
	}
}
