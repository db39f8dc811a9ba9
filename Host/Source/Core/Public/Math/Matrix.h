#pragma once

#include "Math/Axis.h"
#include "Math/Plane.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector4.h"

namespace UE::Math
{
	/** Four by four. Vectors are rows on its left: A * B applies A first. Row 3 is the translation. */
	template <typename T>
	struct TMatrix
	{
		using FReal = T;

		T M[4][4];

		static const TMatrix Identity;

		/** Leaves everything unset. */
		TMatrix() = default;
		/** From rows: where the axes go, and the origin. */
		constexpr TMatrix(const TVector<T>& InX, const TVector<T>& InY, const TVector<T>& InZ, const TVector<T>& InW)
			: M{{InX.X, InX.Y, InX.Z, 0}, {InY.X, InY.Y, InY.Z, 0}, {InZ.X, InZ.Y, InZ.Z, 0}, {InW.X, InW.Y, InW.Z, 1}}
		{
		}
		constexpr TMatrix(const TVector4<T>& Row0, const TVector4<T>& Row1, const TVector4<T>& Row2, const TVector4<T>& Row3)
			: M{{Row0.X, Row0.Y, Row0.Z, Row0.W}, {Row1.X, Row1.Y, Row1.Z, Row1.W}, {Row2.X, Row2.Y, Row2.Z, Row2.W}, {Row3.X, Row3.Y, Row3.Z, Row3.W}}
		{
		}

		template <typename OtherType>
			requires(!std::is_same_v<T, OtherType>)
		explicit TMatrix(const TMatrix<OtherType>& Other)
		{
			for (int32 Row = 0; Row < 4; ++Row)
			{
				for (int32 Column = 0; Column < 4; ++Column)
				{
					M[Row][Column] = T(Other.M[Row][Column]);
				}
			}
		}

		constexpr TMatrix operator*(const TMatrix& Other) const
		{
			TMatrix Result = *this;
			for (int32 Row = 0; Row < 4; ++Row)
			{
				for (int32 Column = 0; Column < 4; ++Column)
				{
					Result.M[Row][Column] = M[Row][0] * Other.M[0][Column] + M[Row][1] * Other.M[1][Column]
						+ M[Row][2] * Other.M[2][Column] + M[Row][3] * Other.M[3][Column];
				}
			}
			return Result;
		}
		constexpr TMatrix& operator*=(const TMatrix& Other) { return *this = *this * Other; }

		constexpr bool operator==(const TMatrix& Other) const { return Equals(Other, T(0)); }
		constexpr bool operator!=(const TMatrix& Other) const { return !(*this == Other); }
		constexpr bool Equals(const TMatrix& Other, T Tolerance = T(UE_KINDA_SMALL_NUMBER)) const
		{
			for (int32 Row = 0; Row < 4; ++Row)
			{
				for (int32 Column = 0; Column < 4; ++Column)
				{
					if (!(FMath::Abs(M[Row][Column] - Other.M[Row][Column]) <= Tolerance))
					{
						return false;
					}
				}
			}
			return true;
		}

