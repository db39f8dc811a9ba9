#pragma once

#include "UObject/Class.h"
#include "UObject/Property.h"

namespace Host
{
	struct FArrayOps;

	/** Where the strong references of a class's objects lie: a flat list, so that marking an object is one loop. */
	class FReferenceSchema
	{
	public:
		/** An array of object pointers. */
		struct FObjectArrayMember
		{
			int32 Offset;
			const FArrayOps* Ops;
		};

		/** Anything else: the property shows its references. */
		struct FOtherMember
		{
			int32 Offset;
			const FProperty* Property;
		};

		/** References that a structure declares in code. */
		struct FNativeMember
		{
			int32 Offset;
			void (*AddReferencedObjects)(void* Value, FReferenceCollector& Collector);
		};

		explicit FReferenceSchema(const UClass* Class);

		/** False when properties were added to the class since. */
		bool Describes(const UClass* Class) const { return Class->PropertiesSize == ClassSize; }


		/** Offsets of object pointers. */
		TArray<int32> Objects;
		TArray<FObjectArrayMember> ObjectArrays;
		TArray<FOtherMember> Others;
		TArray<FNativeMember> Natives;
		/** The class's own contribution; null when it has none. */
		UClass::ClassAddReferencedObjectsType AddReferencedObjects = nullptr;

	private:
		void AddStruct(const UStruct* Struct, int32 BaseOffset);
		void AddProperty(const FProperty* Property, int32 Offset);

		int32 ClassSize;
	};

	/** The schemas of all classes that had objects in a collection. */
	class FReferenceSchemas
	{
	public:
		static FReferenceSchemas& Get();

		const FReferenceSchema& Find(const UClass* Class);
		/** Forgets everything; called when classes were destroyed. */
		void Reset();

	private:
		/** By the class's place in the object array. */
		TArray<TUniquePtr<FReferenceSchema>> Schemas;
	};
}
