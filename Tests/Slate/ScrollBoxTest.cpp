#include "Widgets/Layout/SScrollBox.h"

#include "Brushes/SlateNoResource.h"
#include "ControlTestTools.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBarTrack.h"

class ScrollBoxTest : public FControlTest
{
protected:
	/** A box of 100 x 100 at the top left with ten pieces of 80 x 40, and no padding after them. */
	void ShowTen(const SScrollBox::FArguments& InArguments)
	{
		Style.SetVerticalScrolledContentPadding(FMargin(0.0f)).SetHorizontalScrolledContentPadding(FMargin(0.0f)).SetBarThickness(8.0f);
		Style.SetTopShadowBrush(FSlateNoResource()).SetBottomShadowBrush(FSlateNoResource());
		Style.SetLeftShadowBrush(FSlateNoResource()).SetRightShadowBrush(FSlateNoResource());
		SScrollBox::FArguments Arguments;
		Arguments.Style(&Style)
			.Orientation(InArguments._Orientation)
			.ConsumeMouseWheel(InArguments._ConsumeMouseWheel)
			.AnimateWheelScrolling(InArguments._AnimateWheelScrolling)
			.IsFocusable(InArguments._IsFocusable)
			.OnUserScrolled(InArguments._OnUserScrolled);
		Box = SArgumentNew(Arguments, SScrollBox);
		for (int32 Index = 0; Index < 10; ++Index)
		{
			const FString Name = FString::Printf(TEXT("P%d"), Index);
			Pieces.Add(Piece(TCHAR_TO_UTF8(*Name), 80, 40));
			Box->AddSlot()[Pieces.Last()];
		}
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
		[
			SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)[Box.ToSharedRef()]
		]);
		Move(40.0f, 40.0f);
	}

	virtual void TearDown() override { Pieces.Reset(); }

	float TopOf(int32 Index) const { return FVector2f(Pieces[Index]->GetCachedGeometry().GetAbsolutePosition()).Y; }

	FScrollBoxStyle Style;
	TSharedPtr<SScrollBox> Box;
	TArray<TSharedRef<SPiece>> Pieces;
};

TEST_F(ScrollBoxTest, WantsTheRoomOfAllItsContent)
{
	ShowTen(SScrollBox::FArguments());
	EXPECT_EQ(FVector2f(Box->GetDesiredSize()).Y, 400.0f);
	EXPECT_EQ(Box->GetScrollOffsetOfEnd(), 300.0f);
	EXPECT_EQ(Box->GetViewFraction(), 0.25f);
}

TEST_F(ScrollBoxTest, ScrollBarTakesItsRoomInTheFirstFrame)
{
	ShowTen(SScrollBox::FArguments());
	// The bar is 8 units thick, with 2 units of padding on each side.
	EXPECT_EQ(FVector2f(Pieces[0]->GetCachedGeometry().GetLocalSize()), FVector2f(88.0f, 40.0f));
}

TEST_F(ScrollBoxTest, ContentThatFitsHasNoScrollBar)
{
	Box = SNew(SScrollBox) + SScrollBox::Slot()[Piece("A", 80, 40)];
	Show(Box.ToSharedRef());
	EXPECT_EQ(DumpInside(Box.ToSharedRef()).find("SScrollBarTrack (3"), std::string::npos);
	EXPECT_EQ(Box->GetScrollOffsetOfEnd(), 0.0f);
	Move(10.0f, 10.0f);
	EXPECT_FALSE(Turn(-1.0f));
}

TEST_F(ScrollBoxTest, OnlyChildrenInViewArePainted)
{
	ShowTen(SScrollBox::FArguments());
	Box->SetScrollOffset(60.0f);
	Frame();
	EXPECT_EQ(TopOf(1), -20.0f);
	EXPECT_EQ(TopOf(3), 60.0f);
	int32 Painted = 0;
	for (const TSharedRef<SPiece>& Shown : Pieces)
	{
		Painted += FVector2f(Shown->GetCachedGeometry().GetLocalSize()).Y > 0.0f ? 1 : 0;
	}
	EXPECT_EQ(Painted, 4) << "the first three, and the one that came into view";
}

TEST_F(ScrollBoxTest, ScrollingArrangesNoMoreThanTheView)
{
	ShowTen(SScrollBox::FArguments());
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Box->AddSlot()[Piece("More", 80, 40)];
	}
	Frame();
	Box->SetScrollOffset(20000.0f);
	Frame();
	EXPECT_LT(Work.Arranged, 20);
	EXPECT_LT(Work.Painted, 20);
	EXPECT_LT(Work.Measured, 5);
}

