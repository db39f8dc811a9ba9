#include "Misc/Paths.h"

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformProcess.h"
#include "Host/PathRoots.h"
#include "Misc/App.h"

#include <filesystem>

namespace
{
	struct FRoots
	{
		FString ProjectDir;
		FString SavedDir;
	};

	FRoots& GetRoots()
	{
		static FRoots Roots;
		return Roots;
	}

	/** Full, with a slash at the end; empty stays empty. */
	FString ToRoot(const FString& Folder)
	{
		return Folder.IsEmpty() ? FString() : FPaths::ConvertRelativePathToFull(Folder) / TEXT("");
	}

	FString GetWorkingFolder()
	{
		std::error_code Error;
		return Host::FromNativePath(std::filesystem::current_path(Error));
	}

	/** Where the last part of a path starts. */
	int32 FindLeaf(const FString& Path)
	{
		for (int32 Index = Path.Len(); Index > 0; --Index)
		{
			if (Path[Index - 1] == TEXT('/') || Path[Index - 1] == TEXT('\\'))
			{
				return Index;
			}
		}
		return 0;
	}

	/** Where the dot of the extension stands, or the length of a path that has none. */
	int32 FindExtension(const FString& Path)
	{
		const int32 Leaf = FindLeaf(Path);
		int32 Dot = INDEX_NONE;
		Path.FindLastChar(TEXT('.'), Dot);
		return Dot >= Leaf && Dot != INDEX_NONE ? Dot : Path.Len();
	}

	FString WithDot(const FString& Extension)
	{
		return Extension.IsEmpty() || Extension.StartsWith(TEXT(".")) ? Extension : TEXT(".") + Extension;
	}

	TArray<FString> SplitParts(const FString& Path)
	{
		TArray<FString> Parts;
		Path.ParseIntoArray(Parts, TEXT("/"), true);
		return Parts;
	}

	FString JoinParts(const TArray<FString>& Parts, bool bFromRoot)
	{
		return (bFromRoot ? TEXT("/") : TEXT("")) + FString::Join(Parts, TEXT("/"));
	}
}

void Host::FPathRoots::SetProjectDir(const FString& Folder)
{
	GetRoots().ProjectDir = ToRoot(Folder);
}

void Host::FPathRoots::SetSavedDir(const FString& Folder)
{
	GetRoots().SavedDir = ToRoot(Folder);
}

bool Host::FPathRoots::IsSavedDirSet()
{
	return !GetRoots().SavedDir.IsEmpty();
}

