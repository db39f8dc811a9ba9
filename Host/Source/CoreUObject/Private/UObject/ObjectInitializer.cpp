#include "UObject/UObjectGlobals.h"

#include "Host/ObjectArray.h"
#include "Host/ObjectCopier.h"
#include "Host/ObjectMemory.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

FObjectInitializer* FObjectInitializer::Current = nullptr;

namespace
{
	/** What a sub-object takes over from the object that it is part of. */
	constexpr EObjectFlags PropagatedFlags = RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient;

	UObject* ChooseArchetype(UClass* Class, const FStaticConstructObjectParameters& Params)
	{
		if (Params.Template)
		{
			return Params.Template;
		}
		UClass* Source = (Params.SetFlags & RF_ClassDefaultObject) ? Class->GetSuperClass() : Class;
		return Source ? Source->GetDefaultObject() : nullptr;
	}

	/** Memory for the object: new, or that of the object whose name it takes. */
	UObject* Allocate(UClass* Class, UObject* Outer, FName Name)
	{
		UObject* Existing = Host::FObjectArray::Get().FindByName(Outer, Name);
		if (!Existing)
		{
			return Host::AllocateObject(Class);
		}
		checkf(Existing->GetClass() == Class, TEXT("%s is in the way of a %s of that name"), *Existing->GetFullName(), *Class->GetName());
		checkf(!Existing->HasAnyFlags(RF_NeedInitialization), TEXT("%s is made again by its own constructor"), *Existing->GetFullName());
		Host::RecycleObject(Existing);
		return Existing;
	}
}

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	UClass* Class = const_cast<UClass*>(Params.Class);
	checkf(Class, TEXT("an object of a null class was asked for"));
	checkf(!IsGarbageCollecting(), TEXT("a %s was asked for while garbage is collected"), *Class->GetName());
	const bool bDefaultObject = (Params.SetFlags & RF_ClassDefaultObject) != RF_NoFlags;
	checkf(bDefaultObject || !Class->HasAnyClassFlags(CLASS_Abstract), TEXT("%s is abstract: it has no objects"), *Class->GetName());
	checkf(Class->ClassConstructor, TEXT("%s has no constructor"), *Class->GetName());
	checkf(Params.Outer || Class->IsChildOf(UPackage::StaticClass()), TEXT("a %s needs an outer"), *Class->GetName());

	UObject* Archetype = ChooseArchetype(Class, Params);
	const FName Name = Params.Name.IsNone() ? MakeUniqueObjectName(Params.Outer, Class) : Params.Name;
	UObject* Object = Allocate(Class, Params.Outer, Name);
	{
		const FObjectInitializer Initializer(Object, Params, Name, Archetype);
		Class->ClassConstructor(Initializer);
	}
	return Object;
}

bool IsInsideObjectConstructor()
{
	return FObjectInitializer::Current != nullptr;
}

FObjectInitializer::FObjectInitializer(
	UObject* InObj, const FStaticConstructObjectParameters& InParams, FName InName, UObject* InArchetype)
	: Obj(InObj), Archetype(InArchetype), Params(InParams), Name(InName), Previous(Current)
{
	Current = this;
}

FObjectInitializer& FObjectInitializer::Get()
{
	checkf(Current, TEXT("no constructor is running: objects are made by NewObject, their sub-objects in constructors"));
	return *Current;
}

UClass* FObjectInitializer::GetClass() const
{
	return const_cast<UClass*>(Params.Class);
}

void FObjectInitializer::Claim(UObjectBase& Object) const
{
	Host::FObjectArray& Objects = Host::FObjectArray::Get();
	const EObjectFlags Flags = Params.SetFlags | RF_NeedInitialization;
	Objects.Add(Object, GetClass(), Params.Outer, Name, Flags);
	if (Flags & RF_ClassDefaultObject)
	{
		// A constructor that asks for the defaults of its own class gets them as far as they are.
		GetClass()->ClassDefaultObject = Obj;
	}
}

FObjectInitializer::~FObjectInitializer()
{
	InitProperties();
	Current = Previous;
	Obj->ClearFlags(RF_NeedInitialization);
	if (Params.PropertyInitCallback)
	{
		(*Params.PropertyInitCallback)();
	}
	const bool bDefaultObject = Obj->HasAnyFlags(RF_ClassDefaultObject);
	if (bDefaultObject)
	{
		Obj->PostCDOContruct();
	}
	if (GetClass()->HasAnyClassFlags(CLASS_Config) && (bDefaultObject || GetClass()->HasAnyClassFlags(CLASS_PerObjectConfig)))
	{
		Obj->LoadConfig();
	}
	Obj->PostInitProperties();
}

