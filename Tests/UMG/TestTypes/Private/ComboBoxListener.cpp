#include "ComboBoxListener.h"

#include "UObject/UnrealType.h"

void UComboBoxListener::OnSelectionChanged(FString SelectedItem, ESelectInfo::Type SelectionType)
{
	Events.Add(StaticEnum<ESelectInfo::Type>()->GetNameStringByValue(SelectionType) + TEXT(":") + SelectedItem);
}
