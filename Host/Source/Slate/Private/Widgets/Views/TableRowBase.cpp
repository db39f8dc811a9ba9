#include "Host/TableRowBase.h"

#include "InputCoreTypes.h"
#include "Rendering/DrawElements.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Views/RowBrush.h"
#include "Widgets/Views/SExpanderArrow.h"
#include "Widgets/Views/STableViewBase.h"

namespace Host
{
	void STableRowBase::ConstructRow(const TSharedRef<STableViewBase>& InOwnerTable, const FTableRowStyle* InStyle, const FMargin& InPadding, bool bInShowSelection,
		const TSharedRef<SWidget>& InContent)
	{
		OwnerTable = InOwnerTable;
		Style = InStyle;
		bShowSelection = bInShowSelection;
		RowContent = InContent;
		TSharedRef<SWidget> Whole = InContent;
		if (InStyle && InOwnerTable->IsTree())
		{
			Whole = SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().AutoWidth()[SAssignNew(Arrow, SExpanderArrow, StaticCastSharedRef<STableRowBase>(AsShared()))]
				+ SHorizontalBox::Slot().FillWidth(1.0f)[InContent];
		}
		SBorder::Construct(SBorder::FArguments().BorderImage(ChooseBrush()).Padding(InPadding)[Whole]);
	}

	void STableRowBase::SetIndexInList(int32 InIndexInList)
	{
		if (IndexInList != InIndexInList)
		{
			IndexInList = InIndexInList;
			UpdateLook();
		}
	}

	void STableRowBase::SetRowState(const FTableRowState& InState)
	{
		if (State == InState)
		{
			return;
		}
		if (Arrow.IsValid())
		{
			Arrow->Invalidate(State.IndentLevel != InState.IndentLevel ? EInvalidateWidgetReason::Layout : EInvalidateWidgetReason::Paint);
		}
		State = InState;
		UpdateLook();
		// The foreground of the content follows the state too.
		Invalidate(EInvalidateWidgetReason::Paint);
	}

	void STableRowBase::ToggleExpansion()
	{
		if (const TSharedPtr<STableViewBase> Table = OwnerTable.Pin())
		{
			Table->OnRowExpansionToggled(*this);
		}
	}

	FSlateColor STableRowBase::GetForegroundColor() const
	{
		if (!Style)
		{
			return SBorder::GetForegroundColor();
		}
		return State.bSelected && bShowSelection ? Style->SelectedTextColor : Style->TextColor;
	}

	FReply STableRowBase::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		const TSharedPtr<STableViewBase> Table = OwnerTable.Pin();
		if (!Table.IsValid() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
		{
			return SBorder::OnMouseButtonDown(MyGeometry, MouseEvent);
		}
		FReply Reply = Table->OnRowPressed(*this, MouseEvent);
		return Reply.IsEventHandled() ? Reply.CaptureMouse(AsShared()) : Reply;
	}

	FReply STableRowBase::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !HasMouseCapture())
		{
			return SBorder::OnMouseButtonUp(MyGeometry, MouseEvent);
		}
		if (const TSharedPtr<STableViewBase> Table = OwnerTable.Pin())
		{
			Table->OnRowReleased(*this, IsHovered());
		}
		return FReply::Handled().ReleaseMouseCapture();
	}

	FReply STableRowBase::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		const TSharedPtr<STableViewBase> Table = OwnerTable.Pin();
		if (Table.IsValid() && MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton && Table->OnRowDoubleClicked(*this))
		{
			return FReply::Handled();
		}
		return SBorder::OnMouseButtonDoubleClick(MyGeometry, MouseEvent);
	}

	void STableRowBase::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		SBorder::OnMouseEnter(MyGeometry, MouseEvent);
		UpdateLook();
		if (const TSharedPtr<STableViewBase> Table = OwnerTable.Pin())
		{
			Table->OnRowHovered(*this, true);
		}
	}

	void STableRowBase::OnMouseLeave(const FPointerEvent& MouseEvent)
	{
		SBorder::OnMouseLeave(MouseEvent);
		UpdateLook();
		if (const TSharedPtr<STableViewBase> Table = OwnerTable.Pin())
		{
			Table->OnRowHovered(*this, false);
		}
	}

	void STableRowBase::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
	{
		SBorder::OnMouseCaptureLost(CaptureLostEvent);
		if (const TSharedPtr<STableViewBase> Table = OwnerTable.Pin())
		{
			Table->FlushSelectionSignal();
		}
	}

	int32 STableRowBase::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
	{
		const int32 TopLayer = SBorder::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
		if (!State.bShowsFocus)
		{
			return TopLayer;
		}
		const FSlateBrush* FocusBrush = FCoreStyle::Get().GetBrush("FocusRectangle");
		FSlateDrawElement::MakeBox(
			OutDrawElements, TopLayer + 1, AllottedGeometry.ToPaintGeometry(), FocusBrush, ESlateDrawEffect::None, FocusBrush->GetTint(InWidgetStyle));
		return TopLayer + 1;
	}

	const FSlateBrush* STableRowBase::ChooseBrush() const
	{
		return Style ? ChooseRowBrush(*Style, IndexInList, State.bSelected && bShowSelection, IsHovered()) : nullptr;
	}

	void STableRowBase::UpdateLook()
	{
		ChangeBorderImage(ChooseBrush());
	}
}
