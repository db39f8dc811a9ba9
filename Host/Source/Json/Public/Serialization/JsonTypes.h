#pragma once

#include "CoreMinimal.h"

JSON_API DECLARE_LOG_CATEGORY_EXTERN(LogJson, Log, All);

/** Kinds of JSON values. */
enum class EJson
{
	None,
	Null,
	String,
	Number,
	Boolean,
	Array,
	Object
};

/** What a reader has come to. */
enum class EJsonNotation
{
	ObjectStart,
	ObjectEnd,
	ArrayStart,
	ArrayEnd,
	Boolean,
	String,
	Number,
	Null,
	Error
};