TEST_F(ScrollBoxTest, WheelScrollsByAStep)
{
	ShowTen(SScrollBox::FArguments());
	EXPECT_TRUE(Turn(-1.0f));
	EXPECT_EQ(Box->GetScrollOffset(), 32.0f);
	Frame();
	EXPECT_EQ(TopOf(0), -32.0f);
	EXPECT_TRUE(Turn(1.0f));
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, WheelAtTheEndIsLeftToOthersUnlessTold)
{
	ShowTen(SScrollBox::FArguments());
	EXPECT_FALSE(Turn(1.0f));
	Box->SetConsumeMouseWheel(EConsumeMouseWheel::Always);
	EXPECT_TRUE(Turn(1.0f));
	Box->SetConsumeMouseWheel(EConsumeMouseWheel::Never);
	EXPECT_FALSE(Turn(-1.0f));
	EXPECT_EQ(Box->GetScrollOffset(), 32.0f);
}

TEST_F(ScrollBoxTest, UserScrollsAreTold)
{
	ShowTen(SScrollBox::FArguments().OnUserScrolled(FOnUserScrolled::CreateLambda([this](float Offset) { Log.Add(FString::Printf(TEXT("%g"), Offset)); })));
	Turn(-1.0f);
	Box->SetScrollOffset(100.0f);
	Turn(-10.0f);
	EXPECT_LOG("32 300");
}

TEST_F(ScrollBoxTest, AnimatedWheelArrivesAfterSomeFrames)
{
	ShowTen(SScrollBox::FArguments().AnimateWheelScrolling(true));
	Turn(-1.0f);
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
	Wait(0.03);
	EXPECT_GT(Box->GetScrollOffset(), 5.0f);
	EXPECT_LT(Box->GetScrollOffset(), 31.0f);
	for (int32 Step = 0; Step < 30; ++Step)
	{
		Wait(0.03);
	}
	EXPECT_EQ(Box->GetScrollOffset(), 32.0f);
	EXPECT_FALSE(Box->HasActiveTimers());
}

TEST_F(ScrollBoxTest, OffsetsOutOfRangeAreTheNearestInIt)
{
	ShowTen(SScrollBox::FArguments());
	Box->SetScrollOffset(5000.0f);
	EXPECT_EQ(Box->GetScrollOffset(), 300.0f);
	Box->SetScrollOffset(-5.0f);
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, OffsetSetBeforeTheFirstLayoutIsKept)
{
	Box = SNew(SScrollBox) + SScrollBox::Slot()[Piece("A", 80, 1000)];
	Box->SetScrollOffset(50.0f);
	Show(Box.ToSharedRef());
	EXPECT_EQ(Box->GetScrollOffset(), 50.0f);
}

TEST_F(ScrollBoxTest, OffsetFollowsContentThatShrinksInTheSameFrame)
{
	ShowTen(SScrollBox::FArguments());
	Box->ScrollToEnd();
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 300.0f);
	Box->RemoveSlot(Pieces[9]);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 260.0f);
	EXPECT_EQ(TopOf(8), 60.0f);
}

TEST_F(ScrollBoxTest, ScrollToEndShowsContentThatIsNotLaidOutYet)
{
	ShowTen(SScrollBox::FArguments());
	Box->AddSlot()[Piece("Last", 80, 70)];
	Box->ScrollToEnd();
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 370.0f);
	Box->ScrollToStart();
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, PageKeysHomeAndEndScroll)
{
	ShowTen(SScrollBox::FArguments().IsFocusable(true));
	App().SetKeyboardFocus(Box);
	KeyDown(EKeys::PageDown);
	EXPECT_EQ(Box->GetScrollOffset(), 90.0f);
	KeyDown(EKeys::Down);
	EXPECT_EQ(Box->GetScrollOffset(), 122.0f);
	KeyDown(EKeys::End);
	EXPECT_EQ(Box->GetScrollOffset(), 300.0f);
	KeyDown(EKeys::Up);
	EXPECT_EQ(Box->GetScrollOffset(), 268.0f);
	KeyDown(EKeys::PageUp);
	EXPECT_EQ(Box->GetScrollOffset(), 178.0f);
	KeyDown(EKeys::Home);
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, DraggedThumbScrolls)
{
	ShowTen(SScrollBox::FArguments());
	// The track is 96 units long and the thumb 24.
	Move(94.0f, 10.0f);
	EXPECT_TRUE(Press());
	Move(94.0f, 46.0f);
	EXPECT_NEAR(Box->GetScrollOffset(), 150.0f, 0.01f);
	Move(94.0f, 500.0f);
	EXPECT_NEAR(Box->GetScrollOffset(), 300.0f, 0.01f);
	EXPECT_TRUE(Release());
	Frame();
	EXPECT_NEAR(TopOf(9), 60.0f, 0.01f);
}

TEST_F(ScrollBoxTest, PressBesideTheThumbBringsItToTheCursor)
{
	ShowTen(SScrollBox::FArguments());
	Move(94.0f, 50.0f);
	Press();
	EXPECT_NEAR(Box->GetScrollOffset(), 150.0f, 0.01f);
	Release();
}

