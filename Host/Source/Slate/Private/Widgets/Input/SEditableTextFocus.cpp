#include "Framework/Application/TextInput.h"
#include "Widgets/Input/EditableTextView.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/TextEditModel.h"

namespace
{
	/** Seconds for which the caret is shown, and then not. */
	constexpr float BlinkPeriod = 0.53f;

	ETextCommit::Type ToCommitType(EFocusCause Cause)
	{
		switch (Cause)
		{
		case EFocusCause::Mouse:
		case EFocusCause::Navigation:
			return ETextCommit::OnUserMovedFocus;
		case EFocusCause::Cleared:
			return ETextCommit::OnCleared;
		default:
			return ETextCommit::Default;
		}
	}
}

FReply SEditableText::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	const EFocusCause Cause = InFocusEvent.GetCause();
	const bool bGoesOn = bEditing;
	bHasFocus = true;
	bEditing = true;
	bCommittedByEnter = false;
	Host::FTextInput::Get().Begin(AsShared(), Host::FOnComposition::CreateSP(this, &SEditableText::ShowComposition));
	if (!bGoesOn)
	{
		OriginalText = Text;
	}
	// The selection of before is wanted after the menu was open or another window active.
	if (!bGoesOn && Cause != EFocusCause::WindowActivate)
	{
		const bool bSelectAll = SelectAllTextWhenFocused.Get(false);
		if (Cause == EFocusCause::Mouse)
		{
			// The press has put the caret already; unless it becomes a drag, all is selected in the end.
			bSelectAllOnMouseUp = bSelectAll;
		}
		else if (bSelectAll)
		{
			Model->SelectAll();
		}
		else if (IsCaretMovedWhenGainFocus.Get(true))
		{
			Model->MoveCaret(Model->GetText().Len(), false);
		}
	}
	NoteCaretMove();
	return SLeafWidget::OnFocusReceived(MyGeometry, InFocusEvent);
}

void SEditableText::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SLeafWidget::OnFocusLost(InFocusEvent);
	bHasFocus = false;
	bSelectingByMouse = false;
	bSummoningMenu = false;
	PendingSurrogate = 0;
	StopBlinking();
	CancelComposition();
	Host::FTextInput::Get().End(*this);
	Invalidate(EInvalidateWidgetReason::Paint);
	if (!ContextMenu.IsValid())
	{
		EndEditing(InFocusEvent.GetCause());
	}
}

void SEditableText::EndEditing(EFocusCause Cause)
{
	bEditing = false;
	if (Cause != EFocusCause::WindowActivate)
	{
		Model->ClearSelection();
	}
	Invalidate(EInvalidateWidgetReason::Paint);
	if (!bCommittedByEnter)
	{
		Commit(ToCommitType(Cause));
	}
	bCommittedByEnter = false;
}

bool SEditableText::IsComposing() const
{
	return !Composition->Text.IsEmpty();
}

void SEditableText::ShowComposition(const FString& InText, int32 InCaret)
{
	if (IsTextReadOnly() || (InText.IsEmpty() && !IsComposing()))
	{
		return;
	}
	Composition->Text = InText;
	Composition->Caret = InCaret;
	Model->EndStep();
	Invalidate(EInvalidateWidgetReason::Layout);
	NoteCaretMove();
}

void SEditableText::CancelComposition()
{
	if (IsComposing())
	{
		ShowComposition(FString(), 0);
		Host::FTextInput::Get().CancelComposition(*this);
	}
}

bool SEditableText::CanShowCaret() const
{
	return bHasFocus && IsEnabled() && !IsTextReadOnly();
}

void SEditableText::StartBlinking()
{
	StopBlinking();
	bCaretShown = true;
	if (CanShowCaret())
	{
		BlinkTimer = RegisterActiveTimer(BlinkPeriod, FWidgetActiveTimerDelegate::CreateSP(this, &SEditableText::BlinkCaret));
	}
}

void SEditableText::StopBlinking()
{
	if (BlinkTimer.IsValid())
	{
		UnRegisterActiveTimer(BlinkTimer.ToSharedRef());
		BlinkTimer.Reset();
	}
}

EActiveTimerReturnType SEditableText::BlinkCaret(double, float)
{
	bCaretShown = !CanShowCaret() || !bCaretShown;
	Invalidate(EInvalidateWidgetReason::Paint);
	if (CanShowCaret())
	{
		return EActiveTimerReturnType::Continue;
	}
	BlinkTimer.Reset();
	return EActiveTimerReturnType::Stop;
}
