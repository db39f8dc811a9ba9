#include "Sdl/SdlCursor.h"

#include "Sdl/SdlWindow.h"

namespace Host
{
	namespace
	{
		SDL_SystemCursor ToShape(EMouseCursor::Type Type)
		{
			switch (Type)
			{
			case EMouseCursor::TextEditBeam:
				return SDL_SYSTEM_CURSOR_IBEAM;
			case EMouseCursor::ResizeLeftRight:
				return SDL_SYSTEM_CURSOR_SIZEWE;
			case EMouseCursor::ResizeUpDown:
				return SDL_SYSTEM_CURSOR_SIZENS;
			case EMouseCursor::ResizeSouthEast:
				return SDL_SYSTEM_CURSOR_SIZENWSE;
			case EMouseCursor::ResizeSouthWest:
				return SDL_SYSTEM_CURSOR_SIZENESW;
			case EMouseCursor::CardinalCross:
				return SDL_SYSTEM_CURSOR_SIZEALL;
			case EMouseCursor::Crosshairs:
			case EMouseCursor::EyeDropper:
				return SDL_SYSTEM_CURSOR_CROSSHAIR;
			case EMouseCursor::Hand:
			case EMouseCursor::GrabHand:
			case EMouseCursor::GrabHandClosed:
				return SDL_SYSTEM_CURSOR_HAND;
			case EMouseCursor::SlashedCircle:
				return SDL_SYSTEM_CURSOR_NO;
			default:
				return SDL_SYSTEM_CURSOR_ARROW;
			}
		}
	}

	FSdlCursor::~FSdlCursor()
	{
		Release();
	}

	void FSdlCursor::Release()
	{
		for (SDL_Cursor*& Shape : Shapes)
		{
			if (Shape)
			{
				FSdl::Get().FreeCursor(Shape);
				Shape = nullptr;
			}
		}
	}

	void FSdlCursor::SetPosition(const int32 X, const int32 Y)
	{
		Position = FVector2D(X, Y);
		if (const TSharedPtr<FSdlWindow> Pinned = Window.Pin())
		{
			const FVector2f PixelsPerUnit = Pinned->GetPixelsPerUnit();
			FSdl::Get().WarpMouseInWindow(Pinned->GetSdlWindow(), FMath::RoundToInt(static_cast<float>(X) / PixelsPerUnit.X), FMath::RoundToInt(static_cast<float>(Y) / PixelsPerUnit.Y));
		}
	}

	void FSdlCursor::SetType(const EMouseCursor::Type InNewCursor)
	{
		if (InNewCursor != Type)
		{
			Type = InNewCursor;
			Apply();
		}
	}

	void FSdlCursor::Show(bool bShow)
	{
		if (bShow != bShown)
		{
			bShown = bShow;
			Apply();
		}
	}

	void FSdlCursor::Update(const TSharedPtr<FSdlWindow>& InWindow, FVector2D InPosition)
	{
		Window = InWindow;
		Position = InPosition;
	}

	void FSdlCursor::Apply()
	{
		const FSdl& Sdl = FSdl::Get();
		const bool bVisible = bShown && Type != EMouseCursor::None;
		Sdl.ShowCursor(bVisible ? SDL_ENABLE : SDL_DISABLE);
		if (!bVisible)
		{
			return;
		}
		SDL_Cursor*& Shape = Shapes[ToShape(Type)];
		if (!Shape)
		{
			Shape = Sdl.CreateSystemCursor(ToShape(Type));
		}
		if (Shape)
		{
			Sdl.SetCursor(Shape);
		}
	}
}
