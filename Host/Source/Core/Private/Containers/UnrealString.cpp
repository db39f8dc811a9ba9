#include "Containers/UnrealString.h"

#include "Containers/StringConv.h"

#include <algorithm>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

FString::FString(const TCHAR* Text)
	: FString(Host::Strings::Length(Text), Text)
{
}

FString::FString(const ANSICHAR* Text)
	: FString(FAnsiStringView(Text))
{
}

FString::FString(const UTF8CHAR* Text)
	: FString(FUtf8StringView(Text))
{
}

FString::FString(int32 Len, const TCHAR* Text)
{
	if (Len > 0)
	{
		Data.Reserve(Len + 1);
		FMemory::Memcpy(Extend(Len), Text, sizeof(TCHAR) * (SIZE_T)Len);
	}
}

FString::FString(FStringView View)
	: FString(View.Len(), View.GetData())
{
}

FString::FString(FAnsiStringView View)
{
	if (!View.IsEmpty())
	{
		std::transform(View.begin(), View.end(), Extend(View.Len()), [](ANSICHAR Char) { return (TCHAR)(uint8)Char; });
	}
}

FString::FString(FUtf8StringView View)
{
	if (!View.IsEmpty())
	{
		TCHAR* Dest = Extend(View.Len() * Host::MaxUtf16PerUtf8);
		const int32 Written = Host::Utf8ToUtf16(Dest, reinterpret_cast<const ANSICHAR*>(View.GetData()), View.Len());
		KeepOnly(FStringView(Dest, Written), EAllowShrinking::No);
	}
}

FString::FString(const FString& Other, int32 ExtraSlack)
{
	Reserve(Other.Len() + ExtraSlack);
	Append(Other);
}

FString& FString::operator=(const TCHAR* Text)
{
	return *this = FStringView(Text);
}

FString& FString::operator=(FStringView Text)
{
	// The view may be of a part of this very string.
	const bool bOfThis = Text.GetData() >= Data.GetData() && Text.GetData() < Data.GetData() + Data.Num();
	if (bOfThis)
	{
		KeepOnly(Text, EAllowShrinking::No);
		return *this;
	}
	Data.Reset();
	return Append(Text);
}

TCHAR* FString::Extend(int32 Count)
{
	const int32 OldLen = Len();
	Data.AddUninitialized(Data.Num() ? Count : Count + 1);
	Data.GetData()[OldLen + Count] = 0;
	return Data.GetData() + OldLen;
}

void FString::KeepOnly(FStringView Part, EAllowShrinking AllowShrinking)
{
	if (Part.Len() == Len())
	{
		return;
	}
	if (Part.IsEmpty())
	{
		Data.Reset();
	}
	else
	{
		FMemory::Memmove(Data.GetData(), Part.GetData(), sizeof(TCHAR) * (SIZE_T)Part.Len());
		Data.SetNumUninitialized(Part.Len() + 1, EAllowShrinking::No);
		Data.GetData()[Part.Len()] = 0;
	}
	if (AllowShrinking == EAllowShrinking::Yes && Data.GetSlack() > 64 && Data.GetSlack() > Data.Num() * 2)
	{
		Data.Shrink();
	}
}

FString FString::Concatenate(FStringView A, FStringView B)
{
	FString Result;
	Result.Reserve(A.Len() + B.Len());
	Result.Append(A);
	Result.Append(B);
	return Result;
}

FString& FString::Append(const TCHAR* Text, int32 Count)
{
	if (Count > 0)
	{
		// The text may be a part of this string, which moves when it grows.
		const TCHAR* OldData = Data.GetData();
		const bool bOfThis = Text >= OldData && Text < OldData + Data.Num();
		const SSIZE_T Offset = Text - OldData;
		TCHAR* Dest = Extend(Count);
		FMemory::Memmove(Dest, bOfThis ? Data.GetData() + Offset : Text, sizeof(TCHAR) * (SIZE_T)Count);
	}
	return *this;
}

FString& FString::AppendChar(TCHAR Char)
{
	if (Char != 0)
	{
		*Extend(1) = Char;
	}
	return *this;
}

