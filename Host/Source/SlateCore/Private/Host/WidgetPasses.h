#pragma once

#include "CoreMinimal.h"
#include "Host/WidgetState.h"
#include "Layout/ArrangedWidget.h"
#include "Types/PaintArgs.h"
#include "Widgets/InvalidateWidgetReason.h"
#include "Widgets/SWidget.h"

class FSlateWindowElementList;

namespace Host
{
	class FSlateRoot;

	/** The passes over a tree of widgets, and what keeps their marks in order. Works on what SWidget keeps for itself. */
	struct FWidgetPasses
	{
		static FWidgetState& StateOf(const SWidget& Widget) { return Widget.State; }
		static bool IsNull(const SWidget& Widget);

		// Marks.

		/** Marks a widget with dirt of its own, and its ancestors with the matching flags for children. */
		static void Mark(SWidget& Widget, EWidgetDirt Dirt);
		static void Invalidate(SWidget& Widget, EInvalidateWidgetReason Reason);
		/** Everything below the widget is painted anew. */
		static void MarkAllForPaint(SWidget& Widget);
		static void Attach(SWidget& Parent, SWidget& Child);
		static void Detach(SWidget& Child);
		/** The root that the widget stands in; null when it stands in none. */
		static FSlateRoot* FindRoot(const SWidget& Widget);
		static bool IsInView(const SWidget& Widget);

		// Measuring and arranging.

		/** True when the widget wants another size than before. */
		static bool Prepass(SWidget& Widget, float Scale);
		/** True when the widget's geometry is another one than before. */
		static bool Arrange(SWidget& Widget, const FGeometry& Geometry);
		/** Fills in the children from the last arranging if it was in that geometry. */
		static bool GetArrangedFromCache(const SWidget& Widget, const FGeometry& Geometry, FArrangedChildren& ArrangedChildren);

		// Painting.

		static int32 Paint(const SWidget& Widget, const FPaintArgs& Args, const FGeometry& Geometry, const FSlateRect& CullingRect, FSlateWindowElementList& List,
			int32 LayerId, const FWidgetStyle& Style, bool bParentEnabled);
		/** Adds all that the tree shows to the damage of the root. */
		static void DamageTree(const SWidget& Widget, FSlateRoot& Root);
		static void VisitElements(const SWidget& Widget, const FPixelRect& Area, TFunctionRef<void(TConstArrayView<FDrawElement>)> Visitor);

		static void VisitWidgets(SWidget& Widget, TFunctionRef<bool(SWidget&)> Visitor);

		/** Appends the widgets under the point from the lowest up. */
		static bool HitTest(SWidget& Widget, FVector2f Point, TArray<FArrangedWidget>& OutPath);

		/** The root whose frame is being made; null outside of one. */
		static FSlateRoot* CurrentRoot;

		/** Widgets that tick and have a new geometry by the arrange pass. */
		static TArray<TWeakPtr<SWidget>> MovedTickers;

	private:
		static EWidgetDirt ToChildFlags(EWidgetDirt Dirt);
		static void MarkAllForPrepass(SWidget& Widget);
		static void ApplyVisibility(SWidget& Widget);
		static void Enqueue(FWidgetState& Parent, SWidget& Child);
		/** Takes over the dirt of a child that the pass visited, for the passes to come. */
		static void Inherit(FWidgetState& Parent, SWidget& Child, EWidgetDirt Which);
		static void UnlinkArranged(FWidgetState& Parent, SWidget& Child);
		static void EmptyQueue(FWidgetState& Parent);

		static bool PrepassChildren(SWidget& Widget, float Scale);
		static bool PrepassDirtyChildren(SWidget& Widget);
		static void ArrangeAnew(SWidget& Widget);
		static void ArrangeDirtyChildren(SWidget& Widget);
		static void LinkArranged(SWidget& Widget, const FArrangedChildren& Children);
		static void DropFromView(SWidget& Child);

		static void PaintAnew(const SWidget& Widget, const FPaintArgs& Args, FSlateWindowElementList& List);
		static void PaintDirtyChildren(const SWidget& Widget, const FPaintArgs& Args, FSlateWindowElementList& List);
		static SWidget* TakeDirtyChildren(FWidgetState& State);
		static void SettleDirtyChildren(FWidgetState& State, SWidget* Queue);
		static FPixelRect ComputeTreeBounds(const SWidget& Widget);
		static void GrowTreeBounds(const SWidget& Widget, const FPixelRect& Before, const FPixelRect& After);
		/** Puts the clipping for the widget's content in force if it has one; changes the rectangle that content is culled by. */
		static bool PushClipping(const SWidget& Widget, FSlateWindowElementList& List, FSlateRect& InOutCullingRect);
		static void StoreElements(TArray<FDrawElement>& Kept, TArray<FDrawElement>& Painted);
	};

}
