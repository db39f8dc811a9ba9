#pragma once

#include "CoreMinimal.h"

/** Which modifier keys are held down. */
class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(bool bInLeftShift, bool bInRightShift, bool bInLeftControl, bool bInRightControl, bool bInLeftAlt, bool bInRightAlt,
		bool bInLeftCommand, bool bInRightCommand, bool bInCapsLocked)
		: bLeftShift(bInLeftShift), bRightShift(bInRightShift), bLeftControl(bInLeftControl), bRightControl(bInRightControl), bLeftAlt(bInLeftAlt)
		, bRightAlt(bInRightAlt), bLeftCommand(bInLeftCommand), bRightCommand(bInRightCommand), bCapsLocked(bInCapsLocked)
	{
	}

	bool IsShiftDown() const { return bLeftShift || bRightShift; }
	bool IsLeftShiftDown() const { return bLeftShift; }
	bool IsRightShiftDown() const { return bRightShift; }
	bool IsControlDown() const { return bLeftControl || bRightControl; }
	bool IsLeftControlDown() const { return bLeftControl; }
	bool IsRightControlDown() const { return bRightControl; }
	bool IsAltDown() const { return bLeftAlt || bRightAlt; }
	bool IsLeftAltDown() const { return bLeftAlt; }
	bool IsRightAltDown() const { return bRightAlt; }
	bool IsCommandDown() const { return bLeftCommand || bRightCommand; }
	bool IsLeftCommandDown() const { return bLeftCommand; }
	bool IsRightCommandDown() const { return bRightCommand; }
	bool AreCapsLocked() const { return bCapsLocked; }
	bool AnyModifiersDown() const { return IsShiftDown() || IsControlDown() || IsAltDown() || IsCommandDown(); }

private:
	bool bLeftShift = false;
	bool bRightShift = false;
	bool bLeftControl = false;
	bool bRightControl = false;
	bool bLeftAlt = false;
	bool bRightAlt = false;
	bool bLeftCommand = false;
	bool bRightCommand = false;
	bool bCapsLocked = false;
};
