#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "TestWidgets.h"

namespace
{
	enum class EKind
	{
		Leaf,
		Row,
		Column,
		Overlay,
		Frame,
	};

	/** A tree as plain data, from which widgets are made anew, and the widget that was made of it first and edited since. */
	struct FNode
	{
		EKind Kind = EKind::Leaf;
		FVector2D Size = FVector2D(10.0, 10.0);
		FLinearColor Color = FLinearColor::White;
		FLinearColor Tint = FLinearColor::White;
		EVisibility Visibility = EVisibility::Visible;
		EWidgetClipping Clipping = EWidgetClipping::Inherit;
		TOptional<FSlateRenderTransform> Transform;
		float Opacity = 1.0f;
		float Padding = 0.0f;
		bool bEnabled = true;
		bool bDrawsOver = false;
		bool bAuto = true;
		EHorizontalAlignment HAlign = HAlign_Fill;
		EVerticalAlignment VAlign = VAlign_Fill;
		TArray<TUniquePtr<FNode>> Children;

		TSharedPtr<SWidget> Live;
	};

	class FRandomTree
	{
	public:
		explicit FRandomTree(uint32 Seed) : Random(Seed) {}

		int32 Below(int32 Limit) { return static_cast<int32>(Random() % static_cast<uint32>(Limit)); }
		float Share() { return Below(101) / 100.0f; }
		FLinearColor AnyColor() { return FLinearColor(Share(), Share(), Share(), 1.0f); }

		TUniquePtr<FNode> MakeNode(int32 Depth)
		{
			TUniquePtr<FNode> Node = MakeUnique<FNode>();
			Node->Kind = Depth == 0 ? EKind::Leaf : static_cast<EKind>(Below(5));
			Node->Size = FVector2D(4.0 + Below(30), 4.0 + Below(30));
			Node->Color = AnyColor();
			Node->bDrawsOver = Below(2) == 0;
			RandomiseSlot(*Node);
			const int32 NumChildren = Node->Kind == EKind::Leaf ? 0 : (Node->Kind == EKind::Frame ? 1 : 1 + Below(4));
			for (int32 Index = 0; Index < NumChildren; ++Index)
			{
				Node->Children.Add(MakeNode(Depth - 1));
			}
			return Node;
		}

		void RandomiseSlot(FNode& Node)
		{
			Node.Padding = static_cast<float>(Below(4));
			Node.bAuto = Below(3) != 0;
			Node.HAlign = static_cast<EHorizontalAlignment>(Below(4));
			Node.VAlign = static_cast<EVerticalAlignment>(Below(4));
		}

		FNode& AnyNode(FNode& From)
		{
			FNode* Node = &From;
			while (!Node->Children.IsEmpty() && Below(4) != 0)
			{
				Node = Node->Children[Below(Node->Children.Num())].Get();
			}
			return *Node;
		}

	private:
		std::mt19937 Random;
	};

	void AddChild(const FNode& Parent, SWidget& Widget, const FNode& Child, const TSharedRef<SWidget>& ChildWidget, int32 Index)
	{
		switch (Parent.Kind)
		{
		case EKind::Row:
		{
			SHorizontalBox::FSlot* Slot = nullptr;
			static_cast<SHorizontalBox&>(Widget).InsertSlot(Index).Expose(Slot).HAlign(Child.HAlign).VAlign(Child.VAlign).Padding(Child.Padding)[ChildWidget];
			Child.bAuto ? Slot->SetAutoWidth() : Slot->SetFillWidth(1.0f);
			break;
		}
		case EKind::Column:
		{
			SVerticalBox::FSlot* Slot = nullptr;
			static_cast<SVerticalBox&>(Widget).InsertSlot(Index).Expose(Slot).HAlign(Child.HAlign).VAlign(Child.VAlign).Padding(Child.Padding)[ChildWidget];
			Child.bAuto ? Slot->SetAutoHeight() : Slot->SetFillHeight(1.0f);
			break;
		}
		case EKind::Overlay:
			static_cast<SOverlay&>(Widget).AddSlot().HAlign(Child.HAlign).VAlign(Child.VAlign).Padding(Child.Padding)[ChildWidget];
			break;
		case EKind::Frame:
			static_cast<STestFrame&>(Widget).SetContent(ChildWidget);
			break;
		case EKind::Leaf:
			break;
		}
	}

