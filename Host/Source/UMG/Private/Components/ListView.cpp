#include "Components/ListView.h"

#include "Blueprint/IUserObjectListEntry.h"
#include "Styling/CoreStyle.h"

UListView::UListView(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ScrollBarStyle(FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
{
}

// Items.

void UListView::AddItem(UObject* Item)
{
	if (Item)
	{
		ListItems.Add(Item);
		OnItemsChanged();
	}
}

void UListView::RemoveItem(UObject* Item)
{
	const int32 Index = GetIndexForItem(Item);
	if (Index != INDEX_NONE)
	{
		ListItems.RemoveAt(Index);
		OnItemsChanged();
	}
}

UObject* UListView::GetItemAt(int32 Index) const
{
	return ListItems.IsValidIndex(Index) ? ListItems[Index] : nullptr;
}

int32 UListView::GetNumItems() const
{
	return ListItems.Num();
}

int32 UListView::GetIndexForItem(const UObject* Item) const
{
	return ListItems.IndexOfByPredicate([Item](const UObject* Candidate) { return Candidate == Item; });
}

void UListView::ClearListItems()
{
	ReplaceItems(TArray<TObjectPtr<UObject>>());
}

void UListView::ReplaceItems(TArray<TObjectPtr<UObject>>&& NewItems)
{
	ListItems = MoveTemp(NewItems);
	OnItemsChanged();
}

void UListView::OnItemsChanged()
{
	RequestRefresh();
}

bool UListView::IsRefreshPending() const
{
	return MyListView && MyListView->IsPendingRefresh();
}

// Selection.

void UListView::SetSelectionMode(TEnumAsByte<ESelectionMode::Type> InSelectionMode)
{
	SelectionMode = InSelectionMode;
	if (MyListView)
	{
		MyListView->SetSelectionMode(InSelectionMode);
	}
}

void UListView::SetSelectedIndex(int32 Index)
{
	SetSelectedItem(GetItemAt(Index));
}

void UListView::SetSelectedItem(const UObject* Item)
{
	if (MyListView && Item)
	{
		MyListView->SetSelection(const_cast<UObject*>(Item));
	}
	else
	{
		ClearSelection();
	}
}

void UListView::SetItemSelection(UObject* Item, bool bIsSelected, ESelectInfo::Type SelectInfo)
{
	if (MyListView && Item)
	{
		MyListView->SetItemSelection(Item, bIsSelected, SelectInfo);
	}
}

void UListView::ClearSelection()
{
	if (MyListView)
	{
		MyListView->ClearSelection();
	}
}

bool UListView::IsItemSelected(const UObject* Item) const
{
	return MyListView && MyListView->IsItemSelected(const_cast<UObject*>(Item));
}

int32 UListView::GetNumItemsSelected() const
{
	return MyListView ? MyListView->GetNumItemsSelected() : 0;
}

int32 UListView::GetSelectedItems(TArray<UObject*>& OutSelectedItems) const
{
	OutSelectedItems = MyListView ? MyListView->GetSelectedItems() : TArray<UObject*>();
	return OutSelectedItems.Num();
}

UObject* UListView::GetFirstSelectedItem() const
{
	return MyListView ? MyListView->GetFirstSelectedItem() : nullptr;
}

// Scrolling.

void UListView::ScrollIndexIntoView(int32 Index)
{
	RequestScrollItemIntoView(GetItemAt(Index));
}

void UListView::NavigateToIndex(int32 Index)
{
	RequestNavigateToItem(GetItemAt(Index));
}

void UListView::RequestScrollItemIntoView(UObject* Item)
{
	if (MyListView && Item)
	{
		MyListView->RequestScrollIntoView(Item);
	}
}

void UListView::RequestNavigateToItem(UObject* Item)
{
	if (MyListView && Item)
	{
		MyListView->RequestNavigateToItem(Item);
	}
}

bool UListView::IsItemVisible(UObject* Item) const
{
	return MyListView && Item && MyListView->WidgetFromItem(Item).IsValid();
}

UUserWidget* UListView::FindEntry(const UObject* Item) const
{
	return MyListView && Item ? GetEntryOfRow(MyListView->WidgetFromItem(const_cast<UObject*>(Item))) : nullptr;
}

FMargin UListView::GetDesiredEntryPadding(int32 ItemIndex) const
{
	if (ItemIndex <= 0)
	{
		return FMargin(0.0f);
	}
	return Orientation == Orient_Vertical ? FMargin(0.0f, VerticalEntrySpacing, 0.0f, 0.0f) : FMargin(HorizontalEntrySpacing, 0.0f, 0.0f, 0.0f);
}

// The Slate side.

TSharedRef<STableViewBase> UListView::RebuildListWidget()
{
	SListView<UObject*>::FArguments Arguments;
	SetListArguments(Arguments);
	Arguments.ListItemsSource(&ObjectPtrDecay(ListItems))
		.Orientation(Orientation)
		.OnListViewScrolled(BIND_UOBJECT_DELEGATE(FOnTableViewScrolled, HandleListViewScrolled));
	MyListView = SArgumentNew(Arguments, SListView<UObject*>);
	return MyListView.ToSharedRef();
}

void UListView::ReleaseSlateResources(bool bReleaseChildren)
{
	MyListView.Reset();
	Super::ReleaseSlateResources(bReleaseChildren);
}

void UListView::OnRefreshDesignerItems()
{
	while (ListItems.Num() < NumDesignerPreviewEntries)
	{
		ListItems.Add(NewObject<UListViewDesignerPreviewItem>(this));
	}
	ListItems.SetNum(NumDesignerPreviewEntries);
	RequestRefresh();
}

void UListView::InitializeEntry(UUserWidget& Entry, UObject* Item)
{
	IUserObjectListEntry::SetListItemObject(Entry, Item);
	BP_OnEntryInitialized.Broadcast(Item, &Entry);
}

TSharedRef<ITableRow> UListView::HandleGenerateRow(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable)
{
	return GenerateEntry(Item, OwnerTable);
}

void UListView::HandleSelectionChanged(UObject* SelectedItem, ESelectInfo::Type)
{
	OnSelectionChangedInternal(SelectedItem);
	BroadcastItemSelectionChanged(SelectedItem);
}

void UListView::OnSelectionChangedInternal(UObject* FirstSelectedItem)
{
	BP_OnItemSelectionChanged.Broadcast(FirstSelectedItem, FirstSelectedItem != nullptr);
}

void UListView::HandleItemClicked(UObject* Item)
{
	BP_OnItemClicked.Broadcast(Item);
	BroadcastItemClicked(Item);
}

void UListView::HandleItemDoubleClicked(UObject* Item)
{
	BP_OnItemDoubleClicked.Broadcast(Item);
	BroadcastItemDoubleClicked(Item);
}

void UListView::HandleItemHovered(UObject* Item, bool bIsHovered)
{
	BP_OnItemIsHoveredChanged.Broadcast(Item, bIsHovered);
	BroadcastItemIsHoveredChanged(Item, bIsHovered);
}

void UListView::HandleItemScrolledIntoView(UObject* Item, const TSharedPtr<ITableRow>& Row)
{
	if (UUserWidget* Entry = GetEntryOfRow(Row))
	{
		BP_OnItemScrolledIntoView.Broadcast(Item, Entry);
		BroadcastItemScrolledIntoView(Item, *Entry);
	}
}

void UListView::HandleListViewScrolled(double ItemOffset, double DistanceRemaining)
{
	BP_OnListViewScrolled.Broadcast(static_cast<float>(ItemOffset), static_cast<float>(DistanceRemaining));
}

// For graphs.

void UListView::BP_SetListItems(const TArray<UObject*>& InListItems)
{
	SetListItems(InListItems);
}

int32 UListView::BP_GetNumItemsSelected() const
{
	return GetNumItemsSelected();
}

UObject* UListView::BP_GetSelectedItem() const
{
	return GetFirstSelectedItem();
}

bool UListView::BP_GetSelectedItems(TArray<UObject*>& Items) const
{
	return GetSelectedItems(Items) > 0;
}

bool UListView::BP_IsItemVisible(UObject* Item) const
{
	return IsItemVisible(Item);
}

void UListView::BP_SetSelectedItem(UObject* Item)
{
	SetSelectedItem(Item);
}

void UListView::BP_SetItemSelection(UObject* Item, bool bSelected)
{
	SetItemSelection(Item, bSelected);
}

void UListView::BP_ClearSelection()
{
	ClearSelection();
}

void UListView::BP_ScrollItemIntoView(UObject* Item)
{
	RequestScrollItemIntoView(Item);
}

void UListView::BP_NavigateToItem(UObject* Item)
{
	RequestNavigateToItem(Item);
}
