#pragma once

#include "CoreMinimal.h"

/** One bit a unit: whether it passes. Bits behind the last unit are 0. */
class HALVEXPRO_API FUnitMask
{
public:
	static constexpr int32 UnitsPerWord = 64;

	/** Lets all of so many units pass, or none. */
	void Init(int32 InNum, bool bPasses);

	int32 Num() const { return NumUnits; }
	bool operator[](int32 Index) const { return (Words[Index / UnitsPerWord] >> (Index % UnitsPerWord) & 1) != 0; }
	void Set(int32 Index, bool bPasses);

	/** Lets pass what passes here and there; both are of the same units. */
	void AndWith(const FUnitMask& Other);

	/** How many pass. */
	int32 Count() const;

	/** Calls Predicate(Index) for each unit, and stops those for which it is false. */
	template <typename PredicateType>
	void Restrict(PredicateType Predicate)
	{
		for (int32 Word = 0; Word < Words.Num(); ++Word)
		{
			const int32 First = Word * UnitsPerWord;
			const int32 NumInWord = FMath::Min(UnitsPerWord, NumUnits - First);
			uint64 Bits = 0;
			for (int32 Bit = 0; Bit < NumInWord; ++Bit)
			{
				Bits |= uint64(Predicate(First + Bit) ? 1 : 0) << Bit;
			}
			Words[Word] &= Bits;
		}
	}

	/** As Restrict for predicates that cost more than a look: those that were stopped before are not asked. */
	template <typename PredicateType>
	void RestrictPassing(PredicateType Predicate)
	{
		for (int32 Index = 0; Index < NumUnits; ++Index)
		{
			if ((*this)[Index] && !Predicate(Index))
			{
				Set(Index, false);
			}
		}
	}

	/** The units of one word, the first at bit 0. */
	uint64 GetWord(int32 Word) const { return Words[Word]; }
	int32 NumWords() const { return Words.Num(); }

	bool operator==(const FUnitMask& Other) const { return NumUnits == Other.NumUnits && Words == Other.Words; }

private:
	TArray<uint64> Words;
	int32 NumUnits = 0;
};
