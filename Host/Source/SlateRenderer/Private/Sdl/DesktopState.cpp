#include "Sdl/DesktopState.h"

#include "Sdl/SdlKeys.h"

namespace Host
{
	void FSdlClipboard::SetText(const FString& Text)
	{
		FSdl::Get().SetClipboardText(TCHAR_TO_UTF8(*Text));
	}

	FString FSdlClipboard::GetText()
	{
		const FSdl& Sdl = FSdl::Get();
		char* const Text = Sdl.GetClipboardText();
		const FString Result(UTF8_TO_TCHAR(Text ? Text : ""));
		Sdl.free(Text);
		return Result;
	}

	TSharedPtr<FSdlWindow> FDesktopState::FindWindow(uint32 Id)
	{
		for (int32 Index = Windows.Num() - 1; Index >= 0; --Index)
		{
			const TSharedPtr<FSdlWindow> Window = Windows[Index].Pin();
			if (!Window.IsValid())
			{
				Windows.RemoveAt(Index);
			}
			else if (Window->GetId() == Id && Window->GetSdlWindow())
			{
				return Window;
			}
		}
		return nullptr;
	}

	FVector2f FDesktopState::GetPixelsPerUnit() const
	{
		for (const TWeakPtr<FSdlWindow>& Weak : Windows)
		{
			const TSharedPtr<FSdlWindow> Window = Weak.Pin();
			if (Window.IsValid() && Window->IsForegroundWindow())
			{
				return Window->GetPixelsPerUnit();
			}
		}
		return FVector2f(1.0f, 1.0f);
	}

	FPointerEvent FDesktopState::MakePointerEvent(const TSharedRef<FSdlWindow>& Window, float X, float Y, const FKey& Button, float Wheel)
	{
		const FVector2f PixelsPerUnit = Window->GetPixelsPerUnit();
		const FVector2f Last = MousePosition;
		MousePosition = FVector2f(X * PixelsPerUnit.X, Y * PixelsPerUnit.Y);
		Cursor->Update(Window, FVector2D(MousePosition.X, MousePosition.Y));
		const FModifierKeysState Modifiers = SdlKeys::ToModifiers(static_cast<uint16>(FSdl::Get().GetModState()));
		return FPointerEvent(0, MousePosition, Last, PressedButtons, Button, Wheel, Modifiers);
	}

	void FDesktopState::DispatchMotion(const SDL_MouseMotionEvent& Event, FDesktopEventHandler& Handler)
	{
		if (const TSharedPtr<FSdlWindow> Window = FindWindow(Event.windowID))
		{
			const TSharedRef<FSdlWindow> Ref = Window.ToSharedRef();
			Handler.OnMouseMove(Ref, MakePointerEvent(Ref, static_cast<float>(Event.x), static_cast<float>(Event.y), EKeys::Invalid, 0.0f));
		}
	}

	void FDesktopState::DispatchButton(const SDL_MouseButtonEvent& Event, FDesktopEventHandler& Handler)
	{
		const TSharedPtr<FSdlWindow> Window = FindWindow(Event.windowID);
		const FKey Button = SdlKeys::ToMouseButton(Event.button);
		if (!Window.IsValid() || !Button.IsValid())
		{
			return;
		}
		const TSharedRef<FSdlWindow> Ref = Window.ToSharedRef();
		const float X = static_cast<float>(Event.x);
		const float Y = static_cast<float>(Event.y);
		if (Event.state != SDL_PRESSED)
		{
			PressedButtons.Remove(Button);
			Handler.OnMouseButtonUp(Ref, MakePointerEvent(Ref, X, Y, Button, 0.0f));
			return;
		}
		PressedButtons.Add(Button);
		Handler.OnMouseButtonDown(Ref, MakePointerEvent(Ref, X, Y, Button, 0.0f));
	}

	void FDesktopState::DispatchWheel(const SDL_MouseWheelEvent& Event, FDesktopEventHandler& Handler)
	{
		if (const TSharedPtr<FSdlWindow> Window = FindWindow(Event.windowID))
		{
			const TSharedRef<FSdlWindow> Ref = Window.ToSharedRef();
			const float Delta = Event.direction == SDL_MOUSEWHEEL_FLIPPED ? -Event.preciseY : Event.preciseY;
			Handler.OnMouseWheel(Ref, MakePointerEvent(Ref, static_cast<float>(Event.mouseX), static_cast<float>(Event.mouseY), EKeys::MouseWheelAxis, Delta));
		}
	}

