#include "EngineTest.h"

#include "Components/TextBlock.h"
#include "RecordingWidget.h"
#include "UObject/UnrealType.h"
#include "Widgets/SWidget.h"

namespace
{
	class FWidgetTest : public Host::FEngineTest
	{
	protected:
		/** The widgets write into the test's list until they go, so they go first. */
		virtual void TearDown() override
		{
			Host::FEngineTest::TearDown();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		URecordingWidget* MakeWidget(const TCHAR* Label)
		{
			URecordingWidget* Widget = NewObject<URecordingWidget>();
			Widget->Events = &Events;
			Widget->Label = Label;
			return Widget;
		}

		/** What happened since the last question. */
		std::string ListEvents()
		{
			const FString Joined = FString::Join(Events, TEXT(" "));
			Events.Empty();
			return Host::ToStd(Joined);
		}

		TArray<FString> Events;
	};

	TEST_F(FWidgetTest, IsBuiltThenSynchronisedThenTold)
	{
		URecordingWidget* Widget = MakeWidget(TEXT("W"));
		const TSharedRef<SWidget> First = Widget->TakeWidget();
		EXPECT_EQ(ListEvents(), "W.Rebuild W.Synchronize W.Rebuilt");
		EXPECT_EQ(Widget->TakeWidget(), First);
		EXPECT_EQ(Widget->GetCachedWidget(), First);
		EXPECT_EQ(ListEvents(), "");
	}

	TEST_F(FWidgetTest, ChildrenAreBuiltAndSynchronisedAheadOfTheirParentsOwnProperties)
	{
		URecordingWidget* Parent = MakeWidget(TEXT("P"));
		Parent->SetContent(MakeWidget(TEXT("C")));
		ListEvents();
		const TSharedRef<SWidget> Slate = Parent->TakeWidget();
		EXPECT_EQ(ListEvents(), "P.Rebuild C.Rebuild C.Synchronize C.Rebuilt P.Synchronize P.Rebuilt");
	}

	TEST_F(FWidgetTest, ReleasingReachesTheChildrenWhenItIsAskedTo)
	{
		URecordingWidget* Parent = MakeWidget(TEXT("P"));
		URecordingWidget* Child = MakeWidget(TEXT("C"));
		Parent->SetContent(Child);
		const TSharedRef<SWidget> Slate = Parent->TakeWidget();
		ListEvents();
		Parent->ReleaseSlateResources(false);
		EXPECT_EQ(ListEvents(), "P.Release");
		EXPECT_FALSE(Parent->GetCachedWidget());
		EXPECT_TRUE(Child->GetCachedWidget());
		Parent->ReleaseSlateResources(true);
		EXPECT_EQ(ListEvents(), "C.Release P.Release");
		EXPECT_FALSE(Child->GetCachedWidget());
	}

	TEST_F(FWidgetTest, AfterAReleaseItIsBuiltAnew)
	{
		URecordingWidget* Widget = MakeWidget(TEXT("W"));
		const TSharedRef<SWidget> First = Widget->TakeWidget();
		Widget->ReleaseSlateResources(true);
		ListEvents();
		const TSharedRef<SWidget> Second = Widget->TakeWidget();
		EXPECT_NE(First, Second);
		EXPECT_EQ(ListEvents(), "W.Rebuild W.Synchronize W.Rebuilt");
	}

	TEST_F(FWidgetTest, SynchronisingBeforeItIsBuiltIsSafe)
	{
		URecordingWidget* Widget = MakeWidget(TEXT("W"));
		Widget->SynchronizeProperties();
		EXPECT_EQ(ListEvents(), "W.SynchronizeUnbuilt");
		EXPECT_FALSE(Widget->GetCachedWidget());
	}

	TEST_F(FWidgetTest, PropertiesSetBeforeItIsBuiltReachTheSlateSide)
	{
		UTextBlock* Widget = NewObject<UTextBlock>();
		Widget->SetVisibility(ESlateVisibility::HitTestInvisible);
		Widget->SetIsEnabled(false);
		Widget->SetRenderOpacity(0.5f);
		Widget->SetClipping(EWidgetClipping::ClipToBounds);
		Widget->SetRenderTranslation(FVector2D(3.0, 4.0));
		Widget->SetRenderTransformPivot(FVector2D(0.0, 1.0));
		const TSharedRef<SWidget> Slate = Widget->TakeWidget();
		EXPECT_EQ(Slate->GetVisibility(), EVisibility::HitTestInvisible);
		EXPECT_FALSE(Slate->IsEnabled());
		EXPECT_EQ(Slate->GetRenderOpacity(), 0.5f);
		EXPECT_EQ(Slate->GetClipping(), EWidgetClipping::ClipToBounds);
		ASSERT_TRUE(Slate->GetRenderTransform().IsSet());
		EXPECT_EQ(FVector2D(Slate->GetRenderTransform()->GetTranslation()), FVector2D(3.0, 4.0));
		EXPECT_EQ(FVector2D(Slate->GetRenderTransformPivot()), FVector2D(0.0, 1.0));
	}

	TEST_F(FWidgetTest, EachEditInTheDesignerSynchronisesOnce)
	{
		URecordingWidget* Widget = MakeWidget(TEXT("W"));
		Widget->SetDesignerFlags(EWidgetDesignFlags::Designing);
		const TSharedRef<SWidget> Slate = Widget->TakeWidget();
		ListEvents();
		FPropertyChangedEvent Event(UWidget::StaticClass()->FindPropertyByName(TEXT("RenderOpacity")));
		Widget->PostEditChangeProperty(Event);
		EXPECT_EQ(ListEvents(), "W.Synchronize");
		Widget->SetDesignerFlags(EWidgetDesignFlags::None);
		Widget->PostEditChangeProperty(Event);
		EXPECT_EQ(ListEvents(), "");
	}
}
