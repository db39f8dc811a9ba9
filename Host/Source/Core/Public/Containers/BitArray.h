#pragma once

#include "Containers/Array.h"

#include <bit>

/** An array of bits, packed into words. */
template <typename Allocator = FDefaultBitArrayAllocator>
class TBitArray
{
public:
	using FWord = uint32;
	static constexpr int32 BitsPerWord = 32;

	/** A bit that can be written. */
	class FBitReference
	{
	public:
		FBitReference(FWord& InWord, FWord InMask) : Word(InWord), Mask(InMask) {}
		FBitReference(const FBitReference&) = default;
		operator bool() const { return (Word & Mask) != 0; }

		FBitReference& operator=(bool bValue)
		{
			Word = bValue ? Word | Mask : Word & ~Mask;
			return *this;
		}

		FBitReference& operator=(const FBitReference& Other) { return *this = (bool)Other; }

	private:
		FWord& Word;
		FWord Mask;
	};

	TBitArray() = default;

	TBitArray(bool bValue, int32 Count)
	{
		Init(bValue, Count);
	}

	TBitArray(const TBitArray&) = default;

	TBitArray(TBitArray&& Other)
		: Words(MoveTemp(Other.Words))
		, NumBits(Other.NumBits)
	{
		Other.NumBits = 0;
	}

	TBitArray& operator=(const TBitArray&) = default;

	TBitArray& operator=(TBitArray&& Other)
	{
		if (this != &Other)
		{
			Words = MoveTemp(Other.Words);
			NumBits = Other.NumBits;
			Other.NumBits = 0;
		}
		return *this;
	}

	int32 Num() const { return NumBits; }
	bool IsEmpty() const { return NumBits == 0; }
	bool IsValidIndex(int32 Index) const { return (uint32)Index < (uint32)NumBits; }
	int32 NumWords() const { return Words.Num(); }
	const FWord* GetData() const { return Words.GetData(); }
	SIZE_T GetAllocatedSize() const { return Words.GetAllocatedSize(); }

	FBitReference operator[](int32 Index)
	{
		RangeCheck(Index);
		return FBitReference(Words.GetData()[Index / BitsPerWord], (FWord)1 << (Index % BitsPerWord));
	}

	bool operator[](int32 Index) const
	{
		RangeCheck(Index);
		return (Words.GetData()[Index / BitsPerWord] >> (Index % BitsPerWord) & 1) != 0;
	}

	int32 Add(bool bValue)
	{
		if (NumBits % BitsPerWord == 0)
		{
			Words.Add(0);
		}
		const int32 Index = NumBits++;
		(*this)[Index] = bValue;
		return Index;
	}

	void Init(bool bValue, int32 Count)
	{
		Words.Init(bValue ? ~(FWord)0 : 0, (Count + BitsPerWord - 1) / BitsPerWord);
		NumBits = Count;
		ClearSlack();
	}

	/** Changes the length; new bits get the given value. */
	void SetNum(int32 Count, bool bValue)
	{
		while (NumBits < Count)
		{
			Add(bValue);
		}
		if (NumBits > Count)
		{
			NumBits = Count;
			Words.SetNum((Count + BitsPerWord - 1) / BitsPerWord, EAllowShrinking::No);
			ClearSlack();
		}
	}

	void SetRange(int32 Index, int32 Count, bool bValue)
	{
		for (int32 Bit = Index; Bit < Index + Count; ++Bit)
		{
			(*this)[Bit] = bValue;
		}
	}

	void Empty(int32 ExpectedNumBits = 0)
	{
		Words.Empty((ExpectedNumBits + BitsPerWord - 1) / BitsPerWord);
		NumBits = 0;
	}

	void Reset()
	{
		Words.Reset();
		NumBits = 0;
	}

	void Reserve(int32 Count)
	{
		Words.Reserve((Count + BitsPerWord - 1) / BitsPerWord);
	}

	/** Index of the first such bit, or INDEX_NONE. */
	int32 Find(bool bValue) const
	{
		for (int32 Word = 0; Word < Words.Num(); ++Word)
		{
			const FWord Bits = bValue ? Words.GetData()[Word] : ~Words.GetData()[Word];
			if (Bits != 0)
			{
				const int32 Index = Word * BitsPerWord + std::countr_zero(Bits);
				return Index < NumBits ? Index : INDEX_NONE;
			}
		}
		return INDEX_NONE;
	}

	bool Contains(bool bValue) const { return Find(bValue) != INDEX_NONE; }

	int32 CountSetBits() const
	{
		int32 Count = 0;
		for (const FWord Word : Words)
		{
			Count += std::popcount(Word);
		}
		return Count;
	}

	friend bool operator==(const TBitArray& A, const TBitArray& B) { return A.NumBits == B.NumBits && A.Words == B.Words; }

private:
	void RangeCheck(int32 Index) const
	{
		if (!IsValidIndex(Index)) [[unlikely]]
		{
			Host::ReportBadIndex(Index, NumBits);
		}
	}

	/** Bits behind the last one are always 0. */
	void ClearSlack()
	{
		if (NumBits % BitsPerWord != 0)
		{
			Words.Last() &= ((FWord)1 << (NumBits % BitsPerWord)) - 1;
		}
	}

	TArray<FWord, Allocator> Words;
	int32 NumBits = 0;
};

/** Walks the indices of the bits that are set. Bits may be set and cleared on the way: those ahead count as they then are. */
template <typename Allocator = FDefaultBitArrayAllocator>
class TConstSetBitIterator
{
public:
	explicit TConstSetBitIterator(const TBitArray<Allocator>& InArray, int32 StartIndex = 0)
		: Array(&InArray)
		, WordIndex(StartIndex / BitsPerWord)
		, Unvisited(~(uint32)0 << (StartIndex % BitsPerWord))
	{
		FindNext();
	}

	TConstSetBitIterator& operator++()
	{
		Unvisited &= ~(uint32)1 << (Index % BitsPerWord);
		FindNext();
		return *this;
	}

	explicit operator bool() const { return Index < Array->Num(); }
	bool operator!() const { return !(bool)*this; }
	int32 GetIndex() const { return Index; }
	friend bool operator==(const TConstSetBitIterator& A, const TConstSetBitIterator& B) { return A.Index == B.Index && A.Array == B.Array; }

private:
	static constexpr int32 BitsPerWord = TBitArray<Allocator>::BitsPerWord;

	FORCEINLINE void FindNext()
	{
		const uint32* Words = Array->GetData();
		const int32 NumWords = Array->NumWords();
		for (; WordIndex < NumWords; ++WordIndex)
		{
			if (const uint32 Rest = Words[WordIndex] & Unvisited)
			{
				Index = WordIndex * BitsPerWord + std::countr_zero(Rest);
				return;
			}
			Unvisited = ~(uint32)0;
		}
		Index = Array->Num();
	}

	const TBitArray<Allocator>* Array;
	int32 WordIndex;
	uint32 Unvisited;
	int32 Index = 0;
};
