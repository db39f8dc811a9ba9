#include "Containers/UnrealString.h"

#include "Containers/Map.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string Show(const TArray<FString>& Parts)
	{
		std::string Result;
		for (const FString& Part : Parts)
		{
			Result += "[" + ToUtf8(Part) + "]";
		}
		return Result;
	}
}

TEST(StringTest, AnEmptyStringIsATerminatedText)
{
	const FString Empty;
	EXPECT_TRUE(Empty.IsEmpty());
	EXPECT_EQ(0, Empty.Len());
	EXPECT_EQ(u'\0', **Empty);
	EXPECT_EQ(0u, Empty.GetAllocatedSize());
	EXPECT_TRUE(FString(static_cast<const TCHAR*>(nullptr)).IsEmpty());
	EXPECT_TRUE(FString(TEXT("")).IsEmpty());
}

TEST(StringTest, EqualityAndOrderIgnoreTheCaseOfAsciiLetters)
{
	EXPECT_TRUE(FString(TEXT("Hello")) == FString(TEXT("hELLO")));
	EXPECT_TRUE(FString(TEXT("Hello")) == TEXT("HELLO"));
	EXPECT_TRUE(TEXT("HELLO") == FString(TEXT("Hello")));
	EXPECT_FALSE(FString(TEXT("Hello")) != TEXT("HELLO"));
	EXPECT_TRUE(FString(TEXT("abc")) < FString(TEXT("ABD")));
	EXPECT_FALSE(FString(TEXT("ABC")) < FString(TEXT("abc")));
	EXPECT_TRUE(FString(TEXT("ABC")) <= TEXT("abc"));
	EXPECT_TRUE(FString(TEXT("b")) > TEXT("A"));
}

TEST(StringTest, OtherLettersCompareAsTheyAre)
{
	EXPECT_FALSE(FString(TEXT("\u00c4")) == FString(TEXT("\u00e4")));
	EXPECT_FALSE(FString(TEXT("\u00c4")).Equals(TEXT("\u00e4"), ESearchCase::IgnoreCase));
	EXPECT_NE(0, FString(TEXT("\u00c4")).Compare(TEXT("\u00e4"), ESearchCase::IgnoreCase));
	// Letters and signs that differ in the bit by which ASCII letters do.
	EXPECT_FALSE(FString(TEXT("@")) == FString(TEXT("`")));
	EXPECT_FALSE(FString(TEXT("[")) == FString(TEXT("{")));
	EXPECT_FALSE(FString(TEXT("\u0141\u0142\u0143\u0144")) == FString(TEXT("\u0161\u0162\u0163\u0164")));
	EXPECT_FALSE(FString(TEXT("\u8041aaa")) == FString(TEXT("\u8061aaa")));
}

TEST(StringTest, CompareAndEqualsCountTheCaseUnlessToldOtherwise)
{
	const FString Text = TEXT("Abc");
	EXPECT_NE(0, Text.Compare(TEXT("abc")));
	EXPECT_EQ(0, Text.Compare(TEXT("abc"), ESearchCase::IgnoreCase));
	EXPECT_FALSE(Text.Equals(TEXT("abc")));
	EXPECT_TRUE(Text.Equals(TEXT("abc"), ESearchCase::IgnoreCase));
	EXPECT_LT(FString(TEXT("a")).Compare(TEXT("b")), 0);
	EXPECT_GT(FString(TEXT("b")).Compare(TEXT("a")), 0);
}

TEST(StringTest, AnEmptyStringComesBeforeEveryOther)
{
	EXPECT_TRUE(FString() < FString(TEXT(" ")));
	EXPECT_LT(FString().Compare(TEXT("a")), 0);
	EXPECT_TRUE(FString(TEXT("ab")) < FString(TEXT("abc")));
}

TEST(StringTest, CaseInsensitiveOrderPutsSignsBetweenAsLowerCaseDoes)
{
	EXPECT_TRUE(FString(TEXT("_")) < FString(TEXT("A")));
	EXPECT_GT(FString(TEXT("_")).Compare(TEXT("A")), 0);
}

TEST(StringTest, TheHashIgnoresTheCaseToo)
{
	EXPECT_EQ(GetTypeHash(FString(TEXT("A longer Text"))), GetTypeHash(FString(TEXT("a LONGER tEXT"))));
	EXPECT_NE(GetTypeHash(FString(TEXT("abcd"))), GetTypeHash(FString(TEXT("abce"))));
	EXPECT_EQ(GetTypeHash(FString(TEXT("View"))), GetTypeHash(TEXTVIEW("view")));
	TMap<FString, int32> Map;
	Map.Add(TEXT("Key"), 1);
	EXPECT_TRUE(Map.Contains(TEXT("KEY")));
}

