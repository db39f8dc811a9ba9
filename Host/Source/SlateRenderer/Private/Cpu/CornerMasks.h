#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * How much of each pixel near a corner a box covers whose edges lie on pixels: by columns from the vertical side and
	 * rows from the horizontal side. The same for every box with that radius and outline, however large.
	 */
	struct FCornerMask
	{
		/** Columns and rows that differ from the plain inside. */
		int32 Size = 0;
		/** Size + 1 rows of Size each; the last holds for all rows beyond. Shares of 255. */
		TArray<uint8> Outer;
		/** The same for the area within the outline. Empty without an outline. */
		TArray<uint8> Inner;

		const uint8* OuterRow(int32 Row) const { return Outer.GetData() + static_cast<int64>(FMath::Min(Row, Size)) * Size; }
		const uint8* InnerRow(int32 Row) const { return Inner.GetData() + static_cast<int64>(FMath::Min(Row, Size)) * Size; }
	};

	/** Keeps the masks in use. */
	class FCornerMasks
	{
	public:
		/** Valid until the next BeginFrame. Radius and outline width in pixels. */
		const FCornerMask& Find(float Radius, float OutlineWidth);

		/** Forgets all when they have become too many, as when a radius is animated. */
		void BeginFrame();

	private:
		static constexpr int64 MaxBytes = 1 << 20;

		TMap<uint64, TUniquePtr<FCornerMask>> Masks;
		int64 Bytes = 0;
	};
}
