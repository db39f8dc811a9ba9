#include "Components/ComboBoxString.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "UMG"

UComboBoxString::UComboBoxString(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox"))
	, ItemStyle(FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>("TableView.Row"))
	, ScrollBarStyle(FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
	, Font(FCoreStyle::GetDefaultFontStyle("Regular", 9.0f))
{
}

void UComboBoxString::AddOption(const FString& Option)
{
	TakeDefaults();
	Options.Add(MakeShared<FString>(Option));
	RefreshList();
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
	RefreshList();
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
	RefreshList();
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
	RefreshList();
	ShowSelection();
}

void UComboBoxString::RefreshList()
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

void UComboBoxString::SetWidgetStyle(const FComboBoxStyle& InWidgetStyle)
{
	WidgetStyle = InWidgetStyle;
	if (MyComboBox)
	{
		MyComboBox->InvalidateStyle();
	}
}

void UComboBoxString::SetItemStyle(const FTableRowStyle& InItemStyle)
{
	ItemStyle = InItemStyle;
}

void UComboBoxString::SetScrollBarStyle(const FScrollBarStyle& InScrollBarStyle)
{
	ScrollBarStyle = InScrollBarStyle;
}

void UComboBoxString::SetContentPadding(FMargin InPadding)
{
	ContentPadding = InPadding;
	if (MyComboBox)
	{
		MyComboBox->SetButtonContentPadding(InPadding);
	}
}

void UComboBoxString::SetMaxListHeight(float InMaxHeight)
{
	MaxListHeight = InMaxHeight;
	if (MyComboBox)
	{
		MyComboBox->SetMaxHeight(InMaxHeight);
	}
}

void UComboBoxString::SetHasDownArrow(bool InHasDownArrow)
{
	HasDownArrow = InHasDownArrow;
	if (MyComboBox)
	{
		MyComboBox->SetHasDownArrow(InHasDownArrow);
	}
}

void UComboBoxString::InitFont(FSlateFontInfo InFont)
{
	check(!MyComboBox);
	Font = InFont;
}

void UComboBoxString::InitForegroundColor(FSlateColor InForegroundColor)
{
	check(!MyComboBox);
	ForegroundColor = InForegroundColor;
}

void UComboBoxString::InitIsFocusable(bool InIsFocusable)
{
	check(!MyComboBox);
	bIsFocusable = InIsFocusable;
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
	MyContent.Reset();
	MyText.Reset();
	GeneratedContent = nullptr;
	GeneratedRows.Reset();
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
		.ScrollBarStyle(&ScrollBarStyle)
		.OptionsSource(&Options)
		.InitiallySelectedItem(CurrentOption)
		.ContentPadding(ContentPadding)
		.ForegroundColor(ForegroundColor)
		.MaxListHeight(MaxListHeight)
		.HasDownArrow(HasDownArrow)
		.IsFocusable(bIsFocusable)
		.OnGenerateWidget(BIND_UOBJECT_DELEGATE(SComboBox<TSharedPtr<FString>>::FOnGenerateWidget, HandleGenerateWidget))
		.OnSelectionChanged(BIND_UOBJECT_DELEGATE(SComboBox<TSharedPtr<FString>>::FOnSelectionChanged, HandleSelectionChanged))
		.OnComboBoxOpening(BIND_UOBJECT_DELEGATE(FSimpleDelegate, HandleOpening))
		[
			SAssignNew(MyContent, SBox).VAlign(VAlign_Center)
			[
				SAssignNew(MyText, STextBlock).Font(Font).OverflowPolicy(ETextOverflowPolicy::Ellipsis)
			]
		];
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
	GeneratedRows.Reset();
	OnOpening.Broadcast();
}

UWidget* UComboBoxString::Generate(const FString& Option) const
{
	return OnGenerateWidgetEvent.IsBound() ? OnGenerateWidgetEvent.Execute(Option) : nullptr;
}

TSharedRef<SWidget> UComboBoxString::HandleGenerateWidget(TSharedPtr<FString> Item) const
{
	if (UWidget* Generated = Generate(*Item))
	{
		GeneratedRows.Add(Generated);
		return Generated->TakeWidget();
	}
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
	if (!MyContent)
	{
		return;
	}
	MyText->SetText(FText::FromString(GetSelectedOption()));
	UWidget* Generated = CurrentOption ? Generate(*CurrentOption) : nullptr;
	MyContent->SetContent(Generated ? Generated->TakeWidget() : MyText.ToSharedRef());
	GeneratedContent = Generated;
}

#undef LOCTEXT_NAMESPACE
