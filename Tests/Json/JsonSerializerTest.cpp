#include "ExpectedLog.h"
#include "Serialization/JsonSerializer.h"
#include "gtest/gtest.h"

namespace
{
	std::string ToStd(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}

	TSharedPtr<FJsonObject> Parse(const TCHAR* Text)
	{
		TSharedPtr<FJsonObject> Object;
		FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object);
		return Object;
	}

	TEST(FJsonSerializerTest, DocumentBecomesAnObject)
	{
		const TSharedPtr<FJsonObject> Object = Parse(TEXT(R"({"name": "A", "size": 2.5, "count": 3, "on": true, "none": null, "list": ["x", "y"], "inner": {"deep": [1]}})"));
		ASSERT_TRUE(Object.IsValid());
		EXPECT_EQ(ToStd(Object->GetStringField(TEXT("name"))), "A");
		EXPECT_EQ(Object->GetNumberField(TEXT("size")), 2.5);
		EXPECT_EQ(Object->GetIntegerField(TEXT("count")), 3);
		EXPECT_TRUE(Object->GetBoolField(TEXT("on")));
		EXPECT_TRUE(Object->HasField(TEXT("none")));
		EXPECT_TRUE(Object->TryGetField(TEXT("none"))->IsNull());
		EXPECT_FALSE(Object->HasField(TEXT("other")));
		EXPECT_EQ(Object->GetArrayField(TEXT("list")).Num(), 2);
		EXPECT_EQ(Object->GetObjectField(TEXT("inner"))->GetArrayField(TEXT("deep"))[0]->AsNumber(), 1.0);
		TArray<FString> List;
		EXPECT_TRUE(Object->TryGetStringArrayField(TEXT("list"), List));
		EXPECT_EQ(ToStd(List[1]), "y");
	}

	TEST(FJsonSerializerTest, TryingForAnotherKindLeavesTheOutputAlone)
	{
		const TSharedPtr<FJsonObject> Object = Parse(TEXT(R"({"text": "x", "number": 2.5, "digits": "12", "list": ["x", []]})"));
		double Number = 7.0;
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("text"), Number));
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("missing"), Number));
		EXPECT_EQ(Number, 7.0);
		int32 Whole = 7;
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("number"), Whole));
		EXPECT_EQ(Whole, 7);
		EXPECT_TRUE(Object->TryGetNumberField(TEXT("digits"), Whole));
		EXPECT_EQ(Whole, 12);
		FString String;
		EXPECT_TRUE(Object->TryGetStringField(TEXT("number"), String));
		EXPECT_EQ(ToStd(String), "2.5");
		bool bBool = true;
		EXPECT_FALSE(Object->TryGetBoolField(TEXT("text"), bBool));
		const TSharedPtr<FJsonObject>* Inner = nullptr;
		EXPECT_FALSE(Object->TryGetObjectField(TEXT("list"), Inner));
		TArray<FString> Strings = { TEXT("kept") };
		EXPECT_FALSE(Object->TryGetStringArrayField(TEXT("list"), Strings));
		EXPECT_EQ(Strings.Num(), 1);
	}

	TEST(FJsonSerializerTest, WholeNumbersMustFit)
	{
		const TSharedPtr<FJsonObject> Object = Parse(TEXT(R"({"a": 2147483647, "b": 2147483648, "c": -2147483648, "d": 9223372036854775808, "e": 1e999})"));
		int32 Small = 0;
		int64 Large = 0;
		EXPECT_TRUE(Object->TryGetNumberField(TEXT("a"), Small));
		EXPECT_EQ(Small, MAX_int32);
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("b"), Small));
		EXPECT_TRUE(Object->TryGetNumberField(TEXT("b"), Large));
		EXPECT_TRUE(Object->TryGetNumberField(TEXT("c"), Small));
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("d"), Large));
		EXPECT_FALSE(Object->TryGetNumberField(TEXT("e"), Large));
	}

	TEST(FJsonSerializerTest, WrongKindIsAnErrorInTheLog)
	{
		const TSharedPtr<FJsonObject> Object = Parse(TEXT(R"({"text": "x"})"));
		const Host::FExpectedLog Kind(TEXT("expected an array, found a string"));
		EXPECT_TRUE(Object->GetArrayField(TEXT("text")).IsEmpty());
		const Host::FExpectedLog Missing(TEXT("there is no member \"other\""));
		const Host::FExpectedLog Null(TEXT("expected a number, found null"));
		EXPECT_EQ(Object->GetNumberField(TEXT("other")), 0.0);
	}

	TEST(FJsonSerializerTest, BrokenTextsAndOtherKindsGiveNothing)
	{
		TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
		const TSharedRef<TJsonReader<>> Broken = TJsonReaderFactory<>::Create(TEXT("{\"a\": 1"));
		EXPECT_FALSE(FJsonSerializer::Deserialize(Broken, Object));
		EXPECT_FALSE(Object.IsValid());
		EXPECT_FALSE(Broken->GetErrorMessage().IsEmpty());
		EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("[1]")), Object));
		TArray<TSharedPtr<FJsonValue>> Array;
		EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("[1, 2]")), Array));
		EXPECT_EQ(Array.Num(), 2);
		EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("{}")), Array));
		EXPECT_TRUE(Array.IsEmpty());
	}

	TEST(FJsonSerializerTest, WrittenTextReadsBackTheSame)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("name"), TEXT("\u00C9lan \"3\"\n"));
		Object->SetNumberField(TEXT("price"), 125000.0);
		Object->SetBoolField(TEXT("free"), true);
		Object->SetObjectField(TEXT("nothing"), nullptr);
		Object->SetArrayField(TEXT("list"), { MakeShared<FJsonValueNumber>(0.1), MakeShared<FJsonValueString>(TEXT("x")), MakeShared<FJsonValueNull>() });
		const TSharedRef<FJsonObject> Inner = MakeShared<FJsonObject>();
		Inner->SetNumberField(TEXT("a"), 1.0);
		Object->SetObjectField(TEXT("inner"), Inner);

		FString Text;
		EXPECT_TRUE(FJsonSerializer::Serialize(Object, TJsonWriterFactory<>::Create(&Text)));
		EXPECT_TRUE(Text.StartsWith(TEXT("{\n\t\"name\": ")));
		EXPECT_TRUE(Text.EndsWith(TEXT("}")));
		const TSharedPtr<FJsonObject> Back = Parse(*Text);
		ASSERT_TRUE(Back.IsValid());
		FString Again;
		FJsonSerializer::Serialize(Back.ToSharedRef(), TJsonWriterFactory<>::Create(&Again));
		EXPECT_EQ(ToStd(Again), ToStd(Text));
		EXPECT_EQ(ToStd(Back->GetStringField(TEXT("name"))), "\xC3\x89lan \"3\"\n");
		EXPECT_EQ(Back->GetArrayField(TEXT("list"))[0]->AsNumber(), 0.1);
	}

	TEST(FJsonSerializerTest, WriterWritesStepByStep)
	{
		FString Text;
		const TSharedRef<TJsonWriter<>> Writer = TJsonWriterFactory<>::Create(&Text);
		Writer->WriteObjectStart();
		Writer->WriteValue(TEXT("a"), 1);
		Writer->WriteArrayStart(TEXT("b"));
		Writer->WriteValue(true);
		Writer->WriteValue(FString(TEXT("x")));
		Writer->WriteArrayEnd();
		Writer->WriteNull(TEXT("c"));
		Writer->WriteObjectEnd();
		EXPECT_TRUE(Writer->Close());
		EXPECT_EQ(ToStd(Text), "{\n\t\"a\": 1,\n\t\"b\": [\n\t\ttrue,\n\t\t\"x\"\n\t],\n\t\"c\": null\n}");
	}

	TEST(FJsonSerializerTest, LastMemberOfANameCounts)
	{
		EXPECT_EQ(Parse(TEXT(R"({"a": 1, "a": 2})"))->GetIntegerField(TEXT("a")), 2);
	}
}
