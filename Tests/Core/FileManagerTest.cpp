#include "HAL/FileManager.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <unistd.h>

using Host::FExpectedLog;

namespace
{
	std::string Join(const TArray<FString>& Names)
	{
		return ToUtf8(FString::Join(Names, TEXT(" ")));
	}
}

TEST(FileManagerTest, FilesAndFoldersAreToldApart)
{
	const FTemporaryFolder Folder;
	const FString File = Folder.Write(TEXT("A.txt"), "abc");
	IFileManager& Manager = IFileManager::Get();
	EXPECT_TRUE(Manager.FileExists(*File));
	EXPECT_FALSE(Manager.FileExists(*Folder.Path));
	EXPECT_TRUE(Manager.DirectoryExists(*Folder.Path));
	EXPECT_FALSE(Manager.DirectoryExists(*File));
	EXPECT_EQ(3, Manager.FileSize(*File));
	EXPECT_EQ(-1, Manager.FileSize(*(Folder / TEXT("B.txt"))));
}

TEST(FileManagerTest, TimeStampsAreInUtc)
{
	const FTemporaryFolder Folder;
	const FDateTime Stamp = IFileManager::Get().GetTimeStamp(*Folder.Write(TEXT("A.txt"), ""));
	EXPECT_LT(FMath::Abs((FDateTime::UtcNow() - Stamp).GetTotalSeconds()), 60.0);
	EXPECT_EQ(FDateTime::MinValue(), IFileManager::Get().GetTimeStamp(*(Folder / TEXT("B.txt"))));
}

TEST(FileManagerTest, DeletingWhatIsNotThereFailsOnlyWhenItWasRequired)
{
	const FTemporaryFolder Folder;
	const FString File = Folder.Write(TEXT("A.txt"), "");
	IFileManager& Manager = IFileManager::Get();
	EXPECT_TRUE(Manager.Delete(*File, true));
	EXPECT_TRUE(Manager.Delete(*File));
	const FExpectedLog Expected(TEXT("cannot be deleted"));
	EXPECT_FALSE(Manager.Delete(*File, true));
	EXPECT_FALSE(Manager.Delete(*File, true, false, true));
}

TEST(FileManagerTest, MovingReplacesUnlessForbidden)
{
	const FTemporaryFolder Folder;
	const FString A = Folder.Write(TEXT("A.txt"), "a");
	const FString B = Folder.Write(TEXT("B.txt"), "b");
	IFileManager& Manager = IFileManager::Get();
	{
		const FExpectedLog Expected(TEXT("cannot be moved"));
		EXPECT_FALSE(Manager.Move(*B, *A, false));
	}
	EXPECT_TRUE(Manager.Move(*B, *A));
	EXPECT_EQ("a", Folder.Read(TEXT("B.txt")));
	EXPECT_FALSE(Manager.FileExists(*A));
}

TEST(FileManagerTest, CopyingKeepsTheOriginal)
{
	const FTemporaryFolder Folder;
	const FString A = Folder.Write(TEXT("A.txt"), "a");
	EXPECT_EQ(uint32(COPY_OK), IFileManager::Get().Copy(*(Folder / TEXT("Dir/B.txt")), *A));
	EXPECT_EQ("a", Folder.Read(TEXT("Dir/B.txt")));
	EXPECT_EQ("a", Folder.Read(TEXT("A.txt")));
}

TEST(FileManagerTest, FoldersAreMadeWithTheirParentsOnlyOnRequest)
{
	const FTemporaryFolder Folder;
	IFileManager& Manager = IFileManager::Get();
	{
		const FExpectedLog Expected(TEXT("the folder cannot be made"));
		EXPECT_FALSE(Manager.MakeDirectory(*(Folder / TEXT("A/B"))));
	}
	EXPECT_TRUE(Manager.MakeDirectory(*(Folder / TEXT("A/B")), true));
	EXPECT_TRUE(Manager.MakeDirectory(*(Folder / TEXT("A/B"))));
}

TEST(FileManagerTest, AFullFolderIsDeletedOnlyAsATree)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Dir/A.txt"), "");
	IFileManager& Manager = IFileManager::Get();
	{
		const FExpectedLog Expected(TEXT("the folder cannot be deleted"));
		EXPECT_FALSE(Manager.DeleteDirectory(*(Folder / TEXT("Dir"))));
	}
	EXPECT_TRUE(Manager.DeleteDirectory(*(Folder / TEXT("Dir")), true, true));
}

TEST(FileManagerTest, DeletingATreeDoesNotFollowLinks)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("Kept/A.txt"), "a");
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*(Folder / TEXT("Dir"))));
	ASSERT_EQ(0, symlink("../Kept", TCHAR_TO_UTF8(*(Folder / TEXT("Dir/Link")))));
	EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*(Folder / TEXT("Dir")), true, true));
	EXPECT_EQ("a", Folder.Read(TEXT("Kept/A.txt")));
}

TEST(FileManagerTest, FilesAreFoundByPatternAndSorted)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("B.txt"), "");
	Folder.Write(TEXT("A.txt"), "");
	Folder.Write(TEXT("C.png"), "");
	Folder.Write(TEXT("Dir/D.txt"), "");
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*.txt")), true, false);
	EXPECT_EQ("A.txt B.txt", Join(Names));
	Names.Empty();
	IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*")), false, true);
	EXPECT_EQ("Dir", Join(Names));
}

TEST(FileManagerTest, FilesAreFoundInFoldersBelow)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("A.txt"), "");
	Folder.Write(TEXT("Dir/Sub/D.txt"), "");
	ASSERT_EQ(0, symlink("..", TCHAR_TO_UTF8(*(Folder / TEXT("Dir/Loop")))));
	TArray<FString> Names;
	IFileManager::Get().FindFilesRecursive(Names, *Folder.Path, TEXT("*.txt"), true, false);
	EXPECT_EQ(ToUtf8(Folder / TEXT("A.txt") + TEXT(" ") + (Folder / TEXT("Dir/Sub/D.txt"))), Join(Names));
}
