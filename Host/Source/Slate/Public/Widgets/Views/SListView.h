#pragma once

#include "CoreMinimal.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STableViewBase.h"

/**
 * A list of items. The array of items is kept by address, and RequestListRefresh is to be called when it changed. Items are
 * told apart by address; one that stands in the list more than once has a row for each time.
 */
template <typename ItemType>
class SListView : public STableViewBase, public TListTypeTraits<ItemType>::SerializerType
{
public:
	using Traits = TListTypeTraits<ItemType>;
	using NullableItemType = typename Traits::NullableType;

	DECLARE_DELEGATE_RetVal_TwoParams(TSharedRef<ITableRow>, FOnGenerateRow, ItemType, const TSharedRef<STableViewBase>&);
	DECLARE_DELEGATE_OneParam(FOnRowReleased, const TSharedRef<ITableRow>&);
	/** The first of the selected items, null when there is none, and what changed the selection. */
	DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, NullableItemType, ESelectInfo::Type);
	DECLARE_DELEGATE_OneParam(FOnMouseButtonClick, ItemType);
	DECLARE_DELEGATE_OneParam(FOnMouseButtonDoubleClick, ItemType);
	DECLARE_DELEGATE_TwoParams(FOnItemHovered, ItemType, bool);
	DECLARE_DELEGATE_TwoParams(FOnItemScrolledIntoView, ItemType, const TSharedPtr<ITableRow>&);

	SLATE_BEGIN_ARGS(SListView)
		: _ListItemsSource(nullptr)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		, _EnableAnimatedScrolling(false)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
		, _WheelScrollMultiplier(1.0f)
		, _Orientation(Orient_Vertical)
		, _ScrollbarVisibility(EVisibility::Visible)
		, _ScrollBarStyle(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
		, _IsFocusable(true)
	{
	}
		SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
		/** Makes the row of an item that comes into view. */
		SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
		/** A row left the view. */
		SLATE_EVENT(FOnRowReleased, OnRowReleased)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		/** An item was clicked, or the key for it pressed; the selection was changed before. */
		SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
		SLATE_EVENT(FOnMouseButtonDoubleClick, OnMouseButtonDoubleClick)
		SLATE_EVENT(FOnItemHovered, OnItemHovered)
		/** An item that was asked for came into view, or was there already. */
		SLATE_EVENT(FOnItemScrolledIntoView, OnItemScrolledIntoView)
		SLATE_EVENT(FOnTableViewScrolled, OnListViewScrolled)
		SLATE_ARGUMENT(ESelectionMode::Type, SelectionMode)
		/** Whether a click where no row is deselects all. */
		SLATE_ARGUMENT(bool, ClearSelectionOnClick)
		/** Whether the wheel moves the rows in a short motion rather than at once. */
		SLATE_ARGUMENT(bool, EnableAnimatedScrolling)
		SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
		SLATE_ARGUMENT(float, WheelScrollMultiplier)
		/** Direction in which the rows follow each other. */
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** Of the scroll bar while there is something to scroll. */
		SLATE_ARGUMENT(EVisibility, ScrollbarVisibility)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
		/** A scroll bar that stands elsewhere, in place of the own one. */
		SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
		SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		ItemsSource = InArgs._ListItemsSource;
		OnGenerateRow = InArgs._OnGenerateRow;
		OnRowReleased = InArgs._OnRowReleased;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnClick = InArgs._OnMouseButtonClick;
		OnDoubleClick = InArgs._OnMouseButtonDoubleClick;
		OnItemHovered = InArgs._OnItemHovered;
		OnItemScrolledIntoView = InArgs._OnItemScrolledIntoView;
		FTableArguments Arguments;
		Arguments.ScrollBarStyle = InArgs._ScrollBarStyle;
		Arguments.ExternalScrollbar = InArgs._ExternalScrollbar;
		Arguments.OnScrolled = InArgs._OnListViewScrolled;
		Arguments.Orientation = InArgs._Orientation;
		Arguments.SelectionMode = InArgs._SelectionMode;
		Arguments.ScrollbarVisibility = InArgs._ScrollbarVisibility;
		Arguments.ConsumeMouseWheel = InArgs._ConsumeMouseWheel;
		Arguments.WheelScrollMultiplier = InArgs._WheelScrollMultiplier;
		Arguments.bClearSelectionOnClick = InArgs._ClearSelectionOnClick;
		Arguments.bAnimateScrolling = InArgs._EnableAnimatedScrolling;
		Arguments.bIsFocusable = InArgs._IsFocusable;
		ConstructTable(Arguments);
	}

	/** Another array of items, kept by address; null for none. */
	void SetItemsSource(const TArray<ItemType>* InListItemsSource)
	{
		ItemsSource = InListItemsSource;
		RequestListRefresh();
	}
	void ClearItemsSource() { SetItemsSource(nullptr); }
	TArrayView<const ItemType> GetItems() const { return ItemsSource ? TArrayView<const ItemType>(*ItemsSource) : TArrayView<const ItemType>(); }

	// Selection. Without the possibility of selecting, nothing happens; where one item can be selected, it takes the place of another.

	/** Selects or deselects an item, and tells of it. */
	void SetItemSelection(const ItemType& InItem, bool bSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (GetSelectionMode() != ESelectionMode::None)
		{
			ChangeSelection(InItem, bSelected);
			SignalSelectionChanged(SelectInfo);
		}
	}

	void SetItemSelection(const TArray<ItemType>& InItems, bool bSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (GetSelectionMode() == ESelectionMode::None || InItems.IsEmpty())
		{
			return;
		}
		for (const ItemType& Item : InItems)
		{
			ChangeSelection(Item, bSelected);
		}
		SignalSelectionChanged(SelectInfo);
	}

	/** Makes an item the only one that is selected, and tells of it, even when it was before. */
	void SetSelection(const ItemType& SoleSelectedItem, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (GetSelectionMode() != ESelectionMode::None)
		{
			SelectedItems.Reset();
			SelectedItems.Add(SoleSelectedItem);
			SignalSelectionChanged(SelectInfo);
		}
	}

	/** Tells of it unless nothing was selected. */
	void ClearSelection()
	{
		if (!SelectedItems.IsEmpty())
		{
			SelectedItems.Reset();
			SignalSelectionChanged(ESelectInfo::Direct);
		}
	}

	bool IsItemSelected(const ItemType& InItem) const { return SelectedItems.Contains(InItem); }
	int32 GetNumItemsSelected() const { return SelectedItems.Num(); }
	TArray<ItemType> GetSelectedItems() const { return SelectedItems.Array(); }
	/** Null when nothing is selected. */
	NullableItemType GetFirstSelectedItem() const
	{
		for (const ItemType& Item : SelectedItems)
		{
			return Item;
		}
		return NullableItemType();
	}

	// Scrolling, at the next frame. Items that are not in the list are ignored.

	/** Scrolls no farther than needed to see the item. */
	void RequestScrollIntoView(const ItemType& ItemToView, const uint32 UserIndex = 0)
	{
		static_cast<void>(UserIndex);
		RequestScrollTo(Traits::GetKey(ItemToView), false);
	}

	/** The same, and gives the list the keyboard, whose keys go from the item then. */
	void RequestNavigateToItem(const ItemType& Item, const uint32 UserIndex = 0)
	{
		static_cast<void>(UserIndex);
		RequestScrollTo(Traits::GetKey(Item), true);
	}

	// Rows.

	/** Null while the item is not in view. */
	TSharedPtr<ITableRow> WidgetFromItem(const ItemType& InItem) const
	{
		const void* Key = Traits::GetKey(InItem);
		const Host::FShownRow* Found = Key ? GetShown().FindByPredicate([Key](const Host::FShownRow& Row) { return Row.Key == Key; }) : nullptr;
		return Found ? Found->Row : nullptr;
	}

	/** The item of a row; null when it left the view. */
	NullableItemType ItemFromWidget(const ITableRow* WidgetToFind) const
	{
		const int32 Place = GetShown().IndexOfByPredicate([WidgetToFind](const Host::FShownRow& Row) { return Row.Row.Get() == WidgetToFind; });
		return ShownItems.IsValidIndex(Place) ? ShownItems[Place] : NullableItemType();
	}

