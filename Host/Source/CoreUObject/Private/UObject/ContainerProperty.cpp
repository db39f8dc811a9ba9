#include "UObject/ContainerProperty.h"

#include "Host/LooseValue.h"
#include "PropertyText.h"
#include "UObject/ContainerHelpers.h"
#include "UObject/ReferenceCollector.h"

HOST_IMPLEMENT_FIELD(FContainerPropertyBase, "ContainerProperty")
HOST_IMPLEMENT_FIELD(FArrayProperty, "ArrayProperty")
HOST_IMPLEMENT_FIELD(FSetProperty, "SetProperty")
HOST_IMPLEMENT_FIELD(FMapProperty, "MapProperty")

namespace
{
	/** Places the description of an element, which stands by itself. */
	void LinkInner(FProperty& Inner)
	{
		Inner.SetOffset_Internal(0);
		Inner.LinkInternal();
	}

	/**
	 * Reads "(A,B,C)". ReadElement reads one element and gives what follows it. Null, with nothing promised about what was read
	 * until then, when the text is not of that form.
	 */
	const TCHAR* ReadList(const TCHAR* Buffer, TFunctionRef<const TCHAR*(const TCHAR*)> ReadElement)
	{
		Buffer = Host::SkipBlanks(Buffer);
		if (*Buffer++ != u'(')
		{
			return nullptr;
		}
		Buffer = Host::SkipBlanks(Buffer);
		while (*Buffer != u')')
		{
			Buffer = ReadElement(Buffer);
			if (!Buffer)
			{
				return nullptr;
			}
			Buffer = Host::SkipBlanks(Buffer);
			if (*Buffer == u',')
			{
				Buffer = Host::SkipBlanks(Buffer + 1);
			}
			else if (*Buffer != u')')
			{
				return nullptr;
			}
		}
		return Buffer + 1;
	}

	FString FirstCharacters(const TCHAR* Buffer)
	{
		constexpr int32 Shown = 40;
		const FString Text(Buffer);
		return Text.Len() > Shown ? Text.Left(Shown) + TEXT("...") : Text;
	}
}

FContainerPropertyBase::FContainerPropertyBase(FFieldVariant InOwner, FName InName, FFieldClass* InClass, const Host::FContainerOps* InOps)
	: FProperty(InOwner, InName, InClass)
	, ContainerOps(InOps)
{
	ElementSize = InOps->Size;
}

void FContainerPropertyBase::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		ContainerOps->Copy(static_cast<uint8*>(Dest) + Index * ElementSize, static_cast<const uint8*>(Src) + Index * ElementSize);
	}
}

void FContainerPropertyBase::InitializeValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		ContainerOps->Construct(static_cast<uint8*>(Dest) + Index * ElementSize);
	}
}

void FContainerPropertyBase::DestroyValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		ContainerOps->Destruct(static_cast<uint8*>(Dest) + Index * ElementSize);
	}
}

FArrayProperty::FArrayProperty(FFieldVariant InOwner, FName InName, const Host::FArrayOps* InOps)
	: FContainerPropertyBase(InOwner, InName, StaticClass(), InOps)
	, Ops(InOps)
{
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const int32 NumA = A ? Ops->Num(A) : 0;
	const int32 NumB = B ? Ops->Num(B) : 0;
	if (NumA != NumB || NumA == 0)
	{
		return NumA == NumB;
	}
	const FScriptArrayHelper ArrayA(this, A);
	const FScriptArrayHelper ArrayB(this, B);
	for (int32 Index = 0; Index < NumA; ++Index)
	{
		if (!Inner->Identical(ArrayA.GetRawPtr(Index), ArrayB.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

FString FArrayProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TArray<%s>"), *Inner->GetCPPType());
}

bool FArrayProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Inner->SameType(static_cast<const FArrayProperty*>(Other)->Inner);
}

void FArrayProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	const FScriptArrayHelper Array(this, Value);
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		Inner->AddReferencedObjects(Array.GetRawPtr(Index), Collector);
	}
}

void FArrayProperty::LinkInternal()
{
	LinkInner(*Inner);
}

