#include "HAL/PlatformApplicationMisc.h"
#include "Host/TextBoundaries.h"
#include "InputCoreTypes.h"
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

	bool IsHighSurrogate(TCHAR Unit)
	{
		return Unit >= 0xD800 && Unit < 0xDC00;
	}

	bool IsLowSurrogate(TCHAR Unit)
	{
		return Unit >= 0xDC00 && Unit < 0xE000;
	}

	/** The right alt key writes characters, and comes as control and alt together. */
	bool IsCommand(const FModifierKeysState& Keys)
	{
		return Keys.IsControlDown() && !Keys.IsAltDown();
	}
}

FReply SEditableText::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	const EFocusCause Cause = InFocusEvent.GetCause();
	bHasFocus = true;
	bCommittedByEnter = false;
	OriginalText = Text;
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
	else if (IsCaretMovedWhenGainFocus.Get(true) && Cause != EFocusCause::WindowActivate)
	{
		Model->MoveCaret(Model->GetText().Len(), false);
	}
	NoteCaretMove();
	return SLeafWidget::OnFocusReceived(MyGeometry, InFocusEvent);
}

void SEditableText::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SLeafWidget::OnFocusLost(InFocusEvent);
	bHasFocus = false;
	bSelectingByMouse = false;
	PendingSurrogate = 0;
	StopBlinking();
	Invalidate(EInvalidateWidgetReason::Paint);
	// An inactive window keeps its focus, and the editing goes on when it is active again.
	if (InFocusEvent.GetCause() == EFocusCause::WindowActivate)
	{
		return;
	}
	Model->ClearSelection();
	if (!bCommittedByEnter)
	{
		Commit(ToCommitType(InFocusEvent.GetCause()));
	}
	bCommittedByEnter = false;
}

FReply SEditableText::OnKeyChar(const FGeometry&, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	if (IsTextReadOnly() || Character < ' ' || Character == 0x7F || IsCommand(InCharacterEvent.GetModifierKeys()))
	{
		return FReply::Unhandled();
	}
	if (OnIsTypedCharValid.IsBound() && !OnIsTypedCharValid.Execute(Character))
	{
		return FReply::Handled();
	}
	if (IsHighSurrogate(Character))
	{
		PendingSurrogate = Character;
		return FReply::Handled();
	}
	TCHAR Units[2] = {PendingSurrogate, Character};
	const bool bPair = PendingSurrogate != 0 && IsLowSurrogate(Character);
	PendingSurrogate = 0;
	if (!bPair && IsLowSurrogate(Character))
	{
		return FReply::Handled();
	}
	if (Model->Insert(bPair ? FStringView(Units, 2) : FStringView(Units + 1, 1), true))
	{
		NoteEdit();
	}
	return FReply::Handled();
}

FReply SEditableText::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (OnKeyDownHandler.IsBound())
	{
		const FOnKeyDown Handler = OnKeyDownHandler;
		const FReply Reply = Handler.Execute(MyGeometry, InKeyEvent);
		if (Reply.IsEventHandled())
		{
			return Reply;
		}
	}
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Enter)
	{
		return HandleEnter();
	}
	if (Key == EKeys::Escape)
	{
		return HandleEscape();
	}
	const FReply CaretReply = HandleCaretKey(InKeyEvent);
	if (CaretReply.IsEventHandled())
	{
		return CaretReply;
	}
	const FReply CommandReply = HandleCommandKey(InKeyEvent);
	if (CommandReply.IsEventHandled())
	{
		return CommandReply;
	}
	// A key that writes belongs to the text: it must not press or toggle what the text stands in.
	const bool bWrites = InKeyEvent.GetCharacter() >= ' ' && !InKeyEvent.IsControlDown() && !InKeyEvent.IsAltDown() && !InKeyEvent.IsCommandDown();
	return bWrites ? FReply::Handled() : FReply::Unhandled();
}

FReply SEditableText::HandleEnter()
{
	if (IsTextReadOnly())
	{
		return FReply::Unhandled();
	}
	Commit(ETextCommit::OnEnter);
	OriginalText = Text;
	if (SelectAllTextOnCommit.Get(false))
	{
		SelectAllText();
	}
	// The handler may have moved the focus away.
	if (!ClearKeyboardFocusOnCommit.Get(true) || !bHasFocus)
	{
		return FReply::Handled();
	}
	bCommittedByEnter = true;
	return FReply::Handled().ClearUserFocus(EFocusCause::Cleared);
}

FReply SEditableText::HandleEscape()
{
	if (RevertTextOnEscape.Get(false) && !Text.ToString().Equals(OriginalText.ToString()))
	{
		const FText Reverted = OriginalText;
		ReplaceText(Reverted);
		const FOnTextChanged Handler = OnTextChanged;
		Handler.ExecuteIfBound(Reverted);
	}
	return FReply::Handled().ClearUserFocus(EFocusCause::Cleared);
}

