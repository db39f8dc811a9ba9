#include "UObject/EnumProperty.h"

#include "EnumText.h"
#include "PropertyText.h"

HOST_IMPLEMENT_FIELD(FEnumProperty, "EnumProperty")

FEnumProperty::FEnumProperty(FFieldVariant InOwner, FName InName, UEnum* InEnum)
	: FProperty(InOwner, InName, StaticClass())
	, Enum(InEnum)
{
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::AddCppProperty(FNumericProperty* InUnderlying)
{
	UnderlyingProp = InUnderlying;
	ElementSize = InUnderlying->ElementSize;
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return UnderlyingProp->Identical(A, B, PortFlags);
}

FString FEnumProperty::GetCPPType(FString*, uint32) const
{
	return Enum->CppType;
}

bool FEnumProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FEnumProperty*>(Other)->Enum == Enum;
}

void FEnumProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	FMemory::Memcpy(Dest, Src, static_cast<SIZE_T>(ElementSize) * Count);
}

void FEnumProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, static_cast<SIZE_T>(GetSize()));
}

void FEnumProperty::DestroyValueInternal(void*) const
{
}

uint32 FEnumProperty::GetValueTypeHashInternal(const void* Src) const
{
	return UnderlyingProp->GetValueTypeHash(Src);
}

const TCHAR* FEnumProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice* ErrorText) const
{
	return Host::ImportEnumText(*this, *UnderlyingProp, *Enum, Buffer, Value, ErrorText);
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	Host::ExportEnumText(*UnderlyingProp, *Enum, ValueStr, Value, PortFlags);
}
