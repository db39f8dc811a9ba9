#pragma once

#include "UObject/Class.h"

namespace Host
{
	/** The script function that answers calls of that name on the object; null when native code does. */
	inline UFunction* FindScriptFunction(const UObject* Object, FName Name)
	{
		const UClass* Class = Object->GetClass();
		if (!Class->HasScriptFunctions())
		{
			return nullptr;
		}
		UFunction* Function = Class->FindFunctionByName(Name);
		return Function && Function->IsScript() ? Function : nullptr;
	}

	/** Offset in bytes of the I-part of an interface in objects of a class. */
	template<typename TClass, typename TInterface>
	int32 GetInterfaceOffset()
	{
		// Any address but null will do: null pointers are converted without an offset.
		constexpr UPTRINT Address = 4096;
		TClass* Object = reinterpret_cast<TClass*>(Address);
		return static_cast<int32>(reinterpret_cast<UPTRINT>(static_cast<TInterface*>(Object)) - Address);
	}
}
