#pragma once

#include "Math/Matrix.h"
#include "Math/Transform.h"
#include "Math/Vector.h"

namespace UE::Math
{
	/** An axis-aligned box that knows whether it holds anything yet. */
	template <typename T>
	struct TBox
	{
		using FReal = T;

		TVector<T> Min;
		TVector<T> Max;
		/** 0 while it holds nothing. */
		uint8 IsValid;

		/** Leaves everything unset. */
		TBox() = default;
		/** Holds nothing. */
		constexpr explicit TBox(EForceInit) : Min(0, 0, 0), Max(0, 0, 0), IsValid(0) {}
		constexpr TBox(const TVector<T>& InMin, const TVector<T>& InMax) : Min(InMin), Max(InMax), IsValid(1) {}

		static constexpr TBox BuildAABB(const TVector<T>& Origin, const TVector<T>& Extent) { return TBox(Origin - Extent, Origin + Extent); }

		constexpr bool operator==(const TBox& Other) const
		{
			return (!IsValid && !Other.IsValid) || (IsValid && Other.IsValid && Min == Other.Min && Max == Other.Max);
		}

		/** Grows to hold the point. */
		constexpr TBox& operator+=(const TVector<T>& Point)
		{
			Min = IsValid ? TVector<T>::Min(Min, Point) : Point;
			Max = IsValid ? TVector<T>::Max(Max, Point) : Point;
			IsValid = 1;
			return *this;
		}
		/** Grows to hold the other; an invalid one adds nothing. */
		constexpr TBox& operator+=(const TBox& Other)
		{
			if (Other.IsValid)
			{
				*this += Other.Min;
				*this += Other.Max;
			}
			return *this;
		}
		constexpr TBox operator+(const TVector<T>& Point) const { return TBox(*this) += Point; }
		constexpr TBox operator+(const TBox& Other) const { return TBox(*this) += Other; }

		constexpr TVector<T> GetCenter() const { return (Min + Max) * T(0.5); }
		/** Half the size. */
		constexpr TVector<T> GetExtent() const { return (Max - Min) * T(0.5); }
		constexpr TVector<T> GetSize() const { return Max - Min; }
		constexpr T GetVolume() const { return (Max.X - Min.X) * (Max.Y - Min.Y) * (Max.Z - Min.Z); }
		constexpr TVector<T> GetClosestPointTo(const TVector<T>& Point) const { return TVector<T>::Max(Min, TVector<T>::Min(Max, Point)); }

		constexpr TBox ExpandBy(T Amount) const { return TBox(Min - TVector<T>(Amount, Amount, Amount), Max + TVector<T>(Amount, Amount, Amount)); }
		constexpr TBox ShiftBy(const TVector<T>& Offset) const { return TBox(Min + Offset, Max + Offset); }
		constexpr TBox MoveTo(const TVector<T>& Destination) const { return ShiftBy(Destination - GetCenter()); }

		/** Points on the faces are not inside. */
		constexpr bool IsInside(const TVector<T>& Point) const
		{
			return Point.X > Min.X && Point.X < Max.X && Point.Y > Min.Y && Point.Y < Max.Y && Point.Z > Min.Z && Point.Z < Max.Z;
		}
		/** Points on the faces are inside. */
		constexpr bool IsInsideOrOn(const TVector<T>& Point) const
		{
			return Point.X >= Min.X && Point.X <= Max.X && Point.Y >= Min.Y && Point.Y <= Max.Y && Point.Z >= Min.Z && Point.Z <= Max.Z;
		}
		/** Touching faces count. */
		constexpr bool Intersect(const TBox& Other) const
		{
			return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y && Min.Z <= Other.Max.Z && Other.Min.Z <= Max.Z;
		}
		/** What both hold; invalid when they share nothing. */
		constexpr TBox Overlap(const TBox& Other) const
		{
			return Intersect(Other) ? TBox(TVector<T>::Max(Min, Other.Min), TVector<T>::Min(Max, Other.Max)) : TBox(ForceInit);
		}

		/** The smallest box along the axes around the transformed box; an invalid one stays so. */
		constexpr TBox TransformBy(const TTransform<T>& Transform) const
		{
			return AroundCorners([&](const TVector<T>& Corner) { return Transform.TransformPosition(Corner); });
		}
		constexpr TBox TransformBy(const TMatrix<T>& Matrix) const
		{
			return AroundCorners([&](const TVector<T>& Corner) { return TVector<T>(Matrix.TransformPosition(Corner)); });
		}

		void Init() { *this = TBox(ForceInit); }

		/** "IsValid=true, Min=(X=0.000 Y=0.000 Z=0.000), Max=(X=1.000 Y=1.000 Z=1.000)" */
		FString ToString() const;

	private:
		template <typename FunctionType>
		constexpr TBox AroundCorners(FunctionType Transform) const
		{
			TBox Result(ForceInit);
			for (int32 Corner = 0; IsValid && Corner < 8; ++Corner)
			{
				Result += Transform(TVector<T>((Corner & 1) ? Max.X : Min.X, (Corner & 2) ? Max.Y : Min.Y, (Corner & 4) ? Max.Z : Min.Z));
			}
			return Result;
		}
	};
}
