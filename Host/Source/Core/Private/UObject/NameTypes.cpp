#include "UObject/NameTypes.h"

#include "NameTable.h"

using Host::FNameTable;

namespace
{
	/** Length of the text without a number suffix; OutNumber is the internal number, 0 without a suffix. */
	int32 SplitNumber(FStringView Name, uint32& OutNumber)
	{
		OutNumber = NAME_NO_NUMBER_INTERNAL;
		const TCHAR* const Start = Name.GetData();
		const int32 Len = Name.Len();
		int32 Digits = Len;
		uint64 Number = 0;
		uint64 Weight = 1;
		// Ten digits hold every number that fits.
		while (Digits > 0 && Len - Digits < 10 && Start[Digits - 1] >= u'0' && Start[Digits - 1] <= u'9')
		{
			--Digits;
			Number += Weight * (uint64)(Start[Digits] - u'0');
			Weight *= 10;
		}
		const int32 NumDigits = Len - Digits;
		const bool bSuffix = NumDigits > 0 && Digits > 1 && Start[Digits - 1] == u'_' && (NumDigits == 1 || Start[Digits] != u'0') && Number < MAX_int32;
		if (!bSuffix)
		{
			return Len;
		}
		OutNumber = (uint32)NAME_EXTERNAL_TO_INTERNAL(Number);
		return Digits - 1;
	}

	/** A text of single bytes widened without touching the heap; what is too long for a name stays too long for one. */
	class FWidenedName
	{
	public:
		explicit FWidenedName(const ANSICHAR* Name)
		{
			while (Name != nullptr && Len < MaxLen && Name[Len] != 0)
			{
				Text[Len] = (TCHAR)(uint8)Name[Len];
				++Len;
			}
		}

		FStringView View() const { return FStringView(Text, Len); }

	private:
		/** With room for the longest number suffix. */
		static constexpr int32 MaxLen = NAME_SIZE + 11;

		TCHAR Text[MaxLen];
		int32 Len = 0;
	};

	int32 NumDigitsOf(uint32 Number)
	{
		int32 Digits = 1;
		while (Number >= 10)
		{
			Number /= 10;
			++Digits;
		}
		return Digits;
	}
}

FName::FName(FStringView Name, EFindName FindType)
{
	if (Name.IsEmpty())
	{
		return;
	}
	const int32 PlainLen = SplitNumber(Name, Number);
	if (!FNameTable::Get().FindOrAdd(Name.Left(PlainLen), FindType, ComparisonIndex, DisplayIndex))
	{
		*this = FName();
	}
	else if (ComparisonIndex.IsNone())
	{
		DisplayIndex = FNameEntryId();
	}
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
	: FName(FWidenedName(Name).View(), FindType)
{
}

FName::FName(const TCHAR* Name, int32 InNumber)
{
	const FStringView Plain(Name);
	if (!Plain.IsEmpty())
	{
		FNameTable::Get().FindOrAdd(Plain, FNAME_Add, ComparisonIndex, DisplayIndex);
	}
	Number = (uint32)InNumber;
}

bool FName::IsValid() const
{
	const FNameTable& Table = FNameTable::Get();
	return Table.IsValid(ComparisonIndex) && Table.IsValid(DisplayIndex);
}

FString FName::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FName::ToString(FString& Out) const
{
	Out.Reset();
	AppendString(Out);
}

void FName::AppendString(FString& Out) const
{
	const FStringView Plain = FNameTable::Get().Resolve(DisplayIndex).View();
	if (Number == NAME_NO_NUMBER_INTERNAL)
	{
		Out.Append(Plain);
		return;
	}
	Out.Reserve(Out.Len() + Plain.Len() + 11);
	Out.Append(Plain);
	Out.AppendChar(u'_');
	Out.AppendInt(NAME_INTERNAL_TO_EXTERNAL(Number));
}

uint32 FName::ToString(TCHAR* Out, uint32 OutSize) const
{
	const FString Text = ToString();
	FCString::Strncpy(Out, *Text, OutSize);
	return (uint32)Host::Strings::Length(Out);
}

FString FName::GetPlainNameString() const
{
	return FString(FNameTable::Get().Resolve(DisplayIndex).View());
}

uint32 FName::GetStringLength() const
{
	const uint32 PlainLen = (uint32)FNameTable::Get().Resolve(DisplayIndex).Len;
	return Number == NAME_NO_NUMBER_INTERNAL ? PlainLen : PlainLen + 1 + (uint32)NumDigitsOf(NAME_INTERNAL_TO_EXTERNAL(Number));
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex == Other.ComparisonIndex)
	{
		return GetNumber() - Other.GetNumber();
	}
	const FNameTable& Table = FNameTable::Get();
	return Table.Resolve(ComparisonIndex).View().Compare(Table.Resolve(Other.ComparisonIndex).View(), ESearchCase::IgnoreCase);
}

bool FName::EqualsText(FStringView Text) const
{
	if (Text.IsEmpty())
	{
		return IsNone();
	}
	uint32 TextNumber = 0;
	const int32 PlainLen = SplitNumber(Text, TextNumber);
	return TextNumber == Number && FNameTable::Get().Resolve(ComparisonIndex).View().Equals(Text.Left(PlainLen), ESearchCase::IgnoreCase);
}
