#include "UObject/ObjectProperty.h"

#include "PropertyText.h"
#include "UObject/ReferenceCollector.h"

HOST_IMPLEMENT_FIELD(FInterfaceProperty, "InterfaceProperty")

FInterfaceProperty::FInterfaceProperty(FFieldVariant InOwner, FName InName, UClass* InInterfaceClass)
	: TProperty<FScriptInterface, FProperty>(InOwner, InName, StaticClass())
	, InterfaceClass(InInterfaceClass)
{
	PropertyFlags |= CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

bool FInterfaceProperty::SetInterfaceObject(void* Value, UObject* Object) const
{
	if (Object && !Object->GetClass()->ImplementsInterface(InterfaceClass))
	{
		return false;
	}
	SetPropertyValue(Value, FScriptInterface(Object, Object ? Object->GetNativeInterfaceAddress(InterfaceClass) : nullptr));
	return true;
}

bool FInterfaceProperty::Identical(const void* A, const void* B, uint32) const
{
	const FScriptInterface Null;
	return (A ? GetPropertyValue(A) : Null) == (B ? GetPropertyValue(B) : Null);
}

FString FInterfaceProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TScriptInterface<I%s>"), *InterfaceClass->GetName());
}

bool FInterfaceProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FInterfaceProperty*>(Other)->InterfaceClass == InterfaceClass;
}

void FInterfaceProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	FScriptInterface& Interface = *GetPropertyValuePtr(Value);
	Collector.AddReferencedObject(Interface.GetObjectRef());
	if (!Interface.GetObject())
	{
		Interface.SetInterface(nullptr);
	}
}

uint32 FInterfaceProperty::GetValueTypeHashInternal(const void* Src) const
{
	return GetTypeHash(GetPropertyValue(Src));
}

const TCHAR* FInterfaceProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	UObject* Object = nullptr;
	if (!FObjectPropertyBase::ParseObjectPropertyValue(this, InOwner, nullptr, static_cast<uint32>(PortFlags), Buffer, Object, ErrorText))
	{
		return nullptr;
	}
	return SetInterfaceObject(Value, Object) ? Buffer : Host::RefuseText(*this, Object->GetPathName(), ErrorText);
}

void FInterfaceProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const UObject* Object = GetPropertyValue(Value).GetObject();
	const FString Path = Object ? Object->GetPathName() : FString(TEXT("None"));
	ValueStr += Object && (PortFlags & PPF_Delimited) ? Host::Quote(Path) : Path;
}
