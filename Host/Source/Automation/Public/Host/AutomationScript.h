#pragma once

#include "CoreMinimal.h"
#include "Host/AutomationDriver.h"
#include "Host/ScriptHost.h"

namespace Host
{
	/**
	 * Runs scripts that drive a running UI. Besides what every script has, they can call the steps of FAutomationDriver. A place is
	 * a locator, or two numbers x and y in pixels of the window; a button is "Left", "Right" or "Middle". A step that cannot be done
	 * is an error of the script.
	 *
	 *   Find(locator)                        a handle of the widget; nil when there is none
	 *   Count(locator)                       how many widgets show and fit
	 *   Read(locator, path)                  the value of a property
	 *   Move(place) Hover(place, seconds)    the mouse goes there; and rests
	 *   Press(button) Release(button)
	 *   Click(place, button) DoubleClick(place, button)
	 *   Drag(place, place, steps)            from one place to the other
	 *   DragBy(place, x, y, steps)           by so many pixels
	 *   Wheel(steps) Wheel(place, steps)     positive turns away from the user
	 *   Hold(modifiers)                      keeps them down until the next Hold
	 *   Type(text) Key(name, modifiers) Focus(locator)
	 *   Wait(seconds)
	 *   WaitUntil(function, seconds)         until the function gives true
	 *   WaitFor(locator, seconds)            until one widget shows and fits
	 *   Expect(value, text)                  an error with the text unless the value is true
	 *   Picture(file) PictureOf(locator, file)
	 */
	class FAutomationScript
	{
	public:
		explicit FAutomationScript(FEngineLoop& Loop);

		/** Runs a script. False, after a line in the log, when it fails. */
		bool RunFile(const FString& Filename);

	private:
		/** The place at an argument, which is moved behind it. */
		FVector2D TakePlace(const FScriptCall& Call, int32& Index);
		/** Ends the call with the driver's error unless the step was done. */
		void Require(const FScriptCall& Call, bool bDone) const;

		void AddLookingFunctions();
		void AddMouseFunctions();
		void AddKeyboardFunctions();
		void AddTimeFunctions();
		void AddPictureFunctions();

		FAutomationDriver Driver;
		FScriptHost Scripts;
	};
}
