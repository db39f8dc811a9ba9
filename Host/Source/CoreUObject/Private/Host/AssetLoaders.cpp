#include "Host/AssetLoaders.h"

#include "HAL/FileManager.h"
#include "Host/JsonDocument.h"
#include "Host/Mounts.h"
#include "Host/ObjectAsset.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

DEFINE_LOG_CATEGORY(LogAssets);

namespace Host
{
	namespace
	{
		const TCHAR* const ObjectAssetSuffix = TEXT(".asset.json");

		struct FEntry
		{
			FString Suffix;
			FAssetLoader Loader;
		};

		struct FRegistry
		{
			TArray<FEntry> Entries;
			TMap<FString, FAssetReader> Readers;
			/** When the files were written that could not be read. */
			TMap<FString, FDateTime> BrokenFiles;
			/** When the files were written that the objects of a package came from. */
			TMap<FName, FDateTime> LoadedFiles;
			TSet<FString> ReportedFailures;

			FRegistry()
			{
				Entries.Add({ ObjectAssetSuffix, [](const FAssetRequest& Request) { return FObjectAsset::Load(Request); } });
			}
		};

		FRegistry& GetRegistry()
		{
			static FRegistry Registry;
			return Registry;
		}

		FEntry* FindEntry(const FString& Suffix)
		{
			return GetRegistry().Entries.FindByPredicate([&](const FEntry& Entry) { return Entry.Suffix == Suffix; });
		}

		/** The name that the file's object has: that of the file, whatever was asked for inside it. */
		FName AssetNameOf(const FString& PackageName)
		{
			int32 Slash = INDEX_NONE;
			PackageName.FindLastChar(TEXT('/'), Slash);
			return FName(PackageName.RightChop(Slash + 1));
		}

		bool IsMounted(const FString& PackageName)
		{
			return FMounts::GetRoots().ContainsByPredicate([&](const FString& Root) { return PackageName.StartsWith(Root); });
		}

		UObject* RunLoader(const FString& Suffix, const FAssetRequest& Request)
		{
			// A loader may register others while it runs.
			const FAssetLoader Loader = FindEntry(Suffix)->Loader;
			return Loader(Request);
		}
	}

	void FAssetLoaders::Add(const FString& Suffix, FAssetLoader Loader)
	{
		if (FEntry* Existing = FindEntry(Suffix))
		{
			Existing->Loader = MoveTemp(Loader);
			return;
		}
		GetRegistry().Entries.Add({ Suffix, MoveTemp(Loader) });
	}

	void FAssetLoaders::Remove(const FString& Suffix)
	{
		GetRegistry().Entries.RemoveAll([&](const FEntry& Entry) { return Entry.Suffix == Suffix; });
	}

	TArray<FString> FAssetLoaders::GetSuffixes()
	{
		TArray<FString> Suffixes;
		for (const FEntry& Entry : GetRegistry().Entries)
		{
			Suffixes.Add(Entry.Suffix);
		}
		return Suffixes;
	}

	void FAssetLoaders::AddReader(const FString& ClassPath, FAssetReader Reader)
	{
		GetRegistry().Readers.Add(ClassPath, MoveTemp(Reader));
	}

	void FAssetLoaders::RemoveReader(const FString& ClassPath)
	{
		GetRegistry().Readers.Remove(ClassPath);
	}

	const FAssetReader* FObjectAsset::FindReader(const UClass* Class)
	{
		const TMap<FString, FAssetReader>& Readers = GetRegistry().Readers;
		for (; Class && Readers.Num() > 0; Class = Class->GetSuperClass())
		{
			if (const FAssetReader* Reader = Readers.Find(Class->GetPathName()))
			{
				return Reader;
			}
		}
		return nullptr;
	}

	bool FAssetLoaders::FindFile(const FString& ObjectPath, FString& OutFilename, FString& OutSuffix)
	{
		for (const FEntry& Entry : GetRegistry().Entries)
		{
			if (FMounts::FindFile(ObjectPath, Entry.Suffix, OutFilename))
			{
				OutSuffix = Entry.Suffix;
				return true;
			}
		}
		return false;
	}

