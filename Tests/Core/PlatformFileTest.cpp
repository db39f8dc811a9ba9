#include "HAL/PlatformFileManager.h"

#include "CoreMinimal.h"
#include "TemporaryFolder.h"
#include "gtest/gtest.h"

#include <filesystem>

TEST(PlatformFileTest, LinksAreToldFromWhatTheyLeadTo)
{
	const FTemporaryFolder Folder;
	const FString File = Folder.Write(TEXT("File.txt"), "text");
	const FString Link = Folder / TEXT("Link.txt");
	const FString Dangling = Folder / TEXT("Dangling.txt");
	std::filesystem::create_symlink(TCHAR_TO_UTF8(*File), TCHAR_TO_UTF8(*Link));
	std::filesystem::create_symlink("nowhere", TCHAR_TO_UTF8(*Dangling));
	IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
	EXPECT_EQ(ESymlinkResult::NonSymlink, Files.IsSymlink(*File));
	EXPECT_EQ(ESymlinkResult::NonSymlink, Files.IsSymlink(*Folder.Path));
	EXPECT_EQ(ESymlinkResult::NonSymlink, Files.IsSymlink(*(Folder / TEXT("Nothing"))));
	EXPECT_EQ(ESymlinkResult::Symlink, Files.IsSymlink(*Link));
	EXPECT_EQ(ESymlinkResult::Symlink, Files.IsSymlink(*Dangling));
}
