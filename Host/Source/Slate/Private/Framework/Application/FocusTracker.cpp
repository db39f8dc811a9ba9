#include "Framework/Application/FocusTracker.h"

#include "Framework/Application/MenuStack.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWidget.h"

namespace Host
{
	bool FFocusTracker::Set(const FWidgetPath& Path, EFocusCause NewCause)
	{
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
		{
			const TSharedRef<SWidget>& Widget = Path.Widgets[Index].Widget;
			if (Widget->SupportsKeyboardFocus() && Widget->IsEnabled())
			{
				if (Widget == GetWidget())
				{
					return false;
				}
				Change(Path.GetPathDownTo(Widget), NewCause);
				return true;
			}
		}
		return false;
	}

	void FFocusTracker::Clear(EFocusCause NewCause)
	{
		if (!FocusPath.Widgets.IsEmpty())
		{
			Change(FWidgetPath(), NewCause);
		}
	}

	void FFocusTracker::Change(const FWidgetPath& NewPath, EFocusCause NewCause)
	{
		const FFocusEvent Event(NewCause, 0);
		const TSharedPtr<SWidget> OldWidget = GetWidget();
		FWidgetPath OldPath;
		for (const TWeakPtr<SWidget>& Weak : FocusPath.Widgets)
		{
			if (const TSharedPtr<SWidget> Widget = Weak.Pin())
			{
				OldPath.Widgets.Add(FArrangedWidget(Widget.ToSharedRef(), Widget->GetCachedGeometry()));
			}
		}
		FocusPath = FWeakWidgetPath(NewPath);
		Cause = NewCause;
		TellChanging(OldPath, NewPath, Event);
		if (OldWidget.IsValid())
		{
			FSlateApplication::SetShowsFocus(*OldWidget, false);
			OldWidget->OnFocusLost(Event);
		}
		// Whoever lost it may have put it elsewhere.
		if (GetWidget() != (NewPath.IsValid() ? TSharedPtr<SWidget>(NewPath.GetLastWidget()) : nullptr))
		{
			return;
		}
		Application.Menus->FocusMoved(OldPath, NewPath);
		if (!NewPath.IsValid() || GetWidget() != NewPath.GetLastWidget())
		{
			return;
		}
		const FArrangedWidget Focused = NewPath.GetLastArranged();
		FSlateApplication::SetShowsFocus(Focused.Widget.Get(), NewCause == EFocusCause::Navigation);
		const FReply Reply = Focused.Widget->OnFocusReceived(Focused.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			Application.ProcessReply(NewPath, Reply);
		}
	}

	void FFocusTracker::TellChanging(const FWidgetPath& OldPath, const FWidgetPath& NewPath, const FFocusEvent& Event) const
	{
		for (const FArrangedWidget& Arranged : OldPath.Widgets)
		{
			Arranged.Widget->OnFocusChanging(NewPath, Event);
		}
		for (const FArrangedWidget& Arranged : NewPath.Widgets)
		{
			if (!OldPath.ContainsWidget(Arranged.GetWidgetPtr()))
			{
				Arranged.Widget->OnFocusChanging(NewPath, Event);
			}
		}
	}

	FWidgetPath FFocusTracker::GetPath() const
	{
		FWidgetPath Path;
		if (const TSharedPtr<SWidget> Widget = GetWidget())
		{
			Application.FindPathToWidget(Widget.ToSharedRef(), Path);
		}
		return Path;
	}

	void FFocusTracker::Validate()
	{
		if (FocusPath.Widgets.IsEmpty() || GetPath().IsValid())
		{
			return;
		}
		for (int32 Index = FocusPath.Widgets.Num() - 2; Index >= 0; --Index)
		{
			FWidgetPath Path;
			const TSharedPtr<SWidget> Ancestor = FocusPath.Widgets[Index].Pin();
			if (Ancestor.IsValid() && Ancestor->SupportsKeyboardFocus() && Ancestor->IsEnabled() && Application.FindPathToWidget(Ancestor.ToSharedRef(), Path))
			{
				Change(Path, EFocusCause::OtherWidgetLostFocus);
				return;
			}
		}
		Clear(EFocusCause::Cleared);
	}
}
