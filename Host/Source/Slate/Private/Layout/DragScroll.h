#pragma once

#include "CoreMinimal.h"
#include "Framework/Layout/InertialScrollManager.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "Types/SlateEnums.h"

class SWidget;
struct FGeometry;

namespace Host
{
	/** Slate units for one step of the wheel, or one press of an arrow key. */
	constexpr float ScrollStep = 32.0f;

	/** An animated scroll makes all but 1/e of its way in this many seconds. */
	constexpr float ScrollAnimationSeconds = 0.06f;

	/** Way in slate units that an animated scroll makes at once in the end. */
	constexpr float ScrollAnimationEnd = 0.5f;

	/** Scrolling by the right mouse button: where a press becomes a drag, and how the content goes on after it. */
	class FDragScroll
	{
	public:
		/** The button went down where it may become a drag. */
		void Press();
		/** The button is up, or the mouse was lost. */
		void Cancel();

		/**
		 * The mouse moved over the widget, or is captured by it.
		 * @param Scroll	scrolls by slate units along the orientation, and says how far that really was
		 * @return what the widget answers; unset where the move is none of a drag
		 */
		TOptional<FReply> Move(SWidget& Captor, const FGeometry& Geometry, const FPointerEvent& MouseEvent, EOrientation Orientation, TFunctionRef<float(float Units)> Scroll);
		/**
		 * A button went up.
		 * @param bOutGoesOn	whether it ends a drag, whose speed the content keeps
		 * @return what the widget answers; unset where the button is none of a drag
		 */
		TOptional<FReply> Release(const FPointerEvent& MouseEvent, bool& bOutGoesOn);

		/** The button is down, and may become a drag. */
		bool IsPending() const { return bPending; }
		bool IsDragging() const { return bDragging; }

		void StopMotion() { Inertia.ClearScrollVelocity(); }
		/** Slate units that the content goes on by in a frame. */
		float TakeMotion(float DeltaTime);

	private:
		/** Notes how far the content was really scrolled by a move. */
		void NoteScrolled(float Units);

		FInertialScrollManager Inertia;
		/** Pixels that the cursor went since the button went down. */
		float Distance = 0.0f;
		bool bPending = false;
		bool bDragging = false;
	};
}
