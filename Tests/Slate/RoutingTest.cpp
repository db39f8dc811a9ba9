#include "ApplicationTestTools.h"

class RoutingTest : public FApplicationTest
{
protected:
	/** Outer fills the window; Inner stands in its top left, 100 x 100. */
	void ShowTwo()
	{
		Show(SAssignNew(Outer, SEventRecorder).Name(TEXT("Outer")).Log(&Log)
		[
			SNew(SOverlay)
			+ SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)
			[
				SNew(SOverlay)
				+ SOverlay::Slot().Padding(50.0f)[SNullWidget::NullWidget]
				+ SOverlay::Slot()[SAssignNew(Inner, SEventRecorder).Name(TEXT("Inner")).Log(&Log)]
			]
		]);
		Log.Reset();
	}

	TSharedPtr<SEventRecorder> Outer;
	TSharedPtr<SEventRecorder> Inner;
};

TEST_F(RoutingTest, PreviewTunnelsThenThePressBubbles)
{
	ShowTwo();
	Move(10.0f, 10.0f);
	TakeLog();
	EXPECT_FALSE(Press());
	EXPECT_LOG("Outer.PreviewDown Inner.PreviewDown Inner.Down Outer.Down");
}

TEST_F(RoutingTest, HandledPressGoesNoFurther)
{
	ShowTwo();
	Inner->Handles = TEXT("Down");
	Move(10.0f, 10.0f);
	TakeLog();
	EXPECT_TRUE(Press());
	EXPECT_LOG("Outer.PreviewDown Inner.PreviewDown Inner.Down");
}

TEST_F(RoutingTest, HandledPreviewKeepsThePressFromAll)
{
	ShowTwo();
	Outer->Handles = TEXT("PreviewDown");
	Move(10.0f, 10.0f);
	TakeLog();
	EXPECT_TRUE(Press());
	EXPECT_LOG("Outer.PreviewDown");
}

TEST_F(RoutingTest, OutsideOfTheInnerOneOnlyTheOuterIsAsked)
{
	ShowTwo();
	Move(200.0f, 200.0f);
	TakeLog();
	Press();
	EXPECT_LOG("Outer.PreviewDown Outer.Down");
}

TEST_F(RoutingTest, DisabledWidgetGetsNoEventsAndItsParentDoes)
{
	ShowTwo();
	Inner->SetEnabled(false);
	Move(10.0f, 10.0f);
	TakeLog();
	Press();
	EXPECT_LOG("Outer.PreviewDown Outer.Down");
}

TEST_F(RoutingTest, WheelBubbles)
{
	ShowTwo();
	Outer->Handles = TEXT("Wheel");
	Move(10.0f, 10.0f);
	TakeLog();
	EXPECT_TRUE(Turn(1.0f));
	EXPECT_LOG("Inner.Wheel Outer.Wheel");
}

TEST_F(RoutingTest, SecondQuickPressIsADoubleClick)
{
	ShowTwo();
	Inner->Handles = TEXT("Down Up DoubleClick");
	Move(10.0f, 10.0f);
	TakeLog();
	Press();
	Release();
	Wait(0.2);
	Press();
	Release();
	EXPECT_LOG("Outer.PreviewDown Inner.PreviewDown Inner.Down Inner.Up Inner.DoubleClick Inner.Up");
	Press();
	Release();
	EXPECT_LOG("Outer.PreviewDown Inner.PreviewDown Inner.Down Inner.Up");
}

TEST_F(RoutingTest, SlowOrDistantOrOtherPressesAreNoDoubleClick)
{
	ShowTwo();
	Inner->Handles = TEXT("Down Up DoubleClick PreviewDown");
	Move(10.0f, 10.0f);
	TakeLog();
	Press();
	Release();
	Wait(0.8);
	Press();
	Release();
	Move(30.0f, 10.0f);
	Press();
	Release();
	Press(EKeys::RightMouseButton);
	Release(EKeys::RightMouseButton);
	EXPECT_FALSE(TakeLog().Contains(TEXT("DoubleClick")));
}

