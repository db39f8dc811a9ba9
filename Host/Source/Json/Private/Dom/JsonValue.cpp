#include "Dom/JsonValue.h"

#include "Dom/JsonObject.h"

DEFINE_LOG_CATEGORY(LogJson);

namespace
{
	const TCHAR* Describe(EJson Type)
	{
		switch (Type)
		{
		case EJson::None: return TEXT("nothing");
		case EJson::Null: return TEXT("null");
		case EJson::String: return TEXT("a string");
		case EJson::Number: return TEXT("a number");
		case EJson::Boolean: return TEXT("a boolean");
		case EJson::Array: return TEXT("an array");
		case EJson::Object: return TEXT("an object");
		}
		return TEXT("");
	}

	template <typename IntegerType>
	bool TryGetWhole(const FJsonValue& Value, IntegerType& OutNumber)
	{
		double Number = 0.0;
		// The upper limit itself is beyond the type once it is rounded to a double.
		const double Limit = -double(TNumericLimits<IntegerType>::Lowest());
		if (!Value.TryGetNumber(Number) || !(Number >= -Limit && Number < Limit) || Number != double(int64(Number)))
		{
			return false;
		}
		OutNumber = IntegerType(Number);
		return true;
	}
}

void FJsonValue::ReportKind(const TCHAR* Wanted) const
{
	UE_LOG(LogJson, Error, TEXT("Json: expected %s, found %s"), Wanted, Describe(Type));
}

double FJsonValue::AsNumber() const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		ReportKind(TEXT("a number"));
	}
	return Number;
}

FString FJsonValue::AsString() const
{
	FString String;
	if (!TryGetString(String))
	{
		ReportKind(TEXT("a string"));
	}
	return String;
}

bool FJsonValue::AsBool() const
{
	bool bBool = false;
	if (!TryGetBool(bBool))
	{
		ReportKind(TEXT("a boolean"));
	}
	return bBool;
}

const TArray<TSharedPtr<FJsonValue>>& FJsonValue::AsArray() const
{
	static const TArray<TSharedPtr<FJsonValue>> Empty;
	const TArray<TSharedPtr<FJsonValue>>* Array = &Empty;
	if (!TryGetArray(Array))
	{
		ReportKind(TEXT("an array"));
	}
	return *Array;
}

const TSharedPtr<FJsonObject>& FJsonValue::AsObject() const
{
	static const TSharedPtr<FJsonObject> Empty = MakeShared<FJsonObject>();
	const TSharedPtr<FJsonObject>* Object = &Empty;
	if (!TryGetObject(Object))
	{
		ReportKind(TEXT("an object"));
	}
	return *Object;
}

bool FJsonValue::TryGetNumber(double&) const
{
	return false;
}

bool FJsonValue::TryGetNumber(int32& OutNumber) const
{
	return TryGetWhole(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int64& OutNumber) const
{
	return TryGetWhole(*this, OutNumber);
}

bool FJsonValue::TryGetString(FString&) const
{
	return false;
}

bool FJsonValue::TryGetBool(bool&) const
{
	return false;
}

bool FJsonValue::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*&) const
{
	return false;
}

bool FJsonValue::TryGetObject(const TSharedPtr<FJsonObject>*&) const
{
	return false;
}

bool FJsonValueString::TryGetNumber(double& OutNumber) const
{
	if (!Value.IsNumeric())
	{
		return false;
	}
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueString::TryGetString(FString& OutString) const
{
	OutString = Value;
	return true;
}

bool FJsonValueNumber::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value;
	return true;
}

bool FJsonValueNumber::TryGetString(FString& OutString) const
{
	OutString = FString::SanitizeFloat(Value, 0);
	return true;
}

bool FJsonValueBoolean::TryGetString(FString& OutString) const
{
	OutString = bValue ? TEXT("true") : TEXT("false");
	return true;
}

bool FJsonValueBoolean::TryGetBool(bool& OutBool) const
{
	OutBool = bValue;
	return true;
}

bool FJsonValueArray::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	OutArray = &Value;
	return true;
}

bool FJsonValueObject::TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const
{
	OutObject = &Value;
	return true;
}
