#include "Host/JsonDocument.h"

#include "CoreMinimal.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <string>

using Host::EJsonKind;
using Host::FJsonDocument;
using Host::FJsonLimits;
using Host::FJsonNode;

namespace
{
	/** The one error of a text that must be refused. */
	std::string GetError(const std::string& Text, const FJsonLimits& Limits = FJsonLimits())
	{
		FJsonDocument Document;
		EXPECT_FALSE(Document.Parse(Text.data(), int64(Text.size()), TEXT("Test.json"), Limits));
		EXPECT_FALSE(Document.GetRoot().IsValid());
		EXPECT_EQ(1, Document.GetErrors().Num());
		return Document.GetErrors().IsEmpty() ? std::string() : ToUtf8(Document.GetErrors()[0]);
	}

	FJsonDocument ParseGood(const TCHAR* Text)
	{
		FJsonDocument Document;
		EXPECT_TRUE(Document.Parse(Text, TEXT("Test.json")));
		EXPECT_TRUE(Document.GetErrors().IsEmpty());
		return Document;
	}
}

TEST(JsonDocumentTest, EveryKindIsRead)
{
	const FJsonDocument Document = ParseGood(TEXT(R"([null, true, 1, 2.5, "text", [], {}])"));
	const FJsonNode Root = Document.GetRoot();
	ASSERT_EQ(7, Root.Num());
	const EJsonKind Expected[] = {EJsonKind::Null, EJsonKind::Boolean, EJsonKind::Number, EJsonKind::Number, EJsonKind::String, EJsonKind::Array, EJsonKind::Object};
	int32 Index = 0;
	for (const FJsonNode Child : Root)
	{
		EXPECT_EQ(Expected[Index], Child.GetKind()) << Index;
		++Index;
	}
	EXPECT_EQ(7, Index);
}

TEST(JsonDocumentTest, ValuesComeOutOnlyAsTheirKind)
{
	const FJsonDocument Document = ParseGood(TEXT(R"({"b": true, "n": 2.5, "s": "x"})"));
	bool bBool = false;
	double Number = 0.0;
	FString Text;
	EXPECT_TRUE(Document.GetRoot().Find(TEXT("b")).TryGetBool(bBool));
	EXPECT_TRUE(bBool);
	EXPECT_TRUE(Document.GetRoot().Find(TEXT("n")).TryGetNumber(Number));
	EXPECT_EQ(2.5, Number);
	EXPECT_TRUE(Document.GetRoot().Find(TEXT("s")).TryGetString(Text));
	EXPECT_EQ("x", ToUtf8(Text));
	EXPECT_FALSE(Document.GetRoot().Find(TEXT("s")).TryGetNumber(Number));
	EXPECT_FALSE(Document.GetRoot().Find(TEXT("n")).TryGetString(Text));
	EXPECT_EQ(2.5, Number);
	EXPECT_EQ("x", ToUtf8(Text));
}

TEST(JsonDocumentTest, WholeNumbersLoseNoDigits)
{
	const FJsonDocument Document = ParseGood(TEXT("[9223372036854775807, -9223372036854775808, 18446744073709551615, 3.0, 3.5, 1e300, 4294967296]"));
	const FJsonNode Root = Document.GetRoot();
	int64 Integer = 0;
	EXPECT_TRUE(Root.At(0).TryGetInteger(Integer));
	EXPECT_EQ(MAX_int64, Integer);
	EXPECT_TRUE(Root.At(1).TryGetInteger(Integer));
	EXPECT_EQ(MIN_int64, Integer);
	EXPECT_FALSE(Root.At(2).TryGetInteger(Integer));
	uint64 Unsigned = 0;
	EXPECT_TRUE(Root.At(2).TryGetUnsigned(Unsigned));
	EXPECT_EQ(MAX_uint64, Unsigned);
	EXPECT_TRUE(Root.At(3).TryGetInteger(Integer));
	EXPECT_EQ(3, Integer);
	EXPECT_FALSE(Root.At(4).TryGetInteger(Integer));
	EXPECT_FALSE(Root.At(5).TryGetInteger(Integer));
	int32 Small = 0;
	EXPECT_FALSE(Root.At(6).TryGetInteger(Small));
	EXPECT_FALSE(Root.At(1).TryGetUnsigned(Unsigned));
}

