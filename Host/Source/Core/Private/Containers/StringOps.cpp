#include "Host/StringOps.h"

#include <algorithm>

int32 Host::Strings::Compare(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase)
{
	const int32 Common = std::min(LenA, LenB);
	int32 Index = 0;
	while (Index + 4 <= Common && LoadFour(A + Index) == LoadFour(B + Index))
	{
		Index += 4;
	}
	for (; Index < Common; ++Index)
	{
		const bool bFold = SearchCase == ESearchCase::IgnoreCase;
		const int32 Difference = (int32)(bFold ? Fold(A[Index]) : A[Index]) - (int32)(bFold ? Fold(B[Index]) : B[Index]);
		if (Difference != 0)
		{
			return Difference;
		}
	}
	return LenA - LenB;
}

int32 Host::Strings::FindForward(const TCHAR* Text, int32 Len, const TCHAR* Sought, int32 SoughtLen, int32 Start, ESearchCase::Type SearchCase)
{
	if (SoughtLen == 0)
	{
		return Start <= Len ? Start : INDEX_NONE;
	}
	const bool bFold = SearchCase == ESearchCase::IgnoreCase;
	const TCHAR First = bFold ? Fold(Sought[0]) : Sought[0];
	for (int32 Index = Start; Index <= Len - SoughtLen; ++Index)
	{
		const TCHAR Here = bFold ? Fold(Text[Index]) : Text[Index];
		if (Here == First && Equal(Text + Index, SoughtLen, Sought, SoughtLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 Host::Strings::FindBackward(const TCHAR* Text, int32 Len, const TCHAR* Sought, int32 SoughtLen, int32 Start, ESearchCase::Type SearchCase)
{
	for (int32 Index = std::min(Start, Len - SoughtLen); Index >= 0; --Index)
	{
		if (Equal(Text + Index, SoughtLen, Sought, SoughtLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}
