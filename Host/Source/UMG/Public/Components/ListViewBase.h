#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidgetPool.h"
#include "Components/Widget.h"
#include "Layout/Margin.h"
#include "Styling/SlateTypes.h"
#include "Templates/SubclassOf.h"
#include "Types/SlateEnums.h"
#include "ListViewBase.generated.h"

class ITableRow;
class SObjectTableRow;
class STableViewBase;

namespace Host
{
	/** An event of a class template: anyone may bind to it, only its owner raises it. */
	template <typename OwnerType, typename... ParamTypes>
	class TOwnedEvent : private TMulticastDelegate<void(ParamTypes...)>
	{
		friend OwnerType;
		using FMulticast = TMulticastDelegate<void(ParamTypes...)>;

	public:
		using typename FMulticast::FDelegate;
		using FMulticast::Add;
		using FMulticast::AddLambda;
		using FMulticast::AddRaw;
		using FMulticast::AddSP;
		using FMulticast::AddStatic;
		using FMulticast::AddUObject;
		using FMulticast::AddWeakLambda;
		using FMulticast::IsBoundToObject;
		using FMulticast::Remove;
		using FMulticast::RemoveAll;
	};
}

/** What lists of items of a type offer to C++: their events. Those of graphs come before them. */
template <typename ItemType>
class ITypedUMGListView
{
public:
	using FSimpleListItemEvent = Host::TOwnedEvent<ITypedUMGListView, ItemType>;
	/** The first of the selected items, or null when the selection became empty. */
	using FOnItemSelectionChanged = Host::TOwnedEvent<ITypedUMGListView, ItemType>;
	using FOnItemIsHoveredChanged = Host::TOwnedEvent<ITypedUMGListView, ItemType, bool>;
	using FOnItemScrolledIntoView = Host::TOwnedEvent<ITypedUMGListView, ItemType, UUserWidget&>;
	using FOnItemExpansionChanged = Host::TOwnedEvent<ITypedUMGListView, ItemType, bool>;

	/** An item was clicked, or the key for it pressed; the selection was changed before. */
	FSimpleListItemEvent& OnItemClicked() const { return OnItemClickedEvent; }
	FSimpleListItemEvent& OnItemDoubleClicked() const { return OnItemDoubleClickedEvent; }
	FOnItemSelectionChanged& OnItemSelectionChanged() const { return OnItemSelectionChangedEvent; }
	FOnItemIsHoveredChanged& OnItemIsHoveredChanged() const { return OnItemIsHoveredChangedEvent; }
	/** An item that was asked for came into view, or was there already. */
	FOnItemScrolledIntoView& OnItemScrolledIntoView() const { return OnItemScrolledIntoViewEvent; }
	FOnItemExpansionChanged& OnItemExpansionChanged() const { return OnItemExpansionChangedEvent; }

protected:
	virtual ~ITypedUMGListView() = default;

	void BroadcastItemClicked(ItemType Item) const { OnItemClickedEvent.Broadcast(Item); }
	void BroadcastItemDoubleClicked(ItemType Item) const { OnItemDoubleClickedEvent.Broadcast(Item); }
	void BroadcastItemSelectionChanged(ItemType Item) const { OnItemSelectionChangedEvent.Broadcast(Item); }
	void BroadcastItemIsHoveredChanged(ItemType Item, bool bIsHovered) const { OnItemIsHoveredChangedEvent.Broadcast(Item, bIsHovered); }
	void BroadcastItemScrolledIntoView(ItemType Item, UUserWidget& Entry) const { OnItemScrolledIntoViewEvent.Broadcast(Item, Entry); }
	void BroadcastItemExpansionChanged(ItemType Item, bool bIsExpanded) const { OnItemExpansionChangedEvent.Broadcast(Item, bIsExpanded); }

private:
	mutable FSimpleListItemEvent OnItemClickedEvent;
	mutable FSimpleListItemEvent OnItemDoubleClickedEvent;
	mutable FOnItemSelectionChanged OnItemSelectionChangedEvent;
	mutable FOnItemIsHoveredChanged OnItemIsHoveredChangedEvent;
	mutable FOnItemScrolledIntoView OnItemScrolledIntoViewEvent;
	mutable FOnItemExpansionChanged OnItemExpansionChangedEvent;
};

/** Stands for an item in the designer. */
UCLASS(Transient)
class UListViewDesignerPreviewItem : public UObject
{
	GENERATED_BODY()
};

/**
 * Base of lists: shows items by user widgets, the entries, of which there are no more than the view has room for. Entries are
 * used again for other items when the list is scrolled. Scrolling and changes of the items are carried out in the next frame.
 */
