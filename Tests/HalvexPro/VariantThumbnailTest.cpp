#include "ConfiguratorTest.h"

#include "Engine/Texture2D.h"
#include "ExpectedLog.h"
#include "Host/BackgroundThreads.h"
#include "Images/HalvexImageSubsystem.h"
#include "LoopbackServer.h"
#include "TestPictures.h"
#include "UObject/UObjectGlobals.h"
#include "WaitUntil.h"

using Host::FExpectedLog;

namespace
{
	/** A handler whose products have pictures on a server of this machine: Oak, Marble, and Slate, whose picture is not there. */
	class FVariantThumbnailTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Host::FEngineTest::SetUp();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
			Server.Serve("/oak.png", Picture(8, 4));
			Server.Serve("/marble.png", Picture(6, 6));
			Asset.Reset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Host::TestCatalogue::Make(), { At(TEXT("Oak"), "/oak.png"), At(TEXT("Marble"), "/marble.png"), At(TEXT("Slate"), "/nowhere.png") }));
			Handler.Reset(NewObject<UHalvexVariantHandler>());
			Handler->SetVariantConfigurator(Asset.Get());
			Listener.Reset(NewObject<UVariantListener>());
			Listener->ListenTo(*Handler);
		}

		virtual void TearDown() override
		{
			Listener.Reset();
			Handler.Reset();
			Asset.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
			EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FBackgroundThreads::GetNumPending() == 0; }));
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
			Host::FEngineTest::TearDown();
		}

		static Host::FServerReply Picture(int32 Width, int32 Height)
		{
			Host::FServerReply Reply;
			Reply.Body = Host::TestPictures::Make(Width, Height, FColor::Red);
			return Reply;
		}

		FProjectImage At(const TCHAR* Key, const char* Path) const
		{
			FProjectImage Image;
			Image.ImageId = FName(Key);
			Image.Address = Server.GetUrl(Path);
			return Image;
		}

		/** Whether the picture is there. */
		bool Get(const TCHAR* Variant)
		{
			UTexture2D* Thumbnail = nullptr;
			const bool bThere = Handler->GetVariantThumbnail(Thumbnail, FName(Variant));
			EXPECT_EQ(bThere, Thumbnail != nullptr);
			return bThere;
		}

		/** What is told until something is. */
		std::string WaitToHear()
		{
			FString Story;
			EXPECT_TRUE(Host::WaitUntil(Loop, [&] { Story += Listener->TakeStory(); return !Story.IsEmpty(); }));
			return Host::ToStd(Story);
		}

		Host::FLoopbackServer Server;
		TStrongObjectPtr<UHalvexConfiguratorDataAsset> Asset;
		TStrongObjectPtr<UHalvexVariantHandler> Handler;
		TStrongObjectPtr<UVariantListener> Listener;
	};

	TEST_F(FVariantThumbnailTest, ArrivesLaterAndIsThereFromThenOn)
	{
		EXPECT_FALSE(Get(TEXT("Oak"))) << "nothing waits for it";
		EXPECT_FALSE(Get(TEXT("Oak")));
		EXPECT_EQ(WaitToHear(), "thumbnail Oak 8x4; ");
		EXPECT_TRUE(Get(TEXT("Oak")));
		EXPECT_EQ(Server.GetVisits("/oak.png"), 1);
	}

	TEST_F(FVariantThumbnailTest, ThatFailsIsOneLineAndToldAndNotAskedForAgain)
	{
		const FExpectedLog Refused(TEXT("/nowhere.png is not shown: the server answered 404."));
		EXPECT_FALSE(Get(TEXT("Slate")));
		EXPECT_EQ(WaitToHear(), "thumbnail Slate none; ");
		EXPECT_FALSE(Get(TEXT("Slate")));
		Loop.RunUntilIdle();
		EXPECT_EQ(Server.GetVisits("/nowhere.png"), 1);
	}

	TEST_F(FVariantThumbnailTest, FailedOneIsAskedForAgainWithTheNextCatalogue)
	{
		const FExpectedLog Refused(TEXT("the server answered 404"));
		Get(TEXT("Slate"));
		WaitToHear();
		Server.Serve("/nowhere.png", Picture(2, 2));
		Asset->SetCatalogue(Host::TestCatalogue::Make());
		Listener->TakeStory();
		EXPECT_FALSE(Get(TEXT("Slate")));
		EXPECT_EQ(WaitToHear(), "thumbnail Slate 2x2; ");
	}

	TEST_F(FVariantThumbnailTest, ImageThatTheProjectDoesNotHaveIsOneLine)
	{
		const FExpectedLog Warning(TEXT("there is no image 'White'"));
		EXPECT_FALSE(Get(TEXT("White")));
		EXPECT_FALSE(Get(TEXT("White")));
	}

	TEST_F(FVariantThumbnailTest, ProductWithoutAnImageHasNone)
	{
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories[0].Variants[0].Product.Image = FName();
		Asset->SetCatalogue(Catalogue);
		EXPECT_FALSE(Get(TEXT("Oak")));
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
	}

	TEST_F(FVariantThumbnailTest, OnesOnTheirWayAreGivenUpWithTheCatalogue)
	{
		Server.Hold();
		Get(TEXT("Oak"));
		Get(TEXT("Marble"));
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 2);
		Handler->SetVariantConfigurator(nullptr);
		Server.Release();
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Loop.RunUntilIdle();
		EXPECT_EQ(Host::ToStd(Listener->TakeStory()), "variants; looks; ");
	}

	TEST_F(FVariantThumbnailTest, OneThatNobodyShowsComesFromTheCacheOrIsFetchedAnew)
	{
		Get(TEXT("Oak"));
		WaitToHear();
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Get(TEXT("Oak"))) << "it is gone";
		EXPECT_EQ(WaitToHear(), "thumbnail Oak 8x4; ");
	}

	TEST_F(FVariantThumbnailTest, HandlerThatIsGoneGivesItsDownloadsUp)
	{
		Server.Hold();
		Get(TEXT("Oak"));
		Handler.Reset();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Server.Release();
	}
}
