#include "Misc/PackageName.h"

#include "Host/Mounts.h"

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	for (const FString& Root : Host::FMounts::GetRoots())
	{
		if (InLongPackageName.StartsWith(Root, ESearchCase::IgnoreCase))
		{
			OutFilename = Host::FMounts::GetFolder(Root) + InLongPackageName.Mid(Root.Len()) + InExtension;
			return true;
		}
	}
	return false;
}
