#pragma once

#include "Math/UnrealMathUtility.h"
#include "Math/Vector2D.h"

/** The same scale in both directions. */
template <typename T>
class TScale
{
public:
	constexpr TScale() : Scale(1) {}
	constexpr explicit TScale(T InScale) : Scale(InScale) {}
	constexpr T GetValue() const { return Scale; }

private:
	T Scale;
};

/** A scale for each direction. */
template <typename T>
class TScale2
{
public:
	constexpr TScale2() : Scale(1, 1) {}
	constexpr explicit TScale2(T InScale) : Scale(InScale, InScale) {}
	constexpr TScale2(T InX, T InY) : Scale(InX, InY) {}
	constexpr explicit TScale2(const UE::Math::TVector2<T>& InScale) : Scale(InScale) {}
	constexpr const UE::Math::TVector2<T>& GetVector() const { return Scale; }

private:
	UE::Math::TVector2<T> Scale;
};

/** Moves each point along X by its Y times X, and along Y by its X times Y. */
template <typename T>
class TShear2
{
public:
	constexpr TShear2() : Shear(0, 0) {}
	constexpr TShear2(T InX, T InY) : Shear(InX, InY) {}
	constexpr explicit TShear2(const UE::Math::TVector2<T>& InShear) : Shear(InShear) {}

	/** From the angles between the axes and their sheared places, in degrees. */
	static TShear2 FromShearAngles(const UE::Math::TVector2<T>& Angles)
	{
		return TShear2(FMath::Tan(FMath::DegreesToRadians(Angles.X)), FMath::Tan(FMath::DegreesToRadians(Angles.Y)));
	}

	constexpr const UE::Math::TVector2<T>& GetVector() const { return Shear; }

private:
	UE::Math::TVector2<T> Shear;
};

/** A rotation by an angle in radians; with Y pointing down, positive is clockwise. */
template <typename T>
class TQuat2
{
public:
	TQuat2() : Rotation(1, 0) {}
	explicit TQuat2(T Angle) : Rotation(FMath::Cos(Angle), FMath::Sin(Angle)) {}

	/** Cosine and sine. */
	const UE::Math::TVector2<T>& GetVector() const { return Rotation; }

private:
	UE::Math::TVector2<T> Rotation;
};

/** Two by two; points are rows that stand on its left: (x, y) becomes (x*m00 + y*m10, x*m01 + y*m11). */
template <typename T>
class TMatrix2x2
{
public:
	constexpr TMatrix2x2() : M{ { 1, 0 }, { 0, 1 } } {}
	constexpr TMatrix2x2(T m00, T m01, T m10, T m11) : M{ { m00, m01 }, { m10, m11 } } {}
	constexpr explicit TMatrix2x2(T UniformScale) : M{ { UniformScale, 0 }, { 0, UniformScale } } {}
	constexpr explicit TMatrix2x2(const TScale<T>& Scale) : TMatrix2x2(Scale.GetValue()) {}
	constexpr explicit TMatrix2x2(const TScale2<T>& Scale) : M{ { Scale.GetVector().X, 0 }, { 0, Scale.GetVector().Y } } {}
	constexpr explicit TMatrix2x2(const TShear2<T>& Shear) : M{ { 1, Shear.GetVector().Y }, { Shear.GetVector().X, 1 } } {}
	explicit TMatrix2x2(const TQuat2<T>& Rotation)
		: M{ { Rotation.GetVector().X, Rotation.GetVector().Y }, { -Rotation.GetVector().Y, Rotation.GetVector().X } }
	{
	}

	constexpr UE::Math::TVector2<T> TransformPoint(const UE::Math::TVector2<T>& Point) const
	{
		return UE::Math::TVector2<T>(Point.X * M[0][0] + Point.Y * M[1][0], Point.X * M[0][1] + Point.Y * M[1][1]);
	}

	constexpr UE::Math::TVector2<T> TransformVector(const UE::Math::TVector2<T>& Vector) const { return TransformPoint(Vector); }

	/** This one first, then the other. */
	constexpr TMatrix2x2 Concatenate(const TMatrix2x2& Other) const
	{
		return TMatrix2x2(
			M[0][0] * Other.M[0][0] + M[0][1] * Other.M[1][0], M[0][0] * Other.M[0][1] + M[0][1] * Other.M[1][1],
			M[1][0] * Other.M[0][0] + M[1][1] * Other.M[1][0], M[1][0] * Other.M[0][1] + M[1][1] * Other.M[1][1]);
	}

	constexpr T Determinant() const { return M[0][0] * M[1][1] - M[0][1] * M[1][0]; }
	constexpr T InverseDeterminant() const { return T(1) / Determinant(); }

	/** Not finite when the determinant is zero. */
	constexpr TMatrix2x2 Inverse() const
	{
		const T Inv = InverseDeterminant();
		return TMatrix2x2(M[1][1] * Inv, -M[0][1] * Inv, -M[1][0] * Inv, M[0][0] * Inv);
	}

