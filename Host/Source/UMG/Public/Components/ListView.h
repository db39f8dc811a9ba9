#pragma once

#include "CoreMinimal.h"
#include "Components/ListViewBase.h"
#include "Widgets/Views/SListView.h"
#include "ListView.generated.h"


/**
 * A list of objects. The entry class implements UserObjectListEntry: an entry is told of the object that it is to show.
 *
 * What is selected is known to the Slate side only: before the list is built, and after it was released, nothing is.
 */
UCLASS(meta = (EntryInterface = "/Script/UMG.UserObjectListEntry"), MinimalAPI)
class UListView : public UListViewBase, public ITypedUMGListView<UObject*>
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FSimpleListItemEventDynamic, UObject*, Item);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListItemSelectionChangedDynamic, UObject*, Item, bool, bIsSelected);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnItemIsHoveredChangedDynamic, UObject*, Item, bool, bIsHovered);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListItemScrolledIntoViewDynamic, UObject*, Item, UUserWidget*, Widget);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListEntryInitializedDynamic, UObject*, Item, UUserWidget*, Widget);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnListViewScrolledDynamic, float, ItemOffset, float, DistanceRemaining);

	UMG_API UListView(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	// Items.

	/** Adds an item at the end. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void AddItem(UObject* Item);

	/** Removes an item; nothing happens when it is not in the list. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void RemoveItem(UObject* Item);

	/** The item of that index; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API UObject* GetItemAt(int32 Index) const;

	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API int32 GetNumItems() const;

	/** Index of the item; -1 when it is not in the list. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API int32 GetIndexForItem(const UObject* Item) const;

	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void ClearListItems();

	UFUNCTION(BlueprintCallable, Category = "ListView")
	const TArray<UObject*>& GetListItems() const { return ObjectPtrDecay(ListItems); }

	/** Shows these items in place of the former ones. Later changes of the array are not seen. */
	template <typename ItemObjectT>
	void SetListItems(const TArray<ItemObjectT>& InListItems)
	{
		TArray<TObjectPtr<UObject>> NewItems;
		NewItems.Reserve(InListItems.Num());
		for (const ItemObjectT& Item : InListItems)
		{
			NewItems.Add(ToRawPtr(Item));
		}
		ReplaceItems(MoveTemp(NewItems));
	}

	/** Items whose entry waits to be shown in the next frame. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API bool IsRefreshPending() const;

	// Selection.

	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void SetSelectionMode(TEnumAsByte<ESelectionMode::Type> InSelectionMode);

	ESelectionMode::Type GetSelectionMode() const { return SelectionMode; }

	/** Makes the item of that index the only one that is selected. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void SetSelectedIndex(int32 Index);

	/** Makes the item the only one that is selected, and tells of it, even when it was before; null clears the selection. */
	UMG_API void SetSelectedItem(const UObject* Item);
	UMG_API void SetItemSelection(UObject* Item, bool bIsSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct);
	UMG_API void ClearSelection();
	UMG_API bool IsItemSelected(const UObject* Item) const;
	UMG_API int32 GetNumItemsSelected() const;
	/** How many items are selected, and which. */
	UMG_API int32 GetSelectedItems(TArray<UObject*>& OutSelectedItems) const;

	/** The first of the selected items; null when there is none, or it is of another class. */
	template <typename ItemObjectT = UObject>
	ItemObjectT* GetSelectedItem() const
	{
		return Cast<ItemObjectT>(GetFirstSelectedItem());
	}

	// Scrolling, in the next frame. Items that are not in the list are ignored.

	/** Scrolls until the item of that index is in view. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void ScrollIndexIntoView(int32 Index);

	/** The same, and lets keys go from the item. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	UMG_API void NavigateToIndex(int32 Index);

	UMG_API void RequestScrollItemIntoView(UObject* Item);
	UMG_API void RequestNavigateToItem(UObject* Item);
	/** Whether some of the item is in view. */
	UMG_API bool IsItemVisible(UObject* Item) const;

	/** The entry that shows the item; null when none does, or it is of another class. */
	template <typename EntryWidgetT = UUserWidget>
	EntryWidgetT* GetEntryWidgetFromItem(const UObject* Item) const
	{
		return Cast<EntryWidgetT>(FindEntry(Item));
	}

	UMG_API virtual FMargin GetDesiredEntryPadding(int32 ItemIndex) const override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	UMG_API virtual TSharedRef<STableViewBase> RebuildListWidget() override;

	/** Fills in what the Slate lists of all kinds have in common. */
	template <typename ArgumentsType>
	void SetListArguments(ArgumentsType& Arguments)
	{
		using FList = SListView<UObject*>;
		Arguments.SelectionMode(SelectionMode)
			.ClearSelectionOnClick(bClearSelectionOnClick)
			.EnableAnimatedScrolling(bEnableScrollAnimation)
			.ConsumeMouseWheel(ConsumeMouseWheel)
			.WheelScrollMultiplier(WheelScrollMultiplier)
			.ScrollBarStyle(&ScrollBarStyle)
			.IsFocusable(bIsFocusable)
			.OnGenerateRow(FList::FOnGenerateRow::CreateUObject(this, &UListView::HandleGenerateRow))
			.OnRowReleased(FList::FOnRowReleased::CreateUObject(this, &UListView::HandleRowReleased))
			.OnSelectionChanged(FList::FOnSelectionChanged::CreateUObject(this, &UListView::HandleSelectionChanged))
			.OnMouseButtonClick(FList::FOnMouseButtonClick::CreateUObject(this, &UListView::HandleItemClicked))
			.OnMouseButtonDoubleClick(FList::FOnMouseButtonDoubleClick::CreateUObject(this, &UListView::HandleItemDoubleClicked))
			.OnItemHovered(FList::FOnItemHovered::CreateUObject(this, &UListView::HandleItemHovered))
			.OnItemScrolledIntoView(FList::FOnItemScrolledIntoView::CreateUObject(this, &UListView::HandleItemScrolledIntoView));
	}

	UMG_API virtual void OnRefreshDesignerItems() override;
	UMG_API virtual void InitializeEntry(UUserWidget& Entry, UObject* Item) override;
	/** The array was changed. */
	UMG_API virtual void OnItemsChanged();

	/** Called ahead of the native event. */
	UMG_API virtual void OnSelectionChangedInternal(UObject* FirstSelectedItem);

	// What the Slate list tells.

	UMG_API TSharedRef<ITableRow> HandleGenerateRow(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable);
	UMG_API void HandleSelectionChanged(UObject* SelectedItem, ESelectInfo::Type SelectInfo);
	UMG_API void HandleItemClicked(UObject* Item);
	UMG_API void HandleItemDoubleClicked(UObject* Item);
	UMG_API void HandleItemHovered(UObject* Item, bool bIsHovered);
	UMG_API void HandleItemScrolledIntoView(UObject* Item, const TSharedPtr<ITableRow>& Row);
	UMG_API void HandleListViewScrolled(double ItemOffset, double DistanceRemaining);

	/** How the scroll bar looks. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	FScrollBarStyle ScrollBarStyle;

	/** Direction in which the entries follow each other. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListView", meta = (DesignerRebuild))
	TEnumAsByte<EOrientation> Orientation = Orient_Vertical;

	/** How many items can be selected. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListView")
	TEnumAsByte<ESelectionMode::Type> SelectionMode = ESelectionMode::Single;

	/** When the wheel is kept from what is around the list. */
	UPROPERTY(EditAnywhere, Category = "ListView")
	EConsumeMouseWheel ConsumeMouseWheel = EConsumeMouseWheel::WhenScrollingPossible;

	/** Whether a click beside the entries clears the selection. */
	UPROPERTY(EditAnywhere, Category = "ListView")
	bool bClearSelectionOnClick = false;

	/** Whether the list takes the keyboard. */
	UPROPERTY(EditAnywhere, Category = "ListView")
	bool bIsFocusable = true;

	/** Room between entries side by side, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries", meta = (ClampMin = "0"))
	float HorizontalEntrySpacing = 0.0f;

	/** Room between entries one above the other, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries", meta = (ClampMin = "0"))
	float VerticalEntrySpacing = 0.0f;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UObject>> ListItems;

	TSharedPtr<SListView<UObject*>> MyListView;

private:
	UMG_API void ReplaceItems(TArray<TObjectPtr<UObject>>&& NewItems);
	UMG_API UObject* GetFirstSelectedItem() const;
	UMG_API UUserWidget* FindEntry(const UObject* Item) const;

	// For graphs.

	/** Shows these items in place of the former ones. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Set List Items"))
	void BP_SetListItems(const TArray<UObject*>& InListItems);

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Get Num Items Selected"))
	int32 BP_GetNumItemsSelected() const;

	/** The first of the selected items; null when there is none. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Get Selected Item"))
	UObject* BP_GetSelectedItem() const;

	/** The selected items, and whether there are any. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Get Selected Items"))
	bool BP_GetSelectedItems(TArray<UObject*>& Items) const;

	/** Whether some of the item is in view. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Is Item Visible"))
	bool BP_IsItemVisible(UObject* Item) const;

	/** Makes the item the only one that is selected. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Set Selected Item"))
	void BP_SetSelectedItem(UObject* Item);

	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Set Item Selection"))
	void BP_SetItemSelection(UObject* Item, bool bSelected);

	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Clear Selection"))
	void BP_ClearSelection();

	/** Scrolls until the item is in view. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Scroll Item Into View"))
	void BP_ScrollItemIntoView(UObject* Item);

	/** Scrolls until the item is in view, and lets keys go from it. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (AllowPrivateAccess = "true", DisplayName = "Navigate To Item"))
	void BP_NavigateToItem(UObject* Item);

	/** Called when an entry is given an item. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Entry Initialized"))
	FOnListEntryInitializedDynamic BP_OnEntryInitialized;

	/** Called when an item is clicked, or the key for it pressed, after the selection was changed. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Clicked"))
	FSimpleListItemEventDynamic BP_OnItemClicked;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Double Clicked"))
	FSimpleListItemEventDynamic BP_OnItemDoubleClicked;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Is Hovered Changed"))
	FOnItemIsHoveredChangedDynamic BP_OnItemIsHoveredChanged;

	/** Called when the selection changes, with the first of the selected items, or none. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Selection Changed"))
	FOnListItemSelectionChangedDynamic BP_OnItemSelectionChanged;

	/** Called when an item that was asked for is in view. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Scrolled Into View"))
	FOnListItemScrolledIntoViewDynamic BP_OnItemScrolledIntoView;

	/** Called when other items come into view: the offset, and how much more there is to scroll, in items. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On List View Scrolled"))
	FOnListViewScrolledDynamic BP_OnListViewScrolled;
};
