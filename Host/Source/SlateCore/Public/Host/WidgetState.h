#pragma once

#include "CoreMinimal.h"
#include "Host/ClipState.h"
#include "Host/DrawElement.h"
#include "Host/PixelRect.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"
#include "Misc/EnumClassFlags.h"
#include "Styling/WidgetStyle.h"

class SWidget;

namespace Host
{
	/** What of a widget must be done anew, by itself or somewhere below. */
	enum class EWidgetDirt : uint8
	{
		None = 0,
		/** Visit all children and measure. */
		Prepass = 1 << 0,
		Arrange = 1 << 1,
		/** Its render transform changed: its geometry follows from that of its parent. */
		Transform = 1 << 2,
		Paint = 1 << 3,
		ChildPrepass = 1 << 4,
		ChildArrange = 1 << 5,
		ChildPaint = 1 << 6,

		AnyPrepass = Prepass | ChildPrepass,
		AnyArrange = Arrange | Transform | ChildArrange,
		AnyPaint = Paint | ChildPaint,
		AnyChild = ChildPrepass | ChildArrange | ChildPaint,
		All = AnyPrepass | AnyArrange | AnyPaint,
	};
	ENUM_CLASS_FLAGS(EWidgetDirt)

	/** What a widget was painted with last: its painting depends on nothing else from outside. */
	struct FPaintInputs
	{
		FWidgetStyle Style;
		FSlateRect CullingRect;
		FClipState Clip;
		int32 LayerId = 0;
		bool bParentEnabled = true;
	};

	/**
	 * What a widget keeps of the last passes, so that they visit only what changed.
	 *
	 * A widget with dirt stands in its parent's queue of dirty children, and its parent has the matching child flag, up to
	 * the root or to a widget that the passes do not reach (collapsed, hidden, culled, or without parent). Becoming
	 * reachable always goes through the parent's own pass, which then looks at all of its children.
	 */
	struct FWidgetState
	{
		FWidgetState() = default;
		FWidgetState(const FWidgetState&) = delete;
		FWidgetState& operator=(const FWidgetState&) = delete;

		SWidget* Parent = nullptr;

		/** Children by the last arranging, in paint order. */
		SWidget* FirstArranged = nullptr;
		SWidget* NextArranged = nullptr;

		/** Children with dirt, in no order. */
		SWidget* FirstDirty = nullptr;
		SWidget* NextDirty = nullptr;

		FVector2f DesiredSize = FVector2f(0.0f, 0.0f);
		/** Scale of the last measuring; 0 before the first. */
		float PrepassScale = 0.0f;
		/** Layers that it and its children took when painted. */
		int32 LayerSpan = 0;

		FGeometry Geometry;
		FPaintInputs Inputs;

		/** What it painted before its first child. */
		TArray<FDrawElement> Elements;
		/** Around its box and all that is painted and hit in it, within its clip. */
		FPixelRect TreeBounds;

		EWidgetDirt Dirt = EWidgetDirt::All;
		bool bQueued : 1 = false;
		/** In the parent's list of arranged children. */
		bool bArranged : 1 = false;
		/** Painted by its parent's last painting: in the picture, if the parent is. */
		bool bInView : 1 = false;
		/** As bInView, before its parent is painted anew. */
		bool bWasInView : 1 = false;
		/** Has been painted with Inputs. */
		bool bHasInputs : 1 = false;
		/** Paints something after its children, kept with its rarely used members. */
		bool bHasOverElements : 1 = false;
	};
}
