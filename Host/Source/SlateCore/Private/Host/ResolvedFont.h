#pragma once

#include "CoreMinimal.h"
#include "Host/CompositeFaces.h"
#include "Host/SizedFont.h"

namespace Host
{
	/** Everything that tells one sized font from another. */
	struct FFontRequest
	{
		/** State of the composite font; 0 for the built-in face. */
		int32 Revision = 0;
		FName Typeface;
		EFontFallback Fallback = EFontFallback::FF_LastResortFallback;
		bool bHollowOutline = false;
		/** Pixels to the em, in 1/64 pixel. */
		int32 Size = 0;
		int32 LetterSpacing = 0;
		int16 Skew = 0;
		uint16 Outline = 0;

		bool operator==(const FFontRequest& Other) const = default;
	};

	uint32 GetTypeHash(const FFontRequest& Request);

	/** A sized font with what is needed to shape text in it. */
	class FResolvedFont final : public FSizedFont
	{
	public:
		FResolvedFont(const FFontRequest& InRequest, const TSharedRef<const FCompositeFaces>& InFaces);
		virtual ~FResolvedFont() override;

		const FFontRequest& GetRequest() const { return Request; }
		const FCompositeFaces& GetFaces() const { return *Faces; }
		const FFontFace& GetFace(int32 Slot) const { return Faces->GetFace(Slot); }

		/** The font of a slot for HarfBuzz; opens its face if need be. */
		hb_font_t* GetShapingFont(int32 Slot) const
		{
			hb_font_t* Known = ShapingFonts[Slot];
			return Known ? Known : OpenSlot(Slot);
		}

		static const FResolvedFont& Of(const FSizedFont& Font) { return static_cast<const FResolvedFont&>(Font); }

	protected:
		virtual int32 GetMaxRasterSize(const FShapedGlyph& Glyph) const override;

	private:
		hb_font_t* OpenSlot(int32 Slot) const;
		void ComputeMetrics();

		FFontRequest Request;
		TSharedRef<const FCompositeFaces> Faces;
		/** One a slot; null until it is used. */
		mutable TArray<hb_font_t*> ShapingFonts;
	};
}
