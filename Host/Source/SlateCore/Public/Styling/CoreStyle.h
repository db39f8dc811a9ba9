#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"

class FSlateStyleSet;

/** The style that widgets have when none is given. */
class SLATECORE_API FCoreStyle
{
public:
	static const ISlateStyle& Get();

	/**
	 * A face of the default font.
	 * @param InTypefaceFontName	"Regular", "Bold", ...
	 */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const float InSize,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings::NoOutline);

	/** The set behind Get, for modules that add the styles of their own widgets. */
	static FSlateStyleSet& GetSet();

	/** Frees the styles; the next Get makes them anew. */
	static void ResetToDefault();
};
