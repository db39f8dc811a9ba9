#pragma once

#include "UObject/ContainerProperty.h"

/** Works on an array through its property. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
		: InnerProperty(InProperty->Inner), Ops(InProperty->GetOps()), Array(const_cast<void*>(InArray))
	{
	}

	int32 Num() const { return Ops.Num(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	/** Address of an element, which must be there; of the first one when the array is empty is null. */
	uint8* GetRawPtr(int32 Index = 0) const
	{
		checkf(Num() == 0 ? Index == 0 : IsValidIndex(Index), TEXT("array index out of range"));
		return static_cast<uint8*>(Ops.GetData(Array)) + static_cast<SIZE_T>(Index) * InnerProperty->ElementSize;
	}
	uint8* GetElementPtr(int32 Index = 0) const { return GetRawPtr(Index); }

	/** Appends a default value. Returns its index. */
	int32 AddValue() const { return AddValues(1); }
	int32 AddValues(int32 Count) const
	{
		const int32 OldNum = Num();
		Ops.InsertDefaulted(Array, OldNum, Count);
		return OldNum;
	}
	/** Inserts default values ahead of Index. */
	void InsertValues(int32 Index, int32 Count = 1) const
	{
		checkf(Index >= 0 && Index <= Num(), TEXT("array index out of range"));
		Ops.InsertDefaulted(Array, Index, Count);
	}
	void RemoveValues(int32 Index, int32 Count = 1) const
	{
		checkf(Index >= 0 && Count >= 0 && Index + Count <= Num(), TEXT("array index out of range"));
		Ops.RemoveAt(Array, Index, Count);
	}
	void SwapValues(int32 A, int32 B) const
	{
		checkf(IsValidIndex(A) && IsValidIndex(B), TEXT("array index out of range"));
		Ops.Swap(Array, A, B);
	}
	void EmptyValues(int32 Slack = 0) const { Ops.Empty(Array, Slack); }
	/** Removes all elements and appends Count default ones. */
	void EmptyAndAddValues(int32 Count) const
	{
		EmptyValues(Count);
		AddValues(Count);
	}
	/** Removes from the end, or appends default values, until there are Count. */
	void Resize(int32 Count) const
	{
		const int32 OldNum = Num();
		if (Count > OldNum)
		{
			AddValues(Count - OldNum);
		}
		else if (Count < OldNum)
		{
			RemoveValues(Count, OldNum - Count);
		}
	}

private:
	const FProperty* InnerProperty;
	const Host::FArrayOps& Ops;
	void* Array;
};

/** What the helpers of sets and maps have in common: numbered slots, some of them free. */
class COREUOBJECT_API FScriptSparseHelper
{
public:
	int32 Num() const { return Ops.Num(Container); }
	/** One above the largest slot in use. */
	int32 GetMaxIndex() const { return Ops.GetMaxIndex(Container); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < GetMaxIndex() && Ops.IsValidIndex(Container, Index); }
	void RemoveAt(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("slot is not in use"));
		Ops.RemoveAt(Container, Index);
	}

protected:
	FScriptSparseHelper(const Host::FSparseOps& InOps, const void* InContainer) : Ops(InOps), Container(const_cast<void*>(InContainer)) {}

	uint8* GetKeyAt(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("slot is not in use"));
		return static_cast<uint8*>(Ops.GetKey(Container, Index));
	}

	const Host::FSparseOps& Ops;
	void* Container;
};

/** Works on a set through its property. */
class COREUOBJECT_API FScriptSetHelper : public FScriptSparseHelper
{
public:
	FScriptSetHelper(const FSetProperty* InProperty, const void* InSet) : FScriptSparseHelper(InProperty->GetOps(), InSet) {}

	/** Address of the element in a used slot; not to be changed in a way that changes its hash. */
	uint8* GetElementPtr(int32 Index) const { return GetKeyAt(Index); }
	/** Adds a copy unless an equal element is there. */
	void AddElement(const void* ElementToAdd) const { Ops.Add(Container, ElementToAdd); }
	/** Slot of the element; INDEX_NONE when it is not there. */
	int32 FindElementIndex(const void* ElementToFind) const { return Ops.Find(Container, ElementToFind); }
	/** False when it was not there. */
	bool RemoveElement(const void* ElementToRemove) const;
	void EmptyElements(int32 Slack = 0) const { Ops.Empty(Container, Slack); }
};

/** Works on a map through its property. */
class COREUOBJECT_API FScriptMapHelper : public FScriptSparseHelper
{
public:
	FScriptMapHelper(const FMapProperty* InProperty, const void* InMap)
		: FScriptSparseHelper(InProperty->GetOps(), InMap), ValueProp(InProperty->ValueProp)
	{
	}

	/** Address of the key in a used slot; not to be changed in a way that changes its hash. */
	uint8* GetKeyPtr(int32 Index) const { return GetKeyAt(Index); }
	uint8* GetValuePtr(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("slot is not in use"));
		return static_cast<uint8*>(Ops.GetValue(Container, Index));
	}
	/** Adds the pair, or replaces the value of the key. */
	void AddPair(const void* KeyPtr, const void* ValuePtr) const;
	/** Value of the key; made with its default when the key is not there. */
	void* FindOrAdd(const void* KeyPtr) const;
	/** Slot of the key; INDEX_NONE when it is not there. */
	int32 FindMapPairIndexFromHash(const void* KeyPtr) const { return Ops.Find(Container, KeyPtr); }
	/** Value of the key; null when it is not there. */
	uint8* FindValueFromHash(const void* KeyPtr) const;
	/** False when it was not there. */
	bool RemovePair(const void* KeyPtr) const;
	void EmptyValues(int32 Slack = 0) const { Ops.Empty(Container, Slack); }

private:
	const FProperty* ValueProp;
};
