#pragma once

#include "Containers/UnrealString.h"
#include "Internationalization/Culture.h"
#include "Internationalization/TextFormatting.h"
#include "Misc/EnumClassFlags.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

/** Which differences count when texts are compared. */
namespace ETextComparisonLevel
{
	enum Type
	{
		/** Those that the culture counts: all of Tertiary. */
		Default,
		/** Base letters only. */
		Primary,
		/** Accents too. */
		Secondary,
		/** Case too. */
		Tertiary,
		/** Punctuation too. */
		Quaternary,
		/** Everything. */
		Quinary
	};
}

/** What makes two texts identical. */
enum class ETextIdenticalModeFlags : uint8
{
	/** Being copies of one text. */
	None = 0,
	/** Generated texts (numbers, formatted patterns) too, when they read the same. */
	DeepCompare = 1 << 0,
	/** Texts without translation too, when they read the same. */
	LexicalCompareInvariants = 1 << 1
};
ENUM_CLASS_FLAGS(ETextIdenticalModeFlags)

struct FFormatArgumentValue;
class FTextFormat;

using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

namespace Host
{
	struct FTextData;
}

/**
 * A text for people: its source, the namespace and key under which a translation of it is kept, and what is shown.
 * Immutable and cheap to copy. There is no ==: EqualTo and CompareTo go by the rules of the current culture, IdenticalTo
 * tells copies of one text; to compare as plain strings compare what ToString() gives.
 */
class CORE_API FText
{
public:
	FText() = default;

	static const FText& GetEmpty();

	/** A text that was typed by someone or came from elsewhere: not gathered for translation. */
	[[nodiscard]] static FText FromString(const FString& String);
	[[nodiscard]] static FText FromString(FString&& String);
	[[nodiscard]] static FText FromStringView(FStringView View);
	[[nodiscard]] static FText FromName(const FName& Name);
	/** A text that is the same in every culture: not gathered for translation. */
	[[nodiscard]] static FText AsCultureInvariant(const FString& String);
	[[nodiscard]] static FText AsCultureInvariant(FString&& String);
	[[nodiscard]] static FText AsCultureInvariant(FText Text);
	[[nodiscard]] static FText AsCultureInvariant(const TCHAR* String) { return AsCultureInvariant(FString(String)); }
	[[nodiscard]] static FText AsCultureInvariant(FStringView View) { return AsCultureInvariant(FString(View)); }

	// Numbers, as the culture (the current one, unless given) writes them

	template <typename NumberType>
		requires(std::is_arithmetic_v<NumberType> && !std::is_same_v<NumberType, bool>)
	[[nodiscard]] static FText AsNumber(NumberType Value, const FNumberFormattingOptions* Options = nullptr, const FCulturePtr& TargetCulture = nullptr)
	{
		if constexpr (std::is_floating_point_v<NumberType>)
		{
			return AsNumberOf((double)Value, Options, TargetCulture);
		}
		else if constexpr (std::is_signed_v<NumberType>)
		{
			return AsNumberOf((int64)Value, Options, TargetCulture);
		}
		else
		{
			return AsNumberOf((uint64)Value, Options, TargetCulture);
		}
	}

	/** 1 is a hundred percent; no decimals unless the options ask for them. */
	[[nodiscard]] static FText AsPercent(double Value, const FNumberFormattingOptions* Options = nullptr, const FCulturePtr& TargetCulture = nullptr);

	/**
	 * Puts arguments into a pattern: {0} and {Name}, and {0}|plural(one=...,other=...), |ordinal(...), |gender(...). A
	 * backtick takes the meaning from the character behind it. What names no argument stays as it is.
	 */
	template <typename... ArgTypes>
		requires((std::is_convertible_v<ArgTypes, FFormatArgumentValue> && ...))
	[[nodiscard]] static FText Format(FTextFormat Fmt, ArgTypes&&... Args);
	[[nodiscard]] static FText Format(FTextFormat Fmt, const FFormatNamedArguments& Arguments);
	[[nodiscard]] static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& Arguments);
	/** Names and values in turn: FormatNamed(Pattern, TEXT("Count"), 3, TEXT("Name"), Name). */
	template <typename... ArgTypes>
	[[nodiscard]] static FText FormatNamed(FTextFormat Fmt, ArgTypes&&... Args);
	template <typename... ArgTypes>
	[[nodiscard]] static FText FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args);
	/** The texts with a delimiter between them. */
	[[nodiscard]] static FText Join(const FText& Delimiter, const TArray<FText>& Texts);

	/** Changed copies, by the rules of the current culture. */
	[[nodiscard]] FText ToLower() const;
	[[nodiscard]] FText ToUpper() const;
	[[nodiscard]] static FText TrimPreceding(const FText& Text);
	[[nodiscard]] static FText TrimTrailing(const FText& Text);
	[[nodiscard]] static FText TrimPrecedingAndTrailing(const FText& Text);

	const FString& ToString() const;
	/** What is shown in the source language: the same as ToString() where there is no translation. */
	FString BuildSourceString() const { return ToString(); }
	bool IsEmpty() const { return ToString().IsEmpty(); }
	bool IsEmptyOrWhitespace() const;
	bool IsNumeric() const { return ToString().IsNumeric(); }
	bool IsCultureInvariant() const;
	bool IsInitializedFromString() const;
	/** Whether the text has a namespace and key to translate it by. */
	bool ShouldGatherForLocalization() const;

	bool EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	bool EqualToCaseIgnored(const FText& Other) const { return EqualTo(Other, ETextComparisonLevel::Secondary); }
	/** Negative, 0 or positive, in the order of the current culture. */
	int32 CompareTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel = ETextComparisonLevel::Default) const;
	int32 CompareToCaseIgnored(const FText& Other) const { return CompareTo(Other, ETextComparisonLevel::Secondary); }
	bool IdenticalTo(const FText& Other, ETextIdenticalModeFlags Flags = ETextIdenticalModeFlags::None) const;

	/** Sorts texts in the order of the current culture. */
	struct FSortPredicate
	{
		explicit FSortPredicate(ETextComparisonLevel::Type InLevel = ETextComparisonLevel::Default) : Level(InLevel) {}
		bool operator()(const FText& A, const FText& B) const { return A.CompareTo(B, Level) < 0; }

	private:
		ETextComparisonLevel::Type Level;
	};

