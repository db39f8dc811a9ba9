#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/Interface.h"
#include "UObject/ScriptInterface.h"
#include "IUserListEntry.generated.h"

class UListViewBase;
class UUserListEntry;

/** What user widgets implement that lists use to show their items. */
UINTERFACE(MinimalAPI, Blueprintable)
class UUserListEntry : public UInterface
{
	GENERATED_BODY()
};

/**
 * An entry of a list. While it shows an item it is told of that item's selection and expansion. Entries are used again and
 * again for other items, so all that an entry shows is to be set when its item is.
 */
class UMG_API IUserListEntry
{
	GENERATED_BODY()

public:
	/** Whether the item that this shows is selected. */
	bool IsListItemSelected() const;
	/** Whether the item that this shows is open, in a tree. */
	bool IsListItemExpanded() const;
	/** The list that shows this; null while none does. */
	UListViewBase* GetOwningListView() const;

	// For lists: tell an entry, whether it implements the interface natively or by a graph.

	static void ReleaseEntry(UUserWidget& ListEntryWidget);
	static void UpdateItemSelection(UUserWidget& ListEntryWidget, bool bIsSelected);
	static void UpdateItemExpansion(UUserWidget& ListEntryWidget, bool bIsExpanded);

protected:
	/** The base versions raise the events of the graph. */
	virtual void NativeOnItemSelectionChanged(bool bIsSelected);
	virtual void NativeOnItemExpansionChanged(bool bIsExpanded);
	virtual void NativeOnEntryReleased();

	/** The item was selected or deselected. */
	UFUNCTION(BlueprintImplementableEvent, Category = "UserListEntry", meta = (DisplayName = "On Item Selection Changed"))
	void BP_OnItemSelectionChanged(bool bIsSelected);

	/** The item was opened or closed, in a tree. */
	UFUNCTION(BlueprintImplementableEvent, Category = "UserListEntry", meta = (DisplayName = "On Item Expansion Changed"))
	void BP_OnItemExpansionChanged(bool bIsExpanded);

	/** The entry does not show its item any more. */
	UFUNCTION(BlueprintImplementableEvent, Category = "UserListEntry", meta = (DisplayName = "On Entry Released"))
	void BP_OnEntryReleased();
};

/** What graphs ask an entry for. */
UCLASS(MinimalAPI)
class UUserListEntryLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Whether the item that the entry shows is selected. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "UserListEntry", meta = (DefaultToSelf = "UserListEntry"))
	static UMG_API bool IsListItemSelected(TScriptInterface<IUserListEntry> UserListEntry);

	/** Whether the item that the entry shows is open, in a tree. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "UserListEntry", meta = (DefaultToSelf = "UserListEntry"))
	static UMG_API bool IsListItemExpanded(TScriptInterface<IUserListEntry> UserListEntry);

	/** The list that shows the entry; null while none does. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "UserListEntry", meta = (DefaultToSelf = "UserListEntry"))
	static UMG_API UListViewBase* GetOwningListView(TScriptInterface<IUserListEntry> UserListEntry);
};
