#include "UObject/ContainerHelpers.h"

bool FScriptSetHelper::RemoveElement(const void* ElementToRemove) const
{
	const int32 Index = FindElementIndex(ElementToRemove);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	RemoveAt(Index);
	return true;
}

void FScriptMapHelper::AddPair(const void* KeyPtr, const void* ValuePtr) const
{
	ValueProp->CopySingleValue(FindOrAdd(KeyPtr), ValuePtr);
}

void* FScriptMapHelper::FindOrAdd(const void* KeyPtr) const
{
	return GetValuePtr(Ops.Add(Container, KeyPtr));
}

uint8* FScriptMapHelper::FindValueFromHash(const void* KeyPtr) const
{
	const int32 Index = FindMapPairIndexFromHash(KeyPtr);
	return Index == INDEX_NONE ? nullptr : GetValuePtr(Index);
}

bool FScriptMapHelper::RemovePair(const void* KeyPtr) const
{
	const int32 Index = FindMapPairIndexFromHash(KeyPtr);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	RemoveAt(Index);
	return true;
}
