#include "UserWidget/Exteriors/HxExteriorUnitList.h"

#include "Algo/Reverse.h"
#include "Algo/Sort.h"
#include "Components/EditableTextBox.h"
#include "Components/ListView.h"
#include "Engine/World.h"
#include "Filters/UnitsFilterManager.h"
#include "UObject/Package.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"

namespace
{
	/** Asked for with every comparison, for a graph that compares may change units; without a copy, for there are many. */
	const FUnitData& GetDataOf(const UHxExteriorUnitListObject& Item)
	{
		static const FUnitData NoUnit;
		return Item.UnitVolumeActorRef ? Item.UnitVolumeActorRef->GetUnitData() : NoUnit;
	}

	bool IsItemOf(const UObject* Item, const AUnitVolumeActor* UnitVolume)
	{
		const UHxExteriorUnitListObject* ListObject = Cast<UHxExteriorUnitListObject>(Item);
		return ListObject && ListObject->UnitVolumeActorRef == UnitVolume;
	}
}

void UHxExteriorUnitList::FilterUnitList(const FText& InSearchText)
{
	if (InSearchText.IsEmpty())
	{
		ShowItems(StoredList);
		return;
	}
	TArray<TObjectPtr<UHxExteriorUnitListObject>> Found;
	for (const TObjectPtr<UHxExteriorUnitListObject>& Item : StoredList)
	{
		if (OnElementFilter(InSearchText, GetDataOf(*Item)))
		{
			Found.Add(Item);
		}
	}
	ShowItems(Found);
}

void UHxExteriorUnitList::ClearSearchFilter()
{
	FilterUnitList(FText::GetEmpty());
}

void UHxExteriorUnitList::SortUnitList()
{
	Algo::Sort(StoredList, [this](const UHxExteriorUnitListObject* A, const UHxExteriorUnitListObject* B)
	{
		return OnElementSorted(GetDataOf(*A), GetDataOf(*B));
	});
	ShowItems(StoredList);
}

void UHxExteriorUnitList::ReverseUnitList()
{
	TArray<TObjectPtr<UHxExteriorUnitListObject>> Reversed = StoredList;
	Algo::Reverse(Reversed);
	if (ListViewContainer)
	{
		ListViewContainer->ClearListItems();
	}
	ShowItems(Reversed);
}

bool UHxExteriorUnitList::OnElementFilter_Implementation(const FText& InSearchText, const FUnitData& UnitData)
{
	return UnitData.Name.Contains(InSearchText.ToString(), ESearchCase::IgnoreCase, ESearchDir::FromStart);
}

bool UHxExteriorUnitList::OnElementSorted_Implementation(const FUnitData& UnitData1, const FUnitData& UnitData2)
{
	return UnitData1.Name.Compare(UnitData2.Name, ESearchCase::IgnoreCase) < 0;
}

void UHxExteriorUnitList::ReceivedSearchBoxChange(const FText& Text)
{
	FilterUnitList(Text);
}

void UHxExteriorUnitList::ReceivedUnitVolumeUpdateData(const TArray<FUnitData>&)
{
	FillListItems();
}

void UHxExteriorUnitList::ReceivedUnitVolumeSelectionClear()
{
	if (ListViewContainer && ListViewContainer->GetNumItemsSelected() > 0)
	{
		ListViewContainer->ClearSelection();
	}
}

void UHxExteriorUnitList::ReceivedUnitVolumeSelectionChange(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	const AUnitVolumeActor* const Selected = UnitVolumes.IsEmpty() ? nullptr : UnitVolumes[0];
	if (!Selected || !ListViewContainer)
	{
		return;
	}
	// The scene's answer to a selection in the list must not select once more.
	if (ListViewContainer->GetNumItemsSelected() > 0 && IsItemOf(ListViewContainer->GetSelectedItem(), Selected))
	{
		return;
	}
	UObject* const* const Found = ListViewContainer->GetListItems().FindByPredicate([Selected](const UObject* Item) { return IsItemOf(Item, Selected); });
	if (Found)
	{
		UObject* const Item = *Found;
		ListViewContainer->SetSelectedItem(Item);
		ListViewContainer->RequestNavigateToItem(Item);
		ListViewContainer->RequestRefresh();
	}
}

void UHxExteriorUnitList::Received_FilterResult(const FUnitsFilterResult&)
{
	FillListItems();
}

void UHxExteriorUnitList::FillListItems()
{
	AUnitVolumesManager* const Manager = AUnitVolumesManager::GetUnitVolumesManager(GetWorld());
	if (!Manager)
	{
		return;
	}
	const FUnitsFilterResult& Result = Manager->GetUnitFilterManager()->GetCurrentFilterResult();
	StoredList.Reset(Result.UnitVolumes.Num());
	for (const TObjectPtr<AUnitVolumeActor>& UnitVolume : Result.UnitVolumes)
	{
		UHxExteriorUnitListObject* Item = NewObject<UHxExteriorUnitListObject>(GetTransientPackage());
		Item->UnitVolumeActorRef = UnitVolume;
		StoredList.Add(Item);
	}
	ShowItems(StoredList);
}

void UHxExteriorUnitList::ReceivedItemSelectedChange(UObject* Item)
{
	if (const UHxExteriorUnitListObject* ListObject = Cast<UHxExteriorUnitListObject>(Item))
	{
		ListObject->UnitVolumeActorRef->SelectUnitVolume(false);
	}
}

void UHxExteriorUnitList::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	AUnitVolumesManager* const Manager = AUnitVolumesManager::GetUnitVolumesManager(GetWorld());
	if (!Manager)
	{
		return;
	}
	Manager->OnUnitDataUpdated.AddDynamic(this, &UHxExteriorUnitList::ReceivedUnitVolumeUpdateData);
	Manager->OnUnitVolumeSelectionCleared.AddDynamic(this, &UHxExteriorUnitList::ReceivedUnitVolumeSelectionClear);
	Manager->OnUnitVolumeSelectionChanged.AddDynamic(this, &UHxExteriorUnitList::ReceivedUnitVolumeSelectionChange);
	Manager->GetUnitFilterManager()->OnFilterResult.AddDynamic(this, &UHxExteriorUnitList::Received_FilterResult);
}

void UHxExteriorUnitList::NativeConstruct()
{
	Super::NativeConstruct();
	if (SearchBox)
	{
		SearchBox->OnTextChanged.AddUniqueDynamic(this, &UHxExteriorUnitList::ReceivedSearchBoxChange);
	}
	if (ListViewContainer)
	{
		// Once more with each construction: a widget that comes back selects once for each time; screens rely on it.
		ListViewContainer->OnItemSelectionChanged().AddUObject(this, &UHxExteriorUnitList::ReceivedItemSelectedChange);
	}
}

FReply UHxExteriorUnitList::NativeOnMouseWheel(const FGeometry&, const FPointerEvent&)
{
	return FReply::Handled();
}

void UHxExteriorUnitList::ShowItems(const TArray<TObjectPtr<UHxExteriorUnitListObject>>& Items)
{
	if (ListViewContainer)
	{
		ListViewContainer->SetListItems(Items);
	}
	OnRefreshListViewNum();
}
