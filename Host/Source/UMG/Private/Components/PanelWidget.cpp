#include "Components/PanelWidget.h"

UPanelWidget::UPanelWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

int32 UPanelWidget::GetChildrenCount() const
{
	return Slots.Num();
}

UWidget* UPanelWidget::GetChildAt(int32 Index) const
{
	return Slots.IsValidIndex(Index) && Slots[Index] ? Slots[Index]->Content : nullptr;
}

TArray<UWidget*> UPanelWidget::GetAllChildren() const
{
	TArray<UWidget*> Children;
	Children.Reserve(Slots.Num());
	for (UPanelSlot* ChildSlot : Slots)
	{
		Children.Add(ChildSlot->Content);
	}
	return Children;
}

int32 UPanelWidget::GetChildIndex(const UWidget* Content) const
{
	return Slots.IndexOfByPredicate([Content](const UPanelSlot* ChildSlot) { return ChildSlot && ChildSlot->Content == Content; });
}

bool UPanelWidget::HasChild(UWidget* Content) const
{
	return Content && Content->Slot && Content->Slot->Parent == this;
}

bool UPanelWidget::RemoveChildAt(int32 Index)
{
	if (!Slots.IsValidIndex(Index))
	{
		return false;
	}
	UPanelSlot* RemovedSlot = Slots[Index];
	Slots.RemoveAt(Index);
	ReleaseSlot(*RemovedSlot);
	return true;
}

void UPanelWidget::ReleaseSlot(UPanelSlot& RemovedSlot)
{
	if (RemovedSlot.Content)
	{
		RemovedSlot.Content->Slot = nullptr;
	}
	OnSlotRemoved(&RemovedSlot);

	// The child may be shown elsewhere again, so it keeps its Slate side only if somebody else holds it.
	const bool bReleaseChildren = true;
	RemovedSlot.ReleaseSlateResources(bReleaseChildren);
	RemovedSlot.Parent = nullptr;
	RemovedSlot.Content = nullptr;
}

UPanelSlot* UPanelWidget::AddChild(UWidget* Content)
{
	return InsertChildAt(Slots.Num(), Content);
}

UPanelSlot* UPanelWidget::InsertChildAt(int32 Index, UWidget* Content)
{
	if (!Content || !CanAddMoreChildren())
	{
		return nullptr;
	}
	Content->RemoveFromParent();
	Index = FMath::Clamp(Index, 0, Slots.Num());

	UPanelSlot* NewSlot = NewObject<UPanelSlot>(this, GetSlotClass(), NAME_None, GetMaskedFlags(RF_Transactional));
	NewSlot->Content = Content;
	NewSlot->Parent = this;
	Content->Slot = NewSlot;
	Content->SetDesignerFlags(GetDesignerFlags());

	// Slate panels append; what stands behind the index is taken out and appended again.
	TArray<UPanelSlot*> Behind;
	for (int32 BehindIndex = Index; BehindIndex < Slots.Num(); ++BehindIndex)
	{
		Behind.Add(Slots[BehindIndex]);
	}
	for (UPanelSlot* BehindSlot : Behind)
	{
		OnSlotRemoved(BehindSlot);
	}
	Slots.Insert(NewSlot, Index);
	OnSlotAdded(NewSlot);
	for (UPanelSlot* BehindSlot : Behind)
	{
		OnSlotAdded(BehindSlot);
	}
	return NewSlot;
}

bool UPanelWidget::RemoveChild(UWidget* Content)
{
	const int32 Index = GetChildIndex(Content);
	return Index != INDEX_NONE && RemoveChildAt(Index);
}

bool UPanelWidget::HasAnyChildren() const
{
	return !Slots.IsEmpty();
}

void UPanelWidget::ClearChildren()
{
	const TArray<TObjectPtr<UPanelSlot>> Removed = MoveTemp(Slots);
	Slots.Empty();
	// The first ones first: Slate panels find those at once.
	for (UPanelSlot* RemovedSlot : Removed)
	{
		ReleaseSlot(*RemovedSlot);
	}
}

void UPanelWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (bReleaseChildren)
	{
		for (UPanelSlot* ChildSlot : Slots)
		{
			if (ChildSlot)
			{
				ChildSlot->ReleaseSlateResources(bReleaseChildren);
			}
		}
	}
}

void UPanelWidget::SetDesignerFlags(EWidgetDesignFlags NewFlags)
{
	Super::SetDesignerFlags(NewFlags);
	for (UPanelSlot* ChildSlot : Slots)
	{
		if (ChildSlot && ChildSlot->Content)
		{
			ChildSlot->Content->SetDesignerFlags(NewFlags);
		}
	}
}