FString FPaths::ProjectDir()
{
	const FString& Set = GetRoots().ProjectDir;
	return Set.IsEmpty() ? FPlatformProcess::BaseDir() : Set;
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectSavedDir()
{
	const FString& Set = GetRoots().SavedDir;
	return Set.IsEmpty() ? FPlatformProcess::ApplicationSettingsDir() + FApp::GetProjectName() + TEXT("/") : Set;
}

FString FPaths::ProjectLogDir()
{
	return ProjectSavedDir() + TEXT("Logs/");
}

FString FPaths::ScreenShotDir()
{
	return ProjectSavedDir() + TEXT("Screenshots/");
}

FString FPaths::GeneratedConfigDir()
{
	const FString& Set = GetRoots().SavedDir;
	return Set.IsEmpty() ? FPlatformProcess::UserSettingsDir() + FApp::GetProjectName() + TEXT("/") : Set + TEXT("Config/");
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = FindExtension(InPath);
	return InPath.Mid(bIncludeDot ? Dot : Dot + 1);
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(FindLeaf(InPath));
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const FString Base = InPath.Left(FindExtension(InPath));
	return bRemovePath ? GetCleanFilename(Base) : Base;
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Leaf = FindLeaf(InPath);
	return InPath.Left(Leaf > 0 ? Leaf - 1 : 0);
}

FString FPaths::GetPathLeaf(const FString& InPath)
{
	FString Path = InPath;
	NormalizeDirectoryName(Path);
	return GetCleanFilename(Path);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 Dot = FindExtension(InPath);
	return Dot == InPath.Len() ? InPath : InPath.Left(Dot) + WithDot(InNewExtension);
}

FString FPaths::SetExtension(const FString& InPath, const FString& InNewExtension)
{
	return InPath.Left(FindExtension(InPath)) + WithDot(InNewExtension);
}

FString FPaths::CombineParts(const FStringView* Parts, int32 Count)
{
	FString Result;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		if (!Parts[Index].IsEmpty())
		{
			Result.PathAppend(Parts[Index].GetData(), Parts[Index].Len());
		}
	}
	NormalizeFilename(Result);
	return Result;
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline(TEXT('\\'), TEXT('/'), ESearchCase::CaseSensitive);
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	while (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")))
	{
		InPath.LeftChopInline(1);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	NormalizeFilename(InPath);
	const bool bFromRoot = !IsRelative(InPath);
	const bool bFolder = InPath.EndsWith(TEXT("/"));
	TArray<FString> Kept;
	bool bInside = true;
	for (const FString& Part : SplitParts(InPath))
	{
		if (Part.Equals(TEXT(".")))
		{
			continue;
		}
		if (Part.Equals(TEXT("..")) && !Kept.IsEmpty() && !Kept.Last().Equals(TEXT("..")))
		{
			Kept.Pop();
		}
		else
		{
			bInside &= !Part.Equals(TEXT(".."));
			Kept.Add(Part);
		}
	}
	InPath = JoinParts(Kept, bFromRoot);
	if (bFolder && !Kept.IsEmpty())
	{
		InPath += TEXT("/");
	}
	return bInside;
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	while (InPath.ReplaceInline(TEXT("//"), TEXT("/"), ESearchCase::CaseSensitive) > 0)
	{
	}
}

bool FPaths::IsRelative(const FString& InPath)
{
	return !InPath.StartsWith(TEXT("/")) && !InPath.StartsWith(TEXT("\\"));
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(IsRelative(InPath) ? GetWorkingFolder() : FString(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Full = IsRelative(InPath) ? Combine(BasePath, InPath) : InPath;
	CollapseRelativeDirectories(Full);
	return Full;
}

bool FPaths::MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo)
{
	const TArray<FString> To = SplitParts(ConvertRelativePathToFull(InPath));
	TArray<FString> From = SplitParts(ConvertRelativePathToFull(InRelativeTo));
	// What does not end with a slash is a file: the path starts from its folder.
	if (!From.IsEmpty() && !FString(InRelativeTo).EndsWith(TEXT("/")))
	{
		From.Pop();
	}
	int32 Shared = 0;
	while (Shared < To.Num() && Shared < From.Num() && To[Shared].Equals(From[Shared]))
	{
		++Shared;
	}
	if (Shared == 0 && !From.IsEmpty())
	{
		return false;
	}
	TArray<FString> Parts;
	for (int32 Index = Shared; Index < From.Num(); ++Index)
	{
		Parts.Add(TEXT(".."));
	}
	for (int32 Index = Shared; Index < To.Num(); ++Index)
	{
		Parts.Add(To[Index]);
	}
	const bool bFolder = InPath.EndsWith(TEXT("/")) && !Parts.IsEmpty();
	InPath = JoinParts(Parts, false);
	if (bFolder)
	{
		InPath += TEXT("/");
	}
	return true;
}

bool FPaths::IsUnderDirectory(const FString& InPath, const FString& InDirectory)
{
	FString Path = ConvertRelativePathToFull(InPath);
	FString Directory = ConvertRelativePathToFull(InDirectory);
	NormalizeDirectoryName(Path);
	NormalizeDirectoryName(Directory);
	if (Path.Equals(Directory) || Directory.Equals(TEXT("/")))
	{
		return true;
	}
	return Path.StartsWith(Directory + TEXT("/"), ESearchCase::CaseSensitive);
}

bool FPaths::IsSamePath(const FString& PathA, const FString& PathB)
{
	FString A = ConvertRelativePathToFull(PathA);
	FString B = ConvertRelativePathToFull(PathB);
	NormalizeDirectoryName(A);
	NormalizeDirectoryName(B);
	return A.Equals(B);
}

FString FPaths::MakeValidFileName(const FString& InString, const TCHAR InReplacementChar)
{
	FString Result;
	Result.Reserve(InString.Len());
	for (const TCHAR Unit : InString)
	{
		const bool bFit = Unit >= 0x20 && Unit != 0x7F && FCString::Strchr(TEXT("/\\:*?\"<>|"), Unit) == nullptr;
		if (bFit)
		{
			Result.AppendChar(Unit);
		}
		else if (InReplacementChar != TEXT('\0'))
		{
			Result.AppendChar(InReplacementChar);
		}
	}
	return Result;
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}
