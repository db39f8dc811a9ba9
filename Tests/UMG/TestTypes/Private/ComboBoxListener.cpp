#include "ComboBoxListener.h"

#include "Components/ComboBoxString.h"
#include "Components/TextBlock.h"
#include "UObject/UnrealType.h"

void UComboBoxListener::OnSelectionChanged(FString SelectedItem, ESelectInfo::Type SelectionType)
{
	Events.Add(StaticEnum<ESelectInfo::Type>()->GetNameStringByValue(SelectionType) + TEXT(":") + SelectedItem);
}

UWidget* UComboBoxListener::MakeOption(FString Item)
{
	if (Item == TEXT("High"))
	{
		return nullptr;
	}
	UTextBlock* Text = NewObject<UTextBlock>(this);
	Text->SetText(FText::FromString(TEXT("[") + Item + TEXT("]")));
	return Text;
}

void UComboBoxListener::Refill(FString SelectedItem, ESelectInfo::Type)
{
	if (SelectedItem.IsEmpty())
	{
		return;
	}
	Refilled->ClearOptions();
	for (const FString& Option : OptionsToFill)
	{
		Refilled->AddOption(Option);
	}
}
