#pragma once

#include "Math/Matrix.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"

namespace UE::Math
{
	/** A scale along the axes, then a rotation, then a translation. A * B applies A first. */
	template <typename T>
	struct TTransform
	{
		using FReal = T;

		static const TTransform Identity;

		/** The identity. */
		constexpr TTransform() : Rotation(0, 0, 0, 1), Translation(0, 0, 0), Scale3D(1, 1, 1) {}
		constexpr explicit TTransform(const TVector<T>& InTranslation) : Rotation(0, 0, 0, 1), Translation(InTranslation), Scale3D(1, 1, 1) {}
		constexpr explicit TTransform(const TQuat<T>& InRotation) : Rotation(InRotation), Translation(0, 0, 0), Scale3D(1, 1, 1) {}
		explicit TTransform(const TRotator<T>& InRotation) : Rotation(InRotation), Translation(0, 0, 0), Scale3D(1, 1, 1) {}
		constexpr TTransform(const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1, 1, 1))
			: Rotation(InRotation), Translation(InTranslation), Scale3D(InScale3D)
		{
		}
		TTransform(const TRotator<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1, 1, 1))
			: Rotation(InRotation), Translation(InTranslation), Scale3D(InScale3D)
		{
		}

		constexpr const TQuat<T>& GetRotation() const { return Rotation; }
		constexpr const TVector<T>& GetTranslation() const { return Translation; }
		constexpr const TVector<T>& GetLocation() const { return Translation; }
		constexpr const TVector<T>& GetScale3D() const { return Scale3D; }
		TRotator<T> Rotator() const { return Rotation.Rotator(); }
		constexpr void SetRotation(const TQuat<T>& NewRotation) { Rotation = NewRotation; }
		constexpr void SetTranslation(const TVector<T>& NewTranslation) { Translation = NewTranslation; }
		constexpr void SetLocation(const TVector<T>& NewLocation) { Translation = NewLocation; }
		constexpr void SetScale3D(const TVector<T>& NewScale3D) { Scale3D = NewScale3D; }
		constexpr void AddToTranslation(const TVector<T>& Delta) { Translation += Delta; }
		/** Where an axis goes, of length 1. */
		constexpr TVector<T> GetUnitAxis(EAxis::Type Axis) const
		{
			return Rotation.RotateVector(TVector<T>(Axis == EAxis::X ? 1 : 0, Axis == EAxis::Y ? 1 : 0, Axis == EAxis::Z ? 1 : 0));
		}

		/** Of a place. */
		constexpr TVector<T> TransformPosition(const TVector<T>& V) const { return Rotation.RotateVector(Scale3D * V) + Translation; }
		constexpr TVector<T> TransformPositionNoScale(const TVector<T>& V) const { return Rotation.RotateVector(V) + Translation; }
		/** Of a direction: without the translation. */
		constexpr TVector<T> TransformVector(const TVector<T>& V) const { return Rotation.RotateVector(Scale3D * V); }
		constexpr TVector<T> TransformVectorNoScale(const TVector<T>& V) const { return Rotation.RotateVector(V); }
		constexpr TQuat<T> TransformRotation(const TQuat<T>& Q) const { return Rotation * Q; }
		constexpr TVector<T> InverseTransformPosition(const TVector<T>& V) const { return Rotation.UnrotateVector(V - Translation) * GetSafeScaleReciprocal(Scale3D); }
		constexpr TVector<T> InverseTransformPositionNoScale(const TVector<T>& V) const { return Rotation.UnrotateVector(V - Translation); }
		constexpr TVector<T> InverseTransformVector(const TVector<T>& V) const { return Rotation.UnrotateVector(V) * GetSafeScaleReciprocal(Scale3D); }
		constexpr TQuat<T> InverseTransformRotation(const TQuat<T>& Q) const { return Rotation.Inverse() * Q; }

		/** Exact unless the second one scales unevenly what the first one has turned. */
		constexpr TTransform operator*(const TTransform& Other) const
		{
			return TTransform(Other.Rotation * Rotation, Other.Rotation.RotateVector(Other.Scale3D * Translation) + Other.Translation, Scale3D * Other.Scale3D);
		}
		constexpr TTransform& operator*=(const TTransform& Other) { return *this = *this * Other; }

		/** Exact unless this turns and scales unevenly. */
		constexpr TTransform Inverse() const
		{
			const TQuat<T> InverseRotation = Rotation.Inverse();
			const TVector<T> InverseScale = GetSafeScaleReciprocal(Scale3D);
			return TTransform(InverseRotation, InverseRotation.RotateVector(InverseScale * -Translation), InverseScale);
		}

		/** This as seen from the other: what, applied before the other, gives this. */
		constexpr TTransform GetRelativeTransform(const TTransform& Other) const
		{
			const TQuat<T> InverseRotation = Other.Rotation.Inverse();
			const TVector<T> InverseScale = GetSafeScaleReciprocal(Other.Scale3D);
			return TTransform(InverseRotation * Rotation, InverseRotation.RotateVector(Translation - Other.Translation) * InverseScale, Scale3D * InverseScale);
		}

		TMatrix<T> ToMatrixWithScale() const
		{
			return TMatrix<T>(Rotation.GetAxisX() * Scale3D.X, Rotation.GetAxisY() * Scale3D.Y, Rotation.GetAxisZ() * Scale3D.Z, Translation);
		}
		TMatrix<T> ToMatrixNoScale() const
		{
			return TMatrix<T>(Rotation.GetAxisX(), Rotation.GetAxisY(), Rotation.GetAxisZ(), Translation);
		}

		constexpr bool Equals(const TTransform& Other, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance) && Scale3D.Equals(Other.Scale3D, Tolerance);
		}
		/** Component by component, as they stand. */
		constexpr bool operator==(const TTransform& Other) const { return Rotation == Other.Rotation && Translation == Other.Translation && Scale3D == Other.Scale3D; }

		bool ContainsNaN() const { return Rotation.ContainsNaN() || Translation.ContainsNaN() || Scale3D.ContainsNaN(); }

		/** 1 over each component; 0 for 0. */
		static constexpr TVector<T> GetSafeScaleReciprocal(const TVector<T>& Scale)
		{
			const auto Reciprocal = [](T Value) { return FMath::Abs(Value) <= T(UE_SMALL_NUMBER) ? T(0) : T(1) / Value; };
			return TVector<T>(Reciprocal(Scale.X), Reciprocal(Scale.Y), Reciprocal(Scale.Z));
		}

	private:
		TQuat<T> Rotation;
		TVector<T> Translation;
		TVector<T> Scale3D;
	};

	template <typename T> constexpr TTransform<T> TTransform<T>::Identity{};
}
