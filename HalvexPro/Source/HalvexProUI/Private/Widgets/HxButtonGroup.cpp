#include "Widgets/HxButtonGroup.h"

#include "UObject/UnrealType.h"
#include "Widgets/HxButton.h"
#include "Widgets/Layout/SSpacer.h"

void UHxButtonGroup::AddButton(UHxButton* InButton)
{
	ButtonList.Add(InButton);
}

void UHxButtonGroup::RemoveButton(UHxButton* InButton)
{
	ButtonList.Remove(InButton);
}

void UHxButtonGroup::SetButtonList(TArray<UHxButton*> InButtonGroup)
{
	ButtonList = MoveTemp(ObjectPtrWrap(InButtonGroup));
	RefreshButtonReferences();
}

TArray<UHxButton*> UHxButtonGroup::GetButtonList() const
{
	return ObjectPtrDecay(ButtonList);
}

void UHxButtonGroup::RefreshButtonReferences()
{
	SelectionButtons.Empty();
	for (int32 Index = 0; Index < ButtonList.Num(); ++Index)
	{
		UHxButton* Button = ButtonList[Index];
		if (!Button)
		{
			continue;
		}
		Button->OnButtonSelectionChange.AddUniqueDynamic(this, &UHxButtonGroup::ReceivedOnSelectionChange);
		Button->ButtonIndex = Index;
		if (ButtonGroupControlMode == EButtonGroupControlMode::EBGM_SingleSelection)
		{
			Button->SelectionMode = bAllowNoneSelection ? EButtonSelectionMode::EBSM_Toggle : EButtonSelectionMode::EBSM_Blocked;
		}
	}
	InitialSelection();
}

void UHxButtonGroup::CleanButtonList()
{
	ClearAllButtonSelection();
	for (UHxButton* Button : ButtonList)
	{
		if (Button)
		{
			Button->OnButtonSelectionChange.RemoveDynamic(this, &UHxButtonGroup::ReceivedOnSelectionChange);
		}
	}
	ButtonList.Empty();
	SelectionButtons.Empty();
	SelectedButtonsIndex.Empty();
}

void UHxButtonGroup::ClearAllButtonSelection()
{
	// Listeners hear of the clearing even when nothing may be cleared, and after each button's own change once more.
	if (bAllowNoneSelection && !SelectionButtons.IsEmpty())
	{
		// A copy: the buttons' events take their records away in the middle of the walk.
		const TMap<int32, TObjectPtr<UHxButton>> Recorded = SelectionButtons;
		for (const TPair<int32, TObjectPtr<UHxButton>>& Record : Recorded)
		{
			if (IsValid(Record.Value))
			{
				Record.Value->SetSelectionState(false, true);
			}
		}
		SelectionButtons.Empty();
	}
	OnClearSelection.Broadcast();
}

void UHxButtonGroup::SetSelectedIndex(TArray<int32> InSelection)
{
	SelectedButtonsIndex = MoveTemp(InSelection);
	SelectionButtons.Empty();
	InitialSelection();
	CallOnSelectionChanged();
}

void UHxButtonGroup::SetSelectionByIndex(int32 ButtonIndex)
{
	if (ButtonList.IsValidIndex(ButtonIndex) && ButtonList[ButtonIndex])
	{
		ButtonList[ButtonIndex]->SetSelectionState(true, true);
	}
}

void UHxButtonGroup::SetSelectionByButton(UHxButton* InButton)
{
	if (InButton)
	{
		ButtonList[ButtonList.Find(InButton)]->SetSelectionState(true, true);
	}
}

void UHxButtonGroup::SetSelectionByButtonID(FName ButtonID)
{
	if (ButtonID.IsNone())
	{
		return;
	}
	for (UHxButton* Button : ButtonList)
	{
		if (Button->ButtonID == ButtonID)
		{
			Button->SetSelectionState(true, true);
			return;
		}
	}
}

TArray<int32> UHxButtonGroup::GetSelectionButtonIndexs() const
{
	TArray<int32> Indexes;
	for (const TPair<int32, TObjectPtr<UHxButton>>& Record : SelectionButtons)
	{
		const int32 Index = ButtonList.Find(Record.Value);
		if (Index != INDEX_NONE)
		{
			Indexes.Add(Index);
		}
	}
	return Indexes;
}

TArray<FName> UHxButtonGroup::GetSelectionButtonIDs() const
{
	TArray<FName> IDs;
	for (const TPair<int32, TObjectPtr<UHxButton>>& Record : SelectionButtons)
	{
		IDs.Add(Record.Value->ButtonID);
	}
	return IDs;
}

bool UHxButtonGroup::HasSelection() const
{
	return !SelectionButtons.IsEmpty();
}

