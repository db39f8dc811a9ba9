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

	/** The list that a combo box opens: a row for each option, of which one is marked. It has the keyboard while it is open. */
	class SLATE_API SComboList : public SBorder
	{
	public:
		SLATE_BEGIN_ARGS(SComboList) : _ComboStyle(nullptr), _RowStyle(nullptr), _MaxHeight(450.0f), _Marked(INDEX_NONE) {}
			/** Both kept by address. */
			SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboStyle)
			SLATE_STYLE_ARGUMENT(FTableRowStyle, RowStyle)
			/** In slate units. */
			SLATE_ARGUMENT(float, MaxHeight)
			/** The row that is marked first, and in view. */
			SLATE_ARGUMENT(int32, Marked)
			/** What the rows show. */
			SLATE_ARGUMENT(TArray<TSharedRef<SWidget>>, Rows)
			SLATE_EVENT(FOnComboRowChosen, OnChosen)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		int32 GetMarked() const { return Marked; }

		virtual bool SupportsKeyboardFocus() const override { return true; }
		/** The mark shows where the keyboard is. */
		virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FNavigationReply OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent) override;

	private:
		void Mark(int32 Index);
		void Choose(int32 Index, ESelectInfo::Type SelectInfo);

		TArray<TSharedRef<SComboRow>> Rows;
		TSharedPtr<SScrollBox> ScrollBox;
		FOnComboRowChosen OnChosen;
		int32 Marked = INDEX_NONE;
	};
}
