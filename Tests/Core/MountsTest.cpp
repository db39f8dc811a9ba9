#include "Host/Mounts.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <unistd.h>

using Host::FExpectedLog;
using Host::FMounts;

namespace
{
	class MountsTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			Folder.Write(TEXT("Content/Widgets/Style.asset.json"), "{}");
			Folder.Write(TEXT("Secret.asset.json"), "{}");
			ASSERT_TRUE(FMounts::Add(TEXT("/Test/"), Folder / TEXT("Content")));
		}

		void TearDown() override
		{
			FMounts::Remove(TEXT("/Test/"));
		}

		/** The file of a path, or an empty text. */
		std::string Find(const TCHAR* ObjectPath)
		{
			FString File;
			return FMounts::FindFile(ObjectPath, TEXT(".asset.json"), File) ? ToUtf8(File) : std::string();
		}

		void ExpectRefused(const TCHAR* ObjectPath, const TCHAR* Reason)
		{
			const FExpectedLog Expected(Reason);
			EXPECT_EQ("", Find(ObjectPath)) << TCHAR_TO_UTF8(ObjectPath);
			EXPECT_NE(INDEX_NONE, Expected.GetLastLine().Find(ObjectPath)) << "The line must name the path";
		}

		FTemporaryFolder Folder;
	};
}

TEST_F(MountsTest, AnObjectPathLeadsToItsPackagesFile)
{
	const std::string File = ToUtf8(Folder / TEXT("Content/Widgets/Style.asset.json"));
	EXPECT_EQ(File, Find(TEXT("/Test/Widgets/Style.Style")));
	EXPECT_EQ(File, Find(TEXT("/Test/Widgets/Style")));
	EXPECT_EQ(File, Find(TEXT("/Test/Widgets/Style.Style_C")));
}

TEST_F(MountsTest, ARootIsFoundInAnyCase)
{
	EXPECT_NE("", Find(TEXT("/test/Widgets/Style.Style")));
}

TEST_F(MountsTest, AMissingFileLogsNothing)
{
	EXPECT_EQ("", Find(TEXT("/Test/Widgets/Nothing.Nothing")));
}

TEST_F(MountsTest, AFolderIsNoFile)
{
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*(Folder / TEXT("Content/Dir.asset.json")), true));
	EXPECT_EQ("", Find(TEXT("/Test/Dir")));
}

TEST_F(MountsTest, PathsThatClimbAreRefused)
{
	ExpectRefused(TEXT("/Test/../Secret"), TEXT("starts with a dot"));
	ExpectRefused(TEXT("/Test/Widgets/../../Secret.Secret"), TEXT("starts with a dot"));
	ExpectRefused(TEXT("/Test/./Widgets/Style"), TEXT("starts with a dot"));
	ExpectRefused(TEXT("/Test/.hidden"), TEXT("starts with a dot"));
	ExpectRefused(TEXT("/../Test/Widgets/Style"), TEXT("starts with a dot"));
}

TEST_F(MountsTest, PathsThatStartElsewhereAreRefused)
{
	ExpectRefused(TEXT("/etc/passwd"), TEXT("nothing is mounted"));
	ExpectRefused(TEXT("/Test//etc/passwd"), TEXT("is empty"));
	ExpectRefused(TEXT("/Test/"), TEXT("is empty"));
	ExpectRefused(TEXT("Widgets/Style"), TEXT("does not start with '/'"));
	ExpectRefused(TEXT("/Testing/Widgets/Style"), TEXT("nothing is mounted"));
}

TEST_F(MountsTest, CharactersThatContentPathsCannotHaveAreRefused)
{
	ExpectRefused(TEXT("/Test/Widgets\\Style"), TEXT("cannot have"));
	ExpectRefused(TEXT("/Test/C:/Style"), TEXT("cannot have"));
	ExpectRefused(TEXT("/Test/Wid*ets/Style"), TEXT("cannot have"));
	ExpectRefused(TEXT("/Test/Widgets/St\nyle"), TEXT("cannot have"));
}

TEST_F(MountsTest, ALinkOutOfTheFolderIsRefused)
{
	const FString Link = Folder / TEXT("Content/Escape.asset.json");
	ASSERT_EQ(0, symlink("../Secret.asset.json", TCHAR_TO_UTF8(*Link)));
	ExpectRefused(TEXT("/Test/Escape.Escape"), TEXT("leads out of the folder"));

	ASSERT_EQ(0, symlink("..", TCHAR_TO_UTF8(*(Folder / TEXT("Content/Up")))));
	ExpectRefused(TEXT("/Test/Up/Secret.Secret"), TEXT("leads out of the folder"));
}

TEST_F(MountsTest, ALinkToABrotherOfTheFolderIsRefusedThoughItsNameBeginsAlike)
{
	Folder.Write(TEXT("Content2/Style.asset.json"), "{}");
	ASSERT_EQ(0, symlink("../Content2/Style.asset.json", TCHAR_TO_UTF8(*(Folder / TEXT("Content/Brother.asset.json")))));
	ExpectRefused(TEXT("/Test/Brother"), TEXT("leads out of the folder"));
}

