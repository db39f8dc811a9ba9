#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/** A vector in space: X forward, Y right, Z up; FVector in double, FVector3f in single precision. */
	template <typename T>
	struct TVector
	{
		static_assert(std::is_floating_point_v<T>, "A vector is made of float or double");
		using FReal = T;

		T X;
		T Y;
		T Z;

		static const TVector ZeroVector;
		static const TVector OneVector;
		static const TVector UpVector;
		static const TVector DownVector;
		static const TVector ForwardVector;
		static const TVector BackwardVector;
		static const TVector RightVector;
		static const TVector LeftVector;

		/** Leaves the components unset. */
		TVector() = default;
		constexpr TVector(T InX, T InY, T InZ) : X(InX), Y(InY), Z(InZ) {}
		constexpr explicit TVector(T InF) : X(InF), Y(InF), Z(InF) {}
		constexpr explicit TVector(EForceInit) : X(0), Y(0), Z(0) {}
		constexpr explicit TVector(const TVector2<T> V, T InZ) : X(V.X), Y(V.Y), Z(InZ) {}

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TVector(const TVector<OtherType>& Other) : X(T(Other.X)), Y(T(Other.Y)), Z(T(Other.Z)) {}

		/** Drops W. */
		constexpr TVector(const TVector4<T>& V);

		static constexpr TVector Zero() { return TVector(0, 0, 0); }
		static constexpr TVector One() { return TVector(1, 1, 1); }
		static constexpr TVector UnitX() { return TVector(1, 0, 0); }
		static constexpr TVector UnitY() { return TVector(0, 1, 0); }
		static constexpr TVector UnitZ() { return TVector(0, 0, 1); }

		constexpr bool operator==(const TVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }
		constexpr bool operator!=(const TVector& V) const { return !(*this == V); }

		constexpr TVector operator+(const TVector& V) const { return TVector(X + V.X, Y + V.Y, Z + V.Z); }
		constexpr TVector operator-(const TVector& V) const { return TVector(X - V.X, Y - V.Y, Z - V.Z); }
		constexpr TVector operator*(const TVector& V) const { return TVector(X * V.X, Y * V.Y, Z * V.Z); }
		constexpr TVector operator/(const TVector& V) const { return TVector(X / V.X, Y / V.Y, Z / V.Z); }
		constexpr TVector operator-() const { return TVector(-X, -Y, -Z); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector operator*(ScalarType Scale) const { return TVector(X * T(Scale), Y * T(Scale), Z * T(Scale)); }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector operator/(ScalarType Divisor) const { return TVector(X / T(Divisor), Y / T(Divisor), Z / T(Divisor)); }

		constexpr TVector& operator+=(const TVector& V) { return *this = *this + V; }
		constexpr TVector& operator-=(const TVector& V) { return *this = *this - V; }
		constexpr TVector& operator*=(const TVector& V) { return *this = *this * V; }
		constexpr TVector& operator/=(const TVector& V) { return *this = *this / V; }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector& operator*=(ScalarType Scale) { return *this = *this * Scale; }

		template <typename ScalarType>
			requires std::is_arithmetic_v<ScalarType>
		constexpr TVector& operator/=(ScalarType Divisor) { return *this = *this / Divisor; }

		/** Dot product. */
		constexpr T operator|(const TVector& V) const { return X * V.X + Y * V.Y + Z * V.Z; }
		/** Cross product. */
		constexpr TVector operator^(const TVector& V) const
		{
			return TVector(Y * V.Z - Z * V.Y, Z * V.X - X * V.Z, X * V.Y - Y * V.X);
		}

		T& operator[](int32 Index)
		{
			check(Index >= 0 && Index < 3);
			return Index == 0 ? X : (Index == 1 ? Y : Z);
		}

		T operator[](int32 Index) const
		{
			check(Index >= 0 && Index < 3);
			return Index == 0 ? X : (Index == 1 ? Y : Z);
		}

		T& Component(int32 Index) { return (*this)[Index]; }
		T Component(int32 Index) const { return (*this)[Index]; }

		constexpr T Dot(const TVector& V) const { return *this | V; }
		constexpr TVector Cross(const TVector& V) const { return *this ^ V; }
		static constexpr T DotProduct(const TVector& A, const TVector& B) { return A | B; }
		static constexpr TVector CrossProduct(const TVector& A, const TVector& B) { return A ^ B; }
		static constexpr T DistSquared(const TVector& A, const TVector& B) { return (B - A).SizeSquared(); }
		static T Dist(const TVector& A, const TVector& B) { return (B - A).Size(); }
		static T Distance(const TVector& A, const TVector& B) { return Dist(A, B); }
		/** Without Z. */
		static T Dist2D(const TVector& A, const TVector& B) { return (B - A).Size2D(); }
		/** Per component. */
		static constexpr TVector Max(const TVector& A, const TVector& B) { return TVector(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y), FMath::Max(A.Z, B.Z)); }
		static constexpr TVector Min(const TVector& A, const TVector& B) { return TVector(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y), FMath::Min(A.Z, B.Z)); }

		void Set(T InX, T InY, T InZ)
		{
			X = InX;
			Y = InY;
			Z = InZ;
		}

		T Size() const { return std::sqrt(SizeSquared()); }
		T Length() const { return Size(); }
		constexpr T SizeSquared() const { return X * X + Y * Y + Z * Z; }
		constexpr T SquaredLength() const { return SizeSquared(); }
		T Size2D() const { return std::sqrt(X * X + Y * Y); }
		constexpr T SizeSquared2D() const { return X * X + Y * Y; }
		constexpr T GetMax() const { return FMath::Max3(X, Y, Z); }
		constexpr T GetMin() const { return FMath::Min3(X, Y, Z); }
		constexpr T GetAbsMax() const { return GetAbs().GetMax(); }
		constexpr TVector GetAbs() const { return TVector(FMath::Abs(X), FMath::Abs(Y), FMath::Abs(Z)); }

		constexpr bool IsZero() const { return X == T(0) && Y == T(0) && Z == T(0); }
		constexpr bool IsNearlyZero(T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const { return GetAbsMax() <= Tolerance; }
		constexpr bool Equals(const TVector& V, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const { return (*this - V).IsNearlyZero(Tolerance); }
		/** True when a component is not a finite number. */
		bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z); }

		/** Of length 1; the result given for that when the squared length is below the tolerance. */
		TVector GetSafeNormal(T Tolerance = T(UE_SMALL_NUMBER), const TVector& ResultIfZero = TVector(0, 0, 0)) const
		{
			const T Squared = SizeSquared();
			return Squared > Tolerance ? *this / std::sqrt(Squared) : ResultIfZero;
		}

		/** Makes this of length 1; leaves it as it is and returns false when the squared length is below the tolerance. */
		bool Normalize(T Tolerance = T(UE_SMALL_NUMBER))
		{
			const T Squared = SizeSquared();
			if (Squared <= Tolerance)
			{
				return false;
			}
			*this /= std::sqrt(Squared);
			return true;
		}

		/** The pitch and yaw that turn forward to this direction. Defined in "Math/Rotator.h". */
		TRotator<T> Rotation() const;

		/** "X=1.000 Y=2.000 Z=3.000" */
		FString ToString() const;
		/** Reads the form of ToString. Returns false, leaving this alone, when the text is not of that form. */
		bool InitFromString(const FString& Text);
	};

	template <typename T> constexpr TVector<T> TVector<T>::ZeroVector(0, 0, 0);
	template <typename T> constexpr TVector<T> TVector<T>::OneVector(1, 1, 1);
	template <typename T> constexpr TVector<T> TVector<T>::UpVector(0, 0, 1);
	template <typename T> constexpr TVector<T> TVector<T>::DownVector(0, 0, -1);
	template <typename T> constexpr TVector<T> TVector<T>::ForwardVector(1, 0, 0);
	template <typename T> constexpr TVector<T> TVector<T>::BackwardVector(-1, 0, 0);
	template <typename T> constexpr TVector<T> TVector<T>::RightVector(0, 1, 0);
	template <typename T> constexpr TVector<T> TVector<T>::LeftVector(0, -1, 0);

	template <typename T, typename ScalarType>
		requires std::is_arithmetic_v<ScalarType>
	constexpr TVector<T> operator*(ScalarType Scale, const TVector<T>& V)
	{
		return V * Scale;
	}

	template <typename T>
	uint32 GetTypeHash(const TVector<T>& V)
	{
		// Adding zero makes -0 and 0, which are equal, hash alike.
		const uint64 X = std::bit_cast<uint64>(double(V.X) + 0.0) * 0x9E3779B97F4A7C15ull;
		const uint64 Y = std::bit_cast<uint64>(double(V.Y) + 0.0) * 0xC2B2AE3D27D4EB4Full;
		const uint64 Z = std::bit_cast<uint64>(double(V.Z) + 0.0) * 0x165667B19E3779F9ull;
		return uint32((X ^ (Y >> 7) ^ (Z >> 13)) >> 32);
	}
}

#include "Math/Vector4.h"

namespace UE::Math
{
	template <typename T>
	constexpr TVector<T>::TVector(const TVector4<T>& V) : X(V.X), Y(V.Y), Z(V.Z)
	{
	}
}
