#include "Filters/UnitMask.h"

void FUnitMask::Init(int32 InNum, bool bPasses)
{
	NumUnits = InNum;
	Words.Init(bPasses ? ~uint64(0) : 0, FMath::DivideAndRoundUp(InNum, UnitsPerWord));
	if (bPasses && InNum % UnitsPerWord != 0)
	{
		Words.Last() = (uint64(1) << (InNum % UnitsPerWord)) - 1;
	}
}

void FUnitMask::Set(int32 Index, bool bPasses)
{
	const uint64 Bit = uint64(1) << (Index % UnitsPerWord);
	uint64& Word = Words[Index / UnitsPerWord];
	Word = bPasses ? Word | Bit : Word & ~Bit;
}

void FUnitMask::AndWith(const FUnitMask& Other)
{
	check(NumUnits == Other.NumUnits);
	for (int32 Word = 0; Word < Words.Num(); ++Word)
	{
		Words[Word] &= Other.Words[Word];
	}
}

int32 FUnitMask::Count() const
{
	int32 Passing = 0;
	for (const uint64 Word : Words)
	{
		Passing += FMath::CountBits(Word);
	}
	return Passing;
}
