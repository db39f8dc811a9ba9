#pragma once

#include "CoreMinimal.h"

/** What the system offers to applications. */
struct SLATECORE_API FPlatformApplicationMisc
{
	/** Puts text into the clipboard: the system's, or, without windows, one of this process. */
	static void ClipboardCopy(const TCHAR* Str);

	/** The text in the clipboard; empty when there is none. */
	static void ClipboardPaste(FString& Dest);
};
