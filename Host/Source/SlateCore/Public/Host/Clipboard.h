#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Where FPlatformApplicationMisc's clipboard functions go. */
	class FClipboard
	{
	public:
		virtual ~FClipboard() = default;

		virtual void SetText(const FString& Text) = 0;
		virtual FString GetText() = 0;

		/** Takes over from the clipboard within the process; null gives it back. The object outlives its being in use. */
		static void Use(FClipboard* Clipboard);
	};
}