TEST(JsonDocumentTest, NumbersAreReadToTheLastBit)
{
	const FJsonDocument Document = ParseGood(TEXT("[0.1, 1.7976931348623157e308, 4.9e-324]"));
	double Number = 0.0;
	EXPECT_TRUE(Document.GetRoot().At(0).TryGetNumber(Number));
	EXPECT_EQ(0.1, Number);
	EXPECT_TRUE(Document.GetRoot().At(1).TryGetNumber(Number));
	EXPECT_EQ(MAX_dbl, Number);
	EXPECT_TRUE(Document.GetRoot().At(2).TryGetNumber(Number));
	EXPECT_EQ(4.9e-324, Number);
}

TEST(JsonDocumentTest, NumbersTooCloseToZeroAreZero)
{
	const FJsonDocument Document = ParseGood(TEXT("[1e-999, 0e52, 0.0e-99999999999999999999, -1e-400, 123e-99999999999999999999]"));
	for (const FJsonNode Child : Document.GetRoot())
	{
		double Number = 1.0;
		EXPECT_TRUE(Child.TryGetNumber(Number));
		EXPECT_EQ(0.0, Number) << ToUtf8(Child.Where());
	}
}

TEST(JsonDocumentTest, MembersKeepTheirOrder)
{
	const FJsonDocument Document = ParseGood(TEXT(R"({"z": 1, "a": 2, "m": 3})"));
	std::string Keys;
	for (const FJsonNode Member : Document.GetRoot())
	{
		Keys += ToUtf8(Member.GetKey());
	}
	EXPECT_EQ("zam", Keys);
}

TEST(JsonDocumentTest, KeysDistinguishCase)
{
	const FJsonDocument Document = ParseGood(TEXT(R"({"Key": 1, "key": 2})"));
	int32 Value = 0;
	EXPECT_TRUE(Document.GetRoot().Find(TEXT("key")).TryGetInteger(Value));
	EXPECT_EQ(2, Value);
	EXPECT_FALSE(Document.GetRoot().Find(TEXT("KEY")).IsValid());
}

TEST(JsonDocumentTest, EveryValueKnowsItsPlace)
{
	const FJsonDocument Document = ParseGood(TEXT("{\n\t\"a\": 1,\n\t\"list\": [ true,\n\"\u00e4\u00f6\", null ]\n}"));
	const FJsonNode Root = Document.GetRoot();
	EXPECT_EQ("Test.json:1:1", ToUtf8(Root.Where()));
	EXPECT_EQ("Test.json:2:7", ToUtf8(Root.Find(TEXT("a")).Where()));
	EXPECT_EQ("Test.json:3:10", ToUtf8(Root.Find(TEXT("list")).Where()));
	EXPECT_EQ("Test.json:3:12", ToUtf8(Root.Find(TEXT("list")).At(0).Where()));
	EXPECT_EQ("Test.json:4:1", ToUtf8(Root.Find(TEXT("list")).At(1).Where()));
	// The two letters before count as one column each, whatever their length in bytes.
	EXPECT_EQ("Test.json:4:7", ToUtf8(Root.Find(TEXT("list")).At(2).Where()));
}

TEST(JsonDocumentTest, EscapesAndOtherPlanesAreDecoded)
{
	const FJsonDocument Document = ParseGood(TEXT(R"(["\"\\\/\b\f\n\r\t\u00e9\ud83d\ude00"])"));
	EXPECT_EQ("\"\\/\b\f\n\r\t\xC3\xA9\xF0\x9F\x98\x80", ToUtf8(Document.GetRoot().At(0).GetString()));
}

