#include "BenchmarkListEntry.h"

#include "Blueprint/WidgetTree.h"
#include "Components/HorizontalBox.h"
#include "Components/TextBlock.h"

int32 UBenchmarkListEntry::NumMade = 0;

void UBenchmarkListEntry::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	++NumMade;
	UHorizontalBox* Box = WidgetTree->ConstructWidget<UHorizontalBox>();
	NameText = WidgetTree->ConstructWidget<UTextBlock>();
	PriceText = WidgetTree->ConstructWidget<UTextBlock>();
	Box->AddChild(NameText);
	Box->AddChild(PriceText);
	WidgetTree->RootWidget = Box;
}

void UBenchmarkListEntry::NativeOnListItemObjectSet(UObject* ListItemObject)
{
	IUserObjectListEntry::NativeOnListItemObjectSet(ListItemObject);
	const UBenchmarkListItem* Item = CastChecked<UBenchmarkListItem>(ListItemObject);
	NameText->SetText(Item->Name);
	PriceText->SetText(Item->Price);
}
