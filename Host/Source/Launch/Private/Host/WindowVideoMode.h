#pragma once

#include "CoreMinimal.h"
#include "Host/VideoModeHost.h"

class SWindow;

namespace Host
{
	/** Lets the user settings change the program's window, with or without a window of the system behind it. */
	class FWindowVideoMode final : public FVideoModeHost
	{
	public:
		explicit FWindowVideoMode(const TSharedRef<SWindow>& InWindow);
		virtual ~FWindowVideoMode() override;

		virtual FVideoMode GetVideoMode() const override;
		virtual void SetVideoMode(const FVideoMode& Mode) override;

	private:
		void SetSize(FIntPoint Size);

		TSharedRef<SWindow> Window;
	};
}
