#include "Misc/PackageName.h"

#include "CoreMinimal.h"
#include "TemporaryContent.h"
#include "gtest/gtest.h"

namespace
{
	std::string ToFile(const FString& Package, const FString& Extension = FString())
	{
		FString Filename = TEXT("untouched");
		FPackageName::TryConvertLongPackageNameToFilename(Package, Filename, Extension);
		return TCHAR_TO_UTF8(*Filename);
	}
}

TEST(PackageNameTest, PathsBelowARootBecomeFiles)
{
	const Host::FTemporaryContent Content(TEXT("/Names/"));
	const std::string Folder = TCHAR_TO_UTF8(*Host::FMounts::GetFolder(TEXT("/Names/")));
	EXPECT_EQ(Folder, ToFile(TEXT("/Names/")));
	EXPECT_EQ(Folder + "Rooms/Bath.png", ToFile(TEXT("/Names/Rooms/Bath"), TEXT(".png")));
	EXPECT_EQ("untouched", ToFile(TEXT("/Elsewhere/Bath")));
	EXPECT_EQ("untouched", ToFile(TEXT("Names/Bath")));
}
