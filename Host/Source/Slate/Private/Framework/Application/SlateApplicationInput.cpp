#include "Framework/Application/EventRoute.h"
#include "Framework/Application/FocusTracker.h"
#include "Framework/Application/MemoryCursor.h"
#include "Framework/Application/MenuStack.h"
#include "Framework/Application/NavigationSearch.h"
#include "Framework/Application/PointerTracker.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/TextInput.h"
#include "Framework/Application/ToolTipPresenter.h"
#include "Framework/Application/WindowSurfaces.h"
#include "Widgets/SWindow.h"

using Host::FRoutedReply;

// Mouse.

bool FSlateApplication::ProcessMouseMoveEvent(const FPointerEvent& MouseEvent, bool bIsSynthetic)
{
	ModifierKeys = MouseEvent.GetModifierKeys();
	if (bIsSynthetic)
	{
		Pointer->SetPosition(MouseEvent.GetScreenSpacePosition());
		Pointer->RefreshHovering();
		return false;
	}
	return Pointer->Move(MouseEvent);
}

bool FSlateApplication::ProcessMouseButtonDownEvent(const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent)
{
	if (Pointer->IsDoubleClick(InMouseEvent))
	{
		return ProcessMouseButtonDoubleClickEvent(PlatformWindow, InMouseEvent);
	}
	ModifierKeys = InMouseEvent.GetModifierKeys();
	const TSharedPtr<SWindow> Window = PlatformWindow.IsValid() ? FindWindow(PlatformWindow.Get()) : nullptr;
	if (Window.IsValid() && Window != GetActiveTopLevelWindow())
	{
		SetActiveWindow(Window);
	}
	return Pointer->ButtonDown(InMouseEvent);
}

bool FSlateApplication::ProcessMouseButtonDoubleClickEvent(const TSharedPtr<FGenericWindow>&, const FPointerEvent& InMouseEvent)
{
	ModifierKeys = InMouseEvent.GetModifierKeys();
	return Pointer->DoubleClick(InMouseEvent);
}

bool FSlateApplication::ProcessMouseButtonUpEvent(const FPointerEvent& MouseEvent)
{
	ModifierKeys = MouseEvent.GetModifierKeys();
	return Pointer->ButtonUp(MouseEvent);
}

bool FSlateApplication::ProcessMouseWheelOrGestureEvent(const FPointerEvent& InWheelEvent, const FPointerEvent*)
{
	ModifierKeys = InWheelEvent.GetModifierKeys();
	return Pointer->Wheel(InWheelEvent);
}

bool FSlateApplication::ProcessWindowActivatedEvent(const FWindowActivateEvent& ActivateEvent)
{
	const TSharedRef<SWindow> Window = ActivateEvent.GetAffectedWindow();
	if (ActivateEvent.GetActivationType() != FWindowActivateEvent::EA_Deactivate)
	{
		SetActiveWindow(Window);
		return true;
	}
	DismissAllMenus();
	CloseToolTip();
	ReleaseMouseCapture();
	if (ActiveWindow.HasSameObject(&Window.Get()))
	{
		ActiveWindow.Reset();
	}
	if (const TSharedPtr<SWidget> Focused = Focus->GetWidget())
	{
		WidgetToFocusAgain = Focused;
		Focus->Clear(EFocusCause::WindowActivate);
	}
	return true;
}

void FSlateApplication::ProcessReply(const FWidgetPath& CurrentEventPath, const FReply& TheReply, const FPointerEvent* InMouseEvent)
{
	if (!TheReply.IsEventHandled())
	{
		return;
	}
	if (TheReply.ShouldReleaseMouse())
	{
		ReleaseMouseCapture();
	}
	if (TheReply.ShouldReleaseUserFocus())
	{
		Focus->Clear(TheReply.GetFocusCause());
	}
	else if (TheReply.ShouldSetUserFocus())
	{
		SetUserFocus(0, TheReply.GetUserFocusRecepient(), TheReply.GetFocusCause());
	}
	if (const TSharedPtr<SWidget> Captor = TheReply.GetMouseCaptor())
	{
		Pointer->Capture(Captor.ToSharedRef());
	}
	if (TheReply.GetRequestedMousePos().IsSet())
	{
		const FIntPoint Position = TheReply.GetRequestedMousePos().GetValue();
		SetCursorPos(FVector2D(Position.X, Position.Y));
	}
	if (const TSharedPtr<SWidget> DragWidget = TheReply.GetDetectDragRequest())
	{
		const FVector2f Origin = InMouseEvent ? FVector2f(InMouseEvent->GetScreenSpacePosition()) : Pointer->GetPosition();
		Pointer->DetectDrag(DragWidget.ToSharedRef(), TheReply.GetDetectDragRequestButton(), Origin);
	}
	if (TheReply.GetNavigationType() != EUINavigation::Invalid && CurrentEventPath.IsValid())
	{
		AttemptNavigation(TheReply.GetNavigationType());
	}
}

const TSet<FKey>& FSlateApplication::GetPressedMouseButtons() const
{
	return Pointer->GetPressedButtons();
}

