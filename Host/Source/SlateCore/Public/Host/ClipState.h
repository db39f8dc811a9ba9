#pragma once

#include "CoreMinimal.h"
#include "Host/PixelRect.h"

class FSlateClippingZone;

namespace Host
{
	/** The inside of a convex quadrilateral as four half planes: a point is inside by A*x + B*y + C pixels of each edge. */
	struct FClipQuad
	{
		struct FEdge
		{
			float A = 0.0f;
			float B = 0.0f;
			float C = 0.0f;
		};
		FEdge Edges[4];
	};

	/** The rotated quadrilaterals that clip an element, outermost first. Their edges are antialiased. */
	struct FClipQuads
	{
		/** Deeper nesting of rotated clips is cut to the bounds of the inner ones. */
		static constexpr int32 MaxQuads = 16;

		TArray<FClipQuad> Quads;
	};

	/**
	 * What clips the elements of a widget: a rectangle of whole pixels, and, under rotation, quadrilaterals besides.
	 * A widget that is repainted alone keeps the state under which it was painted.
	 */
	struct FClipState
	{
		FPixelRect Rect = FPixelRect::Everything();
		TSharedPtr<const FClipQuads> Quads;

		/** The state within this one that also clips to the zone (in window pixels). */
		FClipState Intersect(const FSlateClippingZone& Zone) const;

		/** True when nothing can be visible. */
		bool IsEmpty() const
		{
			return Rect.IsEmpty();
		}

		bool operator==(const FClipState& Other) const
		{
			return Rect == Other.Rect && Quads == Other.Quads;
		}
	};
}
