#pragma once

#include "CoreMinimal.h"

class SBox;
struct FGeometry;
struct FHalvexSizeOverride;

/** What the kit's primitive widgets have in common. */
namespace HxWidgetSupport
{
	/** Heading of the designer's palette under which the widgets are listed. */
	FText GetPaletteCategory();

	/** Fixes the size of the box where the override says so, and lets the content have its way where it does not. */
	void ApplySizeOverride(SBox& SizeBox, const FHalvexSizeOverride& SizeOverride);

	/** Where the mouse is on the platform now, in the units of the geometry; render transforms are undone. */
	FVector2D GetMouseLocalPos(const FGeometry& Geometry);
}
