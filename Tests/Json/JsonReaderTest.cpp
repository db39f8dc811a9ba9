#include "ExpectedLog.h"
#include "Host/JsonDocument.h"
#include "Serialization/JsonReader.h"
#include "gtest/gtest.h"

#include <random>
#include <string>

namespace
{
	std::string ToStd(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}

	FUtf8StringView View(const std::string& Text)
	{
		return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Text.data()), int32(Text.size()));
	}

	/** The tokens as text: what they are, with name and value; the message at the end when something was wrong. */
	template <typename CharType>
	std::string ReadAll(TJsonReader<CharType>& Reader)
	{
		std::string All;
		EJsonNotation Notation = EJsonNotation::Null;
		while (Reader.ReadNext(Notation))
		{
			if (!Reader.GetIdentifier().IsEmpty())
			{
				All += ToStd(Reader.GetIdentifier()) + "=";
			}
			switch (Notation)
			{
			case EJsonNotation::ObjectStart: All += "{"; break;
			case EJsonNotation::ObjectEnd: All += "}"; break;
			case EJsonNotation::ArrayStart: All += "["; break;
			case EJsonNotation::ArrayEnd: All += "]"; break;
			case EJsonNotation::Boolean: All += Reader.GetValueAsBoolean() ? "true" : "false"; break;
			case EJsonNotation::String: All += "'" + ToStd(Reader.GetValueAsString()) + "'"; break;
			case EJsonNotation::Number: All += ToStd(Reader.GetValueAsNumberString()); break;
			case EJsonNotation::Null: All += "null"; break;
			case EJsonNotation::Error: All += "error"; break;
			}
			All += " ";
		}
		if (!Reader.GetErrorMessage().IsEmpty())
		{
			EXPECT_EQ(Notation, EJsonNotation::Error);
			All += ToStd(FString::Printf(TEXT("%u:%u: "), Reader.GetLineNumber(), Reader.GetCharacterNumber()) + Reader.GetErrorMessage());
			EXPECT_FALSE(Reader.ReadNext(Notation));
		}
		return All;
	}

	std::string Read(const std::string& Text)
	{
		const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
		return ReadAll(*Reader);
	}

	TEST(FJsonReaderTest, TokensComeInTheOrderOfTheText)
	{
		EXPECT_EQ(Read(R"( {"a": 1, "b": [true, false, null, "x", {}], "c": {"d": -2.5e3}} )"),
			"{ a=1 b=[ true false null 'x' { } ] c={ d=-2.5e3 } } ");
		EXPECT_EQ(Read("[]"), "[ ] ");
		EXPECT_EQ(Read("\xEF\xBB\xBF[1]"), "[ 1 ] ");
	}

	TEST(FJsonReaderTest, StringOfTheEngineIsReadAsWell)
	{
		const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(TEXT("{\"\u00E4\": \"\u20AC \U0001F600\"}"));
		EXPECT_EQ(ReadAll(*Reader), "{ \xC3\xA4='\xE2\x82\xAC \xF0\x9F\x98\x80' } ");
	}

	TEST(FJsonReaderTest, EscapesAreUndone)
	{
		EXPECT_EQ(Read(R"(["\"\\\/\b\f\n\r\t", "\u0041\u00e9\u20AC\uD83D\uDE00"])"), "[ '\"\\/\b\f\n\r\t' 'A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80' ] ");
		EXPECT_EQ(Read(R"({"\u0061b": "plain", "c": "\u0064"})"), "{ ab='plain' c='d' } ");
	}

	TEST(FJsonReaderTest, NumbersAreTheNearestDoubles)
	{
		const struct { const char* Text; double Value; } Cases[] =
		{
			{ "0", 0.0 }, { "-0", -0.0 }, { "12", 12.0 }, { "0.1", 0.1 }, { "1e3", 1e3 }, { "1E+2", 100.0 }, { "2.5e-1", 0.25 },
			{ "9007199254740993", 9007199254740992.0 }, { "1e999", std::numeric_limits<double>::infinity() }, { "1e-999", 0.0 },
			{ "-1e999", -std::numeric_limits<double>::infinity() },
		};
		for (const auto& Case : Cases)
		{
			const std::string Text = "[" + std::string(Case.Text) + "]";
			const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
			EJsonNotation Notation;
			EXPECT_TRUE(Reader->ReadNext(Notation) && Reader->ReadNext(Notation));
			EXPECT_EQ(Reader->GetValueAsNumber(), Case.Value) << Case.Text;
		}
	}

	TEST(FJsonReaderTest, TokensKnowTheirPlace)
	{
		const std::string Text = "{\n\t\"\xC3\xA4\xC3\xB6\": 1,\r\n  \"b\": [\n\"x\"]}";
		const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
		std::string Places;
		for (EJsonNotation Notation; Reader->ReadNext(Notation);)
		{
			Places += std::to_string(Reader->GetLineNumber()) + ":" + std::to_string(Reader->GetCharacterNumber()) + " ";
		}
		EXPECT_EQ(Places, "1:1 2:8 3:8 4:1 4:4 4:5 ");
	}

	TEST(FJsonReaderTest, SkippingGoesBehindTheEnd)
	{
		const std::string Text = R"({"a": {"b": [1, {"c": 2}], "d": {}}, "e": [[3], 4], "f": 5})";
		const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
		EJsonNotation Notation;
		EXPECT_TRUE(Reader->ReadNext(Notation) && Reader->ReadNext(Notation));
		EXPECT_TRUE(Reader->SkipObject());
		EXPECT_TRUE(Reader->ReadNext(Notation));
		EXPECT_EQ(ToStd(Reader->GetIdentifier()), "e");
		EXPECT_TRUE(Reader->SkipArray());
		EXPECT_TRUE(Reader->ReadNext(Notation));
		EXPECT_EQ(ToStd(Reader->GetIdentifier()), "f");
		EXPECT_TRUE(Reader->ReadNext(Notation));
		EXPECT_EQ(Notation, EJsonNotation::ObjectEnd);
		EXPECT_FALSE(Reader->ReadNext(Notation));
		EXPECT_TRUE(Reader->GetErrorMessage().IsEmpty());
	}

	TEST(FJsonReaderTest, SkippingInACutTextFails)
	{
		const std::string Text = R"({"a": {"b": [1)";
		const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
		EJsonNotation Notation;
		EXPECT_TRUE(Reader->ReadNext(Notation) && Reader->ReadNext(Notation));
		EXPECT_FALSE(Reader->SkipObject());
		EXPECT_EQ(ToStd(Reader->GetErrorMessage()), "expected ',' or ']' after the element, found the end of the text");
	}

	TEST(FJsonReaderTest, ErrorsSayWhereAndWhatWasExpected)
	{
		EXPECT_EQ(Read(""), "1:1: expected '{' or '[', found the end of the text");
		EXPECT_EQ(Read("1"), "1:1: expected '{' or '[', found '1'");
		EXPECT_EQ(Read("{} x"), "{ } 1:4: expected nothing more after the value, found 'x'");
		EXPECT_EQ(Read("{\n\"a\" 1}"), "{ 2:5: expected ':' after the member name, found '1'");
		EXPECT_EQ(Read("{a:1}"), "{ 1:2: expected a member name in quotes, found 'a'");
		EXPECT_EQ(Read("{\"a\":1,}"), "{ a=1 1:8: expected a member name in quotes, found '}'");
		EXPECT_EQ(Read("{\"a\":1]"), "{ a=1 1:7: expected ',' or '}' after the member, found ']'");
		EXPECT_EQ(Read("[1 2]"), "[ 1 1:4: expected ',' or ']' after the element, found '2'");
		EXPECT_EQ(Read("[1,]"), "[ 1 1:4: expected a value, found ']'");
		EXPECT_EQ(Read("[nul]"), "[ 1:2: expected a value, found 'n'");
		EXPECT_EQ(Read("[\xC3\xA4]"), "[ 1:2: expected a value, found '\xC3\xA4'");
		EXPECT_EQ(Read("[\"a"), "[ 1:4: expected the closing quote of the string, found the end of the text");
		EXPECT_EQ(Read("[\"a\nb\"]"), "[ 1:4: expected control characters only as escapes, found the byte 0x0A");
		EXPECT_EQ(Read("[\"\\x\"]"), "[ 1:3: expected one of the escapes \\\" \\\\ \\/ \\b \\f \\n \\r \\t \\u, found '\\'");
		EXPECT_EQ(Read("[\"\\u12G4\"]"), "[ 1:7: expected four hexadecimal digits after \\u, found 'G'");
		EXPECT_EQ(Read("[\"\\uD800\"]"), "[ 1:3: expected a valid surrogate pair, found '\\'");
		EXPECT_EQ(Read("[\"\\uD800\\u0041\"]"), "[ 1:3: expected a valid surrogate pair, found '\\'");
		EXPECT_EQ(Read("[\"\\uDC00\"]"), "[ 1:3: expected a valid surrogate pair, found '\\'");
		EXPECT_EQ(Read("[-]"), "[ 1:3: expected a digit, found ']'");
		EXPECT_EQ(Read("[1.]"), "[ 1:4: expected a digit after the point, found ']'");
		EXPECT_EQ(Read("[1e]"), "[ 1:4: expected a digit in the exponent, found ']'");
		EXPECT_EQ(Read("[01]"), "[ 0 1:3: expected ',' or ']' after the element, found '1'");
		EXPECT_EQ(Read(std::string("[1\0]", 4)), "[ 1 1:3: expected ',' or ']' after the element, found the byte 0x00");
	}

	TEST(FJsonReaderTest, DeepNestingIsRefused)
	{
		const std::string Deep(Host::FJsonTokens::MaxDepth, '[');
		EXPECT_NE(Read(Deep + "]").find("found the end of the text"), std::string::npos);
		EXPECT_NE(Read(Deep + "[").find("1:65: arrays and objects are nested more than 64 deep"), std::string::npos);
		EXPECT_NE(Read(std::string(1000000, '[')).find("nested more than"), std::string::npos);
	}

	TEST(FJsonReaderTest, BytesThatAreNoUtf8AreReplacedAndReadingGoesOn)
	{
		EXPECT_EQ(Read("[\"a\xFF\", 1]"), "[ 'a\xEF\xBF\xBD' 1 ] ");
	}

	/** The document of the core is read by a library: both must accept the same texts. */
	TEST(FJsonReaderTest, AcceptsWhatADocumentAccepts)
	{
		const std::string Seeds[] = { R"({"a": [1, -2.5e+3, "x\u00e9\n", true, null], "b": {"c": {}}})", R"([[], {}, "", 0, "\ud83d\ude00"])" };
		const std::string Bytes = "{}[]\",:\\0123eE+-.truefalsnu \n\td8";
		std::mt19937 Random(3);
		for (int32 Round = 0; Round < 20000; ++Round)
		{
			std::string Text = Seeds[Random() % 2];
			const int32 Changes = int32(Random() % 4);
			for (int32 Change = 0; Change < Changes; ++Change)
			{
				const SIZE_T At = Random() % Text.size();
				switch (Random() % 3)
				{
				case 0: Text[At] = Bytes[Random() % Bytes.size()]; break;
				case 1: Text.insert(At, 1, Bytes[Random() % Bytes.size()]); break;
				default: Text.erase(At, 1);
				}
			}
			Host::FJsonDocument Document;
			const bool bAccepted = Document.Parse(Text.data(), int64(Text.size()), TEXT("text")) && (Document.GetRoot().IsArray() || Document.GetRoot().IsObject());
			const TSharedRef<TJsonReader<UTF8CHAR>> Reader = TJsonReaderFactory<UTF8CHAR>::CreateFromView(View(Text));
			ReadAll(*Reader);
			ASSERT_EQ(Reader->GetErrorMessage().IsEmpty(), bAccepted) << Text << "\n" << ToStd(Reader->GetErrorMessage());
		}
	}
}
