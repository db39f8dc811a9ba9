#pragma once

#include "Internationalization/Text.h"

/** Cultures, and the texts that literals in the sources stand for. */
class CORE_API FInternationalization
{
public:
	static FInternationalization& Get();
	static bool IsAvailable() { return true; }

	/** The culture by whose rules numbers are written and texts compared: "en" at the start. */
	FCultureRef GetCurrentCulture() const { return CurrentCulture; }
	FCulturePtr GetCulture(const FString& InCultureName);
	/** False, with nothing changed, when there is no such culture. */
	bool SetCurrentCulture(const FString& InCultureName);

	/** What LOCTEXT and NSLOCTEXT expand to; the same literal gives copies of one text. */
	[[nodiscard]] static FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InSource, const TCHAR* InNamespace, const TCHAR* InKey);

private:
	FInternationalization();

	FCultureRef CurrentCulture;
};

/** A text of this file to be translated. LOCTEXT_NAMESPACE is defined around it. */
#define LOCTEXT(InKey, InTextLiteral) FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(LOCTEXT_NAMESPACE), TEXT(InKey))
/** A text to be translated, with its namespace. */
#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))
/** A text that is the same in every culture. */
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(TEXTVIEW(InTextLiteral))
