#include "Host/DesktopInput.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/EngineLoop.h"
#include "Host/SlateLoop.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/SWindow.h"

namespace Host
{
	TSharedPtr<SWindow> FDesktopInput::FindWindow(const FGenericWindow& PlatformWindow) const
	{
		const TSharedPtr<SWindow> Window = Loop.GetWindow();
		return Window && Window->GetNativeWindow().Get() == &PlatformWindow ? Window : nullptr;
	}

	void FDesktopInput::OnMouseMove(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		FSlateApplication::Get().ProcessMouseMoveEvent(Event);
	}

	void FDesktopInput::OnMouseButtonDown(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event)
	{
		FSlateApplication::Get().ProcessMouseButtonDownEvent(Window, Event);
	}

	void FDesktopInput::OnMouseButtonUp(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		FSlateApplication::Get().ProcessMouseButtonUpEvent(Event);
	}

	void FDesktopInput::OnMouseWheel(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(Event);
	}

	void FDesktopInput::OnMouseLeave(const TSharedRef<FGenericWindow>&)
	{
		FSlateLoop::MouseLeft();
	}

	void FDesktopInput::OnKeyDown(const FKeyEvent& Event)
	{
		FSlateApplication::Get().ProcessKeyDownEvent(Event);
	}

	void FDesktopInput::OnKeyUp(const FKeyEvent& Event)
	{
		FSlateApplication::Get().ProcessKeyUpEvent(Event);
	}

	void FDesktopInput::OnKeyChar(const FCharacterEvent& Event)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(Event);
	}

	void FDesktopInput::OnComposition(const FString& Text, int32 CaretPosition)
	{
		FSlateLoop::ProcessComposition(Text, CaretPosition);
	}

	void FDesktopInput::OnSizeChanged(const TSharedRef<FGenericWindow>& Window, FIntPoint Size)
	{
		FSlateApplication::Get().OnSizeChanged(Window, Size.X, Size.Y);
	}

	void FDesktopInput::OnScaleChanged(const TSharedRef<FGenericWindow>& Window, float Scale)
	{
		if (const TSharedPtr<SWindow> SlateWindow = FindWindow(*Window))
		{
			SlateWindow->SetDPIScaleFactor(Scale);
		}
	}

	void FDesktopInput::OnActivationChanged(const TSharedRef<FGenericWindow>& Window, bool bActive)
	{
		if (const TSharedPtr<SWindow> SlateWindow = FindWindow(*Window))
		{
			const FWindowActivateEvent::EActivationType Activation = bActive ? FWindowActivateEvent::EA_Activate : FWindowActivateEvent::EA_Deactivate;
			FSlateApplication::Get().ProcessWindowActivatedEvent(FWindowActivateEvent(Activation, SlateWindow.ToSharedRef()));
		}
	}

	void FDesktopInput::OnCloseRequested(const TSharedRef<FGenericWindow>&)
	{
		Loop.RequestExit();
	}

	void FDesktopInput::OnExposed(const TSharedRef<FGenericWindow>& Window)
	{
		const TSharedPtr<SWindow> SlateWindow = FindWindow(*Window);
		FWindowSurface* Surface = SlateWindow ? FSlateLoop::FindSurface(*SlateWindow) : nullptr;
		if (Surface)
		{
			Surface->Present();
		}
	}

	void FDesktopInput::OnQuitRequested()
	{
		Loop.RequestExit();
	}
}
