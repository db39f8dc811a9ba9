#include "Host/ComboList.h"

#include "InputCoreTypes.h"
#include "Widgets/Input/KeyboardUse.h"
#include "Widgets/Input/SComboRow.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"

namespace Host
{
	void SComboList::Construct(const FArguments& InArgs)
	{
		const FComboBoxStyle& ComboStyle = InArgs._ComboStyle ? *InArgs._ComboStyle : FComboBoxStyle::GetDefault();
		OnChosen = InArgs._OnChosen;
		Marked = InArgs._Marked;
		ScrollBox = SNew(SScrollBox);
		for (int32 Index = 0; Index < InArgs._Rows.Num(); ++Index)
		{
			const TSharedRef<SComboRow> Row = SNew(SComboRow)
				.RowStyle(InArgs._RowStyle)
				.Index(Index)
				.Marked(Index == Marked)
				.RowPadding(ComboStyle.MenuRowPadding)
				.OnClicked(FSimpleDelegate::CreateSP(this, &SComboList::Choose, Index, ESelectInfo::OnMouseClick))
				[
					InArgs._Rows[Index]
				];
			Rows.Add(Row);
			ScrollBox->AddSlot()[Row];
		}
		SBorder::Construct(SBorder::FArguments()
			.BorderImage(&ComboStyle.ComboButtonStyle.MenuBorderBrush)
			.Padding(ComboStyle.ComboButtonStyle.MenuBorderPadding)
			[
				SNew(SBox).MaxDesiredHeight(FOptionalSize(InArgs._MaxHeight))[ScrollBox.ToSharedRef()]
			]);
		if (Rows.IsValidIndex(Marked))
		{
			ScrollBox->ScrollDescendantIntoView(Rows[Marked], false);
		}
	}

	FReply SComboList::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
	{
		const FKey Key = InKeyEvent.GetKey();
		if (IsAcceptKey(Key))
		{
			// A key that is still down from opening the list chooses nothing.
			if (!InKeyEvent.IsRepeat() && Rows.IsValidIndex(Marked))
			{
				Choose(Marked, ESelectInfo::OnKeyPress);
			}
			return FReply::Handled();
		}
		if (Rows.IsEmpty())
		{
			return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
		}
		if (Key == EKeys::Up || Key == EKeys::Down)
		{
			Mark(FMath::Clamp(Marked + (Key == EKeys::Down ? 1 : -1), 0, Rows.Num() - 1));
			return FReply::Handled();
		}
		if (Key == EKeys::Home || Key == EKeys::End)
		{
			Mark(Key == EKeys::Home ? 0 : Rows.Num() - 1);
			return FReply::Handled();
		}
		return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
	}

	FReply SComboList::OnMouseButtonDown(const FGeometry&, const FPointerEvent&)
	{
		// A press beside the rows is not one on what lies below the list.
		return FReply::Handled();
	}

	FNavigationReply SComboList::OnNavigation(const FGeometry&, const FNavigationEvent&)
	{
		return FNavigationReply::Stop();
	}

	void SComboList::Mark(int32 Index)
	{
		if (Rows.IsValidIndex(Marked))
		{
			Rows[Marked]->SetMarked(false);
		}
		Marked = Index;
		Rows[Marked]->SetMarked(true);
		ScrollBox->ScrollDescendantIntoView(Rows[Marked], false);
	}

	void SComboList::Choose(int32 Index, ESelectInfo::Type SelectInfo)
	{
		const FOnComboRowChosen Handler = OnChosen;
		Handler.ExecuteIfBound(Index, SelectInfo);
	}
}
