#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

/** Nature of a reflected function. */
enum EFunctionFlags : uint32
{
	FUNC_None = 0x00000000,
	FUNC_Final = 0x00000001,
	FUNC_BlueprintCosmetic = 0x00000008,
	FUNC_Exec = 0x00000200,
	/** Has compiled code. */
	FUNC_Native = 0x00000400,
	/** Can be overridden by name. */
	FUNC_Event = 0x00000800,
	FUNC_Static = 0x00002000,
	/** Signature of a multicast delegate. */
	FUNC_MulticastDelegate = 0x00010000,
	FUNC_Public = 0x00020000,
	FUNC_Private = 0x00040000,
	FUNC_Protected = 0x00080000,
	/** Signature of a delegate. */
	FUNC_Delegate = 0x00100000,
	/** Has parameters that are copied out. */
	FUNC_HasOutParms = 0x00400000,
	FUNC_BlueprintCallable = 0x04000000,
	/** A graph may implement it. */
	FUNC_BlueprintEvent = 0x08000000,
	/** Changes nothing: drawn without execution pins. */
	FUNC_BlueprintPure = 0x10000000,
	FUNC_EditorOnly = 0x20000000,
	FUNC_Const = 0x40000000,

	FUNC_AccessSpecifiers = FUNC_Public | FUNC_Private | FUNC_Protected,
	/** What an override takes over from the function that it overrides. */
	FUNC_FuncInherit = FUNC_Exec | FUNC_Event | FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_BlueprintPure
		| FUNC_BlueprintCosmetic | FUNC_Const | FUNC_AccessSpecifiers | FUNC_Static | FUNC_EditorOnly,
	FUNC_AllFlags = 0xFFFFFFFF,
};
ENUM_CLASS_FLAGS(EFunctionFlags)