protected:
	virtual int32 GetNumItemsBeingObserved() const override { return ItemsSource ? ItemsSource->Num() : 0; }

	virtual const void* GetItemKey(int32 Index) const override
	{
		return ItemsSource && ItemsSource->IsValidIndex(Index) ? Traits::GetKey((*ItemsSource)[Index]) : nullptr;
	}

	virtual TSharedRef<ITableRow> GenerateRow(int32 Index) override
	{
		// A copy: whoever makes the row may change the items.
		const ItemType Item = (*ItemsSource)[Index];
		checkf(OnGenerateRow.IsBound(), TEXT("a list needs OnGenerateRow"));
		const TSharedRef<ITableRow> Row = OnGenerateRow.Execute(Item, StaticCastSharedRef<STableViewBase>(this->AsShared()));
		Row->InitializeRow();
		return Row;
	}

	virtual void ReleaseRow(const TSharedRef<ITableRow>& Row) override { OnRowReleased.ExecuteIfBound(Row); }

	virtual void OnShownRowsChanged() override
	{
		ShownItems.Reset();
		for (int32 Place = 0; Place < GetShown().Num(); ++Place)
		{
			const int32 Index = GetFirstShown() + Place;
			const bool bSame = GetShown()[Place].Key && GetShown()[Place].Key == GetItemKey(Index);
			ShownItems.Add(bSame ? NullableItemType((*ItemsSource)[Index]) : NullableItemType());
		}
	}

	virtual void OnItemsChanged() override
	{
		const int32 NumSelected = SelectedItems.Num();
		DropVanishedFromSelection();
		if (SelectedItems.Num() != NumSelected || bLostSelected)
		{
			bLostSelected = false;
			SignalSelectionChanged(ESelectInfo::Direct);
		}
	}

	virtual bool IsSelectedAt(int32 Index) const override { return !SelectedItems.IsEmpty() && GetItemKey(Index) && SelectedItems.Contains((*ItemsSource)[Index]); }
	virtual int32 CountSelected() const override { return SelectedItems.Num(); }
	virtual void EmptySelection() override { SelectedItems.Reset(); }

	virtual void SetSelectedAt(int32 Index, bool bSelected) override
	{
		if (GetItemKey(Index))
		{
			Host::SetContained(SelectedItems, (*ItemsSource)[Index], bSelected);
		}
	}

	virtual void SignalSelectionChanged(ESelectInfo::Type SelectInfo) override
	{
		UpdateRowStates();
		const FOnSelectionChanged Handler = OnSelectionChanged;
		Handler.ExecuteIfBound(GetFirstSelectedItem(), SelectInfo);
	}

	virtual void SignalClicked(int32 Index) override
	{
		const FOnMouseButtonClick Handler = OnClick;
		const ItemType Item = (*ItemsSource)[Index];
		Handler.ExecuteIfBound(Item);
	}

	virtual bool SignalDoubleClicked(int32 Index) override
	{
		const FOnMouseButtonDoubleClick Handler = OnDoubleClick;
		const ItemType Item = (*ItemsSource)[Index];
		return Handler.ExecuteIfBound(Item);
	}

	virtual void SignalHovered(int32 Index, bool bIsHovered) override
	{
		const ItemType Item = (*ItemsSource)[Index];
		OnItemHovered.ExecuteIfBound(Item, bIsHovered);
	}

	virtual void SignalScrolledIntoView(int32 Index, const TSharedRef<ITableRow>& Row) override
	{
		const ItemType Item = (*ItemsSource)[Index];
		OnItemScrolledIntoView.ExecuteIfBound(Item, Row);
	}

	const TArray<ItemType>* ItemsSource = nullptr;

	/** Those that are selected or shown are kept alive, unless they were declared dead. */
	virtual void AddItemReferences(FReferenceCollector& Collector) override
	{
		if constexpr (std::is_pointer_v<ItemType>)
		{
			const int32 NumSelected = SelectedItems.Num();
			Host::RemoveDeadObjects(SelectedItems);
			bLostSelected |= SelectedItems.Num() != NumSelected;
			Collector.AddReferencedObjects(SelectedItems);
			Collector.AddReferencedObjects(ShownItems);
			if (bLostSelected || HasLostItems())
			{
				RequestListRefresh();
			}
		}
	}