TEST_F(MountsTest, ALinkWithinTheFolderIsFollowed)
{
	ASSERT_EQ(0, symlink("Widgets/Style.asset.json", TCHAR_TO_UTF8(*(Folder / TEXT("Content/Alias.asset.json")))));
	EXPECT_NE("", Find(TEXT("/Test/Alias")));
}

TEST_F(MountsTest, AMountedFolderMayItselfBeALink)
{
	ASSERT_EQ(0, symlink("Content", TCHAR_TO_UTF8(*(Folder / TEXT("Linked")))));
	ASSERT_TRUE(FMounts::Add(TEXT("/Linked/"), Folder / TEXT("Linked")));
	EXPECT_NE("", Find(TEXT("/Linked/Widgets/Style")));
	FMounts::Remove(TEXT("/Linked/"));
}

TEST_F(MountsTest, FilesThatAnAssetNamesStayInItsMount)
{
	const FString Asset = TEXT("/Test/Widgets/Style.Style");
	EXPECT_TRUE(FMounts::IsInMountOf(Asset, Folder / TEXT("Content/Widgets/Style.asset.json")));
	EXPECT_TRUE(FMounts::IsInMountOf(Asset, Folder / TEXT("Content/Widgets/../Missing.ttf")));
	EXPECT_FALSE(FMounts::IsInMountOf(Asset, Folder / TEXT("Content/Widgets/../../Secret.asset.json")));
	EXPECT_FALSE(FMounts::IsInMountOf(Asset, Folder / TEXT("Content/../Missing.ttf")));
	EXPECT_FALSE(FMounts::IsInMountOf(TEXT("/Elsewhere/Style.Style"), Folder / TEXT("Content/Widgets/Style.asset.json")));
	const std::string Link = ToUtf8(Folder / TEXT("Content/Link.ttf"));
	ASSERT_EQ(0, symlink(ToUtf8(Folder / TEXT("Secret.asset.json")).c_str(), Link.c_str()));
	EXPECT_FALSE(FMounts::IsInMountOf(Asset, UTF8_TO_TCHAR(Link.c_str())));
}

TEST_F(MountsTest, UnfitRootsAreRefused)
{
	const FExpectedLog Expected(TEXT("a root is written"), 5);
	for (const TCHAR* const Root : {TEXT(""), TEXT("/"), TEXT("//"), TEXT("Test"), TEXT("/A/B/")})
	{
		EXPECT_FALSE(FMounts::Add(Root, Folder.Path)) << TCHAR_TO_UTF8(Root);
	}
}

TEST_F(MountsTest, AMissingFolderIsRefused)
{
	const FExpectedLog Expected(TEXT("there is no folder"));
	EXPECT_FALSE(FMounts::Add(TEXT("/Gone/"), Folder / TEXT("Gone")));
	EXPECT_EQ("", ToUtf8(FMounts::GetFolder(TEXT("/Gone/"))));
}

TEST_F(MountsTest, MountingAgainReplacesTheFolder)
{
	Folder.Write(TEXT("Other/New.asset.json"), "{}");
	ASSERT_TRUE(FMounts::Add(TEXT("/Test/"), Folder / TEXT("Other")));
	EXPECT_EQ("", Find(TEXT("/Test/Widgets/Style")));
	EXPECT_NE("", Find(TEXT("/Test/New")));
	EXPECT_EQ(ToUtf8(Folder / TEXT("Other/")), ToUtf8(FMounts::GetFolder(TEXT("/Test/"))));
}

TEST_F(MountsTest, AFileIsNamedAsItsPackage)
{
	EXPECT_EQ("/Test/Widgets/Style", ToUtf8(FMounts::ToPackageName(Folder / TEXT("Content/Widgets/Style.asset.json"), TEXT(".asset.json"))));
	EXPECT_EQ("", ToUtf8(FMounts::ToPackageName(Folder / TEXT("Secret.asset.json"), TEXT(".asset.json"))));
	EXPECT_EQ("", ToUtf8(FMounts::ToPackageName(Folder / TEXT("Content/Widgets/Style.asset.json"), TEXT(".png"))));
}

TEST_F(MountsTest, PackagesAreListedSorted)
{
	Folder.Write(TEXT("Content/B.asset.json"), "{}");
	Folder.Write(TEXT("Content/A.asset.json"), "{}");
	Folder.Write(TEXT("Content/A.png"), "");
	const TArray<FString> Packages = FMounts::FindPackages(TEXT("/Test/"), TEXT(".asset.json"));
	ASSERT_EQ(3, Packages.Num());
	EXPECT_EQ("/Test/A", ToUtf8(Packages[0]));
	EXPECT_EQ("/Test/B", ToUtf8(Packages[1]));
	EXPECT_EQ("/Test/Widgets/Style", ToUtf8(Packages[2]));
}

TEST_F(MountsTest, ObjectPathsAreSplit)
{
	FString Package;
	FString Object;
	FString Reason;
	EXPECT_TRUE(FMounts::SplitObjectPath(TEXT("/Test/Dir/Name.Object"), Package, Object, Reason));
	EXPECT_EQ("/Test/Dir/Name", ToUtf8(Package));
	EXPECT_EQ("Object", ToUtf8(Object));
	EXPECT_FALSE(FMounts::SplitObjectPath(TEXT(""), Package, Object, Reason));
}
