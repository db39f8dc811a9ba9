#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

namespace Host
{
	/** A picture of one stroke. It needs no file, and is as sharp at every scale. */
	struct FLineDrawing
	{
		/** In shares of the width and height of the box that it is drawn in, from the top left. */
		TConstArrayView<FVector2f> Points;
		/** Width of the stroke, as a share of the shorter side. */
		float Thickness;

		/** The drawing that the brush shows; null when it shows none. */
		static const FLineDrawing* Find(const FSlateBrush& Brush);
	};

	/** A brush that shows a drawing of the core style: "ChevronDown", "CheckMark" or "Dash". */
	struct FLineDrawingBrush : public FSlateBrush
	{
		/** The drawing in the colour. */
		FLineDrawingBrush(FName Drawing, const FSlateColor& Color, const FVector2f& InImageSize);

		/** The drawing over a rounded box, in white, or in black when the box is light. */
		FLineDrawingBrush(FName Drawing, const FSlateBrush& RoundedBox);
	};
}
