#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UClass;
class UObject;

namespace Host
{
	class FObjectArray;
	struct FObjectAccess;
}

/**
 * What every object carries: its class, name, outer, flags and its place in the object array.
 * An object is made by NewObject and its relatives only; the memory comes zeroed, so a reflected member without an
 * initialiser is zero.
 */
class COREUOBJECT_API UObjectBase
{
protected:
	/** Takes class, outer, name and flags from the construction in progress; asserts that there is one for this address. */
	UObjectBase();

	/** For the objects that describe native code, which exist before their own class does: Register() completes them. */
	explicit UObjectBase(EObjectFlags InFlags);

public:
	UObjectBase(const UObjectBase&) = delete;
	UObjectBase& operator=(const UObjectBase&) = delete;
	virtual ~UObjectBase();

	/** Place in the object array; unique among the objects alive. */
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }
	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	FName GetFName() const { return NamePrivate; }
	EObjectFlags GetFlags() const { return ObjectFlags; }

	/**
	 * Names an object that was made with the static constructor and enters it into the object array and the name lookup.
	 * The class may still be incomplete.
	 */
	void Register(UClass* InClass, UObject* InOuter, FName InName);

	/** True between entering the object array and leaving it. */
	bool IsRegistered() const { return InternalIndex >= 0; }

protected:
	/** Moves the object to another name and outer in the name lookup. */
	void LowLevelRename(FName NewName, UObject* NewOuter);

	void SetFlagsTo(EObjectFlags NewFlags) { ObjectFlags = NewFlags; }

private:
	friend class Host::FObjectArray;
	friend struct Host::FObjectAccess;

	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	UObject* OuterPrivate;
	FName NamePrivate;
};
