#include "Internationalization/Text.h"

#include "Containers/StringConv.h"
#include "Internationalization/Internationalization.h"
#include "Misc/ScopeLock.h"
#include "TextData.h"

#include <unicode/unum.h>

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultWithGrouping()
{
	static const FNumberFormattingOptions Options;
	return Options;
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultNoGrouping()
{
	static const FNumberFormattingOptions Options = FNumberFormattingOptions().SetUseGrouping(false);
	return Options;
}

namespace
{
	UNumberFormatRoundingMode ToIcu(ERoundingMode Mode)
	{
		switch (Mode)
		{
		case HalfFromZero:
			return UNUM_ROUND_HALFUP;
		case HalfToZero:
			return UNUM_ROUND_HALFDOWN;
		case FromZero:
			return UNUM_ROUND_UP;
		case ToZero:
			return UNUM_ROUND_DOWN;
		case ToNegativeInfinity:
			return UNUM_ROUND_FLOOR;
		case ToPositiveInfinity:
			return UNUM_ROUND_CEILING;
		case HalfToEven:
			break;
		}
		return UNUM_ROUND_HALFEVEN;
	}

	void Apply(UNumberFormat* Format, const FNumberFormattingOptions& Options)
	{
		unum_setAttribute(Format, UNUM_GROUPING_USED, Options.UseGrouping);
		unum_setAttribute(Format, UNUM_ROUNDING_MODE, ToIcu(Options.RoundingMode));
		unum_setAttribute(Format, UNUM_MAX_INTEGER_DIGITS, Options.MaximumIntegralDigits);
		unum_setAttribute(Format, UNUM_MIN_INTEGER_DIGITS, Options.MinimumIntegralDigits);
		unum_setAttribute(Format, UNUM_MAX_FRACTION_DIGITS, Options.MaximumFractionalDigits);
		unum_setAttribute(Format, UNUM_MIN_FRACTION_DIGITS, Options.MinimumFractionalDigits);
		unum_setAttribute(Format, UNUM_SIGN_ALWAYS_SHOWN, Options.AlwaysSign);
	}

	/** ICU's number formats take long to make, so the last one of each style is kept. */
	class FNumberFormats
	{
	public:
		static FNumberFormats& Get()
		{
			static FNumberFormats& Formats = *new FNumberFormats;
			return Formats;
		}

		template <typename WriteType>
		FString Write(UNumberFormatStyle Style, const FNumberFormattingOptions& Options, const FString& CultureName, const WriteType& WriteNumber)
		{
			FScopeLock Lock(&Section);
			FKept& Kept = Style == UNUM_PERCENT ? Percent : Decimal;
			if (Kept.Format == nullptr || !Kept.CultureName.Equals(CultureName))
			{
				unum_close(Kept.Format);
				UErrorCode Error = U_ZERO_ERROR;
				Kept.Format = unum_open(Style, nullptr, 0, FTCHARToANSI(*CultureName).Get(), nullptr, &Error);
				check(U_SUCCESS(Error));
				Kept.CultureName = CultureName;
				Kept.Options.Reset();
			}
			if (!(Kept.Options == Options))
			{
				Apply(Kept.Format, Options);
				Kept.Options = Options;
			}
			// Numbers beyond every sensible width are 324 digits, signs and separators long.
			UChar Buffer[512];
			UErrorCode Error = U_ZERO_ERROR;
			const int32 Len = WriteNumber(Kept.Format, Buffer, (int32)UE_ARRAY_COUNT(Buffer), &Error);
			return U_SUCCESS(Error) ? FString(Len, Buffer) : FString();
		}

	private:
		struct FKept
		{
			UNumberFormat* Format = nullptr;
			FString CultureName;
			TOptional<FNumberFormattingOptions> Options;
		};

		FCriticalSection Section;
		FKept Decimal;
		FKept Percent;
	};

	template <typename WriteType>
	FString Write(UNumberFormatStyle Style, const FNumberFormattingOptions& Options, const FCulturePtr& TargetCulture, const WriteType& WriteNumber)
	{
		const FCultureRef Culture = TargetCulture.IsValid() ? TargetCulture.ToSharedRef() : FInternationalization::Get().GetCurrentCulture();
		return FNumberFormats::Get().Write(Style, Options, Culture->GetName(), WriteNumber);
	}

	auto DoubleWriter(double Value)
	{
		return [Value](const UNumberFormat* Format, UChar* Buffer, int32 Size, UErrorCode* Error) { return unum_formatDouble(Format, Value, Buffer, Size, nullptr, Error); };
	}

	const FNumberFormattingOptions& OptionsOr(const FNumberFormattingOptions* Options, const FNumberFormattingOptions& Default)
	{
		return Options != nullptr ? *Options : Default;
	}

	TSharedRef<const Host::FTextData> Generated(FString&& Display)
	{
		return MakeShared<Host::FTextData>(Host::ETextOrigin::Generated, MoveTemp(Display));
	}
}

FText FText::AsNumberOf(double Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture)
{
	return FText(Generated(Write(UNUM_DECIMAL, OptionsOr(Options, FNumberFormattingOptions::DefaultWithGrouping()), TargetCulture, DoubleWriter(Value))));
}

FText FText::AsNumberOf(int64 Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture)
{
	const auto WriteNumber = [Value](const UNumberFormat* Format, UChar* Buffer, int32 Size, UErrorCode* Error) { return unum_formatInt64(Format, Value, Buffer, Size, nullptr, Error); };
	return FText(Generated(Write(UNUM_DECIMAL, OptionsOr(Options, FNumberFormattingOptions::DefaultWithGrouping()), TargetCulture, WriteNumber)));
}

FText FText::AsNumberOf(uint64 Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture)
{
	// As decimal digits, since ICU takes no unsigned numbers.
	const FString Digits = LexToString(Value);
	const FTCHARToANSI Narrow(*Digits);
	const auto WriteNumber = [&Narrow](const UNumberFormat* Format, UChar* Buffer, int32 Size, UErrorCode* Error) { return unum_formatDecimal(Format, Narrow.Get(), Narrow.Length(), Buffer, Size, nullptr, Error); };
	return FText(Generated(Write(UNUM_DECIMAL, OptionsOr(Options, FNumberFormattingOptions::DefaultWithGrouping()), TargetCulture, WriteNumber)));
}

FText FText::AsPercent(double Value, const FNumberFormattingOptions* Options, const FCulturePtr& TargetCulture)
{
	static const FNumberFormattingOptions WholePercents = FNumberFormattingOptions().SetMaximumFractionalDigits(0);
	return FText(Generated(Write(UNUM_PERCENT, OptionsOr(Options, WholePercents), TargetCulture, DoubleWriter(Value))));
}
