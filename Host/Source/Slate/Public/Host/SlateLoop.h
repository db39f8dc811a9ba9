#pragma once

#include "CoreMinimal.h"

class SWindow;

namespace Host
{
	class FTextInputDevice;
	class FWindowSurface;

	/** What the loop of the program, and what drives it from outside, need of the application. */
	class SLATE_API FSlateLoop
	{
	public:
		/** Seconds on the clock when there is something to do by itself: the time of now when a frame is due, infinite when nothing is. */
		static double GetNextWakeTime();

		/** Lays out and paints what changed in all windows, without drawing. */
		static void Refresh();

		/** The surface that the window is drawn on; null without a renderer. */
		static FWindowSurface* FindSurface(const SWindow& Window);

		/** The mouse left the windows: nothing is hovered. */
		static void MouseLeft();

		/** What enters text on this system; null for none. It must outlive the application, or be taken back. */
		static void SetTextInputDevice(FTextInputDevice* Device);

		/**
		 * An input method is composing text; its result comes as characters.
		 * @param Text	empty when it ends
		 * @param CaretPosition	UTF-16 units from the start of the text
		 * @return false when no text is edited
		 */
		static bool ProcessComposition(const FString& Text, int32 CaretPosition);
	};
}
