#pragma once

#include "CoreMinimal.h"
#include "Host/ComboList.h"
#include "InputCoreTypes.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboButton.h"

/**
 * Shows one of several options, and lets the user choose another from a list. While it is closed, Up, Down, Home and End
 * select, Enter, the space bar and Alt with Up or Down open the list, and so does a letter or digit, which marks the next row
 * that begins with it. The wheel is left to what the box stands in: scrolling a page over it selects nothing.
 *
 * Selections by keys of the closed box are told as OnNavigation, those from the list as OnKeyPress or OnMouseClick, those
 * from code as Direct.
 *
 * Options are shared pointers. The array of options is kept by address; RefreshOptions is to be called when it changed.
 */
template <typename OptionType>
class SComboBox : public SComboButton
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FOnGenerateWidget, OptionType);
	DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, OptionType, ESelectInfo::Type);

	SLATE_BEGIN_ARGS(SComboBox)
		: _ComboBoxStyle(&FCoreStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox"))
		, _ItemStyle(&FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>("TableView.Row"))
		, _ScrollBarStyle(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
		, _ContentPadding(FMargin(0.0f))
		, _ForegroundColor(FSlateColor::UseStyle())
		, _OptionsSource(nullptr)
		, _MaxListHeight(450.0f)
		, _HasDownArrow(true)
		, _IsFocusable(true)
	{
	}
		/** What the closed box shows. */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** All kept by address. */
		SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboBoxStyle)
		SLATE_STYLE_ARGUMENT(FTableRowStyle, ItemStyle)
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
		/** Raises nothing. */
		SLATE_ARGUMENT(OptionType, InitiallySelectedItem)
		/** In slate units; a longer list scrolls. */
		SLATE_ARGUMENT(float, MaxListHeight)
		SLATE_ARGUMENT(bool, HasDownArrow)
		SLATE_ARGUMENT(bool, IsFocusable)
		/** Makes what a row shows, each time that the list opens. */
		SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		/** Before the list is made: the options may still be changed. */
		SLATE_EVENT(FSimpleDelegate, OnComboBoxOpening)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		ComboBoxStyle = InArgs._ComboBoxStyle;
		ItemStyle = InArgs._ItemStyle;
		ScrollBarStyle = InArgs._ScrollBarStyle;
		OptionsSource = InArgs._OptionsSource;
		SelectedItem = InArgs._InitiallySelectedItem;
		MaxListHeight = InArgs._MaxListHeight;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnComboBoxOpening = InArgs._OnComboBoxOpening;
		SComboButton::Construct(SComboButton::FArguments()
			.ComboButtonStyle(&ComboBoxStyle->ComboButtonStyle)
			.ContentPadding(InArgs._ContentPadding)
			.ForegroundColor(InArgs._ForegroundColor)
			.HasDownArrow(InArgs._HasDownArrow)
			.IsFocusable(InArgs._IsFocusable)
			.OnGetMenuContent(FOnGetContent::CreateSP(this, &SComboBox::MakeList))
			.ButtonContent()
			[
				InArgs._Content.Widget
			]);
	}

	OptionType GetSelectedItem() const { return SelectedItem; }

	/** Selecting what is selected raises nothing. */
	void SetSelectedItem(OptionType InSelectedItem, ESelectInfo::Type InSelectInfo = ESelectInfo::Direct)
	{
		if (SelectedItem != InSelectedItem)
		{
			SelectedItem = InSelectedItem;
			if (const TSharedPtr<Host::SComboList> Shown = IsOpen() ? List.Pin() : nullptr)
			{
				Shown->Mark(ShownOptions.Find(InSelectedItem));
			}
			// By value: the handler may take the box away.
			const FOnSelectionChanged Handler = OnSelectionChanged;
			Handler.ExecuteIfBound(InSelectedItem, InSelectInfo);
		}
	}

	void ClearSelection() { SetSelectedItem(OptionType()); }

	/** The options changed: a list that is open shows them as they are in the next frame. */
	void RefreshOptions()
	{
		if (IsOpen() && !RefreshTimer.IsValid())
		{
			RefreshTimer = RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateSP(this, &SComboBox::RefreshList));
		}
	}

	void SetMaxHeight(float InMaxHeight) { MaxListHeight = InMaxHeight; }

	/** To be called when a style was changed in place. */
	void InvalidateStyle() { SetComboButtonStyle(&ComboBoxStyle->ComboButtonStyle); }

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
	{
		if (IsOpen() || !IsEnabled() || InKeyEvent.IsControlDown() || InKeyEvent.IsCommandDown())
		{
			return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}
		const FKey Key = InKeyEvent.GetKey();
		const bool bIsUpOrDown = Key == EKeys::Up || Key == EKeys::Down;
		if (InKeyEvent.IsAltDown() && bIsUpOrDown)
		{
			SetIsOpen(true);
			return FReply::Handled();
		}
		if (InKeyEvent.IsAltDown())
		{
			return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}
		if (bIsUpOrDown || Key == EKeys::Home || Key == EKeys::End)
		{
			return SelectByKey(Key) ? FReply::Handled() : SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}
		const FString Typed = Key.GetDisplayName().ToString();
		if (Typed.Len() == 1 && FChar::IsAlnum(Typed[0]))
		{
			SetIsOpen(true);
			if (const TSharedPtr<Host::SComboList> Shown = List.Pin())
			{
				Shown->TypeCharacter(Typed[0]);
			}
			return FReply::Handled();
		}
		return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
	}

