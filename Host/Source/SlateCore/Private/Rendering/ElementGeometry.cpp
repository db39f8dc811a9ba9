#include "Rendering/ElementGeometry.h"

#include <cmath>

#include "Layout/Geometry.h"

namespace Host
{
	namespace
	{
		/** How much of its opacity and of its saturation a disabled element keeps. */
		constexpr float DisabledOpacity = 0.45f;
		constexpr float DisabledSaturation = 0.2f;

		struct FSnappedSpan
		{
			float Start;
			float Length;
		};

		FSnappedSpan Snap(float Start, float Length)
		{
			const float First = std::floor(Start + 0.5f);
			float Last = std::floor(Start + Length + 0.5f);
			if (Last <= First && Length >= 0.5f)
			{
				Last = First + 1.0f;
			}
			return { First, Last - First };
		}

		/** Up to here, single precision holds every whole number. */
		constexpr float LargestPixel = 16777216.0f;

		bool IsWholePixel(float Value)
		{
			return std::fabs(Value) < LargestPixel && Value == std::floor(Value);
		}
	}

	FElementGeometry::FElementGeometry(const FPaintGeometry& PaintGeometry)
	{
		const FSlateRenderTransform& Render = PaintGeometry.GetAccumulatedRenderTransform();
		Render.GetMatrix().GetMatrix(Transform.Xx, Transform.Xy, Transform.Yx, Transform.Yy);
		const FVector2f Translation(Render.GetTranslation());
		Transform.X = Translation.X;
		Transform.Y = Translation.Y;
		Size = FVector2f(PaintGeometry.GetLocalSize());
	}

	bool FElementGeometry::IsVisible() const
	{
		const float Area = (Transform.Xx * Transform.Yy - Transform.Xy * Transform.Yx) * Size.X * Size.Y;
		return std::isfinite(Area) && std::isfinite(Transform.X) && std::isfinite(Transform.Y) && Area != 0.0f && Size.X > 0.0f && Size.Y > 0.0f;
	}

	bool FElementGeometry::IsUniform() const
	{
		return IsUpright() && std::fabs(Transform.Xx - Transform.Yy) <= 1e-4f * Transform.Xx;
	}

	float FElementGeometry::GetScale() const
	{
		return std::sqrt(std::fabs(Transform.Xx * Transform.Yy - Transform.Xy * Transform.Yx));
	}

	float FElementGeometry::Place(FDrawElement& Element, bool bSnap, bool bNeedsUniformScale) const
	{
		if (!(bNeedsUniformScale ? IsUniform() : IsUpright()))
		{
			Element.LocalToPixel = Transform;
			Element.LocalSize = Size;
			Element.Bounds = BoundsOf(Transform, 0.0f, 0.0f, Size.X, Size.Y);
			return 1.0f;
		}
		FSnappedSpan Across = { Transform.X, Size.X * Transform.Xx };
		FSnappedSpan Down = { Transform.Y, Size.Y * Transform.Yy };
		if (bSnap)
		{
			Across = Snap(Across.Start, Across.Length);
			Down = Snap(Down.Start, Down.Length);
		}
		Element.LocalToPixel = FPixelTransform{ 1.0f, 0.0f, 0.0f, 1.0f, Across.Start, Down.Start };
		Element.LocalSize = FVector2f(Across.Length, Down.Length);
		Element.Bounds = FPixelRect::Around(Across.Start, Down.Start, Across.Start + Across.Length, Down.Start + Down.Length);
		Element.Flags |= EDrawElementFlags::Translated;
		if (IsWholePixel(Across.Start) && IsWholePixel(Down.Start) && IsWholePixel(Across.Length) && IsWholePixel(Down.Length))
		{
			Element.Flags |= EDrawElementFlags::PixelAligned;
		}
		return Transform.Xx;
	}

	FPixelRect BoundsOf(const FPixelTransform& Transform, float Left, float Top, float Right, float Bottom)
	{
		const FVector2f Corners[4] = { Transform.Apply(Left, Top), Transform.Apply(Right, Top), Transform.Apply(Left, Bottom), Transform.Apply(Right, Bottom) };
		float MinX = Corners[0].X;
		float MinY = Corners[0].Y;
		float MaxX = MinX;
		float MaxY = MinY;
		for (const FVector2f& Corner : Corners)
		{
			MinX = FMath::Min(MinX, Corner.X);
			MinY = FMath::Min(MinY, Corner.Y);
			MaxX = FMath::Max(MaxX, Corner.X);
			MaxY = FMath::Max(MaxY, Corner.Y);
		}
		// The smooth edge reaches half a pixel beyond the shape.
		return FPixelRect::Around(MinX - 0.5f, MinY - 0.5f, MaxX + 0.5f, MaxY + 0.5f);
	}

	FColor ResolveColour(const FLinearColor& Tint, ESlateDrawEffect Effects)
	{
		if (!EnumHasAnyFlags(Effects, ESlateDrawEffect::DisabledEffect))
		{
			return Tint.ToFColorSRGB();
		}
		const float Grey = 0.2126f * Tint.R + 0.7152f * Tint.G + 0.0722f * Tint.B;
		const auto Fade = [Grey](float Channel) { return Grey + (Channel - Grey) * DisabledSaturation; };
		return FLinearColor(Fade(Tint.R), Fade(Tint.G), Fade(Tint.B), Tint.A * DisabledOpacity).ToFColorSRGB();
	}

	uint16 ToElementLayer(uint32 Layer)
	{
		return static_cast<uint16>(FMath::Min<uint32>(Layer, MAX_uint16));
	}
}
