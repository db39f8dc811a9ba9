#pragma once

#include "CoreMinimal.h"
#include "Widgets/Views/SListView.h"

/**
 * A list of items that have further items in them. Those of an open item follow it, indented. Items are asked for what is in
 * them only when they are open; those in view are asked whether they could be opened.
 */
template <typename ItemType>
class STreeView : public SListView<ItemType>
{
public:
	using Super = SListView<ItemType>;
	using Traits = typename Super::Traits;
	using FOnGenerateRow = typename Super::FOnGenerateRow;
	using FOnRowReleased = typename Super::FOnRowReleased;
	using FOnSelectionChanged = typename Super::FOnSelectionChanged;
	using FOnMouseButtonClick = typename Super::FOnMouseButtonClick;
	using FOnMouseButtonDoubleClick = typename Super::FOnMouseButtonDoubleClick;
	using FOnItemHovered = typename Super::FOnItemHovered;
	using FOnItemScrolledIntoView = typename Super::FOnItemScrolledIntoView;

	/** Appends what is in an item. */
	DECLARE_DELEGATE_TwoParams(FOnGetChildren, ItemType, TArray<ItemType>&);
	DECLARE_DELEGATE_TwoParams(FOnExpansionChanged, ItemType, bool);

	SLATE_BEGIN_ARGS(STreeView)
		: _TreeItemsSource(nullptr)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		, _EnableAnimatedScrolling(false)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
		, _WheelScrollMultiplier(1.0f)
		, _ScrollbarVisibility(EVisibility::Visible)
		, _ScrollBarStyle(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
		, _IsFocusable(true)
	{
	}
		/** The items of the top level, kept by address. */
		SLATE_ARGUMENT(const TArray<ItemType>*, TreeItemsSource)
		SLATE_EVENT(FOnGetChildren, OnGetChildren)
		/** An item was opened or closed, by the user or from code. */
		SLATE_EVENT(FOnExpansionChanged, OnExpansionChanged)
		SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
		SLATE_EVENT(FOnRowReleased, OnRowReleased)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
		SLATE_EVENT(FOnMouseButtonDoubleClick, OnMouseButtonDoubleClick)
		SLATE_EVENT(FOnItemHovered, OnItemHovered)
		SLATE_EVENT(FOnItemScrolledIntoView, OnItemScrolledIntoView)
		SLATE_EVENT(FOnTableViewScrolled, OnTreeViewScrolled)
		SLATE_ARGUMENT(ESelectionMode::Type, SelectionMode)
		SLATE_ARGUMENT(bool, ClearSelectionOnClick)
		SLATE_ARGUMENT(bool, EnableAnimatedScrolling)
		SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
		SLATE_ARGUMENT(float, WheelScrollMultiplier)
		SLATE_ARGUMENT(EVisibility, ScrollbarVisibility)
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
		SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
		SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		TreeItemsSource = InArgs._TreeItemsSource;
		OnGetChildren = InArgs._OnGetChildren;
		OnExpansionChanged = InArgs._OnExpansionChanged;
		typename Super::FArguments Arguments;
		Arguments.ListItemsSource(&LinearItems)
			.OnGenerateRow(InArgs._OnGenerateRow)
			.OnRowReleased(InArgs._OnRowReleased)
			.OnSelectionChanged(InArgs._OnSelectionChanged)
			.OnMouseButtonClick(InArgs._OnMouseButtonClick)
			.OnMouseButtonDoubleClick(InArgs._OnMouseButtonDoubleClick)
			.OnItemHovered(InArgs._OnItemHovered)
			.OnItemScrolledIntoView(InArgs._OnItemScrolledIntoView)
			.OnListViewScrolled(InArgs._OnTreeViewScrolled)
			.SelectionMode(InArgs._SelectionMode)
			.ClearSelectionOnClick(InArgs._ClearSelectionOnClick)
			.EnableAnimatedScrolling(InArgs._EnableAnimatedScrolling)
			.ConsumeMouseWheel(InArgs._ConsumeMouseWheel)
			.WheelScrollMultiplier(InArgs._WheelScrollMultiplier)
			.ScrollbarVisibility(InArgs._ScrollbarVisibility)
			.ScrollBarStyle(InArgs._ScrollBarStyle)
			.ExternalScrollbar(InArgs._ExternalScrollbar)
			.IsFocusable(InArgs._IsFocusable);
		Super::Construct(Arguments);
	}

