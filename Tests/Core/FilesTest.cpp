#include "Host/Files.h"

#include "CoreMinimal.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <sys/stat.h>
#include <unistd.h>

using Host::FFiles;

namespace
{
	TArray<FString> List(const FTemporaryFolder& Folder)
	{
		TArray<FString> Names;
		IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*")), true, true);
		return Names;
	}

	std::string GetReadError(const FString& File, int64 MaxBytes = 1000)
	{
		TArray<uint8> Bytes;
		FString Reason;
		EXPECT_FALSE(FFiles::Read(File, MaxBytes, Bytes, Reason));
		EXPECT_TRUE(Bytes.IsEmpty());
		return ToUtf8(Reason);
	}
}

TEST(FilesTest, WritingReplacesTheWholeFileAndLeavesNothingBeside)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("A.txt"), "long old content");
	Folder.Write(TEXT("A.txt"), "new");
	EXPECT_EQ("new", Folder.Read(TEXT("A.txt")));
	EXPECT_EQ(1, List(Folder).Num());
}

TEST(FilesTest, AFailedWriteKeepsTheOldFileAndLeavesNothingBeside)
{
	if (geteuid() == 0)
	{
		// No folder refuses its owner of all things; a full device does.
		FString Reason;
		EXPECT_FALSE(FFiles::Write(TEXT("/dev/full/A.txt"), "x", 1, Reason));
		EXPECT_FALSE(Reason.IsEmpty());
		return;
	}
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Dir/A.txt"), "old");
	const FString Dir = Folder / TEXT("Dir");
	ASSERT_EQ(0, chmod(TCHAR_TO_UTF8(*Dir), 0500));
	FString Reason;
	EXPECT_FALSE(FFiles::Write(Dir / TEXT("A.txt"), "new", 3, Reason));
	EXPECT_EQ("Permission denied", ToUtf8(Reason));
	ASSERT_EQ(0, chmod(TCHAR_TO_UTF8(*Dir), 0700));
	EXPECT_EQ("old", Folder.Read(TEXT("Dir/A.txt")));
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Dir / TEXT("*")), true, true);
	EXPECT_EQ(1, Names.Num());
}

TEST(FilesTest, FoldersOnTheWayAreMade)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("A/B/C.txt"), "x");
	EXPECT_EQ("x", Folder.Read(TEXT("A/B/C.txt")));
}

TEST(FilesTest, WritingKeepsTheRightsOfTheFile)
{
	const FTemporaryFolder Folder;
	const FString File = Folder.Write(TEXT("A.txt"), "x");
	ASSERT_EQ(0, chmod(TCHAR_TO_UTF8(*File), 0640));
	Folder.Write(TEXT("A.txt"), "y");
	struct stat Status;
	ASSERT_EQ(0, stat(TCHAR_TO_UTF8(*File), &Status));
	EXPECT_EQ(0640u, Status.st_mode & 0777u);
}

TEST(FilesTest, WritingThroughALinkKeepsTheLink)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Real/A.txt"), "old");
	const FString Link = Folder / TEXT("Link.txt");
	ASSERT_EQ(0, symlink("Real/A.txt", TCHAR_TO_UTF8(*Link)));
	Folder.Write(TEXT("Link.txt"), "new");
	EXPECT_EQ("new", Folder.Read(TEXT("Real/A.txt")));
	struct stat Status;
	ASSERT_EQ(0, lstat(TCHAR_TO_UTF8(*Link), &Status));
	EXPECT_TRUE(S_ISLNK(Status.st_mode));
}

TEST(FilesTest, WritingThroughALinkToNowhereMakesWhatItLeadsTo)
{
	const FTemporaryFolder Folder;
	ASSERT_EQ(0, symlink("Second.txt", TCHAR_TO_UTF8(*(Folder / TEXT("First.txt")))));
	ASSERT_EQ(0, symlink("Dir/Real.txt", TCHAR_TO_UTF8(*(Folder / TEXT("Second.txt")))));
	EXPECT_FALSE(FFiles::IsAbsent(Folder / TEXT("First.txt")));
	EXPECT_TRUE(FFiles::IsAbsent(Folder / TEXT("Dir/Real.txt")));
	Folder.Write(TEXT("First.txt"), "new");
	EXPECT_EQ("new", Folder.Read(TEXT("Dir/Real.txt")));
	EXPECT_EQ("new", Folder.Read(TEXT("First.txt")));
}

TEST(FilesTest, DevicesAreNotReplaced)
{
	const FTemporaryFolder Folder;
	const FString Link = Folder / TEXT("Link");
	ASSERT_EQ(0, symlink("/dev/null", TCHAR_TO_UTF8(*Link)));
	FString Reason;
	FString Name;
	EXPECT_FALSE(FFiles::Write(Link, "x", 1, Reason));
	EXPECT_EQ("is no regular file", ToUtf8(Reason));
	EXPECT_FALSE(FFiles::SetAside(Link, TEXT(".old"), Name, Reason));
	EXPECT_EQ("is no regular file", ToUtf8(Reason));
}

TEST(FilesTest, WhatIsSetAsideGetsAFreeName)
{
	const FTemporaryFolder Folder;
	FString Reason;
	FString Name;
	for (const char* const Content : { "first", "second", "third" })
	{
		const FString File = Folder.Write(TEXT("A.txt"), Content);
		EXPECT_TRUE(FFiles::SetAside(File, TEXT(".old"), Name, Reason));
		EXPECT_TRUE(FFiles::IsAbsent(File));
	}
	EXPECT_EQ(ToUtf8(Folder / TEXT("A.txt.old3")), ToUtf8(Name));
	EXPECT_EQ("first", Folder.Read(TEXT("A.txt.old")));
	EXPECT_EQ("second", Folder.Read(TEXT("A.txt.old2")));
	EXPECT_FALSE(FFiles::SetAside(Folder / TEXT("Gone"), TEXT(".old"), Name, Reason));
}

TEST(FilesTest, AFolderIsNotOverwritten)
{
	const FTemporaryFolder Folder;
	FString Reason;
	EXPECT_FALSE(FFiles::Write(Folder.Path, "x", 1, Reason));
	EXPECT_EQ("is a folder, not a file", ToUtf8(Reason));
}

TEST(FilesTest, WhatIsNoFileOrTooLargeIsNotRead)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ("No such file or directory", GetReadError(Folder / TEXT("Gone")));
	EXPECT_EQ("is a folder, not a file", GetReadError(Folder.Path));
	EXPECT_EQ("has 11 bytes, at most 10 are accepted", GetReadError(Folder.Write(TEXT("A"), "01234567890"), 10));
}

TEST(FilesTest, APipeInPlaceOfAFileStopsNothing)
{
	const FTemporaryFolder Folder;
	const FString Pipe = Folder / TEXT("Pipe");
	ASSERT_EQ(0, mkfifo(TCHAR_TO_UTF8(*Pipe), 0600));
	EXPECT_EQ("is no regular file", GetReadError(Pipe));
}

TEST(FilesTest, NamesBeyondAsciiWork)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("\u00dcbersicht \u4e2d.txt"), "x");
	EXPECT_EQ("x", Folder.Read(TEXT("\u00dcbersicht \u4e2d.txt")));
}