const TCHAR* FArrayProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const Host::FLooseValue Read(*this);
	const FScriptArrayHelper Array(this, Read.Get());
	const TCHAR* Behind = ReadList(Buffer, [&](const TCHAR* At)
	{
		const int32 Index = Array.AddValue();
		return Inner->ImportText_Direct(At, Array.GetRawPtr(Index), InOwner, PortFlags | PPF_Delimited, ErrorText);
	});
	if (!Behind)
	{
		return Host::RefuseText(*this, FirstCharacters(Buffer), ErrorText);
	}
	CopySingleValue(Value, Read.Get());
	return Behind;
}

void FArrayProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptArrayHelper Array(this, Value);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		if (Index > 0)
		{
			ValueStr += TEXT(",");
		}
		Inner->ExportTextItem_Direct(ValueStr, Array.GetRawPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += TEXT(")");
}

FSetProperty::FSetProperty(FFieldVariant InOwner, FName InName, const Host::FSparseOps* InOps)
	: FContainerPropertyBase(InOwner, InName, StaticClass(), InOps)
	, Ops(InOps)
{
}

FSetProperty::~FSetProperty()
{
	delete ElementProp;
}

bool FSetProperty::Identical(const void* A, const void* B, uint32) const
{
	const int32 NumA = A ? Ops->Num(A) : 0;
	const int32 NumB = B ? Ops->Num(B) : 0;
	if (NumA != NumB || NumA == 0)
	{
		return NumA == NumB;
	}
	const FScriptSetHelper SetA(this, A);
	const FScriptSetHelper SetB(this, B);
	for (int32 Index = 0; Index < SetA.GetMaxIndex(); ++Index)
	{
		if (SetA.IsValidIndex(Index) && SetB.FindElementIndex(SetA.GetElementPtr(Index)) == INDEX_NONE)
		{
			return false;
		}
	}
	return true;
}

FString FSetProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TSet<%s>"), *ElementProp->GetCPPType());
}

bool FSetProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && ElementProp->SameType(static_cast<const FSetProperty*>(Other)->ElementProp);
}

void FSetProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	const FScriptSetHelper Set(this, Value);
	for (int32 Index = 0; Index < Set.GetMaxIndex(); ++Index)
	{
		if (Set.IsValidIndex(Index))
		{
			// Shown as a copy: an element must not change where its hash holds it.
			const Host::FLooseValue Element(*ElementProp, Set.GetElementPtr(Index));
			ElementProp->AddReferencedObjects(Element.Get(), Collector);
		}
	}
}

void FSetProperty::LinkInternal()
{
	LinkInner(*ElementProp);
}

const TCHAR* FSetProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const Host::FLooseValue Read(*this);
	const FScriptSetHelper Set(this, Read.Get());
	const TCHAR* Behind = ReadList(Buffer, [&](const TCHAR* At)
	{
		const Host::FLooseValue Element(*ElementProp);
		const TCHAR* BehindElement = ElementProp->ImportText_Direct(At, Element.Get(), InOwner, PortFlags | PPF_Delimited, ErrorText);
		if (BehindElement)
		{
			Set.AddElement(Element.Get());
		}
		return BehindElement;
	});
	if (!Behind)
	{
		return Host::RefuseText(*this, FirstCharacters(Buffer), ErrorText);
	}
	CopySingleValue(Value, Read.Get());
	return Behind;
}

void FSetProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptSetHelper Set(this, Value);
	const TCHAR* Separator = TEXT("(");
	for (int32 Index = 0; Index < Set.GetMaxIndex(); ++Index)
	{
		if (Set.IsValidIndex(Index))
		{
			ValueStr += Separator;
			Separator = TEXT(",");
			ElementProp->ExportTextItem_Direct(ValueStr, Set.GetElementPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		}
	}
	ValueStr += Set.Num() == 0 ? TEXT("()") : TEXT(")");
}

FMapProperty::FMapProperty(FFieldVariant InOwner, FName InName, const Host::FSparseOps* InOps)
	: FContainerPropertyBase(InOwner, InName, StaticClass(), InOps)
	, Ops(InOps)
{
}

