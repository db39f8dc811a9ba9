#pragma once

#include "CoreMinimal.h"
#include "Host/TextLayout.h"

namespace Host
{
	/** What is removed beside the caret. */
	enum class ETextPiece : uint8
	{
		/** Removed one after the other, characters are undone together. */
		Character,
		Word,
	};

	/**
	 * One line of text that is edited: its caret, selection and history. Knows nothing of how it is shown. Positions are
	 * UTF-16 units, and always stand between characters as a person sees them.
	 */
	class FTextEditModel
	{
	public:
		const FString& GetText() const { return State.Text; }

		/** Replaces everything, forgets the history, and keeps the caret as far as it can. True when the text is another one. */
		bool SetText(const FString& InText);

		int32 GetCaret() const { return State.Caret.Index; }
		/** Besides, at which of its neighbours the caret stands. */
		const FTextPlace& GetCaretPlace() const { return State.Caret; }
		bool HasSelection() const { return State.Caret.Index != State.Anchor; }
		int32 GetSelectionBegin() const { return FMath::Min(State.Caret.Index, State.Anchor); }
		int32 GetSelectionEnd() const { return FMath::Max(State.Caret.Index, State.Anchor); }
		FString GetSelectedText() const;

		/** @param bSelect	the other end of the selection stays where it is */
		void MoveCaret(const FTextPlace& Place, bool bSelect);
		void MoveCaret(int32 Position, bool bSelect) { MoveCaret(FTextPlace{ Position, false }, bSelect); }
		void Select(int32 Anchor, int32 Caret);
		void SelectAll() { Select(0, State.Text.Len()); }
		/** The word, or run of blanks, that a place stands at. */
		void SelectWordAt(const FTextPlace& Place);
		void ClearSelection() { MoveCaret(State.Caret, false); }

		/**
		 * Writes in place of the selection. Line breaks become blanks, other control characters are left out.
		 * @param bTyped	characters typed one after the other are undone together, word by word
		 * @return whether the text changed
		 */
		bool Insert(FStringView Inserted, bool bTyped);

		/** Removes the selection, or without one what is between the caret and a position. True when the text changed. */
		bool Remove(int32 Position, ETextPiece Piece);
		bool RemoveSelection() { return Remove(State.Anchor, ETextPiece::Word); }

		bool CanUndo() const { return !UndoStates.IsEmpty(); }
		bool CanRedo() const { return !RedoStates.IsEmpty(); }
		bool Undo();
		bool Redo();
		/** What is typed or removed next is undone by itself. */
		void EndStep() { Step = EStep::None; }

	private:
		struct FState
		{
			FString Text;
			FTextPlace Caret;
			int32 Anchor = 0;
		};

		/** Edits that go on as long as the next one is of the same kind, and are undone together. */
		enum class EStep : uint8
		{
			None,
			Typing,
			RemovingBefore,
			RemovingBehind,
		};

		int32 ClampToBoundary(int32 Position) const;
		bool BeginsWord(FStringView Inserted) const;
		/** Keeps the state to come back to, unless the edit goes on with the step. */
		void BeginEdit(EStep NewStep);
		void Replace(int32 Begin, int32 End, FStringView With);
		bool Restore(TArray<FState>& From, TArray<FState>& To);

		FState State;
		TArray<FState> UndoStates;
		TArray<FState> RedoStates;
		EStep Step = EStep::None;
	};
}
