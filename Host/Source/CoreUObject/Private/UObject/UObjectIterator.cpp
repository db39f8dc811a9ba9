#include "UObject/UObjectIterator.h"

#include "Host/ObjectArray.h"

namespace Host
{
	FObjectCursor::FObjectCursor(const UClass* InClass, EObjectFlags InExcludedFlags, bool bInDerivedClasses)
		: Class(InClass), ExcludedFlags(InExcludedFlags), bDerivedClasses(bInDerivedClasses)
	{
		Advance();
	}

	void FObjectCursor::Advance()
	{
		FObjectArray& Objects = FObjectArray::Get();
		Current = nullptr;
		while (++Index < Objects.Num())
		{
			const FObjectItem& Item = Objects.At(Index);
			if (!Item.Object || Item.HasAnyFlags(EInternalObjectFlags::Garbage | EInternalObjectFlags::Unreachable))
			{
				continue;
			}
			UObject* Object = Objects.ObjectAt(Index);
			const bool bMatches = bDerivedClasses ? Object->IsA(Class) : Object->GetClass() == Class;
			if (bMatches && !Object->HasAnyFlags(ExcludedFlags))
			{
				Current = Object;
				return;
			}
		}
	}
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExclusionFlags)
{
	for (Host::FObjectCursor Cursor(ClassToLookFor, ExclusionFlags, bIncludeDerivedClasses); Cursor.Get(); Cursor.Advance())
	{
		Results.Add(Cursor.Get());
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	for (TObjectIterator<UClass> It; It; ++It)
	{
		UClass* Class = *It;
		const bool bDerived = bRecursive
			? Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor)
			: Class->GetSuperClass() == ClassToLookFor;
		if (bDerived)
		{
			Results.Add(Class);
		}
	}
}
