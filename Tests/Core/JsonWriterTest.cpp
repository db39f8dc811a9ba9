#include "Host/JsonWriter.h"

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <cmath>

TEST(JsonWriterTest, OneMemberALineIndentedByTabs)
{
	Host::FJsonWriter Writer;
	Writer.BeginObject();
	Writer.Key(TEXT("name"));
	Writer.String(TEXT("a \"b\"\n"));
	Writer.Key(TEXT("list"));
	Writer.BeginArray();
	Writer.Integer(-5);
	Writer.Bool(true);
	Writer.Null();
	Writer.EndArray();
	Writer.Key(TEXT("empty"));
	Writer.BeginObject();
	Writer.EndObject();
	Writer.EndObject();
	EXPECT_EQ("{\n\t\"name\": \"a \\\"b\\\"\\n\",\n\t\"list\": [\n\t\t-5,\n\t\ttrue,\n\t\tnull\n\t],\n\t\"empty\": {}\n}\n", ToUtf8(Writer.ToString()));
}

TEST(JsonWriterTest, NumbersComeBackAsTheyWere)
{
	for (const double Number : {0.1, 1.0 / 3.0, 1e300, -4.9e-324, 123456789.0})
	{
		Host::FJsonWriter Writer;
		Writer.BeginArray();
		Writer.Number(Number);
		Writer.EndArray();
		Host::FJsonDocument Document;
		ASSERT_TRUE(Document.Parse(Writer.ToString(), TEXT("Written")));
		double Read = 0.0;
		EXPECT_TRUE(Document.GetRoot().At(0).TryGetNumber(Read));
		EXPECT_EQ(Number, Read);
	}
}

TEST(JsonWriterTest, WhatIsNoFiniteNumberBecomesNull)
{
	Host::FJsonWriter Writer;
	Writer.BeginArray();
	Writer.Number(INFINITY);
	Writer.Number(NAN);
	Writer.EndArray();
	EXPECT_EQ("[\n\tnull,\n\tnull\n]\n", ToUtf8(Writer.ToString()));
}

TEST(JsonWriterTest, TextBeyondAsciiComesBack)
{
	const FString Text = TEXT("\u00e4\u4e2d\U0001F600");
	Host::FJsonWriter Writer;
	Writer.String(Text);
	Host::FJsonDocument Document;
	ASSERT_TRUE(Document.Parse(Writer.ToString(), TEXT("Written")));
	EXPECT_EQ(ToUtf8(Text), ToUtf8(Document.GetRoot().GetString()));
}

TEST(JsonWriterDeathTest, CallsOutOfPlaceHalt)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH({ Host::FJsonWriter Writer; Writer.BeginObject(); Writer.Integer(1); }, "needs a key");
	EXPECT_DEATH({ Host::FJsonWriter Writer; Writer.BeginObject(); Writer.EndArray(); }, "Nothing of this kind");
	EXPECT_DEATH({ Host::FJsonWriter Writer; Writer.BeginObject(); (void)Writer.ToString(); }, "not complete");
}
