#include "Internationalization/Text.h"

#include "CoreMinimal.h"
#include "Misc/ScopeExit.h"
#include "TestText.h"
#include "gtest/gtest.h"

#define LOCTEXT_NAMESPACE "TextTest"

namespace
{
	FText MakeLocalized()
	{
		return LOCTEXT("Greeting", "Hello");
	}
}

TEST(TextTest, AnEmptyTextIsEmpty)
{
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
	EXPECT_TRUE(FText::FromString(FString()).IsEmpty());
	EXPECT_TRUE(FText().IdenticalTo(FText::GetEmpty()));
	EXPECT_TRUE(FText::FromString(TEXT(" \t\n")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(TEXT(" \t\n")).IsEmpty());
	EXPECT_FALSE(FText::FromString(TEXT(" a")).IsEmptyOrWhitespace());
}

TEST(TextTest, ALiteralKnowsItsNamespaceKeyAndSource)
{
	const FText Text = MakeLocalized();
	EXPECT_EQ("Hello", ToUtf8(Text.ToString()));
	EXPECT_EQ("TextTest", ToUtf8(FTextInspector::GetNamespace(Text).GetValue()));
	EXPECT_EQ("Greeting", ToUtf8(FTextInspector::GetKey(Text).GetValue()));
	EXPECT_EQ("Hello", ToUtf8(*FTextInspector::GetSourceString(Text)));
	EXPECT_TRUE(Text.ShouldGatherForLocalization());
	EXPECT_EQ("Other", ToUtf8(FTextInspector::GetNamespace(NSLOCTEXT("Other", "Greeting", "Hello")).GetValue()));
}

TEST(TextTest, TheSameLiteralGivesCopiesOfOneText)
{
	EXPECT_TRUE(MakeLocalized().IdenticalTo(MakeLocalized()));
	EXPECT_TRUE(MakeLocalized().IdenticalTo(NSLOCTEXT("TextTest", "Greeting", "Hello")));
	EXPECT_FALSE(MakeLocalized().IdenticalTo(LOCTEXT("Greeting2", "Hello")));
	EXPECT_FALSE(MakeLocalized().IdenticalTo(LOCTEXT("Greeting", "hello")));
}

TEST(TextTest, InvariantTextsAndStringsAreNotGathered)
{
	const FText Invariant = INVTEXT("v1.2");
	EXPECT_TRUE(Invariant.IsCultureInvariant());
	EXPECT_FALSE(Invariant.ShouldGatherForLocalization());
	EXPECT_FALSE(FTextInspector::GetKey(Invariant).IsSet());
	const FText FromString = FText::FromString(TEXT("typed"));
	EXPECT_TRUE(FromString.IsInitializedFromString());
	EXPECT_FALSE(FromString.IsCultureInvariant());
	EXPECT_FALSE(FromString.ShouldGatherForLocalization());
	EXPECT_EQ("typed", ToUtf8(FText::AsCultureInvariant(FromString).ToString()));
	EXPECT_TRUE(FText::AsCultureInvariant(MakeLocalized()).IsCultureInvariant());
	EXPECT_EQ("x", ToUtf8(FText::AsCultureInvariant(TEXT("x")).ToString()));
	EXPECT_EQ("Item_2", ToUtf8(FText::FromName(TEXT("Item_2")).ToString()));
}

TEST(TextTest, EqualToCountsTheCase)
{
	const FText Upper = FText::FromString(TEXT("ABC"));
	const FText Lower = FText::FromString(TEXT("abc"));
	EXPECT_FALSE(Upper.EqualTo(Lower));
	EXPECT_TRUE(Upper.EqualToCaseIgnored(Lower));
	EXPECT_TRUE(Upper.EqualTo(FText::FromString(TEXT("ABC"))));
	EXPECT_TRUE(Upper.EqualTo(Lower, ETextComparisonLevel::Primary));
	EXPECT_FALSE(Upper.EqualTo(Lower, ETextComparisonLevel::Quinary));
	EXPECT_FALSE(Upper.EqualToCaseIgnored(FText::FromString(TEXT("abd"))));
}

TEST(TextTest, ComparisonGoesByTheRulesOfTheCulture)
{
	const FText Composed = FText::FromString(TEXT("\u00e4"));
	const FText Decomposed = FText::FromString(TEXT("a\u0308"));
	const FText Plain = FText::FromString(TEXT("a"));
	const FText Last = FText::FromString(TEXT("z"));
	EXPECT_TRUE(Composed.EqualTo(Decomposed));
	EXPECT_TRUE(Composed.EqualTo(Plain, ETextComparisonLevel::Primary));
	EXPECT_FALSE(Composed.EqualTo(Plain, ETextComparisonLevel::Secondary));
	EXPECT_TRUE(Composed.EqualToCaseIgnored(FText::FromString(TEXT("\u00c4"))));
	EXPECT_LT(Composed.CompareTo(Last), 0);
	EXPECT_LT(FText::FromString(TEXT("apple")).CompareTo(FText::FromString(TEXT("Banana"))), 0);

	ON_SCOPE_EXIT
	{
		FInternationalization::Get().SetCurrentCulture(TEXT("en"));
	};
	ASSERT_TRUE(FInternationalization::Get().SetCurrentCulture(TEXT("sv-SE")));
	EXPECT_GT(Composed.CompareTo(Last), 0);
}

TEST(TextTest, SortsByTheCulture)
{
	TArray<FText> Texts{ FText::FromString(TEXT("Zimmer")), FText::FromString(TEXT("\u00c4pfel")), FText::FromString(TEXT("bad")) };
	Texts.Sort(FText::FSortPredicate());
	EXPECT_EQ("bad", ToUtf8(Texts[1].ToString()));
	EXPECT_EQ("Zimmer", ToUtf8(Texts[2].ToString()));
}

TEST(TextTest, IdentityIsOfCopiesUnlessToldOtherwise)
{
	const FText First = FText::FromString(TEXT("a"));
	const FText Second = FText::FromString(TEXT("a"));
	EXPECT_TRUE(First.IdenticalTo(FText(First)));
	EXPECT_FALSE(First.IdenticalTo(Second));
	EXPECT_TRUE(First.IdenticalTo(Second, ETextIdenticalModeFlags::LexicalCompareInvariants));
	EXPECT_FALSE(FText::AsNumber(1).IdenticalTo(FText::AsNumber(1)));
	EXPECT_TRUE(FText::AsNumber(1).IdenticalTo(FText::AsNumber(1), ETextIdenticalModeFlags::DeepCompare));
}

TEST(TextTest, NumbersAreWrittenAsTheCultureDoes)
{
	EXPECT_EQ("1,234,567", ToUtf8(FText::AsNumber(1234567).ToString()));
	EXPECT_EQ("-1,234.568", ToUtf8(FText::AsNumber(-1234.5678).ToString()));
	EXPECT_EQ("18,446,744,073,709,551,615", ToUtf8(FText::AsNumber(MAX_uint64).ToString()));
	EXPECT_EQ("0.5", ToUtf8(FText::AsNumber(0.5f).ToString()));
	EXPECT_EQ("1.234,5", ToUtf8(FText::AsNumber(1234.5, nullptr, FInternationalization::Get().GetCulture(TEXT("de-DE"))).ToString()));
	EXPECT_EQ("25%", ToUtf8(FText::AsPercent(0.25).ToString()));
}

TEST(TextTest, NumberOptionsAreFollowed)
{
	FNumberFormattingOptions Options;
	Options.SetMinimumFractionalDigits(2).SetMaximumFractionalDigits(2).SetUseGrouping(false);
	EXPECT_EQ("1234.50", ToUtf8(FText::AsNumber(1234.5, &Options).ToString()));
	EXPECT_EQ("1234.57", ToUtf8(FText::AsNumber(1234.567, &Options).ToString()));
	Options.SetRoundingMode(ToZero).SetAlwaysSign(true);
	EXPECT_EQ("+1234.56", ToUtf8(FText::AsNumber(1234.567, &Options).ToString()));
	Options.SetMinimumIntegralDigits(6);
	EXPECT_EQ("+000007.00", ToUtf8(FText::AsNumber(7, &Options).ToString()));
	EXPECT_EQ("1,000", ToUtf8(FText::AsNumber(1000).ToString()));
	EXPECT_EQ("1000", ToUtf8(FText::AsNumber(1000, &FNumberFormattingOptions::DefaultNoGrouping()).ToString()));
	const FNumberFormattingOptions Halves = FNumberFormattingOptions().SetMaximumFractionalDigits(0);
	EXPECT_EQ("2", ToUtf8(FText::AsNumber(2.5, &Halves).ToString()));
	EXPECT_EQ("4", ToUtf8(FText::AsNumber(3.5, &Halves).ToString()));
}

TEST(TextTest, CaseChangesMayChangeTheLength)
{
	EXPECT_EQ("STRASSE", ToUtf8(FText::FromString(TEXT("stra\u00dfe")).ToUpper().ToString()));
	EXPECT_EQ("abc", ToUtf8(FText::FromString(TEXT("ABC")).ToLower().ToString()));
	EXPECT_EQ("", ToUtf8(FText().ToUpper().ToString()));
	EXPECT_EQ("a b", ToUtf8(FText::TrimPrecedingAndTrailing(FText::FromString(TEXT(" a b "))).ToString()));
}

TEST(TextTest, OnlyKnownCulturesCanBeSet)
{
	EXPECT_FALSE(FInternationalization::Get().SetCurrentCulture(TEXT("qq-QQ")));
	EXPECT_FALSE(FInternationalization::Get().SetCurrentCulture(TEXT("")));
	EXPECT_EQ("en", ToUtf8(FInternationalization::Get().GetCurrentCulture()->GetName()));
	const FCulturePtr Arabic = FInternationalization::Get().GetCulture(TEXT("ar-EG"));
	ASSERT_TRUE(Arabic.IsValid());
	EXPECT_TRUE(Arabic->IsRightToLeft());
	EXPECT_EQ("ar", ToUtf8(Arabic->GetTwoLetterISOLanguageName()));
	EXPECT_EQ("Deutsch", ToUtf8(FInternationalization::Get().GetCulture(TEXT("de"))->GetNativeName()));
}

#undef LOCTEXT_NAMESPACE
