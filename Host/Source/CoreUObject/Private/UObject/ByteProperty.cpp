#include "EnumText.h"
#include "UObject/NumericProperty.h"

FString FByteProperty::GetCPPType(FString*, uint32) const
{
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : FString(TEXT("uint8"));
}

bool FByteProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FByteProperty*>(Other)->Enum == Enum;
}

const TCHAR* FByteProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	// The number's own reader is asked for the digits, so an enumeration here would ask itself.
	static const FUInt16Property Wide(nullptr, TEXT("Value"));
	if (!Enum)
	{
		return TProperty_Numeric<uint8>::ImportText_Internal(Buffer, Value, InOwner, PortFlags, ErrorText);
	}
	uint16 Number = 0;
	const TCHAR* Behind = Host::ImportEnumText(*this, Wide, *Enum, Buffer, &Number, ErrorText);
	if (Behind)
	{
		*static_cast<uint8*>(Value) = static_cast<uint8>(FMath::Min<uint16>(Number, 255));
	}
	return Behind;
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Enum)
	{
		Host::ExportEnumText(*this, *Enum, ValueStr, Value, PortFlags);
	}
	else
	{
		TProperty_Numeric<uint8>::ExportText_Internal(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
	}
}
