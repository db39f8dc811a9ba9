#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"
#include "Host/PixelRect.h"
#include "Layout/ArrangedWidget.h"
#include "Templates/SharedPointer.h"

class FSlateWindowElementList;
class SWidget;
class SWindow;

namespace Host
{
	/**
	 * The top of a tree of widgets, and what a frame does to it: measure, arrange and paint what changed, and say what part
	 * of the picture that concerns. A window has one. When nothing is marked, no pass runs.
	 */
	class SLATECORE_API FSlateRoot
	{
	public:
		FSlateRoot() = default;
		~FSlateRoot();
		FSlateRoot(const FSlateRoot&) = delete;
		FSlateRoot& operator=(const FSlateRoot&) = delete;

		/** The topmost widget, or null for none. It has no parent, and outlives its being the root's. */
		void SetWidget(SWidget* InWidget);

		/**
		 * @param SizePixels	of the picture
		 * @param InScale	pixels a slate unit
		 */
		void SetSize(FIntPoint InSizePixels, float InScale);
		FIntPoint GetSizePixels() const { return SizePixels; }
		float GetScale() const { return Scale; }

		/** Something was marked since the last frame. */
		bool NeedsFrame() const { return bNeedsFrame; }
		void RequestFrame() { bNeedsFrame = true; }

		/**
		 * Measures, arranges and paints what is marked. Nothing is drawn. Also run before input is routed, so that it meets what
		 * the next picture shows.
		 * @return whether the picture changed: GetDamage says where
		 */
		bool RunFrame(double CurrentTime, float DeltaTime);

		/** What RunFrame and removals changed in the picture since ClearDamage: few rectangles, within the picture. */
		TConstArrayView<FPixelRect> GetDamage() const { return Damage; }
		void ClearDamage() { Damage.Reset(); }
		void AddDamage(const FPixelRect& Area);
		void DamageEverything();

		/** Raised whenever the elements change. */
		uint32 GetGeneration() const { return Generation; }

		/** Hands all elements that may touch the area to the visitor, lowest first, those of a widget together. */
		void ForEachElement(const FPixelRect& Area, TFunctionRef<void(TConstArrayView<FDrawElement>)> Visitor) const;

		/** The widgets under a point of the picture, topmost ancestor first; empty when there is none. */
		TArray<FArrangedWidget> HitTest(FVector2f Point) const;

		/** Visits the widgets in the picture, parents before children, in paint order. A visitor's false leaves out what is in the widget. */
		void ForEachWidget(TFunctionRef<bool(SWidget&)> Visitor) const;

	private:
		friend struct FWidgetPasses;

		void Layout(double CurrentTime);
		void TickMoved(double CurrentTime);

		SWidget* Widget = nullptr;
		FIntPoint SizePixels = FIntPoint(0, 0);
		float Scale = 1.0f;
		uint32 Generation = 1;
		bool bNeedsFrame = true;
		TArray<FPixelRect> Damage;
	};
}