	void ApplyState(const FNode& Node, SWidget& Widget)
	{
		Widget.SetVisibility(Node.Visibility);
		Widget.SetClipping(Node.Clipping);
		Widget.SetRenderOpacity(Node.Opacity);
		Widget.SetEnabled(Node.bEnabled);
		Widget.SetRenderTransformPivot(FVector2D(0.5, 0.5));
		Widget.SetRenderTransform(Node.Transform);
		if (Node.Kind == EKind::Leaf)
		{
			static_cast<STestLeaf&>(Widget).SetSize(Node.Size);
			static_cast<STestLeaf&>(Widget).SetColor(Node.Color);
		}
		else if (Node.Kind == EKind::Frame)
		{
			static_cast<STestFrame&>(Widget).SetColorAndOpacity(Node.Tint);
		}
	}

	TSharedRef<SWidget> MakeWidget(const FNode& Node)
	{
		switch (Node.Kind)
		{
		case EKind::Row:
			return SNew(SHorizontalBox);
		case EKind::Column:
			return SNew(SVerticalBox);
		case EKind::Overlay:
			return SNew(SOverlay);
		case EKind::Frame:
			return SNew(STestFrame).DrawsOver(Node.bDrawsOver);
		default:
			return SNew(STestLeaf);
		}
	}

	TSharedRef<SWidget> Build(FNode& Node, bool bLive)
	{
		const TSharedRef<SWidget> Widget = MakeWidget(Node);
		ApplyState(Node, Widget.Get());
		for (int32 Index = 0; Index < Node.Children.Num(); ++Index)
		{
			AddChild(Node, Widget.Get(), *Node.Children[Index], Build(*Node.Children[Index], bLive), Index);
		}
		if (bLive)
		{
			Node.Live = Widget;
		}
		return Widget;
	}

	void RemoveChild(const FNode& Parent, int32 Index)
	{
		const TSharedRef<SWidget> Child = Parent.Children[Index]->Live.ToSharedRef();
		switch (Parent.Kind)
		{
		case EKind::Row:
			static_cast<SHorizontalBox&>(*Parent.Live).RemoveSlot(Child);
			break;
		case EKind::Column:
			static_cast<SVerticalBox&>(*Parent.Live).RemoveSlot(Child);
			break;
		case EKind::Overlay:
			static_cast<SOverlay&>(*Parent.Live).RemoveSlot(Child);
			break;
		default:
			static_cast<STestFrame&>(*Parent.Live).TakeContent();
			break;
		}
	}

	/** Gives a slot another padding, or puts it on top of its siblings. */
	void EditSlot(FNode& Parent, int32 Index, FRandomTree& Random)
	{
		FNode& Child = *Parent.Children[Index];
		Child.Padding = static_cast<float>(Random.Below(6));
		switch (Parent.Kind)
		{
		case EKind::Row:
			static_cast<SHorizontalBox&>(*Parent.Live).GetSlot(Index).SetPadding(FMargin(Child.Padding));
			break;
		case EKind::Column:
			static_cast<SVerticalBox&>(*Parent.Live).GetSlot(Index).SetPadding(FMargin(Child.Padding));
			break;
		case EKind::Overlay:
		{
			const TSharedRef<SWidget> Widget = Child.Live.ToSharedRef();
			static_cast<SOverlay&>(*Parent.Live).RemoveSlot(Widget);
			AddChild(Parent, *Parent.Live, Child, Widget, Index);
			TUniquePtr<FNode> Moved = MoveTemp(Parent.Children[Index]);
			Parent.Children.RemoveAt(Index);
			Parent.Children.Add(MoveTemp(Moved));
			break;
		}
		default:
			Child.Padding = 0.0f;
			break;
		}
	}