void UHxButtonGroup::ReceivedOnSelectionChange(UHxButton* ButtonChanged, bool bSelected)
{
	if (IsDesignTime())
	{
		return;
	}
	switch (ButtonGroupControlMode)
	{
	case EButtonGroupControlMode::EBGM_SingleSelection:
		OnSingleSelectionChange(ButtonChanged, bSelected);
		break;
	case EButtonGroupControlMode::EBGM_MultiSelection:
		OnMultiSelectionChange(ButtonChanged, bSelected);
		break;
	}
}

#if WITH_EDITOR
void UHxButtonGroup::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	Super::PostEditChangeChainProperty(PropertyChangedEvent);
	const FName PropertyName = PropertyChangedEvent.GetPropertyName();
	if (PropertyName == GET_MEMBER_NAME_CHECKED(UHxButtonGroup, ButtonList) || PropertyName == GET_MEMBER_NAME_CHECKED(UHxButtonGroup, bAllowNoneSelection))
	{
		RefreshButtonReferences();
	}
	else if (PropertyName == GET_MEMBER_NAME_CHECKED(UHxButtonGroup, SelectedButtonsIndex))
	{
		if (ButtonGroupControlMode == EButtonGroupControlMode::EBGM_SingleSelection && SelectedButtonsIndex.Num() > 1)
		{
			SelectedButtonsIndex.SetNum(1);
		}
		else if (ButtonGroupControlMode == EButtonGroupControlMode::EBGM_MultiSelection && SelectedButtonsIndex.Num() > ButtonList.Num())
		{
			SelectedButtonsIndex.Pop(EAllowShrinking::Yes);
		}
		InitialSelection();
	}
}

const FText UHxButtonGroup::GetPaletteCategory()
{
	return NSLOCTEXT("HalvexUI", "HalvexWidget", "Halvex Widget");
}
#endif

TSharedRef<SWidget> UHxButtonGroup::RebuildWidget()
{
	RefreshButtonReferences();
	return SNew(SSpacer);
}

void UHxButtonGroup::OnSingleSelectionChange(UHxButton* Button, bool bSelected)
{
	if (bSelected)
	{
		if (!SelectionButtons.IsEmpty() && !SelectionButtons.Contains(Button->ButtonIndex))
		{
			DeselectFirstRecorded();
		}
		SelectionButtons.Add(Button->ButtonIndex, Button);
		CallOnSelectionChanged();
		return;
	}
	DeselectFirstRecorded();
	if (SelectionButtons.IsEmpty())
	{
		CallOnSelectionChanged();
		OnClearSelection.Broadcast();
	}
}

void UHxButtonGroup::OnMultiSelectionChange(UHxButton* Button, bool bSelected)
{
	PruneInValidSelectionObject();
	if (bSelected)
	{
		if (!bAllowNoneSelection && SelectionButtons.Num() == 1)
		{
			SelectionButtons.CreateIterator().Value()->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
		}
		SelectionButtons.Add(Button->ButtonIndex, Button);
		CallOnSelectionChanged();
		return;
	}
	SelectionButtons.Remove(Button->ButtonIndex);
	if (!bAllowNoneSelection && SelectionButtons.Num() == 1)
	{
		SelectionButtons.CreateIterator().Value()->SelectionMode = EButtonSelectionMode::EBSM_Blocked;
	}
	// Here the clearing is told ahead of the change; with single selection it comes after. Listeners rely on both orders.
	if (SelectionButtons.IsEmpty())
	{
		OnClearSelection.Broadcast();
	}
	CallOnSelectionChanged();
}

void UHxButtonGroup::InitialSelection()
{
	for (UHxButton* Button : ButtonList)
	{
		if (!Button)
		{
			continue;
		}
		const bool bSelected = SelectedButtonsIndex.Contains(Button->ButtonIndex);
		Button->SetSelectionState(bSelected, false);
		if (bSelected && !SelectionButtons.Contains(Button->ButtonIndex))
		{
			SelectionButtons.Add(Button->ButtonIndex, Button);
		}
	}
}

void UHxButtonGroup::CallOnSelectionChanged() const
{
	OnSelectionChange.Broadcast(SelectionButtons.IsEmpty(), GetSelectionButtonIndexs());
}

void UHxButtonGroup::PruneInValidSelectionObject()
{
	for (TMap<int32, TObjectPtr<UHxButton>>::TIterator Iterator = SelectionButtons.CreateIterator(); Iterator; ++Iterator)
	{
		if (!IsValid(Iterator.Value()))
		{
			Iterator.RemoveCurrent();
		}
	}
}

void UHxButtonGroup::DeselectFirstRecorded()
{
	TMap<int32, TObjectPtr<UHxButton>>::TIterator First = SelectionButtons.CreateIterator();
	// Only a recorded button can be deselected with single selection.
	check(First);
	UHxButton* Button = First.Value();
	First.RemoveCurrent();
	Button->SetSelectionState(false, false);
}
