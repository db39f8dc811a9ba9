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
		EndStep();
		if (State.Text.Equals(InText))
		{
			return false;
		}
		State.Text = InText;
		ClearSelection();
		return true;
	}

	FString FTextEditModel::GetSelectedText() const
	{
		return State.Text.Mid(GetSelectionBegin(), GetSelectionEnd() - GetSelectionBegin());
	}

	void FTextEditModel::MoveCaret(const FTextPlace& Place, bool bSelect)
	{
		State.Caret = FTextPlace{ ClampToBoundary(Place.Index), Place.bAfter };
		State.Anchor = bSelect ? State.Anchor : State.Caret.Index;
		EndStep();
	}

	void FTextEditModel::Select(int32 Anchor, int32 Caret)
	{
		MoveCaret(Anchor, false);
		MoveCaret(Caret, true);
	}

	void FTextEditModel::SelectWordAt(const FTextPlace& Place)
	{
		int32 Begin = 0;
		int32 End = 0;
		FTextBoundaries::FindWord(State.Text, Place.bAfter ? Place.Index - 1 : Place.Index, Begin, End);
		Select(Begin, End);
	}

	bool FTextEditModel::Insert(FStringView Inserted, bool bTyped)
	{
		const FString Line = ToSingleLine(Inserted);
		if (Line.IsEmpty() && !HasSelection())
		{
			return false;
		}
		if (HasSelection() || BeginsWord(Line))
		{
			EndStep();
		}
		BeginEdit(bTyped ? EStep::Typing : EStep::None);
		Replace(GetSelectionBegin(), GetSelectionEnd(), Line);
		return true;
	}

	bool FTextEditModel::Remove(int32 Position, ETextPiece Piece)
	{
		const int32 Caret = State.Caret.Index;
		const int32 Other = HasSelection() ? State.Anchor : ClampToBoundary(Position);
		if (Other == Caret)
		{
			return false;
		}
		const bool bOneOfMany = Piece == ETextPiece::Character && !HasSelection();
		BeginEdit(!bOneOfMany ? EStep::None : Other < Caret ? EStep::RemovingBefore : EStep::RemovingBehind);
		Replace(FMath::Min(Other, Caret), FMath::Max(Other, Caret), FStringView());
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

	bool FTextEditModel::BeginsWord(FStringView Inserted) const
	{
		const int32 Begin = GetSelectionBegin();
		return Begin > 0 && FTextBoundaries::IsBlank(State.Text[Begin - 1]) && Inserted.Len() > 0 && !FTextBoundaries::IsBlank(Inserted[0]);
	}

	void FTextEditModel::BeginEdit(EStep NewStep)
	{
		RedoStates.Reset();
		const bool bGoesOn = NewStep != EStep::None && NewStep == Step;
		Step = NewStep;
		if (bGoesOn)
		{
			return;
		}
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
		// What is now side by side may be one character: the caret goes behind it.
		const int32 Written = Begin + With.Len();
		const int32 Boundary = ClampToBoundary(Written);
		// Where directions meet, the caret stays with what was written last.
		State.Caret = FTextPlace{ Boundary == Written ? Written : FTextBoundaries::NextCharacter(State.Text, Boundary), true };
		State.Anchor = State.Caret.Index;
	}

	bool FTextEditModel::Restore(TArray<FState>& From, TArray<FState>& To)
	{
		if (From.IsEmpty())
		{
			return false;
		}
		To.Add(State);
		State = From.Pop();
		EndStep();
		return true;
	}
}
