#include "UObject/Property.h"

#include "PropertyText.h"
#include "UObject/ReferenceCollector.h"

HOST_IMPLEMENT_FIELD(FProperty, "Property")

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), ContainerPtrToValuePtr<void>(B, ArrayIndex), PortFlags);
}

void FProperty::CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(DestContainer), ContainerPtrToValuePtr<void>(SrcContainer));
}

void FProperty::ClearValue(void* Data) const
{
	// Bits of a bit field share their byte with others, which must stay.
	DestroyValue(Data);
	InitializeValue(Data);
}

void FProperty::GetValue_InContainer(const void* Container, void* OutValue) const
{
	CopyCompleteValue(OutValue, ContainerPtrToValuePtr<void>(Container));
}

void FProperty::SetValue_InContainer(void* Container, const void* Value) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(Container), Value);
}

uint32 FProperty::GetValueTypeHash(const void* Src) const
{
	checkf(HasAnyPropertyFlags(CPF_HasGetValueTypeHash), TEXT("values of property '%s' have no hash"), *GetName());
	return GetValueTypeHashInternal(Src);
}

uint32 FProperty::GetValueTypeHashInternal(const void*) const
{
	checkNoEntry();
}

void FProperty::ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultContainer, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportTextItem_Direct(ValueStr, ContainerPtrToValuePtr<void>(Container), ContainerPtrToValuePtr<void>(DefaultContainer), Parent, PortFlags, ExportRootScope);
}

bool FProperty::SameType(const FProperty* Other) const
{
	return Other && GetClass() == Other->GetClass();
}

void FProperty::AddReferencedObjects(void*, FReferenceCollector&) const
{
}
