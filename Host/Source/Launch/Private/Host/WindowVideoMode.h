#pragma once

#include "CoreMinimal.h"
#include "Host/VideoModeHost.h"

class SWindow;

namespace Host
{
	/**
	 * Lets the user settings change the program's window, with or without a window of the system behind it. The mode that the
	 * window has in the beginning is the default one.
	 */
	class FWindowVideoMode final : public FVideoModeHost
	{
	public:
		explicit FWindowVideoMode(const TSharedRef<SWindow>& InWindow);
		virtual ~FWindowVideoMode() override;

		virtual FVideoMode GetVideoMode() const override;
		virtual FVideoMode GetDefaultVideoMode() const override { return DefaultMode; }
		virtual void SetVideoMode(const FVideoMode& Mode) override;

		/** What was asked for last, whatever the system and the user have made of it; the default before anything was. */
		const FVideoMode& GetAskedMode() const { return AskedMode; }

	private:
		void SetSize(FIntPoint Size);

		TSharedRef<SWindow> Window;
		FVideoMode DefaultMode;
		FVideoMode AskedMode;
	};
}
