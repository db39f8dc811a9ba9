#include "Internationalization/Internationalization.h"

#include "Containers/StringConv.h"
#include "Misc/ScopeLock.h"
#include "TextData.h"

#include <unicode/uloc.h>
#include <unicode/ulocdata.h>

namespace
{
	using FDataRef = TSharedRef<const Host::FTextData>;

	/** A literal in the sources. */
	struct FLiteral
	{
		const TCHAR* Source;
		const TCHAR* Namespace;
		const TCHAR* Key;

		uint32 GetHash() const
		{
			const auto HashOf = [](const TCHAR* Text) { return (uint32)Host::Strings::Hash<false>(Text, Host::Strings::Length(Text)); };
			return HashCombineFast(HashOf(Key), HashCombineFast(HashOf(Namespace), HashOf(Source)));
		}
	};

	/** Texts are found by the content of their literal: the same one may stand in several files. */
	struct FLiteralKeyFuncs : BaseKeyFuncs<FDataRef, FDataRef>
	{
		static const FDataRef& GetSetKey(const FDataRef& Data) { return Data; }

		static bool Matches(const FDataRef& Data, const FLiteral& Literal)
		{
			const auto& Known = static_cast<const Host::FLocalizedTextData&>(*Data);
			return Known.Display.Equals(Literal.Source) && Known.Key.Equals(Literal.Key) && Known.Namespace.Equals(Literal.Namespace);
		}
	};
}

FString FCulture::GetNativeName() const
{
	const FTCHARToANSI Locale(*Name);
	UChar Buffer[256];
	UErrorCode Error = U_ZERO_ERROR;
	const int32 Len = uloc_getDisplayName(Locale.Get(), Locale.Get(), Buffer, UE_ARRAY_COUNT(Buffer), &Error);
	return U_SUCCESS(Error) ? FString(Len, Buffer) : Name;
}

FString FCulture::GetTwoLetterISOLanguageName() const
{
	const FTCHARToANSI Locale(*Name);
	char Language[ULOC_LANG_CAPACITY];
	UErrorCode Error = U_ZERO_ERROR;
	uloc_getLanguage(Locale.Get(), Language, sizeof(Language), &Error);
	return FString(Language);
}

bool FCulture::IsRightToLeft() const
{
	return uloc_isRightToLeft(FTCHARToANSI(*Name).Get());
}

FInternationalization::FInternationalization()
	: CurrentCulture(MakeShared<FCulture>(TEXT("en")))
{
}

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Internationalization;
	return Internationalization;
}

FCulturePtr FInternationalization::GetCulture(const FString& InCultureName)
{
	if (InCultureName.IsEmpty())
	{
		return nullptr;
	}
	// Only a locale for which there are conventions, if only its language's, is a culture.
	const FTCHARToANSI Locale(*InCultureName);
	char Language[ULOC_LANG_CAPACITY];
	UErrorCode Error = U_ZERO_ERROR;
	uloc_getLanguage(Locale.Get(), Language, sizeof(Language), &Error);
	for (int32 Index = 0; U_SUCCESS(Error) && Index < uloc_countAvailable(); ++Index)
	{
		if (std::strcmp(uloc_getAvailable(Index), Language) == 0)
		{
			return MakeShared<FCulture>(InCultureName);
		}
	}
	return nullptr;
}

bool FInternationalization::SetCurrentCulture(const FString& InCultureName)
{
	const FCulturePtr Culture = GetCulture(InCultureName);
	if (!Culture.IsValid())
	{
		return false;
	}
	CurrentCulture = Culture.ToSharedRef();
	return true;
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InSource, const TCHAR* InNamespace, const TCHAR* InKey)
{
	struct FKnownLiterals
	{
		FCriticalSection Lock;
		TSet<FDataRef, FLiteralKeyFuncs> Texts;
	};
	// Never destroyed: texts are made until the very end.
	static FKnownLiterals& Known = *new FKnownLiterals;

	const FLiteral Literal{ InSource, InNamespace, InKey };
	const uint32 Hash = Literal.GetHash();
	FScopeLock Lock(&Known.Lock);
	if (const FDataRef* Data = Known.Texts.FindByHash(Hash, Literal))
	{
		return FText(FDataRef(*Data));
	}
	FDataRef Data = MakeShared<Host::FLocalizedTextData>(InSource, InNamespace, InKey);
	Known.Texts.AddWithHash(Hash, Data);
	return FText(MoveTemp(Data));
}
