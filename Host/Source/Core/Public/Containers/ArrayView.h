#pragma once

#include "Containers/Array.h"

#include <concepts>

/** Elements that stand elsewhere, in one run: an address and a number. Constness is that of the element type. */
template <typename InElementType, typename InSizeType>
class TArrayView : public Host::TSearchableRange<TArrayView<InElementType, InSizeType>, std::remove_const_t<InElementType>>
{
public:
	using ElementType = InElementType;
	using SizeType = InSizeType;

	TArrayView() = default;

	TArrayView(ElementType* InData, SizeType InNum)
		: DataPtr(InData)
		, ArrayNum(InNum)
	{
		check(InNum >= 0);
	}

	/** Views an array, another view, or whatever has GetData() and Num(). */
	template <typename RangeType>
		requires(!std::is_same_v<std::remove_cvref_t<RangeType>, TArrayView> && requires(RangeType&& Range) { { Range.GetData() } -> std::convertible_to<ElementType*>; Range.Num(); })
	TArrayView(RangeType&& Range)
		: TArrayView(Range.GetData(), (SizeType)Range.Num())
	{
	}

	template <std::size_t Count>
	TArrayView(ElementType (&Array)[Count])
		: TArrayView(Array, (SizeType)Count)
	{
	}

	TArrayView(std::initializer_list<std::remove_const_t<ElementType>> List)
		requires(std::is_const_v<ElementType>)
		: TArrayView(List.begin(), (SizeType)List.size())
	{
	}

	ElementType* GetData() const { return DataPtr; }
	SizeType Num() const { return ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }

	ElementType& operator[](SizeType Index) const
	{
		if (!IsValidIndex(Index)) [[unlikely]]
		{
			Host::ReportBadIndex(Index, ArrayNum);
		}
		return DataPtr[Index];
	}

	ElementType& Last(SizeType IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }

	/** Count elements from Index on; they must be there. */
	TArrayView Slice(SizeType Index, SizeType Count) const
	{
		check(Index >= 0 && Count >= 0 && Index + Count <= ArrayNum);
		return TArrayView(DataPtr + Index, Count);
	}

	TArrayView Left(SizeType Count) const { return Slice(0, Clamp(Count)); }
	TArrayView LeftChop(SizeType Count) const { return Slice(0, ArrayNum - Clamp(Count)); }
	TArrayView Right(SizeType Count) const { return Slice(ArrayNum - Clamp(Count), Clamp(Count)); }
	TArrayView RightChop(SizeType Count) const { return Slice(Clamp(Count), ArrayNum - Clamp(Count)); }

	void Sort() const { ::Sort(DataPtr, ArrayNum); }
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate) const { ::Sort(DataPtr, ArrayNum, Predicate); }
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate) const { ::StableSort(DataPtr, ArrayNum, Predicate); }

	ElementType* begin() const { return DataPtr; }
	ElementType* end() const { return DataPtr + ArrayNum; }

private:
	SizeType Clamp(SizeType Count) const { return Count < 0 ? 0 : (Count < ArrayNum ? Count : ArrayNum); }

	ElementType* DataPtr = nullptr;
	SizeType ArrayNum = 0;
};

template <typename ElementType>
auto MakeArrayView(ElementType* Pointer, int32 Size)
{
	return TArrayView<ElementType>(Pointer, Size);
}

template <typename RangeType>
auto MakeArrayView(RangeType&& Range)
{
	return TArrayView<std::remove_pointer_t<decltype(GetData(Range))>>(GetData(Range), (int32)GetNum(Range));
}
