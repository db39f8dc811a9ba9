#include "Host/FontFace.h"

#include FT_GLYPH_H
#include FT_OUTLINE_H

namespace Host
{
	namespace
	{
		/** Frees a glyph when the scope ends. */
		struct FScopedGlyph
		{
			FT_Glyph Glyph = nullptr;

			FScopedGlyph() = default;
			FScopedGlyph(const FScopedGlyph&) = delete;
			FScopedGlyph& operator=(const FScopedGlyph&) = delete;
			~FScopedGlyph() { FT_Done_Glyph(Glyph); }

			FT_Outline& GetOutline() const { return reinterpret_cast<FT_OutlineGlyph>(Glyph)->outline; }
		};

		/** Whole pixels around an outline, y upward. */
		struct FPixelBox
		{
			FT_Pos Left;
			FT_Pos Bottom;
			FT_Pos Right;
			FT_Pos Top;
		};

		FPixelBox GetPixelBox(const FT_Outline& Outline)
		{
			FT_BBox Box;
			FT_Outline_Get_CBox(&Outline, &Box);
			return { Box.xMin >> 6, Box.yMin >> 6, (Box.xMax + 63) >> 6, (Box.yMax + 63) >> 6 };
		}

		FT_Int32 GetLoadFlags(EGlyphFlags Flags)
		{
			switch (Flags & EGlyphFlags::HintMask)
			{
			case EGlyphFlags::HintLight:
				return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_LIGHT;
			case EGlyphFlags::HintFull:
				return FT_LOAD_NO_BITMAP | FT_LOAD_FORCE_AUTOHINT | FT_LOAD_TARGET_NORMAL;
			case EGlyphFlags::HintMonochrome:
				return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_MONO;
			default:
				return FT_LOAD_NO_BITMAP | FT_LOAD_NO_HINTING;
			}
		}

		/** Draws the outline into a box of pixels, one byte a pixel. */
		bool DrawGrey(FT_Library Library, FT_Outline& Outline, const FPixelBox& Box, TArray<uint8>& OutCoverage)
		{
			const int32 Width = static_cast<int32>(Box.Right - Box.Left);
			const int32 Height = static_cast<int32>(Box.Top - Box.Bottom);
			OutCoverage.Reset();
			OutCoverage.SetNumZeroed(Width * Height);
			FT_Bitmap Bitmap = {};
			Bitmap.width = static_cast<unsigned int>(Width);
			Bitmap.rows = static_cast<unsigned int>(Height);
			Bitmap.pitch = Width;
			Bitmap.buffer = OutCoverage.GetData();
			Bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
			Bitmap.num_grays = 256;
			FT_Outline_Translate(&Outline, -Box.Left * 64, -Box.Bottom * 64);
			const bool bDrawn = FT_Outline_Get_Bitmap(Library, &Outline, &Bitmap) == 0;
			FT_Outline_Translate(&Outline, Box.Left * 64, Box.Bottom * 64);
			return bDrawn;
		}

		/** As DrawGrey, with pixels either empty or full. */
		bool DrawBlackAndWhite(FT_Library Library, FT_Outline& Outline, const FPixelBox& Box, TArray<uint8>& OutCoverage)
		{
			const int32 Width = static_cast<int32>(Box.Right - Box.Left);
			const int32 Height = static_cast<int32>(Box.Top - Box.Bottom);
			const int32 Pitch = (Width + 7) / 8;
			TArray<uint8> Bits;
			Bits.SetNumZeroed(Pitch * Height);
			FT_Bitmap Bitmap = {};
			Bitmap.width = static_cast<unsigned int>(Width);
			Bitmap.rows = static_cast<unsigned int>(Height);
			Bitmap.pitch = Pitch;
			Bitmap.buffer = Bits.GetData();
			Bitmap.pixel_mode = FT_PIXEL_MODE_MONO;
			FT_Outline_Translate(&Outline, -Box.Left * 64, -Box.Bottom * 64);
			const bool bDrawn = FT_Outline_Get_Bitmap(Library, &Outline, &Bitmap) == 0;
			FT_Outline_Translate(&Outline, Box.Left * 64, Box.Bottom * 64);
			OutCoverage.SetNumUninitialized(Width * Height);
			for (int32 Y = 0; Y < Height; ++Y)
			{
				for (int32 X = 0; X < Width; ++X)
				{
					OutCoverage[Y * Width + X] = (Bits[Y * Pitch + X / 8] & (0x80 >> (X % 8))) ? 255 : 0;
				}
			}
			return bDrawn;
		}

