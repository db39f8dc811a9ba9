#pragma once

#include "Serialization/JsonTypes.h"
#include "Templates/SharedPointer.h"

class FJsonObject;

/** A JSON value. The Try functions leave the output alone and return false when the value is of another kind. */
class JSON_API FJsonValue
{
public:
	EJson Type;

	virtual ~FJsonValue() = default;

	bool IsNull() const { return Type == EJson::Null || Type == EJson::None; }

	/** Each returns an empty value, with an error in the log, when the value is of another kind. */
	double AsNumber() const;
	FString AsString() const;
	bool AsBool() const;
	const TArray<TSharedPtr<FJsonValue>>& AsArray() const;
	const TSharedPtr<FJsonObject>& AsObject() const;

	/** A text counts as the number that it is. */
	virtual bool TryGetNumber(double& OutNumber) const;
	/** False for a number with a fraction, or out of range, too. */
	bool TryGetNumber(int32& OutNumber) const;
	bool TryGetNumber(int64& OutNumber) const;
	/** Numbers and booleans count as their text. */
	virtual bool TryGetString(FString& OutString) const;
	virtual bool TryGetBool(bool& OutBool) const;
	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const;

protected:
	explicit FJsonValue(EJson InType) : Type(InType) {}

private:
	void ReportKind(const TCHAR* Wanted) const;
};

class JSON_API FJsonValueNull : public FJsonValue
{
public:
	FJsonValueNull() : FJsonValue(EJson::Null) {}
};

class JSON_API FJsonValueString : public FJsonValue
{
public:
	explicit FJsonValueString(FString InValue) : FJsonValue(EJson::String), Value(MoveTemp(InValue)) {}
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetString(FString& OutString) const override;

private:
	FString Value;
};

class JSON_API FJsonValueNumber : public FJsonValue
{
public:
	explicit FJsonValueNumber(double InValue) : FJsonValue(EJson::Number), Value(InValue) {}
	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetString(FString& OutString) const override;

private:
	double Value;
};

class JSON_API FJsonValueBoolean : public FJsonValue
{
public:
	explicit FJsonValueBoolean(bool bInValue) : FJsonValue(EJson::Boolean), bValue(bInValue) {}
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetBool(bool& OutBool) const override;

private:
	bool bValue;
};

class JSON_API FJsonValueArray : public FJsonValue
{
public:
	explicit FJsonValueArray(TArray<TSharedPtr<FJsonValue>> InArray) : FJsonValue(EJson::Array), Value(MoveTemp(InArray)) {}
	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const override;

private:
	TArray<TSharedPtr<FJsonValue>> Value;
};

class JSON_API FJsonValueObject : public FJsonValue
{
public:
	explicit FJsonValueObject(TSharedPtr<FJsonObject> InObject) : FJsonValue(EJson::Object), Value(MoveTemp(InObject)) {}
	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const override;

private:
	TSharedPtr<FJsonObject> Value;
};
