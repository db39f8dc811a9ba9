#pragma once

#include "UObject/Enum.h"
#include "UObject/Function.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/ScriptStruct.h"

namespace Host
{
	struct FClassInfo;
}

/** Whether a search goes on in the base class. */
namespace EIncludeSuperFlag
{
	enum Type
	{
		ExcludeSuper,
		IncludeSuper,
	};
}

/** One interface that a class implements. */
struct FImplementedInterface
{
	/** The U-class of the interface. */
	UClass* Class = nullptr;
	/** Offset in bytes of the I-part in the object; 0 for an interface that is implemented by script alone. */
	int32 PointerOffset = 0;
	/** Implemented by script. */
	bool bImplementedByK2 = false;

	FImplementedInterface() = default;
	FImplementedInterface(UClass* InClass, int32 InOffset, bool bInImplementedByK2)
		: Class(InClass), PointerOffset(InOffset), bImplementedByK2(bInImplementedByK2)
	{
	}
};

/** Describes a class and makes its objects. */
class COREUOBJECT_API UClass : public UStruct
{
	HOST_INTRINSIC_CLASS(UClass, UStruct)

	typedef void (*ClassConstructorType)(const FObjectInitializer&);
	typedef void (*ClassAddReferencedObjectsType)(UObject*, FReferenceCollector&);

	/** Runs the C++ constructor in the memory of the initialiser's object. */
	ClassConstructorType ClassConstructor = nullptr;
	/** Tells the collector what reflection cannot see. */
	ClassAddReferencedObjectsType ClassAddReferencedObjects = nullptr;
	EClassFlags ClassFlags = CLASS_None;
	EClassCastFlags ClassCastFlags = CASTCLASS_None;
	/** What the outer of an object must be. */
	UClass* ClassWithin = nullptr;
	/** The blueprint that the class was made from. */
	UObject* ClassGeneratedBy = nullptr;
	/** Configuration family, for example "Engine". */
	FName ClassConfigName;
	/** Interfaces that this class adds to those of its base. */
	TArray<FImplementedInterface> Interfaces;
	/** Object that carries the defaults; GetDefaultObject() makes it. */
	UObject* ClassDefaultObject = nullptr;

	UClass(const FObjectInitializer& ObjectInitializer);
	UClass(EStaticConstructor, EObjectFlags InFlags);

	UClass* GetSuperClass() const { return static_cast<UClass*>(GetSuperStruct()); }
	virtual void SetSuperStruct(UStruct* NewSuperStruct) override;

	/** The object that carries the defaults; made at the first call. Null only when bCreateIfNeeded is false. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true)
	{
		if (!ClassDefaultObject && bCreateIfNeeded)
		{
			CreateDefaultObject();
		}
		return ClassDefaultObject;
	}

	template<typename T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(const_cast<UClass*>(this)->GetDefaultObject());
	}

	/** Name of the default object, "Default__" and the class's name. */
	FName GetDefaultObjectName() const;

	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return EnumHasAnyFlags(ClassFlags, FlagsToCheck); }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return EnumHasAllFlags(ClassFlags, FlagsToCheck); }
	EClassFlags GetClassFlags() const { return ClassFlags; }
	bool HasAnyCastFlag(EClassCastFlags FlagToCheck) const { return EnumHasAnyFlags(ClassCastFlags, FlagToCheck); }
	bool HasAllCastFlags(EClassCastFlags FlagsToCheck) const { return EnumHasAllFlags(ClassCastFlags, FlagsToCheck); }

	bool IsNative() const { return HasAnyClassFlags(CLASS_Native); }

	/** True when the class, or one that it derives from, implements the interface (its U-class) or one derived from it. */
	bool ImplementsInterface(const UClass* SomeInterface) const;
	/** The entry through which the class implements the interface, own or inherited; null when it does not. */
	const FImplementedInterface* FindImplementedInterface(const UClass* SomeInterface) const;

	/** Own function, then that of an interface of the class, then the same of the base. Null when there is none. */
	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;
	/** Makes the function findable under its name; it replaces one of the base class. */
	void AddFunctionToFunctionMap(UFunction* Function, FName FuncName);
	void RemoveFunctionFromFunctionMap(UFunction* Function);
	/** Names of the own functions in order of declaration. */
	void GenerateFunctionList(TArray<FName>& OutArray) const;

	/** True when the class or one of its bases has functions with a script body: native events look for an override only then. */
	bool HasScriptFunctions() const { return bHasScriptFunctions; }
	/** Declares that script functions were added; classes derived later take it over. */
	void MarkScriptFunctions() { bHasScriptFunctions = true; }

	/** Configuration family in effect. */
	FString GetConfigName() const;

	virtual const TCHAR* GetPrefixCPP() const override;
	virtual void Link() override;

	/** Makes the default object: constructor, configuration, PostInitProperties. Asserts that the class can have objects. */
	UObject* CreateDefaultObject();

	/** Class of the object that owns the class's native part: the class itself, or its closest native base. */
	UClass* GetNativeClass();

	/** Keeps the default object and what the reflected members cannot show. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend struct ::Host::FTypeBuilder;

	UFunction* FindOwnFunction(FName InName) const;
	UFunction* SearchFunction(FName InName) const;

	TMap<FName, UFunction*> FuncMap;
	/** Results of searches that went beyond the own functions; of no use once any class's functions have changed. */
	mutable TMap<FName, UFunction*> FoundFunctions;
	mutable uint32 FoundFunctionsVersion = 0;
	/** Counts changes to the functions of any class. */
	static uint32 FunctionsVersion;
	bool bHasScriptFunctions = false;
};

template<> UClass* StaticClass<UObject>();
template<> UClass* StaticClass<UField>();
template<> UClass* StaticClass<UStruct>();
template<> UClass* StaticClass<UScriptStruct>();
template<> UClass* StaticClass<UFunction>();
template<> UClass* StaticClass<UDelegateFunction>();
template<> UClass* StaticClass<UClass>();
template<> UClass* StaticClass<UEnum>();

/** The class's default object; not to be changed. */
template<typename T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template<typename T>
const T* GetDefault(const UClass* Class)
{
	return static_cast<const T*>(const_cast<UClass*>(Class)->GetDefaultObject());
}

/** The class's default object, to be changed: objects made from now on start with the change. */
template<typename T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}

template<typename T>
T* GetMutableDefault(const UClass* Class)
{
	return static_cast<T*>(const_cast<UClass*>(Class)->GetDefaultObject());
}
