#include "Components/ComboBoxString.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "UMG"

UComboBoxString::UComboBoxString(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox"))
	, ItemStyle(FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>("TableView.Row"))
	, Font(FCoreStyle::GetDefaultFontStyle("Regular", 9.0f))
{
}

void UComboBoxString::AddOption(const FString& Option)
{
	TakeDefaults();
	Options.Add(MakeShared<FString>(Option));
	RefreshOptions();
}

bool UComboBoxString::RemoveOption(const FString& Option)
{
	TakeDefaults();
	const int32 Index = FindOptionIndex(Option);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	if (Options[Index] == CurrentOption)
	{
		ClearSelection();
	}
	Options.RemoveAt(Index);
	RefreshOptions();
	return true;
}

int32 UComboBoxString::FindOptionIndex(const FString& Option) const
{
	return Options.IndexOfByPredicate([&Option](const TSharedPtr<FString>& Item) { return Item->Equals(Option, ESearchCase::IgnoreCase); });
}

FString UComboBoxString::GetOptionAtIndex(int32 Index) const
{
	return Options.IsValidIndex(Index) ? *Options[Index] : FString();
}

void UComboBoxString::ClearOptions()
{
	TakeDefaults();
	ClearSelection();
	Options.Reset();
	RefreshOptions();
}

void UComboBoxString::ClearSelection()
{
	if (MyComboBox)
	{
		MyComboBox->ClearSelection();
		return;
	}
	// Without a Slate side this is told to nobody; callers that fill the box while they are made rely on it.
	CurrentOption.Reset();
	SelectedOption.Reset();
}

void UComboBoxString::RefreshOptions()
{
	if (MyComboBox)
	{
		MyComboBox->RefreshOptions();
	}
}

void UComboBoxString::SetSelectedOption(FString Option)
{
	SetSelectedIndex(FindOptionIndex(Option));
}

void UComboBoxString::SetSelectedIndex(const int32 Index)
{
	// An index without an option clears nothing: callers rely on that the selection stays.
	if (Options.IsValidIndex(Index))
	{
		Select(Options[Index]);
	}
}

void UComboBoxString::Select(const TSharedPtr<FString>& Item)
{
	if (CurrentOption == Item)
	{
		return;
	}
	if (MyComboBox)
	{
		MyComboBox->SetSelectedItem(Item);
	}
	else
	{
		HandleSelectionChanged(Item, ESelectInfo::Direct);
	}
}

FString UComboBoxString::GetSelectedOption() const
{
	return CurrentOption ? *CurrentOption : FString();
}

int32 UComboBoxString::GetSelectedIndex() const
{
	return CurrentOption ? Options.Find(CurrentOption) : INDEX_NONE;
}

int32 UComboBoxString::GetOptionCount() const
{
	return Options.Num();
}

bool UComboBoxString::IsOpen() const
{
	return MyComboBox && MyComboBox->IsOpen();
}

void UComboBoxString::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyComboBox)
	{
		return;
	}
	MyComboBox->InvalidateStyle();
	MyComboBox->SetButtonContentPadding(ContentPadding);
	MyComboBox->SetHasDownArrow(HasDownArrow);
	MyComboBox->SetMaxHeight(MaxListHeight);
	MyComboBox->SetButtonForegroundColor(ForegroundColor);
	MyText->SetFont(Font);
	ShowSelection();
}

void UComboBoxString::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyComboBox.Reset();
	MyText.Reset();
}

void UComboBoxString::PostLoad()
{
	Super::PostLoad();
	TakeDefaults();
}

#if WITH_EDITOR
const FText UComboBoxString::GetPaletteCategory()
{
	return LOCTEXT("Input", "Input");
}
#endif

TSharedRef<SWidget> UComboBoxString::RebuildWidget()
{
	TakeDefaults();
	MyComboBox = SNew(SComboBox<TSharedPtr<FString>>)
		.ComboBoxStyle(&WidgetStyle)
		.ItemStyle(&ItemStyle)
		.OptionsSource(&Options)
		.InitiallySelectedItem(CurrentOption)
		.ContentPadding(ContentPadding)
		.ForegroundColor(ForegroundColor)
		.MaxListHeight(MaxListHeight)
		.HasDownArrow(HasDownArrow)
		.OnGenerateWidget(BIND_UOBJECT_DELEGATE(SComboBox<TSharedPtr<FString>>::FOnGenerateWidget, MakeRow))
		.OnSelectionChanged(BIND_UOBJECT_DELEGATE(SComboBox<TSharedPtr<FString>>::FOnSelectionChanged, HandleSelectionChanged))
		.OnComboBoxOpening(BIND_UOBJECT_DELEGATE(FSimpleDelegate, HandleOpening))
		[
			SAssignNew(MyText, STextBlock).Font(Font).OverflowPolicy(ETextOverflowPolicy::Ellipsis)
		];
	ShowSelection();
	return MyComboBox.ToSharedRef();
}

void UComboBoxString::HandleSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectionType)
{
	CurrentOption = Item;
	SelectedOption = GetSelectedOption();
	ShowSelection();
	if (!IsDesignTime())
	{
		OnSelectionChanged.Broadcast(SelectedOption, SelectionType);
	}
}

void UComboBoxString::HandleOpening()
{
	OnOpening.Broadcast();
}

TSharedRef<SWidget> UComboBoxString::MakeRow(TSharedPtr<FString> Item) const
{
	return SNew(STextBlock).Text(FText::FromString(*Item)).Font(Font);
}

void UComboBoxString::TakeDefaults()
{
	if (bTookDefaults)
	{
		return;
	}
	bTookDefaults = true;
	for (const FString& Option : DefaultOptions)
	{
		Options.Add(MakeShared<FString>(Option));
	}
	const int32 Index = CurrentOption ? INDEX_NONE : FindOptionIndex(SelectedOption);
	if (Index != INDEX_NONE)
	{
		CurrentOption = Options[Index];
	}
}

void UComboBoxString::ShowSelection()
{
	if (MyText)
	{
		MyText->SetText(FText::FromString(GetSelectedOption()));
	}
}

#undef LOCTEXT_NAMESPACE
