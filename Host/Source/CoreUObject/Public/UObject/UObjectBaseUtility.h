#pragma once

#include "UObject/UObjectBase.h"

class UPackage;

/** Questions about an object's flags, name, place and class. */
class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
protected:
	UObjectBaseUtility() = default;
	explicit UObjectBaseUtility(EObjectFlags InFlags) : UObjectBase(InFlags) {}

public:
	void SetFlags(EObjectFlags NewFlags) { SetFlagsTo(GetFlags() | NewFlags); }
	void ClearFlags(EObjectFlags OldFlags) { SetFlagsTo(GetFlags() & ~OldFlags); }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != RF_NoFlags; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return GetFlags() & Mask; }

	/** Keeps the object, and all that it refers to, alive until RemoveFromRoot(). */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;

	/**
	 * Declares the object dead: IsValid() is false from now on, weak pointers yield null, and the next collection clears the
	 * reflected references to it and destroys it. An object in the root set refuses (asserts).
	 */
	void MarkAsGarbage();
	void ClearGarbage();

	/** True while the collection in progress has found no way to reach the object. */
	bool IsUnreachable() const;

	/** Asks for state that the collector keeps. */
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;

	/** Name without its outers. */
	FString GetName() const { return GetFName().ToString(); }
	void GetName(FString& OutName) const { GetFName().ToString(OutName); }

	/**
	 * Name with its outers, outermost first. Below the package the separators are "." (top-level object), ":" (the object
	 * inside that) and "." again: "/Mount/Dir/Asset.Asset:Inner.Deeper". Names inside StopOuter when that is given.
	 */
	FString GetPathName(const UObject* StopOuter = nullptr) const;

	/** Class name, a space and the path name. */
	FString GetFullName(const UObject* StopOuter = nullptr) const;

	/** The innermost object on the way outwards that is of the class (or a class derived from it); null when there is none. */
	UObject* GetTypedOuter(const UClass* Target) const;

	template<typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}

	/** The last object on the way outwards, which is a package for all but packages themselves. */
	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }

	bool IsIn(const UObject* SomeOuter) const;

	/** True when the object, or one of its outers, is a class default object or an archetype. */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;

	/** True when the object is of the class or of one derived from it. */
	bool IsA(const UClass* SomeBase) const;

	template<typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	/** True when the object's class, native or made at run time, implements the interface; T is the U-class of it. */
	template<typename T>
	bool Implements() const
	{
		return ImplementsInterface(T::StaticClass());
	}

	/** Address of the native I-part for the interface; null when the class does not implement it in native code. */
	void* GetInterfaceAddress(UClass* InterfaceClass);
	void* GetNativeInterfaceAddress(UClass* InterfaceClass) { return GetInterfaceAddress(InterfaceClass); }
	const void* GetNativeInterfaceAddress(UClass* InterfaceClass) const
	{
		return const_cast<UObjectBaseUtility*>(this)->GetInterfaceAddress(InterfaceClass);
	}

private:
	bool ImplementsInterface(UClass* InterfaceClass) const;
};

/** Name of the object, "None" for null; for messages. */
COREUOBJECT_API FString GetNameSafe(const UObjectBaseUtility* Object);
/** Path name of the object, "None" for null; for messages. */
COREUOBJECT_API FString GetPathNameSafe(const UObjectBaseUtility* Object);
/** Full name of the object, "None" for null; for messages. */
COREUOBJECT_API FString GetFullNameSafe(const UObjectBaseUtility* Object);
