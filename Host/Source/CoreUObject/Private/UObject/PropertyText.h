#pragma once

#include "CoreMinimal.h"

class FOutputDevice;
class FProperty;

namespace Host
{
	/** Steps over blanks and line breaks. */
	const TCHAR* SkipBlanks(const TCHAR* Buffer);

	/**
	 * Reads a text in quotes, with \" \\ \n \r \t and \uXXXX inside. Returns what follows the closing quote; null when it does not
	 * begin with a quote or does not end.
	 */
	const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& OutText);

	/** Reads up to a comma, a closing bracket or the end, without blanks around. */
	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutText);

	/**
	 * Reads a quoted text, otherwise a token among others, or all of it where the value stands alone. Null, with OutText as it
	 * was, for a text among others whose quote is left open.
	 */
	const TCHAR* ReadText(const TCHAR* Buffer, int32 PortFlags, FString& OutText);

	/** The text in quotes. */
	FString Quote(const FString& Text);

	/** Says in ErrorText, if there is one, that the text is no value of the property. Gives null. */
	const TCHAR* RefuseText(const FProperty& Property, const FString& Text, FOutputDevice* ErrorText);
}

/** Defines the kind of a property class. */
#define HOST_IMPLEMENT_FIELD(TClass, Name) \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass Class(TEXT(Name), StaticCastFlag, StaticCastFlag | Super::StaticClass()->GetCastFlags(), Super::StaticClass()); \
		return &Class; \
	}
