#pragma once

#include "CoreMinimal.h"
#include "Components/ListView.h"
#include "TreeView.generated.h"

template <typename ItemType>
class STreeView;

/**
 * A list of objects that have further objects in them, which are shown after an open one. What is in an item is asked for by
 * the handler given to SetOnGetItemChildren. Entries show themselves how deep and whether open their item is.
 */
UCLASS(MinimalAPI)
class UTreeView : public UListView
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnItemExpansionChangedDynamic, UObject*, Item, bool, bIsExpanded);

	UMG_API UTreeView(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Opens or closes an item. */
	UFUNCTION(BlueprintCallable, Category = "TreeView")
	UMG_API void SetItemExpansion(UObject* Item, bool bExpandItem);

	/** Opens all items that have others in them. */
	UFUNCTION(BlueprintCallable, Category = "TreeView")
	UMG_API void ExpandAll();

	/** Closes all items, without telling of it. */
	UFUNCTION(BlueprintCallable, Category = "TreeView")
	UMG_API void CollapseAll();

	/** Whether the item is open. */
	UMG_API bool IsItemExpanded(const UObject* Item) const;

	/** Names the method that appends what is in an item. It is held weakly. */
	template <typename UserClass>
	void SetOnGetItemChildren(UserClass* UserObject, void (UserClass::*Handler)(UObject*, TArray<UObject*>&) const)
	{
		OnGetItemChildren.BindUObject(UserObject, Handler);
		RequestRefresh();
	}

	template <typename UserClass>
	void SetOnGetItemChildren(UserClass* UserObject, void (UserClass::*Handler)(UObject*, TArray<UObject*>&))
	{
		OnGetItemChildren.BindUObject(UserObject, Handler);
		RequestRefresh();
	}

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	UMG_API virtual TSharedRef<STableViewBase> RebuildListWidget() override;

private:
	DECLARE_DELEGATE_TwoParams(FOnGetItemChildren, UObject*, TArray<UObject*>&);

	void HandleGetChildren(UObject* Item, TArray<UObject*>& OutChildren) const;
	void HandleExpansionChanged(UObject* Item, bool bIsExpanded);
	void Expand(UObject* Item, TSet<UObject*>& Visited);

	/** Called when an item is opened or closed, by the user or by SetItemExpansion. */
	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Expansion Changed"))
	FOnItemExpansionChangedDynamic BP_OnItemExpansionChanged;

	FOnGetItemChildren OnGetItemChildren;
	TSharedPtr<STreeView<UObject*>> MyTreeView;
};
