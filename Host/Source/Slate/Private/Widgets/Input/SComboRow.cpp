#include "Widgets/Input/SComboRow.h"

#include "InputCoreTypes.h"
#include "Widgets/Views/RowBrush.h"
#include "Widgets/Text/STextBlock.h"

namespace Host
{
	namespace
	{
		const STextBlock* FindText(const SWidget& Widget)
		{
			if (Widget.GetType() == FName("STextBlock"))
			{
				return static_cast<const STextBlock*>(&Widget);
			}
			const FChildren& Children = *Widget.GetChildren();
			for (int32 Index = 0; Index < Children.Num(); ++Index)
			{
				if (const STextBlock* Found = FindText(Children.GetChildAt(Index).Get()))
				{
					return Found;
				}
			}
			return nullptr;
		}
	}

	void SComboRow::Construct(const FArguments& InArgs)
	{
		Style = InArgs._RowStyle ? InArgs._RowStyle : &FTableRowStyle::GetDefault();
		OnClicked = InArgs._OnClicked;
		Index = InArgs._Index;
		bMarked = InArgs._Marked;
		SBorder::Construct(SBorder::FArguments()
			.BorderImage(ChooseBrush())
			.Padding(InArgs._RowPadding)
			[
				InArgs._Content.Widget
			]);
	}

	void SComboRow::SetMarked(bool bInMarked)
	{
		if (bMarked != bInMarked)
		{
			bMarked = bInMarked;
			UpdateLook();
		}
	}

	FString SComboRow::GetText() const
	{
		const STextBlock* Text = FindText(*this);
		return Text ? Text->GetText().ToString() : FString();
	}

	FSlateColor SComboRow::GetForegroundColor() const
	{
		return bMarked ? Style->SelectedTextColor : Style->TextColor;
	}

	FReply SComboRow::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
	{
		return MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton ? FReply::Handled().CaptureMouse(AsShared()) : FReply::Unhandled();
	}

	FReply SComboRow::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
	{
		if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !HasMouseCapture())
		{
			return FReply::Unhandled();
		}
		if (IsHovered())
		{
			// It closes the list, and this delegate goes with it.
			const FSimpleDelegate Handler = OnClicked;
			Handler.ExecuteIfBound();
		}
		return FReply::Handled().ReleaseMouseCapture();
	}

	FReply SComboRow::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		return OnMouseButtonDown(MyGeometry, MouseEvent);
	}

	void SComboRow::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		SBorder::OnMouseEnter(MyGeometry, MouseEvent);
		UpdateLook();
	}

	void SComboRow::OnMouseLeave(const FPointerEvent& MouseEvent)
	{
		SBorder::OnMouseLeave(MouseEvent);
		UpdateLook();
	}

	const FSlateBrush* SComboRow::ChooseBrush() const
	{
		return ChooseRowBrush(*Style, Index, bMarked, IsHovered());
	}

	void SComboRow::UpdateLook()
	{
		ChangeBorderImage(ChooseBrush());
		// The foreground of the content follows the state too.
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}
