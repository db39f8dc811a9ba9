#include "UObject/StringProperty.h"

#include "PropertyText.h"

HOST_IMPLEMENT_FIELD(FStrProperty, "StrProperty")
HOST_IMPLEMENT_FIELD(FNameProperty, "NameProperty")

namespace
{
	void AppendText(FString& ValueStr, const FString& Text, int32 PortFlags)
	{
		ValueStr += PortFlags & PPF_Delimited ? Host::Quote(Text) : Text;
	}
}

FStrProperty::FStrProperty(FFieldVariant InOwner, FName InName)
	: TProperty<FString, FProperty>(InOwner, InName, StaticClass())
{
	PropertyFlags |= CPF_HasGetValueTypeHash;
}

bool FStrProperty::Identical(const void* A, const void* B, uint32) const
{
	const FString Empty;
	return (A ? GetPropertyValue(A) : Empty).Equals(B ? GetPropertyValue(B) : Empty, ESearchCase::CaseSensitive);
}

FString FStrProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("FString");
}

uint32 FStrProperty::GetValueTypeHashInternal(const void* Src) const
{
	return GetTypeHash(GetPropertyValue(Src));
}

const TCHAR* FStrProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* Behind = Host::ReadText(Buffer, PortFlags, *GetPropertyValuePtr(Value));
	return Behind ? Behind : Host::RefuseText(*this, Buffer, ErrorText);
}

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	AppendText(ValueStr, GetPropertyValue(Value), PortFlags);
}

FString FNameProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("FName");
}

const TCHAR* FNameProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::ReadText(Buffer, PortFlags, Text);
	if (!Behind || Text.Len() >= NAME_SIZE)
	{
		return Host::RefuseText(*this, Text, ErrorText);
	}
	SetPropertyValue(Value, FName(*Text));
	return Behind;
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	AppendText(ValueStr, GetPropertyValue(Value).ToString(), PortFlags);
}