TEST_F(ScrollBoxTest, ThumbFollowsTheContent)
{
	ShowTen(SScrollBox::FArguments());
	Box->SetScrollOffset(150.0f);
	Frame();
	EXPECT_NE(DumpInside(Box.ToSharedRef()).find("SScrollBarTrack (90, 2) 8 x 96"), std::string::npos) << DumpInside(Box.ToSharedRef());
	EXPECT_NE(DumpInside(Box.ToSharedRef()).find("SBorder (90, 38) 8 x 24"), std::string::npos) << DumpInside(Box.ToSharedRef());
}

TEST_F(ScrollBoxTest, RightMouseButtonDragsTheContent)
{
	ShowTen(SScrollBox::FArguments());
	Move(40.0f, 90.0f);
	Press(EKeys::RightMouseButton);
	Move(40.0f, 88.0f);
	EXPECT_FALSE(Box->IsRightClickScrolling());
	Move(40.0f, 80.0f);
	EXPECT_TRUE(Box->IsRightClickScrolling());
	const float Before = Box->GetScrollOffset();
	Move(40.0f, 60.0f);
	EXPECT_EQ(Box->GetScrollOffset(), Before + 20.0f);
	Host::FClock::Advance(1.0);
	App().Tick();
	Release(EKeys::RightMouseButton);
	Wait(0.016);
	EXPECT_EQ(Box->GetScrollOffset(), Before + 20.0f) << "after a pause it stays where it was let go";
}

TEST_F(ScrollBoxTest, QuickDragGoesOnAndComesToRest)
{
	ShowTen(SScrollBox::FArguments());
	Move(40.0f, 95.0f);
	Press(EKeys::RightMouseButton);
	for (int32 Step = 1; Step <= 4; ++Step)
	{
		Wait(0.016);
		Move(40.0f, 95.0f - 8.0f * Step);
	}
	Release(EKeys::RightMouseButton);
	const float LetGo = Box->GetScrollOffset();
	Wait(0.016);
	EXPECT_GT(Box->GetScrollOffset(), LetGo);
	for (int32 Step = 0; Step < 400; ++Step)
	{
		Wait(0.016);
	}
	EXPECT_FALSE(Box->HasActiveTimers()) << "no frames are made for it any more";
}

TEST_F(ScrollBoxTest, DescendantIsScrolledIntoViewNoFartherThanNeeded)
{
	ShowTen(SScrollBox::FArguments());
	Box->ScrollDescendantIntoView(Pieces[4], false);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 100.0f);
	Box->ScrollDescendantIntoView(Pieces[3], false);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 100.0f);
	Box->ScrollDescendantIntoView(Pieces[1], false);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 40.0f);
}

TEST_F(ScrollBoxTest, DescendantGoesWhereItIsAskedToGo)
{
	ShowTen(SScrollBox::FArguments());
	Box->ScrollDescendantIntoView(Pieces[4], false, EDescendantScrollDestination::TopOrLeft);
	Frame();
	EXPECT_EQ(TopOf(4), 0.0f);
	Box->ScrollDescendantIntoView(Pieces[4], false, EDescendantScrollDestination::Center);
	Frame();
	EXPECT_EQ(TopOf(4), 30.0f);
	Box->ScrollDescendantIntoView(Pieces[4], false, EDescendantScrollDestination::BottomOrRight, 5.0f);
	Frame();
	EXPECT_EQ(TopOf(4), 55.0f);
}

TEST_F(ScrollBoxTest, DescendantDeepInAChildOutOfViewIsFound)
{
	ShowTen(SScrollBox::FArguments());
	const TSharedRef<SPiece> Deep = Piece("Deep", 10, 10);
	Box->AddSlot()[SNew(SBox).Padding(FMargin(0.0f, 50.0f, 0.0f, 30.0f))[Deep]];
	Frame();
	Box->ScrollDescendantIntoView(Deep, false, EDescendantScrollDestination::TopOrLeft);
	Frame();
	// Where it is asked to go lies beyond the end: it is seen above the 30 units that follow it.
	EXPECT_EQ(FVector2f(Deep->GetCachedGeometry().GetAbsolutePosition()).Y, 60.0f);
}

TEST_F(ScrollBoxTest, WidgetElsewhereScrollsNothing)
{
	ShowTen(SScrollBox::FArguments());
	Box->ScrollDescendantIntoView(Piece("Elsewhere", 1, 1), false);
	Box->ScrollDescendantIntoView(nullptr, false);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, FocusMovedByKeysIsFollowed)
{
	ShowTen(SScrollBox::FArguments());
	const TSharedRef<SButton> Button = SNew(SButton)[Piece("Inside", 10, 10)];
	Box->AddSlot()[Button];
	Frame();
	App().SetKeyboardFocus(Button, EFocusCause::SetDirectly);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
	App().ClearKeyboardFocus();
	App().SetKeyboardFocus(Button, EFocusCause::Navigation);
	Frame();
	EXPECT_EQ(Box->GetScrollOffset(), Box->GetScrollOffsetOfEnd());
}

