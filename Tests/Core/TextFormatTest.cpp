#include "Internationalization/Text.h"

#include "CoreMinimal.h"
#include "Misc/ScopeExit.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	template <typename... ArgTypes>
	std::string Format(const TCHAR* Pattern, ArgTypes&&... Args)
	{
		return ToUtf8(FText::Format(FTextFormat::FromString(Pattern), Forward<ArgTypes>(Args)...).ToString());
	}
}

TEST(TextFormatTest, PutsArgumentsIntoTheirPlaces)
{
	EXPECT_EQ("b then a", Format(TEXT("{1} then {0}"), INVTEXT("a"), INVTEXT("b")));
	EXPECT_EQ("aa", Format(TEXT("{0}{0}"), INVTEXT("a")));
	EXPECT_EQ("1,000 / 2.5", Format(TEXT("{0} / {1}"), 1000, 2.5));
}

TEST(TextFormatTest, NamesAreFoundWithoutRegardToCase)
{
	FFormatNamedArguments Arguments;
	Arguments.Add(TEXT("Name"), INVTEXT("Sofa"));
	Arguments.Add(TEXT("Count"), 3);
	EXPECT_EQ("3 x Sofa", Format(TEXT("{count} x {Name}"), Arguments));
	EXPECT_EQ("3 x Sofa", ToUtf8(FText::FormatNamed(INVTEXT("{Count} x {Name}"), TEXT("Name"), INVTEXT("Sofa"), TEXT("Count"), 3).ToString()));
}

TEST(TextFormatTest, WhatNamesNoArgumentStays)
{
	EXPECT_EQ("{1} {Name} {} {", Format(TEXT("{1} {Name} {} {"), INVTEXT("a")));
	EXPECT_EQ("a } {-1}", Format(TEXT("{0} } {-1}"), INVTEXT("a")));
	EXPECT_EQ("{{x", Format(TEXT("{{{0}"), INVTEXT("x")));
}

TEST(TextFormatTest, ABacktickTakesTheMeaningAway)
{
	EXPECT_EQ("{0} ` a", Format(TEXT("`{0} `` {0}"), INVTEXT("a")));
}

TEST(TextFormatTest, ArgumentsAreNotFormattedAgain)
{
	EXPECT_EQ("{1}", Format(TEXT("{0}"), INVTEXT("{1}"), INVTEXT("b")));
}

TEST(TextFormatTest, ChoosesPluralForms)
{
	const TCHAR* Pattern = TEXT("{0} {0}|plural(one=room,other=rooms)");
	EXPECT_EQ("1 room", Format(Pattern, 1));
	EXPECT_EQ("2 rooms", Format(Pattern, 2));
	EXPECT_EQ("0 rooms", Format(Pattern, 0));
	EXPECT_EQ("2nd", Format(TEXT("{0}{0}|ordinal(one=st,two=nd,few=rd,other=th)"), 2));
	EXPECT_EQ("11th", Format(TEXT("{0}{0}|ordinal(one=st,two=nd,few=rd,other=th)"), 11));
	EXPECT_EQ("one, (two)", Format(TEXT("{0}|plural(one=\"one, (two)\",other=more)"), 1));
	EXPECT_EQ("a 5 b", Format(TEXT("{0}|plural(one=x,other=a {0} b)"), 5));
}

TEST(TextFormatTest, PluralFormsAreThoseOfTheCulture)
{
	ON_SCOPE_EXIT
	{
		FInternationalization::Get().SetCurrentCulture(TEXT("en"));
	};
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("pl")));
	const TCHAR* Pattern = TEXT("{0}|plural(one=pok\u00f3j,few=pokoje,many=pokoi,other=pokoju)");
	EXPECT_EQ("pokoje", Format(Pattern, 3));
	EXPECT_EQ("pokoi", Format(Pattern, 5));
}

TEST(TextFormatTest, ChoosesByGender)
{
	EXPECT_EQ("la", Format(TEXT("{0}|gender(le,la)"), ETextGender::Feminine));
	EXPECT_EQ("le", Format(TEXT("{0}|gender(le,la)"), ETextGender::Masculine));
}

TEST(TextFormatTest, AModifierThatDoesNotFitStays)
{
	EXPECT_EQ("{0}|plural(one=a,other=b)", Format(TEXT("{0}|plural(one=a,other=b)"), INVTEXT("text")));
	EXPECT_EQ("a|nothing", Format(TEXT("{0}|nothing"), INVTEXT("a")));
}

TEST(TextFormatTest, ListsTheNamesInAPattern)
{
	TArray<FString> Names;
	FTextFormat::FromString(TEXT("{a} {b}|plural(one=x) `{c} {A}")).GetFormatArgumentNames(Names);
	EXPECT_EQ((TArray<FString>{ TEXT("a"), TEXT("b") }), Names);
}

TEST(TextFormatTest, JoinsTexts)
{
	EXPECT_EQ("a, b", ToUtf8(FText::Join(INVTEXT(", "), { INVTEXT("a"), INVTEXT("b") }).ToString()));
}
