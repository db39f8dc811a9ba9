#include "Host/DumpWidgetTree.h"

#include "TestWidgets.h"

TEST(DumpWidgetTreeTest, OneLineForEachWidget)
{
	FTestTree Tree(SNew(SVerticalBox).Tag("Column")
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[SNew(STestLeaf).Size(FVector2D(12.5, 20.0))]
		+ SVerticalBox::Slot().FillHeight(1.0f)[SNew(STestLeaf).IsEnabled(false).Visibility(EVisibility::HitTestInvisible)]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestLeaf).Visibility(EVisibility::Collapsed)]);
	Tree.Run();
	EXPECT_EQ(Host::DumpWidgetTree(Tree.Top.ToSharedRef()),
		TEXT("STestFrame (0, 0) 400 x 300\n")
		TEXT("  SVerticalBox [Column] (0, 0) 400 x 300\n")
		TEXT("    STestLeaf (0, 0) 12.5 x 20\n")
		TEXT("    STestLeaf (0, 20) 400 x 280 HitTestInvisible disabled\n")
		TEXT("    STestLeaf Collapsed\n"));
}

TEST(DumpWidgetTreeTest, PlacesAreThoseInTheRootInSlateUnits)
{
	TSharedPtr<SVerticalBox> Column;
	FTestTree Tree(SNew(STestFrame).Padding(FMargin(10.0f))[SAssignNew(Column, SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestLeaf)]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestLeaf)]], 2.0f);
	Tree.Run();
	EXPECT_EQ(Host::DumpWidgetTree(Column.ToSharedRef()),
		TEXT("SVerticalBox (0, 0) 180 x 130\n")
		TEXT("  STestLeaf (0, 0) 180 x 10\n")
		TEXT("  STestLeaf (0, 10) 180 x 10\n"));
}

TEST(DumpWidgetTreeTest, TagOfMetadataIsShown)
{
	const TSharedRef<STestLeaf> Leaf = SNew(STestLeaf).AddMetaData<FTagMetaData>(FName("Price"));
	EXPECT_EQ(Leaf->GetTag(), FName("Price"));
	EXPECT_TRUE(Leaf->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Leaf->ToString(), TEXT("STestLeaf [Price]"));
}
