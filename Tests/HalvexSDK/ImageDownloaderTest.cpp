#include "ImageDownloadTest.h"

#include "Host/Clock.h"
#include "Host/Texture.h"
#include "Misc/FileHelper.h"
#include "gmock/gmock.h"

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;
using Host::FServerRequest;

namespace
{
	class FImageDownloaderTest : public FImageDownloadTest
	{
	protected:
		/** Serves faults a few times, then a picture. */
		void ServeAfter(int32 NumFaults, const FServerReply& Fault)
		{
			Server.Serve("/a.png", [NumFaults, Fault](const FServerRequest&, int Visit) { return Visit <= NumFaults ? Fault : Picture(); });
		}
	};

	TEST_F(FImageDownloaderTest, PictureArrivesAsATexture)
	{
		Server.Serve("/a.png", Picture(8, 4, FColor(10, 20, 30)));
		const FHalvexDownloadedImage& Result = DownloadFrom("/a.png");
		ASSERT_TRUE(Result.Texture);
		EXPECT_EQ(Result.Texture->GetSizeX(), 8);
		EXPECT_EQ(Result.Texture->GetSizeY(), 4);
		EXPECT_EQ(Result.Texture->GetSlateTexture()->GetPixels()[0], 0xff0a141eu);
		EXPECT_EQ(Host::ToStd(Result.Error), "");
		EXPECT_EQ(Result.Size, EIRS_Medium);
		EXPECT_EQ(Host::ToStd(Result.ImageData.ImageName), "Sample");
		EXPECT_EQ(Listener->NumDownloaded, 1);
		EXPECT_EQ(Listener->NumFailed, 0);
	}

