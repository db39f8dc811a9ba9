#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Where OpenGL commands go, and what brings their result to a window. */
	class FGlContext
	{
	public:
		virtual ~FGlContext() = default;

		/** Directs commands to the window, or to none. False, with the reason, when that fails. */
		virtual bool MakeCurrent(void* NativeWindow, FString& OutError) = 0;

		/** Shows what was drawn into the window's own framebuffer. */
		virtual void SwapBuffers(void* NativeWindow) = 0;

		/** The window is going: commands must not be directed to it any more. */
		virtual void ForgetWindow(void* NativeWindow) = 0;
	};

	/** A context without any window or display. Null, with the reason, when there is no way to make one. */
	TUniquePtr<FGlContext> MakeHeadlessGlContext(FString& OutError);
}
