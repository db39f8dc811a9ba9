#include "EngineTest.h"
#include "SceneVariables.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/SSceneSpots.h"
#include "Host/SSceneViewport.h"
#include "Host/SlateCounters.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SWindow.h"

#include <vector>

using namespace Host;

namespace
{
	/** A cube in the middle of the view, and buttons for places about it. */
	class FSceneSpotsTest : public FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			// What the picture looks like does not matter here.
			Variables.Set(TEXT("r.ScreenPercentage"), TEXT("25"));
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("0"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
			FSceneBox Box;
			Box.Centre = FVector(0.0, 0.0, 400.0);
			Box.Extent = FVector(400.0, 400.0, 400.0);
			Content->AddBox(Box);
			Viewport = SNew(SSceneViewport).Content(Content);
			Spots = SNew(SSceneSpots).Viewport(Viewport).OnEscape_Lambda([this] { ++NumEscapes; });
			LookFrom(0.0);
			GEngine->GameViewport->AddViewportWidgetContent(Viewport.ToSharedRef(), SSceneViewport::ViewportOrder);
			GEngine->GameViewport->AddViewportWidgetContent(Spots.ToSharedRef(), SSceneViewport::ViewportOrder + 1);
			Loop.RunUntilIdle();
		}

		virtual void TearDown() override
		{
			Buttons.Empty();
			Spots.Reset();
			Viewport.Reset();
			Loop.GetWindow()->SetDPIScaleFactor(1.0f);
			FEngineTest::TearDown();
		}

		void LookFrom(double Yaw)
		{
			Viewport->MoveCamera([Yaw](FSceneCamera& Camera)
			{
				FSceneCamera::FPose Pose;
				Pose.Target = FVector(0.0, 0.0, 400.0);
				Pose.Yaw = Yaw;
				Pose.Pitch = -20.0;
				Pose.Distance = 5000.0;
				Camera.JumpTo(Pose);
			});
		}

		/** A button of that size for a place. */
		void Add(const FVector& Place, double Width = 30.0, double Height = 30.0)
		{
			const int32 Number = Buttons.Num();
			TSharedRef<SButton> Button = SNew(SButton)
				.ContentPadding(FMargin(0.0f))
				.OnClicked_Lambda([this, Number] { Clicked.Add(Number); return FReply::Handled(); });
			Buttons.Add(SNew(SBox).WidthOverride(Width).HeightOverride(Height)[Button]);
			EXPECT_EQ(Spots->Add(Place, Buttons.Last().ToSharedRef()), Number);
			Settle();
		}

		void Settle() { Loop.RunUntilIdle(); }

		FVector2D GetMiddle(int32 Number) const
		{
			const FGeometry& Geometry = Buttons[Number]->GetCachedGeometry();
			return FVector2D(Geometry.LocalToAbsolute(FVector2D(Geometry.GetLocalSize()) * 0.5));
		}

		FVector2D Locate(const FVector& Place) const
		{
			FVector2D Position = FVector2D::ZeroVector;
			Viewport->Locate(Place, Position);
			return Position;
		}

		/** Number of the button that the mouse would meet; -1 for none. */
		int32 FindUnder(const FVector2D& Point) const
		{
			FSlateApplication& Application = FSlateApplication::Get();
			const FWidgetPath Path = Application.LocateWindowUnderMouse(Point, Application.GetTopLevelWindows(), true);
			return Buttons.IndexOfByPredicate([&](const TSharedPtr<SWidget>& Button) { return Path.ContainsWidget(Button.Get()); });
		}

		/** Numbers of the buttons from the lowest up. */
		std::vector<int32> GetOrder() const
		{
			FArrangedChildren Arranged(EVisibility::Visible);
			Spots->ArrangeChildren(Spots->GetCachedGeometry(), Arranged);
			std::vector<int32> Order;
			for (const FArrangedWidget& Each : Arranged.GetInternalArray())
			{
				Order.push_back(Buttons.IndexOfByPredicate([&](const TSharedPtr<SWidget>& Button) { return Button->GetParentWidget() == Each.Widget; }));
			}
			return Order;
		}

		FSlateRect GetRect(int32 Number) const { return Buttons[Number]->GetCachedGeometry().GetRenderBoundingRect(); }

		FSceneVariables Variables;
		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		TSharedPtr<SSceneViewport> Viewport;
		TSharedPtr<SSceneSpots> Spots;
		TArray<TSharedPtr<SWidget>> Buttons;
		TArray<int32> Clicked;
		int32 NumEscapes = 0;
		const FVector Before = FVector(-900.0, 300.0, 300.0);
		const FVector Behind = FVector(900.0, 0.0, 300.0);
	};
}