	TEST_F(FImageDownloaderTest, EveryFormatArrives)
	{
		FServerReply Jpeg;
		Jpeg.Body = Host::TestPictures::Make(16, 8, FColor::Blue, EImageFormat::JPEG);
		Server.Serve("/a.jpg", Jpeg);
		EXPECT_EQ(DownloadFrom("/a.jpg").Texture->GetSizeX(), 16);
		FString Path = TEXT(HALVEX_SOURCE_DIR) TEXT("/Tests/Fuzz/Seeds/Image/lossy.webp");
		TArray<uint8> Bytes;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *Path));
		FServerReply WebP;
		WebP.Body = std::string(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num()));
		Server.Serve("/a.webp", WebP);
		EXPECT_TRUE(DownloadFrom("/a.webp").Texture);
	}

	TEST_F(FImageDownloaderTest, NothingIsToldDuringTheBegin)
	{
		Server.Serve("/a.png", Picture());
		UHalvexImageDownloader* Downloader = UHalvexImageDownloader::DownloadImage(OnServer("/a.png"), EIRS_Medium);
		Listener->ListenTo(*Downloader);
		EXPECT_FALSE(Downloader->IsRunning()) << "it is made, not begun";
		Downloader->Activate();
		EXPECT_TRUE(Downloader->IsRunning());
		EXPECT_TRUE(Listener->Results.IsEmpty());
		EXPECT_TRUE(WaitForResults(1));
		EXPECT_FALSE(Downloader->IsRunning());
		const FExpectedLog Refused(TEXT("it has no address"));
		Begin(FImageObjectData());
		EXPECT_EQ(Listener->Results.Num(), 1);
		EXPECT_TRUE(WaitForResults(2));
	}

	TEST_F(FImageDownloaderTest, MissingPictureIsAFailureWithOneLine)
	{
		const FExpectedLog Refused(TEXT("/nowhere.png is not shown: the server answered 404."));
		const FHalvexDownloadedImage& Result = DownloadFrom("/nowhere.png");
		EXPECT_FALSE(Result.Texture);
		EXPECT_EQ(Host::ToStd(Result.Error), "the server answered 404");
		EXPECT_EQ(Listener->NumFailed, 1);
		EXPECT_EQ(Server.GetVisits("/nowhere.png"), 1) << "a fault that does not pass is not tried again";
	}

	TEST_F(FImageDownloaderTest, OtherSchemesAreRefused)
	{
		const FExpectedLog Refused(TEXT("not one of http, https or file"), 2);
		EXPECT_FALSE(Download(At(TEXT("ftp://127.0.0.1/a.png"))).Texture);
		EXPECT_FALSE(Download(At(TEXT("javascript:alert(1)"))).Texture);
	}

	TEST_F(FImageDownloaderTest, TwoRequestsForOnePictureShareATransfer)
	{
		Server.Serve("/a.png", Picture());
		Server.Hold();
		Begin(OnServer("/a.png"));
		Begin(OnServer("/a.png"));
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 1);
		Server.Release();
		ASSERT_TRUE(WaitForResults(2));
		EXPECT_EQ(Server.GetVisits("/a.png"), 1);
		EXPECT_EQ(Listener->Results[0].Texture, Listener->Results[1].Texture);
	}

	TEST_F(FImageDownloaderTest, RequestedSizePicksTheRendition)
	{
		for (const char* Path : { "/t.png", "/l.png", "/any.png", "/small/128.png", "/small/256.png", "/original/0.png" })
		{
			Server.Serve(Path, Picture());
		}
		FImageObjectData Data;
		FHalvexImageRendition Rendition;
		Rendition.Size = EIRS_Thumbnail;
		Rendition.Address = Server.GetUrl("/t.png");
		Data.Renditions.Add(Rendition);
		Rendition.Size = EIRS_Large;
		Rendition.Address = Server.GetUrl("/l.png");
		Data.Renditions.Add(Rendition);
		Download(Data, EIRS_Thumbnail);
		EXPECT_EQ(Server.GetVisits("/t.png"), 1);
		Download(Data, EIRS_Small);
		EXPECT_EQ(Server.GetVisits("/l.png"), 1) << "the next larger one";
		Download(Data, EIRS_Original);
		EXPECT_EQ(Server.GetVisits("/l.png"), 2) << "the largest there is";
		Data.Address = Server.GetUrl("/any.png");
		Download(Data, EIRS_Small);
		EXPECT_EQ(Server.GetVisits("/any.png"), 1) << "the general address counts more than a rendition of another size";
		Data.Address = Server.GetUrl("/{size}/{pixels}.png");
		Download(Data, EIRS_Small);
		EXPECT_EQ(Server.GetVisits("/small/256.png"), 1);
		Download(Data, EIRS_Original);
		EXPECT_EQ(Server.GetVisits("/original/0.png"), 1);
	}

	TEST_F(FImageDownloaderTest, PassingFaultsAreTriedAgain)
	{
		for (const int Code : { 500, 503, 408, 429 })
		{
			Server.Serve("/a.png", [Code, Before = Server.GetVisits("/a.png")](const FServerRequest&, int Visit) { return Visit - Before <= 2 ? Status(Code) : Picture(); });
			EXPECT_TRUE(DownloadFrom("/a.png").Texture) << Code;
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
		}
		EXPECT_EQ(Server.GetVisits("/a.png"), 12);
	}

	TEST_F(FImageDownloaderTest, LostConnectionIsTriedAgain)
	{
		FServerReply Lost = Picture();
		Lost.Fault = EServerFault::CloseInBody;
		ServeAfter(2, Lost);
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_EQ(Server.GetVisits("/a.png"), 3);
	}

	TEST_F(FImageDownloaderTest, WaitBetweenTriesDoubles)
	{
		ServeAfter(3, Status(503));
		const double Start = Host::FClock::Now();
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_GE(Host::FClock::Now() - Start, 0.5 + 1.0 + 2.0) << "on the clock that the test turns";
	}

	TEST_F(FImageDownloaderTest, ServerSaysHowLongToWait)
	{
		FServerReply Busy = Status(429);
		Busy.Headers = { { "Retry-After", "7" } };
		ServeAfter(1, Busy);
		const double Start = Host::FClock::Now();
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_GE(Host::FClock::Now() - Start, 7.0);
	}

	TEST_F(FImageDownloaderTest, NoServerMakesTheWaitLongerThanTheLimit)
	{
		Settings->MaxRetryDelay = 1.0f;
		FServerReply Busy = Status(503);
		Busy.Headers = { { "Retry-After", "99999999999999999999" } };
		ServeAfter(1, Busy);
		const double Start = Host::FClock::Now();
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_LT(Host::FClock::Now() - Start, 60.0);
	}

	TEST_F(FImageDownloaderTest, FaultThatStaysIsGivenUpWithOneLine)
	{
		ServeAfter(99, Status(500));
		const FExpectedLog GivenUp(TEXT("the server answered 500, 4 times"));
		EXPECT_FALSE(DownloadFrom("/a.png").Texture);
		EXPECT_EQ(Server.GetVisits("/a.png"), 4);
	}

	TEST_F(FImageDownloaderTest, OthersGoOnWhileAFaultIsWaitedOut)
	{
		Settings->ParallelDownloads = 1;
		ServeAfter(1, Status(503));
		Server.Serve("/b.png", Picture());
		Begin(OnServer("/a.png"));
		Begin(OnServer("/b.png"));
		ASSERT_TRUE(WaitForResults(2));
		EXPECT_EQ(Host::ToStd(Listener->Results[0].ImageData.Address), Host::ToStd(Server.GetUrl("/b.png")));
	}

	TEST_F(FImageDownloaderTest, NoMoreThanTheLimitAreFetchedAtOnce)
	{
		Settings->ParallelDownloads = 3;
		Server.Hold();
		for (int32 Index = 0; Index < 9; ++Index)
		{
			const std::string Path = "/" + std::to_string(Index) + ".png";
			Server.Serve(Path, Picture());
			Begin(OnServer(Path.c_str()));
		}
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 3; }));
		Server.Release();
		ASSERT_TRUE(WaitForResults(9));
		EXPECT_EQ(Listener->NumDownloaded, 9);
		EXPECT_LE(Server.GetMostAtOnce(), 3);
	}

	TEST_F(FImageDownloaderTest, GivenUpDownloadFailsOnceAndItsTransferEnds)
	{
		Server.Serve("/a.png", Picture());
		Server.Hold();
		UHalvexImageDownloader* Downloader = Begin(OnServer("/a.png"));
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		Downloader->Cancel();
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Downloader->Cancel();
		ASSERT_TRUE(WaitForResults(1));
		Server.Release();
		Loop.RunUntilIdle();
		EXPECT_EQ(Listener->Results.Num(), 1);
		EXPECT_TRUE(Listener->Results[0].bCancelled);
		EXPECT_FALSE(Listener->Results[0].Texture);
	}

	TEST_F(FImageDownloaderTest, GivingUpOneOfTwoLeavesTheOther)
	{
		Server.Serve("/a.png", Picture());
		Server.Hold();
		Begin(OnServer("/a.png"))->Cancel();
		UHalvexImageDownloader* First = Begin(OnServer("/a.png"));
		Begin(OnServer("/a.png"));
		First->Cancel();
		Server.Release();
		ASSERT_TRUE(WaitForResults(3));
		EXPECT_EQ(Listener->NumDownloaded, 1);
		EXPECT_EQ(Listener->NumFailed, 2);
	}

	TEST_F(FImageDownloaderTest, DownloadIsGivenUpWhenItsListenerIsGone)
	{
		Server.Serve("/a.png", Picture());
		Server.Hold();
		Begin(OnServer("/a.png"));
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 1) << "it lives while somebody listens, though nobody holds it";
		Listener.Reset();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Loop.RunUntilIdle();
	}

	TEST_F(FImageDownloaderTest, DownloadThatNobodyListensToFillsTheCache)
	{
		FServerReply Reply = Picture();
		Reply.Headers = { { "Cache-Control", "max-age=60" } };
		Server.Serve("/a.png", Reply);
		UHalvexImageDownloader::DownloadImage(OnServer("/a.png"), EIRS_Medium)->Activate();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_TRUE(Host::WaitUntil(Loop, [] { return UHalvexImageSubsystem::Get()->GetNumTransfers() == 0; }));
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_EQ(Server.GetVisits("/a.png"), 1);
	}

	TEST_F(FImageDownloaderTest, LargePictureBecomesATextureSliceBySlice)
	{
		Settings->UploadBytesPerFrame = 64 * 4;
		Server.Serve("/a.png", Picture(64, 40));
		Begin(OnServer("/a.png"));
		int32 NumFrames = 0;
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return ++NumFrames > 0 && Listener->Results.Num() > 0; }));
		EXPECT_GE(NumFrames, 40) << "one row a frame";
		EXPECT_EQ(Listener->Results[0].Texture->GetSlateTexture()->GetPixels()[64 * 40 - 1], 0xffff0000u);
	}

	TEST_F(FImageDownloaderTest, FramesDoNoMoreThanTheirBudgetWhilePicturesArrive)
	{
		constexpr int32 Side = 64;
		constexpr int32 NumPictures = 6;
		// A picture and a half.
		constexpr int64 MostPixels = Side * Side * 3 / 2;
		Settings->UploadBytesPerFrame = static_cast<int32>(MostPixels) * 4;
		Server.Hold();
		for (int32 Index = 0; Index < NumPictures; ++Index)
		{
			const std::string Path = "/" + std::to_string(Index) + ".png";
			Server.Serve(Path, Picture(Side, Side));
			Begin(OnServer(Path.c_str()));
		}
		Server.Release();
		int64 Longest = 0;
		int64 Before = Host::FTexture::GetNumWrittenPixels();
		EXPECT_TRUE(Host::WaitUntil(Loop, [&]
		{
			const int64 Now = Host::FTexture::GetNumWrittenPixels();
			Longest = FMath::Max(Longest, Now - Before);
			Before = Now;
			return Listener->Results.Num() == NumPictures;
		}));
		EXPECT_GT(Longest, 0);
		EXPECT_LE(Longest, MostPixels * 4 / 3) << "the smaller levels add a third";
		for (const auto& Result : Listener->Results)
		{
			FIntPoint Size;
			const TSharedPtr<const Host::FTexture> Texture = Result.Texture->GetSlateTexture();
			Texture->GetMip(Texture->GetNumMips() - 1, Size);
		}
		EXPECT_EQ(Host::FTexture::GetNumWrittenPixels(), Before) << "no level is left for the frame that shows the picture";
	}

	TEST_F(FImageDownloaderTest, RowThatIsLongerThanASliceIsOneSlice)
	{
		Settings->UploadBytesPerFrame = 1;
		Server.Serve("/a.png", Picture(64, 3));
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
	}

	/** What a server does wrong, and what the one line says of it. */
	struct FFaultCase
	{
		const char* Name;
		FServerReply Reply;
		const TCHAR* Line;
	};

	FServerReply WithFault(FServerReply Reply, EServerFault Fault, long long ClaimedLength = -1)
	{
		Reply.Fault = Fault;
		Reply.ClaimedLength = ClaimedLength;
		return Reply;
	}

	FServerReply WithBody(const std::string& Body)
	{
		FServerReply Reply;
		Reply.Body = Body;
		return Reply;
	}

	FServerReply WithStatus(int Code)
	{
		FServerReply Reply;
		Reply.Status = Code;
		return Reply;
	}

	FServerReply WithRedirect(const char* Target)
	{
		FServerReply Reply;
		Reply.Status = 302;
		Reply.Headers = { { "Location", Target } };
		return Reply;
	}

	std::vector<FFaultCase> MakeFaultCases()
	{
		using Host::TestPictures::Make;
		const std::string Png = Make(64, 64, FColor::Green);
		const std::string Jpeg = Make(64, 64, FColor::Green, EImageFormat::JPEG);
		std::string Flipped = Png;
		Flipped[Flipped.size() / 2] ^= 0x55;
		return {
			{ "ConnectionClosed", WithFault(WithBody(Png), EServerFault::CloseAtOnce), TEXT("the connection failed or was lost") },
			{ "ConnectionClosedInHeaders", WithFault(WithBody(Png), EServerFault::CloseInHeaders), TEXT("the connection failed or was lost") },
			{ "ConnectionClosedInBody", WithFault(WithBody(Png), EServerFault::CloseInBody), TEXT("the connection failed or was lost") },
			{ "LengthTooLarge", WithFault(WithBody(Png), EServerFault::None, 100000), TEXT("the connection failed or was lost") },
			{ "LengthTooSmall", WithFault(WithBody(Png), EServerFault::None, 60), TEXT("PNG: ") },
			{ "AnnouncedGigabyte", WithFault(WithBody(Png), EServerFault::SilenceAfterHeaders, 1ll << 30), TEXT("the request failed") },
			{ "EndlessBody", WithFault(WithBody(Png), EServerFault::EndlessBody), TEXT("is larger than the") },
			{ "EndlessHeaders", WithFault(WithBody(Png), EServerFault::EndlessHeaders), TEXT(" is not shown: ") },
			{ "RedirectToItself", WithRedirect("/a.png"), TEXT("the request failed") },
			{ "RedirectToAFile", WithRedirect("file:///etc/passwd"), TEXT("the request failed") },
			{ "NoAnswer", WithFault(WithBody(Png), EServerFault::Garbage), TEXT(" is not shown: ") },
			{ "EmptyBody", WithBody(""), TEXT("the file is empty") },
			{ "PageInPlaceOfPicture", WithBody("<html>Sign in first</html>"), TEXT("no picture of a known format") },
			{ "TruncatedPng", WithBody(Png.substr(0, Png.size() * 2 / 3)), TEXT("PNG: ") },
			{ "TruncatedJpeg", WithBody(Jpeg.substr(0, 100)), TEXT("/a.png: ") },
			{ "DamagedPng", WithBody(Flipped), TEXT("PNG: ") },
			{ "OnlyTheSignature", WithBody(Png.substr(0, 8)), TEXT("PNG: ") },
			{ "HugeDimensions", WithBody(Host::TestPictures::MakeLyingPng(60000, 60000)), TEXT("60000 x 60000 pixels") },
			{ "NegativeDimensions", WithBody(Host::TestPictures::MakeLyingPng(0xffffffffu, 1)), TEXT("PNG: ") },
			{ "MorePixelsThanAccepted", WithBody(Host::TestPictures::MakeLyingPng(8000, 8000)), TEXT("8000 x 8000 pixels") },
			{ "MorePixelsThanInTheFile", WithBody(Host::TestPictures::MakeLyingPng(2000, 2000)), TEXT("PNG: ") },
			{ "Teapot", WithStatus(418), TEXT("the server answered 418") },
			{ "NotModifiedUnasked", WithStatus(304), TEXT("the server answered 304") },
		};
	}

	class FImageFaultTest : public FImageDownloadTest, public testing::WithParamInterface<FFaultCase>
	{
	};

	TEST_P(FImageFaultTest, IsAFailureWithOneLine)
	{
		Settings->Retries = 1;
		Settings->RetryDelay = 0.1f;
		Server.Serve("/a.png", GetParam().Reply);
		const FExpectedLog Line(GetParam().Line);
		const FHalvexDownloadedImage& Result = DownloadFrom("/a.png");
		EXPECT_FALSE(Result.Texture);
		EXPECT_FALSE(Result.Error.IsEmpty());
		EXPECT_EQ(Listener->NumFailed, 1);
		EXPECT_THAT(Host::ToStd(Line.GetLastLine()), testing::HasSubstr("/a.png")) << "the line says where";
	}

	INSTANTIATE_TEST_SUITE_P(Faults, FImageFaultTest, testing::ValuesIn(MakeFaultCases()), [](const testing::TestParamInfo<FFaultCase>& Info)
	{
		return std::string(Info.param.Name);
	});

	TEST_F(FImageDownloaderTest, SilentServerIsGivenUp)
	{
		Settings->Retries = 0;
		Settings->ActivityTimeout = 1.0f;
		FServerReply Silent = Picture();
		Silent.Fault = EServerFault::Silence;
		Server.Serve("/a.png", Silent);
		const FExpectedLog GivenUp(TEXT("the connection failed or was lost"));
		EXPECT_FALSE(DownloadFrom("/a.png").Texture);
	}

	TEST_F(FImageDownloaderTest, DripFeedEndsWithTheWholeTime)
	{
		Settings->Retries = 0;
		Settings->RequestTimeout = 0.2f;
		FServerReply Drip = Picture();
		Drip.Body = std::string(100000, 'x');
		Drip.Fault = EServerFault::Drip;
		Server.Serve("/a.png", Drip);
		const FExpectedLog GivenUp(TEXT("the server took too long"));
		EXPECT_FALSE(DownloadFrom("/a.png").Texture);
	}

	TEST_F(FImageDownloaderTest, LogTellsNoSecrets)
	{
		const FExpectedLog Line(TEXT("is not shown"));
		FString Url = Server.GetUrl("/private.png?token=sesame#part");
		Url.ReplaceInline(TEXT("http://"), TEXT("http://anna:hunter2@"));
		EXPECT_FALSE(Download(At(Url)).Texture);
		EXPECT_THAT(Host::ToStd(Line.GetLastLine()), testing::HasSubstr("/private.png"));
		for (const char* Secret : { "sesame", "hunter2", "anna" })
		{
			EXPECT_THAT(Host::ToStd(Line.GetLastLine()), testing::Not(testing::HasSubstr(Secret)));
		}
	}
}