void FString::AppendInt(int64 Number)
{
	TCHAR Digits[24];
	TCHAR* const End = Digits + UE_ARRAY_COUNT(Digits);
	TCHAR* Start = End;
	uint64 Rest = Number < 0 ? 0 - (uint64)Number : (uint64)Number;
	do
	{
		*--Start = (TCHAR)(u'0' + Rest % 10);
		Rest /= 10;
	} while (Rest != 0);
	if (Number < 0)
	{
		*--Start = u'-';
	}
	Append(Start, (int32)(End - Start));
}

void FString::InsertAt(int32 Index, FStringView Text)
{
	check(Index >= 0 && Index <= Len());
	if (!Text.IsEmpty())
	{
		const FString Inserted(Text);
		Extend(Inserted.Len());
		TCHAR* Place = Data.GetData() + Index;
		FMemory::Memmove(Place + Inserted.Len(), Place, sizeof(TCHAR) * (SIZE_T)(Len() - Inserted.Len() - Index));
		FMemory::Memcpy(Place, *Inserted, sizeof(TCHAR) * (SIZE_T)Inserted.Len());
	}
}

void FString::RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking)
{
	check(Index >= 0 && Count >= 0 && Index + Count <= Len());
	if (Count > 0)
	{
		Data.RemoveAt(Index, Count, AllowShrinking);
	}
}

void FString::PathAppend(const TCHAR* Text, int32 Count)
{
	FStringView Added(Text, Count);
	if (Added.StartsWith(u'/') && Len() > 0)
	{
		Added.RemovePrefix(1);
	}
	const FString Part(Added);
	if (!IsEmpty() && !View().EndsWith(u'/') && !View().EndsWith(u'\\'))
	{
		AppendChar(u'/');
	}
	Append(Part);
}

FString FString::FromInt(int32 Number)
{
	FString Result;
	Result.AppendInt(Number);
	return Result;
}

FString FString::SanitizeFloat(double Number, int32 MinFractionalDigits)
{
	if (Number == 0.0)
	{
		// No negative zero.
		Number = 0.0;
	}
	FString Result = Printf(TEXT("%f"), Number);
	int32 Point = INDEX_NONE;
	if (!Result.FindChar(u'.', Point))
	{
		return Result;
	}
	int32 NewLen = Result.Len();
	while (NewLen > Point + 1 && Result[NewLen - 1] == u'0')
	{
		--NewLen;
	}
	Result.LeftInline(NewLen);
	const int32 NumMissing = MinFractionalDigits - (NewLen - Point - 1);
	if (NumMissing > 0)
	{
		Result += ChrN(NumMissing, u'0');
	}
	Result.RemoveFromEnd(TEXT("."));
	return Result;
}

FString FString::FormatAsNumber(int32 Number)
{
	FString Result = FromInt(Number);
	const int32 NumSigns = Number < 0 ? 1 : 0;
	for (int32 Place = Result.Len() - 3; Place > NumSigns; Place -= 3)
	{
		Result.InsertAt(Place, u',');
	}
	return Result;
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	check(NumCharacters >= 0);
	FString Result;
	if (NumCharacters > 0)
	{
		std::fill_n(Result.Extend(NumCharacters), NumCharacters, Char);
	}
	return Result;
}

bool FString::Split(const FString& InStr, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	check(LeftS != RightS || LeftS == nullptr);
	const int32 Place = Find(InStr, SearchCase, SearchDir);
	if (Place == INDEX_NONE)
	{
		return false;
	}
	FString LeftPart = Left(Place);
	FString RightPart = RightChop(Place + InStr.Len());
	// An output may be this string or the separator.
	if (LeftS != nullptr)
	{
		*LeftS = MoveTemp(LeftPart);
	}
	if (RightS != nullptr)
	{
		*RightS = MoveTemp(RightPart);
	}
	return true;
}

int32 FString::Find(FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	const int32 Num = Len();
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 Start = StartPosition == INDEX_NONE ? 0 : std::clamp(StartPosition, 0, std::max(Num - 1, 0));
		return Host::Strings::FindForward(Data.GetData(), Num, SubStr.GetData(), SubStr.Len(), Start, SearchCase);
	}
	// From the end, StartPosition is the end of the part in which the occurrence must lie.
	const int32 End = StartPosition == INDEX_NONE ? Num : std::clamp(StartPosition, 0, Num);
	return Host::Strings::FindBackward(Data.GetData(), Num, SubStr.GetData(), SubStr.Len(), End - SubStr.Len(), SearchCase);
}

