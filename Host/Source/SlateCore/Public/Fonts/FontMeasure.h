#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Internationalization/Text.h"
#include "Types/SlateVector2.h"

/**
 * Measures text without showing it. All sizes are pixels at the given scale; with a scale of 1 these are slate units.
 * Line breaks in the text begin new lines.
 */
class SLATECORE_API FSlateFontMeasure
{
public:
	/** The shared measuring service. */
	static TSharedRef<FSlateFontMeasure> Get();

	/** Width of the widest line and height of all lines. */
	UE::Slate::FDeprecateVector2DResult Measure(FStringView Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	UE::Slate::FDeprecateVector2DResult Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	/** Only the characters from StartIndex to before EndIndex, in one line, as they stand in the whole text. */
	UE::Slate::FDeprecateVector2DResult Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	/** Height of a line. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Where the baseline lies from the bottom of a line; negative, as it lies above. */
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/**
	 * Which place between characters is nearest to a distance from the start of a line: where a caret goes on a click.
	 * @return from 0, before the first character, to the text's length
	 */
	int32 FindCharacterIndexAtOffset(FStringView Text, const FSlateFontInfo& InFontInfo, int32 HorizontalOffset, float FontScale = 1.0f) const;
	int32 FindCharacterIndexAtOffset(const FText& Text, const FSlateFontInfo& InFontInfo, int32 HorizontalOffset, float FontScale = 1.0f) const;
};
