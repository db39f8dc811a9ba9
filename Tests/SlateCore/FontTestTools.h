#pragma once

#include "CoreMinimal.h"
#include "Fonts/CompositeFont.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"

#include <gtest/gtest.h>

/** A file of the shipped text font. */
inline FString GetFontFile(const TCHAR* Name)
{
	return FString(TEXT(HALVEX_SOURCE_DIR "/HalvexPro/Content/Widgets/Fonts/Monserrat/")) + Name;
}

/** The shipped text font without its sub-fonts: typefaces "regular" and "bold". */
inline TSharedRef<FCompositeFont> MakePlainFont(EFontHinting Hinting = EFontHinting::Default)
{
	const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>();
	Font->DefaultTypeface.AppendFont(TEXT("regular"), GetFontFile(TEXT("Montserrat-Regular.ttf")), Hinting, EFontLoadingPolicy::LazyLoad);
	Font->DefaultTypeface.AppendFont(TEXT("bold"), GetFontFile(TEXT("Montserrat-Bold.ttf")), Hinting, EFontLoadingPolicy::LazyLoad);
	return Font;
}

/** That font with Cyrillic letters as a sub-font. */
inline TSharedRef<FCompositeFont> MakeCyrillicFont(float Scaling = 1.0f)
{
	const TSharedRef<FCompositeFont> Font = MakePlainFont();
	FCompositeSubFont SubFont;
	SubFont.Typeface.AppendFont(TEXT("regular"), GetFontFile(TEXT("Montserrat-Cyrillic-Regular.ttf")), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	SubFont.Typeface.AppendFont(TEXT("bold"), GetFontFile(TEXT("Montserrat-Cyrillic-Bold.ttf")), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	SubFont.ScalingFactor = Scaling;
	SubFont.CharacterRanges.Add(FInt32Range::Inclusive(0x400, 0x4FF));
	Font->SubTypefaces.Add(SubFont);
	return Font;
}

/** Font services of its own for a test; sizes are given in pixels. */
class FFontTest : public testing::Test
{
protected:
	/** A size in points that comes to that many pixels at scale 1. */
	static constexpr float Pixels(float Size) { return Size * 72.0f / 96.0f; }

	static FSlateFontInfo MakeInfo(const TSharedRef<FCompositeFont>& Font, float PixelSize, FName Typeface = NAME_None)
	{
		return FSlateFontInfo(Font, Pixels(PixelSize), Typeface);
	}

	Host::FSizedFontRef GetPlain(float PixelSize)
	{
		return Services.GetFont(MakeInfo(Plain, PixelSize), 1.0f);
	}

	/** The UTF-16 units that glyphs stand for, from left to right. */
	static FString GetVisualOrder(const Host::FShapedRun& Run)
	{
		FString Order;
		for (const Host::FShapedGlyph& Glyph : Run.GetGlyphs())
		{
			Order.AppendChar(Run.GetText()[static_cast<int32>(Glyph.Cluster)]);
		}
		return Order;
	}

	TSharedRef<FCompositeFont> Plain = MakePlainFont();
	Host::FFontServices Services;
};