bool FSlateApplication::HasTraveledFarEnoughToTriggerDrag(const FPointerEvent& PointerEvent, const FVector2D ScreenSpaceOrigin) const
{
	return FVector2D::Distance(PointerEvent.GetScreenSpacePosition(), ScreenSpaceOrigin) >= GetDragTriggerDistance();
}

// Cursor.

FVector2D FSlateApplication::GetCursorPos() const
{
	return Cursor->GetPosition();
}

FVector2D FSlateApplication::GetLastCursorPos() const
{
	return FVector2D(Pointer->GetLastPosition());
}

void FSlateApplication::SetCursorPos(const FVector2D& MouseCoordinate)
{
	Cursor->SetPosition(FMath::TruncToInt(MouseCoordinate.X), FMath::TruncToInt(MouseCoordinate.Y));
	Pointer->SetPosition(FVector2f(MouseCoordinate));
}

void FSlateApplication::SetPlatformCursor(TSharedRef<ICursor> InCursor)
{
	Cursor = InCursor;
}

void FSlateApplication::RememberCursorPos(FVector2D Position)
{
	if (&Cursor.Get() == &RememberedCursor.Get())
	{
		RememberedCursor->Remember(Position);
	}
}

// Capture.

TSharedPtr<SWidget> FSlateApplication::GetMouseCaptor() const
{
	return Pointer->GetCaptor();
}

void FSlateApplication::ReleaseMouseCapture()
{
	Pointer->ReleaseCapture();
}

bool FSlateApplication::DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const
{
	return Widget.IsValid() && Pointer->GetCaptor() == Widget;
}

bool FSlateApplication::DoesWidgetHaveMouseCaptureByUser(const TSharedPtr<const SWidget> Widget, int32 UserIndex, TOptional<int32>) const
{
	return UserIndex == 0 && DoesWidgetHaveMouseCapture(Widget);
}

bool FSlateApplication::IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const
{
	return Widget.IsValid() && Pointer->IsDirectlyOver(Widget.Get());
}

// Keys.

FWidgetPath FSlateApplication::GetKeyPath() const
{
	FWidgetPath Path = Focus->GetPath();
	if (Path.IsValid())
	{
		const int32 FirstDisabled = Path.Widgets.IndexOfByPredicate([](const FArrangedWidget& Arranged) { return !Arranged.Widget->IsEnabled(); });
		if (FirstDisabled != INDEX_NONE)
		{
			Path.Widgets.RemoveAt(FirstDisabled, Path.Widgets.Num() - FirstDisabled);
		}
		return Path;
	}
	if (const TSharedPtr<SWindow> Window = GetActiveTopLevelWindow())
	{
		FindPathToWidget(Window.ToSharedRef(), Path);
	}
	return Path;
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	ModifierKeys = InKeyEvent.GetModifierKeys();
	RefreshWindows();
	CloseToolTip();
	const FWidgetPath Path = GetKeyPath();
	FRoutedReply Routed = Host::Tunnel(Path, [&InKeyEvent](const FArrangedWidget& Target) { return Target.Widget->OnPreviewKeyDown(Target.Geometry, InKeyEvent); });
	if (!Routed.Reply.IsEventHandled())
	{
		Routed = Host::Bubble(Path, [&InKeyEvent](const FArrangedWidget& Target) { return Target.Widget->OnKeyDown(Target.Geometry, InKeyEvent); });
	}
	if (Routed.Reply.IsEventHandled())
	{
		ProcessReply(Routed.Path, Routed.Reply);
		return true;
	}
	if (InKeyEvent.GetKey() == EKeys::Escape && Menus->Num() > 0)
	{
		Menus->GetTop()->Dismiss();
		return true;
	}
	const EUINavigation Direction = GetNavigationForKey(InKeyEvent);
	return Direction != EUINavigation::Invalid && AttemptNavigation(Direction);
}

bool FSlateApplication::ProcessKeyUpEvent(const FKeyEvent& InKeyEvent)
{
	ModifierKeys = InKeyEvent.GetModifierKeys();
	RefreshWindows();
	const FRoutedReply Routed = Host::Bubble(GetKeyPath(), [&InKeyEvent](const FArrangedWidget& Target) { return Target.Widget->OnKeyUp(Target.Geometry, InKeyEvent); });
	ProcessReply(Routed.Path, Routed.Reply);
	return Routed.Reply.IsEventHandled();
}

bool FSlateApplication::ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent)
{
	RefreshWindows();
	const FRoutedReply Routed = Host::Bubble(GetKeyPath(), [&InCharacterEvent](const FArrangedWidget& Target) { return Target.Widget->OnKeyChar(Target.Geometry, InCharacterEvent); });
	ProcessReply(Routed.Path, Routed.Reply);
	return Routed.Reply.IsEventHandled();
}

// Focus.

bool FSlateApplication::SetUserFocus(uint32 UserIndex, const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	FWidgetPath Path;
	return UserIndex == 0 && WidgetToFocus.IsValid() && FindPathToWidget(WidgetToFocus.ToSharedRef(), Path) && Focus->Set(Path, ReasonFocusIsChanging);
}

