#include "Containers/UnrealString.h"

namespace
{
	/** Cuts a text wherever DelimiterAt(Rest) gives the length of a delimiter that the rest begins with. */
	template <typename DelimiterType>
	int32 Cut(FStringView Text, TArray<FString>& OutArray, bool bCullEmpty, const DelimiterType& DelimiterAt)
	{
		// The array may hold the string that is cut.
		TArray<FString> Parts;
		int32 Start = 0;
		const auto AddPart = [&](int32 End)
		{
			if (End > Start || !bCullEmpty)
			{
				Parts.Emplace(Text.Mid(Start, End - Start));
			}
		};
		for (int32 Index = 0; Index < Text.Len();)
		{
			const int32 DelimiterLen = DelimiterAt(Text.RightChop(Index));
			if (DelimiterLen > 0)
			{
				AddPart(Index);
				Index += DelimiterLen;
				Start = Index;
			}
			else
			{
				++Index;
			}
		}
		if (!Text.IsEmpty())
		{
			AddPart(Text.Len());
		}
		OutArray = MoveTemp(Parts);
		return OutArray.Num();
	}
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bInCullEmpty) const
{
	return ParseIntoArray(OutArray, &Delimiter, 1, bInCullEmpty);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* Delimiters, int32 NumDelimiters, bool bInCullEmpty) const
{
	return Cut(View(), OutArray, bInCullEmpty, [=](FStringView Rest)
	{
		for (int32 Index = 0; Index < NumDelimiters; ++Index)
		{
			const FStringView Delimiter(Delimiters[Index]);
			if (!Delimiter.IsEmpty() && Rest.StartsWith(Delimiter))
			{
				return Delimiter.Len();
			}
		}
		return 0;
	});
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* ExtraDelimiter, bool bInCullEmpty) const
{
	const FStringView Extra(ExtraDelimiter);
	return Cut(View(), OutArray, bInCullEmpty, [=](FStringView Rest)
	{
		if (!Extra.IsEmpty() && Rest.StartsWith(Extra))
		{
			return Extra.Len();
		}
		return FChar::IsWhitespace(Rest[0]) ? 1 : 0;
	});
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool bInCullEmpty) const
{
	static const TCHAR* const LineEnds[] = { TEXT("\r\n"), TEXT("\r"), TEXT("\n") };
	return ParseIntoArray(OutArray, LineEnds, UE_ARRAY_COUNT(LineEnds), bInCullEmpty);
}

FString BytesToHex(const uint8* Bytes, int32 NumBytes)
{
	FString Result;
	Result.Reserve(NumBytes * 2);
	for (int32 Index = 0; Index < NumBytes; ++Index)
	{
		Result.AppendChar(TEXT("0123456789ABCDEF")[Bytes[Index] >> 4]);
		Result.AppendChar(TEXT("0123456789ABCDEF")[Bytes[Index] & 15]);
	}
	return Result;
}

FString LexToString(int64 Value)
{
	FString Result;
	Result.AppendInt(Value);
	return Result;
}

FString LexToString(uint64 Value)
{
	return FString::Printf(TEXT("%llu"), Value);
}

FString LexToString(double Value)
{
	return FString::Printf(TEXT("%f"), Value);
}

FString LexToString(float Value)
{
	return FString::Printf(TEXT("%f"), Value);
}

FString LexToString(bool bValue)
{
	return bValue ? TEXT("true") : TEXT("false");
}
