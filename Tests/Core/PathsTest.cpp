#include "Misc/Paths.h"

#include "CoreMinimal.h"
#include "Environment.h"
#include "HAL/PlatformProcess.h"
#include "Host/PathRoots.h"
#include "Misc/App.h"
#include "RestoredRoots.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string Collapse(const TCHAR* Path, bool bExpectInside = true)
	{
		FString Text = Path;
		EXPECT_EQ(bExpectInside, FPaths::CollapseRelativeDirectories(Text)) << TCHAR_TO_UTF8(Path);
		return ToUtf8(Text);
	}

	std::string MakeRelative(const TCHAR* Path, const TCHAR* To)
	{
		FString Text = Path;
		EXPECT_TRUE(FPaths::MakePathRelativeTo(Text, To));
		return ToUtf8(Text);
	}
}

TEST(PathsTest, PartsOfAPath)
{
	const FString Path = TEXT("Dir.x/Sub/Name.tar.gz");
	EXPECT_EQ("gz", ToUtf8(FPaths::GetExtension(Path)));
	EXPECT_EQ(".gz", ToUtf8(FPaths::GetExtension(Path, true)));
	EXPECT_EQ("Name.tar.gz", ToUtf8(FPaths::GetCleanFilename(Path)));
	EXPECT_EQ("Name.tar", ToUtf8(FPaths::GetBaseFilename(Path)));
	EXPECT_EQ("Dir.x/Sub/Name.tar", ToUtf8(FPaths::GetBaseFilename(Path, false)));
	EXPECT_EQ("Dir.x/Sub", ToUtf8(FPaths::GetPath(Path)));
}

TEST(PathsTest, ADotInAFolderIsNoExtension)
{
	EXPECT_EQ("", ToUtf8(FPaths::GetExtension(TEXT("Dir.x/Name"))));
	EXPECT_EQ("Name", ToUtf8(FPaths::GetBaseFilename(TEXT("Dir.x/Name"))));
}

TEST(PathsTest, PathsWithoutFolderOrNameHaveEmptyParts)
{
	EXPECT_EQ("", ToUtf8(FPaths::GetPath(TEXT("Name.txt"))));
	EXPECT_EQ("", ToUtf8(FPaths::GetCleanFilename(TEXT("Dir/"))));
	EXPECT_EQ("Dir", ToUtf8(FPaths::GetPathLeaf(TEXT("Some/Dir/"))));
	EXPECT_EQ("", ToUtf8(FPaths::GetPath(TEXT(""))));
}

TEST(PathsTest, ExtensionsAreChangedOrSet)
{
	EXPECT_EQ("A/B.ini", ToUtf8(FPaths::ChangeExtension(TEXT("A/B.txt"), TEXT("ini"))));
	EXPECT_EQ("A/B.ini", ToUtf8(FPaths::ChangeExtension(TEXT("A/B.txt"), TEXT(".ini"))));
	EXPECT_EQ("A/B", ToUtf8(FPaths::ChangeExtension(TEXT("A/B"), TEXT("ini"))));
	EXPECT_EQ("A/B.ini", ToUtf8(FPaths::SetExtension(TEXT("A/B"), TEXT("ini"))));
}

TEST(PathsTest, CombiningPutsOneSlashBetween)
{
	EXPECT_EQ("A/B/C.txt", ToUtf8(FPaths::Combine(TEXT("A"), TEXT("B/"), FString(TEXT("C.txt")))));
	EXPECT_EQ("/A/B", ToUtf8(FPaths::Combine(FString(TEXT("/A/")), TEXT(""), TEXT("/B"))));
	EXPECT_EQ("A/B", ToUtf8(FPaths::Combine(TEXT("A\\B"))));
}

TEST(PathsTest, DotsCollapse)
{
	EXPECT_EQ("A/C", Collapse(TEXT("A/./B/../C")));
	EXPECT_EQ("/C/", Collapse(TEXT("/A/../C/")));
	EXPECT_EQ("A...B", Collapse(TEXT("A...B")));
}

TEST(PathsTest, PathsAboveTheirStartAreTold)
{
	EXPECT_EQ("../B", Collapse(TEXT("A/../../B"), false));
	EXPECT_EQ("/../B", Collapse(TEXT("/../B"), false));
	EXPECT_EQ("../../B", Collapse(TEXT("../../B"), false));
}

