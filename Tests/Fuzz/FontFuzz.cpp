// Reads the input as a font file and draws text with it. Nothing may go wrong, whatever the file holds.
#include "Fonts/CompositeFont.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <sys/mman.h>
#include <unistd.h>

using namespace Host;

static void DrawWith(const FString& Filename, EFontLoadingPolicy Policy, EFontHinting Hinting)
{
	FFontServices Services;
	const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>(TEXT("any"), Filename, Hinting, Policy);
	const FSizedFontRef Sized = Services.GetFont(FSlateFontInfo(Font, 15.0f), 1.0f);
	for (const TCHAR* Text : { TEXT("The quick AVATAR fi 0123"), TEXT("e\u0301 \u0627\u0644\u0639 \u05D0\u05D1 \u0915\u094D\u0937 \u4E2D \uF004") })
	{
		const FShapedRunRef Run = Services.Shape(Sized, Text);
		Run->GetInkBounds();
		for (const FShapedGlyph& Glyph : Run->GetGlyphs())
		{
			float Scale;
			Services.GetAtlas().Find(Sized->MakeKey(Glyph, EGlyphPart::Fill, 1.0f, 1, true, Scale));
		}
	}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	const int File = memfd_create("font", 0);
	if (File < 0)
	{
		return 0;
	}
	if (write(File, Data, Size) == static_cast<ssize_t>(Size))
	{
		char Path[64];
		std::snprintf(Path, sizeof(Path), "/proc/self/fd/%d", File);
		DrawWith(FString(UTF8_TO_TCHAR(Path)), EFontLoadingPolicy::LazyLoad, EFontHinting::Default);
		DrawWith(FString(UTF8_TO_TCHAR(Path)), EFontLoadingPolicy::Stream, EFontHinting::Auto);
	}
	close(File);
	return 0;
}
