#include "UObject/Class.h"

#include "UObject/Package.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

uint32 UClass::FunctionsVersion = 1;

UClass::UClass(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
{
}

UClass::UClass(EStaticConstructor, EObjectFlags InFlags)
	: UStruct(EC_StaticConstructor, InFlags)
{
}

void UClass::SetSuperStruct(UStruct* NewSuperStruct)
{
	UStruct::SetSuperStruct(NewSuperStruct);
	const UClass* Super = static_cast<UClass*>(NewSuperStruct);
	if (!Super)
	{
		return;
	}
	ClassFlags |= Super->ClassFlags & CLASS_Inherit;
	ClassCastFlags |= Super->ClassCastFlags;
	ClassConstructor = Super->ClassConstructor;
	ClassAddReferencedObjects = Super->ClassAddReferencedObjects;
	ClassWithin = Super->ClassWithin;
	ClassConfigName = Super->ClassConfigName;
	bHasScriptFunctions = bHasScriptFunctions || Super->bHasScriptFunctions;
}

UObject* UClass::CreateDefaultObject()
{
	if (ClassDefaultObject)
	{
		return ClassDefaultObject;
	}
	// A class inherits the values of its base's default object, which therefore comes first.
	if (UClass* Super = GetSuperClass())
	{
		Super->GetDefaultObject();
	}
	FStaticConstructObjectParameters Params(this);
	Params.Outer = GetOuter();
	Params.Name = GetDefaultObjectName();
	Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
	// PostInitProperties may ask for the default object already.
	const TFunction<void()> Remember = [this, &Params]
	{
		ClassDefaultObject = StaticFindObjectFast(this, Params.Outer, Params.Name, true);
	};
	Params.PropertyInitCallback = &Remember;
	ClassDefaultObject = StaticConstructObject_Internal(Params);
	return ClassDefaultObject;
}

FName UClass::GetDefaultObjectName() const
{
	return FName(*(TEXT("Default__") + GetName()));
}

const FImplementedInterface* UClass::FindImplementedInterface(const UClass* SomeInterface) const
{
	if (!SomeInterface || !SomeInterface->HasAnyClassFlags(CLASS_Interface))
	{
		return nullptr;
	}
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Class->Interfaces)
		{
			if (Interface.Class && Interface.Class->IsChildOf(SomeInterface))
			{
				return &Interface;
			}
		}
	}
	return nullptr;
}

bool UClass::ImplementsInterface(const UClass* SomeInterface) const
{
	return FindImplementedInterface(SomeInterface) != nullptr;
}

UFunction* UClass::FindOwnFunction(FName InName) const
{
	UFunction* const* Found = FuncMap.Find(InName);
	return Found ? *Found : nullptr;
}

UFunction* UClass::SearchFunction(FName InName) const
{
	for (const FImplementedInterface& Interface : Interfaces)
	{
		UFunction* Function = Interface.Class ? Interface.Class->FindFunctionByName(InName) : nullptr;
		if (Function)
		{
			return Function;
		}
	}
	const UClass* Super = GetSuperClass();
	return Super ? Super->FindFunctionByName(InName) : nullptr;
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	UFunction* Own = FindOwnFunction(InName);
	if (Own || IncludeSuper == EIncludeSuperFlag::ExcludeSuper)
	{
		return Own;
	}
	if (FoundFunctionsVersion != FunctionsVersion)
	{
		FoundFunctions.Empty();
		FoundFunctionsVersion = FunctionsVersion;
	}
	if (UFunction** Found = FoundFunctions.Find(InName))
	{
		return *Found;
	}
	UFunction* Result = SearchFunction(InName);
	FoundFunctions.Add(InName, Result);
	return Result;
}

void UClass::AddFunctionToFunctionMap(UFunction* Function, FName FuncName)
{
	FuncMap.Add(FuncName, Function);
	++FunctionsVersion;
}

void UClass::RemoveFunctionFromFunctionMap(UFunction* Function)
{
	FuncMap.Remove(Function->GetFName());
	++FunctionsVersion;
}

void UClass::GenerateFunctionList(TArray<FName>& OutArray) const
{
	for (TFieldIterator<UFunction> It(this, EFieldIterationFlags::None); It; ++It)
	{
		OutArray.Add(It->GetFName());
	}
}

FString UClass::GetConfigName() const
{
	return ClassConfigName.ToString();
}

const TCHAR* UClass::GetPrefixCPP() const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		if (Class->GetFName() == FName(TEXT("Actor")))
		{
			return TEXT("A");
		}
	}
	return HasAnyClassFlags(CLASS_Interface) ? TEXT("I") : TEXT("U");
}

UClass* UClass::GetNativeClass()
{
	UClass* Class = this;
	while (Class && !Class->IsNative())
	{
		Class = Class->GetSuperClass();
	}
	return Class;
}

/** The objects of a DefaultToInstanced class belong to whatever property refers to them. */
static void MarkInstanced(FProperty* Property, FProperty* Member)
{
	const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property);
	const bool bInstanced =
		ObjectProperty && !Property->IsA<FClassProperty>() &&
		(Property->HasAnyPropertyFlags(CPF_InstancedReference | CPF_PersistentInstance) ||
			(ObjectProperty->PropertyClass && ObjectProperty->PropertyClass->HasAnyClassFlags(CLASS_DefaultToInstanced)));
	if (!bInstanced)
	{
		return;
	}
	Property->SetPropertyFlags(CPF_InstancedReference | CPF_ExportObject);
	Member->SetMetaData(TEXT("EditInline"), TEXT("true"));
	if (Property != Member)
	{
		Member->SetPropertyFlags(CPF_ContainsInstancedReference);
	}
}

void UClass::Link()
{
	UStruct::Link();
	for (TFieldIterator<FProperty> It(this, EFieldIterationFlags::None); It; ++It)
	{
		FProperty* Member = *It;
		MarkInstanced(Member, Member);
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Member))
		{
			MarkInstanced(Array->Inner, Member);
		}
		else if (const FMapProperty* Map = CastField<FMapProperty>(Member))
		{
			MarkInstanced(Map->KeyProp, Member);
			MarkInstanced(Map->ValueProp, Member);
		}
		else if (const FSetProperty* Set = CastField<FSetProperty>(Member))
		{
			MarkInstanced(Set->ElementProp, Member);
		}
	}
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* This = static_cast<UClass*>(InThis);
	Collector.AddReferencedObject(This->ClassDefaultObject);
	Collector.AddReferencedObject(This->ClassGeneratedBy);
	Collector.AddReferencedObject(This->ClassWithin);
	for (FImplementedInterface& Interface : This->Interfaces)
	{
		Collector.AddReferencedObject(Interface.Class);
	}
	for (auto& Pair : This->FuncMap)
	{
		Collector.AddReferencedObject(Pair.Value);
	}
	UStruct::AddReferencedObjects(InThis, Collector);
}
