#pragma once

#include "UObject/ScriptStruct.h"

#include <new>
#include <type_traits>

class FOutputDevice;

namespace Host
{
	template<typename T>
	concept CHashable = requires(const T& Value) { GetTypeHash(Value); };

	/** What C++ does with values of a structure, as far as the structure can be made, copied and so on. */
	template<typename T>
	const FStructOps* GetStructOps()
	{
		static constexpr FStructOps Ops = []
		{
			using FTraits = TStructOpsTypeTraits<T>;
			FStructOps Result = {};
			Result.Size = sizeof(T);
			Result.Alignment = alignof(T);
			Result.bPlainOldData = std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>;
			Result.Construct = [](void* Dest) { ::new (Dest) T(); };
			Result.Destruct = [](void* Dest) { static_cast<T*>(Dest)->~T(); };
			Result.Copy = [](void* Dest, const void* Src) { *static_cast<T*>(Dest) = *static_cast<const T*>(Src); };
			if constexpr (FTraits::WithIdenticalViaEquality)
			{
				Result.Identical = [](const void* A, const void* B) -> bool { return *static_cast<const T*>(A) == *static_cast<const T*>(B); };
			}
			if constexpr (CHashable<T>)
			{
				Result.GetTypeHash = [](const void* Value) -> uint32 { return GetTypeHash(*static_cast<const T*>(Value)); };
			}
			if constexpr (FTraits::WithAddStructReferencedObjects)
			{
				Result.AddReferencedObjects = [](void* Value, FReferenceCollector& Collector)
				{ static_cast<T*>(Value)->AddStructReferencedObjects(Collector); };
			}
			if constexpr (FTraits::WithExportTextItem)
			{
				Result.ExportTextItem = [](FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* Scope)
				{
					const T& Typed = *static_cast<const T*>(Value);
					return Typed.ExportTextItem(ValueStr, Default ? *static_cast<const T*>(Default) : Typed, Parent, PortFlags, Scope);
				};
			}
			if constexpr (FTraits::WithImportTextItem)
			{
				Result.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
				{ return static_cast<T*>(Value)->ImportTextItem(Buffer, PortFlags, Parent, ErrorText); };
			}
			return Result;
		}();
		return &Ops;
	}
}