TEST_F(FSceneSpotsTest, AWidgetStandsWhereItsPlaceIsSeen)
{
	Add(Before);
	EXPECT_LT(FVector2D::Distance(GetMiddle(0), Locate(Before)), 1.0);
	Driver.SingleClickAt(Locate(Before));
	EXPECT_EQ(Clicked, TArray<int32>{ 0 });
}

TEST_F(FSceneSpotsTest, WidgetsFollowTheCameraInTheSameFrame)
{
	Add(Before);
	Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(40.0, 0.0); });
	const FVector2D Start = GetMiddle(0);
	for (int32 Frame = 0; Frame < 5; ++Frame)
	{
		Loop.RunFrame(1.0 / 60.0);
		ASSERT_TRUE(Viewport->GetCamera().IsMoving());
		// Half a pixel each way, by rounding.
		EXPECT_LT(FVector2D::Distance(GetMiddle(0), Locate(Before)), 0.75) << Frame;
	}
	EXPECT_GT(FVector2D::Distance(GetMiddle(0), Start), 20.0);
}

TEST_F(FSceneSpotsTest, WidgetsLieOnWholePixels)
{
	for (const float Scale : { 1.0f, 1.25f, 2.0f })
	{
		Loop.GetWindow()->SetDPIScaleFactor(Scale);
		Settle();
		if (Buttons.IsEmpty())
		{
			Add(Before, 31.0, 27.0);
		}
		const FVector2D TopLeft(Buttons[0]->GetCachedGeometry().GetAbsolutePosition());
		EXPECT_NEAR(TopLeft.X, FMath::RoundToDouble(TopLeft.X), 1.0e-3) << Scale;
		EXPECT_NEAR(TopLeft.Y, FMath::RoundToDouble(TopLeft.Y), 1.0e-3) << Scale;
	}
}

TEST_F(FSceneSpotsTest, WidgetsHideBehindWhatIsSolid)
{
	Add(Before);
	Add(Behind);
	EXPECT_TRUE(Spots->IsShown(0));
	EXPECT_FALSE(Spots->IsShown(1));
	EXPECT_EQ(FindUnder(Locate(Behind)), -1);

	LookFrom(180.0);
	Settle();
	EXPECT_FALSE(Spots->IsShown(0));
	EXPECT_TRUE(Spots->IsShown(1));
	EXPECT_EQ(FindUnder(Locate(Behind)), 1);
}

TEST_F(FSceneSpotsTest, GhostsHideNoWidgets)
{
	Add(Behind);
	Content->SetColour(0, FLinearColor(0.5f, 0.5f, 0.5f, 0.1f));
	Viewport->ContentChanged();
	Settle();
	EXPECT_TRUE(Spots->IsShown(0));
	EXPECT_EQ(FindUnder(Locate(Behind)), 0);
}

TEST_F(FSceneSpotsTest, WidgetsHideAtTheBackOfTheCamera)
{
	Add(FVector(-20000.0, 0.0, 1500.0));
	EXPECT_FALSE(Spots->IsShown(0));
	LookFrom(180.0);
	Settle();
	EXPECT_TRUE(Spots->IsShown(0));
}

TEST_F(FSceneSpotsTest, NearerWidgetsLieOverFartherOnesWhicheverCameFirst)
{
	Add(FVector(-1500.0, 0.0, 900.0));
	Add(FVector(1500.0, 0.0, 900.0));
	Add(FVector(0.0, 0.0, 900.0));
	EXPECT_EQ(GetOrder(), (std::vector<int32>{ 1, 2, 0 }));
	LookFrom(180.0);
	Settle();
	EXPECT_EQ(GetOrder(), (std::vector<int32>{ 0, 2, 1 }));
	Spots->SetOpen(2);
	Settle();
	EXPECT_EQ(GetOrder(), (std::vector<int32>{ 0, 1, 2 })) << "the open one lies on top";
}

TEST_F(FSceneSpotsTest, OfTwoThatWouldCoverEachOtherTheFartherOneMovesAside)
{
	const FVector Near(-1500.0, 0.0, 900.0);
	const FVector Far(-1400.0, 0.0, 905.0);
	Add(Far);
	Add(Near);
	EXPECT_LT(FVector2D::Distance(GetMiddle(1), Locate(Near)), 1.0);
	EXPECT_GT(FVector2D::Distance(GetMiddle(0), GetMiddle(1)), 30.0);
}

TEST_F(FSceneSpotsTest, WidgetsOfPlacesCloseTogetherCanAllBeClicked)
{
	for (int32 Number = 0; Number < 6; ++Number)
	{
		Add(Before + FVector(0.0, 6.0 * (Number / 2), 0.0));
	}
	for (int32 Number = 0; Number < 6; ++Number)
	{
		Driver.SingleClickAt(GetMiddle(Number));
		EXPECT_LT(FVector2D::Distance(GetMiddle(Number), Locate(Before)), 120.0) << "it stays near its place";
	}
	EXPECT_EQ(Clicked, (TArray<int32>{ 0, 1, 2, 3, 4, 5 }));
}

