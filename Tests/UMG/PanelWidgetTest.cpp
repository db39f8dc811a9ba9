#include "EngineTest.h"

#include "Components/Border.h"
#include "Components/HorizontalBox.h"
#include "Components/Overlay.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Widgets/SBoxPanel.h"

namespace
{
	using FPanelWidgetTest = Host::FEngineTest;

	TEST_F(FPanelWidgetTest, ChildrenKnowTheirPanelAndSlot)
	{
		UVerticalBox* Box = NewObject<UVerticalBox>();
		UTextBlock* Text = NewObject<UTextBlock>();
		UPanelSlot* Slot = Box->AddChild(Text);
		EXPECT_TRUE(Slot->IsA<UVerticalBoxSlot>());
		EXPECT_EQ(Text->GetParent(), Box);
		EXPECT_EQ(Text->Slot, Slot);
		EXPECT_EQ(Box->GetChildIndex(Text), 0);
		EXPECT_EQ(Box->GetChildAt(1), nullptr);
		EXPECT_TRUE(Box->HasChild(Text));
	}

	TEST_F(FPanelWidgetTest, AddingAChildTakesItOutOfItsOldPanel)
	{
		UVerticalBox* First = NewObject<UVerticalBox>();
		UVerticalBox* Second = NewObject<UVerticalBox>();
		UTextBlock* Text = NewObject<UTextBlock>();
		First->AddChild(Text);
		Second->AddChild(Text);
		EXPECT_EQ(First->GetChildrenCount(), 0);
		EXPECT_EQ(Text->GetParent(), Second);
	}

	TEST_F(FPanelWidgetTest, ContentWidgetsTakeOneChild)
	{
		UBorder* Border = NewObject<UBorder>();
		EXPECT_NE(Border->AddChild(NewObject<UTextBlock>()), nullptr);
		EXPECT_EQ(Border->AddChild(NewObject<UTextBlock>()), nullptr);
		UTextBlock* Replacement = NewObject<UTextBlock>();
		Border->SetContent(Replacement);
		EXPECT_EQ(Border->GetContent(), Replacement);
		EXPECT_EQ(Border->GetChildrenCount(), 1);
	}

	TEST_F(FPanelWidgetTest, LiveSlateSideFollowsItsChildren)
	{
		UVerticalBox* Box = NewObject<UVerticalBox>();
		const TSharedRef<SWidget> Slate = Box->TakeWidget();
		UTextBlock* First = NewObject<UTextBlock>();
		UTextBlock* Last = NewObject<UTextBlock>();
		Box->AddChild(First);
		Box->AddChild(Last);
		EXPECT_EQ(Slate->GetChildren()->Num(), 2);
		UTextBlock* Middle = NewObject<UTextBlock>();
		Box->InsertChildAt(1, Middle);
		ASSERT_EQ(Slate->GetChildren()->Num(), 3);
		EXPECT_EQ(Slate->GetChildren()->GetChildAt(1), Middle->TakeWidget());
		EXPECT_EQ(Slate->GetChildren()->GetChildAt(2), Last->TakeWidget());
		Box->RemoveChild(First);
		EXPECT_EQ(Slate->GetChildren()->Num(), 2);
		Box->ClearChildren();
		EXPECT_EQ(Slate->GetChildren()->Num(), 0);
	}

	TEST_F(FPanelWidgetTest, RemovedChildrenDropTheirSlateSide)
	{
		UVerticalBox* Box = NewObject<UVerticalBox>();
		UTextBlock* Text = NewObject<UTextBlock>();
		Box->AddChild(Text);
		const TSharedRef<SWidget> Slate = Box->TakeWidget();
		EXPECT_TRUE(Text->IsConstructed());
		Box->RemoveChild(Text);
		EXPECT_FALSE(Text->IsConstructed());
		EXPECT_EQ(Text->Slot, nullptr);
	}

	TEST_F(FPanelWidgetTest, ClearedChildrenKnowNoPanelAndCanBeAddedAgain)
	{
		UVerticalBox* Box = NewObject<UVerticalBox>();
		const TSharedRef<SWidget> Slate = Box->TakeWidget();
		UTextBlock* First = NewObject<UTextBlock>();
		UTextBlock* Last = NewObject<UTextBlock>();
		UPanelSlot* FirstSlot = Box->AddChild(First);
		Box->AddChild(Last);
		Box->ClearChildren();
		EXPECT_EQ(Box->GetChildrenCount(), 0);
		EXPECT_EQ(FirstSlot->Parent, nullptr);
		EXPECT_EQ(FirstSlot->Content, nullptr);
		EXPECT_EQ(First->GetParent(), nullptr);
		EXPECT_FALSE(First->IsConstructed());
		EXPECT_FALSE(Last->IsConstructed());
		Box->AddChild(Last);
		EXPECT_EQ(Slate->GetChildren()->Num(), 1);
	}

	TEST_F(FPanelWidgetTest, SizeBoxOverridesTheSizeAndGivesItBack)
	{
		USizeBox* Box = NewObject<USizeBox>();
		const TSharedRef<SWidget> Slate = Box->TakeWidget();
		Box->SetWidthOverride(120.0f);
		Box->SetHeightOverride(40.0f);
		Box->ForceLayoutPrepass();
		EXPECT_EQ(Box->GetDesiredSize(), FVector2D(120.0, 40.0));
		Box->ClearWidthOverride();
		Box->ForceLayoutPrepass();
		EXPECT_EQ(Box->GetDesiredSize(), FVector2D(0.0, 40.0));
	}

	TEST_F(FPanelWidgetTest, DesignerFlagsReachNewChildren)
	{
		UOverlay* Overlay = NewObject<UOverlay>();
		Overlay->SetDesignerFlags(EWidgetDesignFlags::Designing);
		UTextBlock* Text = NewObject<UTextBlock>();
		Overlay->AddChild(Text);
		EXPECT_TRUE(Text->IsDesignTime());
	}
}
