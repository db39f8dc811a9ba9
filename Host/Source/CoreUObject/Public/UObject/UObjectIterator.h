#pragma once

#include "UObject/Class.h"
#include "UObject/Object.h"

namespace Host
{
	/** Walks the object array; objects made during the walk may or may not be met. */
	class COREUOBJECT_API FObjectCursor
	{
	public:
		FObjectCursor(const UClass* InClass, EObjectFlags InExcludedFlags, bool bInDerivedClasses);

		UObject* Get() const { return Current; }
		void Advance();

	private:
		const UClass* Class;
		EObjectFlags ExcludedFlags;
		bool bDerivedClasses;
		int32 Index = -1;
		UObject* Current = nullptr;
	};
}

/** Visits all objects of class T and the classes derived from it that are not declared dead, class default objects left out. */
template<typename T>
class TObjectIterator
{
public:
	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true)
		: Cursor(T::StaticClass(), AdditionalExclusionFlags, bIncludeDerivedClasses)
	{
	}

	explicit operator bool() const { return Cursor.Get() != nullptr; }
	T* operator*() const { return static_cast<T*>(Cursor.Get()); }
	T* operator->() const { return **this; }
	TObjectIterator& operator++()
	{
		Cursor.Advance();
		return *this;
	}

private:
	Host::FObjectCursor Cursor;
};

/** Appends the objects of the class to Results. */
COREUOBJECT_API void GetObjectsOfClass(
	const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses = true, EObjectFlags ExclusionFlags = RF_ClassDefaultObject);

/** Appends the classes derived from the class, at any depth when bRecursive. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);
