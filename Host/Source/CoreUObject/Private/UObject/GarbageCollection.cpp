#include "UObject/GarbageCollection.h"

#include "Host/ObjectArray.h"
#include "Host/ObjectMemory.h"
#include "Host/ReferenceMarker.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace
{
	using namespace Host;

	bool bCollecting = false;
	FGarbageStats LastStats;

	/** Objects that were told to go and are not all ready yet. */
	TArray<UObject*>& GetDoomed()
	{
		static TArray<UObject*> Doomed;
		return Doomed;
	}

	/** Holders without reflection. */
	TArray<FGCObject*>& GetHolders()
	{
		static TArray<FGCObject*>* Holders = new TArray<FGCObject*>;
		return *Holders;
	}

	TMap<UObject*, int32>& GetStrongReferences()
	{
		static TMap<UObject*, int32>* Counts = new TMap<UObject*, int32>;
		return *Counts;
	}

	void MarkRoots(FReferenceMarker& Marker, EObjectFlags KeepFlags)
	{
		FObjectArray& Objects = FObjectArray::Get();
		for (int32 Index = 0; Index < Objects.Num(); ++Index)
		{
			FObjectItem& Item = Objects.At(Index);
			if (!Item.Object)
			{
				continue;
			}
			const bool bRoot = Item.HasAnyFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::Native)
				|| (KeepFlags != RF_NoFlags && !Item.HasAnyFlags(EInternalObjectFlags::Garbage)
					&& (Item.Object->GetFlags() & KeepFlags) != RF_NoFlags);
			if (bRoot)
			{
				Item.ClearFlags(EInternalObjectFlags::Unreachable);
				Marker.Push(Objects.ObjectAt(Index));
			}
			else
			{
				Item.SetFlags(EInternalObjectFlags::Unreachable);
			}
		}
	}

	void MarkHolders(FReferenceMarker& Marker)
	{
		for (FGCObject* Holder : GetHolders())
		{
			Holder->AddReferencedObjects(Marker);
		}
		for (const TPair<UObject*, int32>& Pair : GetStrongReferences())
		{
			Marker.Reach(Pair.Key);
		}
	}

	/** Tells the objects that nothing reaches to begin to go. */
	void CondemnUnreached()
	{
		FObjectArray& Objects = FObjectArray::Get();
		TArray<UObject*>& Doomed = GetDoomed();
		const int32 FirstNew = Doomed.Num();
		for (int32 Index = 0; Index < Objects.Num(); ++Index)
		{
			const FObjectItem& Item = Objects.At(Index);
			if (Item.Object && Item.HasAnyFlags(EInternalObjectFlags::Unreachable) && !(Item.Object->GetFlags() & RF_BeginDestroyed))
			{
				Doomed.Add(Objects.ObjectAt(Index));
			}
		}
		for (int32 Index = FirstNew; Index < Doomed.Num(); ++Index)
		{
			Doomed[Index]->ConditionalBeginDestroy();
		}
	}

	/** Ends the lives of the condemned, once all of them are ready: they may refer to each other until then. */
	int32 DestroyDoomed()
	{
		TArray<UObject*>& Doomed = GetDoomed();
		for (UObject* Object : Doomed)
		{
			if (!Object->IsReadyForFinishDestroy())
			{
				return 0;
			}
		}
		for (UObject* Object : Doomed)
		{
			Object->ConditionalFinishDestroy();
		}
		for (UObject* Object : Doomed)
		{
			FObjectArray::Get().Remove(*Object);
		}
		// Classes and functions outlive the objects that they describe.
		TArray<UObject*> Descriptions;
		for (UObject* Object : Doomed)
		{
			if (Object->IsA(UField::StaticClass()))
			{
				Descriptions.Add(Object);
			}
			else
			{
				DeleteObject(Object);
			}
		}
		if (Descriptions.Num() > 0)
		{
			FReferenceSchemas::Get().Reset();
		}
		for (UObject* Object : Descriptions)
		{
			DeleteObject(Object);
		}
		const int32 NumDestroyed = Doomed.Num();
		Doomed.Empty();
		return NumDestroyed;
	}
}

bool IsGarbageCollecting()
{
	return bCollecting;
}

void CollectGarbage(EObjectFlags KeepFlags, bool)
{
	checkf(!bCollecting, TEXT("garbage collection began inside garbage collection"));
	checkf(!IsInsideObjectConstructor(), TEXT("garbage collection began inside the constructor of an object"));
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	bCollecting = true;
	{
		FReferenceMarker Marker;
		MarkRoots(Marker, KeepFlags);
		MarkHolders(Marker);
		Marker.FollowAll();
		LastStats.NumReached = Marker.NumReached();
	}
	CondemnUnreached();
	LastStats.NumDestroyed = DestroyDoomed();
	LastStats.NumPending = GetDoomed().Num();
	bCollecting = false;
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
}

void FReferenceCollector::AddPropertyReferences(const UStruct* Struct, void* Instance, const UObject*)
{
	for (const FProperty* Property = Struct->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->ContainsObjectReference())
		{
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				Property->AddReferencedObjects(Property->ContainerPtrToValuePtr<void>(Instance, Index), *this);
			}
		}
	}
}

FGCObject::FGCObject() : Index(GetHolders().Add(this)) {}

FGCObject::FGCObject(const FGCObject&) : FGCObject() {}

FGCObject::~FGCObject()
{
	TArray<FGCObject*>& Holders = GetHolders();
	Holders.Last()->Index = Index;
	Holders.RemoveAtSwap(Index, 1, EAllowShrinking::No);
}

namespace Host
{
	const FGarbageStats& GetLastGarbageStats()
	{
		return LastStats;
	}

	void AddStrongReference(UObject* Object)
	{
		++GetStrongReferences().FindOrAdd(Object, 0);
	}

	void ReleaseStrongReference(UObject* Object)
	{
		int32* Count = GetStrongReferences().Find(Object);
		if (Count && --*Count == 0)
		{
			GetStrongReferences().Remove(Object);
		}
	}
}
