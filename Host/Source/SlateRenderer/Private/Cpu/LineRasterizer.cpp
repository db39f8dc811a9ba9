#include "Cpu/LineRasterizer.h"

#include <cmath>

#include "Cpu/PixelMath.h"
#include "Cpu/SpanTarget.h"
#include "Shared/LineShape.h"

namespace Host
{
	namespace
	{
		struct FSpan
		{
			int32 Left;
			int32 Right;
		};

		/** The pixels of a row that a segment can touch: a long slanted one touches few of those within its bounds. */
		FSpan FindSpan(const FLineSegment& Segment, float CentreY, const FPixelRect& Bounds)
		{
			const float Slope = std::fabs(Segment.Direction.Y);
			if (Slope < 0.05f)
			{
				return { Bounds.Left, Bounds.Right };
			}
			const float Reach = (Segment.HalfThickness + 1.0f) / Slope;
			const float Middle = Segment.Start.X + (CentreY - Segment.Start.Y) * Segment.Direction.X / Segment.Direction.Y;
			const float Left = FMath::Clamp(Middle - Reach, static_cast<float>(Bounds.Left), static_cast<float>(Bounds.Right));
			const float Right = FMath::Clamp(Middle + Reach + 1.0f, static_cast<float>(Bounds.Left), static_cast<float>(Bounds.Right));
			return { static_cast<int32>(std::floor(Left)), static_cast<int32>(std::floor(Right)) };
		}

		uint8 ToMask(float Coverage, bool bAntialias)
		{
			if (bAntialias)
			{
				return static_cast<uint8>(PixelMath::ToShare(Coverage));
			}
			return Coverage >= 0.5f ? 255 : 0;
		}
	}

	void RasterizeLines(const FDrawElement& Element, FSpanTarget& Target)
	{
		const FLinePoints& Lines = *Element.GetLines();
		const uint32 Colour = PixelMath::Premultiply(Element.Colour);
		TArray<uint8> Mask;
		Mask.SetNumUninitialized(Target.GetArea().Width());
		for (int32 Index = 0; Index + 1 < Lines.Points.Num(); ++Index)
		{
			const FLineSegment Segment = MakeSegment(Lines, Index);
			const FPixelRect Bounds = BoundsOfSegment(Segment).Intersect(Target.GetArea());
			for (int32 Y = Bounds.Top; Y < Bounds.Bottom && !Bounds.IsEmpty(); ++Y)
			{
				const float CentreY = static_cast<float>(Y) + 0.5f;
				const FSpan Span = FindSpan(Segment, CentreY, Bounds);
				for (int32 X = Span.Left; X < Span.Right; ++X)
				{
					Mask[X - Span.Left] = ToMask(Segment.GetCoverage(static_cast<float>(X) + 0.5f, CentreY), Lines.bAntialias);
				}
				if (Span.Left < Span.Right)
				{
					Target.FillMask(Y, Span.Left, Mask.GetData(), Span.Right - Span.Left, Colour);
				}
			}
		}
	}
}
