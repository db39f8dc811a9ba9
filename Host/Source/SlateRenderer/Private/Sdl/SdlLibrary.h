#pragma once

#include "CoreMinimal.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace Host
{
	/**
	 * SDL, loaded when the first window is wanted: it pulls in fifty other libraries, which a run without a window need not
	 * pay for. Members are named as the functions without their prefix.
	 */
	struct FSdl
	{
#define HALVEX_SDL_FUNCTIONS(X) \
	X(Init) \
	X(Quit) \
	X(GetError) \
	X(SetHint) \
	X(SetMainReady) \
	X(CreateWindow) \
	X(DestroyWindow) \
	X(GetWindowID) \
	X(GetWindowFlags) \
	X(GetWindowSize) \
	X(GetWindowSizeInPixels) \
	X(SetWindowSize) \
	X(SetWindowPosition) \
	X(SetWindowTitle) \
	X(SetWindowFullscreen) \
	X(SetWindowDisplayMode) \
	X(ShowWindow) \
	X(HideWindow) \
	X(RaiseWindow) \
	X(MinimizeWindow) \
	X(MaximizeWindow) \
	X(RestoreWindow) \
	X(SetWindowInputFocus) \
	X(GetWindowDisplayIndex) \
	X(GetDisplayDPI) \
	X(GetNumDisplayModes) \
	X(GetDisplayMode) \
	X(GetDesktopDisplayMode) \
	X(GetClosestDisplayMode) \
	X(GetWindowSurface) \
	X(UpdateWindowSurfaceRects) \
	X(ConvertPixels) \
	X(LockSurface) \
	X(UnlockSurface) \
	X(PollEvent) \
	X(WaitEventTimeout) \
	X(PushEvent) \
	X(RegisterEvents) \
	X(GetModState) \
	X(WarpMouseInWindow) \
	X(ShowCursor) \
	X(SetCursor) \
	X(CreateSystemCursor) \
	X(FreeCursor) \
	X(SetClipboardText) \
	X(GetClipboardText) \
	X(free) \
	X(StartTextInput) \
	X(StopTextInput) \
	X(SetTextInputRect) \
	X(ClearComposition) \
	X(GL_SetAttribute) \
	X(GL_CreateContext) \
	X(GL_DeleteContext) \
	X(GL_MakeCurrent) \
	X(GL_SetSwapInterval) \
	X(GL_SwapWindow)

#define HALVEX_DECLARE(Name) decltype(&SDL_##Name) Name = nullptr;
		HALVEX_SDL_FUNCTIONS(HALVEX_DECLARE)
#undef HALVEX_DECLARE

		/** The library, loaded now if it was not. Null, with the reason, when the system has none that is new enough. */
		static const FSdl* Load(FString& OutError);

		/** The library, which was loaded before. */
		static const FSdl& Get();

		/** What SDL says about its last failure. */
		FString GetErrorText() const;
	};
}
