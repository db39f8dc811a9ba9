#include "Rendering/DrawElementTypes.h"

#include "Host/BrushTextures.h"
#include "Host/Texture.h"
#include "Layout/PaintGeometry.h"
#include "Rendering/DrawElements.h"
#include "Rendering/ElementGeometry.h"
#include "Styling/LineDrawings.h"
#include "Styling/SlateBrush.h"

using namespace Host;

namespace
{
	/** What all elements of one brush share. */
	struct FBoxArguments
	{
		FSlateWindowElementList& Elements;
		FElementGeometry Geometry;
		const FSlateBrush& Brush;
		const FLinearColor& Tint;
		ESlateDrawEffect Effects;
		uint32 Layer;
		TSharedPtr<const FTexture> Texture;

		FDrawElement MakeElement(EDrawElementKind Kind) const
		{
			FDrawElement Element;
			Element.Kind = Kind;
			Element.Layer = ToElementLayer(Layer);
			Element.Colour = ResolveColour(Tint, Effects);
			if (Texture.IsValid())
			{
				Element.Payload = Texture;
			}
			if (EnumHasAnyFlags(Effects, ESlateDrawEffect::IgnoreTextureAlpha))
			{
				Element.Flags |= EDrawElementFlags::IgnoreTextureAlpha;
			}
			return Element;
		}

		bool ShouldSnap() const
		{
			return !EnumHasAnyFlags(Effects, ESlateDrawEffect::NoPixelSnapping);
		}
	};

	float ClampRadius(double Radius, float Scale, float Limit)
	{
		return FMath::Clamp(static_cast<float>(Radius) * Scale, 0.0f, Limit);
	}

	FCornerRadii MakeRadii(const FSlateBrushOutlineSettings& Outline, float Scale, FVector2f LocalSize)
	{
		const float Limit = 0.5f * FMath::Min(LocalSize.X, LocalSize.Y);
		if (Outline.RoundingType == ESlateBrushRoundingType::HalfHeightRadius)
		{
			return { Limit, Limit, Limit, Limit };
		}
		const FVector4& Radii = Outline.CornerRadii;
		return { ClampRadius(Radii.X, Scale, Limit), ClampRadius(Radii.Y, Scale, Limit), ClampRadius(Radii.Z, Scale, Limit), ClampRadius(Radii.W, Scale, Limit) };
	}

	/**
	 * Outlines are whole pixels wide where edges lie on pixels, so that all four sides look the same; the thinnest is one
	 * pixel.
	 */
	float MakeOutlineWidth(float Width, float Scale, const FDrawElement& Element)
	{
		if (Width <= 0.0f)
		{
			return 0.0f;
		}
		const float Scaled = Width * Scale;
		return Element.HasFlag(EDrawElementFlags::PixelAligned) ? FMath::Max(FMath::FloorToFloat(Scaled + 0.5f), 1.0f) : Scaled;
	}

	bool IsInvisible(const FDrawElement& Element)
	{
		return Element.Colour.A == 0 && (Element.OutlineWidth <= 0.0f || Element.OutlineColour.A == 0);
	}

	void AppendRoundedBox(const FBoxArguments& Arguments)
	{
		const FSlateBrushOutlineSettings& Outline = Arguments.Brush.OutlineSettings;
		FDrawElement Element = Arguments.MakeElement(EDrawElementKind::Box);
		const float Scale = Arguments.Geometry.Place(Element, Arguments.ShouldSnap(), true);
		Element.Radii = MakeRadii(Outline, Scale, Element.LocalSize);
		Element.OutlineWidth = MakeOutlineWidth(Outline.Width, Scale, Element);
		if (Element.OutlineWidth > 0.0f)
		{
			FLinearColor Colour = Outline.Color.GetSpecifiedColor();
			if (Outline.bUseBrushTransparency)
			{
				Colour.A = Arguments.Tint.A;
			}
			Element.OutlineColour = ResolveColour(Colour, Arguments.Effects);
		}
		if (!IsInvisible(Element))
		{
			Arguments.Elements.Append(MoveTemp(Element));
		}
	}