		constexpr TVector4<T> TransformFVector4(const TVector4<T>& V) const
		{
			return TVector4<T>(
				V.X * M[0][0] + V.Y * M[1][0] + V.Z * M[2][0] + V.W * M[3][0],
				V.X * M[0][1] + V.Y * M[1][1] + V.Z * M[2][1] + V.W * M[3][1],
				V.X * M[0][2] + V.Y * M[1][2] + V.Z * M[2][2] + V.W * M[3][2],
				V.X * M[0][3] + V.Y * M[1][3] + V.Z * M[2][3] + V.W * M[3][3]);
		}
		/** Of a place: with the translation. */
		constexpr TVector4<T> TransformPosition(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V.X, V.Y, V.Z, T(1))); }
		/** Of a direction: without the translation. */
		constexpr TVector4<T> TransformVector(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V.X, V.Y, V.Z, T(0))); }

		constexpr TMatrix GetTransposed() const
		{
			TMatrix Result = *this;
			for (int32 Row = 0; Row < 4; ++Row)
			{
				for (int32 Column = 0; Column < 4; ++Column)
				{
					Result.M[Row][Column] = M[Column][Row];
				}
			}
			return Result;
		}

		T Determinant() const;
		/** The identity when there is no inverse. */
		TMatrix Inverse() const;

		constexpr TVector<T> GetOrigin() const { return TVector<T>(M[3][0], M[3][1], M[3][2]); }
		constexpr void SetOrigin(const TVector<T>& Origin)
		{
			M[3][0] = Origin.X;
			M[3][1] = Origin.Y;
			M[3][2] = Origin.Z;
		}
		/** Where an axis goes, with its scale. */
		constexpr TVector<T> GetScaledAxis(EAxis::Type Axis) const
		{
			check(Axis != EAxis::None);
			const T* const Row = M[Axis - EAxis::X];
			return TVector<T>(Row[0], Row[1], Row[2]);
		}
		/** Where an axis goes, of length 1. */
		TVector<T> GetUnitAxis(EAxis::Type Axis) const { return GetScaledAxis(Axis).GetSafeNormal(); }
		/** Lengths of the axes. */
		TVector<T> GetScaleVector() const
		{
			return TVector<T>(GetScaledAxis(EAxis::X).Size(), GetScaledAxis(EAxis::Y).Size(), GetScaledAxis(EAxis::Z).Size());
		}

		/** Of a matrix that only turns, scales evenly and moves. */
		TQuat<T> ToQuat() const;
		TRotator<T> Rotator() const { return ToQuat().Rotator(); }
	};

	template <typename T>
	constexpr TMatrix<T> TMatrix<T>::Identity(TVector<T>(1, 0, 0), TVector<T>(0, 1, 0), TVector<T>(0, 0, 1), TVector<T>(0, 0, 0));

	/** A translation. */
	template <typename T>
	struct TTranslationMatrix : public TMatrix<T>
	{
		constexpr explicit TTranslationMatrix(const TVector<T>& Delta)
			: TMatrix<T>(TVector<T>(1, 0, 0), TVector<T>(0, 1, 0), TVector<T>(0, 0, 1), Delta)
		{
		}
	};

	/** A scale along the axes. */
	template <typename T>
	struct TScaleMatrix : public TMatrix<T>
	{
		constexpr explicit TScaleMatrix(const TVector<T>& Scale)
			: TMatrix<T>(TVector<T>(Scale.X, 0, 0), TVector<T>(0, Scale.Y, 0), TVector<T>(0, 0, Scale.Z), TVector<T>(0, 0, 0))
		{
		}
		constexpr explicit TScaleMatrix(T Scale) : TScaleMatrix(TVector<T>(Scale, Scale, Scale)) {}
	};

	/** A rotation around a place. */
	template <typename T>
	struct TRotationTranslationMatrix : public TMatrix<T>
	{
		TRotationTranslationMatrix(const TRotator<T>& Rotation, const TVector<T>& Origin) : TRotationTranslationMatrix(TQuat<T>(Rotation), Origin) {}
		TRotationTranslationMatrix(const TQuat<T>& Rotation, const TVector<T>& Origin)
			: TMatrix<T>(Rotation.GetAxisX(), Rotation.GetAxisY(), Rotation.GetAxisZ(), Origin)
		{
		}
	};

	/** A rotation. */
	template <typename T>
	struct TRotationMatrix : public TRotationTranslationMatrix<T>
	{
		explicit TRotationMatrix(const TRotator<T>& Rotation) : TRotationTranslationMatrix<T>(Rotation, TVector<T>(0, 0, 0)) {}
	};
}

using FTranslationMatrix = UE::Math::TTranslationMatrix<double>;
using FScaleMatrix = UE::Math::TScaleMatrix<double>;
using FRotationTranslationMatrix = UE::Math::TRotationTranslationMatrix<double>;
using FRotationMatrix = UE::Math::TRotationMatrix<double>;
