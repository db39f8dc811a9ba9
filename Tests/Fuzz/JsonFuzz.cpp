// Feeds any bytes to the JSON reader, walks what it gives, and writes it out to read it again.

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "Host/JsonWriter.h"

namespace
{
	using Host::FJsonNode;

	/** Writes a value as it was read. Depth is limited by the reader. */
	void WriteValue(Host::FJsonWriter& Writer, const FJsonNode& Node)
	{
		check(Node.GetLine() >= 1 && Node.GetColumn() >= 1);
		bool bValue = false;
		double Number = 0.0;
		int32 Count = 0;
		switch (Node.GetKind())
		{
		case Host::EJsonKind::Null:
			Writer.Null();
			break;
		case Host::EJsonKind::Boolean:
			verify(Node.TryGetBool(bValue));
			Writer.Bool(bValue);
			break;
		case Host::EJsonKind::Number:
			verify(Node.TryGetNumber(Number));
			Writer.Number(Number);
			break;
		case Host::EJsonKind::String:
			Writer.String(Node.GetString());
			break;
		case Host::EJsonKind::Array:
			Writer.BeginArray();
			for (const FJsonNode Child : Node)
			{
				WriteValue(Writer, Child);
				++Count;
			}
			Writer.EndArray();
			check(Count == Node.Num());
			break;
		case Host::EJsonKind::Object:
			Writer.BeginObject();
			for (const FJsonNode Child : Node)
			{
				check(Count > 16 || Node.Find(Child.GetKey()).GetLine() == Child.GetLine());
				Writer.Key(Child.GetKey());
				WriteValue(Writer, Child);
				++Count;
			}
			Writer.EndObject();
			check(Count == Node.Num());
			break;
		}
	}

	FString Write(const Host::FJsonDocument& Document)
	{
		Host::FJsonWriter Writer;
		WriteValue(Writer, Document.GetRoot());
		return Writer.ToString();
	}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	Host::FJsonDocument Document;
	if (!Document.Parse(Data, int64(Size), TEXT("Fuzz")))
	{
		check(Document.GetErrors().Num() >= 1 && !Document.GetRoot().IsValid());
		return 0;
	}
	const FString Written = Write(Document);
	Host::FJsonDocument Again;
	verify(Again.Parse(Written, TEXT("Written")));
	check(Again.GetErrors().IsEmpty());
	check(Write(Again).Equals(Written));
	return 0;
}
