#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Styling/SlateBrush.h"

class FSlateWindowElementList;
class SWidget;

namespace Host
{
	/**
	 * Draws the ring of the keyboard focus around the part of a control that the user changes, for controls of which the whole
	 * is no frame. Nothing is drawn unless navigation has given the control the focus.
	 */
	void PaintFocusRing(const SWidget& Control, const FGeometry& Part, ESlateBrushRoundingType::Type Rounding, FSlateWindowElementList& Elements, int32 Layer);
}
