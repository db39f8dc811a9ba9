#include "UserWidget/HalvexButtonUW.h"

#include "Animation/WidgetAnimation.h"

void UHalvexButtonUW::SelectButton()
{
	SelectableButton->SetSelectionState(true, true);
}

void UHalvexButtonUW::UnSelectButton()
{
	if (SelectableButton)
	{
		SelectableButton->SetSelectionState(false, true);
	}
}

bool UHalvexButtonUW::IsSelectedButton() const
{
	return SelectableButton->IsButtonSelected();
}

FName UHalvexButtonUW::GetButtonID() const
{
	return SelectableButton->ButtonID;
}

void UHalvexButtonUW::Received_ButtonSelectionChanged(UHxButton*, bool bSelected)
{
	OnSelectionButtonChanged(bSelected);
	if (OnButtonSelectionChange.IsBound())
	{
		OnButtonSelectionChange.Broadcast(this);
	}
}

void UHalvexButtonUW::NativeOnInitialized()
{
	Super::NativeOnInitialized();
}

void UHalvexButtonUW::NativePreConstruct()
{
	Super::NativePreConstruct();
	if (IsDesignTime() && SelectableButton)
	{
		PushSettingsToButton();
	}
}

void UHalvexButtonUW::NativeConstruct()
{
	Super::NativeConstruct();
	if (!SelectableButton)
	{
		return;
	}
	SelectableButton->OnClickWithID = OnButtonPressed;
	SelectableButton->OnButtonSelectionChange.AddUniqueDynamic(this, &UHalvexButtonUW::Received_ButtonSelectionChanged);
	PushSettingsToButton();
}

void UHalvexButtonUW::PushSettingsToButton()
{
	SelectableButton->SelectionMode = ButtonSelectionMode;
	SelectableButton->SetSelectionState(bStartSelected, true);
	// Last on purpose: who hears of the start selection still sees the previous name.
	SelectableButton->ButtonID = ButtonID;
}
