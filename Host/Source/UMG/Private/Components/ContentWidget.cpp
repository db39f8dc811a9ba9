#include "Components/ContentWidget.h"

UContentWidget::UContentWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bCanHaveMultipleChildren = false;
}

UPanelSlot* UContentWidget::GetContentSlot() const
{
	return Slots.IsEmpty() ? nullptr : Slots[0].Get();
}

UPanelSlot* UContentWidget::SetContent(UWidget* Content)
{
	ClearChildren();
	return AddChild(Content);
}

UWidget* UContentWidget::GetContent() const
{
	const UPanelSlot* ContentSlot = GetContentSlot();
	return ContentSlot ? ContentSlot->Content : nullptr;
}
