#include "TestWidgets.h"

namespace
{
	TSharedRef<STestLeaf> MakeLeaf(float Width, float Height)
	{
		return SNew(STestLeaf).Size(FVector2D(Width, Height));
	}

	void ExpectPlace(const SWidget& Widget, float X, float Y, float Width, float Height)
	{
		const FGeometry& Geometry = Widget.GetCachedGeometry();
		EXPECT_EQ(Geometry.GetAbsolutePosition(), FVector2f(X, Y));
		EXPECT_EQ(Geometry.GetLocalSize(), FVector2f(Width, Height));
	}
}

TEST(BoxPanelTest, RowWantsTheSumOfWidthsAndTheGreatestHeight)
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().Padding(1.0f, 2.0f, 3.0f, 4.0f)[MakeLeaf(10.0f, 20.0f)]
		+ SHorizontalBox::Slot().FillWidth(1.0f)[MakeLeaf(30.0f, 15.0f)];
	FTestTree Tree(Row);
	Tree.Run();
	EXPECT_EQ(Row->GetDesiredSize(), FVector2f(44.0f, 26.0f));
}

TEST(BoxPanelTest, StretchingSlotsShareWhatIsLeft)
{
	const TSharedRef<STestLeaf> Fixed = MakeLeaf(100.0f, 10.0f);
	const TSharedRef<STestLeaf> Third = MakeLeaf(10.0f, 10.0f);
	const TSharedRef<STestLeaf> TwoThirds = MakeLeaf(10.0f, 10.0f);
	FTestTree Tree(SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth()[Fixed]
		+ SHorizontalBox::Slot().FillWidth(1.0f)[Third]
		+ SHorizontalBox::Slot().FillWidth(2.0f)[TwoThirds]);
	Tree.Run();
	ExpectPlace(Fixed.Get(), 0.0f, 0.0f, 100.0f, 300.0f);
	ExpectPlace(Third.Get(), 100.0f, 0.0f, 100.0f, 300.0f);
	ExpectPlace(TwoThirds.Get(), 200.0f, 0.0f, 200.0f, 300.0f);
}

TEST(BoxPanelTest, SlotsStretchUnlessTheySayOtherwise)
{
	const TSharedRef<STestLeaf> First = MakeLeaf(10.0f, 10.0f);
	const TSharedRef<STestLeaf> Second = MakeLeaf(50.0f, 10.0f);
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot()[First] + SHorizontalBox::Slot()[Second]);
	Tree.Run();
	ExpectPlace(First.Get(), 0.0f, 0.0f, 200.0f, 300.0f);
	ExpectPlace(Second.Get(), 200.0f, 0.0f, 200.0f, 300.0f);
}

TEST(BoxPanelTest, ColumnAlignsAcross)
{
	const TSharedRef<STestLeaf> Left = MakeLeaf(40.0f, 20.0f);
	const TSharedRef<STestLeaf> Centre = MakeLeaf(40.0f, 20.0f);
	const TSharedRef<STestLeaf> Right = MakeLeaf(40.0f, 20.0f);
	const TSharedRef<STestLeaf> Fill = MakeLeaf(40.0f, 20.0f);
	FTestTree Tree(SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Left]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)[Centre]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right).Padding(10.0f)[Right]
		+ SVerticalBox::Slot().AutoHeight()[Fill]);
	Tree.Run();
	ExpectPlace(Left.Get(), 0.0f, 0.0f, 40.0f, 20.0f);
	ExpectPlace(Centre.Get(), 180.0f, 20.0f, 40.0f, 20.0f);
	ExpectPlace(Right.Get(), 350.0f, 50.0f, 40.0f, 20.0f);
	ExpectPlace(Fill.Get(), 0.0f, 80.0f, 400.0f, 20.0f);
}

TEST(BoxPanelTest, AutomaticSlotsKeepTheirSizeWhenRoomIsShort)
{
	const TSharedRef<STestLeaf> Wide = MakeLeaf(500.0f, 10.0f);
	const TSharedRef<STestLeaf> Stretched = MakeLeaf(50.0f, 10.0f);
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[Wide] + SHorizontalBox::Slot().FillWidth(1.0f)[Stretched]);
	Tree.Run();
	ExpectPlace(Wide.Get(), 0.0f, 0.0f, 500.0f, 300.0f);
	EXPECT_EQ(Stretched->GetCachedGeometry().GetLocalSize(), FVector2f(0.0f, 300.0f));
}

TEST(BoxPanelTest, WidthIsKeptWithinItsBounds)
{
	const TSharedRef<STestLeaf> Narrowed = MakeLeaf(100.0f, 10.0f);
	const TSharedRef<STestLeaf> Widened = MakeLeaf(10.0f, 10.0f);
	FTestTree Tree(SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().MaxWidth(60.0f)[Narrowed]
		+ SHorizontalBox::Slot().AutoWidth().MinWidth(40.0f)[Widened]);
	Tree.Run();
	ExpectPlace(Narrowed.Get(), 0.0f, 0.0f, 60.0f, 300.0f);
	ExpectPlace(Widened.Get(), 60.0f, 0.0f, 40.0f, 300.0f);
}

TEST(BoxPanelTest, ExposedSlotChangesTheLayout)
{
	const TSharedRef<STestLeaf> Leaf = MakeLeaf(10.0f, 10.0f);
	SHorizontalBox::FSlot* Slot = nullptr;
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot().Expose(Slot).AutoWidth()[Leaf]);
	ASSERT_NE(Slot, nullptr);
	Tree.Run();
	Slot->SetPadding(FMargin(5.0f));
	Slot->SetVerticalAlignment(VAlign_Bottom);
	Tree.Run();
	ExpectPlace(Leaf.Get(), 5.0f, 285.0f, 10.0f, 10.0f);
	Slot->SetFillWidth(1.0f);
	Tree.Run();
	ExpectPlace(Leaf.Get(), 5.0f, 285.0f, 390.0f, 10.0f);
}

TEST(BoxPanelTest, SlotsAreInsertedAndRemovedInPlace)
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	const TSharedRef<STestLeaf> First = MakeLeaf(10.0f, 10.0f);
	const TSharedRef<STestLeaf> Second = MakeLeaf(20.0f, 10.0f);
	Row->AddSlot().AutoWidth()[Second];
	Row->InsertSlot(0).AutoWidth()[First];
	FTestTree Tree(Row);
	Tree.Run();
	ExpectPlace(Second.Get(), 10.0f, 0.0f, 20.0f, 300.0f);
	EXPECT_EQ(Row->RemoveSlot(First), 0);
	EXPECT_EQ(Row->RemoveSlot(First), INDEX_NONE);
	Tree.Run();
	ExpectPlace(Second.Get(), 0.0f, 0.0f, 20.0f, 300.0f);
	EXPECT_FALSE(First->GetParentWidget().IsValid());
}

TEST(BoxPanelTest, ScaledWindowPlacesInSlateUnits)
{
	const TSharedRef<STestLeaf> First = MakeLeaf(10.0f, 10.0f);
	const TSharedRef<STestLeaf> Second = MakeLeaf(20.0f, 10.0f);
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[First] + SHorizontalBox::Slot().AutoWidth()[Second], 2.0f);
	Tree.Run();
	EXPECT_EQ(Second->GetCachedGeometry().GetAbsolutePosition(), FVector2f(20.0f, 0.0f));
	EXPECT_EQ(Second->GetCachedGeometry().GetLocalSize(), FVector2f(20.0f, 150.0f));
	EXPECT_EQ(Second->GetCachedGeometry().GetAbsoluteSize(), FVector2f(40.0f, 300.0f));
}
