#include "ImageDownloadTest.h"

#include "HAL/FileManager.h"
#include "Host/Files.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "gmock/gmock.h"

using Host::FExpectedLog;
using Host::FServerReply;
using Host::FServerRequest;

namespace
{
	class FImageCacheTest : public FImageDownloadTest
	{
	protected:
		/** Serves a picture with a mark, which is confirmed to who has it. */
		void ServeMarked(const char* Path, const std::string& Mark, int32 Width, const std::string& CacheControl)
		{
			Server.Serve(Path, [=](const FServerRequest& Request, int)
			{
				const auto Known = Request.Headers.find("if-none-match");
				FServerReply Reply = Known != Request.Headers.end() && Known->second == Mark ? Status(304) : Picture(Width, 4);
				Reply.Headers = { { "ETag", Mark }, { "Cache-Control", CacheControl } };
				return Reply;
			});
		}

		static TArray<FString> ListStored()
		{
			TArray<FString> Files;
			IFileManager::Get().FindFilesRecursive(Files, *(FPaths::ProjectSavedDir() / TEXT("HalvexImages")), TEXT("*"), true, false);
			return Files;
		}

		int64 GetStoredBytes()
		{
			int64 Bytes = 0;
			for (const FString& File : ListStored())
			{
				Bytes += IFileManager::Get().FileSize(*File);
			}
			return Bytes;
		}
	};

