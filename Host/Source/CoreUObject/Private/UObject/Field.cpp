#include "UObject/Field.h"

#include "Host/Reflection/DisplayName.h"
#include "Misc/CString.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

FFieldClass::FFieldClass(const TCHAR* InName, EClassCastFlags InId, EClassCastFlags InCastFlags, FFieldClass* InSuper)
	: Name(InName)
	, Id(InId)
	, CastFlags(InCastFlags | (InSuper ? InSuper->CastFlags : CASTCLASS_None))
	, SuperClass(InSuper)
{
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass Class(TEXT("Field"), CASTCLASS_None, CASTCLASS_None, nullptr);
	return &Class;
}

UObject* FField::GetOwnerUObject() const
{
	const FField* Field = this;
	while (Field->Owner.ToField())
	{
		Field = Field->Owner.ToField();
	}
	return Field->Owner.ToUObject();
}

UStruct* FField::GetOwnerStruct() const
{
	return Cast<UStruct>(GetOwnerUObject());
}

UClass* FField::GetOwnerClass() const
{
	return Cast<UClass>(GetOwnerUObject());
}

FString FField::GetPathName(const UObject* StopOuter) const
{
	if (const FField* OwnerField = Owner.ToField())
	{
		return OwnerField->GetPathName(StopOuter) + TEXT(".") + GetName();
	}
	const UObject* OwnerObject = Owner.ToUObject();
	if (!OwnerObject || OwnerObject == StopOuter)
	{
		return GetName();
	}
	// Inside an object that stands right in its package the separator is a colon, deeper ones have it already.
	const FString OwnerPath = OwnerObject->GetPathName(StopOuter);
	const bool bTopLevel = OwnerObject->GetOuter() && !OwnerObject->GetOuter()->GetOuter();
	return OwnerPath + (bTopLevel ? TEXT(":") : TEXT(".")) + GetName();
}

FString FField::GetFullName() const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName();
}

const FString* FField::FindMetaData(const TCHAR* Key) const
{
	return MetaData.Find(Key);
}

const FString* FField::FindMetaData(const FName& Key) const
{
	return MetaData.Find(Key);
}

const FString& FField::GetMetaData(const TCHAR* Key) const
{
	return Host::GetMetaDataOrEmpty(FindMetaData(Key));
}

const FString& FField::GetMetaData(const FName& Key) const
{
	return Host::GetMetaDataOrEmpty(FindMetaData(Key));
}

bool FField::HasMetaData(const TCHAR* Key) const
{
	return MetaData.Contains(Key);
}

bool FField::HasMetaData(const FName& Key) const
{
	return MetaData.Contains(Key);
}

void FField::SetMetaData(const TCHAR* Key, const TCHAR* Value)
{
	MetaData.Set(FName(Key), Value);
}

void FField::SetMetaData(const FName& Key, const TCHAR* Value)
{
	MetaData.Set(Key, Value);
}

void FField::RemoveMetaData(const FName& Key)
{
	MetaData.Remove(Key);
}

bool FField::GetBoolMetaData(const FName& Key) const
{
	return Host::IsTrueMetaData(FindMetaData(Key));
}

int32 FField::GetIntMetaData(const FName& Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

float FField::GetFloatMetaData(const FName& Key) const
{
	return FCString::Atof(*GetMetaData(Key));
}

FText FField::GetDisplayNameText() const
{
	return Host::MakeDisplayNameText(MetaData, GetName(), IsA<FBoolProperty>());
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	return Host::MakeToolTipText(MetaData, GetDisplayNameText(), bShortTooltip);
}