	void FDesktopState::DispatchKey(const SDL_KeyboardEvent& Event, FDesktopEventHandler& Handler)
	{
		const FKey Key = SdlKeys::ToKey(Event.keysym.sym);
		if (!Key.IsValid())
		{
			return;
		}
		// Codes of keys that write nothing lie beyond those of characters.
		const uint32 Code = static_cast<uint32>(Event.keysym.sym);
		const uint32 Character = (Code & SDLK_SCANCODE_MASK) != 0 ? 0 : Code;
		const FKeyEvent KeyEvent(Key, SdlKeys::ToModifiers(Event.keysym.mod), 0, Event.repeat != 0, Character, Code);
		if (Event.state == SDL_PRESSED)
		{
			Handler.OnKeyDown(KeyEvent);
		}
		else
		{
			Handler.OnKeyUp(KeyEvent);
		}
	}

	void FDesktopState::DispatchText(const ANSICHAR* Text, FDesktopEventHandler& Handler)
	{
		const FString Units(UTF8_TO_TCHAR(Text));
		const FModifierKeysState Modifiers = SdlKeys::ToModifiers(static_cast<uint16>(FSdl::Get().GetModState()));
		for (const TCHAR Unit : Units)
		{
			Handler.OnKeyChar(FCharacterEvent(Unit, Modifiers, 0, false));
		}
	}

	void FDesktopState::DispatchComposition(const ANSICHAR* Text, int32 CharactersBeforeCaret, FDesktopEventHandler& Handler)
	{
		const FString Units(UTF8_TO_TCHAR(Text));
		int32 Caret = 0;
		for (int32 Count = 0; Count < CharactersBeforeCaret && Caret < Units.Len(); ++Count)
		{
			// Characters beyond 16 bits are two units.
			const bool bPair = Units[Caret] >= 0xD800 && Units[Caret] < 0xDC00 && Caret + 1 < Units.Len();
			Caret += bPair ? 2 : 1;
		}
		Handler.OnComposition(Units, Caret);
	}

	void FDesktopState::DispatchWindow(const SDL_WindowEvent& Event, FDesktopEventHandler& Handler)
	{
		const TSharedPtr<FSdlWindow> Found = FindWindow(Event.windowID);
		if (!Found.IsValid())
		{
			return;
		}
		const TSharedRef<FSdlWindow> Window = Found.ToSharedRef();
		switch (Event.event)
		{
		case SDL_WINDOWEVENT_SIZE_CHANGED:
		{
			FIntPoint Size(0, 0);
			Window->GetClientSize(Size.X, Size.Y);
			Handler.OnSizeChanged(Window, Size);
			break;
		}
		case SDL_WINDOWEVENT_DISPLAY_CHANGED:
			Handler.OnScaleChanged(Window, Window->GetDPIScaleFactor());
			break;
		case SDL_WINDOWEVENT_FOCUS_GAINED:
			Handler.OnActivationChanged(Window, true);
			break;
		case SDL_WINDOWEVENT_FOCUS_LOST:
			Handler.OnActivationChanged(Window, false);
			break;
		case SDL_WINDOWEVENT_LEAVE:
			Handler.OnMouseLeave(Window);
			break;
		case SDL_WINDOWEVENT_EXPOSED:
			Handler.OnExposed(Window);
			break;
		case SDL_WINDOWEVENT_CLOSE:
			Handler.OnCloseRequested(Window);
			break;
		default:
			break;
		}
	}

	void FDesktopState::Dispatch(const SDL_Event& Event, FDesktopEventHandler& Handler)
	{
		switch (Event.type)
		{
		case SDL_MOUSEMOTION:
			DispatchMotion(Event.motion, Handler);
			break;
		case SDL_MOUSEBUTTONDOWN:
		case SDL_MOUSEBUTTONUP:
			DispatchButton(Event.button, Handler);
			break;
		case SDL_MOUSEWHEEL:
			DispatchWheel(Event.wheel, Handler);
			break;
		case SDL_KEYDOWN:
		case SDL_KEYUP:
			DispatchKey(Event.key, Handler);
			break;
		case SDL_TEXTINPUT:
			DispatchText(Event.text.text, Handler);
			break;
		case SDL_TEXTEDITING:
			DispatchComposition(Event.edit.text, Event.edit.start, Handler);
			break;
		case SDL_TEXTEDITING_EXT:
			DispatchComposition(Event.editExt.text ? Event.editExt.text : "", Event.editExt.start, Handler);
			FSdl::Get().free(Event.editExt.text);
			break;
		case SDL_WINDOWEVENT:
			DispatchWindow(Event.window, Handler);
			break;
		case SDL_QUIT:
			Handler.OnQuitRequested();
			break;
		default:
			break;
		}
	}
}
