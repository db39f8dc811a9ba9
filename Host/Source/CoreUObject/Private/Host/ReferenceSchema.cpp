#include "Host/ReferenceSchema.h"

#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** The function nearest to the class; classes made at run time have none of their own. */
		UClass::ClassAddReferencedObjectsType FindAddReferencedObjects(const UClass* Class)
		{
			while (Class && !Class->ClassAddReferencedObjects)
			{
				Class = Class->GetSuperClass();
			}
			const bool bOwn = Class && Class->ClassAddReferencedObjects != &UObject::AddReferencedObjects;
			return bOwn ? Class->ClassAddReferencedObjects : nullptr;
		}
	}

	FReferenceSchema::FReferenceSchema(const UClass* Class)
		: AddReferencedObjects(FindAddReferencedObjects(Class)), ClassSize(Class->PropertiesSize)
	{
		AddStruct(Class, 0);
	}

	void FReferenceSchema::AddStruct(const UStruct* Struct, int32 BaseOffset)
	{
		for (const FProperty* Property = Struct->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				AddProperty(Property, BaseOffset + Property->GetOffset_ForInternal() + Index * Property->ElementSize);
			}
		}
	}

	void FReferenceSchema::AddProperty(const FProperty* Property, int32 Offset)
	{
		if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
		{
			const FStructOps* Ops = StructProperty->Struct->GetCppStructOps();
			if (Ops && Ops->AddReferencedObjects)
			{
				Natives.Add({ Offset, Ops->AddReferencedObjects });
			}
			AddStruct(StructProperty->Struct, Offset);
			return;
		}
		if (!Property->ContainsObjectReference())
		{
			return;
		}
		if (Property->IsA<FObjectProperty>())
		{
			Objects.Add(Offset);
			return;
		}
		const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property);
		if (ArrayProperty && ArrayProperty->Inner->IsA<FObjectProperty>())
		{
			ObjectArrays.Add({ Offset, &ArrayProperty->GetOps() });
			return;
		}
		Others.Add({ Offset, Property });
	}

	FReferenceSchemas& FReferenceSchemas::Get()
	{
		// Never destroyed: objects may still be collected while statics go.
		static FReferenceSchemas* Instance = new FReferenceSchemas;
		return *Instance;
	}

	const FReferenceSchema& FReferenceSchemas::Find(const UClass* Class)
	{
		const int32 Index = static_cast<int32>(Class->GetUniqueID());
		if (Index >= Schemas.Num())
		{
			Schemas.SetNum(Index + 1);
		}
		TUniquePtr<FReferenceSchema>& Schema = Schemas[Index];
		if (!Schema || !Schema->Describes(Class))
		{
			Schema = MakeUnique<FReferenceSchema>(Class);
		}
		return *Schema;
	}

	void FReferenceSchemas::Reset()
	{
		Schemas.Empty();
	}
}
