#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#include <type_traits>

class FProperty;
class FReferenceCollector;
class UPackage;

DECLARE_LOG_CATEGORY_EXTERN(LogUObjectGlobals, Log, All);

/** How an object is loaded. */
enum ELoadFlags : uint32
{
	LOAD_None = 0x00000000,
	/** A failure is not logged as a warning. */
	LOAD_NoWarn = 0x00000002,
	/** A failure is not logged at all. */
	LOAD_Quiet = 0x00002000,
};
ENUM_CLASS_FLAGS(ELoadFlags)

/** Everything that the construction of an object can be told. */
struct FStaticConstructObjectParameters
{
	const UClass* Class;
	/** Null is right for packages only. */
	UObject* Outer = nullptr;
	/** None asks for a unique name made from the class's. */
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	/** Object to copy the reflected properties from; null for the class default object. */
	UObject* Template = nullptr;
	/** Transient properties keep the class's defaults instead of the template's values. */
	bool bCopyTransientsFromClassDefaults = false;
	/** Runs after the properties have their values, ahead of PostInitProperties; may be null. */
	const TFunction<void()>* PropertyInitCallback = nullptr;

	explicit FStaticConstructObjectParameters(const UClass* InClass) : Class(InClass) {}
};

/**
 * Allocates an object, runs its constructor, copies the template's properties, configures a class default object and calls
 * PostInitProperties. An object of the same name in the same outer is destroyed and its memory used again when it is of the
 * same class; it is a fatal error when it is of another.
 */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

/** The package of objects that belong to no asset and no module. */
COREUOBJECT_API UPackage* GetTransientPackage();

/** The package of that name, made now if there is none. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);

/** The package of that name if it exists. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);

/** A name that no object in the outer has, made of the base name, or the class's, and a number. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName = NAME_None);

/** Separator between an object and what is inside it, when the former stands right in a package. */
#define SUBOBJECT_DELIMITER TEXT(":")

/**
 * A loaded object by name. The name is a path from the package down, or relative to the outer; the class may be null for
 * any. ExactClass refuses derived classes. Null when there is no such object.
 */
COREUOBJECT_API UObject* StaticFindObject(const UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);

/** The object of that name directly inside the outer. */
COREUOBJECT_API UObject* StaticFindObjectFast(const UClass* Class, UObject* InOuter, FName Name, bool ExactClass = false);

/** As StaticFindObject; it is a fatal error when there is none. */
COREUOBJECT_API UObject* StaticFindObjectChecked(const UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);

/**
 * The object of the path, loaded when it is not there yet. Null, with a warning that names path and reason, when that fails
 * or the object is not of the class.
 */
COREUOBJECT_API UObject* StaticLoadObject(
	UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None);

/** As StaticLoadObject for classes: "/Mount/Dir/Name.Name_C", or a script path. Null when it does not derive from BaseClass. */
COREUOBJECT_API UClass* StaticLoadClass(
	UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None);

/**
 * A copy of the object and of what is inside it and reached by its properties. References among the copied objects lead to
 * the copies; transient properties keep their defaults. A null name keeps the source's if it is free in the outer.
 */
COREUOBJECT_API UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, FName DestName = NAME_None);

/** Makes the class default objects of the classes registered since the last call, bases first. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects(FName Package = NAME_None, bool bCanProcessNewlyLoadedObjects = true);

/** True while a constructor of an object runs. */
COREUOBJECT_API bool IsInsideObjectConstructor();

/**
 * Destroys every object that no root reaches through reflected references, clears references to objects declared dead.
 * Between frames only. KeepFlags keeps objects with any of these flags.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);

/** The flags that CollectGarbage is customarily called with. */
#define GARBAGE_COLLECTION_KEEPFLAGS RF_NoFlags

/** True while the collector runs; objects must not be made then. */
COREUOBJECT_API bool IsGarbageCollecting();

struct COREUOBJECT_API FCoreUObjectDelegates
{
	/** Before and after a collection. */
	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	static FSimpleMulticastDelegate& GetPostGarbageCollect();
#if WITH_EDITOR
	/** After an object told that one of its properties was edited. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;
#endif
};

/**
 * Stands for one construction in progress: offers a constructor its sub-objects and, after the constructor, copies the
 * template's properties.
 */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer(UObject* InObj, const FStaticConstructObjectParameters& InParams, FName InName, UObject* InArchetype);
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;
	/** Ends the construction; see StaticConstructObject_Internal for the order. */
	~FObjectInitializer();