	/** Changes one thing of the tree, in the data and in the widgets. */
	void Edit(FNode& Tree, FRandomTree& Random)
	{
		FNode& Node = Random.AnyNode(Tree);
		switch (Random.Below(12))
		{
		case 0:
			Node.Size = FVector2D(4.0 + Random.Below(30), 4.0 + Random.Below(30));
			break;
		case 1:
			Node.Color = Random.AnyColor();
			break;
		case 2:
		{
			const EVisibility All[] = { EVisibility::Visible, EVisibility::Hidden, EVisibility::Collapsed, EVisibility::SelfHitTestInvisible };
			Node.Visibility = All[Random.Below(4)];
			break;
		}
		case 3:
			Node.Clipping = Random.Below(2) == 0 ? EWidgetClipping::Inherit : static_cast<EWidgetClipping>(Random.Below(5));
			break;
		case 4:
		{
			const FSlateRenderTransform Some[] = { FSlateRenderTransform(), FSlateRenderTransform(FVector2f(7.0f, -3.0f)), FSlateRenderTransform(1.5f),
				FSlateRenderTransform(FQuat2D(0.5f)), FSlateRenderTransform(FVector2f(900.0f, 0.0f)) };
			Node.Transform = Some[Random.Below(5)];
			break;
		}
		case 5:
			Node.Opacity = 0.25f * (1 + Random.Below(4));
			break;
		case 6:
			Node.bEnabled = !Node.bEnabled;
			break;
		case 7:
			Node.Tint = Random.AnyColor();
			break;
		case 8:
		case 9:
			if (!Node.Children.IsEmpty())
			{
				const int32 Index = Random.Below(Node.Children.Num());
				RemoveChild(Node, Index);
				Node.Children.RemoveAt(Index);
			}
			break;
		case 10:
			if (!Node.Children.IsEmpty())
			{
				EditSlot(Node, Random.Below(Node.Children.Num()), Random);
			}
			break;
		default:
			if (Node.Kind != EKind::Leaf && (Node.Kind != EKind::Frame || Node.Children.IsEmpty()))
			{
				const int32 Index = Node.Kind == EKind::Overlay ? Node.Children.Num() : Random.Below(Node.Children.Num() + 1);
				TUniquePtr<FNode> Child = Random.MakeNode(2);
				AddChild(Node, *Node.Live, *Child, Build(*Child, true), Index);
				Node.Children.Insert(MoveTemp(Child), Index);
			}
			break;
		}
		ApplyState(Node, *Node.Live);
	}

	std::string Describe(const Host::FDrawElement& Element)
	{
		const Host::FPixelTransform& T = Element.LocalToPixel;
		char Text[256];
		snprintf(Text, sizeof(Text), "[%d %d %d %d] #%02x%02x%02x%02x size %.3f %.3f at %.3f %.3f axes %.4f %.4f %.4f %.4f clips %d", Element.Bounds.Left, Element.Bounds.Top,
			Element.Bounds.Right, Element.Bounds.Bottom, Element.Colour.R, Element.Colour.G, Element.Colour.B, Element.Colour.A, Element.LocalSize.X, Element.LocalSize.Y,
			T.X, T.Y, T.Xx, T.Xy, T.Yx, T.Yy, Element.ClipQuads.IsValid() ? Element.ClipQuads->Quads.Num() : 0);
		return Text;
	}

	std::vector<std::string> Describe(const TArray<Host::FDrawElement>& Elements)
	{
		std::vector<std::string> Lines;
		for (const Host::FDrawElement& Element : Elements)
		{
			Lines.push_back(Describe(Element));
		}
		return Lines;
	}

	/** Elements of one picture that the other has not must lie in the damage. */
	void ExpectDamageCovers(const FTestTree& Tree, const TArray<Host::FDrawElement>& Some, const std::vector<std::string>& Others)
	{
		for (const Host::FDrawElement& Element : Some)
		{
			if (std::find(Others.begin(), Others.end(), Describe(Element)) == Others.end())
			{
				const bool bCovered = Tree.Root.GetDamage().ContainsByPredicate([&Element](const Host::FPixelRect& Area) { return Area.Contains(Element.Bounds); });
				EXPECT_TRUE(bCovered) << "not damaged: " << Describe(Element);
			}
		}
	}

