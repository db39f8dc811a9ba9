#include "TestWidgets.h"

namespace
{
	TSharedRef<STestLeaf> MakeLeaf(float Width, float Height)
	{
		return SNew(STestLeaf).Size(FVector2D(Width, Height));
	}

	/** A child at a place of an overlay. */
	void Place(SOverlay& Overlay, const TSharedRef<SWidget>& Child, float X, float Y)
	{
		Overlay.AddSlot().HAlign(HAlign_Left).VAlign(VAlign_Top).Padding(X, Y, 0.0f, 0.0f)[Child];
	}
}

TEST(HitTestTest, PathLeadsFromTheRootToTheLowestWidget)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	Place(Overlay.Get(), Leaf, 20.0f, 20.0f);
	FTestTree Tree(Overlay);
	Tree.Run();
	const TArray<FArrangedWidget> Path = Tree.Root.HitTest(FVector2f(30.0f, 30.0f));
	ASSERT_EQ(Path.Num(), 3);
	EXPECT_EQ(Path[0].Widget, Tree.Top);
	EXPECT_EQ(Path[1].Widget, Overlay);
	EXPECT_EQ(Path[2].Widget, Leaf);
	EXPECT_EQ(Path[2].Geometry.GetAbsolutePosition(), FVector2f(20.0f, 20.0f));
}

TEST(HitTestTest, OutsideOfThePictureNothingIsHit)
{
	FTestTree Tree(MakeLeaf(50.0f, 50.0f));
	Tree.Run();
	EXPECT_FALSE(Tree.Hit(-1.0f, 5.0f).IsValid());
	EXPECT_FALSE(Tree.Hit(400.0f, 5.0f).IsValid());
	EXPECT_TRUE(Tree.Hit(399.0f, 299.0f).IsValid());
}

TEST(HitTestTest, LaterSiblingsAreHitFirst)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestLeaf> Below = MakeLeaf(50.0f, 50.0f);
	const TSharedRef<STestLeaf> Above = MakeLeaf(20.0f, 20.0f);
	Place(Overlay.Get(), Below, 0.0f, 0.0f);
	Place(Overlay.Get(), Above, 0.0f, 0.0f);
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Above);
	EXPECT_EQ(Tree.Hit(30.0f, 30.0f), Below);
}

TEST(HitTestTest, VisibilityDecidesWhatIsHit)
{
	const TSharedRef<SOverlay> Outer = SNew(SOverlay);
	const TSharedRef<SOverlay> Inner = SNew(SOverlay);
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	Place(Inner.Get(), Leaf, 0.0f, 0.0f);
	Outer->AddSlot()[Inner];
	FTestTree Tree(Outer);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Leaf);
	EXPECT_EQ(Tree.Hit(100.0f, 100.0f), Inner);
	Inner->SetVisibility(EVisibility::SelfHitTestInvisible);
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Leaf);
	EXPECT_EQ(Tree.Hit(100.0f, 100.0f), Outer);
	Inner->SetVisibility(EVisibility::HitTestInvisible);
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Outer);
	Inner->SetVisibility(EVisibility::Hidden);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Outer);
}

TEST(HitTestTest, DisabledWidgetsAreHit)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	FTestTree Tree(Leaf);
	Leaf->SetEnabled(false);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Leaf);
}

TEST(HitTestTest, ChildBeyondItsParentIsHitUnlessClipped)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	TSharedPtr<STestFrame> Frame;
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	Place(Overlay.Get(), SAssignNew(Frame, STestFrame)[Leaf], 100.0f, 100.0f);
	FTestTree Tree(Overlay);
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(40.0f, 0.0f))));
	Tree.Run();
	EXPECT_EQ(Tree.Hit(180.0f, 120.0f), Leaf);
	EXPECT_EQ(Tree.Hit(110.0f, 120.0f), Frame);
	Frame->SetClipping(EWidgetClipping::ClipToBounds);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(180.0f, 120.0f), Overlay);
	EXPECT_EQ(Tree.Hit(145.0f, 120.0f), Leaf);
}

TEST(HitTestTest, TurnedWidgetIsHitWhereItIsDrawn)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(100.0f, 20.0f);
	Place(Overlay.Get(), Leaf, 100.0f, 100.0f);
	Leaf->SetRenderTransformPivot(FVector2D(0.5, 0.5));
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FQuat2D(FMath::DegreesToRadians(90.0f)))));
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(150.0f, 70.0f), Leaf);
	EXPECT_EQ(Tree.Hit(105.0f, 110.0f), Overlay);
}

TEST(HitTestTest, TurnedClipCutsOffWhatIsOutsideOfIt)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	TSharedPtr<STestFrame> Frame;
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(100.0f, 100.0f);
	Place(Overlay.Get(), SAssignNew(Frame, STestFrame).DrawsUnder(false)[Leaf], 100.0f, 100.0f);
	Frame->SetRenderTransformPivot(FVector2D(0.5, 0.5));
	Frame->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FQuat2D(FMath::DegreesToRadians(45.0f)))));
	Frame->SetClipping(EWidgetClipping::ClipToBounds);
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(3.0f)));
	Leaf->SetRenderTransformPivot(FVector2D(0.5, 0.5));
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(150.0f, 150.0f), Leaf);
	EXPECT_EQ(Tree.Hit(150.0f, 85.0f), Leaf);
	EXPECT_EQ(Tree.Hit(105.0f, 105.0f), Overlay);
}

TEST(HitTestTest, EscapingClipIsHitOutsideTheParentsClip)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	TSharedPtr<STestFrame> Outer;
	TSharedPtr<STestFrame> Inner;
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	Place(Overlay.Get(), SAssignNew(Outer, STestFrame).Clipping(EWidgetClipping::ClipToBounds)
		[
			SAssignNew(Inner, STestFrame).Clipping(EWidgetClipping::ClipToBoundsWithoutIntersecting)
			[
				Leaf
			]
		], 100.0f, 100.0f);
	Inner->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(40.0f, 0.0f))));
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(180.0f, 120.0f), Leaf);
	Outer->SetClipping(EWidgetClipping::ClipToBoundsAlways);
	Tree.Run();
	EXPECT_EQ(Tree.Hit(180.0f, 120.0f), Overlay);
}

TEST(HitTestTest, MovedRenderTransformIsArrangedAloneAndHitAnew)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	const TSharedRef<STestLeaf> Other = MakeLeaf(50.0f, 50.0f);
	Place(Overlay.Get(), Leaf, 0.0f, 0.0f);
	Place(Overlay.Get(), Other, 0.0f, 100.0f);
	FTestTree Tree(Overlay);
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(5.0f, 0.0f))));
	Tree.Run();
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(200.0f, 0.0f))));
	Tree.Run();
	Tree.ExpectWork(0, 1, 1);
	EXPECT_EQ(Tree.Hit(210.0f, 10.0f), Leaf);
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Overlay);
}

TEST(HitTestTest, WidgetThatWasOutsideThePictureIsHitWhenItCameIn)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(50.0f, 50.0f);
	Place(Overlay.Get(), Leaf, 0.0f, 0.0f);
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(1000.0f, 0.0f))));
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Leaf->NumPainted, 0);
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Overlay);
	Leaf->SetRenderTransform(TOptional<FSlateRenderTransform>(FSlateRenderTransform(FVector2f(0.0f, 0.0f))));
	Tree.Run();
	EXPECT_EQ(Tree.Hit(10.0f, 10.0f), Leaf);
}
