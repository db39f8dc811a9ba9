#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/** A place or a size in whole units. */
	template <typename T>
	struct TIntPoint
	{
		using IntType = T;

		T X;
		T Y;

		static const TIntPoint ZeroValue;
		/** Both components INDEX_NONE. */
		static const TIntPoint NoneValue;

		/** Leaves the components unset. */
		TIntPoint() = default;
		constexpr TIntPoint(T InX, T InY) : X(InX), Y(InY) {}
		constexpr explicit TIntPoint(T InXY) : X(InXY), Y(InXY) {}
		constexpr explicit TIntPoint(EForceInit) : X(0), Y(0) {}

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TIntPoint(const TIntPoint<OtherType>& Other) : X(T(Other.X)), Y(T(Other.Y)) {}

		constexpr bool operator==(const TIntPoint& Other) const = default;

		constexpr TIntPoint operator+(const TIntPoint& Other) const { return TIntPoint(X + Other.X, Y + Other.Y); }
		constexpr TIntPoint operator-(const TIntPoint& Other) const { return TIntPoint(X - Other.X, Y - Other.Y); }
		constexpr TIntPoint operator*(const TIntPoint& Other) const { return TIntPoint(X * Other.X, Y * Other.Y); }
		constexpr TIntPoint operator/(const TIntPoint& Other) const { return TIntPoint(X / Other.X, Y / Other.Y); }
		constexpr TIntPoint operator*(T Scale) const { return TIntPoint(X * Scale, Y * Scale); }
		constexpr TIntPoint operator/(T Divisor) const { return TIntPoint(X / Divisor, Y / Divisor); }
		constexpr TIntPoint operator-() const { return TIntPoint(-X, -Y); }

		constexpr TIntPoint& operator+=(const TIntPoint& Other) { return *this = *this + Other; }
		constexpr TIntPoint& operator-=(const TIntPoint& Other) { return *this = *this - Other; }
		constexpr TIntPoint& operator*=(T Scale) { return *this = *this * Scale; }
		constexpr TIntPoint& operator/=(T Divisor) { return *this = *this / Divisor; }

		T& operator[](int32 Index)
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		T operator[](int32 Index) const
		{
			check(Index >= 0 && Index < 2);
			return Index == 0 ? X : Y;
		}

		/** Per component. */
		constexpr TIntPoint ComponentMin(const TIntPoint& Other) const { return TIntPoint(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y)); }
		constexpr TIntPoint ComponentMax(const TIntPoint& Other) const { return TIntPoint(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y)); }

		/** The greater component. */
		constexpr T GetMax() const { return FMath::Max(X, Y); }
		constexpr T GetMin() const { return FMath::Min(X, Y); }

		/** Length, truncated to a whole number. */
		T Size() const { return T(std::sqrt(double(SizeSquared()))); }
		constexpr int64 SizeSquared() const { return int64(X) * int64(X) + int64(Y) * int64(Y); }

		/** "X=1 Y=2" */
		FString ToString() const;
	};

	template <typename T> constexpr TIntPoint<T> TIntPoint<T>::ZeroValue(0, 0);
	template <typename T> constexpr TIntPoint<T> TIntPoint<T>::NoneValue(INDEX_NONE, INDEX_NONE);

	template <typename T>
	uint32 GetTypeHash(const TIntPoint<T>& Point)
	{
		return uint32(Point.X) * 0x9E3779B1u ^ (uint32(Point.Y) * 0x85EBCA77u + (uint32(Point.X) >> 16));
	}
}
