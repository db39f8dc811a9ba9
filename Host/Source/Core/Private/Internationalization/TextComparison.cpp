#include "Internationalization/Text.h"

#include "Containers/StringConv.h"
#include "Internationalization/Internationalization.h"
#include "Misc/ScopeLock.h"

#include <unicode/ucol.h>

namespace
{
	UCollationStrength ToIcu(ETextComparisonLevel::Type Level)
	{
		switch (Level)
		{
		case ETextComparisonLevel::Primary:
			return UCOL_PRIMARY;
		case ETextComparisonLevel::Secondary:
			return UCOL_SECONDARY;
		case ETextComparisonLevel::Tertiary:
			return UCOL_TERTIARY;
		case ETextComparisonLevel::Quaternary:
			return UCOL_QUATERNARY;
		case ETextComparisonLevel::Quinary:
			return UCOL_IDENTICAL;
		case ETextComparisonLevel::Default:
			break;
		}
		return UCOL_DEFAULT;
	}

	/** The collators of one culture, made when first asked for. */
	class FCollators
	{
	public:
		static FCollators& Get()
		{
			static FCollators& Collators = *new FCollators;
			return Collators;
		}

		const UCollator* Find(ETextComparisonLevel::Type Level)
		{
			const FString& CultureName = FInternationalization::Get().GetCurrentCulture()->GetName();
			FScopeLock Lock(&Section);
			if (!Name.Equals(CultureName))
			{
				for (UCollator*& Collator : ByLevel)
				{
					ucol_close(Collator);
					Collator = nullptr;
				}
				Name = CultureName;
			}
			UCollator*& Collator = ByLevel[Level];
			if (Collator == nullptr)
			{
				UErrorCode Error = U_ZERO_ERROR;
				Collator = ucol_open(FTCHARToANSI(*Name).Get(), &Error);
				check(U_SUCCESS(Error));
				if (Level != ETextComparisonLevel::Default)
				{
					ucol_setStrength(Collator, ToIcu(Level));
				}
			}
			return Collator;
		}

	private:
		FCriticalSection Section;
		FString Name;
		UCollator* ByLevel[ETextComparisonLevel::Quinary + 1] = {};
	};

	/** Whether a text is of those characters of which no culture takes two for the same. */
	bool IsPrintableAscii(const FString& Text)
	{
		bool bPrintable = true;
		for (const TCHAR Char : Text)
		{
			bPrintable &= Char >= u' ' && Char <= u'~';
		}
		return bPrintable;
	}
}

int32 FText::CompareTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	const FString& A = ToString();
	const FString& B = Other.ToString();
	if (A.Equals(B))
	{
		return 0;
	}
	return ucol_strcoll(FCollators::Get().Find(ComparisonLevel), *A, A.Len(), *B, B.Len());
}

bool FText::EqualTo(const FText& Other, ETextComparisonLevel::Type ComparisonLevel) const
{
	const FString& A = ToString();
	const FString& B = Other.ToString();
	if (Data == Other.Data || A.Equals(B))
	{
		return true;
	}
	// Without the collator, most texts of most programs.
	if (IsPrintableAscii(A) && IsPrintableAscii(B))
	{
		const bool bCaseCounts = ComparisonLevel != ETextComparisonLevel::Primary && ComparisonLevel != ETextComparisonLevel::Secondary;
		return !bCaseCounts && A.Equals(B, ESearchCase::IgnoreCase);
	}
	return CompareTo(Other, ComparisonLevel) == 0;
}
