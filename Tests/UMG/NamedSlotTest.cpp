#include "EngineTest.h"

#include "Components/Border.h"
#include "Components/NamedSlot.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"

namespace
{
	class FNamedSlotTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Hole = NewObject<UNamedSlot>();
			Filling = NewObject<UBorder>();
		}

		void Show()
		{
			GEngine->GameViewport->AddViewportWidgetContent(Hole->TakeWidget());
			Loop.RunUntilIdle();
		}

		TSharedRef<SWidget> GetInside() const { return Hole->GetCachedWidget()->GetChildren()->GetChildAt(0); }

		UNamedSlot* Hole = nullptr;
		UBorder* Filling = nullptr;
	};

	TEST_F(FNamedSlotTest, IsABoxAroundItsContent)
	{
		Hole->SetContent(Filling);
		Show();
		EXPECT_EQ(Hole->GetCachedWidget()->GetType(), FName(TEXT("SBox")));
		EXPECT_EQ(GetInside(), Filling->GetCachedWidget());
		EXPECT_FALSE(Hole->CanAddMoreChildren());
	}

	TEST_F(FNamedSlotTest, EmptyOneTakesNoRoom)
	{
		UVerticalBox* Box = NewObject<UVerticalBox>();
		Box->AddChild(Hole);
		GEngine->GameViewport->AddViewportWidgetContent(Box->TakeWidget());
		Loop.RunUntilIdle();
		EXPECT_EQ(Hole->GetDesiredSize(), FVector2D(0.0, 0.0));
	}

	TEST_F(FNamedSlotTest, ContentComesAndGoesWhileItIsShown)
	{
		Show();
		Hole->SetContent(Filling);
		EXPECT_EQ(GetInside(), Filling->GetCachedWidget());
		UBorder* Other = NewObject<UBorder>();
		Hole->SetContent(Other);
		EXPECT_EQ(GetInside(), Other->GetCachedWidget());
		EXPECT_FALSE(Filling->GetCachedWidget());
		Hole->SetContent(nullptr);
		EXPECT_EQ(Hole->GetContent(), nullptr);
		EXPECT_FALSE(Other->GetCachedWidget());
	}

	TEST_F(FNamedSlotTest, LetsThePointerThroughWhereItsContentIsNot)
	{
		EXPECT_EQ(Hole->GetVisibility(), ESlateVisibility::SelfHitTestInvisible);
		Show();
		Driver.MoveTo(FVector2D(400.0, 300.0));
		EXPECT_FALSE(Hole->IsHovered());
		Hole->SetContent(Filling);
		Loop.RunUntilIdle();
		EXPECT_TRUE(Filling->IsHovered());
		EXPECT_TRUE(Hole->IsHovered()) << "what it holds is over it";
	}

	TEST_F(FNamedSlotTest, ReleaseLetsTheBoxGo)
	{
		Hole->SetContent(Filling);
		TSharedPtr<SWidget> Root = Hole->TakeWidget();
		const TWeakPtr<SWidget> Weak = Root;
		Root.Reset();
		EXPECT_TRUE(Weak.IsValid()) << "the slot holds it";
		Hole->ReleaseSlateResources(true);
		EXPECT_FALSE(Weak.IsValid());
		EXPECT_FALSE(Filling->GetCachedWidget());
	}
}
