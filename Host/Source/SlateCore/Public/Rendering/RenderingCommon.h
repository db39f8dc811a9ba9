#pragma once

#include "CoreMinimal.h"

/** How an element is drawn, beyond its brush and tint. Values combine. */
enum class ESlateDrawEffect : uint8
{
	None = 0,
	/** Edges stay where the geometry puts them; without it the edges of unrotated boxes are rounded to whole pixels. */
	NoPixelSnapping = 1 << 4,
	/** Drawn grey and faint, as a disabled control. */
	DisabledEffect = 1 << 5,
	/** The alpha channel of the picture is ignored: it is drawn as if it were opaque. */
	IgnoreTextureAlpha = 1 << 6,
};
ENUM_CLASS_FLAGS(ESlateDrawEffect)
