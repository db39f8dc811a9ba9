#include "Host/Mounts.h"

#include "HAL/FileManager.h"
#include "Host/Files.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

namespace
{
	struct FMount
	{
		/** "/Name/" */
		FString Root;
		/** Every link followed, a slash at the end. */
		FString Folder;
	};

	TArray<FMount>& GetMounts()
	{
		static TArray<FMount> Mounts;
		return Mounts;
	}

	/** What a part of a content path may not hold, beside control characters. */
	constexpr const TCHAR* ForbiddenCharacters = TEXT("\\:*?\"<>|' ,&!~@#");

	/** Why a part of a content path is unfit; null when it is fit. */
	const TCHAR* FindFault(const FString& Part)
	{
		if (Part.IsEmpty())
		{
			return TEXT("a part of it is empty");
		}
		if (Part.StartsWith(TEXT(".")))
		{
			return TEXT("a part of it starts with a dot");
		}
		for (const TCHAR Unit : Part)
		{
			if (Unit < 0x20 || Unit == 0x7F || FCString::Strchr(ForbiddenCharacters, Unit) != nullptr)
			{
				return TEXT("it holds a character that content paths cannot have");
			}
		}
		return nullptr;
	}

	const FMount* FindMount(const FString& Package)
	{
		return GetMounts().FindByPredicate([&](const FMount& Mount) { return Package.StartsWith(Mount.Root, ESearchCase::IgnoreCase); });
	}
}

bool Host::FMounts::Add(const FString& Root, const FString& Folder)
{
	const bool bWellFormed = Root.Len() > 2 && Root.StartsWith(TEXT("/")) && Root.EndsWith(TEXT("/")) && FindFault(Root.Mid(1, Root.Len() - 2)) == nullptr
		&& !Root.Mid(1, Root.Len() - 2).Contains(TEXT("/"));
	if (!bWellFormed)
	{
		UE_LOG(LogCore, Warning, TEXT("'%s' cannot be mounted: a root is written \"/Name/\""), *Root);
		return false;
	}
	FMount Mount;
	Mount.Root = Root;
	Mount.Folder = FFiles::Resolve(Folder);
	if (!FPaths::DirectoryExists(Mount.Folder))
	{
		UE_LOG(LogCore, Warning, TEXT("'%s' cannot be mounted: there is no folder '%s'"), *Root, *Folder);
		return false;
	}
	Mount.Folder /= TEXT("");
	Remove(Root);
	GetMounts().Add(Mount);
	return true;
}

void Host::FMounts::Remove(const FString& Root)
{
	GetMounts().RemoveAll([&](const FMount& Mount) { return Mount.Root == Root; });
}

TArray<FString> Host::FMounts::GetRoots()
{
	TArray<FString> Roots;
	for (const FMount& Mount : GetMounts())
	{
		Roots.Add(Mount.Root);
	}
	return Roots;
}

FString Host::FMounts::GetFolder(const FString& Root)
{
	const FMount* const Mount = GetMounts().FindByPredicate([&](const FMount& Candidate) { return Candidate.Root == Root; });
	return Mount != nullptr ? Mount->Folder : FString();
}

bool Host::FMounts::SplitObjectPath(const FString& ObjectPath, FString& OutPackage, FString& OutObject, FString& OutReason)
{
	if (!ObjectPath.StartsWith(TEXT("/")))
	{
		OutReason = TEXT("it does not start with '/'");
		return false;
	}
	TArray<FString> Parts;
	ObjectPath.Mid(1).ParseIntoArray(Parts, TEXT("/"), false);
	for (const FString& Part : Parts)
	{
		if (const TCHAR* const Fault = FindFault(Part))
		{
			OutReason = Fault;
			return false;
		}
	}
	// Objects inside the package's own one follow a second dot or a colon; they are not written in files of their own.
	const int32 Leaf = ObjectPath.Len() - Parts.Last().Len();
	int32 Dot = INDEX_NONE;
	if (Parts.Last().FindChar(TEXT('.'), Dot))
	{
		OutPackage = ObjectPath.Left(Leaf + Dot);
		OutObject = ObjectPath.Mid(Leaf + Dot + 1);
	}
	else
	{
		OutPackage = ObjectPath;
		OutObject = FString();
	}
	return true;
}

bool Host::FMounts::FindFile(const FString& ObjectPath, const FString& Suffix, FString& OutFilename)
{
	FString Reason;
	const bool bFound = FindFile(ObjectPath, Suffix, OutFilename, Reason);
	UE_CLOG(!Reason.IsEmpty(), LogCore, Warning, TEXT("The content path '%s' is refused: %s"), *ObjectPath, *Reason);
	return bFound;
}

bool Host::FMounts::FindFile(const FString& ObjectPath, const FString& Suffix, FString& OutFilename, FString& OutReason)
{
	FString Package;
	FString Object;
	OutReason.Empty();
	if (!SplitObjectPath(ObjectPath, Package, Object, OutReason))
	{
		return false;
	}
	const FMount* const Mount = FindMount(Package);
	if (Mount == nullptr)
	{
		OutReason = TEXT("nothing is mounted at its root");
		return false;
	}
	const FString Filename = Mount->Folder + Package.Mid(Mount->Root.Len()) + Suffix;
	if (!FPaths::FileExists(Filename))
	{
		return false;
	}
	const FString Resolved = FFiles::Resolve(Filename);
	if (!Resolved.StartsWith(Mount->Folder, ESearchCase::CaseSensitive))
	{
		OutReason = FString::Printf(TEXT("it leads out of the folder of '%s'"), *Mount->Root);
		return false;
	}
	OutFilename = Filename;
	return true;
}

bool Host::FMounts::IsInMountOf(const FString& ObjectPath, const FString& Filename)
{
	const FMount* const Mount = FindMount(ObjectPath);
	const FString Resolved = FFiles::Resolve(Filename);
	const FString Full = Resolved.IsEmpty() ? FPaths::ConvertRelativePathToFull(Filename) : Resolved;
	return Mount != nullptr && Full.StartsWith(Mount->Folder, ESearchCase::CaseSensitive);
}

FString Host::FMounts::ToPackageName(const FString& Filename, const FString& Suffix)
{
	const FString Full = FPaths::ConvertRelativePathToFull(Filename);
	for (const FMount& Mount : GetMounts())
	{
		const bool bBelow = Full.StartsWith(Mount.Folder, ESearchCase::CaseSensitive) && Full.EndsWith(Suffix, ESearchCase::CaseSensitive);
		if (bBelow && Full.Len() > Mount.Folder.Len() + Suffix.Len())
		{
			return Mount.Root + Full.Mid(Mount.Folder.Len(), Full.Len() - Mount.Folder.Len() - Suffix.Len());
		}
	}
	return FString();
}

TArray<FString> Host::FMounts::FindPackages(const FString& Root, const FString& Suffix)
{
	TArray<FString> Packages;
	const FString Folder = GetFolder(Root);
	if (Folder.IsEmpty())
	{
		return Packages;
	}
	TArray<FString> Files;
	IFileManager::Get().FindFilesRecursive(Files, *Folder, *(TEXT("*") + Suffix), true, false);
	for (const FString& File : Files)
	{
		const FString Package = ToPackageName(File, Suffix);
		FString Name;
		FString Object;
		FString Reason;
		if (!Package.IsEmpty() && SplitObjectPath(Package, Name, Object, Reason) && Object.IsEmpty())
		{
			Packages.Add(Package);
		}
	}
	return Packages;
}
