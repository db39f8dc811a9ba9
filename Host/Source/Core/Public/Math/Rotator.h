#pragma once

#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/Vector.h"
#include "Misc/CoreMiscDefines.h"

class FString;

namespace UE::Math
{
	/**
	 * A rotation by three angles in degrees, applied in the order roll, pitch, yaw. Pitch turns forward up, yaw turns
	 * forward to the right, roll turns right down.
	 */
	template <typename T>
	struct TRotator
	{
		using FReal = T;

		T Pitch;
		T Yaw;
		T Roll;

		static const TRotator ZeroRotator;

		/** Leaves the angles unset. */
		TRotator() = default;
		constexpr TRotator(T InPitch, T InYaw, T InRoll) : Pitch(InPitch), Yaw(InYaw), Roll(InRoll) {}
		constexpr explicit TRotator(T InF) : Pitch(InF), Yaw(InF), Roll(InF) {}
		constexpr explicit TRotator(EForceInit) : Pitch(0), Yaw(0), Roll(0) {}
		explicit TRotator(const TQuat<T>& Quat);

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		constexpr explicit TRotator(const TRotator<OtherType>& Other) : Pitch(T(Other.Pitch)), Yaw(T(Other.Yaw)), Roll(T(Other.Roll)) {}

		/** Angle by angle, as they stand. */
		constexpr bool operator==(const TRotator& R) const { return Pitch == R.Pitch && Yaw == R.Yaw && Roll == R.Roll; }
		constexpr bool operator!=(const TRotator& R) const { return !(*this == R); }
		/** Whether both turn alike: angles a full turn apart are equal. */
		bool Equals(const TRotator& R, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const { return (*this - R).IsNearlyZero(Tolerance); }
		bool IsNearlyZero(T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return FMath::Abs(NormalizeAxis(Pitch)) <= Tolerance && FMath::Abs(NormalizeAxis(Yaw)) <= Tolerance && FMath::Abs(NormalizeAxis(Roll)) <= Tolerance;
		}
		bool IsZero() const { return ClampAxis(Pitch) == T(0) && ClampAxis(Yaw) == T(0) && ClampAxis(Roll) == T(0); }

		/** Angle by angle; this is not one rotation after the other. */
		constexpr TRotator operator+(const TRotator& R) const { return TRotator(Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll); }
		constexpr TRotator operator-(const TRotator& R) const { return TRotator(Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll); }
		constexpr TRotator operator*(T Scale) const { return TRotator(Pitch * Scale, Yaw * Scale, Roll * Scale); }
		constexpr TRotator& operator+=(const TRotator& R) { return *this = *this + R; }
		constexpr TRotator& operator-=(const TRotator& R) { return *this = *this - R; }
		constexpr TRotator& operator*=(T Scale) { return *this = *this * Scale; }
		constexpr TRotator Add(T DeltaPitch, T DeltaYaw, T DeltaRoll) { return *this += TRotator(DeltaPitch, DeltaYaw, DeltaRoll); }

		/** Where forward goes, of length 1. */
		TVector<T> Vector() const;
		TQuat<T> Quaternion() const;
		TVector<T> RotateVector(const TVector<T>& V) const;
		TVector<T> UnrotateVector(const TVector<T>& V) const;
		TRotator GetInverse() const;

		/** Each angle within (-180, 180]. */
		TRotator GetNormalized() const { return TRotator(NormalizeAxis(Pitch), NormalizeAxis(Yaw), NormalizeAxis(Roll)); }
		void Normalize() { *this = GetNormalized(); }
		/** Each angle within [0, 360). */
		TRotator Clamp() const { return TRotator(ClampAxis(Pitch), ClampAxis(Yaw), ClampAxis(Roll)); }

		/** The same angle within [0, 360). */
		static T ClampAxis(T Angle)
		{
			const T Rest = std::fmod(Angle, T(360));
			return Rest < T(0) ? Rest + T(360) : Rest;
		}

		/** The same angle within (-180, 180]. */
		static T NormalizeAxis(T Angle)
		{
			const T Clamped = ClampAxis(Angle);
			return Clamped > T(180) ? Clamped - T(360) : Clamped;
		}

		bool ContainsNaN() const { return !FMath::IsFinite(Pitch) || !FMath::IsFinite(Yaw) || !FMath::IsFinite(Roll); }

		/** "P=1.000000 Y=2.000000 R=3.000000" */
		FString ToString() const;
		/** Reads the form of ToString. Returns false, leaving this alone, when the text is not of that form. */
		bool InitFromString(const FString& Text);
	};

	template <typename T> constexpr TRotator<T> TRotator<T>::ZeroRotator(0, 0, 0);

	template <typename T>
	constexpr TRotator<T> operator*(T Scale, const TRotator<T>& R)
	{
		return R * Scale;
	}
}

#include "Math/Quat.h"

namespace UE::Math
{
	template <typename T>
	TRotator<T>::TRotator(const TQuat<T>& Quat) : TRotator(Quat.Rotator())
	{
	}

	template <typename T>
	TVector<T> TRotator<T>::Vector() const
	{
		T SinPitch;
		T CosPitch;
		T SinYaw;
		T CosYaw;
		FMath::SinCos(&SinPitch, &CosPitch, FMath::DegreesToRadians(Pitch));
		FMath::SinCos(&SinYaw, &CosYaw, FMath::DegreesToRadians(Yaw));
		return TVector<T>(CosPitch * CosYaw, CosPitch * SinYaw, SinPitch);
	}

	template <typename T>
	TQuat<T> TRotator<T>::Quaternion() const
	{
		return TQuat<T>(*this);
	}

	template <typename T>
	TVector<T> TRotator<T>::RotateVector(const TVector<T>& V) const
	{
		return Quaternion().RotateVector(V);
	}

	template <typename T>
	TVector<T> TRotator<T>::UnrotateVector(const TVector<T>& V) const
	{
		return Quaternion().UnrotateVector(V);
	}

	template <typename T>
	TRotator<T> TRotator<T>::GetInverse() const
	{
		return Quaternion().Inverse().Rotator();
	}

	template <typename T>
	TRotator<T> TVector<T>::Rotation() const
	{
		return TRotator<T>(
			FMath::RadiansToDegrees(FMath::Atan2(Z, FMath::Sqrt(X * X + Y * Y))),
			FMath::RadiansToDegrees(FMath::Atan2(Y, X)),
			T(0));
	}
}
