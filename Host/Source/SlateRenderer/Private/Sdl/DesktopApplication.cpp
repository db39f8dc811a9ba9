#include "Host/DesktopApplication.h"

#include <atomic>
#include <cmath>

#include "Host/Displays.h"
#include "RendererLog.h"
#include "Sdl/DesktopState.h"

namespace Host
{
	namespace
	{
		/** Type of the event that ends a wait; 0 while there is no desktop. Read by other threads. */
		std::atomic<uint32> WakeEventType = 0;
		/** A wake is under way that no wait has seen: one event is enough for any number of calls. */
		std::atomic<bool> bWakePending = false;

		FDisplayMode ToMode(const SDL_DisplayMode& Mode)
		{
			return { Mode.w, Mode.h, Mode.refresh_rate };
		}

		void DescribeDisplay(const FSdl& Sdl)
		{
			SDL_DisplayMode Desktop = {};
			if (Sdl.GetDesktopDisplayMode(0, &Desktop) != 0)
			{
				return;
			}
			TArray<FDisplayMode> Modes;
			const int32 NumModes = Sdl.GetNumDisplayModes(0);
			for (int32 Index = 0; Index < NumModes; ++Index)
			{
				SDL_DisplayMode Mode = {};
				if (Sdl.GetDisplayMode(0, Index, &Mode) == 0)
				{
					Modes.Add(ToMode(Mode));
				}
			}
			FDisplays::Set(MoveTemp(Modes), ToMode(Desktop));
		}

		uint32 ToFlags(const FDesktopWindowSettings& Settings)
		{
			uint32 Flags = SDL_WINDOW_HIDDEN | SDL_WINDOW_ALLOW_HIGHDPI;
			const auto AddIf = [&Flags](bool bCondition, uint32 Flag) { Flags |= bCondition ? Flag : 0; };
			AddIf(Settings.bOpenGl, SDL_WINDOW_OPENGL);
			AddIf(Settings.bResizable, SDL_WINDOW_RESIZABLE);
			AddIf(Settings.bMaximized, SDL_WINDOW_MAXIMIZED);
			return Flags;
		}
	}

	FDesktopApplication::FDesktopApplication(TUniquePtr<FDesktopState> InState)
		: State(MoveTemp(InState))
	{
		FClipboard::Use(&State->Clipboard);
	}

	TUniquePtr<FDesktopApplication> FDesktopApplication::Create(FString& OutError)
	{
		checkf(WakeEventType == 0, TEXT("there is a desktop application already"));
		const FSdl* Sdl = FSdl::Load(OutError);
		if (!Sdl)
		{
			return nullptr;
		}
		Sdl->SetMainReady();
		// Pixels drawn here go to the window as they are; OpenGL would be started just to copy them.
		Sdl->SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
		Sdl->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
		Sdl->SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
		Sdl->SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
		// What is composed may be longer than an event of the old kind holds.
		Sdl->SetHint(SDL_HINT_IME_SUPPORT_EXTENDED_TEXT, "1");
		if (Sdl->Init(SDL_INIT_VIDEO) != 0)
		{
			OutError = FString::Printf(TEXT("there is no display to open windows on (%s)"), *Sdl->GetErrorText());
			return nullptr;
		}
		// SDL starts with it, as if all windows were texts.
		Sdl->StopTextInput();
		// A wake that an earlier desktop did not see went with its queue.
		bWakePending = false;
		WakeEventType = Sdl->RegisterEvents(1);
		DescribeDisplay(*Sdl);
		return TUniquePtr<FDesktopApplication>(new FDesktopApplication(MakeUnique<FDesktopState>()));
	}

	FDesktopApplication::~FDesktopApplication()
	{
		WakeEventType = 0;
		FClipboard::Use(nullptr);
		FDisplays::Reset();
		for (const TWeakPtr<FSdlWindow>& Weak : State->Windows)
		{
			if (const TSharedPtr<FSdlWindow> Window = Weak.Pin())
			{
				Window->Destroy();
			}
		}
		State->Cursor->Release();
		FSdl::Get().Quit();
	}

	TSharedPtr<FGenericWindow> FDesktopApplication::MakeWindow(const FDesktopWindowSettings& Settings)
	{
		const FSdl& Sdl = FSdl::Get();
		SDL_Window* const SdlWindow = Sdl.CreateWindow(TCHAR_TO_UTF8(*Settings.Title), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, Settings.Size.X, Settings.Size.Y, ToFlags(Settings));
		if (!SdlWindow)
		{
			UE_LOG(LogSlateRenderer, Error, TEXT("A window was not opened: %s"), *Sdl.GetErrorText());
			return nullptr;
		}
		const TSharedRef<FSdlWindow> Window = MakeShared<FSdlWindow>(SdlWindow);
		State->Windows.Add(Window);
		Window->SetWindowMode(Settings.Mode);
		return Window;
	}

	void FDesktopApplication::PumpEvents(FDesktopEventHandler& Handler)
	{
		const FSdl& Sdl = FSdl::Get();
		SDL_Event Event;
		while (Sdl.PollEvent(&Event))
		{
			if (Event.type == WakeEventType)
			{
				bWakePending = false;
			}
			else
			{
				State->Dispatch(Event, Handler);
			}
		}
	}

	void FDesktopApplication::WaitForEvents(double MaxSeconds)
	{
		const double Milliseconds = std::ceil(FMath::Min(MaxSeconds, 1.0e6) * 1000.0);
		FSdl::Get().WaitEventTimeout(nullptr, MaxSeconds < 0.0 ? -1 : static_cast<int>(Milliseconds));
	}

	void FDesktopApplication::Wake()
	{
		const uint32 Type = WakeEventType;
		if (Type != 0 && !bWakePending.exchange(true))
		{
			SDL_Event Event = {};
			Event.type = Type;
			FSdl::Get().PushEvent(&Event);
		}
	}

	TSharedRef<ICursor> FDesktopApplication::GetCursor() const
	{
		return State->Cursor;
	}

	FTextInputDevice& FDesktopApplication::GetTextInput()
	{
		return State->TextInput;
	}
}
