#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"
#include "Templates/UniquePtr.h"

class SWindow;

namespace Host
{
	/** What the windows are drawn on. */
	class FWindowSurfaces
	{
	public:
		/** Draws what changed in the window, on a surface that is made for it the first time. */
		void Draw(SWindow& Window, FSlateRenderer& Renderer);
		void Remove(const SWindow& Window);
		void Empty() { Entries.Empty(); }
		FWindowSurface* Find(const SWindow& Window) const;

	private:
		struct FEntry
		{
			const SWindow* Window;
			/** Null when it could not be made. */
			TUniquePtr<FWindowSurface> Surface;
		};

		FWindowSurface* FindOrMake(SWindow& Window, FSlateRenderer& Renderer);

		TArray<FEntry> Entries;
	};
}
