#include "UObject/NumericProperty.h"

#include "PropertyText.h"

HOST_IMPLEMENT_FIELD(FBoolProperty, "BoolProperty")

FBoolProperty::FBoolProperty(FFieldVariant InOwner, FName InName)
	: FProperty(InOwner, InName, StaticClass())
{
	ElementSize = sizeof(bool);
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

void FBoolProperty::SetBoolBit(uint8 Mask)
{
	FieldMask = Mask;
	ElementSize = sizeof(uint8);
}

bool FBoolProperty::GetPropertyValue(const void* A) const
{
	return (*static_cast<const uint8*>(A) & FieldMask) != 0;
}

void FBoolProperty::SetPropertyValue(void* A, bool Value) const
{
	uint8& Byte = *static_cast<uint8*>(A);
	if (IsNativeBool())
	{
		Byte = Value ? 1 : 0;
	}
	else
	{
		Byte = static_cast<uint8>(Value ? Byte | FieldMask : Byte & ~FieldMask);
	}
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32) const
{
	return (A && GetPropertyValue(A)) == (B && GetPropertyValue(B));
}

FString FBoolProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("bool");
}

void FBoolProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + Index, GetPropertyValue(static_cast<const uint8*>(Src) + Index));
	}
}

void FBoolProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + Index, false);
	}
}

void FBoolProperty::DestroyValueInternal(void*) const
{
}

uint32 FBoolProperty::GetValueTypeHashInternal(const void* Src) const
{
	return GetPropertyValue(Src) ? 1 : 0;
}

const TCHAR* FBoolProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::ReadToken(Buffer, Text);
	if (Text == TEXT("True") || Text == TEXT("Yes") || Text == TEXT("1"))
	{
		SetPropertyValue(Value, true);
		return Behind;
	}
	if (Text == TEXT("False") || Text == TEXT("No") || Text == TEXT("0"))
	{
		SetPropertyValue(Value, false);
		return Behind;
	}
	return Host::RefuseText(*this, Text, ErrorText);
}

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += GetPropertyValue(Value) ? TEXT("True") : TEXT("False");
}
