#include "Components/ListViewBase.h"

#include "Blueprint/IUserListEntry.h"
#include "Slate/SObjectTableRow.h"
#include "UMGLog.h"
#include "Widgets/Layout/SSpacer.h"
#include "Widgets/Views/SListView.h"

#define LOCTEXT_NAMESPACE "UMG"

UListViewBase::UListViewBase(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, EntryWidgetPool(*this)
{
	SetClipping(EWidgetClipping::ClipToBounds);
}

const TArray<UUserWidget*>& UListViewBase::GetDisplayedEntryWidgets() const
{
	return EntryWidgetPool.GetActiveWidgets();
}

float UListViewBase::GetScrollOffset() const
{
	return MyTableViewBase ? MyTableViewBase->GetScrollOffset() : 0.0f;
}

void UListViewBase::SetScrollOffset(const float InScrollOffset)
{
	if (MyTableViewBase)
	{
		MyTableViewBase->SetScrollOffset(InScrollOffset);
	}
}

void UListViewBase::ScrollToTop()
{
	if (MyTableViewBase)
	{
		MyTableViewBase->ScrollToTop();
	}
}

void UListViewBase::ScrollToBottom()
{
	if (MyTableViewBase)
	{
		MyTableViewBase->ScrollToBottom();
	}
}

void UListViewBase::EndInertialScrolling()
{
	if (MyTableViewBase)
	{
		MyTableViewBase->EndInertialScrolling();
	}
}

void UListViewBase::RegenerateAllEntries()
{
	if (MyTableViewBase)
	{
		MyTableViewBase->RebuildList();
	}
}

void UListViewBase::RequestRefresh()
{
	if (MyTableViewBase)
	{
		MyTableViewBase->RequestListRefresh();
	}
}

void UListViewBase::SetWheelScrollMultiplier(float NewWheelScrollMultiplier)
{
	WheelScrollMultiplier = NewWheelScrollMultiplier;
	if (MyTableViewBase)
	{
		MyTableViewBase->SetWheelScrollMultiplier(NewWheelScrollMultiplier);
	}
}

void UListViewBase::SetIsScrollAnimationEnabled(bool bInIsScrollAnimationEnabled)
{
	bEnableScrollAnimation = bInIsScrollAnimationEnabled;
	if (MyTableViewBase)
	{
		MyTableViewBase->SetIsScrollAnimationEnabled(bInIsScrollAnimationEnabled);
	}
}

void UListViewBase::SetScrollbarVisibility(ESlateVisibility InVisibility)
{
	if (MyTableViewBase)
	{
		MyTableViewBase->SetScrollbarVisibility(ConvertSerializedVisibilityToRuntime(InVisibility));
	}
}

FMargin UListViewBase::GetDesiredEntryPadding(int32) const
{
	return FMargin(0.0f);
}

void UListViewBase::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyTableViewBase)
	{
		return;
	}
	MyTableViewBase->SetWheelScrollMultiplier(WheelScrollMultiplier);
	MyTableViewBase->SetIsScrollAnimationEnabled(bEnableScrollAnimation);
	MyTableViewBase->SetIsRightClickScrollingEnabled(bEnableRightClickScrolling);
	if (IsDesignTime())
	{
		OnRefreshDesignerItems();
	}
}

void UListViewBase::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyTableViewBase.Reset();
	// With the rows the entries lose their Slate side too; the entries themselves wait to be used again.
	const TMap<UUserWidget*, TSharedPtr<SObjectTableRow>> Rows = MoveTemp(EntryRows);
	EntryRows.Reset();
	EntryWidgetPool.ReleaseAll();
}

#if WITH_EDITOR
const FText UListViewBase::GetPaletteCategory()
{
	return LOCTEXT("Lists", "Lists");
}
#endif

TSharedRef<SWidget> UListViewBase::RebuildWidget()
{
	if (!IsEntryClassUsable())
	{
		return SNew(SSpacer);
	}
	MyTableViewBase = RebuildListWidget();
	return MyTableViewBase.ToSharedRef();
}

TSharedRef<STableViewBase> UListViewBase::RebuildListWidget()
{
	// Every kind of list makes its own.
	return SNew(SListView<UObject*>);
}

bool UListViewBase::IsEntryClassUsable() const
{
	if (!EntryWidgetClass)
	{
		return false;
	}
	const bool bUsable = EntryWidgetClass->ImplementsInterface(UUserListEntry::StaticClass()) && !EntryWidgetClass->HasAnyClassFlags(CLASS_Abstract);
	if (!bUsable)
	{
		UE_LOG(LogUMG, Error, TEXT("%s shows nothing: its entry class %s %s."), *GetPathName(), *EntryWidgetClass->GetName(),
			EntryWidgetClass->HasAnyClassFlags(CLASS_Abstract) ? TEXT("is abstract") : TEXT("does not implement UserListEntry"));
	}
	return bUsable;
}

TSharedRef<ITableRow> UListViewBase::GenerateEntry(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable)
{
	UUserWidget* Entry = EntryWidgetPool.GetOrCreateInstance<UUserWidget>(EntryWidgetClass);
	if (!Entry)
	{
		// Said in the log by who failed to make it.
		return SNew(SObjectTableRow, OwnerTable, *this, nullptr);
	}
	TSharedPtr<SObjectTableRow>& Row = EntryRows.FindOrAdd(Entry);
	if (!Row.IsValid() || Row->GetEntry() != Entry)
	{
		Row = SNew(SObjectTableRow, OwnerTable, *this, Entry);
	}
	// The events may change the rows.
	const TSharedRef<SObjectTableRow> Generated = Row.ToSharedRef();
	Generated->SetItem(Item);
	if (!IsDesignTime())
	{
		InitializeEntry(*Entry, Item);
		OnListEntryGeneratedEvent.Broadcast(*Entry);
		BP_OnEntryGenerated.Broadcast(Entry);
	}
	return Generated;
}

void UListViewBase::InitializeEntry(UUserWidget&, UObject*)
{
}

void UListViewBase::HandleRowReleased(const TSharedRef<ITableRow>& Row)
{
	UUserWidget* Entry = GetEntryOfRow(Row);
	if (!Entry)
	{
		return;
	}
	EntryWidgetPool.Release(Entry);
	if (!IsDesignTime())
	{
		IUserListEntry::ReleaseEntry(*Entry);
		OnEntryWidgetReleasedEvent.Broadcast(*Entry);
		BP_OnEntryReleased.Broadcast(Entry);
	}
	static_cast<SObjectTableRow&>(Row.Get()).SetItem(nullptr);
}

UUserWidget* UListViewBase::GetEntryOfRow(const TSharedPtr<ITableRow>& Row)
{
	return Row.IsValid() ? static_cast<SObjectTableRow&>(*Row).GetEntry() : nullptr;
}

#undef LOCTEXT_NAMESPACE
