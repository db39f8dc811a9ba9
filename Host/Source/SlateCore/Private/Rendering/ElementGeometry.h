#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"
#include "Rendering/RenderingCommon.h"

struct FPaintGeometry;

namespace Host
{
	/** The transform and size of a paint geometry, and what they allow. */
	struct FElementGeometry
	{
		explicit FElementGeometry(const FPaintGeometry& PaintGeometry);

		/** True when something can be seen of it: finite numbers and a positive area. */
		bool IsVisible() const;

		/** True when axes agree with the window's and nothing is mirrored. */
		bool IsUpright() const { return Transform.Xy == 0.0f && Transform.Yx == 0.0f && Transform.Xx > 0.0f && Transform.Yy > 0.0f; }

		/** True when it is upright and both axes have the same scale. */
		bool IsUniform() const;

		/** Pixels for a local unit: the mean of both axes. */
		float GetScale() const;

		/**
		 * Puts transform, size, bounds and flags of a rectangular element.
		 *
		 * Upright geometry is turned into pixels here, so that renderers need no scale: the result is a shift, and the size is
		 * in pixels. With snapping, edges come to lie on whole pixels; what is at least half a pixel wide keeps one.
		 *
		 * @return local units of the element for a unit of the geometry: by this, radii and widths are to be multiplied
		 */
		float Place(FDrawElement& Element, bool bSnap, bool bNeedsUniformScale) const;

		FPixelTransform Transform;
		FVector2f Size;
	};

	/** sRGB colour of a linear tint under the effects. */
	FColor ResolveColour(const FLinearColor& Tint, ESlateDrawEffect Effects);

	/** The layer as an element keeps it. */
	uint16 ToElementLayer(uint32 Layer);
}
