#include "Host/OutlineTriangles.h"

namespace Host
{
	namespace
	{
		double GetTurn(const FVector2D& A, const FVector2D& B, const FVector2D& C)
		{
			return (B - A) ^ (C - A);
		}

		bool IsWithin(const FVector2D& Point, const FVector2D& A, const FVector2D& B, const FVector2D& C)
		{
			return GetTurn(A, B, Point) >= 0.0 && GetTurn(B, C, Point) >= 0.0 && GetTurn(C, A, Point) >= 0.0;
		}

		/** The points that are left of the polygon. */
		class FRemains
		{
		public:
			explicit FRemains(TConstArrayView<FVector2D> InPoints)
				: Points(InPoints)
			{
				for (int32 Index = 0; Index < Points.Num(); ++Index)
				{
					Left.Add(Index);
				}
			}

			int32 Num() const { return Left.Num(); }
			int32 At(int32 Place) const { return Left[(Place + Left.Num()) % Left.Num()]; }
			void Remove(int32 Place) { Left.RemoveAt(Place); }

			double GetTurnAt(int32 Place) const { return GetTurn(Points[At(Place - 1)], Points[At(Place)], Points[At(Place + 1)]); }

			/** True when the corner sticks out and nothing else of the polygon lies in it. */
			bool CanCut(int32 Place) const
			{
				const FVector2D& A = Points[At(Place - 1)];
				const FVector2D& B = Points[At(Place)];
				const FVector2D& C = Points[At(Place + 1)];
				if (!(GetTurn(A, B, C) > 0.0))
				{
					return false;
				}
				for (int32 Other = 0; Other < Left.Num(); ++Other)
				{
					const FVector2D& Point = Points[Left[Other]];
					// Points may touch: a side that leads there and back again.
					if (Point != A && Point != B && Point != C && GetTurnAt(Other) <= 0.0 && IsWithin(Point, A, B, C))
					{
						return false;
					}
				}
				return true;
			}

		private:
			TConstArrayView<FVector2D> Points;
			TArray<int32> Left;
		};

		/** The corner to cut off next; INDEX_NONE when there is none. */
		int32 FindCorner(const FRemains& Remains)
		{
			for (int32 Place = 0; Place < Remains.Num(); ++Place)
			{
				if (Remains.CanCut(Place))
				{
					return Place;
				}
			}
			return INDEX_NONE;
		}

		/** A corner without a turn, which encloses nothing. */
		int32 FindFlatCorner(const FRemains& Remains)
		{
			for (int32 Place = 0; Place < Remains.Num(); ++Place)
			{
				if (Remains.GetTurnAt(Place) == 0.0)
				{
					return Place;
				}
			}
			return INDEX_NONE;
		}
	}

	double GetSignedArea(TConstArrayView<FVector2D> Points)
	{
		double Twice = 0.0;
		for (int32 Index = 0; Index < Points.Num(); ++Index)
		{
			Twice += Points[Index] ^ Points[(Index + 1) % Points.Num()];
		}
		return 0.5 * Twice;
	}

	bool TriangulateOutline(TConstArrayView<FVector2D> Points, TArray<int32>& OutTriangles)
	{
		OutTriangles.Reset();
		FRemains Remains(Points);
		while (Remains.Num() > 2)
		{
			int32 Corner = FindCorner(Remains);
			if (Corner != INDEX_NONE)
			{
				OutTriangles.Add(Remains.At(Corner - 1));
				OutTriangles.Add(Remains.At(Corner));
				OutTriangles.Add(Remains.At(Corner + 1));
			}
			else if (Corner = FindFlatCorner(Remains); Corner == INDEX_NONE)
			{
				return false;
			}
			Remains.Remove(Corner);
		}
		return OutTriangles.Num() > 0;
	}
}