TEST_F(ScrollBoxTest, TabReachesWhatIsScrolledAway)
{
	ShowTen(SScrollBox::FArguments());
	const TSharedRef<SButton> Far = SNew(SButton)[Piece("Far", 10, 10)];
	const TSharedRef<SButton> Next = SNew(SButton)[Piece("Next", 10, 10)];
	Box->AddSlot()[SNew(SBox)[Far]];
	Box->AddSlot()[Next];
	Frame();
	Key(EKeys::Tab);
	Frame();
	EXPECT_TRUE(Far->HasKeyboardFocus());
	EXPECT_GT(Box->GetScrollOffset(), 0.0f);
	Key(EKeys::Tab);
	Frame();
	EXPECT_TRUE(Next->HasKeyboardFocus());
	EXPECT_EQ(Box->GetScrollOffset(), Box->GetScrollOffsetOfEnd());
}

TEST_F(ScrollBoxTest, HorizontalBoxScrollsSideways)
{
	ShowTen(SScrollBox::FArguments().Orientation(Orient_Horizontal));
	EXPECT_EQ(Box->GetScrollOffsetOfEnd(), 700.0f);
	Turn(-1.0f);
	Frame();
	EXPECT_EQ(FVector2f(Pieces[0]->GetCachedGeometry().GetAbsolutePosition()), FVector2f(-32.0f, 0.0f));
	EXPECT_EQ(FVector2f(Pieces[0]->GetCachedGeometry().GetLocalSize()), FVector2f(80.0f, 88.0f));
}

TEST_F(ScrollBoxTest, OrientationCanBeChanged)
{
	ShowTen(SScrollBox::FArguments());
	Box->SetOrientation(Orient_Horizontal);
	Frame();
	EXPECT_EQ(Box->GetScrollOffsetOfEnd(), 700.0f);
	EXPECT_EQ(FVector2f(Pieces[1]->GetCachedGeometry().GetAbsolutePosition()), FVector2f(80.0f, 0.0f));
}

TEST_F(ScrollBoxTest, ExternalScrollBarIsKeptInStep)
{
	const TSharedRef<SScrollBar> Bar = SNew(SScrollBar);
	Box = SNew(SScrollBox).ExternalScrollbar(Bar) + SScrollBox::Slot()[Piece("A", 80, 600)];
	Show(SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().FillWidth(1.0f)[Box.ToSharedRef()]
		+ SHorizontalBox::Slot().AutoWidth()[Bar]);
	EXPECT_TRUE(Bar->IsNeeded());
	EXPECT_EQ(Bar->GetVisibility(), EVisibility::Visible);
	Box->SetScrollOffset(Box->GetScrollOffsetOfEnd());
	EXPECT_NEAR(Bar->DistanceFromBottom(), 0.0f, 0.001f);
	Bar->SetState(0.0f, Bar->ThumbSizeFraction(), true);
	EXPECT_EQ(Box->GetScrollOffset(), 0.0f);
}

TEST_F(ScrollBoxTest, NothingHappensWhileNothingChanges)
{
	ShowTen(SScrollBox::FArguments());
	Frame();
	Box->SetScrollOffset(0.0f);
	Box->SetOrientation(Orient_Vertical);
	Frame();
	EXPECT_EQ(Work.Visited, 0);
}

class ScrollBarTrackTest : public testing::Test
{
};

TEST_F(ScrollBarTrackTest, ThumbIsNeverTooShortToBeTaken)
{
	const TSharedRef<SScrollBarTrack> Track = SNew(SScrollBarTrack);
	Track->SetSizes(0.0f, 0.001f);
	float Begin = 0.0f;
	float Length = 0.0f;
	Track->ComputeThumb(200.0f, Begin, Length);
	EXPECT_EQ(Length, 24.0f);
	Track->SetSizes(0.999f, 0.001f);
	Track->ComputeThumb(200.0f, Begin, Length);
	EXPECT_NEAR(Begin, 176.0f, 0.01f);
}

TEST_F(ScrollBarTrackTest, PlaceOfTheThumbAndOffsetAreInverse)
{
	const TSharedRef<SScrollBarTrack> Track = SNew(SScrollBarTrack);
	Track->SetSizes(0.3f, 0.05f);
	float Begin = 0.0f;
	float Length = 0.0f;
	Track->ComputeThumb(200.0f, Begin, Length);
	EXPECT_NEAR(Track->OffsetFractionAt(Begin, 200.0f), 0.3f, 0.0001f);
}