	void AppendPlainBox(const FBoxArguments& Arguments)
	{
		FDrawElement Element = Arguments.MakeElement(EDrawElementKind::Box);
		Arguments.Geometry.Place(Element, Arguments.ShouldSnap(), false);
		if (Element.Colour.A > 0)
		{
			Arguments.Elements.Append(MoveTemp(Element));
		}
	}

	bool Tiles(const FSlateBrush& Brush, ESlateBrushTileType::Type Direction)
	{
		return Brush.Tiling == Direction || Brush.Tiling == ESlateBrushTileType::Both;
	}

	bool Mirrors(const FSlateBrush& Brush, ESlateBrushMirrorType::Type Direction)
	{
		return Brush.Mirroring == Direction || Brush.Mirroring == ESlateBrushMirrorType::Both;
	}

	/** The part of the picture that is shown: repeated once for each image size when tiling, turned round when mirrored. */
	FTextureArea MakeTextureArea(const FSlateBrush& Brush, FVector2f Size)
	{
		FTextureArea Area;
		const FVector2f ImageSize(Brush.GetImageSize());
		if (Tiles(Brush, ESlateBrushTileType::Horizontal) && ImageSize.X > 0.0f)
		{
			Area.U1 = Size.X / ImageSize.X;
		}
		if (Tiles(Brush, ESlateBrushTileType::Vertical) && ImageSize.Y > 0.0f)
		{
			Area.V1 = Size.Y / ImageSize.Y;
		}
		if (Mirrors(Brush, ESlateBrushMirrorType::Horizontal))
		{
			Swap(Area.U0, Area.U1);
		}
		if (Mirrors(Brush, ESlateBrushMirrorType::Vertical))
		{
			Swap(Area.V0, Area.V1);
		}
		return Area;
	}

	void AppendImage(const FBoxArguments& Arguments)
	{
		FDrawElement Element = Arguments.MakeElement(EDrawElementKind::Image);
		Arguments.Geometry.Place(Element, Arguments.ShouldSnap(), false);
		Element.TextureArea = MakeTextureArea(Arguments.Brush, Arguments.Geometry.Size);
		if (Arguments.Brush.Tiling != ESlateBrushTileType::NoTile)
		{
			Element.Flags |= EDrawElementFlags::Tiled;
		}
		if (Element.Colour.A > 0)
		{
			Arguments.Elements.Append(MoveTemp(Element));
		}
	}

	/** Two opposite margins, scaled down alike when they would overlap; whole pixels on a pixel grid. */
	void FitMargins(float& First, float& Last, float Length, bool bWhole)
	{
		const float Sum = First + Last;
		if (Sum > Length && Sum > 0.0f)
		{
			First *= Length / Sum;
			Last = Length - First;
		}
		if (bWhole)
		{
			First = FMath::FloorToFloat(First + 0.5f);
			Last = FMath::Min(FMath::FloorToFloat(Last + 0.5f), Length - First);
		}
	}

	void AppendSliced(const FBoxArguments& Arguments, bool bFrame)
	{
		FDrawElement Element = Arguments.MakeElement(EDrawElementKind::Sliced);
		const float Scale = Arguments.Geometry.Place(Element, Arguments.ShouldSnap(), true);
		const FMargin& Margin = Arguments.Brush.Margin;
		const FIntPoint TextureSize = Arguments.Texture->GetSize();
		Element.TextureMargins = { Margin.Left, Margin.Top, Margin.Right, Margin.Bottom };
		Element.Margins = { Margin.Left * TextureSize.X * Scale, Margin.Top * TextureSize.Y * Scale, Margin.Right * TextureSize.X * Scale,
			Margin.Bottom * TextureSize.Y * Scale };
		const bool bWhole = Element.HasFlag(EDrawElementFlags::PixelAligned);
		FitMargins(Element.Margins.Left, Element.Margins.Right, Element.LocalSize.X, bWhole);
		FitMargins(Element.Margins.Top, Element.Margins.Bottom, Element.LocalSize.Y, bWhole);
		if (bFrame)
		{
			Element.Flags |= EDrawElementFlags::Frame;
		}
		if (Element.Colour.A > 0)
		{
			Arguments.Elements.Append(MoveTemp(Element));
		}
	}

