#pragma once

#include "Host/DesktopEvents.h"

class SWindow;

namespace Host
{
	/** Brings what happens to the windows of the system to the Slate application, which must exist. */
	class FSlateEventForwarder : public FDesktopEventHandler
	{
	public:
		virtual void OnMouseMove(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) override;
		virtual void OnMouseButtonDown(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) override;
		virtual void OnMouseButtonUp(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) override;
		virtual void OnMouseWheel(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event) override;
		virtual void OnMouseLeave(const TSharedRef<FGenericWindow>& Window) override;
		virtual void OnKeyDown(const FKeyEvent& Event) override;
		virtual void OnKeyUp(const FKeyEvent& Event) override;
		virtual void OnKeyChar(const FCharacterEvent& Event) override;
		virtual void OnComposition(const FString& Text, int32 CaretPosition) override;
		virtual void OnSizeChanged(const TSharedRef<FGenericWindow>& Window, FIntPoint Size) override;
		virtual void OnScaleChanged(const TSharedRef<FGenericWindow>& Window, float Scale) override;
		virtual void OnActivationChanged(const TSharedRef<FGenericWindow>& Window, bool bActive) override;
		virtual void OnCloseRequested(const TSharedRef<FGenericWindow>& Window) override;
		virtual void OnExposed(const TSharedRef<FGenericWindow>& Window) override;
		virtual void OnQuitRequested() override;
	};
}
