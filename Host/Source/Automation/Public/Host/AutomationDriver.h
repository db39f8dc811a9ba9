#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

class SWidget;
class UWidget;

namespace Host
{
	class FEngineLoop;

	/**
	 * Drives a running UI as a user would: finds widgets, and sends input through the application to where they are. Each step
	 * ends with a frame, so that what it led to is there for the next one.
	 */
	class FAutomationDriver
	{
	public:
		explicit FAutomationDriver(FEngineLoop& InLoop)
			: Loop(InLoop)
		{
		}

		/**
		 * Finds a widget that shows:
		 *   "Name" or "Outer/Name"    the first one of that name, inside one of the outer name
		 *   "text:What it says"       the first one that shows exactly this text
		 *   "class:Button"            the first one of a class
		 * Null when there is none.
		 */
		UWidget* Find(const FString& Locator) const;

		/** Middle of the widget in pixels of the window. */
		FVector2D GetMiddle(const UWidget& Widget) const;

		void MoveTo(FVector2D Position);
		void Press(FKey Button = EKeys::LeftMouseButton);
		void Release(FKey Button = EKeys::LeftMouseButton);
		void ClickAt(FVector2D Position, FKey Button = EKeys::LeftMouseButton);
		/** Positive turns away from the user. */
		void Wheel(float Delta);
		/** Enters the text, character by character. */
		void Type(const FString& Text);
		/** Presses and releases a key; Modifiers holds "Ctrl", "Shift" or "Alt", joined by "+". */
		void PressKey(FKey Key, const FString& Modifiers = FString());

		/** Runs frames for the given seconds of the clock. */
		void Wait(double Seconds);

		/** Runs frames until the condition holds. False when it does not within the seconds of the clock. */
		bool WaitUntil(TFunctionRef<bool()> Condition, double Seconds);

		/** Writes a picture of the window. False, with one line, when that is not possible. */
		bool TakePicture(const FString& Filename, FString& OutError);

		FEngineLoop& GetLoop() const { return Loop; }

	private:
		void RunFrame();

		FEngineLoop& Loop;
		FVector2D Cursor = FVector2D(0.0, 0.0);
		TSet<FKey> PressedButtons;
	};
}
