#include "ListTestEntry.h"

#include "Widgets/Layout/SBox.h"

TArray<FString> UListTestEntry::Events;
int32 UListTestEntry::NumConstructed = 0;
int32 UListTestEntry::NumDestructed = 0;

TSharedRef<SWidget> UListTestEntry::RebuildWidget()
{
	Super::RebuildWidget();
	return SNew(SBox).HeightOverride(40.0f);
}

void UListTestEntry::NativeConstruct()
{
	Super::NativeConstruct();
	++NumConstructed;
}

void UListTestEntry::NativeDestruct()
{
	Super::NativeDestruct();
	++NumDestructed;
}

void UListTestEntry::NativeOnListItemObjectSet(UObject* ListItemObject)
{
	IUserObjectListEntry::NativeOnListItemObjectSet(ListItemObject);
	const UListTestItem* Item = GetListItem<UListTestItem>();
	Shown = Item ? Item->Number : -1;
	Note(ListItemObject == Item ? TEXT("Set") : TEXT("SetOther"));
}

void UListTestEntry::NativeOnItemSelectionChanged(bool bIsSelected)
{
	IUserObjectListEntry::NativeOnItemSelectionChanged(bIsSelected);
	Note(bIsSelected == IsListItemSelected() ? (bIsSelected ? TEXT("+") : TEXT("-")) : TEXT("Wrong"));
}

void UListTestEntry::NativeOnItemExpansionChanged(bool bIsExpanded)
{
	IUserObjectListEntry::NativeOnItemExpansionChanged(bIsExpanded);
	Note(bIsExpanded == IsListItemExpanded() ? (bIsExpanded ? TEXT("Open") : TEXT("Close")) : TEXT("Wrong"));
}

void UListTestEntry::NativeOnEntryReleased()
{
	IUserObjectListEntry::NativeOnEntryReleased();
	Note(TEXT("Release"));
}

void UListTestEntry::Note(const TCHAR* What)
{
	Events.Add(FString::Printf(TEXT("%s%d"), What, Shown));
}

namespace
{
	FString NumberOf(const UObject* Item)
	{
		const UListTestItem* TestItem = Cast<UListTestItem>(Item);
		return TestItem ? FString::FromInt(TestItem->Number) : FString(TEXT("none"));
	}
}

void UListTestListener::OnClicked(UObject* Item)
{
	Events.Add(TEXT("Click:") + NumberOf(Item));
}

void UListTestListener::OnSelection(UObject* Item, bool bIsSelected)
{
	Events.Add(FString::Printf(TEXT("%s:%s"), bIsSelected ? TEXT("Select") : TEXT("Deselect"), *NumberOf(Item)));
}

void UListTestListener::GetChildren(UObject* Item, TArray<UObject*>& OutChildren) const
{
	const int32 Number = CastChecked<UListTestItem>(Item)->Number;
	if (Number == 0)
	{
		OutChildren.Append({Children[0], Children[1]});
	}
	else if (Number == 2)
	{
		OutChildren.Add(Children[2]);
	}
}
