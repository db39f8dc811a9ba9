#include "UObject/ObjectProperty.h"

#include "PropertyText.h"

HOST_IMPLEMENT_FIELD(FSoftObjectProperty, "SoftObjectProperty")
HOST_IMPLEMENT_FIELD(FSoftClassProperty, "SoftClassProperty")

FSoftObjectProperty::FSoftObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass)
	: FSoftObjectProperty(InOwner, InName, StaticClass(), InPropertyClass)
{
}

FSoftObjectProperty::FSoftObjectProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass)
	: TObjectPropertyBase<FSoftObjectPtr>(InOwner, InName, InClass, InPropertyClass)
{
}

UObject* FSoftObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return GetPropertyValue(PropertyValueAddress).Get();
}

void FSoftObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	*GetPropertyValuePtr(PropertyValueAddress) = Value;
}

bool FSoftObjectProperty::Identical(const void* A, const void* B, uint32) const
{
	// By path: whether the object is loaded at the moment is no part of the value.
	const FSoftObjectPtr Null;
	return (A ? GetPropertyValue(A) : Null) == (B ? GetPropertyValue(B) : Null);
}

FString FSoftObjectProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TSoftObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}

uint32 FSoftObjectProperty::GetValueTypeHashInternal(const void* Src) const
{
	return GetTypeHash(GetPropertyValue(Src));
}

const TCHAR* FSoftObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::ReadText(Buffer, PortFlags, Text);
	const FSoftObjectPath Path(Text.TrimStartAndEnd());
	if (!Behind || (Path.IsNull() && !Text.IsEmpty() && Text != TEXT("None")))
	{
		return Host::RefuseText(*this, Text, ErrorText);
	}
	*GetPropertyValuePtr(Value) = Path;
	return Behind;
}

void FSoftObjectProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const FSoftObjectPtr& Pointer = GetPropertyValue(Value);
	const FString Path = Pointer.IsNull() ? FString(TEXT("None")) : Pointer.ToString();
	ValueStr += PortFlags & PPF_Delimited ? Host::Quote(Path) : Path;
}

FSoftClassProperty::FSoftClassProperty(FFieldVariant InOwner, FName InName, UClass* InMetaClass)
	: FSoftObjectProperty(InOwner, InName, StaticClass(), UClass::StaticClass())
	, MetaClass(InMetaClass)
{
}

bool FSoftClassProperty::CanHold(const UObject* Object) const
{
	return Super::CanHold(Object) && (!Object || !MetaClass || static_cast<const UClass*>(Object)->IsChildOf(MetaClass));
}

FString FSoftClassProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TSoftClassPtr<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName());
}

bool FSoftClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FSoftClassProperty*>(Other)->MetaClass == MetaClass;
}
