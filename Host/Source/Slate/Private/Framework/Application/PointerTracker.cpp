#include "Framework/Application/PointerTracker.h"

#include "Framework/Application/FocusTracker.h"
#include "Framework/Application/MenuStack.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/ToolTipPresenter.h"
#include "Host/Clock.h"
#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** Seconds and pixels within which two presses are a double click. */
		constexpr double DoubleClickTime = 0.5;
		constexpr float DoubleClickDistance = 4.0f;
	}

	FWidgetPath FPointerTracker::Locate(const FPointerEvent& Event) const
	{
		return Application.LocateWindowUnderMouse(Event.GetScreenSpacePosition(), Application.GetTopLevelWindows());
	}

	FWidgetPath FPointerTracker::GetCaptorPath()
	{
		FWidgetPath Path;
		if (const TSharedPtr<SWidget> Widget = Captor.Pin())
		{
			if (!Application.FindPathToWidget(Widget.ToSharedRef(), Path))
			{
				ReleaseCapture();
			}
		}
		return Path;
	}

	template <typename AskType>
	FRoutedReply FPointerTracker::Route(const FWidgetPath& UnderMouse, AskType&& Ask)
	{
		const FWidgetPath CaptorPath = GetCaptorPath();
		return CaptorPath.IsValid() ? ToLeaf(CaptorPath, Ask) : Bubble(UnderMouse, Ask);
	}

	bool FPointerTracker::Move(const FPointerEvent& InEvent)
	{
		SetPosition(InEvent.GetScreenSpacePosition());
		Application.RefreshWindows();
		const FWidgetPath UnderMouse = Locate(InEvent);
		UpdateHovering(UnderMouse, InEvent);
		if (CheckDrag(InEvent))
		{
			return true;
		}
		const uint64 Generation = Application.GetGeneration();
		const TSharedPtr<SWidget> CaptorBefore = GetCaptor();
		const FRoutedReply Routed = Route(UnderMouse, [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseMove(Target.Geometry, InEvent); });
		Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
		Application.RefreshWindows();
		if (Generation != Application.GetGeneration() || CaptorBefore != GetCaptor())
		{
			RefreshHovering();
		}
		else
		{
			UpdateCursor(UnderMouse, InEvent);
		}
		return Routed.Reply.IsEventHandled();
	}

	bool FPointerTracker::ButtonDown(const FPointerEvent& InEvent)
	{
		SetPosition(InEvent.GetScreenSpacePosition());
		PressedButtons.Add(InEvent.GetEffectingButton());
		LastPressButton = InEvent.GetEffectingButton();
		LastPressPosition = Position;
		LastPressTime = FClock::Now();
		Application.RefreshWindows();
		Application.CloseToolTip();

		const FWidgetPath CaptorPath = GetCaptorPath();
		if (CaptorPath.IsValid())
		{
			const FRoutedReply Routed = ToLeaf(CaptorPath, [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseButtonDown(Target.Geometry, InEvent); });
			Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
			return Routed.Reply.IsEventHandled();
		}
		Application.Menus->DismissOutside(Locate(InEvent));
		Application.RefreshWindows();
		const FWidgetPath Path = Locate(InEvent);
		UpdateHovering(Path, InEvent);
		const TSharedPtr<SWidget> FocusedBefore = Application.Focus->GetWidget();
		FRoutedReply Routed = Tunnel(Path, [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnPreviewMouseButtonDown(Target.Geometry, InEvent); });
		if (!Routed.Reply.IsEventHandled())
		{
			Routed = Bubble(Path, [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseButtonDown(Target.Geometry, InEvent); });
		}
		Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
		if (!Routed.Reply.ShouldSetUserFocus() && !Routed.Reply.ShouldReleaseUserFocus())
		{
			FocusUnderMouse(Path, FocusedBefore);
		}
		return Routed.Reply.IsEventHandled();
	}

	void FPointerTracker::FocusUnderMouse(const FWidgetPath& Path, const TSharedPtr<SWidget>& FocusedBefore)
	{
		if (Application.Focus->GetWidget() != FocusedBefore)
		{
			// A handler has moved it.
			return;
		}
		for (const FArrangedWidget& Arranged : Path.Widgets)
		{
			if (Arranged.Widget->SupportsKeyboardFocus())
			{
				Application.Focus->Set(Path, EFocusCause::Mouse);
				return;
			}
		}
		Application.Focus->Clear(EFocusCause::Mouse);
	}

	bool FPointerTracker::DoubleClick(const FPointerEvent& InEvent)
	{
		// A third quick press is a single one again.
		SetPosition(InEvent.GetScreenSpacePosition());
		PressedButtons.Add(InEvent.GetEffectingButton());
		Application.RefreshWindows();
		Application.CloseToolTip();
		const FRoutedReply Routed = Route(Locate(InEvent), [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseButtonDoubleClick(Target.Geometry, InEvent); });
		if (!Routed.Reply.IsEventHandled())
		{
			const bool bHandled = ButtonDown(InEvent);
			LastPressTime = -1.0e9;
			return bHandled;
		}
		LastPressTime = -1.0e9;
		Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
		return true;
	}

	bool FPointerTracker::ButtonUp(const FPointerEvent& InEvent)
	{
		SetPosition(InEvent.GetScreenSpacePosition());
		PressedButtons.Remove(InEvent.GetEffectingButton());
		if (InEvent.GetEffectingButton() == DragButton)
		{
			DragWidget.Reset();
		}
		Application.RefreshWindows();
		const FRoutedReply Routed = Route(Locate(InEvent), [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseButtonUp(Target.Geometry, InEvent); });
		Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
		RefreshHovering();
		return Routed.Reply.IsEventHandled();
	}

	bool FPointerTracker::Wheel(const FPointerEvent& InEvent)
	{
		SetPosition(InEvent.GetScreenSpacePosition());
		Application.RefreshWindows();
		Application.CloseToolTip();
		// What lies below a menu may scroll away from under it.
		Application.Menus->DismissOutside(Locate(InEvent));
		const FRoutedReply Routed = Bubble(Locate(InEvent), [&InEvent](const FArrangedWidget& Target) { return Target.Widget->OnMouseWheel(Target.Geometry, InEvent); });
		Application.ProcessReply(Routed.Path, Routed.Reply, &InEvent);
		return Routed.Reply.IsEventHandled();
	}

	void FPointerTracker::SetPosition(FVector2f NewPosition)
	{
		LastPosition = Position;
		Position = NewPosition;
		bInside = true;
		Application.RememberCursorPos(FVector2D(NewPosition));
	}

	bool FPointerTracker::IsDoubleClick(const FPointerEvent& Event) const
	{
		return Event.GetEffectingButton() == LastPressButton && FClock::Now() - LastPressTime <= DoubleClickTime
			&& FVector2f::Distance(Event.GetScreenSpacePosition(), LastPressPosition) <= DoubleClickDistance;
	}

	FPointerEvent FPointerTracker::MakeSyntheticMove() const
	{
		return FPointerEvent(0, Position, Position, PressedButtons, EKeys::Invalid, 0.0f, Application.GetModifierKeys());
	}

	void FPointerTracker::RefreshHovering()
	{
		if (!bInside)
		{
			return;
		}
		Application.RefreshWindows();
		const FPointerEvent Event = MakeSyntheticMove();
		const FWidgetPath UnderMouse = Locate(Event);
		UpdateHovering(UnderMouse, Event);
		UpdateCursor(UnderMouse, Event);
	}

	void FPointerTracker::Leave()
	{
		bInside = false;
		UpdateHovering(FWidgetPath(), MakeSyntheticMove());
	}

	void FPointerTracker::UpdateHovering(const FWidgetPath& UnderMouse, const FPointerEvent& Event)
	{
		FWidgetPath Now = UnderMouse;
		const FWidgetPath CaptorPath = GetCaptorPath();
		if (CaptorPath.IsValid())
		{
			// While the mouse is captured, others do not see it pass: only the captor and what it stands in.
			Now.Widgets.RemoveAll([&CaptorPath](const FArrangedWidget& Arranged) { return !CaptorPath.ContainsWidget(Arranged.GetWidgetPtr()); });
		}
		const FWeakWidgetPath Before = MoveTemp(Hovered);
		Hovered = FWeakWidgetPath(Now);
		for (int32 Index = Before.Widgets.Num() - 1; Index >= 0; --Index)
		{
			const TSharedPtr<SWidget> Widget = Before.Widgets[Index].Pin();
			if (Widget.IsValid() && !Now.ContainsWidget(Widget.Get()))
			{
				Widget->OnMouseLeave(Event);
			}
		}
		for (const FArrangedWidget& Arranged : Now.Widgets)
		{
			if (!Before.ContainsWidget(Arranged.GetWidgetPtr()))
			{
				Arranged.Widget->OnMouseEnter(Arranged.Geometry, Event);
			}
		}
		Application.ToolTips->Update(CaptorPath.IsValid() ? FWidgetPath() : Now, Position);
	}

	void FPointerTracker::UpdateCursor(const FWidgetPath& UnderMouse, const FPointerEvent& Event)
	{
		const FWidgetPath CaptorPath = GetCaptorPath();
		const FWidgetPath& Path = CaptorPath.IsValid() ? CaptorPath : UnderMouse;
		EMouseCursor::Type Wanted = EMouseCursor::Default;
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
		{
			const FArrangedWidget& Arranged = Path.Widgets[Index];
			const FCursorReply Reply = Arranged.Widget->OnCursorQuery(Arranged.Geometry, Event);
			if (Reply.IsEventHandled())
			{
				Wanted = Reply.GetCursorType();
				break;
			}
		}
		if (Application.GetPlatformCursor()->GetType() != Wanted)
		{
			Application.GetPlatformCursor()->SetType(Wanted);
		}
	}

	bool FPointerTracker::CheckDrag(const FPointerEvent& Event)
	{
		const TSharedPtr<SWidget> Widget = DragWidget.Pin();
		if (!Widget.IsValid() || !Application.HasTraveledFarEnoughToTriggerDrag(Event, FVector2D(DragOrigin)))
		{
			return false;
		}
		DragWidget.Reset();
		FWidgetPath Path;
		if (!Application.FindPathToWidget(Widget.ToSharedRef(), Path))
		{
			return false;
		}
		const FReply Reply = Widget->OnDragDetected(Widget->GetCachedGeometry(), Event);
		Application.ProcessReply(Path, Reply, &Event);
		return Reply.IsEventHandled();
	}

	void FPointerTracker::DetectDrag(const TSharedRef<SWidget>& Widget, FKey Button, FVector2f Origin)
	{
		DragWidget = Widget;
		DragButton = Button;
		DragOrigin = Origin;
	}

	void FPointerTracker::Capture(const TSharedRef<SWidget>& Widget)
	{
		FWidgetPath Path;
		if (Captor.HasSameObject(&Widget.Get()) || !Application.FindPathToWidget(Widget, Path))
		{
			return;
		}
		ReleaseCapture();
		Captor = Widget;
	}

	void FPointerTracker::ReleaseCapture()
	{
		const TSharedPtr<SWidget> Widget = Captor.Pin();
		Captor.Reset();
		if (Widget.IsValid())
		{
			Widget->OnMouseCaptureLost(FCaptureLostEvent(0, 0));
		}
	}

	void FPointerTracker::ValidateCapture()
	{
		GetCaptorPath();
	}

	bool FPointerTracker::IsDirectlyOver(const SWidget* Widget) const
	{
		return Hovered.GetLastWidget().HasSameObject(Widget);
	}
}
