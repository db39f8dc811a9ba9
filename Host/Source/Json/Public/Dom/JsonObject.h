#pragma once

#include "Containers/Map.h"
#include "Dom/JsonValue.h"

/** The members of a JSON object, by name. */
class JSON_API FJsonObject
{
public:
	TMap<FString, TSharedPtr<FJsonValue>> Values;

	bool HasField(FStringView FieldName) const { return TryGetField(FieldName).IsValid(); }

	/** Null when there is no such member. */
	TSharedPtr<FJsonValue> TryGetField(FStringView FieldName) const;

	void SetField(FString FieldName, const TSharedPtr<FJsonValue>& Value);
	void RemoveField(FStringView FieldName);

	/** Each returns an empty value, with an error in the log, when the member is missing or of another kind. */
	double GetNumberField(FStringView FieldName) const;
	int32 GetIntegerField(FStringView FieldName) const;
	FString GetStringField(FStringView FieldName) const;
	bool GetBoolField(FStringView FieldName) const;
	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(FStringView FieldName) const;
	const TSharedPtr<FJsonObject>& GetObjectField(FStringView FieldName) const;

	/** Each leaves the output alone and returns false when the member is missing or of another kind. */
	bool TryGetNumberField(FStringView FieldName, double& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int32& OutNumber) const;
	bool TryGetNumberField(FStringView FieldName, int64& OutNumber) const;
	bool TryGetStringField(FStringView FieldName, FString& OutString) const;
	bool TryGetBoolField(FStringView FieldName, bool& OutBool) const;
	bool TryGetArrayField(FStringView FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	/** False as well when one of the elements is no string. */
	bool TryGetStringArrayField(FStringView FieldName, TArray<FString>& OutArray) const;
	bool TryGetObjectField(FStringView FieldName, const TSharedPtr<FJsonObject>*& OutObject) const;

	void SetNumberField(FString FieldName, double Number);
	void SetStringField(FString FieldName, FString StringValue);
	void SetBoolField(FString FieldName, bool bInValue);
	void SetArrayField(FString FieldName, const TArray<TSharedPtr<FJsonValue>>& Array);
	void SetObjectField(FString FieldName, const TSharedPtr<FJsonObject>& JsonObject);

private:
	/** The member, or one of no kind, with an error in the log. */
	const FJsonValue& FindOrReport(FStringView FieldName) const;
};
