#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

namespace Host
{
	/** A row of a list: its background tells whether it is marked and hovered. */
	class SComboRow : public SBorder
	{
	public:
		SLATE_BEGIN_ARGS(SComboRow) : _RowStyle(nullptr), _Index(0), _Marked(false) {}
			SLATE_STYLE_ARGUMENT(FTableRowStyle, RowStyle)
			SLATE_ARGUMENT(int32, Index)
			SLATE_ARGUMENT(bool, Marked)
			SLATE_ARGUMENT(FMargin, RowPadding)
			/** The row was pressed and released. */
			SLATE_EVENT(FSimpleDelegate, OnClicked)
			SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		void SetMarked(bool bInMarked);

		/** The first text in the row; empty when it shows none. */
		FString GetText() const;

		virtual FSlateColor GetForegroundColor() const override;
		virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;

	private:
		const FSlateBrush* ChooseBrush() const;
		void UpdateLook();

		const FTableRowStyle* Style = nullptr;
		FSimpleDelegate OnClicked;
		int32 Index = 0;
		bool bMarked = false;
	};
}
