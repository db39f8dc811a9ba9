#include "HxZoomyAreaTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "GenericPlatform/ICursor.h"
#include "Widgets/HxButton.h"

namespace
{
	/** A cursor that is elsewhere than the events say. */
	class FFixedCursor final : public ICursor
	{
	public:
		virtual FVector2D GetPosition() const override { return Position; }
		virtual void SetPosition(const int32 X, const int32 Y) override { Position = FVector2D(X, Y); }
		virtual void SetType(const EMouseCursor::Type InNewCursor) override { Type = InNewCursor; }
		virtual EMouseCursor::Type GetType() const override { return Type; }
		virtual void Show(bool) override {}

		FVector2D Position = FVector2D::ZeroVector;

	private:
		EMouseCursor::Type Type = EMouseCursor::Default;
	};

	class FHxZoomyAreaDragTest : public FHxZoomyAreaTest
	{
	};

	TEST_F(FHxZoomyAreaDragTest, DragMovesTheContentByAsMuch)
	{
		ShowArea(false);
		EXPECT_TRUE(Press(Middle));
		EXPECT_TRUE(Area->HasMouseCapture());
		EXPECT_TRUE(MoveMouse(Middle + FVector2D(100.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(100.0, 0.0));
		EXPECT_TRUE(MoveMouse(Middle + FVector2D(-30.0, 20.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(-30.0, 20.0));
		EXPECT_TRUE(Release());
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Middle));
		EXPECT_EQ(GetTranslation(), FVector2D(-30.0, 20.0));
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaDragTest, DragGoesOnFromWhereTheContentIs)
	{
		ShowArea(false);
		PressAndMove(Middle, Middle + FVector2D(40.0, 10.0));
		Release();
		PressAndMove(Middle + FVector2D(-90.0, 50.0), Middle + FVector2D(-80.0, 55.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 15.0));
	}

	TEST_F(FHxZoomyAreaDragTest, EveryButtonDrags)
	{
		ShowArea(false);
		for (const FKey& Button : { EKeys::LeftMouseButton, EKeys::RightMouseButton, EKeys::MiddleMouseButton })
		{
			Press(Middle, Button);
			MoveMouse(Middle + FVector2D(10.0, 0.0));
			Release(Button);
		}
		EXPECT_EQ(GetTranslation(), FVector2D(30.0, 0.0));
		EXPECT_EQ(TakeEvents(), "start stop start stop start stop");
	}

	TEST_F(FHxZoomyAreaDragTest, QuickSecondPressDragsToo)
	{
		ShowArea(false);
		Press(Middle);
		Release();
		PressAndMove(Middle, Middle + FVector2D(25.0, 0.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(25.0, 0.0));
		EXPECT_EQ(TakeEvents(), "start stop start stop");
	}

	TEST_F(FHxZoomyAreaDragTest, MovesBetweenTwoFramesAllCount)
	{
		ShowArea(false);
		Press(Middle);
		for (int32 Step = 1; Step <= 20; ++Step)
		{
			MoveMouse(Middle + FVector2D(3.0 * Step, -Step));
			EXPECT_EQ(GetTranslation(), FVector2D(3.0 * Step, -Step));
		}
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, DragGoesOnOutsideAndHasNoLimits)
	{
		ShowArea(false);
		EXPECT_FALSE(GetPainted(*Area).IsEmpty());
		PressAndMove(Middle, FVector2D(799.0, 599.0));
		EXPECT_EQ(GetTranslation(), FVector2D(499.0, 349.0));
		Settle();
		// The content is wholly out of the area, and outside of it nothing of it is painted.
		for (const Host::FDrawElement& Element : GetPainted(*Content))
		{
			EXPECT_TRUE(Element.Bounds.IsEmpty());
		}
		Release();
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaDragTest, ButtonsInTheContentAreClickedNotDragged)
	{
		MakeArea(false);
		UHxButton* Button = Make<UHxButton>(TEXT("Inside"));
		Button->ButtonID = TEXT("ID");
		Listen(*Button);
		Content->SetContent(Button);
		Show();
		Press(Driver.GetMiddle(*Button));
		Release();
		EXPECT_EQ(TakeEvents(), "click(ID)");
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxZoomyAreaDragTest, MovesWithoutAPressAreLeftAlone)
	{
		ShowArea(false);
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(30.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxZoomyAreaDragTest, AreaWithoutContentTakesThePressAndLeavesTheMoves)
	{
		ShowArea(false, false);
		EXPECT_TRUE(Press(Middle));
		EXPECT_TRUE(Area->HasMouseCapture());
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(30.0, 0.0)));
		EXPECT_TRUE(Release());
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaDragTest, ReleaseWithoutAPressIsTold)
	{
		ShowArea(false);
		EXPECT_TRUE(Release());
		EXPECT_EQ(TakeEvents(), "stop");
	}

	TEST_F(FHxZoomyAreaDragTest, OwnTranslationOfTheAreaIsAddedOnPurpose)
	{
		ShowArea(false);
		Area->SetRenderTranslation(FVector2D(7.0, -5.0));
		PressAndMove(Middle, Middle + FVector2D(100.0, 0.0));
		EXPECT_EQ(GetTranslation(), FVector2D(107.0, -5.0));
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, MouseIsWhereThePlatformHasItNotWhereTheEventSays)
	{
		ShowArea(false);
		const TSharedRef<FFixedCursor> Cursor = MakeShared<FFixedCursor>();
		const TSharedPtr<ICursor> Before = FSlateApplication::Get().GetPlatformCursor();
		FSlateApplication::Get().SetPlatformCursor(Cursor);
		Cursor->Position = FVector2D(10.0, 20.0);
		Press(Middle);
		Cursor->Position = FVector2D(15.0, 40.0);
		MoveMouse(Middle + FVector2D(100.0, 0.0));
		EXPECT_EQ(GetTranslation(), FVector2D(5.0, 20.0));
		Release();
		FSlateApplication::Get().SetPlatformCursor(Before.ToSharedRef());
	}

	TEST_F(FHxZoomyAreaDragTest, DragIsInUnitsOfTheAreaAtTwoPixelsAUnit)
	{
		MakeArea(false);
		Area->RemoveFromParent();
		Place(*Area, 50.0, 50.0, FVector2D(300.0, 200.0));
		Show();
		UseScale(2.0f);
		PressAndMove(FVector2D(200.0, 200.0), FVector2D(300.0, 150.0));
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, -25.0));
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, TurnedAndScaledParentsAreUndone)
	{
		MakeArea(false);
		UCanvasPanel* Outer = Make<UCanvasPanel>();
		UCanvasPanel* Inner = Make<UCanvasPanel>();
		Area->RemoveFromParent();
		UCanvasPanelSlot* AreaSlot = Inner->AddChildToCanvas(Area);
		AreaSlot->SetPosition(FVector2D(20.0, 30.0));
		AreaSlot->SetSize(FVector2D(200.0, 200.0));
		UCanvasPanelSlot* InnerSlot = Outer->AddChildToCanvas(Inner);
		InnerSlot->SetSize(FVector2D(300.0, 300.0));
		Place(*Outer, 200.0, 100.0, FVector2D(400.0, 400.0));
		Outer->SetRenderTransformAngle(90.0f);
		Inner->SetRenderScale(FVector2D(2.0, 0.5));
		Inner->SetRenderTranslation(FVector2D(15.0, -10.0));
		Show();
		const FVector2D Start = Driver.GetMiddle(*Area);
		PressAndMove(Start, Start + FVector2D(30.0, 80.0));
		// A quarter turn clockwise makes down out of right; then each side has a scale of its own.
		EXPECT_EQ(Print(GetTranslation()), "40 -60");
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, OwnTurnAndScaleOfTheAreaAreUndone)
	{
		ShowArea(false);
		Area->SetRenderTransformAngle(180.0f);
		Area->SetRenderScale(FVector2D(0.5, 0.5));
		PressAndMove(Middle, Middle + FVector2D(20.0, 10.0));
		EXPECT_EQ(Print(GetTranslation()), "-40 -20");
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, ZoomOfTheContentDoesNotChangeTheDrag)
	{
		ShowArea(false);
		Area->SetZoomValue(3.0f);
		PressAndMove(Middle, Middle + FVector2D(60.0, 30.0));
		EXPECT_EQ(GetTranslation(), FVector2D(60.0, 30.0));
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, ListenerMayTakeTheAreaAwayWhenItIsPressed)
	{
		ShowArea(false);
		Recorder->Probe = [this]
		{
			Area->RemoveFromParent();
			return FString(TEXT("gone"));
		};
		Press(Middle);
		EXPECT_EQ(TakeEvents(), "start|gone");
		Recorder->Probe = nullptr;
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(10.0, 0.0)));
		Release();
	}

	TEST_F(FHxZoomyAreaDragTest, AreaThatGoesDuringADragLetsTheMouseGo)
	{
		ShowArea(false);
		PressAndMove(Middle, Middle + FVector2D(10.0, 0.0));
		const TWeakObjectPtr<UHxZoomyArea> Weak = Area;
		StartScreen();
		Recorder->Take();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		MoveMouse(Middle + FVector2D(20.0, 0.0));
		Release();
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_EQ(TakeEvents(), "");
	}
}