TEST(JsonDocumentTest, AByteOrderMarkIsSkipped)
{
	const std::string Text = "\xEF\xBB\xBF[1]";
	FJsonDocument Document;
	ASSERT_TRUE(Document.Parse(Text.data(), int64(Text.size()), TEXT("Test.json")));
	EXPECT_EQ(2, Document.GetRoot().At(0).GetColumn());
}

TEST(JsonDocumentTest, AnAbsentMemberReadsAsNothing)
{
	const FJsonDocument Document = ParseGood(TEXT("{}"));
	const FJsonNode Absent = Document.GetRoot().Find(TEXT("a")).Find(TEXT("b")).At(3);
	EXPECT_FALSE(Absent);
	EXPECT_EQ(0, Absent.Num());
	EXPECT_TRUE(Absent.IsNull());
	EXPECT_EQ(0, Absent.GetLine());
	EXPECT_EQ(Absent.begin(), Absent.end());
}

TEST(JsonDocumentTest, AMemberNamedTwiceIsReportedAndTheFirstCounts)
{
	FJsonDocument Document;
	EXPECT_TRUE(Document.Parse(FString(TEXT("{\"a\": 1,\n \"b\": 2,\n \"a\": [3, 4],\n \"a\": 5}")), TEXT("Test.json")));
	ASSERT_EQ(2, Document.GetErrors().Num());
	EXPECT_EQ("Test.json:3:7: there is a member \"a\" already, this one is left out", ToUtf8(Document.GetErrors()[0]));
	EXPECT_EQ("Test.json:4:7: there is a member \"a\" already, this one is left out", ToUtf8(Document.GetErrors()[1]));
	EXPECT_EQ(2, Document.GetRoot().Num());
	std::string Keys;
	for (const FJsonNode Member : Document.GetRoot())
	{
		Keys += ToUtf8(Member.GetKey());
	}
	EXPECT_EQ("ab", Keys);
	int32 Value = 0;
	EXPECT_TRUE(Document.GetRoot().Find(TEXT("a")).TryGetInteger(Value));
	EXPECT_EQ(1, Value);
}

TEST(JsonDocumentTest, ErrorsSayWhereAndWhatWasExpected)
{
	EXPECT_EQ("Test.json:1:1: expected a value, found the end of the text", GetError(""));
	EXPECT_EQ("Test.json:2:1: expected ',' or '}' after the member, found '\"'", GetError("{\"a\": 1\n\"b\": 2}"));
	EXPECT_EQ("Test.json:1:8: expected a member name in quotes, or '}', found '}'", GetError("{\"a\":1,}"));
	EXPECT_EQ("Test.json:1:5: expected ':' after the member name, found '1'", GetError("{\"a\"1}"));
	EXPECT_EQ("Test.json:1:4: expected nothing more after the value, found '2'", GetError("[] 2"));
	EXPECT_EQ("Test.json:1:4: expected ',' or ']' after the element, found the end of the text", GetError("[1 "));
}

TEST(JsonDocumentTest, CommentsAreNotAllowed)
{
	EXPECT_EQ("Test.json:1:1: expected a value, found '/'", GetError("// no\n{}"));
	EXPECT_EQ("Test.json:1:2: expected a value, found '/'", GetError("[/* no */ 1]"));
}

TEST(JsonDocumentTest, NumbersOutOfRangeAreRefused)
{
	for (const char* const Text : {"[1e999]", "[-1e309]", "[1.8e308]", "[123e99999999999999999999]", "[0.001e+400]"})
	{
		EXPECT_NE(std::string::npos, GetError(Text).find("the number is too large")) << Text;
	}
}

TEST(JsonDocumentTest, WordsThatJsonDoesNotHaveAreRefused)
{
	GetError("NaN");
	GetError("[Infinity]");
	GetError("{'a': 1}");
	GetError("[01]");
	GetError("[+1]");
}