	TArray<FString> FAssetLoaders::FindAssets(const FString& Root)
	{
		TArray<FString> Paths;
		for (const FEntry& Entry : GetRegistry().Entries)
		{
			for (const FString& Package : FMounts::FindPackages(Root, Entry.Suffix))
			{
				Paths.AddUnique(Package + TEXT(".") + AssetNameOf(Package).ToString());
			}
		}
		Paths.Sort();
		return Paths;
	}

	bool FAssetLoaders::Load(const FString& ObjectPath, FString& OutReason)
	{
		FString AssetPath = ObjectPath;
		int32 Colon = INDEX_NONE;
		if (AssetPath.FindChar(TEXT(':'), Colon))
		{
			AssetPath.LeftInline(Colon);
		}
		FString PackageName;
		FString ObjectName;
		if (!FMounts::SplitObjectPath(AssetPath, PackageName, ObjectName, OutReason))
		{
			return false;
		}
		if (PackageName.Len() >= NAME_SIZE)
		{
			OutReason = FString::Printf(TEXT("a path has at most %d characters"), NAME_SIZE - 1);
			return false;
		}
		if (!IsMounted(PackageName))
		{
			OutReason = TEXT("it stands under no mounted root");
			return false;
		}
		FString Filename;
		FString Suffix;
		if (!FindFile(AssetPath, Filename, Suffix))
		{
			OutReason = FString::Printf(TEXT("there is no file for %s"), *PackageName);
			return false;
		}
		FRegistry& Registry = GetRegistry();
		const FDateTime Written = IFileManager::Get().GetTimeStamp(*Filename);
		const FDateTime* Broken = Registry.BrokenFiles.Find(Filename);
		if (Broken && *Broken == Written)
		{
			OutReason = FString::Printf(TEXT("%s could not be read"), *Filename);
			return false;
		}

		FAssetRequest Request;
		Request.Filename = Filename;
		Request.PackageName = PackageName;
		Request.AssetName = AssetNameOf(PackageName);
		Request.Package = CreatePackage(*PackageName);
		if (StaticFindObjectFast(nullptr, Request.Package, Request.AssetName))
		{
			return true;
		}
		Request.Package->SetLoadedPath(Filename);
		if (!RunLoader(Suffix, Request))
		{
			Registry.BrokenFiles.Add(Filename, Written);
			// The loader has said why.
			OutReason.Empty();
			return false;
		}
		Request.Package->MarkAsFullyLoaded();
		Registry.BrokenFiles.Remove(Filename);
		Registry.ReportedFailures.Remove(ObjectPath);
		Registry.LoadedFiles.Add(Request.Package->GetFName(), Written);
		return true;
	}

	bool FAssetLoaders::HasReportedFailure(const FString& ObjectPath)
	{
		return GetRegistry().ReportedFailures.Contains(ObjectPath);
	}

	void FAssetLoaders::SetReportedFailure(const FString& ObjectPath)
	{
		GetRegistry().ReportedFailures.Add(ObjectPath);
	}

	int32 FAssetLoaders::ReloadChangedFiles()
	{
		int32 NumReloaded = 0;
		TArray<UPackage*> Packages;
		for (TObjectIterator<UPackage> It; It; ++It)
		{
			if (It->GetLoadedPath().EndsWith(ObjectAssetSuffix))
			{
				Packages.Add(*It);
			}
		}
		for (UPackage* Package : Packages)
		{
			const FDateTime Written = IFileManager::Get().GetTimeStamp(*Package->GetLoadedPath());
			FDateTime& Known = GetRegistry().LoadedFiles.FindOrAdd(Package->GetFName(), Written);
			const FName AssetName = AssetNameOf(Package->GetName());
			UObject* Asset = StaticFindObjectFast(nullptr, Package, AssetName);
			if (!Asset || Known == Written)
			{
				continue;
			}
			Known = Written;
			FAssetRequest Request;
			Request.Filename = Package->GetLoadedPath();
			Request.PackageName = Package->GetName();
			Request.AssetName = AssetName;
			Request.Package = Package;
			NumReloaded += FObjectAsset::Reload(Asset, Request) ? 1 : 0;
		}
		return NumReloaded;
	}
}
