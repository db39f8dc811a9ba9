#include "Cpu/GlyphRasterizer.h"

#include <cmath>

#include "Cpu/PixelMath.h"
#include "Cpu/SpanTarget.h"
#include "Host/ShapedRun.h"
#include "Shared/BoxShape.h"
#include "Shared/GlyphPlacement.h"

namespace Host
{
	namespace
	{
		class FGlyphPainter
		{
		public:
			FGlyphPainter(const FDrawElement& InElement, FSpanTarget& InTarget, FGlyphAtlas& InAtlas)
				: Element(InElement)
				, Target(InTarget)
				, Atlas(InAtlas)
				, Placement(InElement, InAtlas)
				, PixelToLocal(InElement.LocalToPixel)
			{
			}

			void Draw(EGlyphPart Part, uint32 Colour)
			{
				for (const FShapedGlyph& Glyph : Element.GetRun()->GetGlyphs())
				{
					FPlacedGlyph Placed;
					if (!Placement.Place(Glyph, Part, Placed))
					{
						continue;
					}
					if (Placement.IsUpright() && Placed.RunPerTexel == 1.0f)
					{
						Copy(Placed, Colour);
					}
					else
					{
						Sample(Placed, Colour);
					}
				}
			}

		private:
			void Copy(const FPlacedGlyph& Glyph, uint32 Colour)
			{
				const FPixelRect& Area = Target.GetArea();
				const int32 Left = FMath::Max<int32>(Glyph.PixelX, Area.Left);
				const int32 Right = FMath::Min<int32>(Glyph.PixelX + Glyph.Picture.Width, Area.Right);
				if (Left >= Right)
				{
					return;
				}
				const int32 Top = FMath::Max<int32>(Glyph.PixelY, Area.Top);
				const int32 Bottom = FMath::Min<int32>(Glyph.PixelY + Glyph.Picture.Height, Area.Bottom);
				const uint8* Texels = Atlas.GetTexels() + Glyph.Picture.X + (Left - Glyph.PixelX);
				for (int32 Y = Top; Y < Bottom; ++Y)
				{
					const int64 Row = Glyph.Picture.Y + (Y - Glyph.PixelY);
					Target.FillMask(Y, Left, Texels + Row * FGlyphAtlas::Width, Right - Left, Colour);
				}
			}

			/** Through a transform: each pixel looks up, between texels, what lies under its centre. */
			void Sample(const FPlacedGlyph& Glyph, uint32 Colour)
			{
				if (!(Glyph.RunPerTexel > 0.0f))
				{
					return;
				}
				const float Width = static_cast<float>(Glyph.Picture.Width) * Glyph.RunPerTexel;
				const float Height = static_cast<float>(Glyph.Picture.Height) * Glyph.RunPerTexel;
				const FPixelRect Bounds = BoundsOf(Element.LocalToPixel, Glyph.RunX - Glyph.RunPerTexel, Glyph.RunY - Glyph.RunPerTexel,
					Glyph.RunX + Width + Glyph.RunPerTexel, Glyph.RunY + Height + Glyph.RunPerTexel).Intersect(Target.GetArea());
				if (Bounds.IsEmpty())
				{
					return;
				}
				const float TexelPerRun = 1.0f / Glyph.RunPerTexel;
				Mask.SetNumUninitialized(FMath::Max(Mask.Num(), Bounds.Width()));
				for (int32 Y = Bounds.Top; Y < Bounds.Bottom; ++Y)
				{
					const float CentreY = static_cast<float>(Y) + 0.5f;
					for (int32 X = Bounds.Left; X < Bounds.Right; ++X)
					{
						const float CentreX = static_cast<float>(X) + 0.5f;
						Mask[X - Bounds.Left] = SampleTexels(Glyph.Picture, (PixelToLocal.GetX(CentreX, CentreY) - Glyph.RunX) * TexelPerRun - 0.5f,
							(PixelToLocal.GetY(CentreX, CentreY) - Glyph.RunY) * TexelPerRun - 0.5f);
					}
					Target.FillMask(Y, Bounds.Left, Mask.GetData(), Bounds.Width(), Colour);
				}
			}

			uint8 SampleTexels(const FAtlasGlyph& Picture, float X, float Y) const
			{
				if (!(X > -1.0f && Y > -1.0f && X < static_cast<float>(Picture.Width) && Y < static_cast<float>(Picture.Height)))
				{
					return 0;
				}
				const float FloorX = std::floor(X);
				const float FloorY = std::floor(Y);
				const int32 TexelX = static_cast<int32>(FloorX);
				const int32 TexelY = static_cast<int32>(FloorY);
				const uint32 FractionX = static_cast<uint32>((X - FloorX) * 256.0f);
				const uint32 FractionY = static_cast<uint32>((Y - FloorY) * 256.0f);
				const uint32 Upper = GetTexel(Picture, TexelX, TexelY) * (256 - FractionX) + GetTexel(Picture, TexelX + 1, TexelY) * FractionX;
				const uint32 Lower = GetTexel(Picture, TexelX, TexelY + 1) * (256 - FractionX) + GetTexel(Picture, TexelX + 1, TexelY + 1) * FractionX;
				return static_cast<uint8>((Upper * (256 - FractionY) + Lower * FractionY + 32768) >> 16);
			}

			uint32 GetTexel(const FAtlasGlyph& Picture, int32 X, int32 Y) const
			{
				if (X < 0 || Y < 0 || X >= Picture.Width || Y >= Picture.Height)
				{
					return 0;
				}
				return Atlas.GetTexels()[static_cast<int64>(Picture.Y + Y) * FGlyphAtlas::Width + Picture.X + X];
			}

			const FDrawElement& Element;
			FSpanTarget& Target;
			FGlyphAtlas& Atlas;
			FGlyphPlacement Placement;
			FPixelToLocal PixelToLocal;
			TArray<uint8> Mask;
		};
	}

	void RasterizeGlyphs(const FDrawElement& Element, FSpanTarget& Target, FGlyphAtlas& Atlas)
	{
		FGlyphPainter Painter(Element, Target, Atlas);
		if (Element.GetRun()->GetFont().HasOutline() && Element.OutlineColour.A > 0)
		{
			Painter.Draw(EGlyphPart::Outline, PixelMath::Premultiply(Element.OutlineColour));
		}
		if (Element.Colour.A > 0)
		{
			Painter.Draw(EGlyphPart::Fill, PixelMath::Premultiply(Element.Colour));
		}
	}
}
