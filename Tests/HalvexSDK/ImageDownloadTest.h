#pragma once

#include "EngineTest.h"

#include "Engine/Engine.h"
#include "Engine/Texture2D.h"
#include "Host/BackgroundThreads.h"
#include "ImageListener.h"
#include "Images/HalvexImageDownloader.h"
#include "Images/HalvexImageSettings.h"
#include "Images/HalvexImageSubsystem.h"
#include "LoopbackServer.h"
#include "TestPictures.h"
#include "UObject/FieldIterator.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "WaitUntil.h"

/** Downloads pictures from a server on this machine, with caches that are empty in the beginning. */
class FImageDownloadTest : public Host::FEngineTest
{
protected:
	virtual void SetUp() override
	{
		Host::FEngineTest::SetUp();
		UHalvexImageSubsystem::Get()->ClearDiskCache();
		Listener.Reset(NewObject<UImageListener>());
		CopySettings(*Saved, *Settings);
	}

	virtual void TearDown() override
	{
		Listener.Reset();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		WaitForBackground();
		CopySettings(*Settings, *Saved);
		Saved.Reset();
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
		UHalvexImageSubsystem::Get()->ClearDiskCache();
		Host::FEngineTest::TearDown();
	}

	static void CopySettings(UHalvexImageSettings& To, const UHalvexImageSettings& From)
	{
		for (TFieldIterator<FProperty> It(UHalvexImageSettings::StaticClass()); It; ++It)
		{
			It->CopyCompleteValue_InContainer(&To, &From);
		}
	}

	static FImageObjectData At(const FString& Address)
	{
		FImageObjectData Data;
		Data.ImageName = TEXT("Sample");
		Data.Address = Address;
		return Data;
	}

	FImageObjectData OnServer(const char* Path) const { return At(Server.GetUrl(Path)); }

	UHalvexImageDownloader* Begin(const FImageObjectData& Data, EImageRequestSize Size = EIRS_Medium)
	{
		UHalvexImageDownloader* Downloader = UHalvexImageDownloader::DownloadImage(Data, Size);
		Listener->ListenTo(*Downloader);
		Downloader->Activate();
		return Downloader;
	}

	bool WaitForResults(int32 Count)
	{
		return Host::WaitUntil(Loop, [&] { return Listener->Results.Num() >= Count; });
	}

	/** Downloads a picture and gives the result. */
	const FHalvexDownloadedImage& Download(const FImageObjectData& Data, EImageRequestSize Size = EIRS_Medium)
	{
		const int32 Before = Listener->Results.Num();
		Begin(Data, Size);
		EXPECT_TRUE(WaitForResults(Before + 1)) << "the download did not end";
		static const FHalvexDownloadedImage Nothing;
		return Listener->Results.Num() > Before ? Listener->Results.Last() : Nothing;
	}

	const FHalvexDownloadedImage& DownloadFrom(const char* Path) { return Download(OnServer(Path)); }

	/** Until what is written to the disk is there. */
	void WaitForBackground()
	{
		EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FBackgroundThreads::GetNumPending() == 0; }));
	}

	/** As after a new start: only the disk remembers. */
	void ForgetMemory()
	{
		WaitForBackground();
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
	}

	static Host::FServerReply Picture(int32 Width = 8, int32 Height = 4, FColor Colour = FColor::Red)
	{
		Host::FServerReply Reply;
		Reply.Body = Host::TestPictures::Make(Width, Height, Colour);
		return Reply;
	}

	static Host::FServerReply Status(int Code)
	{
		Host::FServerReply Reply;
		Reply.Status = Code;
		return Reply;
	}

	Host::FLoopbackServer Server;
	TStrongObjectPtr<UImageListener> Listener;
	UHalvexImageSettings* Settings = GetMutableDefault<UHalvexImageSettings>();
	TStrongObjectPtr<UHalvexImageSettings> Saved{ NewObject<UHalvexImageSettings>() };
};
