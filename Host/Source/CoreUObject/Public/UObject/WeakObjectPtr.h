#pragma once

#include "CoreMinimal.h"

class UObject;

/**
 * Refers to an object without keeping it alive: null as soon as the object is declared dead, or was collected, even when its
 * memory and its place in the object array serve another object.
 */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(TYPE_OF_NULLPTR) {}
	FWeakObjectPtr(const UObject* Object) { *this = Object; }
	FWeakObjectPtr(const FWeakObjectPtr&) = default;
	FWeakObjectPtr& operator=(const FWeakObjectPtr&) = default;
	FWeakObjectPtr& operator=(const UObject* Object);

	void Reset() { *this = FWeakObjectPtr(); }

	/** The object; null when it is gone or, unless asked for, declared dead. */
	UObject* Get(bool bEvenIfGarbage = false) const;
	/** The object even while the collector is about to destroy it. */
	UObject* GetEvenIfUnreachable() const;
	bool IsValid(bool bEvenIfGarbage = false) const { return Get(bEvenIfGarbage) != nullptr; }
	/** True when it referred to an object that is gone; false for one that was never set. */
	bool IsStale(bool bIncludingGarbage = true) const;
	/** True when it was never set to an object. */
	bool IsExplicitlyNull() const { return ObjectSerialNumber == 0; }

	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}
	bool HasSameObject(const UObject* Object) const { return GetEvenIfUnreachable() == Object; }

	/** Two that refer to nothing alive are equal, whatever they referred to. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return HasSameIndexAndSerialNumber(Other) || (!IsValid() && !Other.IsValid());
	}

	friend uint32 GetTypeHash(const FWeakObjectPtr& Pointer)
	{
		return static_cast<uint32>(Pointer.ObjectIndex) ^ static_cast<uint32>(Pointer.ObjectSerialNumber);
	}

private:
	int32 ObjectIndex = 0;
	/** 0 for null. */
	int32 ObjectSerialNumber = 0;
};

#include "UObject/WeakObjectPtrTemplates.h"
