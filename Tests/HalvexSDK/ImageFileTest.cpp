#include "ImageDownloadTest.h"

#include "Misc/Paths.h"
#include "TemporaryContent.h"
#include "gmock/gmock.h"

#include <filesystem>

using Host::FExpectedLog;

namespace
{
	/** Pictures among the project's files. */
	class FImageFileTest : public FImageDownloadTest
	{
	protected:
		virtual void SetUp() override
		{
			FImageDownloadTest::SetUp();
			Settings->ImageFolder = TEXT("/Pictures/");
			Write(TEXT("Good.png"), 8);
			Write(TEXT("Rooms/Großes Bad.png"), 16);
		}

		void Write(const TCHAR* Name, int32 Width) const
		{
			const std::string Picture = Host::TestPictures::Make(Width, 4, FColor::Red);
			FString Reason;
			ASSERT_TRUE(Host::FFiles::Write(Content.GetFolder() / Name, Picture.data(), static_cast<int64>(Picture.size()), Reason));
		}

		std::filesystem::path GetPath(const char* Name) const { return std::filesystem::path(TCHAR_TO_UTF8(*Content.GetFolder())) / Name; }

		int32 GetWidth(const FString& Address)
		{
			const UTexture2D* Texture = Download(At(Address)).Texture;
			return Texture ? Texture->GetSizeX() : 0;
		}

		void ExpectRefused(const FString& Address, const TCHAR* Line)
		{
			const FExpectedLog Refused(Line);
			EXPECT_EQ(GetWidth(Address), 0) << Host::ToStd(Address);
		}

		Host::FTemporaryContent Content{ TEXT("/Pictures/") };
	};

	TEST_F(FImageFileTest, AddressesStartFromTheFolder)
	{
		EXPECT_EQ(GetWidth(TEXT("file:Good.png")), 8);
		EXPECT_EQ(GetWidth(TEXT("file:./Rooms/../Good.png")), 8);
		EXPECT_EQ(GetWidth(TEXT("file:Rooms/Gro%C3%9Fes%20Bad.png")), 16);
		EXPECT_EQ(GetWidth(TEXT("file:Rooms/Großes Bad.png")), 16);
	}

	TEST_F(FImageFileTest, FullAddressesMayNameFilesOfTheFolder)
	{
		EXPECT_EQ(GetWidth(TEXT("file://") + Content.GetFolder() + TEXT("/Good.png")), 8);
		EXPECT_EQ(GetWidth(TEXT("file://localhost") + Content.GetFolder() + TEXT("/Good.png")), 8);
	}

	TEST_F(FImageFileTest, FolderMayBeAnyFolder)
	{
		Settings->ImageFolder = Content.GetFolder() + TEXT("/Rooms");
		EXPECT_EQ(GetWidth(TEXT("file:Großes Bad.png")), 16);
		ExpectRefused(TEXT("file:../Good.png"), TEXT("leads out of"));
	}

	TEST_F(FImageFileTest, FullAddressesMayLeadIntoFurtherFolders)
	{
		Settings->ImageFolder = Content.GetFolder() + TEXT("/Elsewhere");
		const FString Address = TEXT("file://") + Content.GetFolder() + TEXT("/Rooms/Gro%C3%9Fes%20Bad.png");
		ExpectRefused(Address, TEXT("leads out of"));
		Settings->FurtherImageFolders = { Content.GetFolder() + TEXT("/Rooms/") };
		EXPECT_EQ(GetWidth(Address), 16);
		ExpectRefused(TEXT("file://") + Content.GetFolder() + TEXT("/Good.png"), TEXT("leads out of"));
		ExpectRefused(TEXT("file://") + Content.GetFolder() + TEXT("/Rooms/../Good.png"), TEXT("leads out of"));
		ExpectRefused(TEXT("file:Großes Bad.png"), TEXT("there is no such file"));
		Settings->FurtherImageFolders.Empty();
	}

	TEST_F(FImageFileTest, NoAddressLeadsOutOfTheFolder)
	{
		for (const TCHAR* Address : { TEXT("file:../secret.png"), TEXT("file:Rooms/../../secret.png"), TEXT("file:%2e%2e/secret.png"), TEXT("file:..%2Fsecret.png"),
				 TEXT("file:///etc/passwd"), TEXT("file:/etc/passwd"), TEXT("file:..\\secret.png"), TEXT("file:////etc/passwd") })
		{
			ExpectRefused(Address, TEXT("leads out of the project's folder of images"));
		}
	}

	TEST_F(FImageFileTest, NeighbourWhoseNameBeginsTheSameIsOutside)
	{
		ExpectRefused(TEXT("file://") + Content.GetFolder() + TEXT("2/Good.png"), TEXT("leads out of"));
	}

	TEST_F(FImageFileTest, LinksAreNotFollowed)
	{
		std::filesystem::create_symlink("/etc", GetPath("Out"));
		std::filesystem::create_symlink("Good.png", GetPath("Link.png"));
		ExpectRefused(TEXT("file:Out/passwd"), TEXT("leads through a link"));
		ExpectRefused(TEXT("file:Link.png"), TEXT("leads through a link"));
	}

	TEST_F(FImageFileTest, MalformedAddressesAreRefused)
	{
		for (const TCHAR* Address : { TEXT("file:"), TEXT("file://"), TEXT("file://elsewhere/Good.png"), TEXT("file:Good%zz.png"), TEXT("file:Good.png%00"), TEXT("file:%") })
		{
			ExpectRefused(Address, TEXT("the address is malformed"));
		}
	}

	TEST_F(FImageFileTest, WhatIsNoReadablePictureIsOneLine)
	{
		Content.Write(TEXT("Text.png"), "this is a text");
		std::filesystem::create_directory(GetPath("Folder.png"));
		ExpectRefused(TEXT("file:Missing.png"), TEXT("there is no such file"));
		ExpectRefused(TEXT("file:Folder.png"), TEXT("there is no such file"));
		ExpectRefused(TEXT("file:Text.png"), TEXT("no picture of a known format"));
		Settings->MaxImageBytes = 20;
		ExpectRefused(TEXT("file:Good.png"), TEXT("is larger than the 20 bytes"));
	}

	TEST_F(FImageFileTest, FileThatWasWrittenAnewIsReadAnew)
	{
		EXPECT_EQ(GetWidth(TEXT("file:Good.png")), 8);
		Write(TEXT("Good.png"), 32);
		Content.Age(TEXT("Good.png"), 10);
		EXPECT_EQ(GetWidth(TEXT("file:Good.png")), 32);
	}

	TEST_F(FImageFileTest, FilesAreNotStoredAgain)
	{
		GetWidth(TEXT("file:Good.png"));
		WaitForBackground();
		EXPECT_GT(UHalvexImageSubsystem::Get()->GetMemoryCacheBytes(), 0);
		EXPECT_FALSE(std::filesystem::exists(TCHAR_TO_UTF8(*(FPaths::ProjectSavedDir() / TEXT("HalvexImages")))));
	}
}
