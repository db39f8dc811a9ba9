#include "EngineTest.h"

#include "Blueprint/WidgetTree.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "RecordingUserWidget.h"

namespace
{
	class FUserWidgetTest : public Host::FEngineTest
	{
	protected:
		static URecordingUserWidget* MakeWidget()
		{
			return CreateWidget<URecordingUserWidget>(GEngine->GetGameInstance());
		}

		static std::string ListEvents(URecordingUserWidget& Widget)
		{
			const FString Joined = FString::Join(Widget.Events, TEXT(" "));
			Widget.Events.Empty();
			return Host::ToStd(Joined);
		}
	};

	TEST_F(FUserWidgetTest, IsInitialisedOnceAndConstructedWhenShown)
	{
		URecordingUserWidget* Widget = MakeWidget();
		EXPECT_EQ(ListEvents(*Widget), "OnInitialized Initialize");
		EXPECT_FALSE(Widget->IsConstructed());
		Widget->AddToViewport();
		EXPECT_EQ(ListEvents(*Widget), "Rebuild InitializeAgain PreConstruct Construct");
		EXPECT_TRUE(Widget->IsInViewport());
		Widget->RemoveFromParent();
		EXPECT_EQ(ListEvents(*Widget), "Destruct");
		EXPECT_FALSE(Widget->IsInViewport());
	}

	TEST_F(FUserWidgetTest, IsConstructedAnewEachTimeItIsShown)
	{
		URecordingUserWidget* Widget = MakeWidget();
		Widget->AddToViewport();
		Widget->RemoveFromParent();
		Widget->Events.Empty();
		Widget->AddToViewport();
		EXPECT_EQ(ListEvents(*Widget), "Rebuild InitializeAgain PreConstruct Construct");
		Widget->RemoveFromParent();
	}

	TEST_F(FUserWidgetTest, InTheDesignerItIsOnlyPreConstructed)
	{
		URecordingUserWidget* Widget = NewObject<URecordingUserWidget>();
		Widget->SetDesignerFlags(EWidgetDesignFlags::Designing);
		{
			const TSharedRef<SWidget> Slate = Widget->TakeWidget();
			EXPECT_EQ(ListEvents(*Widget), "Rebuild Initialize PreConstructInDesigner");
		}
		EXPECT_EQ(ListEvents(*Widget), "");
	}

	TEST_F(FUserWidgetTest, WhatATreeMakesInTheDesignerIsAtDesignTime)
	{
		URecordingUserWidget* Parent = NewObject<URecordingUserWidget>();
		Parent->SetDesignerFlags(EWidgetDesignFlags::Designing);
		Parent->Initialize();
		URecordingUserWidget* Child = Parent->WidgetTree->ConstructWidget<URecordingUserWidget>();
		EXPECT_EQ(ListEvents(*Child), "Initialize");
		EXPECT_TRUE(Child->IsDesignTime());
		EXPECT_TRUE(Parent->WidgetTree->ConstructWidget<UTextBlock>()->IsDesignTime());
		EXPECT_FALSE(MakeWidget()->WidgetTree->ConstructWidget<UTextBlock>()->IsDesignTime());
	}

	TEST_F(FUserWidgetTest, WithoutAPlayerItIsNotInitialisedForPlay)
	{
		URecordingUserWidget* Widget = NewObject<URecordingUserWidget>();
		EXPECT_TRUE(Widget->Initialize());
		EXPECT_FALSE(Widget->Initialize());
		EXPECT_EQ(ListEvents(*Widget), "Initialize InitializeAgain");
	}

	TEST_F(FUserWidgetTest, ChildrenAreConstructedBeforeTheirParent)
	{
		URecordingUserWidget* Parent = MakeWidget();
		URecordingUserWidget* Child = Parent->WidgetTree->ConstructWidget<URecordingUserWidget>();
		Parent->WidgetTree->RootWidget = Child;
		Parent->Events.Empty();
		Child->Events.Empty();
		Parent->AddToViewport();
		EXPECT_EQ(ListEvents(*Child), "Rebuild InitializeAgain PreConstruct Construct");
		EXPECT_EQ(ListEvents(*Parent), "Rebuild InitializeAgain PreConstruct Construct");
		Parent->RemoveFromParent();
		EXPECT_EQ(ListEvents(*Child), "Destruct");
	}

	TEST_F(FUserWidgetTest, AbstractClassesAreRefused)
	{
		const Host::FExpectedLog Refused(TEXT("is abstract"));
		EXPECT_EQ(CreateWidget<UUserWidget>(GEngine->GetGameInstance()), nullptr);
	}

	TEST_F(FUserWidgetTest, BeingShownKeepsItAlive)
	{
		TWeakObjectPtr<URecordingUserWidget> Widget = MakeWidget();
		Widget->AddToViewport();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		ASSERT_TRUE(Widget.IsValid());
		Widget->RemoveFromParent();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Widget.IsValid());
	}

	TEST_F(FUserWidgetTest, TreesVisitTheRootFirstAndStayInTheirWidget)
	{
		URecordingUserWidget* Parent = MakeWidget();
		UVerticalBox* Box = Parent->WidgetTree->ConstructWidget<UVerticalBox>(UVerticalBox::StaticClass(), TEXT("Box"));
		URecordingUserWidget* Inner = Parent->WidgetTree->ConstructWidget<URecordingUserWidget>(URecordingUserWidget::StaticClass(), TEXT("Inner"));
		Inner->WidgetTree->RootWidget = Inner->WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("Deep"));
		Parent->WidgetTree->RootWidget = Box;
		Box->AddChild(Parent->WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("First")));
		Box->AddChild(Inner);
		std::string Names;
		Parent->WidgetTree->ForEachWidget([&Names](UWidget* Widget) { Names += Host::ToStd(Widget->GetName()) + " "; });
		EXPECT_EQ(Names, "Box First Inner ");
		Names.clear();
		Parent->WidgetTree->ForEachWidgetAndDescendants([&Names](UWidget* Widget) { Names += Host::ToStd(Widget->GetName()) + " "; });
		EXPECT_EQ(Names, "Box First Inner Deep ");
		EXPECT_EQ(Parent->GetWidgetFromName(TEXT("First")), Box->GetChildAt(0));
		EXPECT_EQ(Parent->GetWidgetFromName(TEXT("Deep")), nullptr);
	}
}
