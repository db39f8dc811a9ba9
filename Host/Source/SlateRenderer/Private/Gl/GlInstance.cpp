#include "Gl/GlInstance.h"

#include "Host/Texture.h"
#include "Shared/BoxShape.h"
#include "Shared/GlyphPlacement.h"
#include "Shared/LineShape.h"
#include "Shared/TextureMapping.h"

namespace Host
{
	namespace
	{
		uint32 Pack(const FColor& Colour)
		{
			return Colour.B | static_cast<uint32>(Colour.G) << 8 | static_cast<uint32>(Colour.R) << 16 | static_cast<uint32>(Colour.A) << 24;
		}

		void Put(float (&Target)[4], float A, float B, float C, float D)
		{
			Target[0] = A;
			Target[1] = B;
			Target[2] = C;
			Target[3] = D;
		}

		FGlInstance Begin(EGlInstanceKind Kind, const FPixelRect& Bounds, const FColor& Colour)
		{
			FGlInstance Instance = {};
			Put(Instance.Bounds, Bounds.Left, Bounds.Top, Bounds.Right, Bounds.Bottom);
			Instance.Words[0] = Pack(Colour);
			Instance.Words[2] = static_cast<uint32>(Kind);
			return Instance;
		}

		void PutTransform(FGlInstance& Instance, const FPixelToLocal& Transform)
		{
			Instance.ToLocal[0] = Transform.XByX;
			Instance.ToLocal[1] = Transform.XByY;
			Instance.ToLocal[2] = Transform.X0;
			Instance.ToLocal[3] = Transform.YByX;
			Instance.ToLocal[4] = Transform.YByY;
			Instance.ToLocal[5] = Transform.Y0;
		}

		void PutTexture(FGlInstance& Instance, const FDrawElement& Element, const FPixelToLocal& Transform, int32& OutLevel)
		{
			const FTextureMapping Mapping(Element);
			OutLevel = Mapping.ChooseLevel(Transform);
			Instance.Words[3] |= EGlInstanceFlags::Textured;
			Instance.Words[3] |= Mapping.bIgnoreAlpha ? EGlInstanceFlags::IgnoreAlpha : 0u;
			Instance.Words[3] |= Mapping.Texture->IsBottomUp() ? EGlInstanceFlags::BottomUp : 0u;
			Instance.Numbers[1] = static_cast<float>(OutLevel);
			if (Element.Kind != EDrawElementKind::Sliced)
			{
				Put(Instance.Texture, Mapping.X.First, Mapping.Y.First, Mapping.X.Last, Mapping.Y.Last);
				return;
			}
			Instance.Words[3] |= EGlInstanceFlags::Sliced | (Mapping.bFrame ? EGlInstanceFlags::Frame : 0u);
			Put(Instance.Corners, Mapping.X.StartMargin, Mapping.Y.StartMargin, Mapping.X.EndMargin, Mapping.Y.EndMargin);
			Put(Instance.Texture, Mapping.X.StartShare, Mapping.Y.StartShare, Mapping.X.EndShare, Mapping.Y.EndShare);
			Instance.Numbers[2] = Mapping.X.Repeat;
			Instance.Numbers[3] = Mapping.Y.Repeat;
		}
	}

	FGlInstance MakeBoxInstance(const FDrawElement& Element, const FPixelRect& Area, int32& OutLevel)
	{
		FGlInstance Instance = Begin(EGlInstanceKind::Box, Element.Bounds.Intersect(Area), Element.Colour);
		const FPixelToLocal Transform(Element.LocalToPixel);
		PutTransform(Instance, Transform);
		Instance.Size[0] = Element.LocalSize.X;
		Instance.Size[1] = Element.LocalSize.Y;
		if (Element.Kind == EDrawElementKind::Box)
		{
			Put(Instance.Corners, Element.Radii.TopLeft, Element.Radii.TopRight, Element.Radii.BottomRight, Element.Radii.BottomLeft);
		}
		Instance.Numbers[0] = Element.OutlineWidth;
		Instance.Words[1] = Pack(Element.OutlineColour);
		OutLevel = 0;
		if (Element.GetTexture())
		{
			PutTexture(Instance, Element, Transform, OutLevel);
		}
		return Instance;
	}

	FGlInstance MakeGlyphInstance(const FDrawElement& Element, const FPlacedGlyph& Glyph, bool bCopied, const FColor& Colour, const FPixelRect& Area)
	{
		const FAtlasGlyph& Picture = Glyph.Picture;
		if (bCopied)
		{
			const FPixelRect Bounds = FPixelRect::Make(Glyph.PixelX, Glyph.PixelY, Glyph.PixelX + Picture.Width, Glyph.PixelY + Picture.Height);
			FGlInstance Instance = Begin(EGlInstanceKind::CopiedGlyph, Bounds.Intersect(Element.Bounds).Intersect(Area), Colour);
			Instance.ToLocal[2] = static_cast<float>(Picture.X - Glyph.PixelX);
			Instance.ToLocal[5] = static_cast<float>(Picture.Y - Glyph.PixelY);
			return Instance;
		}
		const float Margin = Glyph.RunPerTexel;
		const FPixelRect Bounds = BoundsOf(Element.LocalToPixel, Glyph.RunX - Margin, Glyph.RunY - Margin,
			Glyph.RunX + Picture.Width * Glyph.RunPerTexel + Margin, Glyph.RunY + Picture.Height * Glyph.RunPerTexel + Margin);
		FGlInstance Instance = Begin(EGlInstanceKind::SampledGlyph, Bounds.Intersect(Element.Bounds).Intersect(Area), Colour);
		PutTransform(Instance, FPixelToLocal(Element.LocalToPixel));
		Put(Instance.Corners, Glyph.RunX, Glyph.RunY, Glyph.RunPerTexel > 0.0f ? 1.0f / Glyph.RunPerTexel : 0.0f, 0.0f);
		Put(Instance.Texture, Picture.X, Picture.Y, Picture.Width, Picture.Height);
		return Instance;
	}

	FGlInstance MakeLineInstance(const FDrawElement& Element, const FLineSegment& Segment, bool bAntialias, const FPixelRect& Area)
	{
		FGlInstance Instance = Begin(EGlInstanceKind::Line, BoundsOfSegment(Segment).Intersect(Element.Bounds).Intersect(Area), Element.Colour);
		Instance.ToLocal[0] = Segment.Start.X;
		Instance.ToLocal[1] = Segment.Start.Y;
		Instance.ToLocal[2] = Segment.Direction.X;
		Instance.ToLocal[3] = Segment.Direction.Y;
		Instance.ToLocal[4] = Segment.Length;
		Instance.ToLocal[5] = Segment.HalfThickness;
		Put(Instance.Corners, Segment.StartNormal.X, Segment.StartNormal.Y, Segment.EndNormal.X, Segment.EndNormal.Y);
		Instance.Words[3] = (Segment.bJoinedStart ? EGlInstanceFlags::JoinedStart : 0u) | (Segment.bJoinedEnd ? EGlInstanceFlags::JoinedEnd : 0u)
			| (bAntialias ? 0u : EGlInstanceFlags::Aliased);
		return Instance;
	}
}
