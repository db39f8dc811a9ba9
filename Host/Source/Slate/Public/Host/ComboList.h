#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

class SScrollBox;

namespace Host
{
	class SComboRow;

	/** A row was chosen: its index, and how. */
	DECLARE_DELEGATE_TwoParams(FOnComboRowChosen, int32, ESelectInfo::Type);

	/**
	 * The list that a combo box opens: a row for each option, of which one is marked. It has the keyboard while it is open.
	 * Arrows, the page keys, Home and End move the mark, and so does typing the begin of a row's text; Enter and the space bar
	 * choose the marked row. Tab closes the list and goes on from the box.
	 */
	class SLATE_API SComboList : public SBorder
	{
	public:
		SLATE_BEGIN_ARGS(SComboList) : _ComboStyle(nullptr), _RowStyle(nullptr), _ScrollBarStyle(nullptr), _MaxHeight(450.0f) {}
			/** All kept by address. */
			SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboStyle)
			SLATE_STYLE_ARGUMENT(FTableRowStyle, RowStyle)
			SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
			/** In slate units. */
			SLATE_ARGUMENT(float, MaxHeight)
			SLATE_EVENT(FOnComboRowChosen, OnChosen)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		/** Replaces the rows by some that show the given widgets, and marks one. */
		void SetRows(const TArray<TSharedRef<SWidget>>& Contents, int32 InMarked);

		int32 GetMarked() const { return Marked; }
		/** Marks a row, and scrolls it into view; an index without a row marks none. */
		void Mark(int32 Index);
		/**
		 * Marks the next row whose text begins with what was typed. Characters in quick succession make one text; the same one
		 * again and again goes through the rows that begin with it.
		 */
		void TypeCharacter(TCHAR Character);

		virtual bool SupportsKeyboardFocus() const override { return true; }
		/** The mark shows where the keyboard is. */
		virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
		virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
		virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
		virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FNavigationReply OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent) override;

	private:
		bool IsTyping() const;
		/** The row that a key moves the mark to, if it is a key that does. */
		TOptional<int32> GetRowForKey(const FKey& Key) const;
		void Choose(int32 Index, ESelectInfo::Type SelectInfo);

		TArray<TSharedRef<SComboRow>> Rows;
		TSharedPtr<SScrollBox> ScrollBox;
		const FTableRowStyle* RowStyle = nullptr;
		FMargin RowPadding;
		FOnComboRowChosen OnChosen;
		int32 Marked = INDEX_NONE;
		/** In lower case. */
		FString Typed;
		/** Seconds of the clock. */
		double TypedTime = -1.0e9;
	};
}