private:
	friend class FTextInspector;
	friend class FInternationalization;

	explicit FText(TSharedRef<const Host::FTextData>&& InData);
	static FText AsNumberOf(double Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture);
	static FText AsNumberOf(int64 Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture);
	static FText AsNumberOf(uint64 Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture);

	/** Null for an empty text that is nothing else. */
	TSharedPtr<const Host::FTextData> Data;
};

/** Looks into texts. */
class CORE_API FTextInspector
{
public:
	/** Unset for texts without translation. */
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	/** The untranslated text; null for an empty text that is nothing else. */
	static const FString* GetSourceString(const FText& Text);
	static const FString& GetDisplayString(const FText& Text) { return Text.ToString(); }
	static bool ShouldGatherForLocalization(const FText& Text) { return Text.ShouldGatherForLocalization(); }
};

/** An argument of a text format. */
struct CORE_API FFormatArgumentValue
{
	FFormatArgumentValue() = default;
	FFormatArgumentValue(FText Value) : Argument(TInPlaceType<FText>(), MoveTemp(Value)) {}
	FFormatArgumentValue(ETextGender Value) : Argument(TInPlaceType<ETextGender>(), Value) {}

	template <typename NumberType>
		requires(std::is_arithmetic_v<NumberType> && !std::is_same_v<NumberType, bool>)
	FFormatArgumentValue(NumberType Value)
	{
		using FStored = std::conditional_t<std::is_floating_point_v<NumberType>, double, std::conditional_t<std::is_signed_v<NumberType>, int64, uint64>>;
		Argument.Emplace<FStored>((FStored)Value);
	}

	/** As it stands in the formatted text. */
	FString ToFormattedString() const;
	/** The number, for choosing a plural form; unset for what is none. */
	TOptional<double> GetNumber() const;
	TOptional<ETextGender> GetGender() const;

private:
	TVariant<FText, int64, uint64, double, ETextGender> Argument;
};

/** A pattern for FText::Format. */
class CORE_API FTextFormat
{
public:
	FTextFormat() = default;
	FTextFormat(const FText& InText) : Pattern(InText) {}
	static FTextFormat FromString(const FString& InString) { return FTextFormat(FText::FromString(InString)); }

	const FText& GetSourceText() const { return Pattern; }
	const FString& GetSourceString() const { return Pattern.ToString(); }
	bool IsValid() const { return !Pattern.IsEmpty(); }
	/** Names (or numbers) of the arguments in the pattern, in order, each once. */
	void GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const;

private:
	FText Pattern;
};

template <typename... ArgTypes>
	requires((std::is_convertible_v<ArgTypes, FFormatArgumentValue> && ...))
FText FText::Format(FTextFormat Fmt, ArgTypes&&... Args)
{
	FFormatOrderedArguments Arguments;
	Arguments.Reserve((int32)sizeof...(ArgTypes));
	(Arguments.Add(FFormatArgumentValue(static_cast<ArgTypes&&>(Args))), ...);
	return Format(MoveTemp(Fmt), Arguments);
}

template <typename... ArgTypes>
FText FText::FormatOrdered(FTextFormat Fmt, ArgTypes&&... Args)
{
	return Format(MoveTemp(Fmt), static_cast<ArgTypes&&>(Args)...);
}

namespace Host
{
	inline void AddNamedArguments(FFormatNamedArguments&)
	{
	}

	template <typename NameType, typename ValueType, typename... RestTypes>
	void AddNamedArguments(FFormatNamedArguments& Arguments, NameType&& Name, ValueType&& Value, RestTypes&&... Rest)
	{
		Arguments.Add(FString(static_cast<NameType&&>(Name)), FFormatArgumentValue(static_cast<ValueType&&>(Value)));
		AddNamedArguments(Arguments, static_cast<RestTypes&&>(Rest)...);
	}
}

template <typename... ArgTypes>
FText FText::FormatNamed(FTextFormat Fmt, ArgTypes&&... Args)
{
	static_assert(sizeof...(ArgTypes) % 2 == 0, "Every name needs a value");
	FFormatNamedArguments Arguments;
	Host::AddNamedArguments(Arguments, static_cast<ArgTypes&&>(Args)...);
	return Format(MoveTemp(Fmt), Arguments);
}

inline FString LexToString(const FText& Text)
{
	return Text.ToString();
}

#include "Internationalization/TextStringHelper.h"
