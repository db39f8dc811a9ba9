#pragma once

#include "Math/Axis.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/** A rotation as a unit quaternion. A * B turns by B first, then by A. */
	template <typename T>
	struct TQuat
	{
		using FReal = T;

		T X;
		T Y;
		T Z;
		T W;

		static const TQuat Identity;

		/** Leaves the components unset. */
		TQuat() = default;
		constexpr TQuat(T InX, T InY, T InZ, T InW) : X(InX), Y(InY), Z(InZ), W(InW) {}
		/** All components 0, or with ForceInit too: this is no rotation yet. */
		constexpr explicit TQuat(EForceInit) : X(0), Y(0), Z(0), W(0) {}
		/** By an angle in radians around an axis of length 1. */
		TQuat(const TVector<T>& Axis, T AngleRadians)
		{
			T Sine;
			FMath::SinCos(&Sine, &W, T(0.5) * AngleRadians);
			X = Sine * Axis.X;
			Y = Sine * Axis.Y;
			Z = Sine * Axis.Z;
		}
		explicit TQuat(const TRotator<T>& Rotator);

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TQuat(const TQuat<OtherType>& Other) : X(T(Other.X)), Y(T(Other.Y)), Z(T(Other.Z)), W(T(Other.W)) {}

		constexpr bool operator==(const TQuat& Q) const { return X == Q.X && Y == Q.Y && Z == Q.Z && W == Q.W; }
		constexpr bool operator!=(const TQuat& Q) const { return !(*this == Q); }
		/** Whether both turn alike; a quaternion and its negative do. */
		constexpr bool Equals(const TQuat& Q, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return IsNear(Q, Tolerance) || IsNear(Q * T(-1), Tolerance);
		}
		bool IsIdentity(T Tolerance = T(UE_SMALL_NUMBER)) const { return Equals(Identity, Tolerance); }

		constexpr TQuat operator*(const TQuat& Q) const
		{
			return TQuat(
				W * Q.X + X * Q.W + Y * Q.Z - Z * Q.Y,
				W * Q.Y - X * Q.Z + Y * Q.W + Z * Q.X,
				W * Q.Z + X * Q.Y - Y * Q.X + Z * Q.W,
				W * Q.W - X * Q.X - Y * Q.Y - Z * Q.Z);
		}
		constexpr TQuat& operator*=(const TQuat& Q) { return *this = *this * Q; }
		constexpr TQuat operator*(T Scale) const { return TQuat(X * Scale, Y * Scale, Z * Scale, W * Scale); }
		constexpr TQuat operator+(const TQuat& Q) const { return TQuat(X + Q.X, Y + Q.Y, Z + Q.Z, W + Q.W); }
		constexpr TQuat operator-(const TQuat& Q) const { return TQuat(X - Q.X, Y - Q.Y, Z - Q.Z, W - Q.W); }
		/** Dot product. */
		constexpr T operator|(const TQuat& Q) const { return X * Q.X + Y * Q.Y + Z * Q.Z + W * Q.W; }

		constexpr TVector<T> RotateVector(const TVector<T>& V) const
		{
			const TVector<T> Axis(X, Y, Z);
			const TVector<T> Twice = (Axis ^ V) * T(2);
			return V + Twice * W + (Axis ^ Twice);
		}
		constexpr TVector<T> UnrotateVector(const TVector<T>& V) const { return Inverse().RotateVector(V); }
		constexpr TVector<T> operator*(const TVector<T>& V) const { return RotateVector(V); }

		/** Turns the other way; of a quaternion of length 1. */
		constexpr TQuat Inverse() const { return TQuat(-X, -Y, -Z, W); }
		T Size() const { return std::sqrt(*this | *this); }
		constexpr T SizeSquared() const { return *this | *this; }
		bool IsNormalized() const { return FMath::Abs(T(1) - SizeSquared()) < T(0.01); }
		/** Makes this of length 1; the identity when it is too short. */
		void Normalize(T Tolerance = T(UE_SMALL_NUMBER))
		{
			const T Squared = SizeSquared();
			*this = Squared >= Tolerance ? *this * (T(1) / std::sqrt(Squared)) : TQuat(0, 0, 0, 1);
		}
		TQuat GetNormalized(T Tolerance = T(UE_SMALL_NUMBER)) const
		{
			TQuat Result = *this;
			Result.Normalize(Tolerance);
			return Result;
		}

		/** In radians, within [0, 2 Pi]. */
		T GetAngle() const { return T(2) * FMath::Acos(W); }
		/** Of length 1; X where there is no rotation. */
		TVector<T> GetRotationAxis() const { return TVector<T>(X, Y, Z).GetSafeNormal(T(UE_SMALL_NUMBER), TVector<T>(1, 0, 0)); }
		/** The smallest turn between both, in radians. */
		T AngularDistance(const TQuat& Q) const
		{
			const T Product = *this | Q;
			return FMath::Acos(T(2) * Product * Product - T(1));
		}

		constexpr TVector<T> GetAxisX() const { return RotateVector(TVector<T>(1, 0, 0)); }
		constexpr TVector<T> GetAxisY() const { return RotateVector(TVector<T>(0, 1, 0)); }
		constexpr TVector<T> GetAxisZ() const { return RotateVector(TVector<T>(0, 0, 1)); }
		constexpr TVector<T> GetForwardVector() const { return GetAxisX(); }
		constexpr TVector<T> GetRightVector() const { return GetAxisY(); }
		constexpr TVector<T> GetUpVector() const { return GetAxisZ(); }
		/** Where forward goes. */
		constexpr TVector<T> Vector() const { return GetAxisX(); }

		/** Straight up or down, where yaw and roll turn around the same axis, all of it is in yaw. */
		TRotator<T> Rotator() const;

		/** From one to the other at an even speed, the shorter way. */
		static TQuat Slerp(const TQuat& From, const TQuat& To, T Slerp);
		/** The smallest turn that brings the direction of A to that of B. */
		static TQuat FindBetweenVectors(const TVector<T>& A, const TVector<T>& B);

		bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W); }

		/** "X=0.000000000 Y=0.000000000 Z=0.000000000 W=1.000000000" */
		FString ToString() const;
		/** Reads the form of ToString. Returns false, leaving this alone, when the text is not of that form. */
		bool InitFromString(const FString& Text);

	private:
		constexpr bool IsNear(const TQuat& Q, T Tolerance) const
		{
			return FMath::Abs(X - Q.X) <= Tolerance && FMath::Abs(Y - Q.Y) <= Tolerance && FMath::Abs(Z - Q.Z) <= Tolerance && FMath::Abs(W - Q.W) <= Tolerance;
		}
	};

	template <typename T> constexpr TQuat<T> TQuat<T>::Identity(0, 0, 0, 1);
}

#include "Math/Rotator.h"