TEST_F(FSceneSpotsTest, TheOpenWidgetLiesOnTopAndBesideItsPlace)
{
	Add(Before, 30.0, 30.0);
	Add(Before + FVector(200.0, 0.0, 30.0), 240.0, 120.0);
	Spots->SetOpen(1);
	Settle();
	const FVector2D Place = Locate(Before + FVector(200.0, 0.0, 30.0));
	EXPECT_LT(GetRect(1).Bottom, Place.Y);
	EXPECT_NEAR(GetMiddle(1).X, Place.X, 1.0);
	EXPECT_EQ(FindUnder(GetMiddle(1)), 1);
}

TEST_F(FSceneSpotsTest, TheOpenWidgetStaysInTheFreeArea)
{
	Viewport->SetCoveredSides(300.0, 0.0);
	Add(Before, 240.0, 200.0);
	Spots->SetOpen(0);
	int32 NumInSight = 0;
	for (double Right = -500.0; Right <= 500.0; Right += 100.0)
	{
		for (double Down = -350.0; Down <= 350.0; Down += 100.0)
		{
			Viewport->MoveCamera([&](FSceneCamera& Camera)
			{
				Camera.SetBounds(FBox(ForceInit));
				Camera.Pan(FVector2D(Right, Down), 600.0);
				Camera.Finish();
			});
			Settle();
			if (FVector2D Position; Viewport->Locate(Before, Position) == ESceneSpot::InSight)
			{
				++NumInSight;
				const FSlateRect Rect = GetRect(0);
				EXPECT_TRUE(Rect.Left >= 300.0f && Rect.Right <= 800.0f && Rect.Top >= 0.0f && Rect.Bottom <= 600.0f) << Right << " " << Down;
				EXPECT_FALSE(Rect.ContainsPoint(FVector2f(Position))) << "its place is to be seen: " << Right << " " << Down;
			}
			Viewport->MoveCamera([&](FSceneCamera& Camera)
			{
				Camera.Pan(FVector2D(-Right, -Down), 600.0);
				Camera.Finish();
			});
		}
	}
	EXPECT_GE(NumInSight, 15);
}

TEST_F(FSceneSpotsTest, NothingIsDoneWhileTheViewStandsStill)
{
	Add(Before);
	Settle();
	const int64 Updates = Spots->GetNumUpdates();
	FSlateCounters::Get() = FSlateCounters();
	for (int32 Frame = 0; Frame < 10; ++Frame)
	{
		Loop.RunFrame(1.0 / 60.0);
	}
	EXPECT_EQ(Spots->GetNumUpdates(), Updates);
	EXPECT_EQ(FSlateCounters::Get().Arranged, 0);
	EXPECT_EQ(FSlateCounters::Get().Painted, 0);
}

TEST_F(FSceneSpotsTest, TheWindowMayBecomeAnotherSize)
{
	Add(Before);
	Loop.GetWindow()->Resize(FVector2D(640.0, 480.0));
	Settle();
	EXPECT_LT(FVector2D::Distance(GetMiddle(0), Locate(Before)), 1.0);
	Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
	Settle();
}

TEST_F(FSceneSpotsTest, TabReachesTheWidgetsThatAreSeenAndEnterPressesThem)
{
	Add(Before);
	Add(Behind);
	Add(Before + FVector(0.0, -700.0, 0.0));
	for (int32 Press = 0; Press < 2; ++Press)
	{
		Driver.PressKey(EKeys::Tab);
		Driver.PressKey(EKeys::Enter);
	}
	Clicked.Sort();
	EXPECT_EQ(Clicked, (TArray<int32>{ 0, 2 }));
}

TEST_F(FSceneSpotsTest, EscapeIsTakenOnlyWhileOneIsOpen)
{
	Add(Before);
	Driver.PressKey(EKeys::Tab);
	Driver.PressKey(EKeys::Escape);
	EXPECT_EQ(NumEscapes, 0);
	Spots->SetOpen(0);
	Driver.PressKey(EKeys::Escape);
	EXPECT_EQ(NumEscapes, 1);
}

TEST_F(FSceneSpotsTest, WhatLiesBesideTheWidgetsIsTheScenes)
{
	Add(Before);
	const double Distance = Viewport->GetCamera().GetGoal().Distance;
	Driver.MoveTo(Locate(Before) + FVector2D(40.0, 0.0));
	Driver.Wheel(1.0f);
	EXPECT_LT(Viewport->GetCamera().GetGoal().Distance, Distance);
}
