#pragma once

#include "CoreTypes.h"

namespace Host
{
	/** Reports that a container changed its length inside a ranged-for over it. */
	CORE_API void ReportChangeDuringIteration();
	/** Halts: an index is not one of the container's. */
	[[noreturn]] CORE_API void ReportBadIndex(int64 Index, int64 Num);

	/** Pointer to an element that notices when the length of its container changes under a ranged-for. */
	template <typename ElementType>
	class TCheckedPointerIterator
	{
	public:
		TCheckedPointerIterator(const int32& InNum, ElementType* InElement)
			: Element(InElement)
			, CurrentNum(InNum)
			, InitialNum(InNum)
		{
		}

		ElementType& operator*() const
		{
			return *Element;
		}

		ElementType* operator->() const
		{
			return Element;
		}

		TCheckedPointerIterator& operator++()
		{
			++Element;
			return *this;
		}

		TCheckedPointerIterator& operator--()
		{
			--Element;
			return *this;
		}

		bool operator!=(const TCheckedPointerIterator& Other) const
		{
			if (CurrentNum != InitialNum) [[unlikely]]
			{
				InitialNum = CurrentNum;
				ReportChangeDuringIteration();
			}
			return Element != Other.Element;
		}

		bool operator==(const TCheckedPointerIterator& Other) const
		{
			return !(*this != Other);
		}

	private:
		ElementType* Element;
		const int32& CurrentNum;
		mutable int32 InitialNum;
	};
}
