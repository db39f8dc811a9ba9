#include "Host/ComboList.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/TextInput.h"
#include "Host/Clock.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/KeyboardUse.h"
#include "Widgets/Input/SComboRow.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"

namespace Host
{
	namespace
	{
		/** Seconds after which a typed character begins another text. */
		constexpr double TypingPause = 1.0;

		bool IsOneCharacterRepeated(const FString& Text)
		{
			for (const TCHAR Character : Text)
			{
				if (Character != Text[0])
				{
					return false;
				}
			}
			return true;
		}
	}

	void SComboList::Construct(const FArguments& InArgs)
	{
		const FComboBoxStyle& ComboStyle = InArgs._ComboStyle ? *InArgs._ComboStyle : FComboBoxStyle::GetDefault();
		RowStyle = InArgs._RowStyle;
		RowPadding = ComboStyle.MenuRowPadding;
		OnChosen = InArgs._OnChosen;
		ScrollBox = SNew(SScrollBox);
		if (InArgs._ScrollBarStyle)
		{
			ScrollBox->SetScrollBarStyle(InArgs._ScrollBarStyle);
		}
		SBorder::Construct(SBorder::FArguments()
			.BorderImage(&ComboStyle.ComboButtonStyle.MenuBorderBrush)
			.Padding(ComboStyle.ComboButtonStyle.MenuBorderPadding)
			[
				SNew(SBox).MaxDesiredHeight(FOptionalSize(InArgs._MaxHeight))[ScrollBox.ToSharedRef()]
			]);
	}

	void SComboList::SetRows(const TArray<TSharedRef<SWidget>>& Contents, int32 InMarked)
	{
		Rows.Reset();
		ScrollBox->ClearChildren();
		for (int32 Index = 0; Index < Contents.Num(); ++Index)
		{
			const TSharedRef<SComboRow> Row = SNew(SComboRow)
				.RowStyle(RowStyle)
				.Index(Index)
				.RowPadding(RowPadding)
				.OnClicked(FSimpleDelegate::CreateSP(this, &SComboList::Choose, Index, ESelectInfo::OnMouseClick))
				[
					Contents[Index]
				];
			Rows.Add(Row);
			ScrollBox->AddSlot()[Row];
		}
		Marked = INDEX_NONE;
		Mark(InMarked);
	}

	void SComboList::Mark(int32 Index)
	{
		if (Rows.IsValidIndex(Marked))
		{
			Rows[Marked]->SetMarked(false);
		}
		Marked = Rows.IsValidIndex(Index) ? Index : INDEX_NONE;
		if (Marked != INDEX_NONE)
		{
			Rows[Marked]->SetMarked(true);
			ScrollBox->ScrollDescendantIntoView(Rows[Marked], false);
		}
	}

	bool SComboList::IsTyping() const
	{
		return !Typed.IsEmpty() && FClock::Now() - TypedTime <= TypingPause;
	}

	void SComboList::TypeCharacter(TCHAR Character)
	{
		if (!IsTyping())
		{
			Typed.Reset();
		}
		TypedTime = FClock::Now();
		Typed += FChar::ToLower(Character);
		const bool bRepeated = IsOneCharacterRepeated(Typed);
		const FString Begin = bRepeated ? Typed.Left(1) : Typed;
		// A text that goes on may still be that of the marked row.
		const int32 First = FMath::Max(Marked, 0) + (bRepeated && Marked != INDEX_NONE ? 1 : 0);
		for (int32 Step = 0; Step < Rows.Num(); ++Step)
		{
			const int32 Index = (First + Step) % Rows.Num();
			if (Rows[Index]->GetText().ToLower().StartsWith(Begin, ESearchCase::CaseSensitive))
			{
				Mark(Index);
				return;
			}
		}
	}

	FReply SComboList::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
	{
		// Nothing is shown of what an input method is composing.
		FTextInput::Get().Begin(AsShared(), FOnComposition());
		return SBorder::OnFocusReceived(MyGeometry, InFocusEvent);
	}

	void SComboList::OnFocusLost(const FFocusEvent& InFocusEvent)
	{
		SBorder::OnFocusLost(InFocusEvent);
		FTextInput::Get().End(*this);
	}

	FReply SComboList::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
	{
		const FKey Key = InKeyEvent.GetKey();
		if (IsAcceptKey(Key))
		{
			// A key that is still down from opening the list chooses nothing, and a blank may be part of what is typed.
			const bool bIsBlank = Key == EKeys::SpaceBar && IsTyping();
			if (!InKeyEvent.IsRepeat() && !bIsBlank && Rows.IsValidIndex(Marked))
			{
				Choose(Marked, ESelectInfo::OnKeyPress);
			}
			return FReply::Handled();
		}
		if (Key == EKeys::Tab)
		{
			FSlateApplication::Get().DismissMenuByWidget(AsShared());
			return FReply::Handled().SetNavigation(InKeyEvent.IsShiftDown() ? EUINavigation::Previous : EUINavigation::Next);
		}
		const TOptional<int32> Row = GetRowForKey(Key);
		if (!Row.IsSet())
		{
			return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
		}
		Mark(FMath::Clamp(Row.GetValue(), 0, Rows.Num() - 1));
		return FReply::Handled();
	}

	TOptional<int32> SComboList::GetRowForKey(const FKey& Key) const
	{
		// As many rows as are in view, less one that stays in sight.
		const int32 Page = FMath::Max(FMath::FloorToInt32(ScrollBox->GetViewFraction() * Rows.Num()) - 1, 1);
		const TPair<FKey, int32> Steps[] = {
			{EKeys::Up, -1}, {EKeys::Down, 1}, {EKeys::PageUp, -Page}, {EKeys::PageDown, Page}, {EKeys::Home, -Rows.Num()}, {EKeys::End, Rows.Num()}};
		for (const TPair<FKey, int32>& Step : Steps)
		{
			if (Step.Key == Key)
			{
				return Marked + Step.Value;
			}
		}
		return TOptional<int32>();
	}

	FReply SComboList::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
	{
		const TCHAR Character = InCharacterEvent.GetCharacter();
		if (Character < ' ' || Character == 0x7F || (Character == ' ' && !IsTyping()))
		{
			return SBorder::OnKeyChar(MyGeometry, InCharacterEvent);
		}
		TypeCharacter(Character);
		return FReply::Handled();
	}

	FReply SComboList::OnMouseButtonDown(const FGeometry&, const FPointerEvent&)
	{
		// A press beside the rows is not one on what lies below the list.
		return FReply::Handled();
	}

	FReply SComboList::OnMouseWheel(const FGeometry&, const FPointerEvent&)
	{
		// At the end of the list nothing else scrolls in its place.
		return FReply::Handled();
	}

	FNavigationReply SComboList::OnNavigation(const FGeometry&, const FNavigationEvent&)
	{
		return FNavigationReply::Stop();
	}

	void SComboList::Choose(int32 Index, ESelectInfo::Type SelectInfo)
	{
		const FOnComboRowChosen Handler = OnChosen;
		Handler.ExecuteIfBound(Index, SelectInfo);
	}
}
