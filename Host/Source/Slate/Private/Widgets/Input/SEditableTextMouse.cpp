#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/EditableTextView.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/STextMenu.h"
#include "Widgets/Input/TextEditModel.h"

Host::FTextPlace SEditableText::FindPlaceAt(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	RefreshView();
	const FVector2f Local = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())) * View->Scale;
	const Host::FTextPlace Place = View->Layout.FindPlaceAt(FVector2f(Local.X + View->ScrollOffset, 0.0f), View->AreaWidth);
	return Host::FTextPlace{ View->Shown.FromShown(Place.Index), Place.bAfter };
}

FReply SEditableText::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const FKey Button = MouseEvent.GetEffectingButton();
	const bool bForMenu = Button == EKeys::RightMouseButton && AllowContextMenu.Get(true);
	if (Button != EKeys::LeftMouseButton && !bForMenu)
	{
		return FReply::Unhandled();
	}
	CancelComposition();
	const Host::FTextPlace Place = FindPlaceAt(MyGeometry, MouseEvent);
	const bool bOnSelection = bEditing && Model->HasSelection() && Place.Index >= Model->GetSelectionBegin() && Place.Index <= Model->GetSelectionEnd();
	if (!bForMenu || !bOnSelection)
	{
		// A press elsewhere moves the focus here too, with no selection to go on from.
		Model->MoveCaret(Place, !bForMenu && bEditing && MouseEvent.IsShiftDown());
		NoteCaretMove();
	}
	bSelectingByMouse = !bForMenu;
	bSummoningMenu = bForMenu;
	bSelectAllOnMouseUp = false;
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SEditableText::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const FKey Button = MouseEvent.GetEffectingButton();
	const bool bEndsSelecting = Button == EKeys::LeftMouseButton && bSelectingByMouse;
	const bool bEndsSummoning = Button == EKeys::RightMouseButton && bSummoningMenu;
	if (!bEndsSelecting && !bEndsSummoning)
	{
		return FReply::Unhandled();
	}
	bSelectingByMouse = false;
	bSummoningMenu = false;
	if (bSelectAllOnMouseUp && !Model->HasSelection())
	{
		SelectAllText();
	}
	bSelectAllOnMouseUp = false;
	if (bEndsSummoning && bHasFocus && MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		SummonContextMenu(MouseEvent.GetScreenSpacePosition());
	}
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SEditableText::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bSelectingByMouse || !HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	const Host::FTextPlace Place = FindPlaceAt(MyGeometry, MouseEvent);
	if (Place.Index != Model->GetCaret())
	{
		Model->MoveCaret(Place, true);
		NoteCaretMove();
	}
	return FReply::Handled();
}

FReply SEditableText::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	CancelComposition();
	if (IsTextPassword())
	{
		// Words would tell something about it.
		SelectAllText();
	}
	else
	{
		Model->SelectWordAt(FindPlaceAt(MyGeometry, MouseEvent));
		NoteCaretMove();
	}
	// The first press may have fallen on something else.
	return FReply::Handled().SetUserFocus(AsShared(), EFocusCause::Mouse);
}

void SEditableText::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SLeafWidget::OnMouseCaptureLost(CaptureLostEvent);
	bSelectingByMouse = false;
	bSelectAllOnMouseUp = false;
	bSummoningMenu = false;
}

FCursorReply SEditableText::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

void SEditableText::SummonContextMenu(const FVector2f& Position)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TWeakPtr<SEditableText> WeakText = StaticCastSharedRef<SEditableText>(AsShared());
	const TSharedRef<STextMenu> Content = SNew(STextMenu)
		.CanExecute(FCanExecuteTextCommand::CreateSP(this, &SEditableText::CanExecute))
		.OnCommand(FOnTextCommand::CreateLambda([WeakText](Host::ETextCommand Command)
		{
			if (const TSharedPtr<SEditableText> Editable = WeakText.Pin())
			{
				FSlateApplication::Get().DismissMenu(Editable->ContextMenu.Pin());
				Editable->Execute(Command);
			}
		}));
	const TSharedPtr<IMenu> Menu = Application.PushMenu(
		AsShared(), FWidgetPath(), Content, Position, FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu), false);
	if (!Menu.IsValid())
	{
		return;
	}
	ContextMenu = Menu;
	Menu->GetOnMenuDismissed().AddSP(this, &SEditableText::OnContextMenuDismissed);
	Application.SetKeyboardFocus(Content->GetFirstEntry());
}

void SEditableText::OnContextMenuDismissed(TSharedRef<IMenu>)
{
	ContextMenu.Reset();
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
	const bool bWasInMenu = !Focused.IsValid() || !Application.FindWidgetWindow(Focused.ToSharedRef()).IsValid();
	if (bWasInMenu)
	{
		Application.SetKeyboardFocus(AsShared(), EFocusCause::OtherWidgetLostFocus);
	}
	if (bEditing && !bHasFocus)
	{
		EndEditing(EFocusCause::OtherWidgetLostFocus);
	}
}
