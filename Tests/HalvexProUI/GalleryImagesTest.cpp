#include "KitTest.h"

#include "Components/CanvasPanel.h"
#include "Components/WrapBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Images/HalvexImageSubsystem.h"
#include "LoopbackServer.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "TestPictures.h"
#include "UObject/UnrealType.h"
#include "WaitUntil.h"
#include "Widgets/HxBorder.h"
#include "Widgets/SWindow.h"

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	/** Pictures as the gallery shows them. */
	class FGalleryImagesTest : public FKitTest
	{
	protected:
		virtual void TearDown() override
		{
			UseStyle(TEXT("UIStyle_Hx_Light"));
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
			FKitTest::TearDown();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			// What was given up by that is told in a frame.
			Loop.RunUntilIdle();
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
		}

		static void UseStyle(const TCHAR* Name)
		{
			GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = FSoftObjectPath(FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Name, Name));
			UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		}

		void ExpectPicture(const FString& Name)
		{
			Host::FPicture Picture;
			ASSERT_TRUE(Loop.TakePicture(Picture));
			Host::ExpectGolden(Name, Picture);
		}

		void ShowPage(const TCHAR* Style)
		{
			UseStyle(Style);
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Screens/Images.Images_C"));
			CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
			ASSERT_TRUE(Host::WaitUntil(Loop, [] { return UHalvexImageSubsystem::Get()->GetNumTransfers() == 0; }));
			Loop.RunUntilIdle();
		}

		/** Adds a framed picture of the server to the screen. */
		void AddSample(UWrapBox& Panel, const TCHAR* Name, const TCHAR* Caption, const char* Path)
		{
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Gallery/SampleImage.SampleImage_C"));
			UUserWidget* Sample = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class, FName(Name));
			CastFieldChecked<FTextProperty>(Class->FindPropertyByName(TEXT("Caption")))->SetPropertyValue_InContainer(Sample, FText::FromString(Caption));
			CastFieldChecked<FStrProperty>(Class->FindPropertyByName(TEXT("Address")))->SetPropertyValue_InContainer(Sample, Server.GetUrl(Path));
			Panel.AddChild(Sample);
		}

		static FServerReply Picture(FColor Colour)
		{
			FServerReply Reply;
			Reply.Body = Host::TestPictures::Make(160, 100, Colour);
			return Reply;
		}

		Host::FLoopbackServer Server;
	};

	TEST_F(FGalleryImagesTest, PageShowsEachStateInTheLightStyle)
	{
		const FExpectedLog Missing(TEXT("Nowhere.png is not shown: there is no such file"));
		ShowPage(TEXT("UIStyle_Hx_Light"));
		ExpectPicture(TEXT("Images-UIStyle_Hx_Light-1x"));
	}

	TEST_F(FGalleryImagesTest, PageShowsEachStateInTheDarkStyle)
	{
		const FExpectedLog Missing(TEXT("Nowhere.png is not shown: there is no such file"));
		ShowPage(TEXT("UIStyle_Hx_Dark"));
		ExpectPicture(TEXT("Images-UIStyle_Hx_Dark-1x"));
	}

	TEST_F(FGalleryImagesTest, SlowFailingAndBrokenPicturesOfAServerShowTheirStates)
	{
		Server.Serve("/good.png", Picture(FColor(42, 157, 143)));
		FServerReply Slow;
		Slow.Fault = EServerFault::Silence;
		Server.Serve("/slow.png", Slow);
		FServerReply Broken = Picture(FColor::Red);
		Broken.Body.resize(Broken.Body.size() / 2);
		Server.Serve("/broken.png", Broken);
		FServerReply Page;
		Page.Body = "<html>Sign in first</html>";
		Server.Serve("/page.png", Page);
		const FExpectedLog Missing(TEXT("/missing.png is not shown: the server answered 404"));
		const FExpectedLog Damaged(TEXT("/broken.png: PNG: "));
		const FExpectedLog NoPicture(TEXT("/page.png is not shown: the content is no picture"));

		Place(*Make<UHxBorder>(), 0.0, 0.0, FVector2D(800.0, 600.0));
		UWrapBox* Panel = Make<UWrapBox>();
		Panel->SetInnerSlotPadding(FVector2D(20.0, 20.0));
		Place(*Panel, 20.0, 20.0, FVector2D(760.0, 560.0));
		AddSample(*Panel, TEXT("Arrived"), TEXT("Arrived"), "/good.png");
		AddSample(*Panel, TEXT("Slow"), TEXT("Slow"), "/slow.png");
		AddSample(*Panel, TEXT("Missing"), TEXT("Missing"), "/missing.png");
		AddSample(*Panel, TEXT("Broken"), TEXT("Broken"), "/broken.png");
		AddSample(*Panel, TEXT("APage"), TEXT("A page in its place"), "/page.png");
		Show();
		ASSERT_TRUE(Host::WaitUntil(Loop, [] { return UHalvexImageSubsystem::Get()->GetNumTransfers() == 1; })) << "all but the slow one have ended";
		Loop.RunUntilIdle();
		ExpectPicture(TEXT("ImagesOfAServer"));
	}
}
