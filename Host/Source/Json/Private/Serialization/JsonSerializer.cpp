#include "Serialization/JsonSerializer.h"

void FJsonSerializer::FBuilder::Add(EJsonNotation Notation, const FString& Name, const FString& String, double Number, bool bBoolean)
{
	switch (Notation)
	{
	case EJsonNotation::ObjectStart:
		Open.Add(FOpen{Name, MakeShared<FJsonObject>(), {}});
		break;
	case EJsonNotation::ArrayStart:
		Open.Add(FOpen{Name, nullptr, {}});
		break;
	case EJsonNotation::ObjectEnd:
	{
		const FOpen Closed = Open.Pop();
		AddValue(Closed.Name, MakeShared<FJsonValueObject>(Closed.Object));
		break;
	}
	case EJsonNotation::ArrayEnd:
	{
		const FOpen Closed = Open.Pop();
		AddValue(Closed.Name, MakeShared<FJsonValueArray>(Closed.Array));
		break;
	}
	case EJsonNotation::String:
		AddValue(Name, MakeShared<FJsonValueString>(String));
		break;
	case EJsonNotation::Number:
		AddValue(Name, MakeShared<FJsonValueNumber>(Number));
		break;
	case EJsonNotation::Boolean:
		AddValue(Name, MakeShared<FJsonValueBoolean>(bBoolean));
		break;
	case EJsonNotation::Null:
		AddValue(Name, MakeShared<FJsonValueNull>());
		break;
	case EJsonNotation::Error:
		break;
	}
}

void FJsonSerializer::FBuilder::AddValue(const FString& Name, const TSharedPtr<FJsonValue>& Value)
{
	if (Open.IsEmpty())
	{
		Root = Value;
	}
	else if (Open.Last().Object)
	{
		Open.Last().Object->SetField(Name, Value);
	}
	else
	{
		Open.Last().Array.Add(Value);
	}
}
