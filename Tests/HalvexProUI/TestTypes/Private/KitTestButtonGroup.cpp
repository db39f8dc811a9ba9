#include "KitTestButtonGroup.h"

#include "Widgets/HxButton.h"

void UKitTestButtonGroup::OnSingleSelectionChange(UHxButton* Button, bool bSelected)
{
	Calls.Add(FString::Printf(TEXT("single(%s,%d)"), *GetNameSafe(Button), bSelected ? 1 : 0));
}

void UKitTestButtonGroup::OnMultiSelectionChange(UHxButton* Button, bool bSelected)
{
	Calls.Add(FString::Printf(TEXT("multi(%s,%d)"), *GetNameSafe(Button), bSelected ? 1 : 0));
}
