#pragma once

#include "CoreMinimal.h"
#include "Host/SlateEventForwarder.h"

namespace Host
{
	class FEngineLoop;

	/** Hands what happens to the system's window on to Slate; the program ends with its window. */
	class FDesktopInput final : public FSlateEventForwarder
	{
	public:
		explicit FDesktopInput(FEngineLoop& InLoop)
			: Loop(InLoop)
		{
		}

		virtual void OnCloseRequested(const TSharedRef<FGenericWindow>& Window) override;
		virtual void OnExposed(const TSharedRef<FGenericWindow>& Window) override;
		virtual void OnQuitRequested() override;

	private:
		FEngineLoop& Loop;
	};
}