TEST(StringTest, EqualityHoldsAtEveryLength)
{
	FString Upper;
	FString Lower;
	for (int32 Len = 0; Len < 40; ++Len)
	{
		EXPECT_TRUE(Upper == Lower);
		EXPECT_EQ(GetTypeHash(Upper), GetTypeHash(Lower));
		EXPECT_FALSE(Upper + TEXT("x") == Lower + TEXT("y"));
		Upper.AppendChar((TCHAR)(u'A' + Len % 26));
		Lower.AppendChar((TCHAR)(u'a' + Len % 26));
	}
}

TEST(StringTest, SplitCutsAtTheFirstOccurrence)
{
	FString Left;
	FString Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ("a", ToUtf8(Left));
	EXPECT_EQ("b=c", ToUtf8(Right));
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right, ESearchCase::CaseSensitive, ESearchDir::FromEnd));
	EXPECT_EQ("a=b", ToUtf8(Left));
	EXPECT_EQ("c", ToUtf8(Right));
}

TEST(StringTest, SplitLeavesItsOutputsWhenTheSeparatorIsAbsent)
{
	FString Left = TEXT("left");
	FString Right = TEXT("right");
	EXPECT_FALSE(FString(TEXT("abc")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ("left", ToUtf8(Left));
	EXPECT_EQ("right", ToUtf8(Right));
}

TEST(StringTest, SplitTakesNullOutputsAndItself)
{
	FString Text = TEXT("KeyXValue");
	FString Right;
	EXPECT_TRUE(Text.Split(TEXT("x"), nullptr, &Right));
	EXPECT_EQ("Value", ToUtf8(Right));
	EXPECT_TRUE(Text.Split(TEXT("x"), &Text, nullptr));
	EXPECT_EQ("Key", ToUtf8(Text));
}

TEST(StringTest, ContainsIgnoresTheCaseUnlessToldOtherwise)
{
	const FString Text = TEXT("Living Room");
	EXPECT_TRUE(Text.Contains(TEXT("ROOM")));
	EXPECT_FALSE(Text.Contains(TEXT("ROOM"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.Contains(FString(TEXT("living"))));
	EXPECT_FALSE(Text.Contains(TEXT("kitchen")));
}

TEST(StringTest, AnEmptySubstringIsContainedInEveryString)
{
	EXPECT_TRUE(FString(TEXT("a")).Contains(TEXT("")));
	EXPECT_TRUE(FString().Contains(TEXT("")));
	EXPECT_FALSE(FString().Contains(TEXT("a")));
}

TEST(StringTest, FindGoesFromEitherEnd)
{
	const FString Text = TEXT("abcABC");
	EXPECT_EQ(1, Text.Find(TEXT("b")));
	EXPECT_EQ(4, Text.Find(TEXT("B"), ESearchCase::CaseSensitive));
	EXPECT_EQ(4, Text.Find(TEXT("b"), ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ(4, Text.Find(TEXT("b"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 2));
	EXPECT_EQ(1, Text.Find(TEXT("b"), ESearchCase::IgnoreCase, ESearchDir::FromEnd, 4));
	EXPECT_EQ(INDEX_NONE, Text.Find(TEXT("x")));
	EXPECT_EQ(INDEX_NONE, Text.Find(TEXT("abcabcd")));
}

TEST(StringTest, PartsAreClampedToTheText)
{
	const FString Text = TEXT("abcdef");
	EXPECT_EQ("abc", ToUtf8(Text.Left(3)));
	EXPECT_EQ("abcdef", ToUtf8(Text.Left(99)));
	EXPECT_EQ("", ToUtf8(Text.Left(-1)));
	EXPECT_EQ("ef", ToUtf8(Text.Right(2)));
	EXPECT_EQ("abcd", ToUtf8(Text.LeftChop(2)));
	EXPECT_EQ("cdef", ToUtf8(Text.RightChop(2)));
	EXPECT_EQ("cd", ToUtf8(Text.Mid(2, 2)));
	EXPECT_EQ("cdef", ToUtf8(Text.Mid(2)));
	EXPECT_EQ("", ToUtf8(Text.Mid(9)));
}

TEST(StringTest, InlineFormsChangeTheStringItself)
{
	FString Text = TEXT("abcdef");
	Text.LeftInline(5);
	Text.RightChopInline(1);
	Text.MidInline(1, 2);
	EXPECT_EQ("cd", ToUtf8(Text));
	Text.RemoveAt(0);
	Text.InsertAt(0, TEXT("xy"));
	Text.InsertAt(3, u'!');
	EXPECT_EQ("xyd!", ToUtf8(Text));
	Text.LeftInline(0);
	EXPECT_TRUE(Text.IsEmpty());
}

TEST(StringTest, AStringMayBeAppendedToItself)
{
	FString Text = TEXT("ab");
	for (int32 Round = 0; Round < 5; ++Round)
	{
		Text += Text;
	}
	EXPECT_EQ(64, Text.Len());
	Text = TEXT("xyz");
	Text.Append(*Text + 1);
	EXPECT_EQ("xyzyz", ToUtf8(Text));
	Text = *Text + 3;
	EXPECT_EQ("yz", ToUtf8(Text));
}

TEST(StringTest, TrimsWhitespaceAndQuotes)
{
	EXPECT_EQ("a b", ToUtf8(FString(TEXT(" \t a b\r\n ")).TrimStartAndEnd()));
	EXPECT_EQ("a ", ToUtf8(FString(TEXT(" a ")).TrimStart()));
	EXPECT_EQ(" a", ToUtf8(FString(TEXT(" a ")).TrimEnd()));
	EXPECT_EQ("", ToUtf8(FString(TEXT(" \u00a0\u2003")).TrimStartAndEnd()));
	bool bRemoved = false;
	EXPECT_EQ("a", ToUtf8(FString(TEXT("\"a\"")).TrimQuotes(&bRemoved)));
	EXPECT_TRUE(bRemoved);
}

TEST(StringTest, ReplaceIgnoresTheCaseUnlessToldOtherwise)
{
	EXPECT_EQ("x-x-", ToUtf8(FString(TEXT("a-A-")).Replace(TEXT("a"), TEXT("x"))));
	EXPECT_EQ("x-A-", ToUtf8(FString(TEXT("a-A-")).Replace(TEXT("a"), TEXT("x"), ESearchCase::CaseSensitive)));
	FString Text = TEXT("aaa");
	EXPECT_EQ(1, Text.ReplaceInline(TEXT("aa"), TEXT("aab")));
	EXPECT_EQ("aaba", ToUtf8(Text));
	EXPECT_EQ(0, Text.ReplaceInline(TEXT(""), TEXT("z")));
	Text.ReplaceCharInline(u'A', u'o');
	EXPECT_EQ("oobo", ToUtf8(Text));
}

TEST(StringTest, ParseIntoArrayCutsAtDelimiters)
{
	TArray<FString> Parts;
	EXPECT_EQ(3, FString(TEXT("a,,b,c")).ParseIntoArray(Parts, TEXT(",")));
	EXPECT_EQ("[a][b][c]", Show(Parts));
	EXPECT_EQ(5, FString(TEXT("a,,b,c,")).ParseIntoArray(Parts, TEXT(","), false));
	EXPECT_EQ("[a][][b][c][]", Show(Parts));
	EXPECT_EQ(0, FString().ParseIntoArray(Parts, TEXT(","), false));
	EXPECT_EQ(2, FString(TEXT(" a \t b ")).ParseIntoArrayWS(Parts));
	EXPECT_EQ("[a][b]", Show(Parts));
	EXPECT_EQ(4, FString(TEXT("a\r\nb\n\nc")).ParseIntoArrayLines(Parts, false));
	EXPECT_EQ("[a][b][][c]", Show(Parts));
}

TEST(StringTest, ToUpperAndToLowerKnowAllLetters)
{
	EXPECT_EQ("\xC3\x84\x42\xD0\x96", ToUtf8(FString(TEXT("\u00e4b\u0436")).ToUpper()));
	EXPECT_EQ("\xC3\xA4\x62\xD0\xB6", ToUtf8(FString(TEXT("\u00c4B\u0416")).ToLower()));
	// Deseret letters lie beyond the first plane.
	EXPECT_EQ(FString(TEXT("\U00010428")).ToUpper().Compare(TEXT("\U00010400")), 0);
}

TEST(StringTest, StartsAndEndsIgnoringTheCase)
{
	const FString Text = TEXT("Name_Suffix");
	EXPECT_TRUE(Text.StartsWith(TEXT("name")));
	EXPECT_FALSE(Text.StartsWith(TEXT("name"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT("SUFFIX")));
	EXPECT_FALSE(Text.EndsWith(TEXT("a longer text than that")));
	FString Changed = Text;
	EXPECT_TRUE(Changed.RemoveFromStart(TEXT("name_")));
	EXPECT_TRUE(Changed.RemoveFromEnd(TEXT("fix")));
	EXPECT_FALSE(Changed.RemoveFromEnd(TEXT("fix")));
	EXPECT_EQ("Suf", ToUtf8(Changed));
}

TEST(StringTest, WildcardsMatchTheWholeText)
{
	const FString Text = TEXT("Unit_012.png");
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("unit_*.png")));
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("Unit_???.*")));
	EXPECT_TRUE(Text.MatchesWildcard(TEXT("*")));
	EXPECT_FALSE(Text.MatchesWildcard(TEXT("Unit_??.png")));
	EXPECT_FALSE(Text.MatchesWildcard(TEXT("Unit")));
	EXPECT_TRUE(FString(TEXT("aXbXc")).MatchesWildcard(TEXT("a*X*c")));
}

TEST(StringTest, NumbersAsText)
{
	EXPECT_EQ("-2147483648", ToUtf8(FString::FromInt(MIN_int32)));
	EXPECT_EQ("0", ToUtf8(FString::FromInt(0)));
	EXPECT_EQ("1.0", ToUtf8(FString::SanitizeFloat(1.0)));
	EXPECT_EQ("1.25", ToUtf8(FString::SanitizeFloat(1.25)));
	EXPECT_EQ("3", ToUtf8(FString::SanitizeFloat(3.0, 0)));
	EXPECT_EQ("0.0", ToUtf8(FString::SanitizeFloat(-0.0)));
	EXPECT_EQ("1,234,567", ToUtf8(FString::FormatAsNumber(1234567)));
	EXPECT_EQ("-123", ToUtf8(FString::FormatAsNumber(-123)));
	EXPECT_EQ("18446744073709551615", ToUtf8(LexToString(MAX_uint64)));
	EXPECT_EQ("true", ToUtf8(LexToString(true)));
}

TEST(StringTest, TextAsNumbers)
{
	EXPECT_EQ(42, FCString::Atoi(TEXT("42abc")));
	EXPECT_EQ(-7, FCString::Atoi(TEXT(" -7")));
	EXPECT_DOUBLE_EQ(2.5, FCString::Atod(TEXT("2.5")));
	EXPECT_TRUE(FString(TEXT("-1.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.5.2")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("-")).IsNumeric());
	EXPECT_FALSE(FString().IsNumeric());
	EXPECT_TRUE(FString(TEXT("Yes")).ToBool());
	EXPECT_TRUE(FString(TEXT("2")).ToBool());
	EXPECT_FALSE(FString(TEXT("off")).ToBool());
	int32 Value = 5;
	EXPECT_FALSE(LexTryParseString(Value, TEXT("x")));
	EXPECT_TRUE(LexTryParseString(Value, TEXT("12")));
	EXPECT_EQ(12, Value);
}

TEST(StringTest, JoinsAndPaths)
{
	EXPECT_EQ("a, b", ToUtf8(FString::Join(TArray<FString>{ TEXT("a"), TEXT("b") }, TEXT(", "))));
	EXPECT_EQ("1-2", ToUtf8(FString::JoinBy(TArray<int32>{ 1, 2 }, TEXT("-"), [](int32 Value) { return FString::FromInt(Value); })));
	EXPECT_EQ("a/b", ToUtf8(FString(TEXT("a")) / TEXT("b")));
	EXPECT_EQ("a/b", ToUtf8(FString(TEXT("a/")) / TEXT("/b")));
	EXPECT_EQ("b", ToUtf8(FString() / TEXT("b")));
}

TEST(StringTest, EscapesAndBack)
{
	const FString Text = TEXT("a\"b\\c\nd\te");
	const FString Escaped = Text.ReplaceCharWithEscapedChar();
	EXPECT_EQ("a\\\"b\\\\c\\nd\\te", ToUtf8(Escaped));
	EXPECT_TRUE(Escaped.ReplaceEscapedCharWithChar().Equals(Text));
	EXPECT_EQ("a   b", ToUtf8(FString(TEXT("a\tb")).ConvertTabsToSpaces(4)));
}

TEST(StringTest, ConcatenationMovesWhatItMay)
{
	FString Long = FString::ChrN(100, u'x');
	Long.Reserve(300);
	const TCHAR* Data = *Long;
	const FString Result = MoveTemp(Long) + TEXT("end") + FString(TEXT("!"));
	EXPECT_EQ(Data, *Result);
	EXPECT_EQ(104, Result.Len());
}

TEST(StringDeathTest, AnIndexOutOfRangeHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	const FString Text = TEXT("ab");
	EXPECT_DEATH((void)Text[2], "Array index out of bounds: 2 into an array of size 2");
}
