#pragma once

#include "Math/IntPoint.h"

namespace UE::Math
{
	/** A rectangle in whole units; Max is outside of it. */
	template <typename T>
	struct TIntRect
	{
		using IntType = T;
		using IntPointType = TIntPoint<T>;

		IntPointType Min;
		IntPointType Max;

		/** Empty, at the origin. */
		constexpr TIntRect() : Min(0, 0), Max(0, 0) {}
		constexpr TIntRect(T X0, T Y0, T X1, T Y1) : Min(X0, Y0), Max(X1, Y1) {}
		constexpr TIntRect(IntPointType InMin, IntPointType InMax) : Min(InMin), Max(InMax) {}

		constexpr bool operator==(const TIntRect& Other) const = default;

		constexpr TIntRect operator+(const IntPointType& Offset) const { return TIntRect(Min + Offset, Max + Offset); }
		constexpr TIntRect operator-(const IntPointType& Offset) const { return TIntRect(Min - Offset, Max - Offset); }
		constexpr TIntRect& operator+=(const IntPointType& Offset) { return *this = *this + Offset; }
		constexpr TIntRect& operator-=(const IntPointType& Offset) { return *this = *this - Offset; }
		constexpr TIntRect operator*(T Scale) const { return TIntRect(Min * Scale, Max * Scale); }

		constexpr T Width() const { return Max.X - Min.X; }
		constexpr T Height() const { return Max.Y - Min.Y; }
		constexpr IntPointType Size() const { return Max - Min; }
		/** Negative for a rectangle turned inside out in one direction. */
		constexpr T Area() const { return Width() * Height(); }
		/** True when it covers nothing. */
		constexpr bool IsEmpty() const { return Width() <= 0 || Height() <= 0; }

		constexpr bool Contains(const IntPointType& Point) const
		{
			return Point.X >= Min.X && Point.X < Max.X && Point.Y >= Min.Y && Point.Y < Max.Y;
		}

		constexpr bool Intersect(const TIntRect& Other) const
		{
			return Other.Min.X < Max.X && Min.X < Other.Max.X && Other.Min.Y < Max.Y && Min.Y < Other.Max.Y;
		}

		/** Cuts this rectangle to what it shares with the other; an empty one inside the other remains when they share nothing. */
		constexpr void Clip(const TIntRect& Other)
		{
			Min = Other.Min.ComponentMax(Min).ComponentMin(Other.Max);
			Max = Other.Max.ComponentMin(Max).ComponentMax(Min);
		}

		/** Grows to hold the point. */
		constexpr void Include(const IntPointType& Point)
		{
			Min = Min.ComponentMin(Point);
			Max = Max.ComponentMax(Point);
		}

		/** Grows to hold the other rectangle. */
		constexpr void Union(const TIntRect& Other)
		{
			Min = Min.ComponentMin(Other.Min);
			Max = Max.ComponentMax(Other.Max);
		}

		/** Grows by the amount on every side. */
		constexpr void InflateRect(T Amount)
		{
			Min -= IntPointType(Amount);
			Max += IntPointType(Amount);
		}

		/** "Min=(X=0 Y=0) Max=(X=1 Y=1)" */
		FString ToString() const;
	};

	template <typename T>
	uint32 GetTypeHash(const TIntRect<T>& Rect)
	{
		return GetTypeHash(Rect.Min) * 31u + GetTypeHash(Rect.Max);
	}
}
