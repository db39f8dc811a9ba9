#pragma once

#include "CoreMinimal.h"

class SBox;
struct FHalvexSizeOverride;

/** What the kit's primitive widgets have in common. */
namespace HxWidgetSupport
{
	/** Heading of the designer's palette under which the widgets are listed. */
	FText GetPaletteCategory();

	/** Fixes the size of the box where the override says so, and lets the content have its way where it does not. */
	void ApplySizeOverride(SBox& SizeBox, const FHalvexSizeOverride& SizeOverride);
}
