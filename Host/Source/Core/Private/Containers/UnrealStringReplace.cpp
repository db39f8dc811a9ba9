#include "Containers/UnrealString.h"

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase)
{
	const FStringView Sought(From);
	const FStringView Substitute(To);
	int32 Place = Sought.IsEmpty() ? INDEX_NONE : Host::Strings::FindForward(Data.GetData(), Len(), From, Sought.Len(), 0, SearchCase);
	if (Place == INDEX_NONE)
	{
		return 0;
	}
	FString Result;
	Result.Reserve(Len());
	int32 Done = 0;
	int32 NumReplaced = 0;
	while (Place != INDEX_NONE)
	{
		Result.Append(View().Mid(Done, Place - Done));
		Result.Append(Substitute);
		Done = Place + Sought.Len();
		++NumReplaced;
		Place = Host::Strings::FindForward(Data.GetData(), Len(), From, Sought.Len(), Done, SearchCase);
	}
	Result.Append(View().RightChop(Done));
	*this = MoveTemp(Result);
	return NumReplaced;
}

void FString::ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase)
{
	using Host::Strings::Fold;
	for (TCHAR& Char : *this)
	{
		if (Char == From || (SearchCase == ESearchCase::IgnoreCase && Fold(Char) == Fold(From)))
		{
			Char = To;
		}
	}
}

namespace
{
	/** Characters that are written as a backslash and a letter. */
	constexpr struct
	{
		TCHAR Char;
		TCHAR Letter;
	} EscapedChars[] = { { u'\\', u'\\' }, { u'"', u'"' }, { u'\'', u'\'' }, { u'\n', u'n' }, { u'\r', u'r' }, { u'\t', u't' } };
}

FString FString::ReplaceCharWithEscapedChar() const
{
	FString Result;
	Result.Reserve(Len());
	for (const TCHAR Char : *this)
	{
		TCHAR Letter = 0;
		for (const auto& Escaped : EscapedChars)
		{
			Letter = Escaped.Char == Char ? Escaped.Letter : Letter;
		}
		if (Letter != 0)
		{
			Result.AppendChar(u'\\');
		}
		Result.AppendChar(Letter != 0 ? Letter : Char);
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar() const
{
	FString Result;
	Result.Reserve(Len());
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		TCHAR Char = Data.GetData()[Index];
		if (Char == u'\\' && Index + 1 < Len())
		{
			for (const auto& Escaped : EscapedChars)
			{
				if (Escaped.Letter == Data.GetData()[Index + 1])
				{
					Char = Escaped.Char;
					++Index;
					break;
				}
			}
		}
		Result.AppendChar(Char);
	}
	return Result;
}

FString FString::ReplaceQuotesWithEscapedQuotes() const
{
	FString Result;
	bool bEscaped = false;
	for (const TCHAR Char : *this)
	{
		if (Char == u'"' && !bEscaped)
		{
			Result.AppendChar(u'\\');
		}
		bEscaped = Char == u'\\' && !bEscaped;
		Result.AppendChar(Char);
	}
	return Result;
}

FString FString::ConvertTabsToSpaces(int32 SpacesPerTab) const
{
	check(SpacesPerTab > 0);
	FString Result;
	int32 LineStart = 0;
	for (const TCHAR Char : *this)
	{
		if (Char == u'\t')
		{
			// A tab leads to the next stop, which counts from the start of its line.
			const int32 Column = Result.Len() - LineStart;
			Result += ChrN(SpacesPerTab - Column % SpacesPerTab, u' ');
			continue;
		}
		Result.AppendChar(Char);
		if (Char == u'\n')
		{
			LineStart = Result.Len();
		}
	}
	return Result;
}