TEST_F(RoutingTest, UnhandledDoubleClickIsAPress)
{
	ShowTwo();
	Inner->Handles = TEXT("Down");
	Move(10.0f, 10.0f);
	Press();
	Release();
	TakeLog();
	Press();
	EXPECT_LOG("Inner.DoubleClick Outer.DoubleClick Outer.PreviewDown Inner.PreviewDown Inner.Down");
}

TEST_F(RoutingTest, LocalPositionIsInTheWidget)
{
	ShowTwo();
	Inner->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(20.0f, 30.0f))));
	Inner->Handles = TEXT("Move");
	Move(50.0f, 60.0f);
	EXPECT_EQ(Inner->LastLocalPosition, FVector2f(30.0f, 30.0f));
}

TEST_F(RoutingTest, SecondMoveOfAFrameMeetsWhatTheFirstMoved)
{
	ShowTwo();
	Inner->Handles = TEXT("Move");
	Move(10.0f, 10.0f);
	Inner->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(5.0f, 0.0f))));
	Move(15.0f, 10.0f);
	EXPECT_EQ(Inner->LastLocalPosition, FVector2f(10.0f, 10.0f));
}

TEST_F(RoutingTest, KeysTunnelAndBubbleAlongTheFocus)
{
	Show(SAssignNew(Outer, SEventRecorder).Name(TEXT("Outer")).Log(&Log)
	[
		SAssignNew(Inner, SEventRecorder).Name(TEXT("Inner")).Focusable(true).Log(&Log)
	]);
	App().SetKeyboardFocus(Inner);
	TakeLog();
	EXPECT_FALSE(Key(EKeys::A));
	EXPECT_LOG("Outer.PreviewKey Inner.PreviewKey Inner.Key Outer.Key");
	Inner->Handles = TEXT("Char KeyUp");
	EXPECT_TRUE(App().ProcessKeyCharEvent(FCharacterEvent(u'a', FModifierKeysState(), 0, false)));
	EXPECT_TRUE(App().ProcessKeyUpEvent(FKeyEvent(EKeys::A, FModifierKeysState(), 0, false, 0, 0)));
	EXPECT_LOG("Inner.Char Inner.KeyUp");
}

TEST_F(RoutingTest, HandlersSetFromOutsideAreAsked)
{
	ShowTwo();
	int32 NumMoves = 0;
	const TSharedRef<SOverlay> Plain = SNew(SOverlay);
	Plain->SetOnMouseMove(FPointerEventHandler::CreateLambda([&NumMoves](const FGeometry&, const FPointerEvent&)
	{
		++NumMoves;
		return FReply::Handled();
	}));
	Show(Plain);
	EXPECT_TRUE(Move(20.0f, 20.0f));
	EXPECT_EQ(NumMoves, 1);
}

TEST_F(RoutingTest, WidgetMayRemoveItselfInItsHandler)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	TWeakPtr<SWidget> Removed;
	{
		const TSharedRef<SOverlay> Child = SNew(SOverlay);
		Removed = Child;
		Child->SetOnMouseButtonDown(FPointerEventHandler::CreateLambda([&Overlay](const FGeometry&, const FPointerEvent&)
		{
			Overlay->ClearChildren();
			return FReply::Handled();
		}));
		Overlay->AddSlot()[Child];
	}
	Show(Overlay);
	Move(10.0f, 10.0f);
	EXPECT_TRUE(Press());
	App().Tick();
	EXPECT_FALSE(Removed.IsValid());
}

TEST_F(RoutingTest, CursorOfTheLowestWidgetThatWantsOneIsShown)
{
	ShowTwo();
	Outer->SetCursor(TOptional<EMouseCursor::Type>(EMouseCursor::Hand));
	Move(10.0f, 10.0f);
	EXPECT_EQ(App().GetPlatformCursor()->GetType(), EMouseCursor::Hand);
	Inner->SetCursor(TOptional<EMouseCursor::Type>(EMouseCursor::Crosshairs));
	Move(11.0f, 10.0f);
	EXPECT_EQ(App().GetPlatformCursor()->GetType(), EMouseCursor::Crosshairs);
	EXPECT_EQ(App().GetCursorPos(), FVector2D(11.0, 10.0));
}
