#include "UserWidget/HalvexButtonGroupSelectionUW.h"

#include "Components/PanelWidget.h"
#include "UserWidget/HalvexButtonUW.h"

void UHalvexButtonGroupSelectionUW::RefreshButtonReferences(TArray<UHalvexButtonUW*> InButtonList)
{
	ButtonList = MoveTemp(ObjectPtrWrap(InButtonList));
	BindButtonActions();
}

void UHalvexButtonGroupSelectionUW::SetSelectionByButton(UHalvexButtonUW* ButtonReference)
{
	if (!ButtonReference)
	{
		return;
	}
	UHalvexButtonUW* Previous = CurrentSelection;
	CurrentSelection = ButtonReference;
	OnSelectionChange.Broadcast(GetSelectedButtonIndex(), ButtonReference->GetButtonID());
	if (Previous)
	{
		Previous->UnSelectButton();
	}
}

void UHalvexButtonGroupSelectionUW::SetSelectionByButtonID(FName ButtonID)
{
	for (UHalvexButtonUW* Button : ButtonList)
	{
		if (Button->GetButtonID() == ButtonID)
		{
			SetSelectionByButton(Button);
			return;
		}
	}
}

void UHalvexButtonGroupSelectionUW::SetSelectionByIndex(int32 ButtonIndex)
{
	if (ButtonList.IsValidIndex(ButtonIndex) && IsValid(ButtonList[ButtonIndex]))
	{
		SetSelectionByButton(ButtonList[ButtonIndex]);
	}
}

void UHalvexButtonGroupSelectionUW::ClearAllButtonSelection()
{
	// First of all: with nothing current, the members' reports of their deselection are ignored.
	CurrentSelection = nullptr;
	for (UHalvexButtonUW* Button : ButtonList)
	{
		if (Button && Button->SelectableButton)
		{
			Button->SelectableButton->SetSelectionState(false, true);
		}
	}
	if (OnClearSelection.IsBound())
	{
		OnClearSelection.Broadcast();
	}
}

int32 UHalvexButtonGroupSelectionUW::GetSelectedButtonIndex() const
{
	return CurrentSelection ? ButtonList.Find(CurrentSelection) : INDEX_NONE;
}

FName UHalvexButtonGroupSelectionUW::GetSelectedButtonID() const
{
	return CurrentSelection ? CurrentSelection->GetButtonID() : FName();
}

bool UHalvexButtonGroupSelectionUW::HasSelection() const
{
	return CurrentSelection != nullptr;
}

void UHalvexButtonGroupSelectionUW::Received_ButtonSelectionChanged(UHalvexButtonUW* ButtonChangeSelection)
{
	const bool bSelected = ButtonChangeSelection->IsSelectedButton();
	if (CurrentSelection == ButtonChangeSelection)
	{
		if (!bSelected)
		{
			ClearAllButtonSelection();
		}
	}
	else if (bSelected)
	{
		SetSelectionByButton(ButtonChangeSelection);
	}
}

void UHalvexButtonGroupSelectionUW::BindButtonActions()
{
	for (UHalvexButtonUW* Button : ButtonList)
	{
		if (IsValid(Button))
		{
			Button->OnButtonSelectionChange.AddUniqueDynamic(this, &UHalvexButtonGroupSelectionUW::Received_ButtonSelectionChanged);
		}
	}
}

void UHalvexButtonGroupSelectionUW::ScanForChildren()
{
	if (!ButtonsContainer)
	{
		return;
	}
	for (int32 Index = 0; Index < ButtonsContainer->GetChildrenCount(); ++Index)
	{
		if (UHalvexButtonUW* Button = Cast<UHalvexButtonUW>(ButtonsContainer->GetChildAt(Index)))
		{
			ButtonList.AddUnique(Button);
		}
	}
}

void UHalvexButtonGroupSelectionUW::NativeOnInitialized()
{
	Super::NativeOnInitialized();
}

void UHalvexButtonGroupSelectionUW::NativePreConstruct()
{
	Super::NativePreConstruct();
	if (IsDesignTime())
	{
		ScanForChildren();
	}
}

void UHalvexButtonGroupSelectionUW::NativeConstruct()
{
	Super::NativeConstruct();
	ScanForChildren();
	BindButtonActions();
}
