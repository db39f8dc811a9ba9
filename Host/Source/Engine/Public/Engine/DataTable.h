#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "DataTable.generated.h"

DECLARE_LOG_CATEGORY_EXTERN(LogDataTable, Log, All);

/** Base of the structures that rows of a data table have. */
USTRUCT(BlueprintType)
struct ENGINE_API FTableRowBase
{
	GENERATED_BODY()

	FTableRowBase() = default;
	FTableRowBase(const FTableRowBase&) = default;
	FTableRowBase(FTableRowBase&&) = default;
	FTableRowBase& operator=(const FTableRowBase&) = default;
	FTableRowBase& operator=(FTableRowBase&&) = default;
	virtual ~FTableRowBase() = default;
};

/** Rows of one structure, by name, in the order of the table. */
UCLASS(BlueprintType)
class ENGINE_API UDataTable : public UObject
{
	GENERATED_BODY()

public:
	/** Structure of the rows; derives from FTableRowBase. */
	UPROPERTY(VisibleAnywhere, Category = "DataTable")
	TObjectPtr<UScriptStruct> RowStruct;

	UDataTable(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual ~UDataTable() override;

	virtual void FinishDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** The rows by name. The memory of a row belongs to the table and is of the row structure. */
	virtual const TMap<FName, uint8*>& GetRowMap() const;

	const UScriptStruct* GetRowStruct() const { return RowStruct; }

	TArray<FName> GetRowNames() const;

	/**
	 * The row of that name; null when there is none, with a warning that names the context unless switched off. Null with an
	 * error when rows are not of type T.
	 */
	template <typename T>
	T* FindRow(FName RowName, const TCHAR* ContextString, bool bWarnIfRowMissing = true) const
	{
		return reinterpret_cast<T*>(FindTypedRow(T::StaticStruct(), RowName, ContextString, bWarnIfRowMissing));
	}

	template <typename T>
	T* FindRow(FName RowName, const FString& ContextString, bool bWarnIfRowMissing = true) const
	{
		return FindRow<T>(RowName, *ContextString, bWarnIfRowMissing);
	}

	/** Appends all rows in table order. Nothing, with an error that names the context, when rows are not of type T. */
	template <typename T>
	void GetAllRows(const FString& ContextString, TArray<T*>& OutRowArray) const
	{
		if (CheckRowType(T::StaticStruct(), *ContextString))
		{
			for (const TPair<FName, uint8*>& Row : GetRowMap())
			{
				OutRowArray.Add(reinterpret_cast<T*>(Row.Value));
			}
		}
	}

	/** The memory of the row of that name, or null. */
	uint8* FindRowUnchecked(FName RowName) const;

	/** Adds a row as a copy, in place of one of the same name. The row must be of the table's row structure. */
	void AddRow(FName RowName, const FTableRowBase& RowData);
	void RemoveRow(FName RowName);
	void EmptyTable();

	/**
	 * Leaves reading the rows until somebody asks for one: large tables are often loaded and seldom read.
	 * @param Reader called once, to add the rows
	 */
	void SetDeferredRows(TFunction<void(UDataTable&)> Reader);

	/** Adds a row of default values and returns its memory, for readers to fill. A row of the same name is replaced. */
	uint8* AddDefaultRow(FName RowName);

private:
	uint8* FindTypedRow(const UScriptStruct* Type, FName RowName, const TCHAR* Context, bool bWarnIfRowMissing) const;
	bool CheckRowType(const UScriptStruct* Type, const TCHAR* Context) const;
	void ReadDeferredRows() const;
	void DestroyRow(uint8* Row);

	TMap<FName, uint8*> RowMap;
	mutable TFunction<void(UDataTable&)> DeferredRows;
};
