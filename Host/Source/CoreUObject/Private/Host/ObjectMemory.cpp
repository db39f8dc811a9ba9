#include "Host/ObjectMemory.h"

#include "Host/ObjectArray.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** Calls Operation for each property that no compiled class constructs. */
		template<typename TOperation>
		void ForEachScriptProperty(UClass* Class, TOperation Operation)
		{
			for (UClass* Owner = Class; Owner && !Owner->IsNative(); Owner = Owner->GetSuperClass())
			{
				for (TFieldIterator<FProperty> It(Owner, EFieldIterationFlags::None); It; ++It)
				{
					Operation(*It);
				}
			}
		}

		SIZE_T SizeOf(const UClass* Class)
		{
			return static_cast<SIZE_T>(Class->GetStructureSize());
		}

		void DestroyInPlace(UObject* Object)
		{
			UClass* Class = Object->GetClass();
			ForEachScriptProperty(Class, [Object](FProperty* Property) { Property->DestroyValue_InContainer(Object); });
			Object->~UObject();
		}

		void ConstructScriptProperties(UClass* Class, void* Memory)
		{
			ForEachScriptProperty(Class, [Memory](FProperty* Property) { Property->InitializeValue_InContainer(Memory); });
		}
	}

	UObject* AllocateObject(UClass* Class)
	{
		void* Memory = FMemory::MallocZeroed(SizeOf(Class), static_cast<uint32>(Class->GetMinAlignment()));
		ConstructScriptProperties(Class, Memory);
		return static_cast<UObject*>(Memory);
	}

	void RecycleObject(UObject* Object)
	{
		UClass* Class = Object->GetClass();
		UObject* Outer = Object->GetOuter();
		Object->ConditionalBeginDestroy();
		Object->ConditionalFinishDestroy();
		// What is inside stays registered and finds the new object at the old address, so it is detached first.
		FObjectArray& Objects = FObjectArray::Get();
		while (UObject* Inner = Objects.FirstInner(*Object))
		{
			Inner->MarkAsGarbage();
			Objects.Move(*Inner, MakeUniqueObjectName(Outer, Inner->GetClass()), Outer);
		}
		DestroyInPlace(Object);
		FMemory::Memzero(static_cast<void*>(Object), SizeOf(Class));
		ConstructScriptProperties(Class, Object);
	}

	void DeleteObject(UObject* Object)
	{
		DestroyInPlace(Object);
		FMemory::Free(Object);
	}
}
