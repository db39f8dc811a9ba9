#include "Engine/DataTable.h"

#include "UObject/GCObject.h"

DEFINE_LOG_CATEGORY(LogDataTable);

UDataTable::UDataTable(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UDataTable::~UDataTable() = default;

void UDataTable::FinishDestroy()
{
	EmptyTable();
	Super::FinishDestroy();
}

void UDataTable::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UDataTable* This = static_cast<UDataTable*>(InThis);
	for (const TPair<FName, uint8*>& Row : This->RowMap)
	{
		Collector.AddPropertyReferences(This->RowStruct, Row.Value, This);
	}
	Super::AddReferencedObjects(InThis, Collector);
}

const TMap<FName, uint8*>& UDataTable::GetRowMap() const
{
	ReadDeferredRows();
	return RowMap;
}

TArray<FName> UDataTable::GetRowNames() const
{
	TArray<FName> Names;
	GetRowMap().GenerateKeyArray(Names);
	return Names;
}

uint8* UDataTable::FindRowUnchecked(FName RowName) const
{
	return GetRowMap().FindRef(RowName);
}

void UDataTable::AddRow(FName RowName, const FTableRowBase& RowData)
{
	RowStruct->CopyScriptStruct(AddDefaultRow(RowName), &RowData);
}

void UDataTable::RemoveRow(FName RowName)
{
	ReadDeferredRows();
	uint8* Row = nullptr;
	if (RowMap.RemoveAndCopyValue(RowName, Row))
	{
		DestroyRow(Row);
	}
}

void UDataTable::EmptyTable()
{
	DeferredRows = nullptr;
	for (const TPair<FName, uint8*>& Row : RowMap)
	{
		DestroyRow(Row.Value);
	}
	RowMap.Empty();
}

void UDataTable::SetDeferredRows(TFunction<void(UDataTable&)> Reader)
{
	EmptyTable();
	DeferredRows = MoveTemp(Reader);
}

uint8* UDataTable::AddDefaultRow(FName RowName)
{
	check(RowStruct);
	ReadDeferredRows();
	uint8* Memory = static_cast<uint8*>(FMemory::Malloc(RowStruct->GetStructureSize(), RowStruct->GetMinAlignment()));
	RowStruct->InitializeStruct(Memory);
	uint8*& Row = RowMap.FindOrAdd(RowName);
	if (Row)
	{
		DestroyRow(Row);
	}
	Row = Memory;
	return Memory;
}

uint8* UDataTable::FindTypedRow(const UScriptStruct* Type, FName RowName, const TCHAR* Context, bool bWarnIfRowMissing) const
{
	if (!CheckRowType(Type, Context))
	{
		return nullptr;
	}
	uint8* Row = RowName.IsNone() ? nullptr : FindRowUnchecked(RowName);
	if (!Row && bWarnIfRowMissing)
	{
		UE_LOG(LogDataTable, Warning, TEXT("UDataTable::FindRow : '%s' requested row '%s' not in DataTable '%s'."), Context, *RowName.ToString(), *GetPathName());
	}
	return Row;
}

bool UDataTable::CheckRowType(const UScriptStruct* Type, const TCHAR* Context) const
{
	if (!RowStruct)
	{
		UE_LOG(LogDataTable, Error, TEXT("'%s' asked the table '%s' for rows, but it has no row structure."), Context, *GetPathName());
		return false;
	}
	if (!RowStruct->IsChildOf(Type))
	{
		UE_LOG(LogDataTable, Error, TEXT("'%s' asked the table '%s' for rows of '%s', but its rows are of '%s'."), Context, *GetPathName(), *Type->GetPathName(), *RowStruct->GetPathName());
		return false;
	}
	return true;
}

void UDataTable::ReadDeferredRows() const
{
	if (DeferredRows)
	{
		// Taken out first: the reader adds rows through functions that would ask for it again.
		TFunction<void(UDataTable&)> Reader = MoveTemp(DeferredRows);
		DeferredRows = nullptr;
		Reader(const_cast<UDataTable&>(*this));
	}
}

void UDataTable::DestroyRow(uint8* Row)
{
	RowStruct->DestroyStruct(Row);
	FMemory::Free(Row);
}
