#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"

namespace Host
{
	/** How the program's window stands on the screen. */
	struct FVideoMode
	{
		/** Of the client area, in pixels. */
		FIntPoint Size = FIntPoint(0, 0);
		EWindowMode::Type WindowMode = EWindowMode::Windowed;

		bool operator==(const FVideoMode& Other) const = default;
	};

	/** The program's window, as the user settings see it. */
	class FVideoModeHost
	{
	public:
		virtual ~FVideoModeHost() = default;

		virtual FVideoMode GetVideoMode() const = 0;

		/** What the program opens its window with for a user who has chosen nothing. */
		virtual FVideoMode GetDefaultVideoMode() const = 0;

		/** A borderless window gets the size of the desktop, whatever the mode says. What is so already stays as it is. */
		virtual void SetVideoMode(const FVideoMode& Mode) = 0;

		/** Null in a program without a window. */
		ENGINE_API static FVideoModeHost* Get();

		/** To be called by whoever owns the window, with null before it goes. */
		ENGINE_API static void Set(FVideoModeHost* Host);
	};
}
