#include "UObject/StructProperty.h"

#include "Host/Reflection/TypeBuilder.h"
#include "PropertyText.h"
#include "UObject/ReferenceCollector.h"

HOST_IMPLEMENT_FIELD(FStructProperty, "StructProperty")

FStructProperty::FStructProperty(FFieldVariant InOwner, FName InName, UScriptStruct* InStruct)
	: FProperty(InOwner, InName, StaticClass())
	, Struct(InStruct)
{
	TakeLayout();
}

void FStructProperty::LinkInternal()
{
	// What the structure refers to must be known before its owner asks.
	Host::FTypeBuilder::EnsureLinked(Struct);
	TakeLayout();
}

void FStructProperty::TakeLayout()
{
	ElementSize = Struct->GetStructureSize();
	if (Struct->StructFlags & STRUCT_IsPlainOldData)
	{
		PropertyFlags |= CPF_IsPlainOldData;
	}
	if (Struct->StructFlags & STRUCT_NoDestructor)
	{
		PropertyFlags |= CPF_NoDestructor;
	}
	if (Struct->GetCppStructOps() && Struct->GetCppStructOps()->GetTypeHash)
	{
		PropertyFlags |= CPF_HasGetValueTypeHash;
	}
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (A && B)
	{
		return Struct->CompareScriptStruct(A, B, PortFlags);
	}
	if (!A && !B)
	{
		return true;
	}
	void* Default = FMemory::Malloc(static_cast<SIZE_T>(ElementSize), static_cast<uint32>(GetMinAlignment()));
	Struct->InitializeStruct(Default);
	const bool bSame = Struct->CompareScriptStruct(A ? A : Default, B ? B : Default, PortFlags);
	Struct->DestroyStruct(Default);
	FMemory::Free(Default);
	return bSame;
}

FString FStructProperty::GetCPPType(FString*, uint32) const
{
	return Struct->GetStructCPPName();
}

bool FStructProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FStructProperty*>(Other)->Struct == Struct;
}

bool FStructProperty::ContainsObjectReference() const
{
	if (Struct->GetCppStructOps() && Struct->GetCppStructOps()->AddReferencedObjects)
	{
		return true;
	}
	// A structure that holds itself in an array is asked before it knows.
	return Struct->RefLink || Host::FTypeBuilder::IsLinking(Struct);
}

void FStructProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	Collector.AddPropertyReferences(Struct, Value);
}

void FStructProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	Struct->CopyScriptStruct(Dest, Src, Count);
}

void FStructProperty::InitializeValueInternal(void* Dest) const
{
	Struct->InitializeStruct(Dest, ArrayDim);
}

void FStructProperty::DestroyValueInternal(void* Dest) const
{
	Struct->DestroyStruct(Dest, ArrayDim);
}

uint32 FStructProperty::GetValueTypeHashInternal(const void* Src) const
{
	return Struct->GetStructTypeHash(Src);
}

const TCHAR* FStructProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return Struct->ImportText(Buffer, Value, InOwner, PortFlags, ErrorText, Struct->GetName());
}

void FStructProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	Struct->ExportText(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}
