#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	struct FPixelToLocal;

	/** Which share of a picture is seen at a place along one axis of an element. The shader computes the same. */
	struct FAxisMapping
	{
		/** Length of the element along the axis. */
		float Length = 1.0f;
		/** Share at the beginning and at the end. */
		float First = 0.0f;
		float Last = 1.0f;
		/** Margins at both ends, in local units and as shares of the picture; all 0 without slices. */
		float StartMargin = 0.0f;
		float EndMargin = 0.0f;
		float StartShare = 0.0f;
		float EndShare = 0.0f;
		/** Local units after which the middle repeats; 0 when it stretches. */
		float Repeat = 0.0f;

		/** True for places between the margins. */
		bool IsMiddle(float Place) const { return Place >= StartMargin && Place < Length - EndMargin; }

		float GetShare(float Place) const;

		/** Shares that pass for one local unit, where the picture is drawn at its designed scale. */
		float GetRate() const;
	};

	/** How an element with a picture maps it. */
	struct FTextureMapping
	{
		explicit FTextureMapping(const FDrawElement& Element);

		/** The level of detail to sample: the one whose texels come closest to pixels. */
		int32 ChooseLevel(const FPixelToLocal& PixelToLocal) const;

		FAxisMapping X;
		FAxisMapping Y;
		const FTexture* Texture;
		bool bRepeat;
		/** Only margins are drawn. */
		bool bFrame;
		bool bIgnoreAlpha;
	};
}
