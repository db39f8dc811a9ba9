#include "Host/DesktopInput.h"

#include "Host/EngineLoop.h"
#include "Host/SlateLoop.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/SWindow.h"

namespace Host
{
	void FDesktopInput::OnCloseRequested(const TSharedRef<FGenericWindow>&)
	{
		Loop.RequestExit();
	}

	void FDesktopInput::OnExposed(const TSharedRef<FGenericWindow>& Window)
	{
		const TSharedPtr<SWindow> SlateWindow = Loop.GetWindow();
		FWindowSurface* Surface = SlateWindow && SlateWindow->GetNativeWindow() == Window ? FSlateLoop::FindSurface(*SlateWindow) : nullptr;
		if (Surface)
		{
			// What was drawn last is still there.
			Surface->Present();
		}
	}

	void FDesktopInput::OnQuitRequested()
	{
		Loop.RequestExit();
	}
}
