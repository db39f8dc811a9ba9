#pragma once

#include "CoreMinimal.h"

namespace Host
{
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

		int32 GetCaret() const { return State.Caret; }
		bool HasSelection() const { return State.Caret != State.Anchor; }
		int32 GetSelectionBegin() const { return FMath::Min(State.Caret, State.Anchor); }
		int32 GetSelectionEnd() const { return FMath::Max(State.Caret, State.Anchor); }
		FString GetSelectedText() const;

		/** @param bSelect	the other end of the selection stays where it is */
		void MoveCaret(int32 Position, bool bSelect);
		void Select(int32 Anchor, int32 Caret);
		void SelectAll() { Select(0, State.Text.Len()); }
		/** The word, or run of blanks, at a position. */
		void SelectWordAt(int32 Position);
		void ClearSelection() { Select(State.Caret, State.Caret); }

		/**
		 * Writes in place of the selection. Line breaks become blanks, other control characters are left out.
		 * @param bTyped	characters typed one after the other are undone together
		 * @return whether the text changed
		 */
		bool Insert(FStringView Inserted, bool bTyped);

		/** Removes the selection, or without one what is between the caret and a position. True when the text changed. */
		bool Remove(int32 Position);

		bool Undo();
		bool Redo();
		/** What is typed next is undone by itself. */
		void EndTyping() { bTyping = false; }

	private:
		struct FState
		{
			FString Text;
			int32 Caret = 0;
			int32 Anchor = 0;
		};

		int32 ClampToBoundary(int32 Position) const;
		/** Keeps the state to come back to, unless it is the middle of some typing. */
		void BeginEdit(bool bTyped);
		void Replace(int32 Begin, int32 End, FStringView With);
		bool Restore(TArray<FState>& From, TArray<FState>& To);

		FState State;
		TArray<FState> UndoStates;
		TArray<FState> RedoStates;
		bool bTyping = false;
	};
}
