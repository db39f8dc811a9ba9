#pragma once

#include "CoreMinimal.h"
#include "Host/WidgetFinder.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"

class UWidget;

namespace Host
{
	class FEngineLoop;
	struct FPicture;

	/**
	 * Drives a running UI as a person would: finds widgets by what can be seen of them, and sends input through the application to
	 * where they are. Each step ends with a frame, so that what it led to is there for the next one. Headless the clock is turned
	 * by the length of the frames; in a window it goes as it goes.
	 *
	 * Steps at a locator (see FWidgetFinder) can fail: there may be no such widget, or several, or it may be hidden, out of view or
	 * covered. They return false then, do nothing, and GetError() says in one line why.
	 */
	class FAutomationDriver
	{
	public:
		/** Seconds that a mouse rests before tool tips are up. */
		static constexpr double HoverTime = 1.0;
		/** Moves that a drag is made of. */
		static constexpr int32 DragSteps = 10;

		explicit FAutomationDriver(FEngineLoop& InLoop)
			: Loop(InLoop)
		{
		}

		// What is to be seen.

		/** The first widget that shows and fits; null when there is none. */
		UWidget* Find(const FString& Locator) const;

		/** The one widget that shows and fits; null, with an error, when there is none, or several. */
		UWidget* FindOne(const FString& Locator);

		/** How many widgets show and fit. */
		int32 Count(const FString& Locator) const;

		/** Reads a property of the widget, by a path such as "Slot.Padding.Left", as properties write themselves. */
		bool Read(const FString& Locator, const FString& PropertyPath, FString& OutText);

		/** Middle of the widget in pixels of the window. */
		FVector2D GetMiddle(const UWidget& Widget) const;

		/** Where the widget can be pointed at, in pixels of the window. */
		bool FindPoint(const FString& Locator, FVector2D& OutPoint);

		// The mouse, in pixels of the window.

		void MoveTo(FVector2D Position);
		bool Move(const FString& Locator);
		/** Moves there and rests. */
		bool Hover(const FString& Locator, double Seconds = HoverTime);
		void Press(FKey Button = EKeys::LeftMouseButton);
		void Release(FKey Button = EKeys::LeftMouseButton);
		/** Clicks at once: with a click just before, at the same place, that makes a double click. */
		void ClickAt(FVector2D Position, FKey Button = EKeys::LeftMouseButton);
		/** Clicks when the time of a double click has passed since the last press. */
		void SingleClickAt(FVector2D Position, FKey Button = EKeys::LeftMouseButton);
		/** As SingleClickAt. */
		bool Click(const FString& Locator, FKey Button = EKeys::LeftMouseButton);
		/** Clicks twice within the time of a double click. */
		void DoubleClickAt(FVector2D Position, FKey Button = EKeys::LeftMouseButton);
		bool DoubleClick(const FString& Locator, FKey Button = EKeys::LeftMouseButton);
		/** Presses at one place, moves to the other in so many steps of equal length, and releases there. */
		void DragTo(FVector2D From, FVector2D To, int32 Steps = DragSteps, FKey Button = EKeys::LeftMouseButton);
		bool Drag(const FString& FromLocator, const FString& ToLocator, int32 Steps = DragSteps, FKey Button = EKeys::LeftMouseButton);
		bool DragBy(const FString& Locator, FVector2D Offset, int32 Steps = DragSteps, FKey Button = EKeys::LeftMouseButton);
		/** Turns the wheel where the mouse is; positive turns away from the user. */
		void Wheel(float Delta);
		bool WheelOver(const FString& Locator, float Delta);

		// The keyboard.

		/** Keeps "Ctrl", "Shift" or "Alt", joined by "+", down from now on, and lets go of the others. */
		void Hold(const FString& Modifiers);
		/** Enters the text, character by character, where the keyboard focus is. */
		void Type(const FString& Text);
		/** Presses and releases a key, with modifiers besides those that are held. */
		void PressKey(FKey Key, const FString& Modifiers = FString());
		/** Presses Tab until the keyboard focus is in the widget. False, with the focus back or elsewhere, when it never is. */
		bool Focus(const FString& Locator);

		// Time.

		/** Runs frames for the given seconds of the clock. */
		void Wait(double Seconds);

		/** Runs frames until the condition holds. False when it does not within the seconds of the clock. */
		bool WaitUntil(TFunctionRef<bool()> Condition, double Seconds);

		/** Runs frames until one widget shows and fits. */
		bool WaitFor(const FString& Locator, double Seconds);

		// Pictures.

		/** Writes a picture of the window. False, with one line, when that is not possible. */
		bool TakePicture(const FString& Filename, FString& OutError);

		/** Takes a picture of what is in view of a widget, with what lies on it. */
		bool TakePictureOf(const FString& Locator, FPicture& OutPicture);
		bool TakePictureOf(const FString& Locator, const FString& Filename);

		/** Why the last step failed. */
		const FString& GetError() const { return Error; }

		FEngineLoop& GetLoop() const { return Loop; }

	private:
		void RunFrame();
		void PressAndRelease(FKey Button);
		/** Waits until a press is no double click with the one before. */
		void LetDoubleClickPass();
		bool HasFocus(const SWidget& Slate) const;
		bool Locate(const FString& Locator, FFoundWidget& OutFound);
		FModifierKeysState GetModifiers(const FString& Further = FString()) const;
		FPointerEvent MakePointerEvent(FVector2D LastPosition, FKey Button, float WheelDelta) const;

		FEngineLoop& Loop;
		FVector2D Cursor = FVector2D(0.0, 0.0);
		TSet<FKey> PressedButtons;
		FString HeldModifiers;
		/** When a button was pressed last; far in the past before that. */
		double LastPressTime = -1.0e9;
		FString Error;
	};
}
