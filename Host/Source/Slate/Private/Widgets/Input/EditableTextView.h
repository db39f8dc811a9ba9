#pragma once

#include "Host/TextLayout.h"
#include "Widgets/Input/ShownText.h"

namespace Host
{
	/** How an editable text is laid out, and which part of it is seen. All lengths are pixels. */
	struct FEditableTextView
	{
		FShownText Shown;
		FTextLayout Layout;
		/** Pixels a slate unit that it was laid out for; 0 before the first time. */
		float Scale = 0.0f;
		/** Room for the lines: as wide as the view, or as the text with the caret behind it. */
		float AreaWidth = 0.0f;
		/** Part of the area before the view. */
		float ScrollOffset = 0.0f;
		/** From the top of the widget to the line. */
		float Top = 0.0f;
	};
}
