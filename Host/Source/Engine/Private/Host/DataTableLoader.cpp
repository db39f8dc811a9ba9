#include "Host/DataTableLoader.h"

#include "Engine/DataTable.h"
#include "Host/JsonDocument.h"
#include "Host/PropertyJson.h"
#include "UObject/Package.h"

namespace Host
{
	namespace
	{
		void LogError(const FString& Where, const FString& What)
		{
			UE_LOG(LogAssets, Error, TEXT("%s: %s"), *Where, *What);
		}

		/** The structure that the file names; null after an error. */
		UScriptStruct* FindRowStruct(const FJsonNode& Root)
		{
			const FJsonNode RowStructNode = Root.Find(TEXT("RowStruct"));
			FString Path;
			if (!RowStructNode.TryGetString(Path))
			{
				LogError(RowStructNode ? RowStructNode.Where() : Root.Where(), TEXT("\"RowStruct\" must be the path of a structure."));
				return nullptr;
			}
			UScriptStruct* RowStruct = FindObject<UScriptStruct>(nullptr, *Path);
			if (!RowStruct || !RowStruct->IsChildOf(FTableRowBase::StaticStruct()))
			{
				LogError(RowStructNode.Where(), FString::Printf(TEXT("'%s' is no structure of table rows."), *Path));
				return nullptr;
			}
			return RowStruct;
		}

		void ReadRows(UDataTable& Table, const FJsonNode& Rows)
		{
			for (const FJsonNode Row : Rows)
			{
				uint8* Memory = Table.AddDefaultRow(FName(Row.GetKey()));
				FPropertyJson::ReadStruct(Row, Table.RowStruct, Memory, &Table, [](const FString& Message) { UE_LOG(LogAssets, Error, TEXT("%s"), *Message); });
			}
		}
	}

	UObject* LoadDataTable(const FAssetRequest& Request)
	{
		TSharedRef<FJsonDocument> Document = MakeShared<FJsonDocument>();
		const bool bRead = Document->LoadFile(Request.Filename);
		for (const FString& Error : Document->GetErrors())
		{
			UE_LOG(LogAssets, Error, TEXT("%s"), *Error);
		}
		if (!bRead)
		{
			return nullptr;
		}
		const FJsonNode Root = Document->GetRoot();
		UScriptStruct* RowStruct = FindRowStruct(Root);
		if (!RowStruct)
		{
			return nullptr;
		}
		const FJsonNode Rows = Root.Find(TEXT("Rows"));
		if (!Rows.IsObject())
		{
			LogError(Rows ? Rows.Where() : Root.Where(), TEXT("\"Rows\" must be an object with a member for each row."));
			return nullptr;
		}
		UDataTable* Table = NewObject<UDataTable>(Request.Package, Request.AssetName, RF_Public | RF_Standalone);
		Table->RowStruct = RowStruct;
		Table->SetDeferredRows([Document](UDataTable& Target) { ReadRows(Target, Document->GetRoot().Find(TEXT("Rows"))); });
		return Table;
	}
}
