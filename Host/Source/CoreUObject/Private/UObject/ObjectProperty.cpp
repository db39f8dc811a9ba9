#include "UObject/ObjectProperty.h"

#include "PropertyText.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"

HOST_IMPLEMENT_FIELD(FObjectPropertyBase, "ObjectPropertyBase")
HOST_IMPLEMENT_FIELD(FObjectProperty, "ObjectProperty")
HOST_IMPLEMENT_FIELD(FClassProperty, "ClassProperty")
HOST_IMPLEMENT_FIELD(FWeakObjectProperty, "WeakObjectProperty")

namespace Host
{
	namespace
	{
		/** The path in "Class'/Path.Object'", or the text as it is. */
		FString StripClass(const FString& Text)
		{
			int32 Quote = INDEX_NONE;
			if (Text.EndsWith(TEXT("'")) && Text.FindChar(u'\'', Quote) && Quote < Text.Len() - 1)
			{
				return Text.Mid(Quote + 1, Text.Len() - Quote - 2);
			}
			return Text;
		}

		UObject* FindOrLoad(const FString& Path, UObject* OwnerObject)
		{
			if (UObject* Found = StaticFindObject(UObject::StaticClass(), nullptr, *Path))
			{
				return Found;
			}
			if (Path.StartsWith(TEXT("/")))
			{
				return StaticLoadObject(UObject::StaticClass(), nullptr, *Path);
			}
			UObject* Inside = OwnerObject ? StaticFindObject(UObject::StaticClass(), OwnerObject, *Path) : nullptr;
			return Inside || !OwnerObject || !OwnerObject->GetOuter() ? Inside : StaticFindObject(UObject::StaticClass(), OwnerObject->GetOuter(), *Path);
		}
	}
}

bool FObjectPropertyBase::CanHold(const UObject* Object) const
{
	return !Object || Object->IsA(PropertyClass);
}

bool FObjectPropertyBase::Identical(const void* A, const void* B, uint32) const
{
	return (A ? GetObjectPropertyValue(A) : nullptr) == (B ? GetObjectPropertyValue(B) : nullptr);
}

bool FObjectPropertyBase::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FObjectPropertyBase*>(Other)->PropertyClass == PropertyClass;
}

bool FObjectPropertyBase::ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass, uint32 PortFlags,
	const TCHAR*& Buffer, UObject*& OutResolvedValue, FOutputDevice* ErrorText)
{
	FString Text;
	const TCHAR* Behind = Host::ReadText(Buffer, static_cast<int32>(PortFlags) | PPF_Delimited, Text);
	if (!Behind)
	{
		return false;
	}
	UObject* Object = nullptr;
	if (!Text.IsEmpty() && Text != TEXT("None"))
	{
		Object = Host::FindOrLoad(Host::StripClass(Text), OwnerObject);
		if (!Object || (RequiredMetaClass && !Object->IsA(RequiredMetaClass)))
		{
			Host::RefuseText(*Property, Text, ErrorText);
			return false;
		}
	}
	Buffer = Behind;
	OutResolvedValue = Object;
	return true;
}

uint32 FObjectPropertyBase::GetValueTypeHashInternal(const void* Src) const
{
	return PointerHash(GetObjectPropertyValue(Src));
}

const TCHAR* FObjectPropertyBase::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	UObject* Object = nullptr;
	if (!ParseObjectPropertyValue(this, InOwner, PropertyClass, static_cast<uint32>(PortFlags), Buffer, Object, ErrorText))
	{
		return nullptr;
	}
	if (!CanHold(Object))
	{
		return Host::RefuseText(*this, Object->GetPathName(), ErrorText);
	}
	SetObjectPropertyValue(Value, Object);
	return Buffer;
}

void FObjectPropertyBase::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const UObject* Object = GetObjectPropertyValue(Value);
	if (!Object)
	{
		ValueStr += TEXT("None");
		return;
	}
	const FString Path = PortFlags & PPF_SimpleObjectText ? Object->GetPathName() : FString::Printf(TEXT("%s'%s'"), *Object->GetClass()->GetPathName(), *Object->GetPathName());
	ValueStr += PortFlags & PPF_Delimited ? Host::Quote(Path) : Path;
}

FObjectProperty::FObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass)
	: FObjectProperty(InOwner, InName, StaticClass(), InPropertyClass)
{
}

FObjectProperty::FObjectProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass)
	: TObjectPropertyBase<UObject*>(InOwner, InName, InClass, InPropertyClass)
{
	PropertyFlags |= CPF_ZeroConstructor;
}

UObject* FObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return GetPropertyValue(PropertyValueAddress);
}

void FObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	SetPropertyValue(PropertyValueAddress, Value);
}

FString FObjectProperty::GetCPPType(FString*, uint32) const
{
	const FString ClassName = PropertyClass->GetPrefixCPP() + PropertyClass->GetName();
	return HasAnyPropertyFlags(CPF_TObjectPtr) ? FString::Printf(TEXT("TObjectPtr<%s>"), *ClassName) : ClassName + TEXT("*");
}

void FObjectProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	Collector.AddReferencedObject(*GetPropertyValuePtr(Value));
}

FClassProperty::FClassProperty(FFieldVariant InOwner, FName InName, UClass* InMetaClass)
	: FObjectProperty(InOwner, InName, StaticClass(), UClass::StaticClass())
	, MetaClass(InMetaClass)
{
}

bool FClassProperty::CanHold(const UObject* Object) const
{
	return Super::CanHold(Object) && (!Object || !MetaClass || static_cast<const UClass*>(Object)->IsChildOf(MetaClass));
}

FString FClassProperty::GetCPPType(FString*, uint32) const
{
	return MetaClass ? FString::Printf(TEXT("TSubclassOf<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName()) : FString(TEXT("UClass*"));
}

bool FClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FClassProperty*>(Other)->MetaClass == MetaClass;
}

FWeakObjectProperty::FWeakObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass)
	: TObjectPropertyBase<FWeakObjectPtr>(InOwner, InName, StaticClass(), InPropertyClass)
{
	PropertyFlags |= CPF_ZeroConstructor;
}

UObject* FWeakObjectProperty::GetObjectPropertyValue(const void* PropertyValueAddress) const
{
	return GetPropertyValue(PropertyValueAddress).Get();
}

void FWeakObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	SetPropertyValue(PropertyValueAddress, FWeakObjectPtr(Value));
}

FString FWeakObjectProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TWeakObjectPtr<%s%s>"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName());
}