private:
	void ChangeSelection(const ItemType& Item, bool bSelected)
	{
		if (bSelected && GetSelectionMode() != ESelectionMode::Multi)
		{
			SelectedItems.Reset();
		}
		Host::SetContained(SelectedItems, Item, bSelected);
	}

	void DropVanishedFromSelection()
	{
		// For one or a few items looking through the list is cheapest.
		constexpr int32 Few = 4;
		if (SelectedItems.Num() <= Few)
		{
			for (auto It = SelectedItems.CreateIterator(); It; ++It)
			{
				if (!ItemsSource || !ItemsSource->Contains(*It))
				{
					It.RemoveCurrent();
				}
			}
			return;
		}
		TSet<ItemType> Left;
		for (const ItemType& Item : GetItems())
		{
			if (SelectedItems.Contains(Item))
			{
				Left.Add(Item);
			}
		}
		if (Left.Num() != SelectedItems.Num())
		{
			SelectedItems = MoveTemp(Left);
		}
	}

	/** A shown item was declared dead, so its row shows nothing. */
	bool HasLostItems() const
	{
		for (int32 Place = 0; Place < ShownItems.Num(); ++Place)
		{
			if (!Traits::IsPtrValid(ShownItems[Place]) && GetShown().IsValidIndex(Place) && GetShown()[Place].Row.IsValid())
			{
				return true;
			}
		}
		return false;
	}

	TSet<ItemType> SelectedItems;
	/** The items of the rows in view, which a row stands for even when the list has others already. */
	TArray<NullableItemType> ShownItems;
	/** A selected item was declared dead, which is not told of yet. */
	bool bLostSelected = false;

	FOnGenerateRow OnGenerateRow;
	FOnRowReleased OnRowReleased;
	FOnSelectionChanged OnSelectionChanged;
	FOnMouseButtonClick OnClick;
	FOnMouseButtonDoubleClick OnDoubleClick;
	FOnItemHovered OnItemHovered;
	FOnItemScrolledIntoView OnItemScrolledIntoView;
};
