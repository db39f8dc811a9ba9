#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
	/** A plane: the points P whose dot product with the normal (X, Y, Z) is W. */
	template <typename T>
	struct TPlane : public TVector<T>
	{
		using TVector<T>::X;
		using TVector<T>::Y;
		using TVector<T>::Z;

		/** Distance of the plane from the origin along the normal. */
		T W;

		/** Leaves everything unset. */
		TPlane() = default;
		constexpr TPlane(T InX, T InY, T InZ, T InW) : TVector<T>(InX, InY, InZ), W(InW) {}
		/** With a normal of length 1. */
		constexpr TPlane(const TVector<T>& Normal, T InW) : TVector<T>(Normal), W(InW) {}
		/** Through a point, with a normal of length 1. */
		constexpr TPlane(const TVector<T>& Base, const TVector<T>& Normal) : TVector<T>(Normal), W(Base | Normal) {}
		/** Through three points, which go clockwise as seen from where the normal points. */
		TPlane(const TVector<T>& A, const TVector<T>& B, const TVector<T>& C)
			: TVector<T>(((B - A) ^ (C - A)).GetSafeNormal())
		{
			W = A | GetNormal();
		}

		constexpr const TVector<T>& GetNormal() const { return *this; }
		constexpr TVector<T> GetOrigin() const { return GetNormal() * W; }
		/** How far a point lies on the normal's side; negative on the other. */
		constexpr T PlaneDot(const TVector<T>& Point) const { return (GetNormal() | Point) - W; }
		constexpr TPlane Flip() const { return TPlane(-X, -Y, -Z, -W); }
		constexpr bool operator==(const TPlane& Other) const { return GetNormal() == Other.GetNormal() && W == Other.W; }
	};
}
