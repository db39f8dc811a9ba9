#include "Shared/DamageAreas.h"

namespace Host
{
	namespace
	{
		/** Beyond this many parts, walking the elements for each costs more than drawing what lies between. */
		constexpr int32 MaxAreas = 16;
		/** Pixels that one more walk over the elements may cost. */
		constexpr int64 WalkCost = 4096;

		bool ShouldMerge(const FPixelRect& A, const FPixelRect& B)
		{
			return A.Intersects(B) || A.Union(B).Area() <= A.Area() + B.Area() + WalkCost;
		}

		template <typename AreasType>
		void Add(AreasType& Areas, FPixelRect Area)
		{
			// A merged area can touch others that neither of its parts touched: look again from the start.
			for (int32 Index = 0; Index < Areas.Num();)
			{
				if (Areas.Num() >= MaxAreas || ShouldMerge(Areas[Index], Area))
				{
					Area = Area.Union(Areas[Index]);
					Areas.RemoveAtSwap(Index);
					Index = 0;
				}
				else
				{
					++Index;
				}
			}
			Areas.Add(Area);
		}
	}

	TArray<FPixelRect, TInlineAllocator<16>> MergeDamage(TConstArrayView<FPixelRect> Damage, const FPixelRect& Surface)
	{
		TArray<FPixelRect, TInlineAllocator<16>> Areas;
		for (const FPixelRect& Rect : Damage)
		{
			const FPixelRect Area = Rect.Intersect(Surface);
			if (!Area.IsEmpty())
			{
				Add(Areas, Area);
			}
		}
		return Areas;
	}
}
