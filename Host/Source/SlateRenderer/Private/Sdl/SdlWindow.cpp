#include "Sdl/SdlWindow.h"

#include "HAL/PlatformMisc.h"
#include "RendererLog.h"

namespace Host
{
	namespace
	{
		constexpr float StandardDotsPerInch = 96.0f;
		/** Below this, screens are meant to be used without scaling, whatever they measure. */
		constexpr float LeastAutomaticScale = 1.5f;
		constexpr float LargestScale = 8.0f;

		/** Scale that the user asks for; 0 when there is none. */
		float GetRequestedScale()
		{
			const FString Text = FPlatformMisc::GetEnvironmentVariable(TEXT("HALVEX_DPI_SCALE"));
			const float Scale = Text.IsEmpty() ? 0.0f : FCString::Atof(*Text);
			return Scale > 0.0f ? FMath::Clamp(Scale, 0.25f, LargestScale) : 0.0f;
		}

		uint32 ToFullscreenFlag(EWindowMode::Type Mode)
		{
			switch (Mode)
			{
			case EWindowMode::Fullscreen:
				return SDL_WINDOW_FULLSCREEN;
			case EWindowMode::WindowedFullscreen:
				return SDL_WINDOW_FULLSCREEN_DESKTOP;
			default:
				return 0;
			}
		}
	}

	FSdlWindow::FSdlWindow(SDL_Window* InWindow)
		: Window(InWindow)
		, Id(FSdl::Get().GetWindowID(InWindow))
	{
	}

	FSdlWindow::~FSdlWindow()
	{
		Destroy();
	}

	void FSdlWindow::Destroy()
	{
		if (Window)
		{
			FSdl::Get().DestroyWindow(Window);
			Window = nullptr;
		}
	}

	bool FSdlWindow::HasFlag(uint32 Flag) const
	{
		return Window && (FSdl::Get().GetWindowFlags(Window) & Flag) != 0;
	}

	FVector2f FSdlWindow::GetPixelsPerUnit() const
	{
		int Width = 0;
		int Height = 0;
		int PixelWidth = 0;
		int PixelHeight = 0;
		if (Window)
		{
			FSdl::Get().GetWindowSize(Window, &Width, &Height);
			FSdl::Get().GetWindowSizeInPixels(Window, &PixelWidth, &PixelHeight);
		}
		if (Width <= 0 || Height <= 0 || PixelWidth <= 0 || PixelHeight <= 0)
		{
			return FVector2f(1.0f, 1.0f);
		}
		return FVector2f(static_cast<float>(PixelWidth) / static_cast<float>(Width), static_cast<float>(PixelHeight) / static_cast<float>(Height));
	}

	void FSdlWindow::SetPixelSize(int32 Width, int32 Height)
	{
		const FVector2f PixelsPerUnit = GetPixelsPerUnit();
		FSdl::Get().SetWindowSize(Window, FMath::RoundToInt(static_cast<float>(Width) / PixelsPerUnit.X), FMath::RoundToInt(static_cast<float>(Height) / PixelsPerUnit.Y));
	}

