#include "UObject/SoftObjectPath.h"

#include "Host/AssetLoaders.h"
#include "UObject/Class.h"
#include "UObject/ObjectPath.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"

FSoftObjectPath::FSoftObjectPath(const UObject* InObject)
{
	if (InObject)
	{
		SetPath(InObject->GetPathName());
	}
}

void FSoftObjectPath::SetPath(const FString& Path)
{
	Reset();
	const FString Stripped = Host::StripExportText(Path);
	if (Stripped.IsEmpty() || Stripped == TEXT("None"))
	{
		return;
	}
	// Paths come from files; the parts become names, which have a limit.
	if (Stripped.Len() >= NAME_SIZE)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("an object path has at most %d characters, found %d: %s..."), NAME_SIZE - 1, Stripped.Len(), *Stripped.Left(64));
		return;
	}
	Host::FObjectPathParts Parts(*Stripped);
	PackageName = FName(Parts.Next());
	if (!Parts.HasMore())
	{
		return;
	}
	AssetName = FName(Parts.Next());
	while (Parts.HasMore())
	{
		SubPath += SubPath.IsEmpty() ? TEXT("") : TEXT(".");
		SubPath += Parts.Next();
	}
}

FString FSoftObjectPath::GetAssetPathString() const
{
	if (IsNull())
	{
		return FString();
	}
	FString Result = PackageName.ToString();
	if (!AssetName.IsNone())
	{
		Result.AppendChar(TEXT('.'));
		Result += AssetName.ToString();
	}
	return Result;
}

FString FSoftObjectPath::ToString() const
{
	FString Result = GetAssetPathString();
	if (!SubPath.IsEmpty())
	{
		Result.AppendChar(TEXT(':'));
		Result += SubPath;
	}
	return Result;
}

FString FSoftObjectPath::GetLongPackageName() const
{
	return IsNull() ? FString() : PackageName.ToString();
}

FName FSoftObjectPath::GetLongPackageFName() const
{
	return PackageName;
}

FString FSoftObjectPath::GetAssetName() const
{
	return AssetName.IsNone() ? FString() : AssetName.ToString();
}

UObject* FSoftObjectPath::ResolveObject() const
{
	return IsNull() ? nullptr : StaticFindObject(nullptr, nullptr, *ToString());
}

UObject* FSoftObjectPath::TryLoad() const
{
	if (IsNull())
	{
		return nullptr;
	}
	const FString Path = ToString();
	if (UObject* Loaded = StaticFindObject(nullptr, nullptr, *Path))
	{
		return Loaded;
	}
	// Widgets ask again in every frame that needs the asset: one line says it.
	const uint32 Flags = Host::FAssetLoaders::HasReportedFailure(Path) ? LOAD_Quiet : LOAD_None;
	return StaticLoadObject(UObject::StaticClass(), nullptr, *Path, nullptr, Flags);
}

FSoftClassPath::FSoftClassPath(const UClass* InClass) : FSoftObjectPath(static_cast<const UObject*>(InClass)) {}

UClass* FSoftClassPath::ResolveClass() const
{
	return Cast<UClass>(ResolveObject());
}

UClass* FSoftClassPath::TryLoadClass(UClass* BaseClass) const
{
	UClass* Class = Cast<UClass>(TryLoad());
	return Class && Class->IsChildOf(BaseClass) ? Class : nullptr;
}

UObject* FSoftObjectPtr::Get() const
{
	if (UObject* Object = Cached.Get())
	{
		return Object;
	}
	if (Path.IsNull())
	{
		return nullptr;
	}
	UObject* Object = Path.ResolveObject();
	if (!::IsValid(Object))
	{
		return nullptr;
	}
	Cached = Object;
	return Object;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	if (UObject* Object = Get())
	{
		return Object;
	}
	UObject* Object = Path.TryLoad();
	Cached = Object;
	return Object;
}