	/** The construction in progress; asserts that there is one. */
	static FObjectInitializer& Get();

	/** The object that the properties are taken from. */
	UObject* GetArchetype() const { return Archetype; }
	/** The object under construction. */
	UObject* GetObj() const { return Obj; }
	UClass* GetClass() const;

	/** See UObject::CreateDefaultSubobject. */
	UObject* CreateDefaultSubobject(
		UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired = true, bool bIsTransient = false) const;

	template<class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

	template<class TReturnType>
	TReturnType* CreateOptionalDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, false, bTransient));
	}

	/** Replaces the class of a sub-object that a base class's constructor makes; for Super's argument. The most derived class's wish counts. */
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName, const UClass* Class) const;

	template<class T>
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName) const
	{
		return SetDefaultSubobjectClass(SubobjectName, T::StaticClass());
	}

	/** Asks a base class's constructor to leave out an optional sub-object. */
	const FObjectInitializer& DoNotCreateDefaultSubobject(FName SubobjectName) const;

	/** Asserts that Outer is not the object whose constructor runs. */
	static void AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage);

private:
	friend class UObjectBase;
	friend bool IsInsideObjectConstructor();

	struct FOverride
	{
		FName Name;
		/** Null for "leave it out". */
		const UClass* Class;
	};

	struct FSubobject
	{
		UObject* Object;
		UObject* Template;
	};

	/** Enters the object at its address into the object array, with the parameters' class, outer, name and flags. */
	void Claim(UObjectBase& Object) const;
	void AddOverride(FName SubobjectName, const UClass* Class) const;
	const FOverride* FindOverride(FName SubobjectName) const;
	bool NeedsAllProperties() const;
	void InitProperties();

	UObject* Obj;
	UObject* Archetype;
	const FStaticConstructObjectParameters& Params;
	FName Name;
	FObjectInitializer* Previous;
	mutable TArray<FOverride> Overrides;
	mutable TArray<FSubobject> Subobjects;

	/** Innermost construction in progress. */
	static FObjectInitializer* Current;
};

namespace Host
{
	/** Asserts that a class can make objects of a type. */
	COREUOBJECT_API void CheckIsChildOf(const UClass* Child, const UClass* Parent);
}

/** Makes an object of a class; see StaticConstructObject_Internal. */
template<class T>
T* NewObject(
	UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false)
{
	if (Name.IsNone())
	{
		FObjectInitializer::AssertIfInConstructor(
			Outer, TEXT("NewObject with an empty name cannot make sub-objects in a constructor: use CreateDefaultSubobject"));
	}
	Host::CheckIsChildOf(Class, T::StaticClass());
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template<class T>
T* NewObject(UObject* Outer = reinterpret_cast<UObject*>(GetTransientPackage()))
{
	FObjectInitializer::AssertIfInConstructor(
		Outer, TEXT("NewObject with an empty name cannot make sub-objects in a constructor: use CreateDefaultSubobject"));
	FStaticConstructObjectParameters Params(T::StaticClass());
	Params.Outer = Outer;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template<class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template, bCopyTransientsFromClassDefaults);
}

template<class T>
T* DuplicateObject(T const* SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	if (!SourceObject)
	{
		return nullptr;
	}
	return static_cast<T*>(StaticDuplicateObject(
		SourceObject, Outer ? Outer : reinterpret_cast<UObject*>(GetTransientPackage()), Name));
}

template<class T>
T* DuplicateObject(const TObjectPtr<T>& SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	return DuplicateObject<T>(SourceObject.Get(), Outer, Name);
}

template<class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, ExactClass));
}

template<class T>
T* FindObject(UObject* Outer, const FString& Name, bool ExactClass = false)
{
	return FindObject<T>(Outer, *Name, ExactClass);
}

template<class T>
T* FindObjectFast(UObject* Outer, FName Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass));
}

template<class T>
T* FindObjectChecked(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectChecked(T::StaticClass(), Outer, Name, ExactClass));
}

template<class T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags));
}

template<class T>
UClass* LoadClass(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags);
}

/** Calls Operation for each object directly, or at any depth, inside the outer. Operation must not make or rename objects. */
COREUOBJECT_API void ForEachObjectWithOuter(const UObjectBase* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects = true);

/** Appends the objects inside the outer to Results. */
COREUOBJECT_API void GetObjectsWithOuter(const UObjectBase* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true);
