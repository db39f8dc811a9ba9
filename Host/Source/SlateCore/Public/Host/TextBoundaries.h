#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * Where text may be cut: between characters as a person sees them, between words, between lines. Positions are
	 * UTF-16 units; those outside the text are taken as its nearest end. Game thread only.
	 */
	class FTextBoundaries
	{
	public:
		/** The end of the visible character at a position: with its accents, or the whole emoji. */
		static int32 NextCharacter(FStringView Text, int32 Position);
		/** The beginning of the visible character that ends at, or surrounds, a position. */
		static int32 PreviousCharacter(FStringView Text, int32 Position);

		/** The beginning of the next word, beyond blanks; where "control and right arrow" goes. */
		static int32 NextWord(FStringView Text, int32 Position);
		/** The beginning of the word before a position; where "control and left arrow" goes. */
		static int32 PreviousWord(FStringView Text, int32 Position);
		/** The word, or the run of blanks or signs, that a double click at a position selects. */
		static void FindWord(FStringView Text, int32 Position, int32& OutBegin, int32& OutEnd);

		/** Positions at which a line may be broken, in rising order, the text's end last. Not for text with line breaks in it. */
		static void FindLineBreaks(FStringView Text, TArray<int32>& OutPositions);

		/** Before the blanks that end a part of the text. */
		static int32 TrimEnd(FStringView Text, int32 Begin, int32 End);

		/** Whether a unit separates paragraphs: line feed, carriage return, line or paragraph separator. */
		static bool IsLineBreak(TCHAR Unit)
		{
			return Unit == '\n' || Unit == '\r' || Unit == 0x2028 || Unit == 0x2029;
		}

		/** Whether a unit is a blank at which lines break and which vanishes there. */
		static bool IsBlank(TCHAR Unit)
		{
			return Unit == ' ' || Unit == '\t' || Unit == 0x1680 || (Unit >= 0x2000 && Unit <= 0x200B && Unit != 0x2007) || Unit == 0x205F || Unit == 0x3000;
		}
	};
}
