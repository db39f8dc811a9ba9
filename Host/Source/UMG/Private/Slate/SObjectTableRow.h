#pragma once

#include "CoreMinimal.h"
#include "Host/TableRowBase.h"
#include "UObject/WeakObjectPtr.h"

class UListViewBase;
class UUserWidget;

/**
 * A row of a list that shows a user widget, which it tells of the standing of its item. It has no look of its own. The rows of
 * all lists of user widgets are of this class.
 */
class SObjectTableRow : public Host::STableRowBase
{
public:
	SLATE_BEGIN_ARGS(SObjectTableRow) {}
	SLATE_END_ARGS()

	virtual ~SObjectTableRow() override;
	/** Without an entry it is empty. */
	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTable, UListViewBase& InOwnerListView, UUserWidget* InEntry);

	/** The row that shows a user widget; null when none does. */
	static SObjectTableRow* Find(const UUserWidget* Entry);

	UUserWidget* GetEntry() const { return Entry.Get(); }
	UListViewBase* GetOwnerListView() const { return OwnerListView.Get(); }
	UObject* GetItem() const { return Item.Get(); }
	void SetItem(UObject* InItem);

	virtual void SetIndexInList(int32 InIndexInList) override;
	virtual void SetRowState(const Host::FTableRowState& InState) override;

private:
	TWeakObjectPtr<UListViewBase> OwnerListView;
	TWeakObjectPtr<UUserWidget> Entry;
	TWeakObjectPtr<UObject> Item;
	/** The address of the entry, by which the row is known. */
	const UUserWidget* EntryKey = nullptr;
	/** What the entry was told last. An item that it was given since is told anew if it is selected or open. */
	bool bToldSelected = false;
	bool bToldExpanded = false;
	bool bHasNewItem = false;
};
