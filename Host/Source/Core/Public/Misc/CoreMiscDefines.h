#pragma once

#include "HAL/Platform.h"

/** Index that stands for "no such element". */
enum
{
	INDEX_NONE = -1
};

/** Selects constructors that zero their members. */
enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

/** Selects constructors that leave their members as they are. */
enum ENoInit
{
	NoInit
};

/** Selects constructors that build their value in place from the remaining arguments. */
enum EInPlace
{
	InPlace
};

#define PREPROCESSOR_TO_STRING_INNER(Value) #Value
#define PREPROCESSOR_TO_STRING(Value) PREPROCESSOR_TO_STRING_INNER(Value)
#define PREPROCESSOR_JOIN_INNER(First, Second) First##Second
#define PREPROCESSOR_JOIN(First, Second) PREPROCESSOR_JOIN_INNER(First, Second)
#define UE_STRINGIZE(Token) PREPROCESSOR_TO_STRING(Token)
#define UE_JOIN(First, Second) PREPROCESSOR_JOIN(First, Second)

#define UE_ARRAY_COUNT(Array) (sizeof(Array) / sizeof((Array)[0]))
#define UE_NONCOPYABLE(TypeName) \
	TypeName(TypeName&&) = delete; \
	TypeName(const TypeName&) = delete; \
	TypeName& operator=(const TypeName&) = delete; \
	TypeName& operator=(TypeName&&) = delete;
