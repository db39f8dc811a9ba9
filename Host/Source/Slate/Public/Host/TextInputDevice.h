#pragma once

#include "CoreMinimal.h"
#include "Math/IntRect.h"

namespace Host
{
	/** What enters text on this system: its keyboard, and an input method if there is one. */
	class FTextInputDevice
	{
	public:
		virtual ~FTextInputDevice() = default;

		/** A text is edited from now on. */
		virtual void Start() = 0;
		/** Where its caret is, in pixels of the window: what an input method shows goes next to it. */
		virtual void SetCaretArea(const FIntRect& Area) = 0;
		/** Forgets what is being composed. */
		virtual void CancelComposition() = 0;
		/** No text is edited any more. */
		virtual void Stop() = 0;
	};
}