TEST(PathsTest, RelativePathsBecomeFull)
{
	EXPECT_EQ("/Base/A", ToUtf8(FPaths::ConvertRelativePathToFull(TEXT("/Base/Sub"), TEXT("../A"))));
	EXPECT_EQ("/A", ToUtf8(FPaths::ConvertRelativePathToFull(TEXT("/Base"), TEXT("/B/../A"))));
	EXPECT_FALSE(FPaths::IsRelative(FPaths::ConvertRelativePathToFull(TEXT("A"))));
}

TEST(PathsTest, PathsAreWrittenRelativeToAnother)
{
	EXPECT_EQ("B/C.txt", MakeRelative(TEXT("/A/B/C.txt"), TEXT("/A/")));
	EXPECT_EQ("../X/C.txt", MakeRelative(TEXT("/A/X/C.txt"), TEXT("/A/B/")));
	EXPECT_EQ("C.txt", MakeRelative(TEXT("/A/B/C.txt"), TEXT("/A/B/Other.txt")));
}

TEST(PathsTest, BeingUnderAFolderGoesByWholeParts)
{
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/A/B/C"), TEXT("/A/B")));
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/A/B"), TEXT("/A/B/")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/A/BC"), TEXT("/A/B")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/A/B/../C"), TEXT("/A/B")));
}

TEST(PathsTest, SlashesAreNormalised)
{
	FString Path = TEXT("A\\B//C/");
	FPaths::NormalizeDirectoryName(Path);
	EXPECT_EQ("A/B//C", ToUtf8(Path));
	FPaths::RemoveDuplicateSlashes(Path);
	EXPECT_EQ("A/B/C", ToUtf8(Path));
}

TEST(PathsTest, FileNamesLoseWhatFilesCannotHave)
{
	EXPECT_EQ("a_b_c", ToUtf8(FPaths::MakeValidFileName(TEXT("a/b:c"), TEXT('_'))));
	EXPECT_EQ("abc", ToUtf8(FPaths::MakeValidFileName(TEXT("a/b\nc"))));
}

TEST(PathsTest, ProjectFoldersFollowTheirRoot)
{
	const FRestoredRoots Restored;
	Host::FPathRoots::SetProjectDir(TEXT("/Some/Project"));
	EXPECT_EQ("/Some/Project/", ToUtf8(FPaths::ProjectDir()));
	EXPECT_EQ("/Some/Project/Config/", ToUtf8(FPaths::ProjectConfigDir()));
	EXPECT_EQ("/Some/Project/Content/", ToUtf8(FPaths::ProjectContentDir()));
	Host::FPathRoots::SetProjectDir(FString());
	EXPECT_EQ(ToUtf8(FPlatformProcess::BaseDir()), ToUtf8(FPaths::ProjectDir()));
}

TEST(PathsTest, TheUsersFoldersFollowTheDesktopConventions)
{
	const FRestoredRoots Restored;
	Host::FPathRoots::SetSavedDir(FString());
	const FString OldName = FApp::GetProjectName();
	FApp::SetProjectName(TEXT("Tower"));
	{
		const FEnvironment Data("XDG_DATA_HOME", "/data");
		const FEnvironment Config("XDG_CONFIG_HOME", "/config/");
		EXPECT_EQ("/data/Tower/", ToUtf8(FPaths::ProjectSavedDir()));
		EXPECT_EQ("/config/Tower/", ToUtf8(FPaths::GeneratedConfigDir()));
	}
	{
		// The conventions tell to ignore a path that is not full.
		const FEnvironment Data("XDG_DATA_HOME", "relative");
		const FEnvironment Config("XDG_CONFIG_HOME", "");
		const FEnvironment Home("HOME", "/home/someone");
		EXPECT_EQ("/home/someone/.local/share/Tower/", ToUtf8(FPaths::ProjectSavedDir()));
		EXPECT_EQ("/home/someone/.config/Tower/", ToUtf8(FPaths::GeneratedConfigDir()));
	}
	FApp::SetProjectName(*OldName);
}

TEST(PathsTest, ASavedFolderSetByHandHoldsTheSettingsToo)
{
	const FRestoredRoots Restored;
	Host::FPathRoots::SetSavedDir(TEXT("/Saved"));
	EXPECT_EQ("/Saved/", ToUtf8(FPaths::ProjectSavedDir()));
	EXPECT_EQ("/Saved/Config/", ToUtf8(FPaths::GeneratedConfigDir()));
	EXPECT_EQ("/Saved/Screenshots/", ToUtf8(FPaths::ScreenShotDir()));
}