	/** To be called when the items changed, or what is in them. */
	void RequestTreeRefresh() { this->RequestListRefresh(); }

	void SetTreeItemsSource(const TArray<ItemType>* InTreeItemsSource)
	{
		TreeItemsSource = InTreeItemsSource;
		RequestTreeRefresh();
	}

	/** Opens or closes an item, and tells of it when it stood otherwise. It need not be in the tree yet. */
	void SetItemExpansion(const ItemType& InItem, bool InShouldExpandItem)
	{
		if (IsItemExpanded(InItem) == InShouldExpandItem)
		{
			return;
		}
		Host::SetContained(ExpandedItems, InItem, InShouldExpandItem);
		RequestTreeRefresh();
		const FOnExpansionChanged Handler = OnExpansionChanged;
		Handler.ExecuteIfBound(InItem, InShouldExpandItem);
	}

	bool IsItemExpanded(const ItemType& InItem) const { return ExpandedItems.Contains(InItem); }

	/** Closes all items, without telling of it. */
	void ClearExpandedItems()
	{
		ExpandedItems.Reset();
		RequestTreeRefresh();
	}

	void GetExpandedItems(TSet<ItemType>& ExpandedItemsSet) const { ExpandedItemsSet = ExpandedItems; }

protected:
	virtual bool IsTree() const override { return true; }

	virtual void OnItemsChanged() override
	{
		LinearItems.Reset();
		Levels.Reset();
		if (TreeItemsSource)
		{
			Append(*TreeItemsSource, 0);
		}
		Super::OnItemsChanged();
	}

	virtual void FillRowState(int32 Index, Host::FTableRowState& OutState) const override
	{
		Super::FillRowState(Index, OutState);
		OutState.IndentLevel = Levels[Index];
		OutState.bHasChildren = HasChildren(LinearItems[Index]);
		OutState.bExpanded = IsItemExpanded(LinearItems[Index]);
	}

	virtual bool SetExpandedAt(int32 Index, bool bExpand) override
	{
		const ItemType Item = LinearItems[Index];
		if (IsItemExpanded(Item) == bExpand || !HasChildren(Item))
		{
			return false;
		}
		SetItemExpansion(Item, bExpand);
		return true;
	}

	virtual int32 GetParentIndex(int32 Index) const override
	{
		if (!Levels.IsValidIndex(Index) || Levels[Index] == 0)
		{
			return INDEX_NONE;
		}
		int32 Parent = Index - 1;
		while (Levels[Parent] >= Levels[Index])
		{
			--Parent;
		}
		return Parent;
	}

	/** As in lists, and the open ones too. */
	virtual void AddItemReferences(FReferenceCollector& Collector) override
	{
		if constexpr (std::is_pointer_v<ItemType>)
		{
			Host::RemoveDeadObjects(ExpandedItems);
			Collector.AddReferencedObjects(ExpandedItems);
			Collector.AddReferencedObjects(LinearItems);
		}
		Super::AddItemReferences(Collector);
	}

private:
	void Append(const TArray<ItemType>& Items, int32 Level)
	{
		for (const ItemType& Item : Items)
		{
			// An item that is in itself would go on for ever.
			constexpr int32 MaxLevels = 256;
			LinearItems.Add(Item);
			Levels.Add(Level);
			if (Traits::GetKey(Item) && IsItemExpanded(Item) && Level < MaxLevels)
			{
				TArray<ItemType> Children;
				OnGetChildren.ExecuteIfBound(Item, Children);
				Append(Children, Level + 1);
			}
		}
	}

	bool HasChildren(const ItemType& Item) const
	{
		TArray<ItemType> Children;
		OnGetChildren.ExecuteIfBound(Item, Children);
		return !Children.IsEmpty();
	}

	const TArray<ItemType>* TreeItemsSource = nullptr;
	/** The items as the rows show them, and how deep each one is. */
	TArray<ItemType> LinearItems;
	TArray<int32> Levels;
	TSet<ItemType> ExpandedItems;
	FOnGetChildren OnGetChildren;
	FOnExpansionChanged OnExpansionChanged;
};
