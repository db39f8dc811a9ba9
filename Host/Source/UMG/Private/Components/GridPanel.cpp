#include "Components/GridPanel.h"

#include "Components/GridSlot.h"
#include "Widgets/Layout/SGridPanel.h"

#define LOCTEXT_NAMESPACE "UMG"

UGridPanel::UGridPanel(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UGridSlot* UGridPanel::AddChildToGrid(UWidget* Content, int32 InRow, int32 InColumn)
{
	UGridSlot* GridSlot = Cast<UGridSlot>(AddChild(Content));
	if (GridSlot)
	{
		GridSlot->SetRow(InRow);
		GridSlot->SetColumn(InColumn);
	}
	return GridSlot;
}

void UGridPanel::SetColumnFill(int32 ColumnIndex, float Coefficient)
{
	if (ColumnIndex < 0)
	{
		return;
	}
	while (ColumnFill.Num() <= ColumnIndex)
	{
		ColumnFill.Add(0.0f);
	}
	ColumnFill[ColumnIndex] = Coefficient;
	if (MyGridPanel)
	{
		MyGridPanel->SetColumnFill(ColumnIndex, Coefficient);
	}
}

void UGridPanel::SetRowFill(int32 RowIndex, float Coefficient)
{
	if (RowIndex < 0)
	{
		return;
	}
	while (RowFill.Num() <= RowIndex)
	{
		RowFill.Add(0.0f);
	}
	RowFill[RowIndex] = Coefficient;
	if (MyGridPanel)
	{
		MyGridPanel->SetRowFill(RowIndex, Coefficient);
	}
}

void UGridPanel::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyGridPanel.Reset();
}

void UGridPanel::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MyGridPanel)
	{
		MyGridPanel->ClearFill();
		for (int32 Index = 0; Index < ColumnFill.Num(); ++Index)
		{
			MyGridPanel->SetColumnFill(Index, ColumnFill[Index]);
		}
		for (int32 Index = 0; Index < RowFill.Num(); ++Index)
		{
			MyGridPanel->SetRowFill(Index, RowFill[Index]);
		}
	}
}

#if WITH_EDITOR
const FText UGridPanel::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UGridPanel::GetSlotClass() const
{
	return UGridSlot::StaticClass();
}

void UGridPanel::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyGridPanel)
	{
		CastChecked<UGridSlot>(InSlot)->BuildSlot(MyGridPanel.ToSharedRef());
	}
}

void UGridPanel::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyGridPanel && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyGridPanel->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UGridPanel::RebuildWidget()
{
	MyGridPanel = SNew(SGridPanel);
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UGridSlot>(PanelSlot)->BuildSlot(MyGridPanel.ToSharedRef());
	}
	return MyGridPanel.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