private:
	/** False when there is nothing to select. */
	bool SelectByKey(const FKey& Key)
	{
		const int32 Last = OptionsSource->Num() - 1;
		const int32 Current = OptionsSource->Find(SelectedItem);
		const int32 Next = Key == EKeys::Home ? 0 : Key == EKeys::End ? Last : Current + (Key == EKeys::Down ? 1 : -1);
		if (Last >= 0)
		{
			SetSelectedItem(OptionType((*OptionsSource)[FMath::Clamp(Next, 0, Last)]), ESelectInfo::OnNavigation);
		}
		return Last >= 0;
	}

	TSharedRef<SWidget> MakeList()
	{
		OnComboBoxOpening.ExecuteIfBound();
		const TSharedRef<Host::SComboList> NewList = SNew(Host::SComboList)
			.ComboStyle(ComboBoxStyle)
			.RowStyle(ItemStyle)
			.ScrollBarStyle(ScrollBarStyle)
			.MaxHeight(MaxListHeight)
			.OnChosen(Host::FOnComboRowChosen::CreateSP(this, &SComboBox::OnRowChosen));
		List = NewList;
		FillList(NewList.Get());
		return NewList;
	}

	void FillList(Host::SComboList& Filled)
	{
		ShownOptions = *OptionsSource;
		TArray<TSharedRef<SWidget>> Rows;
		for (const OptionType& Option : TArray<OptionType>(ShownOptions))
		{
			Rows.Add(OnGenerateWidget.Execute(Option));
		}
		Filled.SetRows(Rows, ShownOptions.Find(SelectedItem));
	}

	EActiveTimerReturnType RefreshList(double, float)
	{
		RefreshTimer.Reset();
		if (const TSharedPtr<Host::SComboList> Shown = IsOpen() ? List.Pin() : nullptr)
		{
			FillList(*Shown);
		}
		return EActiveTimerReturnType::Stop;
	}

	void OnRowChosen(int32 Index, ESelectInfo::Type SelectInfo)
	{
		const OptionType Chosen = ShownOptions[Index];
		SetIsOpen(false);
		// It may have been taken away since it was shown.
		if (OptionsSource->Contains(Chosen))
		{
			SetSelectedItem(Chosen, SelectInfo);
		}
	}

	const FComboBoxStyle* ComboBoxStyle = nullptr;
	const FTableRowStyle* ItemStyle = nullptr;
	const FScrollBarStyle* ScrollBarStyle = nullptr;
	const TArray<OptionType>* OptionsSource = nullptr;
	/** Those that the rows of the list were made for. */
	TArray<OptionType> ShownOptions;
	OptionType SelectedItem;
	float MaxListHeight = 450.0f;
	TWeakPtr<Host::SComboList> List;
	TSharedPtr<FActiveTimerHandle> RefreshTimer;
	FOnGenerateWidget OnGenerateWidget;
	FOnSelectionChanged OnSelectionChanged;
	FSimpleDelegate OnComboBoxOpening;
};
