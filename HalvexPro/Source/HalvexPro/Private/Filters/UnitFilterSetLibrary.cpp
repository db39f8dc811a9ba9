#include "Filters/UnitFilterSetLibrary.h"

#include "Filters/UnitFilterSetFile.h"
#include "HAL/FileManager.h"
#include "HalvexProLog.h"
#include "Misc/Paths.h"
#include "Misc/SecureHash.h"

namespace
{
	const TCHAR* const Extension = TEXT("json");

	FString GetFolder()
	{
		return FPaths::ProjectSavedDir() / TEXT("Filters");
	}

	/** Names of devices on some systems, whatever their extension. */
	bool IsReserved(const FString& FileName)
	{
		static const TCHAR* const Devices[] = { TEXT("con"), TEXT("prn"), TEXT("aux"), TEXT("nul") };
		for (const TCHAR* Device : Devices)
		{
			if (FileName == Device)
			{
				return true;
			}
		}
		return FileName.Len() == 4 && (FileName.StartsWith(TEXT("com")) || FileName.StartsWith(TEXT("lpt")));
	}

	/**
	 * A name that every file system takes, the same for names that differ by their case only. Plain names stay as they are; of
	 * others the plain characters are kept, and a sum of the whole name tells them apart.
	 */
	FString MakeFileName(const FString& Name)
	{
		constexpr int32 MaxPlain = 60;
		FString Plain;
		const FString Lower = Name.ToLower();
		for (const TCHAR Char : Lower.Left(MaxPlain))
		{
			const bool bPlain = (Char >= 'a' && Char <= 'z') || (Char >= '0' && Char <= '9') || Char == ' ' || Char == '-' || Char == '_';
			Plain.AppendChar(bPlain ? Char : TCHAR('_'));
		}
		Plain.TrimStartAndEndInline();
		if (Plain.Equals(Lower, ESearchCase::CaseSensitive) && !IsReserved(Plain))
		{
			return Plain;
		}
		constexpr int32 SumLength = 12;
		const FTCHARToUTF8 Bytes(*Lower);
		return Plain + TEXT("-") + FSHA1::HashBuffer(Bytes.Get(), uint64(Bytes.Length())).ToString().Left(SumLength);
	}

	struct FKeptSet
	{
		FString Filename;
		FUnitFilterSet Set;
	};

	/** Logs what is wrong with a kept file once, until it is written anew: the files are read each time someone asks for a set. */
	void Tell(const FString& Filename, const FReadProblems& Problems)
	{
		static TMap<FString, FDateTime> Told;
		const FDateTime Written = IFileManager::Get().GetTimeStamp(*Filename);
		FDateTime& Last = Told.FindOrAdd(Filename);
		if (Last != Written)
		{
			Last = Written;
			Problems.Log();
		}
	}

	/** Reads all kept sets. A file that cannot be read stops none of the others. */
	TArray<FKeptSet> ReadAll()
	{
		TArray<FString> Names;
		IFileManager::Get().FindFiles(Names, *(GetFolder() / TEXT("*.json")), true, false);
		TArray<FKeptSet> Sets;
		for (const FString& Name : Names)
		{
			FKeptSet Kept;
			Kept.Filename = GetFolder() / Name;
			FReadProblems Problems(Kept.Filename);
			const bool bRead = FUnitFilterSetFile::Read(Kept.Filename, Kept.Set, Problems);
			if (!Problems.IsEmpty())
			{
				Tell(Kept.Filename, Problems);
			}
			if (bRead)
			{
				if (Kept.Set.Name.IsEmpty())
				{
					Kept.Set.Name = FPaths::GetBaseFilename(Name);
				}
				Sets.Add(MoveTemp(Kept));
			}
		}
		return Sets;
	}

	bool AreSame(const FString& Name, const FString& Other)
	{
		return Name.TrimStartAndEnd().Equals(Other, ESearchCase::IgnoreCase);
	}

	bool Find(const FString& Name, FKeptSet& OutKept)
	{
		for (FKeptSet& Kept : ReadAll())
		{
			if (AreSame(Name, Kept.Set.Name))
			{
				OutKept = MoveTemp(Kept);
				return true;
			}
		}
		return false;
	}

