#pragma once

#include "Math/IntPoint.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/** A vector of two components; FVector2D in double, FVector2f in single precision. The two do not convert silently. */
	template <typename T>
	struct TVector2
	{
		static_assert(std::is_floating_point_v<T>, "A vector is made of float or double");
		using FReal = T;

		T X;
		T Y;

		static const TVector2 ZeroVector;
		static const TVector2 UnitVector;
		static const TVector2 Unit45Deg;

		/** Leaves the components unset. */
		TVector2() = default;
		constexpr TVector2(T InX, T InY) : X(InX), Y(InY) {}
		constexpr explicit TVector2(T InF) : X(InF), Y(InF) {}
		constexpr explicit TVector2(EForceInit) : X(0), Y(0) {}
		constexpr explicit TVector2(ENoInit) {}

		template <typename IntType>
		constexpr explicit TVector2(TIntPoint<IntType> Point) : X(T(Point.X)), Y(T(Point.Y)) {}

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TVector2(const TVector2<OtherType>& Other) : X(T(Other.X)), Y(T(Other.Y)) {}

		/** Drops Z. */
		constexpr explicit TVector2(const TVector<T>& V);
		/** Drops Z and W. */
		constexpr explicit TVector2(const TVector4<T>& V);

		static constexpr TVector2 Zero() { return TVector2(0, 0); }
		static constexpr TVector2 One() { return TVector2(1, 1); }
		static constexpr TVector2 UnitX() { return TVector2(1, 0); }
		static constexpr TVector2 UnitY() { return TVector2(0, 1); }

		constexpr bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }
		constexpr bool operator!=(const TVector2& V) const { return !(*this == V); }
		/** True when both components are. */
		constexpr bool operator<(const TVector2& V) const { return X < V.X && Y < V.Y; }
		constexpr bool operator>(const TVector2& V) const { return X > V.X && Y > V.Y; }
		constexpr bool operator<=(const TVector2& V) const { return X <= V.X && Y <= V.Y; }
		constexpr bool operator>=(const TVector2& V) const { return X >= V.X && Y >= V.Y; }

		constexpr TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
		constexpr TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
		constexpr TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
		constexpr TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
		constexpr TVector2 operator-() const { return TVector2(-X, -Y); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector2 operator*(ScalarType Scale) const { return TVector2(X * T(Scale), Y * T(Scale)); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector2 operator/(ScalarType Divisor) const { return TVector2(X / T(Divisor), Y / T(Divisor)); }

		constexpr TVector2 operator+(T A) const { return TVector2(X + A, Y + A); }
		constexpr TVector2 operator-(T A) const { return TVector2(X - A, Y - A); }

		constexpr TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
		constexpr TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
		constexpr TVector2& operator*=(const TVector2& V) { return *this = *this * V; }
		constexpr TVector2& operator/=(const TVector2& V) { return *this = *this / V; }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector2& operator*=(ScalarType Scale) { return *this = *this * Scale; }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector2& operator/=(ScalarType Divisor) { return *this = *this / Divisor; }

		/** Dot product. */
		constexpr T operator|(const TVector2& V) const { return X * V.X + Y * V.Y; }
		/** Cross product: the Z of the one in space. */
		constexpr T operator^(const TVector2& V) const { return X * V.Y - Y * V.X; }

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

		T& Component(int32 Index) { return (*this)[Index]; }
		T Component(int32 Index) const { return (*this)[Index]; }

		static constexpr T DotProduct(const TVector2& A, const TVector2& B) { return A | B; }
		static constexpr T CrossProduct(const TVector2& A, const TVector2& B) { return A ^ B; }
		static constexpr T DistSquared(const TVector2& A, const TVector2& B) { return (B - A).SizeSquared(); }
		static T Distance(const TVector2& A, const TVector2& B) { return (B - A).Size(); }
		/** Per component. */
		static constexpr TVector2 Max(const TVector2& A, const TVector2& B) { return TVector2(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y)); }
		static constexpr TVector2 Min(const TVector2& A, const TVector2& B) { return TVector2(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y)); }
		static constexpr TVector2 Clamp(const TVector2& V, const TVector2& MinValue, const TVector2& MaxValue)
		{
			return TVector2(FMath::Clamp(V.X, MinValue.X, MaxValue.X), FMath::Clamp(V.Y, MinValue.Y, MaxValue.Y));
		}

		void Set(T InX, T InY)
		{
			X = InX;
			Y = InY;
		}

		T Size() const { return std::sqrt(SizeSquared()); }
		T Length() const { return Size(); }
		constexpr T SizeSquared() const { return X * X + Y * Y; }
		constexpr T SquaredLength() const { return SizeSquared(); }
		constexpr T GetMax() const { return FMath::Max(X, Y); }
		constexpr T GetMin() const { return FMath::Min(X, Y); }
		constexpr T GetAbsMax() const { return FMath::Max(FMath::Abs(X), FMath::Abs(Y)); }
		constexpr TVector2 GetAbs() const { return TVector2(FMath::Abs(X), FMath::Abs(Y)); }

		constexpr bool IsZero() const { return X == T(0) && Y == T(0); }
		constexpr bool IsNearlyZero(T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return FMath::Abs(X) <= Tolerance && FMath::Abs(Y) <= Tolerance;
		}
		constexpr bool Equals(const TVector2& V, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
		}
		/** True when a component is not a finite number. */
		bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y); }

		/** Of length 1; zero when the squared length is below the tolerance. */
		TVector2 GetSafeNormal(T Tolerance = T(UE_SMALL_NUMBER)) const
		{
			const T Squared = SizeSquared();
			return Squared > Tolerance ? *this / std::sqrt(Squared) : TVector2(0, 0);
		}

		/** Makes this of length 1; leaves it zero and returns false when the squared length is below the tolerance. */
		bool Normalize(T Tolerance = T(UE_SMALL_NUMBER))
		{
			const bool bLongEnough = SizeSquared() > Tolerance;
			*this = GetSafeNormal(Tolerance);
			return bLongEnough;
		}

		/** Turned by an angle in degrees: from X toward Y. */
		TVector2 GetRotated(T AngleDegrees) const
		{
			const T Radians = FMath::DegreesToRadians(AngleDegrees);
			const T Sine = std::sin(Radians);
			const T Cosine = std::cos(Radians);
			return TVector2(Cosine * X - Sine * Y, Sine * X + Cosine * Y);
		}

		constexpr TVector2 ClampAxes(T MinAxis, T MaxAxis) const
		{
			return TVector2(FMath::Clamp(X, MinAxis, MaxAxis), FMath::Clamp(Y, MinAxis, MaxAxis));
		}

		/** To the nearest whole numbers, halves up. */
		TIntPoint<int32> IntPoint() const { return TIntPoint<int32>(FMath::RoundToInt32(X), FMath::RoundToInt32(Y)); }
		TVector2 RoundToVector() const { return TVector2(std::floor(X + T(0.5)), std::floor(Y + T(0.5))); }

		/** "X=1.000 Y=2.000" */
		FString ToString() const;
		/** Reads the form of ToString. Returns false, leaving this alone, when the text is not of that form. */
		bool InitFromString(const FString& Text);
	};

	template <typename T> constexpr TVector2<T> TVector2<T>::ZeroVector(0, 0);
	template <typename T> constexpr TVector2<T> TVector2<T>::UnitVector(1, 1);
	template <typename T> constexpr TVector2<T> TVector2<T>::Unit45Deg(T(UE_INV_SQRT_2), T(UE_INV_SQRT_2));

	template <typename T, typename ScalarType>
		requires std::is_arithmetic_v<ScalarType>
	constexpr TVector2<T> operator*(ScalarType Scale, const TVector2<T>& V)
	{
		return V * Scale;
	}

	template <typename T>
	uint32 GetTypeHash(const TVector2<T>& V)
	{
		// Adding zero makes -0 and 0, which are equal, hash alike.
		const uint64 X = std::bit_cast<uint64>(double(V.X) + 0.0) * 0x9E3779B97F4A7C15ull;
		const uint64 Y = std::bit_cast<uint64>(double(V.Y) + 0.0) * 0xC2B2AE3D27D4EB4Full;
		return uint32((X ^ (Y >> 7)) >> 32);
	}
}

#include "Math/Vector.h"
#include "Math/Vector4.h"

namespace UE::Math
{
	template <typename T>
	constexpr TVector2<T>::TVector2(const TVector<T>& V) : X(V.X), Y(V.Y)
	{
	}

	template <typename T>
	constexpr TVector2<T>::TVector2(const TVector4<T>& V) : X(V.X), Y(V.Y)
	{
	}
}
