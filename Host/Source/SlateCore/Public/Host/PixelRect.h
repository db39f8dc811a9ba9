#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * A rectangle of whole pixels of a window: left and top inclusive, right and bottom exclusive. Kept in 16 bits a
	 * side, because every draw element carries two; values beyond that range are saturated.
	 */
	struct FPixelRect
	{
		int16 Left = 0;
		int16 Top = 0;
		int16 Right = 0;
		int16 Bottom = 0;

		static constexpr int32 Limit = 32767;

		/** From any integers, saturated to the range of a window. */
		static constexpr FPixelRect Make(int32 Left, int32 Top, int32 Right, int32 Bottom)
		{
			return { Saturate(Left), Saturate(Top), Saturate(Right), Saturate(Bottom) };
		}

		/** The smallest rectangle that holds all pixels touched by the given area. Not-a-number gives an empty one. */
		static FPixelRect Around(float Left, float Top, float Right, float Bottom);

		/** The area with each edge rounded to the nearest pixel edge. */
		static FPixelRect Rounded(float Left, float Top, float Right, float Bottom);

		/** Holds every pixel that a window can have. */
		static constexpr FPixelRect Everything()
		{
			return { -Limit, -Limit, Limit, Limit };
		}

		constexpr int32 Width() const { return Right - Left; }
		constexpr int32 Height() const { return Bottom - Top; }
		constexpr int64 Area() const { return IsEmpty() ? 0 : static_cast<int64>(Width()) * Height(); }
		constexpr bool IsEmpty() const { return Right <= Left || Bottom <= Top; }

		constexpr bool Intersects(const FPixelRect& Other) const
		{
			return Left < Other.Right && Other.Left < Right && Top < Other.Bottom && Other.Top < Bottom;
		}

		constexpr bool Contains(const FPixelRect& Other) const
		{
			return Left <= Other.Left && Top <= Other.Top && Right >= Other.Right && Bottom >= Other.Bottom;
		}

		/** What both cover; empty rectangles of any position count as empty. */
		constexpr FPixelRect Intersect(const FPixelRect& Other) const
		{
			return { Left > Other.Left ? Left : Other.Left, Top > Other.Top ? Top : Other.Top,
				Right < Other.Right ? Right : Other.Right, Bottom < Other.Bottom ? Bottom : Other.Bottom };
		}

		/** The smallest rectangle around both; an empty one adds nothing. */
		constexpr FPixelRect Union(const FPixelRect& Other) const
		{
			if (IsEmpty())
			{
				return Other;
			}
			if (Other.IsEmpty())
			{
				return *this;
			}
			return { Left < Other.Left ? Left : Other.Left, Top < Other.Top ? Top : Other.Top,
				Right > Other.Right ? Right : Other.Right, Bottom > Other.Bottom ? Bottom : Other.Bottom };
		}

		constexpr bool operator==(const FPixelRect& Other) const = default;

	private:
		static constexpr int16 Saturate(int32 Value)
		{
			return static_cast<int16>(Value < -Limit ? -Limit : (Value > Limit ? Limit : Value));
		}
	};
}