		/** Widens the outline by the stroke of the key. */
		bool AddStroke(const FFreeTypeLibrary& Library, uint16 StrokeWidth, FScopedGlyph& Glyph)
		{
			FT_Stroker_Set(Library.GetStroker(), StrokeWidth, FT_STROKER_LINECAP_ROUND, FT_STROKER_LINEJOIN_ROUND, 0);
			return FT_Glyph_StrokeBorder(&Glyph.Glyph, Library.GetStroker(), 0, 1) == 0;
		}
	}

	bool FFontFace::LoadOutline(const FGlyphKey& Key) const
	{
		if (RasterSize != Key.Size)
		{
			RasterSize = 0;
			if (FT_Set_Char_Size(Face, Key.Size, Key.Size, 72, 72) != 0)
			{
				return false;
			}
			RasterSize = Key.Size;
		}
		if (FT_Load_Glyph(Face, Key.Glyph, GetLoadFlags(Key.Flags)) != 0 || Face->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
		{
			return false;
		}
		if (Key.Skew != 0)
		{
			const FT_Matrix Shear = { 0x10000, FT_Fixed(Key.Skew) * 16, 0, 0x10000 };
			FT_Outline_Transform(&Face->glyph->outline, &Shear);
		}
		FT_Outline_Translate(&Face->glyph->outline, Key.Subpixel * 16, 0);
		return Face->glyph->outline.n_points > 0;
	}

	bool FFontFace::Rasterise(const FGlyphKey& Key, FGlyphBitmap& OutBitmap) const
	{
		if (!LoadOutline(Key))
		{
			return false;
		}
		FT_Outline* Outline = &Face->glyph->outline;
		FScopedGlyph Stroked;
		if (Key.Outline != 0)
		{
			if (FT_Get_Glyph(Face->glyph, &Stroked.Glyph) != 0 || !AddStroke(*Library, Key.Outline, Stroked))
			{
				return false;
			}
			Outline = &Stroked.GetOutline();
		}
		const FPixelBox Box = GetPixelBox(*Outline);
		if (Box.Right <= Box.Left || Box.Top <= Box.Bottom || Box.Right - Box.Left > MaxGlyphPixels || Box.Top - Box.Bottom > MaxGlyphPixels)
		{
			return false;
		}
		const auto Draw = (Key.Flags & EGlyphFlags::HintMask) == EGlyphFlags::HintMonochrome ? &DrawBlackAndWhite : &DrawGrey;
		if (!Draw(Library->Get(), *Outline, Box, OutBitmap.Coverage))
		{
			return false;
		}
		if (EnumHasAnyFlags(Key.Flags, EGlyphFlags::Hollow))
		{
			TArray<uint8> Inner;
			if (Draw(Library->Get(), Face->glyph->outline, Box, Inner))
			{
				for (int32 Index = 0; Index < Inner.Num(); ++Index)
				{
					OutBitmap.Coverage[Index] -= FMath::Min(OutBitmap.Coverage[Index], Inner[Index]);
				}
			}
		}
		OutBitmap.Width = static_cast<int32>(Box.Right - Box.Left);
		OutBitmap.Height = static_cast<int32>(Box.Top - Box.Bottom);
		OutBitmap.Left = static_cast<int32>(Box.Left);
		OutBitmap.Top = static_cast<int32>(Box.Top);
		return true;
	}
}
