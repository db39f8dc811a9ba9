#pragma once

#include "Containers/CheckedIterator.h"
#include "Templates/TypeHash.h"

/** An array whose length is known when compiled. */
template <typename InElementType, uint32 NumElements>
class TStaticArray
{
public:
	using ElementType = InElementType;

	TStaticArray() : Elements() {}

	/** Copies of one element. */
	explicit TStaticArray(const ElementType& DefaultElement)
	{
		for (ElementType& Element : Elements)
		{
			Element = DefaultElement;
		}
	}

	static constexpr int32 Num() { return (int32)NumElements; }
	ElementType* GetData() { return Elements; }
	const ElementType* GetData() const { return Elements; }

	ElementType& operator[](uint32 Index)
	{
		RangeCheck(Index);
		return Elements[Index];
	}

	const ElementType& operator[](uint32 Index) const
	{
		RangeCheck(Index);
		return Elements[Index];
	}

	ElementType* begin() { return Elements; }
	ElementType* end() { return Elements + NumElements; }
	const ElementType* begin() const { return Elements; }
	const ElementType* end() const { return Elements + NumElements; }

	bool operator==(const TStaticArray&) const = default;

private:
	static void RangeCheck(uint32 Index)
	{
		if (Index >= NumElements) [[unlikely]]
		{
			Host::ReportBadIndex((int32)Index, NumElements);
		}
	}

	ElementType Elements[NumElements];
};
