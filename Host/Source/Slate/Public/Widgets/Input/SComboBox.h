#pragma once

#include "CoreMinimal.h"
#include "Host/ComboList.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/SComboButton.h"

/**
 * Shows one of several options, and lets the user choose another from a list. While it is closed, the up and down keys go
 * through the options.
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
		/** Both kept by address. */
		SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboBoxStyle)
		SLATE_STYLE_ARGUMENT(FTableRowStyle, ItemStyle)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
		/** Raises nothing. */
		SLATE_ARGUMENT(OptionType, InitiallySelectedItem)
		/** In slate units. */
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
			OnSelectionChanged.ExecuteIfBound(InSelectedItem, InSelectInfo);
		}
	}

	void ClearSelection() { SetSelectedItem(OptionType()); }

	/** The options changed: a list that is open is closed, as it shows the former ones. */
	void RefreshOptions() { SetIsOpen(false); }

	void SetMaxHeight(float InMaxHeight) { MaxListHeight = InMaxHeight; }

	/** To be called when a style was changed in place. */
	void InvalidateStyle() { SetComboButtonStyle(&ComboBoxStyle->ComboButtonStyle); }

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
	{
		const FKey Key = InKeyEvent.GetKey();
		if (IsOpen() || !IsEnabled() || (Key != EKeys::Up && Key != EKeys::Down) || OptionsSource->IsEmpty())
		{
			return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}
		const int32 Index = FMath::Clamp(OptionsSource->Find(SelectedItem) + (Key == EKeys::Down ? 1 : -1), 0, OptionsSource->Num() - 1);
		SetSelectedItem((*OptionsSource)[Index], ESelectInfo::OnNavigation);
		return FReply::Handled();
	}

private:
	TSharedRef<SWidget> MakeList()
	{
		OnComboBoxOpening.ExecuteIfBound();
		TArray<TSharedRef<SWidget>> Rows;
		for (const OptionType& Option : *OptionsSource)
		{
			Rows.Add(OnGenerateWidget.Execute(Option));
		}
		const TSharedRef<Host::SComboList> List = SNew(Host::SComboList)
			.ComboStyle(ComboBoxStyle)
			.RowStyle(ItemStyle)
			.MaxHeight(MaxListHeight)
			.Marked(OptionsSource->Find(SelectedItem))
			.Rows(Rows)
			.OnChosen(Host::FOnComboRowChosen::CreateSP(this, &SComboBox::OnRowChosen));
		return List;
	}

	void OnRowChosen(int32 Index, ESelectInfo::Type SelectInfo)
	{
		const bool bStillThere = OptionsSource->IsValidIndex(Index);
		const OptionType Chosen = bStillThere ? (*OptionsSource)[Index] : OptionType();
		SetIsOpen(false);
		if (bStillThere)
		{
			SetSelectedItem(Chosen, SelectInfo);
		}
	}

	const FComboBoxStyle* ComboBoxStyle = nullptr;
	const FTableRowStyle* ItemStyle = nullptr;
	const TArray<OptionType>* OptionsSource = nullptr;
	OptionType SelectedItem;
	float MaxListHeight = 450.0f;
	FOnGenerateWidget OnGenerateWidget;
	FOnSelectionChanged OnSelectionChanged;
	FSimpleDelegate OnComboBoxOpening;
};