FReply SEditableText::HandleCaretKey(const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const FString& Content = Model->GetText();
	const int32 Caret = Model->GetCaret();
	const bool bSelect = InKeyEvent.IsShiftDown();
	const bool bWords = IsCommand(InKeyEvent.GetModifierKeys());
	if (Key == EKeys::BackSpace || (Key == EKeys::Delete && !bSelect))
	{
		if (IsTextReadOnly())
		{
			return FReply::Unhandled();
		}
		const bool bBack = Key == EKeys::BackSpace;
		const int32 Other = bWords ? (bBack ? Host::FTextBoundaries::PreviousWord(Content, Caret) : Host::FTextBoundaries::NextWord(Content, Caret))
			: (bBack ? Host::FTextBoundaries::PreviousCharacter(Content, Caret) : Host::FTextBoundaries::NextCharacter(Content, Caret));
		if (Model->Remove(Other))
		{
			NoteEdit();
		}
		return FReply::Handled();
	}

	int32 Target = Caret;
	if (Key == EKeys::Home)
	{
		Target = 0;
	}
	else if (Key == EKeys::End)
	{
		Target = Content.Len();
	}
	else if (Key == EKeys::Left || Key == EKeys::Right)
	{
		const bool bRight = Key == EKeys::Right;
		if (bWords)
		{
			Target = bRight ? Host::FTextBoundaries::NextWord(Content, Caret) : Host::FTextBoundaries::PreviousWord(Content, Caret);
		}
		else
		{
			Target = Model->HasSelection() && !bSelect ? FindSelectionEdge(bRight) : FindCaretBeside(bRight);
		}
	}
	else
	{
		return FReply::Unhandled();
	}
	Model->MoveCaret(Target, bSelect);
	NoteCaretMove();
	return FReply::Handled();
}

int32 SEditableText::FindCaretBeside(bool bToRight) const
{
	RefreshView();
	const FString& Content = Model->GetText();
	const int32 Caret = Model->GetCaret();
	const int32 Next = Host::FTextBoundaries::NextCharacter(Content, Caret);
	const int32 Previous = Host::FTextBoundaries::PreviousCharacter(Content, Caret);
	const auto GetX = [this](int32 Position) { return View->Layout.GetCaret(Position, View->AreaWidth).X; };
	const float X = GetX(Caret);
	const auto IsBeside = [&](int32 Position) { return Position != Caret && (bToRight ? GetX(Position) > X : GetX(Position) < X); };
	const int32 Likely = bToRight ? Next : Previous;
	const int32 Other = bToRight ? Previous : Next;
	if (IsBeside(Likely))
	{
		return Likely;
	}
	// Text that runs against the others; where both neighbours stand on the other side, the order of the text counts.
	return IsBeside(Other) ? Other : Likely;
}

FReply SEditableText::HandleCommandKey(const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const bool bControl = IsCommand(InKeyEvent.GetModifierKeys());
	const bool bShift = InKeyEvent.IsShiftDown();
	const bool bEditable = !IsTextReadOnly();
	if (bControl && Key == EKeys::A)
	{
		SelectAllText();
	}
	else if ((bControl && Key == EKeys::C) || (bControl && Key == EKeys::Insert))
	{
		CopySelection();
	}
	else if ((bControl && Key == EKeys::X) || (bShift && Key == EKeys::Delete))
	{
		CopySelection();
		if (bEditable && !IsTextPassword() && Model->HasSelection() && Model->Remove(Model->GetCaret()))
		{
			NoteEdit();
		}
	}
	else if ((bControl && Key == EKeys::V) || (bShift && Key == EKeys::Insert))
	{
		Paste();
	}
	else if (bControl && ((Key == EKeys::Z && bShift) || Key == EKeys::Y))
	{
		if (bEditable && Model->Redo())
		{
			NoteEdit();
		}
	}
	else if (bControl && Key == EKeys::Z)
	{
		if (bEditable && Model->Undo())
		{
			NoteEdit();
		}
	}
	else
	{
		return FReply::Unhandled();
	}
	return FReply::Handled();
}

void SEditableText::CopySelection() const
{
	if (Model->HasSelection() && !IsTextPassword())
	{
		FPlatformApplicationMisc::ClipboardCopy(*Model->GetSelectedText());
	}
}

void SEditableText::Paste()
{
	if (IsTextReadOnly())
	{
		return;
	}
	FString Pasted;
	FPlatformApplicationMisc::ClipboardPaste(Pasted);
	if (!Pasted.IsEmpty() && Model->Insert(Pasted, false))
	{
		NoteEdit();
	}
}

FReply SEditableText::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	bSelectingByMouse = true;
	Model->MoveCaret(FindPositionAt(MyGeometry, MouseEvent), MouseEvent.IsShiftDown());
	NoteCaretMove();
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SEditableText::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bSelectingByMouse)
	{
		return FReply::Unhandled();
	}
	bSelectingByMouse = false;
	if (bSelectAllOnMouseUp && !Model->HasSelection())
	{
		SelectAllText();
	}
	bSelectAllOnMouseUp = false;
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SEditableText::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bSelectingByMouse || !HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	const int32 Position = FindPositionAt(MyGeometry, MouseEvent);
	if (Position != Model->GetCaret())
	{
		Model->MoveCaret(Position, true);
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
	if (IsTextPassword())
	{
		// Words would tell something about it.
		SelectAllText();
	}
	else
	{
		Model->SelectWordAt(FindPositionAt(MyGeometry, MouseEvent));
		NoteCaretMove();
	}
	return FReply::Handled();
}

void SEditableText::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SLeafWidget::OnMouseCaptureLost(CaptureLostEvent);
	bSelectingByMouse = false;
	bSelectAllOnMouseUp = false;
}

FCursorReply SEditableText::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

void SEditableText::StartBlinking()
{
	StopBlinking();
	bCaretShown = true;
	BlinkTimer = RegisterActiveTimer(BlinkPeriod, FWidgetActiveTimerDelegate::CreateSP(this, &SEditableText::BlinkCaret));
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
	bCaretShown = !bCaretShown;
	Invalidate(EInvalidateWidgetReason::Paint);
	return EActiveTimerReturnType::Continue;
}
