#include "Host/WindowVideoMode.h"

#include "Host/Displays.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		FIntPoint GetDesktopSize()
		{
			const FDisplayMode Desktop = FDisplays::GetDesktopMode();
			return FIntPoint(Desktop.Width, Desktop.Height);
		}
	}

	FWindowVideoMode::FWindowVideoMode(const TSharedRef<SWindow>& InWindow)
		: Window(InWindow)
		, DefaultMode(GetVideoMode())
		, AskedMode(DefaultMode)
	{
		FVideoModeHost::Set(this);
	}

	FWindowVideoMode::~FWindowVideoMode()
	{
		FVideoModeHost::Set(nullptr);
	}

	FVideoMode FWindowVideoMode::GetVideoMode() const
	{
		const FVector2D Size = Window->GetClientSizeInScreen();
		// The system may have refused a mode.
		const TSharedPtr<FGenericWindow> Native = Window->GetNativeWindow();
		return { FIntPoint(FMath::RoundToInt(Size.X), FMath::RoundToInt(Size.Y)), Native ? Native->GetWindowMode() : Window->GetWindowMode() };
	}

	void FWindowVideoMode::SetVideoMode(const FVideoMode& Mode)
	{
		AskedMode = Mode;
		Window->SetWindowMode(Mode.WindowMode);
		const TSharedPtr<FGenericWindow> Native = Window->GetNativeWindow();
		if (Mode.WindowMode != EWindowMode::WindowedFullscreen)
		{
			SetSize(Mode.Size);
		}
		else if (!Native)
		{
			SetSize(GetDesktopSize());
		}
		if (Native)
		{
			// What the system made of it; it may correct the size once more by an event.
			int32 Width = 0;
			int32 Height = 0;
			Native->GetClientSize(Width, Height);
			Window->SetCachedSize(FVector2D(Width, Height));
		}
	}

	void FWindowVideoMode::SetSize(FIntPoint Size)
	{
		if (GetVideoMode().Size == Size)
		{
			return;
		}
		Window->Resize(FVector2D(Size));
		const TSharedPtr<FGenericWindow> Native = Window->GetNativeWindow();
		if (Native && Native->GetWindowMode() == EWindowMode::Windowed)
		{
			// Resizing alone leaves the title bar outside the screen.
			const FIntPoint Rest = GetDesktopSize() - Size;
			Native->MoveWindowTo(FMath::Max(Rest.X / 2, 0), FMath::Max(Rest.Y / 2, 0));
		}
	}
}
