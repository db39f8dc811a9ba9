#include "Slate/SObjectTableRow.h"

#include "Blueprint/IUserListEntry.h"
#include "Components/ListViewBase.h"
#include "Widgets/SNullWidget.h"

namespace
{
	TMap<const UUserWidget*, SObjectTableRow*>& GetRows()
	{
		static TMap<const UUserWidget*, SObjectTableRow*> Rows;
		return Rows;
	}
}

SObjectTableRow::~SObjectTableRow()
{
	SObjectTableRow** Known = GetRows().Find(EntryKey);
	if (Known && *Known == this)
	{
		GetRows().Remove(EntryKey);
	}
}

void SObjectTableRow::Construct(const FArguments&, const TSharedRef<STableViewBase>& InOwnerTable, UListViewBase& InOwnerListView, UUserWidget* InEntry)
{
	OwnerListView = &InOwnerListView;
	Entry = InEntry;
	EntryKey = InEntry;
	if (InEntry)
	{
		GetRows().Add(EntryKey, this);
	}
	ConstructRow(InOwnerTable, nullptr, FMargin(0.0f), false, InEntry ? InEntry->TakeWidget() : SNullWidget::NullWidget);
}

SObjectTableRow* SObjectTableRow::Find(const UUserWidget* Entry)
{
	SObjectTableRow** Known = Entry ? GetRows().Find(Entry) : nullptr;
	return Known && (*Known)->Entry.Get() == Entry ? *Known : nullptr;
}

void SObjectTableRow::SetIndexInList(int32 InIndexInList)
{
	STableRowBase::SetIndexInList(InIndexInList);
	if (const UListViewBase* List = OwnerListView.Get())
	{
		SetPadding(List->GetDesiredEntryPadding(InIndexInList));
	}
}

void SObjectTableRow::SetItem(UObject* InItem)
{
	Item = InItem;
	bHasNewItem = true;
}

void SObjectTableRow::SetRowState(const Host::FTableRowState& InState)
{
	STableRowBase::SetRowState(InState);
	const bool bTellSelected = bToldSelected != InState.bSelected || (bHasNewItem && InState.bSelected);
	const bool bTellExpanded = bToldExpanded != InState.bExpanded || (bHasNewItem && InState.bExpanded);
	bToldSelected = InState.bSelected;
	bToldExpanded = InState.bExpanded;
	bHasNewItem = false;
	// Each event may take the entry away.
	if (UUserWidget* Told = Entry.Get(); Told && bTellSelected)
	{
		IUserListEntry::UpdateItemSelection(*Told, InState.bSelected);
	}
	if (UUserWidget* Told = Entry.Get(); Told && bTellExpanded)
	{
		IUserListEntry::UpdateItemExpansion(*Told, InState.bExpanded);
	}
}
