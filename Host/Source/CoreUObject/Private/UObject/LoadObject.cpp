#include "Host/AssetLoaders.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/ObjectPath.h"
#include "UObject/UObjectGlobals.h"

namespace
{
	/** "/Mount/Dir/Asset" means "/Mount/Dir/Asset.Asset". */
	FString CompletePath(UObject* Outer, const TCHAR* Name)
	{
		FString Path = Host::StripExportText(FString(Name));
		if (Outer)
		{
			Path = Outer->GetPathName() + TEXT(".") + Path;
		}
		int32 LastSlash = INDEX_NONE;
		const bool bHasSlash = Path.FindLastChar(TEXT('/'), LastSlash);
		if (bHasSlash && Path.Find(TEXT("."), ESearchCase::CaseSensitive, ESearchDir::FromStart, LastSlash) == INDEX_NONE)
		{
			Path += TEXT(".") + Path.RightChop(LastSlash + 1);
		}
		return Path;
	}

	bool IsNativePath(const FString& Path)
	{
		return Path.StartsWith(TEXT("/Script/"));
	}

	/** The object of the path, loaded if need be; null with the reason, which is empty when it has been logged. */
	UObject* FindOrLoad(const FString& Path, FString& OutReason)
	{
		if (UObject* Object = StaticFindObject(nullptr, nullptr, *Path))
		{
			return Object;
		}
		if (Path.IsEmpty() || IsNativePath(Path))
		{
			OutReason = TEXT("there is no such object");
			return nullptr;
		}
		if (!Host::FAssetLoaders::Load(Path, OutReason))
		{
			return nullptr;
		}
		UObject* Object = StaticFindObject(nullptr, nullptr, *Path);
		if (!Object)
		{
			OutReason = TEXT("its file has no such object");
		}
		return Object;
	}
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR*, uint32 LoadFlags)
{
	check(Class && Name);
	const FString Path = CompletePath(InOuter, Name);
	FString Reason;
	UObject* Object = FindOrLoad(Path, Reason);
	if (Object && Object->IsA(Class))
	{
		return Object;
	}
	if (Object)
	{
		Reason = FString::Printf(TEXT("it is a %s"), *Object->GetClass()->GetName());
	}
	const bool bLogged = Reason.IsEmpty();
	const bool bLog = !bLogged && !(LoadFlags & (LOAD_Quiet | LOAD_NoWarn));
	UE_CLOG(bLog, LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s': %s"), *Class->GetName(), *Path, *Reason);
	if (bLog || bLogged)
	{
		Host::FAssetLoaders::SetReportedFailure(Path);
	}
	return nullptr;
}

UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags)
{
	check(BaseClass);
	UClass* Class = Cast<UClass>(StaticLoadObject(UClass::StaticClass(), InOuter, Name, Filename, LoadFlags));
	if (Class && !Class->IsChildOf(BaseClass))
	{
		UE_CLOG(!(LoadFlags & (LOAD_Quiet | LOAD_NoWarn)), LogUObjectGlobals, Warning,
			TEXT("Failed to find class '%s': it does not derive from %s"), *Class->GetPathName(), *BaseClass->GetName());
		return nullptr;
	}
	return Class;
}
