#include "Host/ReferenceMarker.h"

#include "Host/Reflection/ContainerOps.h"
#include "UObject/UnrealType.h"

namespace Host
{
	void FReferenceMarker::Reach(UObject* Object)
	{
		if (!Object)
		{
			return;
		}
		FObjectItem& Item = Objects.ItemOf(*Object);
		if (Item.HasAnyFlags(EInternalObjectFlags::Unreachable))
		{
			Item.ClearFlags(EInternalObjectFlags::Unreachable);
			Pending.Add(Object);
		}
	}

	void FReferenceMarker::HandleObjectReference(UObject*& Object)
	{
		if (!Object)
		{
			return;
		}
		FObjectItem& Item = Objects.ItemOf(*Object);
		if (!Item.HasAnyFlags(EInternalObjectFlags::Unreachable | EInternalObjectFlags::Garbage))
		{
			return;
		}
		if (Item.HasAnyFlags(EInternalObjectFlags::Garbage))
		{
			Object = nullptr;
			return;
		}
		Item.ClearFlags(EInternalObjectFlags::Unreachable);
		Pending.Add(Object);
	}

	void FReferenceMarker::FollowAll()
	{
		while (Pending.Num() > 0)
		{
			Follow(Pending.Pop(EAllowShrinking::No));
		}
	}

	void FReferenceMarker::Follow(UObject* Object)
	{
		++Reached;
		Reach(Object->GetClass());
		Reach(Object->GetOuter());

		const FReferenceSchema& Schema = Schemas.Find(Object->GetClass());
		uint8* Memory = reinterpret_cast<uint8*>(Object);
		for (const int32 Offset : Schema.Objects)
		{
			HandleObjectReference(*reinterpret_cast<UObject**>(Memory + Offset));
		}
		for (const FReferenceSchema::FObjectArrayMember& Member : Schema.ObjectArrays)
		{
			void* Array = Memory + Member.Offset;
			const int32 Num = Member.Ops->Num(Array);
			UObject** Data = static_cast<UObject**>(Member.Ops->GetData(Array));
			for (int32 Index = 0; Index < Num; ++Index)
			{
				HandleObjectReference(Data[Index]);
			}
		}
		for (const FReferenceSchema::FOtherMember& Member : Schema.Others)
		{
			Member.Property->AddReferencedObjects(Memory + Member.Offset, *this);
		}
		for (const FReferenceSchema::FNativeMember& Member : Schema.Natives)
		{
			Member.AddReferencedObjects(Memory + Member.Offset, *this);
		}
		if (Schema.AddReferencedObjects)
		{
			Schema.AddReferencedObjects(Object, *this);
		}
	}
}