	TEST_F(FImageCacheTest, FreshPictureIsShownFromMemory)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		UTexture2D* First = DownloadFrom("/a.png").Texture;
		EXPECT_EQ(DownloadFrom("/a.png").Texture, First);
		EXPECT_EQ(Server.GetVisits("/a.png"), 1);
	}

	TEST_F(FImageCacheTest, OtherSizesAreOtherPictures)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		Download(OnServer("/a.png"), EIRS_Small);
		Download(OnServer("/a.png"), EIRS_Large);
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
	}

	TEST_F(FImageCacheTest, ServerIsAskedAboutAPictureThatIsNotFresh)
	{
		ServeMarked("/a.png", "\"one\"", 8, "no-cache");
		UTexture2D* First = DownloadFrom("/a.png").Texture;
		EXPECT_EQ(DownloadFrom("/a.png").Texture, First) << "confirmed, not made anew";
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
		EXPECT_EQ(Server.GetLastRequest("/a.png").Headers.at("if-none-match"), "\"one\"");
		ServeMarked("/a.png", "\"two\"", 16, "no-cache");
		EXPECT_EQ(DownloadFrom("/a.png").Texture->GetSizeX(), 16) << "the new version";
	}

	TEST_F(FImageCacheTest, AgeOnTheWayCounts)
	{
		Server.Serve("/a.png", [](const FServerRequest&, int)
		{
			FServerReply Reply = Picture();
			Reply.Headers = { { "Cache-Control", "public, max-age=600" }, { "Age", "601" }, { "Last-Modified", "Sat, 21 Nov 2026 08:00:00 GMT" } };
			return Reply;
		});
		DownloadFrom("/a.png");
		DownloadFrom("/a.png");
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
		EXPECT_EQ(Server.GetLastRequest("/a.png").Headers.at("if-modified-since"), "Sat, 21 Nov 2026 08:00:00 GMT");
	}

	TEST_F(FImageCacheTest, FreshPictureIsReadFromTheDiskAfterANewStart)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		DownloadFrom("/a.png");
		ForgetMemory();
		EXPECT_EQ(DownloadFrom("/a.png").Texture->GetSizeX(), 8);
		EXPECT_EQ(Server.GetVisits("/a.png"), 1);
	}

	TEST_F(FImageCacheTest, StoredPictureIsConfirmedAfterANewStart)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=0");
		DownloadFrom("/a.png");
		ForgetMemory();
		EXPECT_EQ(DownloadFrom("/a.png").Texture->GetSizeX(), 8);
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
		EXPECT_EQ(Server.GetLastRequest("/a.png").Headers.at("if-none-match"), "\"one\"");
		ForgetMemory();
		ServeMarked("/a.png", "\"two\"", 16, "max-age=600");
		EXPECT_EQ(DownloadFrom("/a.png").Texture->GetSizeX(), 16);
		ForgetMemory();
		EXPECT_EQ(DownloadFrom("/a.png").Texture->GetSizeX(), 16) << "the new version is stored";
		EXPECT_EQ(Server.GetVisits("/a.png"), 3);
	}

	TEST_F(FImageCacheTest, ConfirmedPictureIsFreshAgain)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=0");
		DownloadFrom("/a.png");
		ForgetMemory();
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		DownloadFrom("/a.png");
		ForgetMemory();
		DownloadFrom("/a.png");
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
	}

	TEST_F(FImageCacheTest, WhatTheServerForbidsToStoreIsNotKept)
	{
		ServeMarked("/a.png", "\"one\"", 8, "No-Store");
		DownloadFrom("/a.png");
		WaitForBackground();
		EXPECT_TRUE(ListStored().IsEmpty());
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetMemoryCacheBytes(), 0);
	}

	TEST_F(FImageCacheTest, FailuresAreNotKept)
	{
		const FExpectedLog Refused(TEXT("no picture of a known format"));
		FServerReply Page;
		Page.Body = "<html>";
		Page.Headers = { { "Cache-Control", "max-age=600" } };
		Server.Serve("/a.png", Page);
		DownloadFrom("/a.png");
		WaitForBackground();
		EXPECT_TRUE(ListStored().IsEmpty());
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
	}

	TEST_F(FImageCacheTest, DamagedFileIsDroppedAndThePictureFetchedAnew)
	{
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		DownloadFrom("/a.png");
		ForgetMemory();
		ASSERT_EQ(ListStored().Num(), 1);
		const FString File = ListStored()[0];
		TArray<uint8> Good;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Good, *File));
		int32 Visits = 1;
		for (const int32 Length : { 0, 3, 20, 30, Good.Num() / 2, Good.Num() - 1 })
		{
			const FExpectedLog Dropped(TEXT("is damaged and is dropped"));
			FString Reason;
			ASSERT_TRUE(Host::FFiles::Write(File, Good.GetData(), Length, Reason));
			EXPECT_TRUE(DownloadFrom("/a.png").Texture) << Length;
			EXPECT_EQ(Server.GetVisits("/a.png"), ++Visits) << Length;
			ForgetMemory();
		}
		for (const int32 Place : { 0, 5, 26, 40, Good.Num() - 1 })
		{
			const FExpectedLog Dropped(TEXT("is damaged and is dropped"));
			TArray<uint8> Bad = Good;
			Bad[Place] ^= 0xff;
			ASSERT_TRUE(FFileHelper::SaveArrayToFile(Bad, *File));
			EXPECT_TRUE(DownloadFrom("/a.png").Texture) << Place;
			EXPECT_EQ(Server.GetVisits("/a.png"), ++Visits) << Place;
			ForgetMemory();
		}
	}

	TEST_F(FImageCacheTest, StoredFilesTellNoAddress)
	{
		ServeMarked("/private.png", "\"one\"", 8, "max-age=600");
		DownloadFrom("/private.png?token=sesame");
		WaitForBackground();
		ASSERT_EQ(ListStored().Num(), 1);
		TArray<uint8> Bytes;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *ListStored()[0]));
		const std::string Everything = Host::ToStd(ListStored()[0]) + std::string(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num()));
		for (const char* Secret : { "sesame", "private.png", "127.0.0.1" })
		{
			EXPECT_THAT(Everything, testing::Not(testing::HasSubstr(Secret)));
		}
	}

	TEST_F(FImageCacheTest, FilesStayWithinTheirLimit)
	{
		Settings->DiskCacheBytes = 700;
		UHalvexImageSubsystem::Get()->ClearDiskCache();
		for (int32 Index = 0; Index < 12; ++Index)
		{
			const std::string Path = "/" + std::to_string(Index) + ".png";
			ServeMarked(Path.c_str(), "\"one\"", 8, "max-age=600");
			DownloadFrom(Path.c_str());
			WaitForBackground();
			EXPECT_LE(GetStoredBytes(), 700);
		}
		EXPECT_GT(ListStored().Num(), 1);
	}

	TEST_F(FImageCacheTest, DiskIsLeftAloneWhenItIsNotWanted)
	{
		Settings->bUseDiskCache = false;
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		DownloadFrom("/a.png");
		WaitForBackground();
		EXPECT_TRUE(ListStored().IsEmpty());
	}

	TEST_F(FImageCacheTest, TexturesStayWithinTheirLimitAndTheLatestStay)
	{
		Settings->MemoryCacheBytes = 3 * 8 * 4 * 4;
		Settings->bUseDiskCache = false;
		for (const char* Path : { "/0.png", "/1.png", "/2.png", "/3.png" })
		{
			ServeMarked(Path, "\"one\"", 8, "max-age=600");
		}
		for (const char* Path : { "/0.png", "/1.png", "/2.png", "/0.png", "/3.png" })
		{
			DownloadFrom(Path);
			EXPECT_LE(UHalvexImageSubsystem::Get()->GetMemoryCacheBytes(), Settings->MemoryCacheBytes);
		}
		DownloadFrom("/0.png");
		EXPECT_EQ(Server.GetVisits("/0.png"), 1) << "used since the one that went";
		DownloadFrom("/1.png");
		EXPECT_EQ(Server.GetVisits("/1.png"), 2) << "not used for longest";
	}

	TEST_F(FImageCacheTest, PictureLargerThanTheCacheIsShownAllTheSame)
	{
		Settings->MemoryCacheBytes = 10;
		ServeMarked("/a.png", "\"one\"", 8, "max-age=600");
		EXPECT_TRUE(DownloadFrom("/a.png").Texture);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetMemoryCacheBytes(), 0);
	}

	TEST_F(FImageCacheTest, NonsenseAboutFreshnessMeansAsking)
	{
		for (const char* CacheControl : { "max-age=-5", "max-age=x", "max-age", "max-age=", ",,,=;", "max-age=\"0\"" })
		{
			Settings->DefaultMaxAge = 0;
			ServeMarked("/a.png", "\"one\"", 8, CacheControl);
			const int32 Before = Server.GetVisits("/a.png");
			DownloadFrom("/a.png");
			DownloadFrom("/a.png");
			EXPECT_EQ(Server.GetVisits("/a.png"), Before + 2) << CacheControl;
		}
	}

	TEST_F(FImageCacheTest, MarkThatCannotBeSentBackIsNotUsed)
	{
		ServeMarked("/a.png", "\"" + std::string(5000, 'x') + "\"", 8, "no-cache");
		DownloadFrom("/a.png");
		DownloadFrom("/a.png");
		EXPECT_EQ(Server.GetVisits("/a.png"), 2);
		EXPECT_EQ(Server.GetLastRequest("/a.png").Headers.count("if-none-match"), 0u);
	}
}