	bool Refuse(const TCHAR* Action, const FString& Name, const TCHAR* Reason)
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Filters: '%s' cannot be %s: %s"), *Name, Action, Reason);
		return false;
	}

	FString WithExtension(const FString& Filename)
	{
		return FPaths::GetExtension(Filename).IsEmpty() ? Filename + TEXT(".") + Extension : Filename;
	}
}

TArray<FString> UUnitFilterSetLibrary::ListFilterSets()
{
	TArray<FString> Names;
	for (FKeptSet& Kept : ReadAll())
	{
		Names.Add(MoveTemp(Kept.Set.Name));
	}
	Names.Sort([](const FString& A, const FString& B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; });
	return Names;
}

bool UUnitFilterSetLibrary::HasFilterSet(const FString& Name)
{
	FKeptSet Kept;
	return Find(Name, Kept);
}

bool UUnitFilterSetLibrary::SaveFilterSet(const FUnitFilterSet& Set)
{
	FUnitFilterSet Trimmed = Set;
	Trimmed.Name.TrimStartAndEndInline();
	if (Trimmed.Name.IsEmpty())
	{
		return Refuse(TEXT("kept"), Set.Name, TEXT("a set of filters needs a name"));
	}
	FKeptSet Before;
	const bool bReplaces = Find(Trimmed.Name, Before);
	const FString Filename = GetFolder() / MakeFileName(Trimmed.Name) + TEXT(".") + Extension;
	if (!FUnitFilterSetFile::Save(Filename, Trimmed))
	{
		return false;
	}
	// The set before may be in another file: someone put it there.
	if (bReplaces && !Before.Filename.Equals(Filename, ESearchCase::CaseSensitive))
	{
		IFileManager::Get().Delete(*Before.Filename);
	}
	return true;
}

bool UUnitFilterSetLibrary::LoadFilterSet(const FString& Name, FUnitFilterSet& OutSet)
{
	FKeptSet Kept;
	if (!Find(Name, Kept))
	{
		OutSet = FUnitFilterSet();
		return Refuse(TEXT("loaded"), Name, TEXT("there is no set of that name"));
	}
	OutSet = MoveTemp(Kept.Set);
	return true;
}

bool UUnitFilterSetLibrary::DeleteFilterSet(const FString& Name)
{
	FKeptSet Kept;
	return Find(Name, Kept) ? IFileManager::Get().Delete(*Kept.Filename) : Refuse(TEXT("deleted"), Name, TEXT("there is no set of that name"));
}

bool UUnitFilterSetLibrary::RenameFilterSet(const FString& Name, const FString& NewName)
{
	FKeptSet Kept;
	if (!Find(Name, Kept))
	{
		return Refuse(TEXT("renamed"), Name, TEXT("there is no set of that name"));
	}
	if (!AreSame(Name, NewName.TrimStartAndEnd()) && HasFilterSet(NewName))
	{
		return Refuse(TEXT("renamed"), Name, TEXT("there is a set of the new name"));
	}
	Kept.Set.Name = NewName;
	if (!SaveFilterSet(Kept.Set))
	{
		return false;
	}
	const FString NewFilename = GetFolder() / MakeFileName(NewName.TrimStartAndEnd()) + TEXT(".") + Extension;
	return NewFilename.Equals(Kept.Filename, ESearchCase::CaseSensitive) || IFileManager::Get().Delete(*Kept.Filename);
}

bool UUnitFilterSetLibrary::ExportFilterSet(const FUnitFilterSet& Set, const FString& Filename)
{
	return FUnitFilterSetFile::Save(WithExtension(Filename), Set);
}

bool UUnitFilterSetLibrary::ImportFilterSet(const FString& Filename, FUnitFilterSet& OutSet)
{
	if (!FUnitFilterSetFile::Load(WithExtension(Filename), OutSet))
	{
		return false;
	}
	if (OutSet.Name.IsEmpty())
	{
		OutSet.Name = FPaths::GetBaseFilename(Filename);
	}
	return true;
}

FString UUnitFilterSetLibrary::SuggestFilename(const FString& Name, const FString& FileExtension)
{
	const FString Plain = MakeFileName(Name.TrimStartAndEnd().IsEmpty() ? FString(TEXT("Filters")) : Name.TrimStartAndEnd());
	return FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir() / TEXT("Shared") / Plain + TEXT(".") + FileExtension);
}