UCLASS(Abstract, NotBlueprintable, meta = (EntryInterface = "/Script/UMG.UserListEntry"), MinimalAPI)
class UListViewBase : public UWidget
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnListEntryGeneratedDynamic, UUserWidget*, Widget);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnListEntryReleasedDynamic, UUserWidget*, Widget);
	DECLARE_EVENT_OneParam(UListViewBase, FOnListEntryGenerated, UUserWidget&);
	DECLARE_EVENT_OneParam(UListViewBase, FOnEntryWidgetReleased, UUserWidget&);

	UMG_API UListViewBase(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	TSubclassOf<UUserWidget> GetEntryWidgetClass() const { return EntryWidgetClass; }

	/** The entries that show an item now. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API const TArray<UUserWidget*>& GetDisplayedEntryWidgets() const;

	/** In items: 2.5 begins in the middle of the third one. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API float GetScrollOffset() const;

	/** In items; what is out of range becomes the nearest offset in it. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void SetScrollOffset(const float InScrollOffset);

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void ScrollToTop();

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void ScrollToBottom();

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void EndInertialScrolling();

	/**
	 * Gives all entries their items anew in the next frame. The entries stay: they are released and told of their items again,
	 * but neither destructed nor constructed.
	 */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void RegenerateAllEntries();

	/** Matches entries and items anew in the next frame. Entries are not told of changes inside their items. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void RequestRefresh();

	/** How far one step of the wheel scrolls, against the usual. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void SetWheelScrollMultiplier(float NewWheelScrollMultiplier);

	/** Whether the wheel moves the entries in a short motion rather than at once. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void SetIsScrollAnimationEnabled(bool bInIsScrollAnimationEnabled);

	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	UMG_API void SetScrollbarVisibility(ESlateVisibility InVisibility);

	/** An entry was given an item. */
	FOnListEntryGenerated& OnEntryGenerated() { return OnListEntryGeneratedEvent; }
	/** An entry does not show its item any more. */
	FOnEntryWidgetReleased& OnEntryWidgetReleased() { return OnEntryWidgetReleasedEvent; }

	/** Room to leave around the entry of an item, by its index. */
	UMG_API virtual FMargin GetDesiredEntryPadding(int32 ItemIndex) const;

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	/** Makes the list. Called only when there is a class of entries. */
	UMG_API virtual TSharedRef<STableViewBase> RebuildListWidget();

	/** The designer shows the list: puts some items into it. */
	UMG_API virtual void OnRefreshDesignerItems() {}

	/** Gives an entry the item; what that means is up to the kind of list. */
	UMG_API TSharedRef<ITableRow> GenerateEntry(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable);
	UMG_API void HandleRowReleased(const TSharedRef<ITableRow>& Row);
	UMG_API virtual void InitializeEntry(UUserWidget& Entry, UObject* Item);

	/** The entry that a row of this list shows; null when there is none. */
	static UMG_API UUserWidget* GetEntryOfRow(const TSharedPtr<ITableRow>& Row);

	/** Shows items. It is to implement the interface UserObjectListEntry. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries", meta = (DesignerRebuild, AllowPrivateAccess = "true", MustImplement = "/Script/UMG.UserListEntry"))
	TSubclassOf<UUserWidget> EntryWidgetClass;

	/** How far one step of the wheel scrolls, against the usual. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Scrolling")
	float WheelScrollMultiplier = 1.0f;

	/** Whether the wheel moves the entries in a short motion rather than at once. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Scrolling")
	bool bEnableScrollAnimation = false;

	/** Whether the right mouse button drags the entries. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Scrolling")
	bool bEnableRightClickScrolling = true;

	/** Called when an entry is given an item. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Entry Generated"))
	FOnListEntryGeneratedDynamic BP_OnEntryGenerated;

	/** Called when an entry does not show its item any more. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Entry Released"))
	FOnListEntryReleasedDynamic BP_OnEntryReleased;

	/** Entries that the designer shows. */
	UPROPERTY(EditAnywhere, Category = "ListEntries", meta = (ClampMin = "0", ClampMax = "20"))
	int32 NumDesignerPreviewEntries = 5;

private:
	/** Whether the class can show items; an error in the log when it cannot. */
	bool IsEntryClassUsable() const;

	UPROPERTY(Transient)
	FUserWidgetPool EntryWidgetPool;

	/** The rows of all entries, also of those that wait. */
	TMap<UUserWidget*, TSharedPtr<SObjectTableRow>> EntryRows;

	TSharedPtr<STableViewBase> MyTableViewBase;
	FOnListEntryGenerated OnListEntryGeneratedEvent;
	FOnEntryWidgetReleased OnEntryWidgetReleasedEvent;
};
