#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

/** What about a widget changed, and so what must be done anew. Values combine. */
enum class EInvalidateWidgetReason : uint8
{
	None = 0,
	/** What it wants to measure, or how it arranges its children; includes its painting. */
	Layout = 1 << 0,
	/** What it looks like, in its place. */
	Paint = 1 << 1,
	/** Whether it is painted on every frame. */
	Volatility = 1 << 2,
	/** Which children it has. */
	ChildOrder = 1 << 3,
	/** Its render transform. */
	RenderTransform = 1 << 4,
	/** Whether it is seen and takes room. */
	Visibility = 1 << 5,
	/** What everything in it wants to measure. */
	Prepass = 1 << 7,

	PaintAndVolatility = Paint | Volatility,
	LayoutAndVolatility = Layout | Volatility,
};
ENUM_CLASS_FLAGS(EInvalidateWidgetReason)
