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

void SObjectTableRow::OnRowStateChanged(const Host::FTableRowState& Before)
{
	STableRowBase::OnRowStateChanged(Before);
	// Each event may take the entry away.
	if (UUserWidget* Told = Entry.Get(); Told && Before.bSelected != IsItemSelected())
	{
		IUserListEntry::UpdateItemSelection(*Told, IsItemSelected());
	}
	if (UUserWidget* Told = Entry.Get(); Told && Before.bExpanded != IsItemExpanded())
	{
		IUserListEntry::UpdateItemExpansion(*Told, IsItemExpanded());
	}
}
