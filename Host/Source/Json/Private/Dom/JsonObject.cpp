#include "Dom/JsonObject.h"

TSharedPtr<FJsonValue> FJsonObject::TryGetField(FStringView FieldName) const
{
	const TSharedPtr<FJsonValue>* const Field = Values.Find(FString(FieldName));
	return Field ? *Field : nullptr;
}

void FJsonObject::SetField(FString FieldName, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(MoveTemp(FieldName), Value);
}

void FJsonObject::RemoveField(FStringView FieldName)
{
	Values.Remove(FString(FieldName));
}

const FJsonValue& FJsonObject::FindOrReport(FStringView FieldName) const
{
	const TSharedPtr<FJsonValue>* const Field = Values.Find(FString(FieldName));
	if (Field && Field->IsValid())
	{
		return **Field;
	}
	static const FJsonValueNull Missing;
	UE_LOG(LogJson, Error, TEXT("Json: there is no member \"%s\""), *FString(FieldName));
	return Missing;
}

double FJsonObject::GetNumberField(FStringView FieldName) const
{
	return FindOrReport(FieldName).AsNumber();
}

int32 FJsonObject::GetIntegerField(FStringView FieldName) const
{
	return int32(FMath::Clamp(GetNumberField(FieldName), double(MIN_int32), double(MAX_int32)));
}

FString FJsonObject::GetStringField(FStringView FieldName) const
{
	return FindOrReport(FieldName).AsString();
}

bool FJsonObject::GetBoolField(FStringView FieldName) const
{
	return FindOrReport(FieldName).AsBool();
}

const TArray<TSharedPtr<FJsonValue>>& FJsonObject::GetArrayField(FStringView FieldName) const
{
	return FindOrReport(FieldName).AsArray();
}

const TSharedPtr<FJsonObject>& FJsonObject::GetObjectField(FStringView FieldName) const
{
	return FindOrReport(FieldName).AsObject();
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, double& OutNumber) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetNumber(OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int32& OutNumber) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetNumber(OutNumber);
}

bool FJsonObject::TryGetNumberField(FStringView FieldName, int64& OutNumber) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetNumber(OutNumber);
}

bool FJsonObject::TryGetStringField(FStringView FieldName, FString& OutString) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetString(OutString);
}

bool FJsonObject::TryGetBoolField(FStringView FieldName, bool& OutBool) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetBool(OutBool);
}

bool FJsonObject::TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetArray(OutArray);
}

bool FJsonObject::TryGetStringArrayField(FStringView FieldName, TArray<FString>& OutArray) const
{
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!TryGetArrayField(FieldName, Array))
	{
		return false;
	}
	TArray<FString> Strings;
	for (const TSharedPtr<FJsonValue>& Element : *Array)
	{
		if (!Element || !Element->TryGetString(Strings.AddDefaulted_GetRef()))
		{
			return false;
		}
	}
	OutArray = MoveTemp(Strings);
	return true;
}

bool FJsonObject::TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	return Field && Field->TryGetObject(OutObject);
}

void FJsonObject::SetNumberField(FString FieldName, double Number)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueNumber>(Number));
}

void FJsonObject::SetStringField(FString FieldName, FString StringValue)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueString>(MoveTemp(StringValue)));
}

void FJsonObject::SetBoolField(FString FieldName, bool bInValue)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueBoolean>(bInValue));
}

void FJsonObject::SetArrayField(FString FieldName, const TArray<TSharedPtr<FJsonValue>>& Array)
{
	SetField(MoveTemp(FieldName), MakeShared<FJsonValueArray>(Array));
}

void FJsonObject::SetObjectField(FString FieldName, const TSharedPtr<FJsonObject>& JsonObject)
{
	if (JsonObject)
	{
		SetField(MoveTemp(FieldName), MakeShared<FJsonValueObject>(JsonObject));
	}
	else
	{
		SetField(MoveTemp(FieldName), MakeShared<FJsonValueNull>());
	}
}
