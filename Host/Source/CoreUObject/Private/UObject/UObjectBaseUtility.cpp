#include "UObject/UObjectBaseUtility.h"

#include "Host/ObjectArray.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace
{
	Host::FObjectItem& ItemOf(const UObjectBase& Object)
	{
		return Host::FObjectArray::Get().ItemOf(Object);
	}

	bool IsPackage(const UObject* Object)
	{
		return Object->GetClass() == UPackage::StaticClass();
	}

	/** Between an object and what is inside it. */
	TCHAR SeparatorBelow(const UObject* Outer)
	{
		const bool bTopLevel = !IsPackage(Outer) && Outer->GetOuter() && IsPackage(Outer->GetOuter());
		return bTopLevel ? TEXT(':') : TEXT('.');
	}

	void AppendPathName(const UObjectBase* Object, const UObject* StopOuter, FString& Path)
	{
		const UObject* Outer = Object->GetOuter();
		if (Outer && Outer != StopOuter)
		{
			AppendPathName(Outer, StopOuter, Path);
			Path.AppendChar(SeparatorBelow(Outer));
		}
		Path += Object->GetFName().ToString();
	}
}

void UObjectBaseUtility::AddToRoot()
{
	checkf(!HasAnyInternalFlags(EInternalObjectFlags::Garbage), TEXT("%s was declared dead: it cannot be a root"), *GetFullName());
	ItemOf(*this).SetFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::RemoveFromRoot()
{
	ItemOf(*this).ClearFlags(EInternalObjectFlags::RootSet);
}

bool UObjectBaseUtility::IsRooted() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::MarkAsGarbage()
{
	checkf(!HasAnyInternalFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::Native),
		TEXT("%s is a root: it cannot be declared dead"), *GetFullName());
	SetFlags(RF_MirroredGarbage);
	ItemOf(*this).SetFlags(EInternalObjectFlags::Garbage);
}

void UObjectBaseUtility::ClearGarbage()
{
	ClearFlags(RF_MirroredGarbage);
	ItemOf(*this).ClearFlags(EInternalObjectFlags::Garbage);
}

bool UObjectBaseUtility::IsUnreachable() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::Unreachable);
}

bool UObjectBaseUtility::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	return IsRegistered() && ItemOf(*this).HasAnyFlags(FlagsToCheck);
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	if (this == StopOuter)
	{
		return TEXT("None");
	}
	FString Path;
	AppendPathName(this, StopOuter, Path);
	return Path;
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

UObject* UObjectBaseUtility::GetTypedOuter(const UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	const UObjectBase* Top = this;
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	check(Top->GetClass() == UPackage::StaticClass());
	return static_cast<UPackage*>(const_cast<UObjectBase*>(Top));
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	if (HasAnyFlags(TemplateTypes))
	{
		return true;
	}
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}

void* UObjectBaseUtility::GetInterfaceAddress(UClass* InterfaceClass)
{
	if (!InterfaceClass || !InterfaceClass->HasAnyClassFlags(CLASS_Interface))
	{
		return nullptr;
	}
	const FImplementedInterface* Entry = GetClass()->FindImplementedInterface(InterfaceClass);
	if (!Entry || Entry->bImplementedByK2)
	{
		return nullptr;
	}
	return reinterpret_cast<uint8*>(this) + Entry->PointerOffset;
}

bool UObjectBaseUtility::ImplementsInterface(UClass* InterfaceClass) const
{
	return InterfaceClass && InterfaceClass->HasAnyClassFlags(CLASS_Interface) && GetClass()->ImplementsInterface(InterfaceClass);
}

FString GetNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetPathNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}

FString GetFullNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetFullName() : FString(TEXT("None"));
}
