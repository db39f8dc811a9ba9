#include "Host/SlateEventForwarder.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/SlateLoop.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		FSlateApplication& GetSlate()
		{
			return FSlateApplication::Get();
		}

		TSharedPtr<SWindow> FindSlateWindow(const TSharedRef<FGenericWindow>& Native)
		{
			for (const TSharedRef<SWindow>& Window : GetSlate().GetTopLevelWindows())
			{
				if (Window->GetNativeWindow() == Native)
				{
					return Window;
				}
			}
			return nullptr;
		}
	}

	void FSlateEventForwarder::OnMouseMove(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		GetSlate().ProcessMouseMoveEvent(Event);
	}

	void FSlateEventForwarder::OnMouseButtonDown(const TSharedRef<FGenericWindow>& Window, const FPointerEvent& Event)
	{
		GetSlate().ProcessMouseButtonDownEvent(Window, Event);
	}

	void FSlateEventForwarder::OnMouseButtonUp(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		GetSlate().ProcessMouseButtonUpEvent(Event);
	}

	void FSlateEventForwarder::OnMouseWheel(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event)
	{
		GetSlate().ProcessMouseWheelOrGestureEvent(Event);
	}

	void FSlateEventForwarder::OnMouseLeave(const TSharedRef<FGenericWindow>&)
	{
		FSlateLoop::MouseLeft();
	}

	void FSlateEventForwarder::OnKeyDown(const FKeyEvent& Event)
	{
		GetSlate().ProcessKeyDownEvent(Event);
	}

	void FSlateEventForwarder::OnKeyUp(const FKeyEvent& Event)
	{
		GetSlate().ProcessKeyUpEvent(Event);
	}

	void FSlateEventForwarder::OnKeyChar(const FCharacterEvent& Event)
	{
		GetSlate().ProcessKeyCharEvent(Event);
	}

	void FSlateEventForwarder::OnComposition(const FString& Text, int32 CaretPosition)
	{
		FSlateLoop::ProcessComposition(Text, CaretPosition);
	}

	void FSlateEventForwarder::OnSizeChanged(const TSharedRef<FGenericWindow>& Window, FIntPoint Size)
	{
		GetSlate().OnSizeChanged(Window, Size.X, Size.Y, Window->IsMinimized());
	}

	void FSlateEventForwarder::OnScaleChanged(const TSharedRef<FGenericWindow>& Window, float Scale)
	{
		if (const TSharedPtr<SWindow> SlateWindow = FindSlateWindow(Window))
		{
			SlateWindow->SetDPIScaleFactor(Scale);
		}
	}

	void FSlateEventForwarder::OnActivationChanged(const TSharedRef<FGenericWindow>& Window, bool bActive)
	{
		if (const TSharedPtr<SWindow> SlateWindow = FindSlateWindow(Window))
		{
			const auto Type = bActive ? FWindowActivateEvent::EA_Activate : FWindowActivateEvent::EA_Deactivate;
			GetSlate().ProcessWindowActivatedEvent(FWindowActivateEvent(Type, SlateWindow.ToSharedRef()));
		}
	}

	void FSlateEventForwarder::OnCloseRequested(const TSharedRef<FGenericWindow>& Window)
	{
		GetSlate().OnWindowClose(Window);
	}

	void FSlateEventForwarder::OnExposed(const TSharedRef<FGenericWindow>& Window)
	{
		if (const TSharedPtr<SWindow> SlateWindow = FindSlateWindow(Window))
		{
			SlateWindow->GetRoot().DamageEverything();
		}
	}

	void FSlateEventForwarder::OnQuitRequested()
	{
		// Handlers may open and close windows.
		const TArray<TSharedRef<SWindow>> Windows = GetSlate().GetTopLevelWindows();
		for (const TSharedRef<SWindow>& Window : Windows)
		{
			Window->RequestDestroyWindow();
		}
	}
}
