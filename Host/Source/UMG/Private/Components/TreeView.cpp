#include "Components/TreeView.h"

#include "Widgets/Views/STreeView.h"

UTreeView::UTreeView(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UTreeView::SetItemExpansion(UObject* Item, bool bExpandItem)
{
	if (MyTreeView && Item)
	{
		MyTreeView->SetItemExpansion(Item, bExpandItem);
	}
}

void UTreeView::ExpandAll()
{
	TSet<UObject*> Visited;
	// A copy: who is told of the opening may change the items.
	for (UObject* Item : TArray<UObject*>(GetListItems()))
	{
		Expand(Item, Visited);
	}
}

void UTreeView::Expand(UObject* Item, TSet<UObject*>& Visited)
{
	bool bVisited = false;
	Visited.Add(Item, &bVisited);
	TArray<UObject*> Children;
	HandleGetChildren(Item, Children);
	if (bVisited || Children.IsEmpty())
	{
		return;
	}
	SetItemExpansion(Item, true);
	for (UObject* Child : Children)
	{
		Expand(Child, Visited);
	}
}

void UTreeView::CollapseAll()
{
	if (MyTreeView)
	{
		MyTreeView->ClearExpandedItems();
	}
}

bool UTreeView::IsItemExpanded(const UObject* Item) const
{
	return MyTreeView && MyTreeView->IsItemExpanded(const_cast<UObject*>(Item));
}

TSharedRef<STableViewBase> UTreeView::RebuildListWidget()
{
	using FTree = STreeView<UObject*>;
	FTree::FArguments Arguments;
	SetListArguments(Arguments);
	Arguments.TreeItemsSource(&ObjectPtrDecay(ListItems))
		.OnTreeViewScrolled(BIND_UOBJECT_DELEGATE(FOnTableViewScrolled, HandleListViewScrolled))
		.OnGetChildren(BIND_UOBJECT_DELEGATE(FTree::FOnGetChildren, HandleGetChildren))
		.OnExpansionChanged(BIND_UOBJECT_DELEGATE(FTree::FOnExpansionChanged, HandleExpansionChanged));
	MyTreeView = SArgumentNew(Arguments, FTree);
	MyListView = MyTreeView;
	return MyTreeView.ToSharedRef();
}

void UTreeView::ReleaseSlateResources(bool bReleaseChildren)
{
	MyTreeView.Reset();
	Super::ReleaseSlateResources(bReleaseChildren);
}

void UTreeView::HandleGetChildren(UObject* Item, TArray<UObject*>& OutChildren) const
{
	if (Item)
	{
		OnGetItemChildren.ExecuteIfBound(Item, OutChildren);
	}
}

void UTreeView::HandleExpansionChanged(UObject* Item, bool bIsExpanded)
{
	BP_OnItemExpansionChanged.Broadcast(Item, bIsExpanded);
	BroadcastItemExpansionChanged(Item, bIsExpanded);
}
