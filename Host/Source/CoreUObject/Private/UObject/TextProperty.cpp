#include "UObject/TextProperty.h"

#include "Internationalization/TextStringHelper.h"
#include "PropertyText.h"

HOST_IMPLEMENT_FIELD(FTextProperty, "TextProperty")

bool FTextProperty::Identical(const void* A, const void* B, uint32) const
{
	const FText& Empty = FText::GetEmpty();
	const FText& First = A ? GetPropertyValue(A) : Empty;
	const FText& Second = B ? GetPropertyValue(B) : Empty;
	if (First.IdenticalTo(Second))
	{
		return true;
	}
	FString FirstForm;
	FString SecondForm;
	FTextStringHelper::WriteToBuffer(FirstForm, First);
	FTextStringHelper::WriteToBuffer(SecondForm, Second);
	return FirstForm.Equals(SecondForm, ESearchCase::CaseSensitive);
}

FString FTextProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("FText");
}

const TCHAR* FTextProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FText Text;
	if (const TCHAR* Behind = FTextStringHelper::ReadFromBuffer(Host::SkipBlanks(Buffer), Text))
	{
		SetPropertyValue(Value, Text);
		return Behind;
	}
	FString Plain;
	const TCHAR* Behind = Host::ReadText(Buffer, PortFlags, Plain);
	if (!Behind)
	{
		return Host::RefuseText(*this, Buffer, ErrorText);
	}
	SetPropertyValue(Value, FText::FromString(Plain));
	return Behind;
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const FText& Text = GetPropertyValue(Value);
	if (PortFlags & (PPF_ExternalEditor | PPF_PropertyWindow))
	{
		ValueStr += PortFlags & PPF_Delimited ? Host::Quote(Text.ToString()) : Text.ToString();
	}
	else
	{
		FTextStringHelper::WriteToBuffer(ValueStr, Text, (PortFlags & PPF_Delimited) != 0);
	}
}
