#pragma once

#include "UObject/Class.h"

namespace Host
{
	/** The classes that describe reflection itself: their descriptions are made by hand, all at once. */
	struct FIntrinsicTypes
	{
		enum EType
		{
			Object,
			Interface,
			Package,
			Field,
			Struct,
			ScriptStruct,
			Function,
			DelegateFunction,
			Class,
			Enum,
			NumTypes,
		};

		static UClass* Get(EType Type)
		{
			if (!Classes[Type])
			{
				MakeAll();
			}
			return Classes[Type];
		}

	private:
		static void MakeAll();

		static UClass* Classes[NumTypes];
	};
} // namespace Host