bool FString::Contains(FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	return SubStr.IsEmpty() || Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
}

bool FString::MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase) const
{
	const FStringView Text = View();
	int32 At = 0;
	int32 Pattern = 0;
	// Where to come back to: the last star, and the text that it has swallowed so far.
	int32 Star = INDEX_NONE;
	int32 Swallowed = 0;
	while (At < Text.Len())
	{
		if (Pattern < Wildcard.Len() && Wildcard[Pattern] == u'*')
		{
			Star = Pattern++;
			Swallowed = At;
		}
		else if (Pattern < Wildcard.Len() && (Wildcard[Pattern] == u'?' || Text.Mid(At, 1).Equals(Wildcard.Mid(Pattern, 1), SearchCase)))
		{
			++At;
			++Pattern;
		}
		else if (Star != INDEX_NONE)
		{
			Pattern = Star + 1;
			At = ++Swallowed;
		}
		else
		{
			return false;
		}
	}
	while (Pattern < Wildcard.Len() && Wildcard[Pattern] == u'*')
	{
		++Pattern;
	}
	return Pattern == Wildcard.Len();
}

bool FString::IsNumeric() const
{
	return FCString::IsNumeric(**this);
}

bool FString::ToBool() const
{
	return FCString::ToBool(**this);
}

namespace
{
	/** Applies a mapping of code points that does not change their length in UTF-16. */
	void MapCodePoints(FString& Text, UChar32 (*Map)(UChar32), TCHAR (*MapUnit)(TCHAR))
	{
		TCHAR* Units = Text.GetCharArray().GetData();
		const int32 Len = Text.Len();
		for (int32 Index = 0; Index < Len; ++Index)
		{
			if (U16_IS_LEAD(Units[Index]) && Index + 1 < Len && U16_IS_TRAIL(Units[Index + 1]))
			{
				const UChar32 Mapped = Map(U16_GET_SUPPLEMENTARY(Units[Index], Units[Index + 1]));
				Units[Index] = U16_LEAD(Mapped);
				Units[++Index] = U16_TRAIL(Mapped);
			}
			else
			{
				Units[Index] = MapUnit(Units[Index]);
			}
		}
	}
}

void FString::ToUpperInline()
{
	MapCodePoints(*this, &u_toupper, &FChar::ToUpper);
}

void FString::ToLowerInline()
{
	MapCodePoints(*this, &u_tolower, &FChar::ToLower);
}

FString FString::ToUpper() const
{
	FString Result(*this);
	Result.ToUpperInline();
	return Result;
}

FString FString::ToLower() const
{
	FString Result(*this);
	Result.ToLowerInline();
	return Result;
}

FString FString::TrimChar(TCHAR Char) const
{
	FStringView Rest = View();
	if (Rest.StartsWith(Char))
	{
		Rest.RemovePrefix(1);
	}
	if (Rest.EndsWith(Char))
	{
		Rest.RemoveSuffix(1);
	}
	return FString(Rest);
}

FString FString::TrimQuotes(bool* bQuotesRemoved) const
{
	FString Result = TrimChar(u'"');
	if (bQuotesRemoved != nullptr)
	{
		*bQuotesRemoved = Result.Len() != Len();
	}
	return Result;
}

bool FString::RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase)
{
	if (Prefix.IsEmpty() || !StartsWith(Prefix, SearchCase))
	{
		return false;
	}
	RightChopInline(Prefix.Len());
	return true;
}

bool FString::RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase)
{
	if (Suffix.IsEmpty() || !EndsWith(Suffix, SearchCase))
	{
		return false;
	}
	LeftChopInline(Suffix.Len());
	return true;
}

FString FString::Reverse() const
{
	FString Result(*this);
	std::reverse(Result.begin(), Result.end());
	return Result;
}

FString FString::LeftPad(int32 ChCount) const
{
	return ChrN(std::max(ChCount - Len(), 0), u' ') + *this;
}

FString FString::RightPad(int32 ChCount) const
{
	return *this + ChrN(std::max(ChCount - Len(), 0), u' ');
}
