#include "HAL/PlatformApplicationMisc.h"
#include "Host/TextBoundaries.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/EditableTextView.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/STextMenu.h"
#include "Widgets/Input/TextEditModel.h"

using Host::ETextCommand;

namespace
{
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

	/** The command that a key stands for. */
	TOptional<ETextCommand> FindCommand(const FKeyEvent& Event)
	{
		const FKey Key = Event.GetKey();
		if (Event.IsShiftDown() && (Key == EKeys::Delete || Key == EKeys::Insert))
		{
			return Key == EKeys::Delete ? ETextCommand::Cut : ETextCommand::Paste;
		}
		if (!IsCommand(Event.GetModifierKeys()))
		{
			return TOptional<ETextCommand>();
		}
		if (Key == EKeys::Z)
		{
			return Event.IsShiftDown() ? ETextCommand::Redo : ETextCommand::Undo;
		}
		const TPair<FKey, ETextCommand> Commands[] = {
			{ EKeys::A, ETextCommand::SelectAll },
			{ EKeys::C, ETextCommand::Copy },
			{ EKeys::Insert, ETextCommand::Copy },
			{ EKeys::V, ETextCommand::Paste },
			{ EKeys::X, ETextCommand::Cut },
			{ EKeys::Y, ETextCommand::Redo },
		};
		for (const TPair<FKey, ETextCommand>& Command : Commands)
		{
			if (Command.Key == Key)
			{
				return Command.Value;
			}
		}
		return TOptional<ETextCommand>();
	}
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
	// It is the first of what was composed, or written instead of it.
	ShowComposition(FString(), 0);
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
	if (IsComposing())
	{
		// The keys are for the input method, whether or not it lets others see them.
		return FReply::Handled();
	}
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
	for (const auto Handle : { &SEditableText::HandleCommandKey, &SEditableText::HandleRemovingKey, &SEditableText::HandleCaretKey })
	{
		const FReply Reply = (this->*Handle)(InKeyEvent);
		if (Reply.IsEventHandled())
		{
			return Reply;
		}
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

FReply SEditableText::HandleCommandKey(const FKeyEvent& InKeyEvent)
{
	const TOptional<ETextCommand> Command = FindCommand(InKeyEvent);
	if (!Command.IsSet())
	{
		return FReply::Unhandled();
	}
	// What cannot be removed is copied at least.
	const bool bCopyOnly = Command.GetValue() == ETextCommand::Cut && IsTextReadOnly();
	Execute(bCopyOnly ? ETextCommand::Copy : Command.GetValue());
	return FReply::Handled();
}

FReply SEditableText::HandleRemovingKey(const FKeyEvent& InKeyEvent)
{
	const bool bBack = InKeyEvent.GetKey() == EKeys::BackSpace;
	if ((!bBack && InKeyEvent.GetKey() != EKeys::Delete) || IsTextReadOnly())
	{
		return FReply::Unhandled();
	}
	const bool bWord = IsCommand(InKeyEvent.GetModifierKeys());
	const FString& Content = Model->GetText();
	const int32 Caret = Model->GetCaret();
	const int32 Character = bBack ? Host::FTextBoundaries::PreviousCharacter(Content, Caret) : Host::FTextBoundaries::NextCharacter(Content, Caret);
	if (Model->Remove(bWord ? FindWord(!bBack) : Character, bWord ? Host::ETextPiece::Word : Host::ETextPiece::Character))
	{
		NoteEdit();
	}
	return FReply::Handled();
}

FReply SEditableText::HandleCaretKey(const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const bool bSelect = InKeyEvent.IsShiftDown();
	const bool bRight = Key == EKeys::Right;
	Host::FTextPlace Target;
	if (Key == EKeys::End)
	{
		Target.Index = Model->GetText().Len();
	}
	else if (Key == EKeys::Left || Key == EKeys::Right)
	{
		RefreshView();
		if (IsCommand(InKeyEvent.GetModifierKeys()))
		{
			Target.Index = FindWord(bRight != View->Layout.IsRightToLeft(0));
		}
		else if (Model->HasSelection() && !bSelect)
		{
			Target.Index = FindSelectionEdge(bRight);
		}
		else
		{
			Target = FindCaretBeside(bRight);
		}
	}
	else if (Key != EKeys::Home)
	{
		return FReply::Unhandled();
	}
	Model->MoveCaret(Target, bSelect);
	NoteCaretMove();
	return FReply::Handled();
}

int32 SEditableText::FindWord(bool bNext) const
{
	const FString& Content = Model->GetText();
	if (IsTextPassword())
	{
		return bNext ? Content.Len() : 0;
	}
	return bNext ? Host::FTextBoundaries::NextWord(Content, Model->GetCaret()) : Host::FTextBoundaries::PreviousWord(Content, Model->GetCaret());
}

Host::FTextPlace SEditableText::FindCaretBeside(bool bToRight) const
{
	RefreshView();
	const Host::FTextPlace& Caret = Model->GetCaretPlace();
	const Host::FTextPlace Shown{ View->Shown.ToShown(Caret.Index), Caret.bAfter };
	const Host::FTextPlace Beside = View->Layout.FindPlaceBeside(Shown, bToRight);
	return Host::FTextPlace{ View->Shown.FromShown(Beside.Index), Beside.bAfter };
}

int32 SEditableText::FindSelectionEdge(bool bRight) const
{
	RefreshView();
	const int32 Begin = Model->GetSelectionBegin();
	const int32 End = Model->GetSelectionEnd();
	const auto GetX = [this](int32 Position) { return View->Layout.GetCaret(View->Shown.ToShown(Position), View->AreaWidth).X; };
	return (GetX(End) >= GetX(Begin)) == bRight ? End : Begin;
}

bool SEditableText::CanExecute(ETextCommand Command) const
{
	const bool bEditable = !IsTextReadOnly();
	const bool bCopyable = Model->HasSelection() && !IsTextPassword();
	switch (Command)
	{
	case ETextCommand::Undo:
		return bEditable && Model->CanUndo();
	case ETextCommand::Redo:
		return bEditable && Model->CanRedo();
	case ETextCommand::Cut:
		return bEditable && bCopyable;
	case ETextCommand::Copy:
		return bCopyable;
	case ETextCommand::Paste:
	{
		FString Pasted;
		FPlatformApplicationMisc::ClipboardPaste(Pasted);
		return bEditable && !Pasted.IsEmpty();
	}
	case ETextCommand::Delete:
		return bEditable && Model->HasSelection();
	case ETextCommand::SelectAll:
		return !Model->GetText().IsEmpty();
	}
	return false;
}

void SEditableText::Execute(ETextCommand Command)
{
	if (!CanExecute(Command))
	{
		return;
	}
	bool bChanged = false;
	switch (Command)
	{
	case ETextCommand::Undo:
		bChanged = Model->Undo();
		break;
	case ETextCommand::Redo:
		bChanged = Model->Redo();
		break;
	case ETextCommand::Cut:
		CopySelection();
		bChanged = Model->RemoveSelection();
		break;
	case ETextCommand::Copy:
		CopySelection();
		break;
	case ETextCommand::Paste:
		bChanged = Paste();
		break;
	case ETextCommand::Delete:
		bChanged = Model->RemoveSelection();
		break;
	case ETextCommand::SelectAll:
		SelectAllText();
		break;
	}
	if (bChanged)
	{
		NoteEdit();
	}
}

void SEditableText::CopySelection() const
{
	FPlatformApplicationMisc::ClipboardCopy(*Model->GetSelectedText());
}

bool SEditableText::Paste()
{
	FString Pasted;
	FPlatformApplicationMisc::ClipboardPaste(Pasted);
	return Model->Insert(Pasted, false);
}
