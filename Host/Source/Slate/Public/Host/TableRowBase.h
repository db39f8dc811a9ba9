#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Views/ITableRow.h"

class SExpanderArrow;
class STableViewBase;

namespace Host
{
	/**
	 * What rows of all item types have in common: the look of hovered, selected and focused rows, and how the mouse uses them.
	 * What is in a row gets the mouse first; the row takes what is left unhandled.
	 */
	class SLATE_API STableRowBase : public SBorder, public ITableRow
	{
	public:
		virtual void InitializeRow() override {}
		virtual void ResetRow() override {}
		virtual void SetIndexInList(int32 InIndexInList) override;
		virtual int32 GetIndexInList() override { return IndexInList; }
		virtual void SetRowState(const FTableRowState& InState) override;
		virtual bool IsItemSelected() const override { return State.bSelected; }
		virtual bool IsItemExpanded() const override { return State.bExpanded; }
		virtual int32 GetIndentLevel() const override { return State.IndentLevel; }
		virtual bool DoesItemHaveChildren() const override { return State.bHasChildren; }
		virtual void ToggleExpansion() override;
		virtual TSharedRef<SWidget> AsWidget() override { return AsShared(); }
		virtual TSharedPtr<SWidget> GetContent() override { return RowContent; }

		virtual FSlateColor GetForegroundColor() const override;
		virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
		virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
			int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	protected:
		/** @param InStyle kept by address; null for a row without a look of its own */
		void ConstructRow(const TSharedRef<STableViewBase>& InOwnerTable, const FTableRowStyle* InStyle, const FMargin& InPadding, bool bInShowSelection,
			const TSharedRef<SWidget>& InContent);

		/** Null once the list is gone. */
		TSharedPtr<STableViewBase> GetOwnerTable() const { return OwnerTable.Pin(); }

	private:
		const FSlateBrush* ChooseBrush() const;
		void UpdateLook();

		TWeakPtr<STableViewBase> OwnerTable;
		TSharedPtr<SWidget> RowContent;
		/** Only in trees. */
		TSharedPtr<SExpanderArrow> Arrow;
		const FTableRowStyle* Style = nullptr;
		FTableRowState State;
		int32 IndexInList = INDEX_NONE;
		bool bShowSelection = true;
	};
}
