#include "UObject/Struct.h"

#include "Host/Reflection/DisplayName.h"
#include "Host/Reflection/TypeBuilder.h"
#include "Misc/CString.h"
#include "Templates/Casts.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UnrealType.h"

UField::UField(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
{
}

UField::UField(EStaticConstructor, EObjectFlags InFlags)
	: UObject(EC_StaticConstructor, InFlags)
{
}

UStruct* UField::GetOwnerStruct() const
{
	const UObject* Object = this;
	while (Object && !Object->IsA<UStruct>())
	{
		Object = Object->GetOuter();
	}
	return static_cast<UStruct*>(const_cast<UObject*>(Object));
}

UClass* UField::GetOwnerClass() const
{
	const UObject* Object = this;
	while (Object && !Object->IsA<UClass>())
	{
		Object = Object->GetOuter();
	}
	return static_cast<UClass*>(const_cast<UObject*>(Object));
}

const FString* UField::FindMetaData(const TCHAR* Key) const
{
	return MetaData.Find(Key);
}

const FString* UField::FindMetaData(const FName& Key) const
{
	return MetaData.Find(Key);
}

const FString& UField::GetMetaData(const TCHAR* Key) const
{
	return Host::GetMetaDataOrEmpty(FindMetaData(Key));
}

const FString& UField::GetMetaData(const FName& Key) const
{
	return Host::GetMetaDataOrEmpty(FindMetaData(Key));
}

bool UField::HasMetaData(const TCHAR* Key) const
{
	return MetaData.Contains(Key);
}

bool UField::HasMetaData(const FName& Key) const
{
	return MetaData.Contains(Key);
}

void UField::SetMetaData(const TCHAR* Key, const TCHAR* Value)
{
	MetaData.Set(FName(Key), Value);
}

void UField::SetMetaData(const FName& Key, const TCHAR* Value)
{
	MetaData.Set(Key, Value);
}

void UField::RemoveMetaData(const FName& Key)
{
	MetaData.Remove(Key);
}

bool UField::GetBoolMetaData(const FName& Key) const
{
	return Host::IsTrueMetaData(FindMetaData(Key));
}

int32 UField::GetIntMetaData(const FName& Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

FText UField::GetDisplayNameText() const
{
	return Host::MakeDisplayNameText(MetaData, GetName(), false);
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	return Host::MakeToolTipText(MetaData, GetDisplayNameText(), bShortTooltip);
}

UStruct::UStruct(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
{
	RebuildChain();
}

UStruct::UStruct(EStaticConstructor, EObjectFlags InFlags)
	: UField(EC_StaticConstructor, InFlags)
{
	RebuildChain();
}

UStruct::~UStruct()
{
	while (ChildProperties)
	{
		FField* Property = ChildProperties;
		ChildProperties = Property->Next;
		delete Property;
	}
}

void UStruct::RebuildChain()
{
	Chain = SuperStruct ? SuperStruct->Chain : TArray<UStruct*>();
	Chain.Add(this);
	Depth = Chain.Num() - 1;
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
	RebuildChain();
	if (SuperStruct)
	{
		PropertiesSize = FMath::Max(PropertiesSize, SuperStruct->PropertiesSize);
		MinAlignment = FMath::Max(MinAlignment, SuperStruct->MinAlignment);
	}
}

void UStruct::AddCppProperty(FProperty* Property)
{
	FField** Tail = &ChildProperties;
	while (*Tail)
	{
		Tail = &(*Tail)->Next;
	}
	*Tail = Property;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->GetFName() == InName)
		{
			return Property;
		}
	}
	return nullptr;
}

void UStruct::StaticLink(bool)
{
	Link();
}

void UStruct::Link()
{
	LinkState = ELinkState::Linking;
	PlaceProperties();
	ChainProperties();
	LinkState = ELinkState::Linked;
}

void UStruct::PlaceProperties()
{
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* Property = static_cast<FProperty*>(Field);
		Property->LinkInternal();
		if (Property->GetOffset_ForInternal() != FProperty::UnsetOffset)
		{
			continue;
		}
		const int32 Alignment = Property->GetMinAlignment();
		const int32 Offset = Align(PropertiesSize, Alignment);
		Property->SetOffset_Internal(Offset);
		PropertiesSize = Offset + Property->GetSize();
		MinAlignment = FMath::Max(MinAlignment, Alignment);
	}
}

void UStruct::ChainProperties()
{
	FProperty** Link = &PropertyLink;
	FProperty** Ref = &RefLink;
	FProperty** Destructor = &DestructorLink;
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* Property = static_cast<FProperty*>(Field);
		*Link = Property;
		Link = &Property->PropertyLinkNext;
		if (Property->ContainsObjectReference())
		{
			*Ref = Property;
			Ref = &Property->NextRef;
		}
		if (!Property->HasAnyPropertyFlags(CPF_NoDestructor))
		{
			*Destructor = Property;
			Destructor = &Property->DestructorLinkNext;
		}
	}
	*Link = SuperStruct ? SuperStruct->PropertyLink : nullptr;
	*Ref = SuperStruct ? SuperStruct->RefLink : nullptr;
	*Destructor = SuperStruct ? SuperStruct->DestructorLink : nullptr;
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	const int32 Stride = GetStructureSize();
	FMemory::Memzero(Dest, static_cast<SIZE_T>(Stride) * static_cast<SIZE_T>(ArrayDim));
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->InitializeValue_InContainer(static_cast<uint8*>(Dest) + Index * Stride);
		}
	}
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (FProperty* Property = DestructorLink; Property; Property = Property->DestructorLinkNext)
		{
			Property->DestroyValue_InContainer(static_cast<uint8*>(Dest) + Index * GetStructureSize());
		}
	}
}

void UStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UStruct* This = static_cast<UStruct*>(InThis);
	Collector.AddReferencedObject(This->SuperStruct);
	for (UField** Child = &This->Children; *Child; Child = &(*Child)->Next)
	{
		Collector.AddReferencedObject(*Child);
		if (!*Child)
		{
			break;
		}
	}
	UField::AddReferencedObjects(InThis, Collector);
}
