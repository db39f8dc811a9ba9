#include "Widgets/Views/STreeView.h"

#include "ControlTestTools.h"
#include "Widgets/Layout/SBox.h"

namespace
{
	struct FTestNode
	{
		explicit FTestNode(const TCHAR* InName) : Name(InName) {}

		FString Name;
		TArray<TSharedPtr<FTestNode>> Children;
	};

	using FTestNodePtr = TSharedPtr<FTestNode>;

	FTestNodePtr Node(const TCHAR* Name, std::initializer_list<FTestNodePtr> Children = {})
	{
		const FTestNodePtr Made = MakeShared<FTestNode>(Name);
		Made->Children = Children;
		return Made;
	}
}

class TreeViewTest : public FControlTest
{
protected:
	using FTree = STreeView<FTestNodePtr>;

	/** Three houses, the first with two floors, the first of which has a flat. Rows are 20 high. */
	TreeViewTest()
	{
		Roots = {Node(TEXT("North"), {Node(TEXT("N1"), {Node(TEXT("N1a"))}), Node(TEXT("N2"))}), Node(TEXT("South"), {Node(TEXT("S1"))}), Node(TEXT("Gate"))};
		SAssignNew(Tree, FTree)
			.TreeItemsSource(&Roots)
			.SelectionMode(ESelectionMode::Single)
			.OnGetChildren_Lambda([this](FTestNodePtr Item, TArray<FTestNodePtr>& OutChildren)
			{
				++NumAsked;
				OutChildren.Append(Item->Children);
			})
			.OnExpansionChanged_Lambda([this](FTestNodePtr Item, bool bOpen) { Log.Add((bOpen ? TEXT("+") : TEXT("-")) + Item->Name); })
			.OnSelectionChanged_Lambda([this](FTestNodePtr Item, ESelectInfo::Type) { Log.Add(Item.IsValid() ? Item->Name : FString(TEXT("none"))); })
			.OnGenerateRow_Lambda([](FTestNodePtr, const TSharedRef<STableViewBase>& Table)
			{
				const TSharedRef<ITableRow> Row = SNew(STableRow<FTestNodePtr>, Table)[SNew(SBox).HeightOverride(20.0f)];
				return Row;
			});
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(200.0f).HeightOverride(200.0f)[Tree.ToSharedRef()]]);
	}

	virtual void TearDown() override { Tree.Reset(); }

	/** The rows in order, each with where its content begins. */
	std::string Rows() const
	{
		std::string Text;
		for (const FTestNodePtr& Item : Tree->GetItems())
		{
			const TSharedPtr<ITableRow> Row = Tree->WidgetFromItem(Item);
			const float Left = FVector2f(Row->GetContent()->GetCachedGeometry().GetAbsolutePosition()).X;
			Text += (Text.empty() ? "" : " ") + std::string(TCHAR_TO_UTF8(*Item->Name)) + "@" + std::to_string(static_cast<int>(Left));
		}
		return Text;
	}

	FTestNodePtr Find(const TCHAR* Name) const
	{
		for (const FTestNodePtr& Item : Tree->GetItems())
		{
			if (Item->Name == Name)
			{
				return Item;
			}
		}
		return nullptr;
	}

	/** Presses the arrow of an item. */
	void PressArrow(const TCHAR* Name)
	{
		const FGeometry Content = Tree->WidgetFromItem(Find(Name))->GetContent()->GetCachedGeometry();
		const FVector2f Place = Content.GetAbsolutePosition();
		Move(Place.X - 8.0f, Place.Y + 10.0f);
		Press();
		Release();
		Wait(1.0);
	}

	TArray<FTestNodePtr> Roots;
	TSharedPtr<FTree> Tree;
	int32 NumAsked = 0;
};

TEST_F(TreeViewTest, ClosedItemsShowNothingOfWhatIsInThem)
{
	EXPECT_EQ(Rows(), "North@16 South@16 Gate@16");
	EXPECT_TRUE(Tree->WidgetFromItem(Roots[0])->DoesItemHaveChildren());
	EXPECT_FALSE(Tree->WidgetFromItem(Roots[2])->DoesItemHaveChildren());
}

TEST_F(TreeViewTest, ArrowOpensAndClosesWithoutSelecting)
{
	PressArrow(TEXT("North"));
	EXPECT_EQ(Rows(), "North@16 N1@26 N2@26 South@16 Gate@16");
	PressArrow(TEXT("N1"));
	EXPECT_EQ(Rows(), "North@16 N1@26 N1a@36 N2@26 South@16 Gate@16");
	PressArrow(TEXT("North"));
	EXPECT_EQ(Rows(), "North@16 South@16 Gate@16");
	EXPECT_LOG("+North +N1 -North");
	PressArrow(TEXT("North"));
	EXPECT_EQ(Rows(), "North@16 N1@26 N1a@36 N2@26 South@16 Gate@16") << "what was open in it is open again";
}

TEST_F(TreeViewTest, PressWhereAnItemHasNoArrowSelectsIt)
{
	PressArrow(TEXT("Gate"));
	EXPECT_LOG("Gate");
}

TEST_F(TreeViewTest, LeftAndRightOpenCloseAndWalkTheLevels)
{
	Tree->SetSelection(Roots[0]);
	Tree->RequestNavigateToItem(Roots[0]);
	Frame();
	TakeLog();
	Stroke(EKeys::Right);
	Frame();
	EXPECT_LOG("+North");
	Stroke(EKeys::Right);
	EXPECT_LOG("N1");
	Stroke(EKeys::Right);
	Frame();
	Stroke(EKeys::Right);
	EXPECT_LOG("+N1 N1a");
	Stroke(EKeys::Left);
	EXPECT_LOG("N1");
	Stroke(EKeys::Left);
	Frame();
	EXPECT_LOG("-N1");
	Stroke(EKeys::Left);
	Stroke(EKeys::Left);
	EXPECT_LOG("North -North");
	Frame();
	EXPECT_EQ(Rows(), "North@16 South@16 Gate@16");
}

TEST_F(TreeViewTest, ExpansionFromCodeIsToldWhenItChanges)
{
	Tree->SetItemExpansion(Roots[1], true);
	Tree->SetItemExpansion(Roots[1], true);
	EXPECT_LOG("+South");
	EXPECT_TRUE(Tree->IsItemExpanded(Roots[1]));
	EXPECT_EQ(Rows(), "North@16 South@16 Gate@16") << "shown at the next frame";
	Frame();
	EXPECT_EQ(Rows(), "North@16 South@16 S1@26 Gate@16");
	Tree->ClearExpandedItems();
	Frame();
	EXPECT_LOG("");
	EXPECT_EQ(Rows(), "North@16 South@16 Gate@16");
}

TEST_F(TreeViewTest, SelectedItemInAClosedOneIsDroppedFromTheSelection)
{
	Tree->SetItemExpansion(Roots[1], true);
	Frame();
	Tree->SetSelection(Find(TEXT("S1")));
	TakeLog();
	Tree->SetItemExpansion(Roots[1], false);
	Frame();
	EXPECT_EQ(Tree->GetNumItemsSelected(), 0);
	EXPECT_LOG("-South none");
}