	/** A drawing over the same pixels that a box of the geometry takes, so that it lies in the middle of it. */
	void AppendDrawing(const FBoxArguments& Arguments, const FLineDrawing& Drawing, const FLinearColor& Colour)
	{
		FDrawElement Box;
		Arguments.Geometry.Place(Box, Arguments.ShouldSnap(), true);
		const FSlateRenderTransform ToPixel(FMatrix2x2f(Box.LocalToPixel.Xx, Box.LocalToPixel.Xy, Box.LocalToPixel.Yx, Box.LocalToPixel.Yy),
			FVector2f(Box.LocalToPixel.X, Box.LocalToPixel.Y));
		TArray<FVector2f> Points;
		Points.Reserve(Drawing.Points.Num());
		for (const FVector2f& Point : Drawing.Points)
		{
			Points.Add(Point * Box.LocalSize);
		}
		FSlateDrawElement::MakeLines(Arguments.Elements, Arguments.Layer, FPaintGeometry(FSlateLayoutTransform(), ToPixel, Box.LocalSize, true), MoveTemp(Points),
			Arguments.Effects, Colour, true, Drawing.Thickness * FMath::Min(Box.LocalSize.X, Box.LocalSize.Y));
	}

	/** White, or black on what is too light for it; as opaque as the fill. */
	FLinearColor ColourUpon(const FLinearColor& Fill)
	{
		constexpr float LightFromHere = 0.45f;
		const float Level = 0.2126f * Fill.R + 0.7152f * Fill.G + 0.0722f * Fill.B > LightFromHere ? 0.0f : 1.0f;
		return FLinearColor(Level, Level, Level, Fill.A);
	}

	bool HasMargin(const FMargin& Margin)
	{
		return Margin.Left > 0.0f || Margin.Top > 0.0f || Margin.Right > 0.0f || Margin.Bottom > 0.0f;
	}
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush,
	ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (!InBrush || InBrush->DrawAs == ESlateBrushDrawType::NoDrawType)
	{
		return;
	}
	const FElementGeometry Geometry(PaintGeometry);
	if (!Geometry.IsVisible())
	{
		return;
	}
	const FBoxArguments Arguments{ ElementList, Geometry, *InBrush, InTint, InDrawEffects, InLayer, FBrushTextures::Find(*InBrush) };
	const FLineDrawing* Drawing = FLineDrawing::Find(*InBrush);
	if (InBrush->DrawAs == ESlateBrushDrawType::RoundedBox)
	{
		AppendRoundedBox(Arguments);
		if (Drawing)
		{
			AppendDrawing(Arguments, *Drawing, ColourUpon(InTint));
		}
	}
	else if (Drawing)
	{
		AppendDrawing(Arguments, *Drawing, InTint);
	}
	else if (!Arguments.Texture.IsValid())
	{
		AppendPlainBox(Arguments);
	}
	else if (InBrush->DrawAs == ESlateBrushDrawType::Image || !HasMargin(InBrush->Margin))
	{
		AppendImage(Arguments);
	}
	else
	{
		AppendSliced(Arguments, InBrush->DrawAs == ESlateBrushDrawType::Border);
	}
}

void FSlateDrawElement::MakeTexture(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const TSharedRef<const FTexture>& InTexture, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	const FElementGeometry Geometry(PaintGeometry);
	if (!Geometry.IsVisible())
	{
		return;
	}
	const FSlateBrush Brush;
	AppendImage(FBoxArguments{ ElementList, Geometry, Brush, InTint, InDrawEffects, InLayer, InTexture });
}
