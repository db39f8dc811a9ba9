#pragma once

#include "CoreMinimal.h"
#include "Host/PictureCompare.h"
#include "Host/RendererChoice.h"
#include "Host/VideoModeHost.h"

class FSlateRenderer;
class SWindow;
class UEngine;

namespace Host
{
	class FDesktopApplication;
	class FDesktopInput;
	class FWindowVideoMode;

	/** How a program starts. */
	struct FEngineLoopSettings
	{
		/** No window is shown; pictures can be taken all the same. */
		bool bHeadless = false;
		ERendererChoice Renderer = ERendererChoice::Auto;
		/** Size of the window in pixels. */
		FIntPoint WindowSize = FIntPoint(1280, 800);
		/** The size was asked for: it counts more than the one that the user saved. */
		bool bKeepWindowSize = false;
		/** Pixels a Slate unit; 0 for what the system asks for. */
		float Scale = 0.0f;
		FText Title;
		/** The folder that has the plugin with its content and configuration. */
		FString PluginFolder;
	};

	/** Starts the modules and the engine, runs frame after frame, and stops everything in the reverse order. One at a time. */
	class FEngineLoop
	{
	public:
		FEngineLoop();
		~FEngineLoop();
		FEngineLoop(const FEngineLoop&) = delete;
		FEngineLoop& operator=(const FEngineLoop&) = delete;

		/** Starts everything. False, with one line that says why, when that is not possible; Exit() is then called already. */
		bool Init(const FEngineLoopSettings& InSettings, FString& OutError);

		/** Runs until somebody asks for the end; sleeps while there is nothing to do. Gives the exit code. */
		int32 Run();

		/** One frame, with the clock moved by the given seconds. */
		void RunFrame(double Seconds);

		/**
		 * One frame for what drives the program from outside. Headless the clock is moved by the given seconds; in a window they
		 * pass, and what the user does meanwhile counts.
		 */
		void Step(double Seconds);

		/** Ends Run() after the current frame. */
		void RequestExit(int32 ExitCode = 0);
		bool IsExitRequested() const { return bExitRequested; }

		/** Stops everything; nothing happens when it is stopped. */
		void Exit();

		TSharedPtr<SWindow> GetWindow() const { return Window; }
		FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

		/** What the window shows. False before the first frame and without a renderer. */
		bool TakePicture(FPicture& OutPicture);

		/**
		 * Runs frames until nothing changes by itself any more, at most for the given seconds of the clock. Work in the background
		 * is waited for; servers are not.
		 */
		void RunUntilIdle(double MaxSeconds = 2.0);

	private:
		bool StartPlatform(FString& OutError);
		void StartWindow();
		/** Brings what the user saved to the window, where people see it. */
		void ApplyUserSettings();
		/** Confirms the video mode in which the user has got as far as the end of the program. */
		void ConfirmVideoMode();
		/** Until something is due; negative when nothing is. */
		double GetSecondsUntilNextFrame() const;
		/** As GetSecondsUntilNextFrame, but not before the screen can show another frame than that of the given start. */
		double GetSecondsToWait(double FrameStart) const;
		/** Seconds that a frame lasts at least, by the user's limit of frames a second; 0 without one. */
		static double GetLeastFrameTime();
		void CollectGarbageIfDue();
		static void WaitForBackgroundWork();

		FEngineLoopSettings Settings;
		TUniquePtr<FDesktopApplication> Desktop;
		TUniquePtr<FDesktopInput> Input;
		TSharedPtr<FSlateRenderer> Renderer;
		TSharedPtr<SWindow> Window;
		TUniquePtr<FWindowVideoMode> VideoMode;
		/** In which the user found the window. */
		FVideoMode StartMode;
		double LastCollection = 0.0;
		int32 ExitCode = 0;
		bool bStarted = false;
		bool bExitRequested = false;
	};
}
