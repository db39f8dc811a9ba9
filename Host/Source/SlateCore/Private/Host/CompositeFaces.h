#pragma once

#include "CoreMinimal.h"
#include "Fonts/CompositeFont.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontFaces.h"

namespace Host
{
	/**
	 * The faces that a composite font draws one of its typefaces with: its own, one for each sub-font, the fallback and
	 * the built-in one. They are opened when a character first needs them. Shared by all sizes of that font.
	 */
	class FCompositeFaces
	{
	public:
		/** As many as a glyph of a run can tell apart. */
		static constexpr int32 MaxFaces = 512;

		/** @param Font	null for the built-in face alone */
		FCompositeFaces(FFontFaces& InFaces, const FCompositeFont* Font, FName Typeface, EFontFallback Fallback);

		int32 Num() const { return Members.Num(); }
		const FFontFace& GetFace(int32 Index) const;
		/** Size relative to that of the font. */
		float GetScaling(int32 Index) const { return Members[Index].Scaling; }
		EGlyphFlags GetHinting(int32 Index) const { return Members[Index].Hinting; }

		/** Which face draws a character; the first one, whose missing glyph is then shown, when none can. */
		int32 Choose(uint32 Character) const;

		/** Below this character there is nothing that a sub-font draws. */
		uint32 GetFirstSpecialCharacter() const { return FirstSpecialCharacter; }

	private:
		/** From First to Last, both included. */
		struct FRange
		{
			uint32 First;
			uint32 Last;
		};

		struct FMember
		{
			FFontData Font;
			float Scaling = 1.0f;
			EGlyphFlags Hinting = EGlyphFlags::HintLight;
			/** For sub-fonts: their characters, in rising order without overlap. */
			TArray<FRange> Ranges;
			bool bSubFont = false;
			TSharedPtr<FFontFace> Face;

			bool Covers(uint32 Character) const;
		};

		void AddMember(const FTypeface& Typeface, FName Name, float Scaling);
		void AddSubFont(const FCompositeSubFont& SubFont, FName Name);

		FFontFaces& Faces;
		mutable TArray<FMember> Members;
		uint32 FirstSpecialCharacter = MAX_uint32;
	};
}
