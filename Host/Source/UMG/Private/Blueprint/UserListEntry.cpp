#include "Blueprint/IUserListEntry.h"
#include "Blueprint/IUserObjectListEntry.h"
#include "Components/ListViewBase.h"
#include "Slate/SObjectTableRow.h"

namespace
{
	/** The row that shows an entry, natively implemented or not. */
	const SObjectTableRow* FindRow(const UObject* Entry)
	{
		return SObjectTableRow::Find(Cast<UUserWidget>(Entry));
	}

	/** The user widget that an implementation is part of. */
	const UUserWidget* ToWidget(const IUserListEntry* Entry)
	{
		return Cast<UUserWidget>(Entry->_getUObject());
	}

	bool IsGraphEntry(const UUserWidget& Widget, UClass* Interface)
	{
		return Widget.GetClass()->ImplementsInterface(Interface);
	}
}

bool IUserListEntry::IsListItemSelected() const
{
	const SObjectTableRow* Row = SObjectTableRow::Find(ToWidget(this));
	return Row && Row->IsItemSelected();
}

bool IUserListEntry::IsListItemExpanded() const
{
	const SObjectTableRow* Row = SObjectTableRow::Find(ToWidget(this));
	return Row && Row->IsItemExpanded();
}

UListViewBase* IUserListEntry::GetOwningListView() const
{
	const SObjectTableRow* Row = SObjectTableRow::Find(ToWidget(this));
	return Row ? Row->GetOwnerListView() : nullptr;
}

void IUserListEntry::ReleaseEntry(UUserWidget& ListEntryWidget)
{
	if (IUserListEntry* Native = Cast<IUserListEntry>(&ListEntryWidget))
	{
		Native->NativeOnEntryReleased();
	}
	else if (IsGraphEntry(ListEntryWidget, UUserListEntry::StaticClass()))
	{
		Execute_BP_OnEntryReleased(&ListEntryWidget);
	}
}

void IUserListEntry::UpdateItemSelection(UUserWidget& ListEntryWidget, bool bIsSelected)
{
	if (IUserListEntry* Native = Cast<IUserListEntry>(&ListEntryWidget))
	{
		Native->NativeOnItemSelectionChanged(bIsSelected);
	}
	else if (IsGraphEntry(ListEntryWidget, UUserListEntry::StaticClass()))
	{
		Execute_BP_OnItemSelectionChanged(&ListEntryWidget, bIsSelected);
	}
}

void IUserListEntry::UpdateItemExpansion(UUserWidget& ListEntryWidget, bool bIsExpanded)
{
	if (IUserListEntry* Native = Cast<IUserListEntry>(&ListEntryWidget))
	{
		Native->NativeOnItemExpansionChanged(bIsExpanded);
	}
	else if (IsGraphEntry(ListEntryWidget, UUserListEntry::StaticClass()))
	{
		Execute_BP_OnItemExpansionChanged(&ListEntryWidget, bIsExpanded);
	}
}

void IUserListEntry::NativeOnItemSelectionChanged(bool bIsSelected)
{
	Execute_BP_OnItemSelectionChanged(_getUObject(), bIsSelected);
}

void IUserListEntry::NativeOnItemExpansionChanged(bool bIsExpanded)
{
	Execute_BP_OnItemExpansionChanged(_getUObject(), bIsExpanded);
}

void IUserListEntry::NativeOnEntryReleased()
{
	Execute_BP_OnEntryReleased(_getUObject());
}

bool UUserListEntryLibrary::IsListItemSelected(TScriptInterface<IUserListEntry> UserListEntry)
{
	const SObjectTableRow* Row = FindRow(UserListEntry.GetObject());
	return Row && Row->IsItemSelected();
}

bool UUserListEntryLibrary::IsListItemExpanded(TScriptInterface<IUserListEntry> UserListEntry)
{
	const SObjectTableRow* Row = FindRow(UserListEntry.GetObject());
	return Row && Row->IsItemExpanded();
}

UListViewBase* UUserListEntryLibrary::GetOwningListView(TScriptInterface<IUserListEntry> UserListEntry)
{
	const SObjectTableRow* Row = FindRow(UserListEntry.GetObject());
	return Row ? Row->GetOwnerListView() : nullptr;
}

// Entries of lists of objects.

UObject* IUserObjectListEntry::GetListItemObjectInternal() const
{
	const SObjectTableRow* Row = SObjectTableRow::Find(ToWidget(this));
	return Row ? Row->GetItem() : nullptr;
}

void IUserObjectListEntry::SetListItemObject(UUserWidget& ListEntryWidget, UObject* ListItemObject)
{
	if (IUserObjectListEntry* Native = Cast<IUserObjectListEntry>(&ListEntryWidget))
	{
		Native->NativeOnListItemObjectSet(ListItemObject);
	}
	else if (IsGraphEntry(ListEntryWidget, UUserObjectListEntry::StaticClass()))
	{
		Execute_OnListItemObjectSet(&ListEntryWidget, ListItemObject);
	}
}

void IUserObjectListEntry::NativeOnListItemObjectSet(UObject* ListItemObject)
{
	Execute_OnListItemObjectSet(Cast<UObject>(this), ListItemObject);
}

UObject* UUserObjectListEntryLibrary::GetListItemObject(TScriptInterface<IUserObjectListEntry> UserObjectListEntry)
{
	const SObjectTableRow* Row = FindRow(UserObjectListEntry.GetObject());
	return Row ? Row->GetItem() : nullptr;
}
