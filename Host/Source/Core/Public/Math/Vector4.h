#pragma once

#include "Math/Color.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/** A vector of four components; FVector4 in double, FVector4f in single precision. */
	template <typename T>
	struct TVector4
	{
		static_assert(std::is_floating_point_v<T>, "A vector is made of float or double");
		using FReal = T;

		T X;
		T Y;
		T Z;
		T W;

		/** A place rather than a direction: (0, 0, 0, 1) unless told otherwise. */
		constexpr explicit TVector4(T InX = 0, T InY = 0, T InZ = 0, T InW = 1) : X(InX), Y(InY), Z(InZ), W(InW) {}
		constexpr TVector4(const TVector<T>& V, T InW = 1) : X(V.X), Y(V.Y), Z(V.Z), W(InW) {}
		constexpr explicit TVector4(TVector2<T> XY, TVector2<T> ZW) : X(XY.X), Y(XY.Y), Z(ZW.X), W(ZW.Y) {}
		constexpr explicit TVector4(EForceInit) : X(0), Y(0), Z(0), W(0) {}
		constexpr TVector4(const FLinearColor& Color) : X(Color.R), Y(Color.G), Z(Color.B), W(Color.A) {}

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TVector4(const TVector4<OtherType>& Other) : X(T(Other.X)), Y(T(Other.Y)), Z(T(Other.Z)), W(T(Other.W)) {}

		static constexpr TVector4 Zero() { return TVector4(0, 0, 0, 0); }
		static constexpr TVector4 One() { return TVector4(1, 1, 1, 1); }

		constexpr bool operator==(const TVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }
		constexpr bool operator!=(const TVector4& V) const { return !(*this == V); }

		constexpr TVector4 operator+(const TVector4& V) const { return TVector4(X + V.X, Y + V.Y, Z + V.Z, W + V.W); }
		constexpr TVector4 operator-(const TVector4& V) const { return TVector4(X - V.X, Y - V.Y, Z - V.Z, W - V.W); }
		constexpr TVector4 operator*(const TVector4& V) const { return TVector4(X * V.X, Y * V.Y, Z * V.Z, W * V.W); }
		constexpr TVector4 operator/(const TVector4& V) const { return TVector4(X / V.X, Y / V.Y, Z / V.Z, W / V.W); }
		constexpr TVector4 operator-() const { return TVector4(-X, -Y, -Z, -W); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector4 operator*(ScalarType Scale) const { return TVector4(X * T(Scale), Y * T(Scale), Z * T(Scale), W * T(Scale)); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector4 operator/(ScalarType Divisor) const { return TVector4(X / T(Divisor), Y / T(Divisor), Z / T(Divisor), W / T(Divisor)); }

		constexpr TVector4& operator+=(const TVector4& V) { return *this = *this + V; }
		constexpr TVector4& operator-=(const TVector4& V) { return *this = *this - V; }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector4& operator*=(ScalarType Scale) { return *this = *this * Scale; }

		T& operator[](int32 Index)
		{
			check(Index >= 0 && Index < 4);
			return Index < 2 ? (Index == 0 ? X : Y) : (Index == 2 ? Z : W);
		}

		T operator[](int32 Index) const
		{
			check(Index >= 0 && Index < 4);
			return Index < 2 ? (Index == 0 ? X : Y) : (Index == 2 ? Z : W);
		}

		T& Component(int32 Index) { return (*this)[Index]; }
		T Component(int32 Index) const { return (*this)[Index]; }

		void Set(T InX, T InY, T InZ, T InW)
		{
			X = InX;
			Y = InY;
			Z = InZ;
			W = InW;
		}

		constexpr bool IsNearlyZero3(T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const { return TVector<T>(X, Y, Z).IsNearlyZero(Tolerance); }
		constexpr bool Equals(const TVector4& V, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance && FMath::Abs(W - V.W) <= Tolerance;
		}

		/** Of all four components. */
		T Size() const { return std::sqrt(SizeSquared()); }
		constexpr T SizeSquared() const { return X * X + Y * Y + Z * Z + W * W; }
		/** Of X, Y and Z. */
		T Size3() const { return std::sqrt(SizeSquared3()); }
		constexpr T SizeSquared3() const { return X * X + Y * Y + Z * Z; }
		/** True when a component is not a finite number. */
		bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W); }

		/** "X=1.000 Y=2.000 Z=3.000 W=4.000" */
		FString ToString() const;
		/** Reads the form of ToString; W may be absent and is then 0. Returns false, leaving this alone, when the text is not of that form. */
		bool InitFromString(const FString& Text);
	};

	/** Of all four components. */
	template <typename T>
	constexpr T Dot4(const TVector4<T>& A, const TVector4<T>& B)
	{
		return A.X * B.X + A.Y * B.Y + A.Z * B.Z + A.W * B.W;
	}

	template <typename T, typename ScalarType>
		requires std::is_arithmetic_v<ScalarType>
	constexpr TVector4<T> operator*(ScalarType Scale, const TVector4<T>& V)
	{
		return V * Scale;
	}

	template <typename T>
	uint32 GetTypeHash(const TVector4<T>& V)
	{
		return GetTypeHash(TVector2<T>(V.X, V.Y)) * 31u + GetTypeHash(TVector2<T>(V.Z, V.W));
	}
}
