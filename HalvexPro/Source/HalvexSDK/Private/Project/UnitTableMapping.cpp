#include "Project/UnitTableMapping.h"

#include "Dom/JsonObject.h"
#include "Project/JsonRoot.h"
#include "Project/UnitRecordFields.h"

namespace
{
	const TCHAR* const BoundNames[] = { TEXT("minX"), TEXT("minY"), TEXT("minZ"), TEXT("maxX"), TEXT("maxY"), TEXT("maxZ") };

	const TCHAR* GetName(EUnitTableField Field)
	{
		return Field < EUnitTableField::MinX ? FUnitRecordFields::GetName(EUnitRecordField(Field)) : BoundNames[int32(Field) - int32(EUnitTableField::MinX)];
	}

	static_assert(int32(EUnitTableField::Status) == int32(EUnitRecordField::Status), "Both list the plain fields in one order");

	bool ReadColumn(const TSharedPtr<FJsonValue>& Value, FUnitTableColumn& OutColumn)
	{
		FString Name;
		const TSharedPtr<FJsonObject>* Object = nullptr;
		if (Value->TryGetObject(Object))
		{
			(*Object)->TryGetStringField(TEXT("field"), Name);
			const TSharedPtr<FJsonObject>* Values = nullptr;
			if ((*Object)->TryGetObjectField(TEXT("values"), Values))
			{
				for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : (*Values)->Values)
				{
					FString Replacement;
					Pair.Value->TryGetString(Replacement);
					OutColumn.Values.Add(Pair.Key, Replacement);
				}
			}
		}
		else
		{
			Value->TryGetString(Name);
		}
		return FUnitTableMapping::FindField(Name, OutColumn.Field);
	}
}

FUnitTableMapping FUnitTableMapping::MakeDefault()
{
	FUnitTableMapping Mapping;
	Mapping.bAllColumnsNeeded = false;
	for (int32 Field = 0; Field <= int32(EUnitTableField::MaxZ); ++Field)
	{
		Mapping.Columns.Add(GetName(EUnitTableField(Field))).Field = EUnitTableField(Field);
	}
	return Mapping;
}

bool FUnitTableMapping::FindField(const FString& Name, EUnitTableField& OutField)
{
	for (int32 Field = 0; Field <= int32(EUnitTableField::MaxZ); ++Field)
	{
		if (Name.Equals(GetName(EUnitTableField(Field)), ESearchCase::CaseSensitive))
		{
			OutField = EUnitTableField(Field);
			return true;
		}
	}
	return false;
}

bool FUnitTableMapping::FromJson(const FString& Text, FUnitTableMapping& OutMapping, FReadProblems& Problems)
{
	OutMapping = FUnitTableMapping();
	const TSharedPtr<FJsonObject> Root = FJsonRoot::Read(Text, Problems);
	if (!Root)
	{
		return false;
	}

	FString Decimals;
	if (Root->TryGetStringField(TEXT("decimals"), Decimals))
	{
		if (Decimals == TEXT("comma") || Decimals == TEXT("point"))
		{
			OutMapping.Decimals = Decimals == TEXT("comma") ? EUnitTableDecimals::Comma : EUnitTableDecimals::Point;
		}
		else if (Decimals != TEXT("automatic"))
		{
			Problems.Add(0, 0, FString::Printf(TEXT("decimals: expected \"automatic\", \"point\" or \"comma\", found \"%s\""), *Decimals));
		}
	}
	double Length = 0.0;
	if (Root->HasField(TEXT("centimetresPerUnit")))
	{
		if (Root->TryGetNumberField(TEXT("centimetresPerUnit"), Length) && Length > 0.0 && Length <= 1e6)
		{
			OutMapping.CentimetresPerUnit = Length;
		}
		else
		{
			Problems.Add(0, 0, TEXT("centimetresPerUnit: expected a number above 0"));
		}
	}
	const TSharedPtr<FJsonObject>* Columns = nullptr;
	if (!Root->TryGetObjectField(TEXT("columns"), Columns))
	{
		Problems.Add(0, 0, TEXT("columns: expected an object with a field for each header"));
		return true;
	}
	for (const TPair<FString, TSharedPtr<FJsonValue>>& Pair : (*Columns)->Values)
	{
		FUnitTableColumn Column;
		if (ReadColumn(Pair.Value, Column))
		{
			OutMapping.Columns.Add(Pair.Key, Column);
		}
		else
		{
			Problems.Add(0, 0, FString::Printf(TEXT("columns: \"%s\": expected the name of a field"), *Pair.Key));
		}
	}
	return true;
}