bool FSlateApplication::SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	return SetUserFocus(0, OptionalWidgetToFocus, ReasonFocusIsChanging);
}

void FSlateApplication::ClearUserFocus(uint32 UserIndex, EFocusCause ReasonFocusIsChanging)
{
	if (UserIndex == 0)
	{
		Focus->Clear(ReasonFocusIsChanging);
	}
}

TSharedPtr<SWidget> FSlateApplication::GetUserFocusedWidget(uint32 UserIndex) const
{
	return UserIndex == 0 ? Focus->GetWidget() : nullptr;
}

TOptional<EFocusCause> FSlateApplication::HasUserFocus(const TSharedPtr<const SWidget> Widget, int32 UserIndex) const
{
	return UserIndex == 0 && Widget.IsValid() && Focus->GetWidget() == Widget ? TOptional<EFocusCause>(Focus->GetCause()) : TOptional<EFocusCause>();
}

bool FSlateApplication::HasUserFocusedDescendants(const TSharedRef<const SWidget>& Widget, int32 UserIndex) const
{
	return UserIndex == 0 && Focus->Contains(&Widget.Get());
}

EUINavigation FSlateApplication::GetNavigationForKey(const FKeyEvent& InKeyEvent) const
{
	const FKey Key = InKeyEvent.GetKey();
	if (InKeyEvent.IsControlDown() || InKeyEvent.IsAltDown() || InKeyEvent.IsCommandDown())
	{
		return EUINavigation::Invalid;
	}
	if (Key == EKeys::Tab)
	{
		return InKeyEvent.IsShiftDown() ? EUINavigation::Previous : EUINavigation::Next;
	}
	if (Key == EKeys::Left)
	{
		return EUINavigation::Left;
	}
	if (Key == EKeys::Right)
	{
		return EUINavigation::Right;
	}
	if (Key == EKeys::Up)
	{
		return EUINavigation::Up;
	}
	return Key == EKeys::Down ? EUINavigation::Down : EUINavigation::Invalid;
}

bool FSlateApplication::AttemptNavigation(EUINavigation Direction)
{
	RefreshWindows();
	const FWidgetPath Path = Focus->GetPath();
	const TSharedPtr<SWindow> Window = Path.IsValid() ? Path.GetWindow() : GetActiveTopLevelWindow();
	if (!Window.IsValid())
	{
		return false;
	}
	const TSharedPtr<SWidget> From = Focus->GetWidget();
	const FNavigationEvent Event(ModifierKeys, 0, Direction);
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Asked = Path.Widgets[Index];
		const FNavigationReply Reply = Asked.Widget->OnNavigation(Asked.Geometry, Event);
		if (Reply.GetBoundaryRule() == EUINavigationRule::Escape)
		{
			continue;
		}
		if (Reply.GetBoundaryRule() == EUINavigationRule::Explicit)
		{
			return SetUserFocus(0, Reply.GetFocusRecipient(), EFocusCause::Navigation);
		}
		const Host::FNavigationSearch Search(*Window, &Asked.Widget.Get());
		TSharedPtr<SWidget> Next = Search.Find(From.Get(), Direction);
		if (!Next.IsValid() && Reply.GetBoundaryRule() == EUINavigationRule::Wrap)
		{
			Next = Search.FindWrapped(From.Get(), Direction);
		}
		return SetUserFocus(0, Next, EFocusCause::Navigation);
	}
	const Host::FNavigationSearch Search(*Window, nullptr);
	TSharedPtr<SWidget> Next = Search.Find(From.Get(), Direction);
	const bool bByOrder = Direction == EUINavigation::Next || Direction == EUINavigation::Previous;
	if (!Next.IsValid() && bByOrder)
	{
		Next = Search.FindWrapped(From.Get(), Direction);
	}
	return SetUserFocus(0, Next, EFocusCause::Navigation);
}

// Menus.

TSharedPtr<IMenu> FSlateApplication::PushMenu(const TSharedRef<SWidget>& InParentWidget, const FWidgetPath&, const TSharedRef<SWidget>& InContent,
	const UE::Slate::FDeprecateVector2DParameter& SummonLocation, const FPopupTransitionEffect&, const bool bFocusImmediately,
	const UE::Slate::FDeprecateVector2DParameter& SummonLocationSize)
{
	CloseToolTip();
	return Menus->Push(InParentWidget, InContent, SummonLocation, SummonLocationSize, bFocusImmediately);
}

void FSlateApplication::DismissAllMenus()
{
	Menus->DismissAll();
}

void FSlateApplication::DismissMenu(const TSharedPtr<IMenu>& InFromMenu)
{
	if (InFromMenu.IsValid())
	{
		InFromMenu->Dismiss();
	}
}

void FSlateApplication::DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu)
{
	Menus->DismissContaining(InWidgetInMenu.Get());
}

bool FSlateApplication::AnyMenusVisible() const
{
	return Menus->Num() > 0;
}

void FSlateApplication::CloseToolTip()
{
	ToolTips->Close();
}

float FSlateApplication::GetToolTipDelay() const
{
	return static_cast<float>(Host::FToolTipPresenter::Delay);
}
