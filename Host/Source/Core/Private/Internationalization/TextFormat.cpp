#include "Internationalization/Text.h"

#include "Internationalization/Internationalization.h"
#include "PluralForms.h"
#include "TextData.h"

FString FFormatArgumentValue::ToFormattedString() const
{
	if (const FText* Text = Argument.TryGet<FText>())
	{
		return Text->ToString();
	}
	if (const int64* Number = Argument.TryGet<int64>())
	{
		return FText::AsNumber(*Number).ToString();
	}
	if (const uint64* Number = Argument.TryGet<uint64>())
	{
		return FText::AsNumber(*Number).ToString();
	}
	const double* Number = Argument.TryGet<double>();
	return Number != nullptr ? FText::AsNumber(*Number).ToString() : FString();
}

TOptional<double> FFormatArgumentValue::GetNumber() const
{
	if (const int64* Number = Argument.TryGet<int64>())
	{
		return (double)*Number;
	}
	if (const uint64* Number = Argument.TryGet<uint64>())
	{
		return (double)*Number;
	}
	const double* Number = Argument.TryGet<double>();
	return Number != nullptr ? TOptional<double>(*Number) : NullOpt;
}

TOptional<ETextGender> FFormatArgumentValue::GetGender() const
{
	const ETextGender* Gender = Argument.TryGet<ETextGender>();
	return Gender != nullptr ? TOptional<ETextGender>(*Gender) : NullOpt;
}

namespace
{
	/** One argument in a pattern: {Name} and possibly |modifier(...) behind it. */
	struct FPlaceholder
	{
		FStringView Name;
		FStringView Modifier;
		FStringView ModifierArguments;
		int32 End = 0;
	};

	constexpr TCHAR EscapeChar = u'`';

	FStringView ViewOf(FStringView Text, int32 Start, int32 End)
	{
		return Text.Mid(Start, End - Start);
	}

