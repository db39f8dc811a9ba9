#include "EngineTest.h"

#include "AnimatedUserWidget.h"
#include "Blueprint/SlateBlueprintLibrary.h"
#include "Blueprint/WidgetLayoutLibrary.h"
#include "Components/Image.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWindow.h"

namespace
{
	class FBlueprintLibraryTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			Loop.GetWindow()->SetDPIScaleFactor(1.0f);
			FEngineTest::TearDown();
		}
	};

	TEST_F(FBlueprintLibraryTest, PositionsGoToTheUnitsOfAWidgetAndBack)
	{
		UAnimatedUserWidget* Widget = CreateWidget<UAnimatedUserWidget>(GEngine->GetGameInstance());
		Widget->Picture->SetRenderScale(FVector2D(2.0, 2.0));
		Widget->Picture->SetRenderTransformPivot(FVector2D(0.0, 0.0));
		Widget->Picture->SetRenderTranslation(FVector2D(100.0, 50.0));
		Widget->AddToViewport();
		Loop.RunUntilIdle();
		const FGeometry& Geometry = Widget->Picture->GetCachedGeometry();
		EXPECT_EQ(USlateBlueprintLibrary::AbsoluteToLocal(Geometry, FVector2D(110.0, 70.0)), FVector2D(5.0, 10.0));
		EXPECT_EQ(USlateBlueprintLibrary::LocalToAbsolute(Geometry, FVector2D(5.0, 10.0)), FVector2D(110.0, 70.0));
		EXPECT_EQ(USlateBlueprintLibrary::GetAbsoluteSize(Geometry), USlateBlueprintLibrary::GetLocalSize(Geometry) * 2.0);
		EXPECT_TRUE(USlateBlueprintLibrary::IsUnderLocation(Geometry, FVector2D(101.0, 51.0)));
		EXPECT_FALSE(USlateBlueprintLibrary::IsUnderLocation(Geometry, FVector2D(99.0, 51.0)));
	}

	TEST_F(FBlueprintLibraryTest, TheMouseIsWhereItWasMoved)
	{
		UObject* Context = GEngine->GetGameInstance();
		Loop.GetWindow()->SetDPIScaleFactor(2.0f);
		Loop.RunUntilIdle();
		Driver.MoveTo(FVector2D(120.0, 80.0));
		EXPECT_EQ(UWidgetLayoutLibrary::GetMousePositionOnPlatform(), FVector2D(120.0, 80.0));
		EXPECT_EQ(UWidgetLayoutLibrary::GetViewportScale(Context), 2.0f);
		EXPECT_EQ(UWidgetLayoutLibrary::GetMousePositionOnViewport(Context), FVector2D(60.0, 40.0));
		EXPECT_EQ(USlateBlueprintLibrary::GetLocalSize(UWidgetLayoutLibrary::GetViewportWidgetGeometry(Context)), FVector2D(400.0, 300.0));
	}

	TEST_F(FBlueprintLibraryTest, WithoutAViewportNothingIsAnywhere)
	{
		EXPECT_EQ(UWidgetLayoutLibrary::GetMousePositionOnViewport(nullptr), FVector2D(0.0, 0.0));
		EXPECT_EQ(UWidgetLayoutLibrary::GetViewportScale(nullptr), 1.0f);
	}
}
