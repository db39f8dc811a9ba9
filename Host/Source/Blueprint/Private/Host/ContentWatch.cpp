#include "Host/ContentWatch.h"

#include "HAL/FileManager.h"
#include "Host/Mounts.h"

namespace Host
{
	namespace
	{
		const TCHAR* const WatchedSuffixes[] = { TEXT(".widget.json"), TEXT(".lua") };
	}

	void FContentWatch::Start()
	{
		Stamps = ReadStamps();
	}

	bool FContentWatch::HasChanged()
	{
		FStamps Now = ReadStamps();
		bool bChanged = Now.Num() != Stamps.Num();
		for (const TPair<FString, FDateTime>& Stamp : Now)
		{
			const FDateTime* Known = Stamps.Find(Stamp.Key);
			bChanged |= !Known || *Known != Stamp.Value;
		}
		Stamps = MoveTemp(Now);
		return bChanged;
	}

	FContentWatch::FStamps FContentWatch::ReadStamps()
	{
		FStamps Found;
		for (const FString& Root : FMounts::GetRoots())
		{
			for (const TCHAR* Suffix : WatchedSuffixes)
			{
				for (const FString& Package : FMounts::FindPackages(Root, Suffix))
				{
					const FString Filename = FMounts::GetFolder(Root) + Package.RightChop(Root.Len()) + Suffix;
					Found.Add(Filename, IFileManager::Get().GetTimeStamp(*Filename));
				}
			}
		}
		return Found;
	}
}
