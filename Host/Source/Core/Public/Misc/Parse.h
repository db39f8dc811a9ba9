#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

class FName;

/** Small readers of command lines and of texts of the form "Key=Value". */
struct FParse
{
	/**
	 * Reads what follows a word such as "Width=", found without regard to case where no letter or digit stands before it.
	 * Text ends at a space, comma, ')' or line end, or at the closing quote when it starts with one.
	 * Returns false, leaving the output alone, when the word is absent or, for numbers, no number follows.
	 */
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator = true);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, FName& Name);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, int32& Value);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, int64& Value);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, float& Value);
	CORE_API static bool Value(const TCHAR* Stream, const TCHAR* Match, double& Value);

	/** As Value, for "True", "Yes", "On", "1" against anything else. */
	CORE_API static bool Bool(const TCHAR* Stream, const TCHAR* Match, bool& OnOff);

	/** Whether a command line holds "-Param" or "/Param", in any case, as a word of its own. */
	CORE_API static bool Param(const TCHAR* Stream, const TCHAR* Param);

	/** When the text starts with the word, in any case, moves on behind it and the white space after it. */
	CORE_API static bool Command(const TCHAR** Stream, const TCHAR* Match);

	/** Takes the next word, or the next text in quotes without them; with bUseEscape, \" stands for a quote inside. False at the end. */
	CORE_API static bool Token(const TCHAR*& Str, FString& Result, bool bUseEscape);

	/**
	 * Reads text in quotes with the escapes \n \r \t \' \" \\ and \uXXXX.
	 * Returns false, leaving the outputs alone, when the text does not start with a quote or the closing one is missing.
	 */
	CORE_API static bool QuotedString(const TCHAR* Stream, FString& Value, int32* OutNumCharsRead = nullptr);

	/** The value of a hexadecimal digit in either case; 0 for any other character. */
	CORE_API static int32 HexDigit(TCHAR Char);
};
