#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "Input/Events.h"

namespace Host
{
	/** Takes what happens to the windows of the system. Positions are pixels of the window's client area. */
	class FDesktopEventHandler
	{
	public:
		virtual ~FDesktopEventHandler() = default;

		virtual void OnMouseMove(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) = 0;
		virtual void OnMouseButtonDown(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) = 0;
		virtual void OnMouseButtonUp(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) = 0;
		virtual void OnMouseWheel(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) = 0;
		/** The cursor left the window. */
		virtual void OnMouseLeave(const TSharedRef<FGenericWindow>& Window) = 0;

		virtual void OnKeyDown(const FKeyEvent& Event) = 0;
		virtual void OnKeyUp(const FKeyEvent& Event) = 0;
		/** One UTF-16 unit of text that was entered, by keys or by an input method. */
		virtual void OnKeyChar(const FCharacterEvent& Event) = 0;
		/**
		 * Text that an input method is still composing; empty when it ends.
		 * @param CaretPosition	UTF-16 units from the start of the text
		 */
		virtual void OnComposition(const FString& Text, int32 CaretPosition) = 0;

		virtual void OnSizeChanged(const TSharedRef<FGenericWindow>& Window, FIntPoint Size) = 0;
		/** Pixels a slate unit changed, as when the window was moved to another screen. */
		virtual void OnScaleChanged(const TSharedRef<FGenericWindow>& Window, float Scale) = 0;
		virtual void OnActivationChanged(const TSharedRef<FGenericWindow>& Window, bool bActive) = 0;
		/** The user wants the window closed; nothing was closed yet. */
		virtual void OnCloseRequested(const TSharedRef<FGenericWindow>& Window) = 0;
		/** The system lost what the window showed. */
		virtual void OnExposed(const TSharedRef<FGenericWindow>& Window) = 0;
		/** The user or the system wants the program to end. */
		virtual void OnQuitRequested() = 0;
	};
}
