#pragma once

#include "CoreMinimal.h"
#include "Host/AutomationDriver.h"
#include "Host/ScriptHost.h"

namespace Host
{
	/**
	 * Runs scripts that drive a running UI. Besides what every script has, they can call
	 *
	 *   Find(locator)                  a handle of the widget, nil when there is none; see FAutomationDriver::Find
	 *   Move(locator or x, y)          moves the mouse there
	 *   Press() Release()              the left button
	 *   Click(locator or x, y)         moves there, presses and releases
	 *   Wheel(steps)                   turns the wheel
	 *   Type(text)                     enters text
	 *   Key(name, modifiers)           presses a key, such as Key("A", "Ctrl")
	 *   Wait(seconds)                  lets time pass
	 *   WaitUntil(function, seconds)   lets time pass until the function gives true; an error when it does not
	 *   Expect(value, text)            an error with the text unless the value is true
	 *   Picture(file)                  writes a picture of the window
	 */
	class FAutomationScript
	{
	public:
		explicit FAutomationScript(FEngineLoop& Loop);

		/** Runs a script. False, after a line in the log, when it fails. */
		bool RunFile(const FString& Filename);

	private:
		FVector2D GetPlace(const FScriptCall& Call) const;
		void AddMouseFunctions();
		void AddKeyboardFunctions();
		void AddFlowFunctions();

		FAutomationDriver Driver;
		FScriptHost Scripts;
	};
}
