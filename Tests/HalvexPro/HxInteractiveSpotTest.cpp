#include "SceneTest.h"

#include "InteractiveSpot/HxInteractiveSpot.h"
#include "SpotWidget.h"

namespace
{
	class FHxInteractiveSpotTest : public FSceneTest
	{
	protected:
		AHxInteractiveSpot* AddSpot(const TCHAR* Title)
		{
			AHxInteractiveSpot* const Spot = World->SpawnActor<AHxInteractiveSpot>();
			Spot->SpotData.Title = Title;
			Spot->OnISPSelectionChange.AddDynamic(Listener.Get(), &USceneListener::ReceivedSpot);
			return Spot;
		}
	};

	TEST_F(FHxInteractiveSpotTest, SelectingASpotUnselectsTheOneBefore)
	{
		AHxInteractiveSpot* const First = AddSpot(TEXT("Quay"));
		AHxInteractiveSpot* const Second = AddSpot(TEXT("Garden"));
		First->SelectISP();
		First->SelectISP();
		EXPECT_EQ(Heard(), "Quay on; ");
		Second->SelectISP();
		EXPECT_EQ(Heard(), "Quay off; Garden on; ");
		EXPECT_FALSE(First->IsISPSelected());
		EXPECT_TRUE(Second->IsISPSelected());
		Second->UnSelectISP();
		Second->UnSelectISP();
		EXPECT_EQ(Heard(), "Garden off; ");
	}

	TEST_F(FHxInteractiveSpotTest, WidgetIsMadeOnceAndToldOfItsSpot)
	{
		AHxInteractiveSpot* const Spot = AddSpot(TEXT("Quay"));
		EXPECT_EQ(Spot->GetISPWidget(), nullptr);
		Spot->WidgetClass = USpotWidget::StaticClass();
		USpotWidget* const Widget = Cast<USpotWidget>(Spot->GetISPWidget());
		ASSERT_NE(Widget, nullptr);
		EXPECT_EQ(Widget->Spot, Spot);
		EXPECT_EQ(Spot->GetISPWidget(), Widget);
	}

	TEST_F(FHxInteractiveSpotTest, WidgetThatDoesNotAskForItsSpotIsShownAllTheSame)
	{
		AHxInteractiveSpot* const Spot = AddSpot(TEXT("Quay"));
		Spot->WidgetClass = UPlainSpotWidget::StaticClass();
		EXPECT_NE(Spot->GetISPWidget(), nullptr);
	}

	TEST_F(FHxInteractiveSpotTest, SpotStandsWhereItWasPut)
	{
		AHxInteractiveSpot* const Spot = AddSpot(TEXT("Quay"));
		EXPECT_TRUE(Spot->SetActorLocation(FVector(1.0, 2.0, 3.0)));
		EXPECT_EQ(Spot->GetActorLocation(), FVector(1.0, 2.0, 3.0));
	}
}
