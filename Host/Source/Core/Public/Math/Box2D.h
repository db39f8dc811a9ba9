#pragma once

#include "Math/Vector2D.h"

namespace UE::Math
{
	/** An axis-aligned rectangle that knows whether it holds anything yet. */
	template <typename T>
	struct TBox2
	{
		using FReal = T;

		TVector2<T> Min;
		TVector2<T> Max;
		bool bIsValid;

		/** Leaves everything unset. */
		TBox2() = default;
		/** Invalid: holds nothing. */
		constexpr explicit TBox2(EForceInit) : Min(0, 0), Max(0, 0), bIsValid(false) {}
		constexpr TBox2(const TVector2<T>& InMin, const TVector2<T>& InMax) : Min(InMin), Max(InMax), bIsValid(true) {}

		constexpr bool operator==(const TBox2& Other) const
		{
			return bIsValid == Other.bIsValid && (!bIsValid || (Min == Other.Min && Max == Other.Max));
		}

		/** Grows to hold the point. */
		constexpr TBox2& operator+=(const TVector2<T>& Point)
		{
			Min = bIsValid ? TVector2<T>::Min(Min, Point) : Point;
			Max = bIsValid ? TVector2<T>::Max(Max, Point) : Point;
			bIsValid = true;
			return *this;
		}

		/** Grows to hold the other; an invalid one adds nothing. */
		constexpr TBox2& operator+=(const TBox2& Other)
		{
			if (Other.bIsValid)
			{
				*this += Other.Min;
				*this += Other.Max;
			}
			return *this;
		}

		constexpr TBox2 operator+(const TVector2<T>& Point) const { return TBox2(*this) += Point; }
		constexpr TBox2 operator+(const TBox2& Other) const { return TBox2(*this) += Other; }

		constexpr T GetArea() const { return (Max.X - Min.X) * (Max.Y - Min.Y); }
		constexpr TVector2<T> GetSize() const { return Max - Min; }
		/** Half the size. */
		constexpr TVector2<T> GetExtent() const { return (Max - Min) * T(0.5); }
		constexpr TVector2<T> GetCenter() const { return (Min + Max) * T(0.5); }
		constexpr TVector2<T> GetClosestPointTo(const TVector2<T>& Point) const { return TVector2<T>::Clamp(Point, Min, Max); }

		constexpr TBox2 ExpandBy(T Amount) const { return TBox2(Min - TVector2<T>(Amount, Amount), Max + TVector2<T>(Amount, Amount)); }
		constexpr TBox2 ShiftBy(const TVector2<T>& Offset) const { return TBox2(Min + Offset, Max + Offset); }

		/** Touching edges count. */
		constexpr bool Intersect(const TBox2& Other) const
		{
			return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y;
		}

		/** What both hold; invalid when they share nothing. */
		constexpr TBox2 Overlap(const TBox2& Other) const
		{
			return Intersect(Other) ? TBox2(TVector2<T>::Max(Min, Other.Min), TVector2<T>::Min(Max, Other.Max)) : TBox2(ForceInit);
		}

		/** Points on the edges are not inside. */
		constexpr bool IsInside(const TVector2<T>& Point) const { return Point > Min && Point < Max; }
		/** Points on the edges are inside. */
		constexpr bool IsInsideOrOn(const TVector2<T>& Point) const { return Point >= Min && Point <= Max; }

		constexpr void Init() { *this = TBox2(ForceInit); }

		/** "bIsValid=true, Min=(X=0.000 Y=0.000), Max=(X=1.000 Y=1.000)" */
		FString ToString() const;
	};
}