	void FSdlWindow::ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height)
	{
		if (!Window)
		{
			return;
		}
		if (Mode == EWindowMode::Fullscreen)
		{
			const FSdl& Sdl = FSdl::Get();
			SDL_DisplayMode Wanted = {};
			SDL_DisplayMode Closest = {};
			Wanted.w = Width;
			Wanted.h = Height;
			if (Sdl.GetClosestDisplayMode(Sdl.GetWindowDisplayIndex(Window), &Wanted, &Closest))
			{
				Sdl.SetWindowDisplayMode(Window, &Closest);
			}
			return;
		}
		MoveWindowTo(X, Y);
		SetPixelSize(Width, Height);
	}

	void FSdlWindow::MoveWindowTo(int32 X, int32 Y)
	{
		if (Window)
		{
			FSdl::Get().SetWindowPosition(Window, X, Y);
		}
	}

	void FSdlWindow::BringToFront(bool)
	{
		if (Window)
		{
			FSdl::Get().RaiseWindow(Window);
		}
	}

	void FSdlWindow::Minimize()
	{
		if (Window)
		{
			FSdl::Get().MinimizeWindow(Window);
		}
	}

	void FSdlWindow::Maximize()
	{
		if (Window)
		{
			FSdl::Get().MaximizeWindow(Window);
		}
	}

	void FSdlWindow::Restore()
	{
		if (Window)
		{
			FSdl::Get().RestoreWindow(Window);
		}
	}

	void FSdlWindow::Show()
	{
		if (Window)
		{
			FSdl::Get().ShowWindow(Window);
		}
	}

	void FSdlWindow::Hide()
	{
		if (Window)
		{
			FSdl::Get().HideWindow(Window);
		}
	}

	void FSdlWindow::CoverDesktop()
	{
		// Filling the screen is the window manager's work; where there is none, only size and place count.
		const FSdl& Sdl = FSdl::Get();
		const int Display = Sdl.GetWindowDisplayIndex(Window);
		SDL_DisplayMode Desktop = {};
		if (Display >= 0 && Sdl.GetDesktopDisplayMode(Display, &Desktop) == 0)
		{
			Sdl.SetWindowSize(Window, Desktop.w, Desktop.h);
			Sdl.SetWindowPosition(Window, static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(Display)), static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(Display)));
		}
	}

	void FSdlWindow::SetWindowMode(EWindowMode::Type InNewWindowMode)
	{
		if (!Window || InNewWindowMode == Mode)
		{
			return;
		}
		const FSdl& Sdl = FSdl::Get();
		if (InNewWindowMode != EWindowMode::Windowed)
		{
			CoverDesktop();
		}
		if (Sdl.SetWindowFullscreen(Window, ToFullscreenFlag(InNewWindowMode)) != 0)
		{
			UE_LOG(LogSlateRenderer, Warning, TEXT("The window mode was not changed: %s"), *Sdl.GetErrorText());
			return;
		}
		Mode = InNewWindowMode;
	}

	bool FSdlWindow::IsMaximized() const
	{
		return HasFlag(SDL_WINDOW_MAXIMIZED);
	}

	bool FSdlWindow::IsMinimized() const
	{
		return HasFlag(SDL_WINDOW_MINIMIZED);
	}

	bool FSdlWindow::IsVisible() const
	{
		return HasFlag(SDL_WINDOW_SHOWN);
	}

	bool FSdlWindow::IsForegroundWindow() const
	{
		return HasFlag(SDL_WINDOW_INPUT_FOCUS);
	}

	void FSdlWindow::SetText(const TCHAR* const Text)
	{
		if (Window)
		{
			FSdl::Get().SetWindowTitle(Window, TCHAR_TO_UTF8(Text));
		}
	}

	void FSdlWindow::SetWindowFocus()
	{
		if (Window)
		{
			FSdl::Get().SetWindowInputFocus(Window);
		}
	}

	void FSdlWindow::GetClientSize(int32& OutWidth, int32& OutHeight) const
	{
		OutWidth = 0;
		OutHeight = 0;
		if (Window)
		{
			FSdl::Get().GetWindowSizeInPixels(Window, &OutWidth, &OutHeight);
		}
	}

	float FSdlWindow::GetDPIScaleFactor() const
	{
		const float Requested = GetRequestedScale();
		if (Requested > 0.0f || !Window)
		{
			return Requested > 0.0f ? Requested : 1.0f;
		}
		const float PixelsPerUnit = GetPixelsPerUnit().X;
		if (PixelsPerUnit > 1.0f)
		{
			return PixelsPerUnit;
		}
		float DotsPerInch = 0.0f;
		const FSdl& Sdl = FSdl::Get();
		if (Sdl.GetDisplayDPI(Sdl.GetWindowDisplayIndex(Window), &DotsPerInch, nullptr, nullptr) != 0)
		{
			return 1.0f;
		}
		const float Quarters = FMath::RoundToFloat(DotsPerInch / StandardDotsPerInch * 4.0f) / 4.0f;
		return Quarters >= LeastAutomaticScale && Quarters <= LargestScale ? Quarters : 1.0f;
	}
}