bool FObjectInitializer::NeedsAllProperties() const
{
	// The constructor of a native class has set its own defaults already.
	return Params.Template || !GetClass()->IsNative();
}

void FObjectInitializer::InitProperties()
{
	if (!Archetype)
	{
		return;
	}
	if (!NeedsAllProperties())
	{
		if (GetClass()->HasAnyClassFlags(CLASS_Config) && !Obj->HasAnyFlags(RF_ClassDefaultObject))
		{
			Host::CopyConfigProperties(Obj, Archetype);
		}
		return;
	}
	if (!GetClass()->IsNative() && !Obj->IsA(Archetype->GetClass()))
	{
		Host::CopyProperties(Obj, GetClass()->GetDefaultObject(), CPF_None);
	}
	Host::FObjectCopier Copier(Archetype, Obj, Host::EObjectsCopied::Owned);
	Copier.Pair(Archetype, Obj, Params.bCopyTransientsFromClassDefaults ? CPF_Transient : CPF_None);
	for (const FSubobject& Subobject : Subobjects)
	{
		Copier.Pair(Subobject.Template, Subobject.Object, CPF_None);
	}
	Copier.Finish();
}

void FObjectInitializer::AddOverride(FName SubobjectName, const UClass* Class) const
{
	// Derived classes speak first: their constructors call Super's.
	if (!FindOverride(SubobjectName))
	{
		Overrides.Add({ SubobjectName, Class });
	}
}

const FObjectInitializer::FOverride* FObjectInitializer::FindOverride(FName SubobjectName) const
{
	for (const FOverride& Override : Overrides)
	{
		if (Override.Name == SubobjectName)
		{
			return &Override;
		}
	}
	return nullptr;
}

const FObjectInitializer& FObjectInitializer::SetDefaultSubobjectClass(FName SubobjectName, const UClass* Class) const
{
	check(Class);
	AddOverride(SubobjectName, Class);
	return *this;
}

const FObjectInitializer& FObjectInitializer::DoNotCreateDefaultSubobject(FName SubobjectName) const
{
	AddOverride(SubobjectName, nullptr);
	return *this;
}

UObject* FObjectInitializer::CreateDefaultSubobject(
	UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	checkf(this == Current && Outer == Obj, TEXT("sub-object '%s' is made outside the constructor of %s"),
		*SubobjectFName.ToString(), *GetFullNameSafe(Outer));
	checkf(!SubobjectFName.IsNone(), TEXT("%s makes a sub-object without a name"), *Obj->GetFullName());

	const FOverride* Override = FindOverride(SubobjectFName);
	if (Override && !Override->Class)
	{
		checkf(!bIsRequired, TEXT("%s: sub-object '%s' cannot be left out"), *Obj->GetFullName(), *SubobjectFName.ToString());
		return nullptr;
	}
	const UClass* Class = Override ? Override->Class : ClassToCreateByDefault;
	if (Override && !Class->IsChildOf(ReturnType))
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("%s: class %s set for sub-object '%s' does not derive from %s; %s is used"),
			*Obj->GetFullName(), *Class->GetName(), *SubobjectFName.ToString(), *ReturnType->GetName(), *ClassToCreateByDefault->GetName());
		Class = ClassToCreateByDefault;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_CLOG(bIsRequired && !GetClass()->HasAnyClassFlags(CLASS_Abstract), LogUObjectGlobals, Warning,
			TEXT("%s: required sub-object '%s' was not made, as %s is abstract"), *Obj->GetFullName(), *SubobjectFName.ToString(), *Class->GetName());
		return nullptr;
	}
	checkf(!StaticFindObjectFast(nullptr, Outer, SubobjectFName), TEXT("%s has a sub-object '%s' already"),
		*Obj->GetFullName(), *SubobjectFName.ToString());

	FStaticConstructObjectParameters SubobjectParams(Class);
	SubobjectParams.Outer = Outer;
	SubobjectParams.Name = SubobjectFName;
	SubobjectParams.SetFlags = RF_DefaultSubObject | Outer->GetMaskedFlags(PropagatedFlags) | (bIsTransient ? RF_Transient : RF_NoFlags);
	UObject* Subobject = StaticConstructObject_Internal(SubobjectParams);

	if (!bIsTransient && Archetype && NeedsAllProperties())
	{
		UObject* Template = StaticFindObjectFast(nullptr, Archetype, SubobjectFName);
		if (Template && Subobject->IsA(Template->GetClass()))
		{
			Subobjects.Add({ Subobject, Template });
		}
	}
	return Subobject;
}

void FObjectInitializer::AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage)
{
	checkf(!Current || Outer != Current->Obj, TEXT("%s: %s"), *GetFullNameSafe(Outer), ErrorMessage);
}