TEST(JsonDocumentTest, BrokenStringsAreRefused)
{
	EXPECT_NE(std::string::npos, GetError("[\"a").find("the closing quote"));
	EXPECT_NE(std::string::npos, GetError("[\"\\x\"]").find("one of the escapes"));
	for (const char* const Half : {"[\"\\ud800\"]", "[\"\\udc00\"]", "[\"\\udc00\\ud800\"]", "{\"\\uDDDD\": 1}"})
	{
		EXPECT_NE(std::string::npos, GetError(Half).find("surrogate")) << Half;
	}
	EXPECT_NE(std::string::npos, GetError("[\"\xC3(\"]").find("UTF-8"));
	EXPECT_NE(std::string::npos, GetError("[\"a\tb\"]").find("control characters"));
}

TEST(JsonDocumentTest, AZeroByteIsNotTheEnd)
{
	EXPECT_EQ("Test.json:1:3: expected nothing more after the value, found the byte 0x00", GetError(std::string("[]\0[]", 5)));
	GetError(std::string("[1,\0 2]", 7));
}

TEST(JsonDocumentTest, EveryCutTextIsRefused)
{
	const std::string Whole = R"({"a": [1, -2.5e3, "x\u00e9"], "b": {"c": null, "d": true}})";
	for (SIZE_T Length = 0; Length < Whole.size(); ++Length)
	{
		FJsonDocument Document;
		EXPECT_FALSE(Document.Parse(Whole.data(), int64(Length), TEXT("Test.json"))) << Length;
		EXPECT_EQ(1, Document.GetErrors().Num());
	}
}

TEST(JsonDocumentTest, DepthIsLimitedAndCostsNoStack)
{
	FJsonLimits Limits;
	Limits.MaxDepth = 3;
	EXPECT_EQ("Test.json:1:4: arrays and objects are nested more than 3 deep", GetError("[[[[]]]]", Limits));
	GetError(std::string(1000000, '['));
	std::string Objects;
	for (int32 Level = 0; Level < 100000; ++Level)
	{
		Objects += "{\"a\":";
	}
	GetError(Objects);

	Limits.MaxDepth = 1000000;
	const std::string Deep = std::string(100000, '[') + std::string(100000, ']');
	FJsonDocument Document;
	EXPECT_TRUE(Document.Parse(Deep.data(), int64(Deep.size()), TEXT("Test.json"), Limits));
}

TEST(JsonDocumentTest, SizeAndNumberOfValuesAreLimited)
{
	FJsonLimits Limits;
	Limits.MaxNodes = 3;
	EXPECT_EQ("Test.json:1:7: the text has more than 3 values", GetError("[1, 2,3]", Limits));
	Limits = FJsonLimits();
	Limits.MaxBytes = 4;
	EXPECT_EQ("Test.json: the text has 5 bytes, at most 4 are accepted", GetError("[1,2]", Limits));
}

TEST(JsonDocumentTest, FilesAreRead)
{
	const FTemporaryFolder Folder;
	const FString File = Folder.Write(TEXT("A.json"), "{\"a\": \"b\"}");
	FJsonDocument Document;
	ASSERT_TRUE(Document.LoadFile(File));
	EXPECT_EQ("b", ToUtf8(Document.GetRoot().Find(TEXT("a")).GetString()));
	EXPECT_EQ(ToUtf8(File + TEXT(":1:7")), ToUtf8(Document.GetRoot().Find(TEXT("a")).Where()));
}

TEST(JsonDocumentTest, AMissingFileIsAnErrorThatNamesIt)
{
	FJsonDocument Document;
	EXPECT_FALSE(Document.LoadFile(TEXT("/no/such/file.json")));
	ASSERT_EQ(1, Document.GetErrors().Num());
	EXPECT_EQ("/no/such/file.json: No such file or directory", ToUtf8(Document.GetErrors()[0]));
}

TEST(JsonDocumentTest, AFailureLeavesNothingOfTheTextBefore)
{
	FJsonDocument Document = ParseGood(TEXT("[1]"));
	EXPECT_FALSE(Document.Parse(FString(TEXT("[")), TEXT("Test.json")));
	EXPECT_FALSE(Document.GetRoot().IsValid());
}
