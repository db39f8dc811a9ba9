#pragma once

#include "Host/Reflection/TypeInfo.h"
#include "UObject/UnrealType.h"

namespace Host
{
	/** Makes the objects that describe native types, and keeps the order in which they become complete. */
	struct FTypeBuilder
	{
		/** Memory and static constructor; the caller registers the object. */
		template<typename T>
		static T* Allocate()
		{
			return ::new (FMemory::MallocZeroed(sizeof(T), alignof(T))) T(EC_StaticConstructor, RF_Public | RF_MarkAsNative);
		}

		/** Package of a native module. */
		static UPackage* GetPackage(const TCHAR* Name);

		static void AddProperty(UStruct* Struct, const FPropertyInfo& Info);
		static void AddFunction(UClass* Class, const FFunctionInfo& Info);
		static void FillFunction(UFunction* Function, const FFunctionInfo& Info);

		/** Adds the members of the types made meanwhile and links them, once no construction is in progress. */
		static void Enter() { ++Depth; }
		static void Leave();
		/** Members to add later; Info lives as long as the process. */
		static void AddPending(UStruct* Struct, void (*AddMembers)(UStruct*, const void*), const void* Info);

		/** Links the structure unless that is done or in progress. */
		static void EnsureLinked(UStruct* Struct);
		static bool IsLinking(const UStruct* Struct) { return Struct->LinkState == UStruct::ELinkState::Linking; }

	private:
		struct FPending
		{
			UStruct* Struct;
			void (*AddMembers)(UStruct*, const void*);
			const void* Info;
		};

		static TArray<FPending>& GetPending();
		static int32 Depth;
	};
} // namespace Host