	constexpr void GetMatrix(T& m00, T& m01, T& m10, T& m11) const
	{
		m00 = M[0][0];
		m01 = M[0][1];
		m10 = M[1][0];
		m11 = M[1][1];
	}

	/** Lengths of the images of the unit vectors. */
	TScale2<T> GetScale() const
	{
		return TScale2<T>(FMath::Sqrt(M[0][0] * M[0][0] + M[0][1] * M[0][1]), FMath::Sqrt(M[1][0] * M[1][0] + M[1][1] * M[1][1]));
	}

	constexpr bool IsIdentity() const { return M[0][0] == 1 && M[0][1] == 0 && M[1][0] == 0 && M[1][1] == 1; }

	constexpr bool operator==(const TMatrix2x2& Other) const
	{
		return M[0][0] == Other.M[0][0] && M[0][1] == Other.M[0][1] && M[1][0] == Other.M[1][0] && M[1][1] == Other.M[1][1];
	}

private:
	T M[2][2];
};

/** A matrix, then a translation. */
template <typename T>
class TTransform2
{
public:
	constexpr explicit TTransform2(const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0)) : Translation(InTranslation) {}
	constexpr explicit TTransform2(T UniformScale, const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0))
		: Matrix(UniformScale), Translation(InTranslation)
	{
	}
	constexpr explicit TTransform2(const TScale2<T>& Scale, const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0))
		: Matrix(Scale), Translation(InTranslation)
	{
	}
	constexpr explicit TTransform2(const TShear2<T>& Shear, const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0))
		: Matrix(Shear), Translation(InTranslation)
	{
	}
	explicit TTransform2(const TQuat2<T>& Rotation, const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0))
		: Matrix(Rotation), Translation(InTranslation)
	{
	}
	constexpr explicit TTransform2(const TMatrix2x2<T>& InMatrix, const UE::Math::TVector2<T>& InTranslation = UE::Math::TVector2<T>(0, 0))
		: Matrix(InMatrix), Translation(InTranslation)
	{
	}

	constexpr UE::Math::TVector2<T> TransformPoint(const UE::Math::TVector2<T>& Point) const { return Matrix.TransformPoint(Point) + Translation; }
	/** Without the translation. */
	constexpr UE::Math::TVector2<T> TransformVector(const UE::Math::TVector2<T>& Vector) const { return Matrix.TransformVector(Vector); }

	/** This one first, then the other. */
	constexpr TTransform2 Concatenate(const TTransform2& Other) const
	{
		return TTransform2(Matrix.Concatenate(Other.Matrix), Other.TransformPoint(Translation));
	}

	constexpr TTransform2 Inverse() const
	{
		const TMatrix2x2<T> Inv = Matrix.Inverse();
		return TTransform2(Inv, Inv.TransformPoint(-Translation));
	}

	constexpr const TMatrix2x2<T>& GetMatrix() const { return Matrix; }
	constexpr UE::Math::TVector2<T> GetTranslation() const { return Translation; }
	constexpr void SetTranslation(const UE::Math::TVector2<T>& InTranslation) { Translation = InTranslation; }
	constexpr bool IsIdentity() const { return Matrix.IsIdentity() && Translation.IsZero(); }

	constexpr bool operator==(const TTransform2& Other) const { return Matrix == Other.Matrix && Translation == Other.Translation; }

private:
	TMatrix2x2<T> Matrix;
	UE::Math::TVector2<T> Translation;
};

using FScale2f = TScale2<float>;
using FScale2d = TScale2<double>;
using FScale2D = FScale2f;
using FShear2f = TShear2<float>;
using FShear2d = TShear2<double>;
using FShear2D = FShear2f;
using FQuat2f = TQuat2<float>;
using FQuat2d = TQuat2<double>;
using FQuat2D = FQuat2f;
using FMatrix2x2f = TMatrix2x2<float>;
using FMatrix2x2d = TMatrix2x2<double>;
using FMatrix2x2 = FMatrix2x2f;
using FTransform2f = TTransform2<float>;
using FTransform2d = TTransform2<double>;
using FTransform2D = FTransform2f;

template <typename TransformType, typename T>
constexpr UE::Math::TVector2<T> TransformPoint(const TransformType& Transform, const UE::Math::TVector2<T>& Point)
{
	return Transform.TransformPoint(Point);
}

template <typename TransformType, typename T>
constexpr UE::Math::TVector2<T> TransformVector(const TransformType& Transform, const UE::Math::TVector2<T>& Vector)
{
	return Transform.TransformVector(Vector);
}

template <typename TransformType>
constexpr TransformType Inverse(const TransformType& Transform)
{
	return Transform.Inverse();
}

/** The left one first, then the right one. */
template <typename T>
constexpr TTransform2<T> Concatenate(const TTransform2<T>& First, const TTransform2<T>& Second)
{
	return First.Concatenate(Second);
}