	/** Where two elements of both pictures overlap, and the other one is on top now, there must be damage. */
	void ExpectDamageWhereOrderChanged(const FTestTree& Tree, const std::vector<std::string>& Before, const TArray<Host::FDrawElement>& Elements, const std::vector<std::string>& After)
	{
		std::vector<std::ptrdiff_t> PlaceBefore;
		for (const std::string& Line : After)
		{
			const bool bOnce = std::count(Before.begin(), Before.end(), Line) == 1 && std::count(After.begin(), After.end(), Line) == 1;
			PlaceBefore.push_back(bOnce ? std::find(Before.begin(), Before.end(), Line) - Before.begin() : -1);
		}
		for (int32 Upper = 0; Upper < Elements.Num(); ++Upper)
		{
			for (int32 Lower = 0; Lower < Upper; ++Lower)
			{
				const Host::FPixelRect Overlap = Elements[Upper].Bounds.Intersect(Elements[Lower].Bounds);
				if (PlaceBefore[Upper] >= 0 && PlaceBefore[Lower] > PlaceBefore[Upper] && !Overlap.IsEmpty())
				{
					const bool bCovered = Tree.Root.GetDamage().ContainsByPredicate([&Overlap](const Host::FPixelRect& Area) { return Area.Contains(Overlap); });
					EXPECT_TRUE(bCovered) << "now on top: " << After[Upper] << " of " << After[Lower];
				}
			}
		}
	}

	void ExpectSameHits(const FTestTree& A, const FTestTree& B, FRandomTree& Random)
	{
		for (int32 Time = 0; Time < 8; ++Time)
		{
			const FVector2f Point(static_cast<float>(Random.Below(400)), static_cast<float>(Random.Below(300)));
			const TArray<FArrangedWidget> PathA = A.Root.HitTest(Point);
			const TArray<FArrangedWidget> PathB = B.Root.HitTest(Point);
			ASSERT_EQ(PathA.Num(), PathB.Num()) << "at " << Point.X << ", " << Point.Y;
			for (int32 Index = 0; Index < PathA.Num(); ++Index)
			{
				EXPECT_TRUE(PathA[Index].Geometry == PathB[Index].Geometry);
			}
		}
	}
}

class IncrementalTest : public testing::TestWithParam<int>
{
};

TEST_P(IncrementalTest, RandomEditsGiveThePictureOfATreeMadeAnew)
{
	FRandomTree Random(static_cast<uint32>(GetParam()));
	TUniquePtr<FNode> Model = Random.MakeNode(5);
	Model->Kind = EKind::Overlay;
	Model->Children.Add(Random.MakeNode(4));
	FTestTree Live(Build(*Model, true));
	Live.Run();
	for (int32 Step = 0; Step < 60 && !testing::Test::HasFailure(); ++Step)
	{
		const TArray<Host::FDrawElement> Before = Live.GetElements();
		Live.Root.ClearDamage();
		for (int32 Count = 1 + Random.Below(3); Count > 0; --Count)
		{
			Edit(*Model, Random);
		}
		Live.RunKeepingDamage();

		FTestTree Fresh(Build(*Model, false));
		Fresh.Run();
		const std::vector<std::string> Actual = Describe(Live.GetElements());
		ASSERT_EQ(Actual, Describe(Fresh.GetElements())) << "after step " << Step;
		ExpectDamageCovers(Live, Live.GetElements(), Describe(Before));
		ExpectDamageCovers(Live, Before, Actual);
		ExpectDamageWhereOrderChanged(Live, Describe(Before), Live.GetElements(), Actual);
		ExpectSameHits(Live, Fresh, Random);
		EXPECT_FALSE(Live.Run()) << "the picture is at rest";
	}
}

INSTANTIATE_TEST_SUITE_P(Seeds, IncrementalTest, testing::Range(1, 41));
