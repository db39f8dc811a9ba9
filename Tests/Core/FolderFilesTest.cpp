#include "Host/FolderFiles.h"

#include "CoreMinimal.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <sys/stat.h>
#include <unistd.h>

using Host::FFolderFiles;

namespace
{
	/** The content, or what was given in its place. */
	std::string Read(const FTemporaryFolder& Folder, const TArray<FString>& Names, int64 MaxBytes = 100)
	{
		TArray<uint8> Bytes;
		FString Reason;
		switch (FFolderFiles::Read(Folder.Path, Names, MaxBytes, Bytes, Reason))
		{
		case FFolderFiles::ERead::Read:
			return std::string(reinterpret_cast<const char*>(Bytes.GetData()), size_t(Bytes.Num()));
		case FFolderFiles::ERead::Absent:
			EXPECT_EQ(0, Bytes.Num());
			return "(absent)";
		case FFolderFiles::ERead::Failed:
			break;
		}
		return "(" + ToUtf8(Reason) + ")";
	}
}

TEST(FolderFilesTest, FilesAreFoundByTheNamesOnTheWay)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("A.txt"), "outer");
	Folder.Write(TEXT("Sub/Käse/B.txt"), "inner");
	EXPECT_EQ("outer", Read(Folder, { TEXT("A.txt") }));
	EXPECT_EQ("inner", Read(Folder, { TEXT("Sub"), TEXT("Käse"), TEXT("B.txt") }));
}

TEST(FolderFilesTest, WhatIsNoFileIsAbsent)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Sub/B.txt"), "inner");
	ASSERT_EQ(0, mkfifo(TCHAR_TO_UTF8(*(Folder / TEXT("Pipe"))), 0600));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Nothing") }));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Sub") }));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Pipe") }));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Sub"), TEXT("B.txt"), TEXT("C.txt") }));
	EXPECT_EQ("(absent)", Read(Folder, {}));
}

TEST(FolderFilesTest, NoLinkIsFollowedButThatOfTheFolderItself)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Real/B.txt"), "inner");
	ASSERT_EQ(0, symlink("Real", TCHAR_TO_UTF8(*(Folder / TEXT("Link")))));
	ASSERT_EQ(0, symlink("B.txt", TCHAR_TO_UTF8(*(Folder / TEXT("Real/C.txt")))));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Link"), TEXT("B.txt") }));
	EXPECT_EQ("(absent)", Read(Folder, { TEXT("Real"), TEXT("C.txt") }));
	TArray<uint8> Bytes;
	FString Reason;
	EXPECT_EQ(FFolderFiles::ERead::Read, FFolderFiles::Read(Folder / TEXT("Link"), TArray<FString>{ TEXT("B.txt") }, 100, Bytes, Reason));
}

TEST(FolderFilesTest, AFileThatIsTooLargeFailsWithTheReason)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("A.txt"), "12345");
	EXPECT_EQ("12345", Read(Folder, { TEXT("A.txt") }, 5));
	EXPECT_EQ("(has 5 bytes, at most 4 are accepted)", Read(Folder, { TEXT("A.txt") }, 4));
}