FMapProperty::~FMapProperty()
{
	delete KeyProp;
	delete ValueProp;
}

bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const int32 NumA = A ? Ops->Num(A) : 0;
	const int32 NumB = B ? Ops->Num(B) : 0;
	if (NumA != NumB || NumA == 0)
	{
		return NumA == NumB;
	}
	const FScriptMapHelper MapA(this, A);
	const FScriptMapHelper MapB(this, B);
	for (int32 Index = 0; Index < MapA.GetMaxIndex(); ++Index)
	{
		if (MapA.IsValidIndex(Index))
		{
			const uint8* Other = MapB.FindValueFromHash(MapA.GetKeyPtr(Index));
			if (!Other || !ValueProp->Identical(MapA.GetValuePtr(Index), Other, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

FString FMapProperty::GetCPPType(FString*, uint32) const
{
	return FString::Printf(TEXT("TMap<%s, %s>"), *KeyProp->GetCPPType(), *ValueProp->GetCPPType());
}

bool FMapProperty::SameType(const FProperty* Other) const
{
	if (!Super::SameType(Other))
	{
		return false;
	}
	const FMapProperty* Map = static_cast<const FMapProperty*>(Other);
	return KeyProp->SameType(Map->KeyProp) && ValueProp->SameType(Map->ValueProp);
}

void FMapProperty::AddReferencedObjects(void* Value, FReferenceCollector& Collector) const
{
	const FScriptMapHelper Map(this, Value);
	for (int32 Index = 0; Index < Map.GetMaxIndex(); ++Index)
	{
		if (Map.IsValidIndex(Index))
		{
			if (KeyProp->ContainsObjectReference())
			{
				// Shown as a copy: a key must not change where its hash holds it.
				const Host::FLooseValue Key(*KeyProp, Map.GetKeyPtr(Index));
				KeyProp->AddReferencedObjects(Key.Get(), Collector);
			}
			ValueProp->AddReferencedObjects(Map.GetValuePtr(Index), Collector);
		}
	}
}

void FMapProperty::LinkInternal()
{
	LinkInner(*KeyProp);
	LinkInner(*ValueProp);
}

const TCHAR* FMapProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const Host::FLooseValue Read(*this);
	const FScriptMapHelper Map(this, Read.Get());
	const TCHAR* Behind = ReadList(Buffer, [&](const TCHAR* At) -> const TCHAR*
	{
		const Host::FLooseValue Key(*KeyProp);
		const Host::FLooseValue PairValue(*ValueProp);
		int32 Part = 0;
		const TCHAR* BehindPair = ReadList(At, [&](const TCHAR* PartAt) -> const TCHAR*
		{
			const FProperty* Property = Part == 0 ? KeyProp : ValueProp;
			const Host::FLooseValue& Target = Part == 0 ? Key : PairValue;
			return ++Part <= 2 ? Property->ImportText_Direct(PartAt, Target.Get(), InOwner, PortFlags | PPF_Delimited, ErrorText) : nullptr;
		});
		if (!BehindPair || Part != 2)
		{
			return nullptr;
		}
		Map.AddPair(Key.Get(), PairValue.Get());
		return BehindPair;
	});
	if (!Behind)
	{
		return Host::RefuseText(*this, FirstCharacters(Buffer), ErrorText);
	}
	CopySingleValue(Value, Read.Get());
	return Behind;
}

void FMapProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptMapHelper Map(this, Value);
	const TCHAR* Separator = TEXT("((");
	for (int32 Index = 0; Index < Map.GetMaxIndex(); ++Index)
	{
		if (Map.IsValidIndex(Index))
		{
			ValueStr += Separator;
			Separator = TEXT(",(");
			KeyProp->ExportTextItem_Direct(ValueStr, Map.GetKeyPtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
			ValueStr += TEXT(", ");
			ValueProp->ExportTextItem_Direct(ValueStr, Map.GetValuePtr(Index), nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
			ValueStr += TEXT(")");
		}
	}
	ValueStr += Map.Num() == 0 ? TEXT("()") : TEXT(")");
}
