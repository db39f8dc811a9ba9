#include "Internationalization/Text.h"

#include "Containers/StringConv.h"
#include "Internationalization/Internationalization.h"
#include "TextData.h"

#include <unicode/ustring.h>

using Host::ETextOrigin;
using Host::FTextData;

namespace
{
	TSharedRef<const FTextData> MakeTextData(ETextOrigin Origin, FString&& Display)
	{
		return MakeShared<FTextData>(Origin, MoveTemp(Display));
	}

	const FString EmptyString;
}

FText::FText(TSharedRef<const FTextData>&& InData)
	: Data(MoveTemp(InData))
{
}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return FromString(FString(String));
}

FText FText::FromString(FString&& String)
{
	return String.IsEmpty() ? FText() : FText(MakeTextData(ETextOrigin::String, MoveTemp(String)));
}

FText FText::FromStringView(FStringView View)
{
	return FromString(FString(View));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return AsCultureInvariant(FString(String));
}

FText FText::AsCultureInvariant(FString&& String)
{
	return String.IsEmpty() ? FText() : FText(MakeTextData(ETextOrigin::Invariant, MoveTemp(String)));
}

FText FText::AsCultureInvariant(FText Text)
{
	return Text.IsCultureInvariant() ? Text : AsCultureInvariant(Text.ToString());
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Texts)
{
	FString Joined = FString::JoinBy(Texts, *Delimiter.ToString(), [](const FText& Text) -> const FString& { return Text.ToString(); });
	return FText(MakeTextData(ETextOrigin::Generated, MoveTemp(Joined)));
}

const FString& FText::ToString() const
{
	return Data.IsValid() ? Data->Display : EmptyString;
}

bool FText::IsEmptyOrWhitespace() const
{
	return FStringView(ToString()).TrimStart().IsEmpty();
}

bool FText::IsCultureInvariant() const
{
	return Data.IsValid() && Data->Origin == ETextOrigin::Invariant;
}

bool FText::IsInitializedFromString() const
{
	return Data.IsValid() && Data->Origin == ETextOrigin::String;
}

bool FText::ShouldGatherForLocalization() const
{
	return Data.IsValid() && Data->Origin == ETextOrigin::Localized && !IsEmptyOrWhitespace();
}

bool FText::IdenticalTo(const FText& Other, ETextIdenticalModeFlags Flags) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	if (!Data.IsValid() || !Other.Data.IsValid() || Data->Origin != Other.Data->Origin)
	{
		return false;
	}
	const bool bGenerated = Data->Origin == ETextOrigin::Generated;
	const bool bInvariant = Data->Origin == ETextOrigin::Invariant || Data->Origin == ETextOrigin::String;
	const bool bByContent = (bGenerated && EnumHasAnyFlags(Flags, ETextIdenticalModeFlags::DeepCompare)) || (bInvariant && EnumHasAnyFlags(Flags, ETextIdenticalModeFlags::LexicalCompareInvariants));
	return bByContent && Data->Display.Equals(Other.Data->Display);
}

namespace
{
	using FCaseMapping = int32_t (*)(UChar*, int32_t, const UChar*, int32_t, const char*, UErrorCode*);

	/** Maps a whole text, in which one character may become several. */
	FText MapCase(const FString& Text, FCaseMapping Map)
	{
		const FTCHARToANSI Locale(*FInternationalization::Get().GetCurrentCulture()->GetName());
		UErrorCode Error = U_ZERO_ERROR;
		const int32 Len = Map(nullptr, 0, *Text, Text.Len(), Locale.Get(), &Error);
		FString Mapped = FString::ChrN(Len, u' ');
		Error = U_ZERO_ERROR;
		Map(Mapped.begin(), Len, *Text, Text.Len(), Locale.Get(), &Error);
		return FText::AsCultureInvariant(MoveTemp(Mapped));
	}
}

FText FText::ToLower() const
{
	return MapCase(ToString(), &u_strToLower);
}

FText FText::ToUpper() const
{
	return MapCase(ToString(), &u_strToUpper);
}

FText FText::TrimPreceding(const FText& Text)
{
	return FromString(Text.ToString().TrimStart());
}

FText FText::TrimTrailing(const FText& Text)
{
	return FromString(Text.ToString().TrimEnd());
}

FText FText::TrimPrecedingAndTrailing(const FText& Text)
{
	return FromString(Text.ToString().TrimStartAndEnd());
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	const bool bLocalized = Text.Data.IsValid() && Text.Data->Origin == ETextOrigin::Localized;
	return bLocalized ? TOptional<FString>(static_cast<const Host::FLocalizedTextData*>(Text.Data.Get())->Namespace) : NullOpt;
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	const bool bLocalized = Text.Data.IsValid() && Text.Data->Origin == ETextOrigin::Localized;
	return bLocalized ? TOptional<FString>(static_cast<const Host::FLocalizedTextData*>(Text.Data.Get())->Key) : NullOpt;
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return Text.Data.IsValid() ? &Text.Data->Display : nullptr;
}
