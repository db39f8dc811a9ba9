#pragma once

#include "CoreMinimal.h"
#include "Host/PixelRect.h"

namespace Host
{
	/**
	 * The damage as few rectangles within the surface, none of which overlap: what lies close together is drawn at one go.
	 */
	TArray<FPixelRect, TInlineAllocator<16>> MergeDamage(TConstArrayView<FPixelRect> Damage, const FPixelRect& Surface);
}
