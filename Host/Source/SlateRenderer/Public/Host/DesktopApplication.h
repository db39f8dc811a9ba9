#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "GenericPlatform/ICursor.h"

namespace Host
{
	class FDesktopEventHandler;
	class FTextInputDevice;
	struct FDesktopState;

	/** What a new window is to be. */
	struct FDesktopWindowSettings
	{
		FString Title;
		/** Of the client area, in pixels. */
		FIntPoint Size = FIntPoint(1280, 720);
		EWindowMode::Type Mode = EWindowMode::Windowed;
		bool bResizable = true;
		bool bMaximized = false;
		/** Drawn with OpenGL. Cannot be changed later. */
		bool bOpenGl = false;
	};

	/**
	 * The windows, mouse, keyboard, clipboard and screens of the system. There is at most one; a program without windows
	 * makes none, and then neither loads nor starts anything for them. Game thread only, except Wake.
	 *
	 * While it lives, the clipboard functions of FPlatformApplicationMisc reach the system's clipboard and FDisplays
	 * describes the main screen.
	 */
	class FDesktopApplication
	{
	public:
		/** Starts the video system. Null, with the reason in one line, when there is none. */
		static TUniquePtr<FDesktopApplication> Create(FString& OutError);
		~FDesktopApplication();
		FDesktopApplication(const FDesktopApplication&) = delete;
		FDesktopApplication& operator=(const FDesktopApplication&) = delete;

		/** Opens a window, hidden until it is shown. Null after an error, which is logged. */
		TSharedPtr<FGenericWindow> MakeWindow(const FDesktopWindowSettings& Settings);

		/** Hands what has happened to the handler. */
		void PumpEvents(FDesktopEventHandler& Handler);

		/**
		 * Sleeps until something happens or Wake is called, using no processor time, and then returns without having
		 * handled it.
		 * @param MaxSeconds	longest time; negative for as long as it takes
		 */
		void WaitForEvents(double MaxSeconds);

		/** Ends a wait from any thread, or the next one when there is none now. */
		static void Wake();

		TSharedRef<ICursor> GetCursor() const;

		/** What enters text; it is stopped in the beginning. Lives as long as the application. */
		FTextInputDevice& GetTextInput();

	private:
		explicit FDesktopApplication(TUniquePtr<FDesktopState> InState);

		TUniquePtr<FDesktopState> State;
	};
}
