#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"
#include "Shared/BoxShape.h"
#include "Shared/TextureMapping.h"

namespace Host
{
	/** Gives the pixels of a picture as an element shows it: mapped, scaled, tinted. */
	class FTextureSampler
	{
	public:
		/** Area: the pixels of the window that will be asked for at most. */
		FTextureSampler(const FDrawElement& Element, const FPixelRect& InArea);

		/** True when there is nothing to sample, as for a picture that lives on the graphics processor. */
		bool IsEmpty() const { return Texels == nullptr; }

		/** True when every pixel it gives is opaque. */
		bool IsOpaque() const { return bOpaque; }

		/** Premultiplied pixels of a row of the window, from Left on. Valid until the next call. */
		const uint32* Sample(int32 Y, int32 Left, int32 Count);

	private:
		/** Where a pixel's centre falls among texels: between two of them. */
		struct FTap
		{
			int32 First;
			int32 Second;
			/** Of the second, in 256ths. */
			uint32 Fraction;
			/** In the middle of a frame. */
			bool bHole;
		};

		FTap MakeTap(const FAxisMapping& Axis, float Place, int32 Extent) const;
		void PrepareColumns();
		const uint32* SampleUpright(int32 Y, int32 Left, int32 Count);
		const uint32* SampleFree(int32 Y, int32 Left, int32 Count);
		const uint32* BlendRows(const FTap& RowTap);
		void Tint(const uint32* Source, int32 Count);

		FTextureMapping Mapping;
		FPixelToLocal PixelToLocal;
		FPixelRect Area;
		const uint32* Texels = nullptr;
		FIntPoint Size;
		uint32 TintColour;
		bool bOpaque;
		bool bUpright;
		/** Each column shows the texel after the one of its left neighbour, unmixed. */
		bool bUnscaled = false;
		TArray<FTap> Columns;
		int32 FirstTexel = 0;
		int32 LastTexel = 0;
		TArray<uint32> MixedRow;
		TArray<uint32> Output;
	};
}
