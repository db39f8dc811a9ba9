#include "Widgets/Input/TextEditModel.h"

#include "Host/TextBoundaries.h"

namespace Host
{
	namespace
	{
		/** Edits that can be undone. */
		constexpr int32 MaxUndoStates = 200;

		FString ToSingleLine(FStringView Text)
		{
			FString Result;
			Result.Reserve(Text.Len());
			for (int32 Index = 0; Index < Text.Len(); ++Index)
			{
				const TCHAR Unit = Text[Index];
				const bool bSecondOfLineBreak = Unit == '\n' && Index > 0 && Text[Index - 1] == '\r';
				if (bSecondOfLineBreak)
				{
					continue;
				}
				if (FTextBoundaries::IsLineBreak(Unit) || Unit == '\t')
				{
					Result.AppendChar(' ');
				}
				else if (Unit >= ' ' && Unit != 0x7F)
				{
					Result.AppendChar(Unit);
				}
			}
			return Result;
		}
	}

	bool FTextEditModel::SetText(const FString& InText)
	{
		UndoStates.Reset();
		RedoStates.Reset();
		bTyping = false;
		if (State.Text.Equals(InText))
		{
			return false;
		}
		State.Text = InText;
		State.Caret = ClampToBoundary(State.Caret);
		State.Anchor = State.Caret;
		return true;
	}

	FString FTextEditModel::GetSelectedText() const
	{
		return State.Text.Mid(GetSelectionBegin(), GetSelectionEnd() - GetSelectionBegin());
	}

	void FTextEditModel::MoveCaret(int32 Position, bool bSelect)
	{
		const int32 Caret = ClampToBoundary(Position);
		Select(bSelect ? State.Anchor : Caret, Caret);
	}

	void FTextEditModel::Select(int32 Anchor, int32 Caret)
	{
		State.Anchor = ClampToBoundary(Anchor);
		State.Caret = ClampToBoundary(Caret);
		bTyping = false;
	}

	void FTextEditModel::SelectWordAt(int32 Position)
	{
		int32 Begin = 0;
		int32 End = 0;
		FTextBoundaries::FindWord(State.Text, Position, Begin, End);
		Select(Begin, End);
	}

	bool FTextEditModel::Insert(FStringView Inserted, bool bTyped)
	{
		const FString Line = ToSingleLine(Inserted);
		if (Line.IsEmpty() && !HasSelection())
		{
			return false;
		}
		BeginEdit(bTyped && !HasSelection());
		Replace(GetSelectionBegin(), GetSelectionEnd(), Line);
		bTyping = bTyped;
		return true;
	}

	bool FTextEditModel::Remove(int32 Position)
	{
		const int32 Other = HasSelection() ? State.Anchor : ClampToBoundary(Position);
		if (Other == State.Caret)
		{
			return false;
		}
		BeginEdit(false);
		Replace(FMath::Min(Other, State.Caret), FMath::Max(Other, State.Caret), FStringView());
		return true;
	}

	bool FTextEditModel::Undo()
	{
		return Restore(UndoStates, RedoStates);
	}

	bool FTextEditModel::Redo()
	{
		return Restore(RedoStates, UndoStates);
	}

	int32 FTextEditModel::ClampToBoundary(int32 Position) const
	{
		if (Position <= 0 || Position >= State.Text.Len())
		{
			return FMath::Clamp(Position, 0, State.Text.Len());
		}
		// Within a character, its beginning.
		const int32 Begin = FTextBoundaries::PreviousCharacter(State.Text, FTextBoundaries::NextCharacter(State.Text, Position));
		return Begin == Position ? Position : FTextBoundaries::PreviousCharacter(State.Text, Position);
	}

	void FTextEditModel::BeginEdit(bool bTyped)
	{
		RedoStates.Reset();
		if (bTyped && bTyping)
		{
			return;
		}
		bTyping = false;
		if (UndoStates.Num() == MaxUndoStates)
		{
			UndoStates.RemoveAt(0);
		}
		UndoStates.Add(State);
	}

	void FTextEditModel::Replace(int32 Begin, int32 End, FStringView With)
	{
		State.Text.RemoveAt(Begin, End - Begin);
		State.Text.InsertAt(Begin, With);
		State.Caret = Begin + With.Len();
		State.Anchor = State.Caret;
	}

	bool FTextEditModel::Restore(TArray<FState>& From, TArray<FState>& To)
	{
		if (From.IsEmpty())
		{
			return false;
		}
		To.Add(State);
		State = From.Pop();
		bTyping = false;
		return true;
	}
}
