#include "KitTest.h"

#include "Components/CanvasPanel.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "GoldenPicture.h"
#include "Images/HalvexImageSubsystem.h"
#include "InteractiveSpot/HxInteractiveSpot.h"
#include "ProjectStyle.h"
#include "UserWidget/InteractSpotPlacement/HxISPWidget.h"
#include "WaitUntil.h"
#include "Widgets/HxBorder.h"
#include "Widgets/HxImage.h"

namespace
{
	/** The widget that spots have: markers at rest and under the mouse, a card with a picture, then one without. */
	class FSpotPictureTest : public FKitTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void TearDown() override
		{
			for (AHxInteractiveSpot* Spot : Spots)
			{
				Spot->Destroy();
			}
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			FKitTest::TearDown();
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
		}

		UHxISPWidget& AddSpot(const TCHAR* Title, const TCHAR* Description, double X, double Y)
		{
			AHxInteractiveSpot* const Spot = GEngine->GetGameInstance()->GetWorld()->SpawnActor<AHxInteractiveSpot>();
			Spots.Add(Spot);
			Spot->SpotData.Title = Title;
			Spot->SpotData.Description = Description;
			Spot->WidgetClass = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Spots/Spot.Spot_C"));
			UHxISPWidget& Widget = *CastChecked<UHxISPWidget>(Spot->GetISPWidget());
			Place(Widget, X, Y);
			return Widget;
		}

		TArray<AHxInteractiveSpot*> Spots;
	};

	TEST_P(FSpotPictureTest, LooksAsItWasApproved)
	{
		UseShippedStyle(GetParam());
		UHxBorder* const Ground = Make<UHxBorder>(TEXT("Ground"));
		Ground->ColorID.ColorID = TEXT("Third");
		Ground->ColorID.bUseContrast = false;
		Ground->ColorID.bOverrideOpacity = true;
		Ground->ColorID.OpacityOverride = 0.5f;
		Ground->UpdateStyle();
		Place(*Ground, 0.0, 0.0, FVector2D(740.0, 320.0));
		AddSpot(TEXT("At rest"), TEXT(""), 20.0, 20.0);
		UHxISPWidget& Hovered = AddSpot(TEXT("Hovered"), TEXT(""), 20.0, 80.0);
		UHxISPWidget& WithPicture = AddSpot(TEXT("Café Kaimauer"), TEXT("Breakfast on the steps, from seven in the morning."), 80.0, 20.0);
		UHxISPWidget& Without = AddSpot(TEXT("A title that is longer than one line of the card"), TEXT("Every twelve minutes to the old town."), 410.0, 20.0);
		Show();
		WithPicture.OwnISPSpot->Picture.Address = TEXT("file:Gallery/Pictures/Quay.png");
		WithPicture.SelectOwnISPSpot();
		UHxImage* const Picture = CastChecked<UHxImage>(WithPicture.GetWidgetFromName(TEXT("Picture")));
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Picture->GetVisibility() == ESlateVisibility::HitTestInvisible; }));
		Host::FPicture First;
		Settle();
		ASSERT_TRUE(Driver.TakePictureOf(TEXT("Ground"), First));
		Without.SelectOwnISPSpot();
		MoveTo(Hovered);
		Driver.Wait(0.2);
		Host::FPicture Second;
		ASSERT_TRUE(Driver.TakePictureOf(TEXT("Ground"), Second)) << Host::ToStd(Driver.GetError());
		Host::ExpectGolden(FString::Printf(TEXT("SpotWithPicture-%s"), GetParam()), First);
		Host::ExpectGolden(FString::Printf(TEXT("Spot-%s"), GetParam()), Second);
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FSpotPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
