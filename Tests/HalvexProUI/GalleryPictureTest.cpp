#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "Widgets/SWindow.h"

namespace
{
	struct FGalleryCase
	{
		const TCHAR* Screen;
		const TCHAR* Style;
		int32 Scale;
	};

	/** Shows a screen of the gallery in a style and at a scale. */
	class FGalleryPictureTest : public Host::FEngineTest, public testing::WithParamInterface<FGalleryCase>
	{
	protected:
		static void UseStyle(const TCHAR* Name)
		{
			GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = FSoftObjectPath(FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Name, Name));
			UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		}

		void UseWindow(FVector2D Size, float Scale)
		{
			Loop.GetWindow()->Resize(Size);
			Loop.GetWindow()->SetDPIScaleFactor(Scale);
		}

		virtual void TearDown() override
		{
			UseStyle(TEXT("UIStyle_Hx_Light"));
			UseWindow(FVector2D(800.0, 600.0), 1.0f);
			Host::FEngineTest::TearDown();
		}
	};

	TEST_P(FGalleryPictureTest, LooksAsItWasApproved)
	{
		const FGalleryCase& Case = GetParam();
		UseStyle(Case.Style);
		UseWindow(FVector2D(1280.0, 800.0) * Case.Scale, static_cast<float>(Case.Scale));
		UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/HalvexPro/Screens/%s.%s_C"), Case.Screen, Case.Screen));
		CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
		Loop.RunUntilIdle();
		Host::FPicture Picture;
		ASSERT_TRUE(Loop.TakePicture(Picture));
		Host::ExpectGolden(FString::Printf(TEXT("%s-%s-%dx"), Case.Screen, Case.Style, Case.Scale), Picture);
	}

	INSTANTIATE_TEST_SUITE_P(Screens, FGalleryPictureTest, testing::Values(
		FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Light"), 2 },
		FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Dark"), 1 }, FGalleryCase{ TEXT("Gallery"), TEXT("UIStyle_Hx_Dark"), 2 },
		FGalleryCase{ TEXT("Type"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Type"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Icons"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Icons"), TEXT("UIStyle_Hx_Dark"), 1 },
		FGalleryCase{ TEXT("Shapes"), TEXT("UIStyle_Hx_Light"), 1 }, FGalleryCase{ TEXT("Shapes"), TEXT("UIStyle_Hx_Dark"), 1 }),
		[](const testing::TestParamInfo<FGalleryCase>& Info)
		{
			return Host::ToStd(FString::Printf(TEXT("%s_%s_%dx"), Info.param.Screen, Info.param.Style, Info.param.Scale));
		});
}
