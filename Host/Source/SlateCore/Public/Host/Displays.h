#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** A way in which a screen can be driven. */
	struct FDisplayMode
	{
		int32 Width = 0;
		int32 Height = 0;
		/** Pictures a second; 0 when unknown. */
		int32 RefreshRate = 0;

		bool operator==(const FDisplayMode& Other) const = default;
	};

	/** The main screen, as far as the process knows one. */
	class FDisplays
	{
	public:
		/** Modes for full screen, the smallest first, each resolution once for each rate. Without a screen: the usual ones. */
		static TConstArrayView<FDisplayMode> GetModes();

		/** The mode of the desktop. Without a screen: 1920 x 1080. */
		static FDisplayMode GetDesktopMode();

		/** To be called by whoever finds out about screens. Sorts the modes and drops repeated ones; that of the desktop is always among them. */
		static void Set(TArray<FDisplayMode> Modes, const FDisplayMode& Desktop);

		/** Back to having no screen. */
		static void Reset();
	};
}