	/** Index of a character at or behind Start that stands outside quotes; INDEX_NONE if there is none. */
	int32 FindUnquoted(FStringView Text, TCHAR Sought, int32 Start)
	{
		bool bQuoted = false;
		for (int32 Index = Start; Index < Text.Len(); ++Index)
		{
			if (Text[Index] == EscapeChar)
			{
				++Index;
			}
			else if (Text[Index] == u'"')
			{
				bQuoted = !bQuoted;
			}
			else if (Text[Index] == Sought && !bQuoted)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** Reads the placeholder whose brace stands at Start; false when it is none. */
	bool ReadPlaceholder(FStringView Pattern, int32 Start, FPlaceholder& Out)
	{
		int32 Close = Start + 1;
		while (Close < Pattern.Len() && Pattern[Close] != u'}' && Pattern[Close] != u'{')
		{
			++Close;
		}
		Out.Name = ViewOf(Pattern, Start + 1, Close).TrimStartAndEnd();
		if (Close >= Pattern.Len() || Pattern[Close] != u'}' || Out.Name.IsEmpty())
		{
			return false;
		}
		Out.End = Close + 1;
		if (Out.End >= Pattern.Len() || Pattern[Out.End] != u'|')
		{
			return true;
		}
		int32 Open = Out.End + 1;
		while (Open < Pattern.Len() && FChar::IsAlpha(Pattern[Open]))
		{
			++Open;
		}
		const int32 ArgumentsEnd = Open < Pattern.Len() && Pattern[Open] == u'(' ? FindUnquoted(Pattern, u')', Open + 1) : (int32)INDEX_NONE;
		if (ArgumentsEnd != INDEX_NONE)
		{
			Out.Modifier = ViewOf(Pattern, Out.End + 1, Open);
			Out.ModifierArguments = ViewOf(Pattern, Open + 1, ArgumentsEnd);
			Out.End = ArgumentsEnd + 1;
		}
		return true;
	}

	/** Without quotes around it and escapes in it. */
	FString Unquote(FStringView Text)
	{
		Text = Text.TrimStartAndEnd();
		if (Text.Len() >= 2 && Text.StartsWith(u'"') && Text.EndsWith(u'"'))
		{
			Text = Text.Mid(1, Text.Len() - 2);
		}
		FString Result;
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			if (Text[Index] == EscapeChar && Index + 1 < Text.Len())
			{
				++Index;
			}
			Result.AppendChar(Text[Index]);
		}
		return Result;
	}

	TArray<FStringView> SplitArguments(FStringView Arguments)
	{
		TArray<FStringView> Parts;
		int32 Start = 0;
		for (int32 Comma = FindUnquoted(Arguments, u',', 0); Comma != INDEX_NONE; Comma = FindUnquoted(Arguments, u',', Start))
		{
			Parts.Add(ViewOf(Arguments, Start, Comma));
			Start = Comma + 1;
		}
		Parts.Add(Arguments.RightChop(Start));
		return Parts;
	}

	/** The form named by the keyword, or else "other". */
	FString ChooseForm(FStringView Arguments, const FString& Keyword)
	{
		FString Other;
		for (const FStringView Part : SplitArguments(Arguments))
		{
			int32 Equals = INDEX_NONE;
			if (Part.FindChar(u'=', Equals))
			{
				const FStringView Name = Part.Left(Equals).TrimStartAndEnd();
				if (Name.Equals(Keyword))
				{
					return Unquote(Part.RightChop(Equals + 1));
				}
				if (Name.Equals(TEXT("other")))
				{
					Other = Unquote(Part.RightChop(Equals + 1));
				}
			}
		}
		return Other;
	}

	template <typename FindArgumentType>
	class TFormatter
	{
	public:
		TFormatter(FStringView InPattern, const FindArgumentType& InFindArgument)
			: Pattern(InPattern)
			, FindArgument(InFindArgument)
		{
		}

		FString Write()
		{
			for (int32 Index = 0; Index < Pattern.Len();)
			{
				FPlaceholder Placeholder;
				if (Pattern[Index] == EscapeChar && Index + 1 < Pattern.Len())
				{
					Result.AppendChar(Pattern[Index + 1]);
					Index += 2;
				}
				else if (Pattern[Index] == u'{' && ReadPlaceholder(Pattern, Index, Placeholder))
				{
					WritePlaceholder(ViewOf(Pattern, Index, Placeholder.End), Placeholder);
					Index = Placeholder.End;
				}
				else
				{
					Result.AppendChar(Pattern[Index++]);
				}
			}
			return MoveTemp(Result);
		}

	private:
		void WritePlaceholder(FStringView AsWritten, const FPlaceholder& Placeholder)
		{
			const FFormatArgumentValue* Argument = FindArgument(Placeholder.Name);
			if (Argument == nullptr)
			{
				Result.Append(AsWritten);
			}
			else if (Placeholder.Modifier.IsEmpty())
			{
				Result.Append(Argument->ToFormattedString());
			}
			else
			{
				WriteModified(AsWritten, *Argument, Placeholder);
			}
		}

		void WriteModified(FStringView AsWritten, const FFormatArgumentValue& Argument, const FPlaceholder& Placeholder)
		{
			const TOptional<double> Number = Argument.GetNumber();
			const TOptional<ETextGender> Gender = Argument.GetGender();
			const bool bOrdinal = Placeholder.Modifier == FStringView(TEXT("ordinal"));
			if (Number.IsSet() && (bOrdinal || Placeholder.Modifier == FStringView(TEXT("plural"))))
			{
				const FString& CultureName = FInternationalization::Get().GetCurrentCulture()->GetName();
				WriteForm(ChooseForm(Placeholder.ModifierArguments, Host::GetPluralForm(CultureName, Number.GetValue(), bOrdinal)));
			}
			else if (Gender.IsSet() && Placeholder.Modifier == FStringView(TEXT("gender")))
			{
				const TArray<FStringView> Forms = SplitArguments(Placeholder.ModifierArguments);
				const int32 Index = (int32)Gender.GetValue();
				WriteForm(Forms.IsValidIndex(Index) ? Unquote(Forms[Index]) : FString());
			}
			else
			{
				Result.Append(AsWritten);
			}
		}

		/** A form may hold placeholders itself. */
		void WriteForm(const FString& Form)
		{
			Result.Append(TFormatter(Form, FindArgument).Write());
		}

		FStringView Pattern;
		const FindArgumentType& FindArgument;
		FString Result;
	};

	template <typename FindArgumentType>
	TSharedRef<const Host::FTextData> WriteFormat(const FTextFormat& Format, const FindArgumentType& FindArgument)
	{
		return MakeShared<Host::FTextData>(Host::ETextOrigin::Generated, TFormatter<FindArgumentType>(Format.GetSourceString(), FindArgument).Write());
	}
}

FText FText::Format(FTextFormat Fmt, const FFormatNamedArguments& Arguments)
{
	return FText(WriteFormat(Fmt, [&Arguments](FStringView Name) { return Arguments.FindByHash(GetTypeHash(Name), Name); }));
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& Arguments)
{
	return FText(WriteFormat(Fmt, [&Arguments](FStringView Name) -> const FFormatArgumentValue*
	{
		const FString Number(Name);
		const bool bNumber = Name.Len() < 6 && Number.IsNumeric();
		const int32 Index = bNumber ? FCString::Atoi(*Number) : (int32)INDEX_NONE;
		return Arguments.IsValidIndex(Index) ? &Arguments[Index] : nullptr;
	}));
}

void FTextFormat::GetFormatArgumentNames(TArray<FString>& OutArgumentNames) const
{
	const FStringView Text = GetSourceString();
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		FPlaceholder Placeholder;
		if (Text[Index] == EscapeChar)
		{
			++Index;
		}
		else if (Text[Index] == u'{' && ReadPlaceholder(Text, Index, Placeholder))
		{
			OutArgumentNames.AddUnique(FString(Placeholder.Name));
			Index = Placeholder.End - 1;
		}
	}
}
