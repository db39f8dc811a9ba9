#pragma once

#include "Internationalization/Text.h"

/** Texts in the form in which they are exported: NSLOCTEXT("Namespace", "Key", "Source"), INVTEXT("Text") or "Text". */
class CORE_API FTextStringHelper
{
public:
	/**
	 * Reads a text from the start of a buffer. LOCTEXT("Key", "Source") takes its namespace from TextNamespace. What is no
	 * macro is one quoted string, or, unless quotes are required, the whole buffer as it is.
	 * Returns the first character behind the text; null, with OutValue unchanged, when the buffer is malformed.
	 */
	static const TCHAR* ReadFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace = nullptr, const TCHAR* PackageNamespace = nullptr, bool bRequiresQuotes = false);

	static bool CreateFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace = nullptr)
	{
		return ReadFromBuffer(Buffer, OutValue, TextNamespace) != nullptr;
	}

	/** Appends a text in its exported form. Generated texts are written as what they show. */
	static bool WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes = false);
	/** Whether the buffer begins with one of the macros. */
	static bool IsComplexText(const TCHAR* Buffer);
};
