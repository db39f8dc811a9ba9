#include "Host/ClipState.h"

#include <cmath>

#include "Layout/Clipping.h"

namespace Host
{
	namespace
	{
		/** The line from one corner to the next, with the inside where the expression is positive. */
		FClipQuad::FEdge MakeEdge(FVector2f From, FVector2f To, float Turn)
		{
			const float Dx = To.X - From.X;
			const float Dy = To.Y - From.Y;
			const float Length = std::sqrt(Dx * Dx + Dy * Dy);
			FClipQuad::FEdge Edge;
			if (Length > 0.0f)
			{
				Edge.A = -Dy / Length * Turn;
				Edge.B = Dx / Length * Turn;
			}
			Edge.C = -(Edge.A * From.X + Edge.B * From.Y);
			return Edge;
		}

		FClipQuad MakeQuad(const FVector2f (&Corners)[4])
		{
			const FVector2f Across(Corners[1].X - Corners[0].X, Corners[1].Y - Corners[0].Y);
			const FVector2f Down(Corners[3].X - Corners[0].X, Corners[3].Y - Corners[0].Y);
			// A mirrored quadrilateral runs round the other way.
			const float Turn = Across.X * Down.Y - Across.Y * Down.X < 0.0f ? -1.0f : 1.0f;
			FClipQuad Quad;
			for (int32 Index = 0; Index < 4; ++Index)
			{
				Quad.Edges[Index] = MakeEdge(Corners[Index], Corners[(Index + 1) % 4], Turn);
			}
			return Quad;
		}
	}

	FClipState FClipState::Intersect(const FSlateClippingZone& Zone) const
	{
		const FVector2f Corners[4] = { FVector2f(Zone.TopLeft), FVector2f(Zone.TopRight), FVector2f(Zone.BottomRight), FVector2f(Zone.BottomLeft) };
		float Left = Corners[0].X;
		float Top = Corners[0].Y;
		float Right = Left;
		float Bottom = Top;
		for (const FVector2f& Corner : Corners)
		{
			Left = FMath::Min(Left, Corner.X);
			Top = FMath::Min(Top, Corner.Y);
			Right = FMath::Max(Right, Corner.X);
			Bottom = FMath::Max(Bottom, Corner.Y);
		}

		FClipState Result = *this;
		if (Zone.IsAxisAligned())
		{
			Result.Rect = Rect.Intersect(FPixelRect::Rounded(Left, Top, Right, Bottom));
			return Result;
		}
		Result.Rect = Rect.Intersect(FPixelRect::Around(Left, Top, Right, Bottom));
		const TSharedRef<FClipQuads> NewQuads = MakeShared<FClipQuads>();
		if (Quads.IsValid())
		{
			NewQuads->Quads = Quads->Quads;
		}
		if (NewQuads->Quads.Num() < FClipQuads::MaxQuads)
		{
			NewQuads->Quads.Add(MakeQuad(Corners));
		}
		Result.Quads = NewQuads;
		return Result;
	}
}
