#pragma once

#include "CoreMinimal.h"
#include "Host/Clipboard.h"
#include "Host/DesktopEvents.h"
#include "Sdl/SdlCursor.h"
#include "Sdl/SdlTextInput.h"
#include "Sdl/SdlWindow.h"

namespace Host
{
	/** The clipboard of the system. */
	class FSdlClipboard final : public FClipboard
	{
	public:
		virtual void SetText(const FString& Text) override;
		virtual FString GetText() override;
	};

	/** What the desktop application knows of its windows and of the mouse, and how it reads SDL's events. */
	struct FDesktopState
	{
		TArray<TWeakPtr<FSdlWindow>> Windows;
		TSharedRef<FSdlCursor> Cursor = MakeShared<FSdlCursor>();
		FSdlClipboard Clipboard;
		FSdlTextInput TextInput = FSdlTextInput(*this);
		TSet<FKey> PressedButtons;
		FVector2f MousePosition = FVector2f(0.0f, 0.0f);

		TSharedPtr<FSdlWindow> FindWindow(uint32 Id);
		/** Of the window that has the keyboard. */
		FVector2f GetPixelsPerUnit() const;
		void Dispatch(const SDL_Event& Event, FDesktopEventHandler& Handler);

	private:
		FPointerEvent MakePointerEvent(const TSharedRef<FSdlWindow>& Window, float X, float Y, const FKey& Button, float Wheel);
		void DispatchMotion(const SDL_MouseMotionEvent& Event, FDesktopEventHandler& Handler);
		void DispatchButton(const SDL_MouseButtonEvent& Event, FDesktopEventHandler& Handler);
		void DispatchWheel(const SDL_MouseWheelEvent& Event, FDesktopEventHandler& Handler);
		void DispatchKey(const SDL_KeyboardEvent& Event, FDesktopEventHandler& Handler);
		void DispatchText(const ANSICHAR* Text, FDesktopEventHandler& Handler);
		void DispatchComposition(const ANSICHAR* Text, int32 CharactersBeforeCaret, FDesktopEventHandler& Handler);
		void DispatchWindow(const SDL_WindowEvent& Event, FDesktopEventHandler& Handler);
	};
}
