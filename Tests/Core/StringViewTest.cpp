#include "Containers/StringView.h"

#include "Containers/UnrealString.h"
#include "TestText.h"
#include "gtest/gtest.h"

TEST(StringViewTest, ViewsStringsAndLiterals)
{
	const FString Text = TEXT("Text");
	const FStringView View = Text;
	EXPECT_EQ(*Text, View.GetData());
	EXPECT_EQ(4, View.Len());
	EXPECT_EQ(3, TEXTVIEW("abc").Len());
	EXPECT_EQ(3, (u"abc"_SV).Len());
	EXPECT_TRUE(FStringView().IsEmpty());
}

TEST(StringViewTest, ComparesAsStringsDo)
{
	EXPECT_TRUE(TEXTVIEW("a") == TEXTVIEW("A"));
	EXPECT_TRUE(TEXTVIEW("A") < TEXTVIEW("b"));
	EXPECT_FALSE(TEXTVIEW("a").Equals(TEXTVIEW("A")));
	EXPECT_TRUE(FString(TEXT("abc")) == TEXTVIEW("ABC"));
	EXPECT_TRUE(FAnsiStringView("Ab").Equals("aB", ESearchCase::IgnoreCase));
	EXPECT_FALSE(FAnsiStringView("Ab").Equals("aB"));
}

TEST(StringViewTest, PartsShareTheText)
{
	const FStringView View = TEXTVIEW("  abc  ");
	EXPECT_EQ("abc", ToUtf8(View.TrimStartAndEnd()));
	EXPECT_EQ("ab", ToUtf8(View.Mid(2, 2)));
	EXPECT_EQ("", ToUtf8(View.Mid(50, 2)));
	EXPECT_EQ(View.GetData() + 2, View.TrimStart().GetData());
	FStringView Shorter = View;
	Shorter.RemovePrefix(2);
	Shorter.RemoveSuffix(2);
	EXPECT_EQ("abc", ToUtf8(Shorter));
}

TEST(StringViewTest, FindsPartsAndCharacters)
{
	const FStringView View = TEXTVIEW("a.b.c");
	int32 Index = 0;
	EXPECT_TRUE(View.FindChar(u'.', Index));
	EXPECT_EQ(1, Index);
	EXPECT_TRUE(View.FindLastChar(u'.', Index));
	EXPECT_EQ(3, Index);
	EXPECT_FALSE(View.FindChar(u'x', Index));
	EXPECT_EQ(INDEX_NONE, Index);
	EXPECT_EQ(2, View.Find(TEXTVIEW("b.")));
	EXPECT_EQ(INDEX_NONE, View.Find(TEXTVIEW("b."), 3));
	EXPECT_TRUE(View.StartsWith(TEXTVIEW("a.")));
	EXPECT_TRUE(View.EndsWith(u'c'));
}

TEST(StringViewTest, AViewOfNothingComparesAndHashes)
{
	EXPECT_TRUE(FStringView() == TEXTVIEW(""));
	EXPECT_EQ(GetTypeHash(FStringView()), GetTypeHash(TEXTVIEW("")));
	EXPECT_TRUE(FString(FStringView()).IsEmpty());
}
