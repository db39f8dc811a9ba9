#include "UObject/NameTypes.h"

#include "Containers/Map.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <string>
#include <thread>
#include <vector>

static_assert(sizeof(FName) == 12, "A name is two places in the table and a number");

TEST(NameTest, TheDefaultIsNone)
{
	EXPECT_TRUE(FName().IsNone());
	EXPECT_EQ(FName(), NAME_None);
	EXPECT_EQ("None", ToUtf8(FName().ToString()));
	EXPECT_TRUE(FName().IsValid());
}

TEST(NameTest, EmptyTextAndNoneInAnyCaseAreNone)
{
	EXPECT_TRUE(FName(TEXT("")).IsNone());
	EXPECT_TRUE(FName(FString()).IsNone());
	EXPECT_TRUE(FName(TEXT("None")).IsNone());
	EXPECT_TRUE(FName(TEXT("nONE")).IsNone());
	EXPECT_EQ("None", ToUtf8(FName(TEXT("NONE")).ToString()));
	EXPECT_FALSE(FName(TEXT("None_1")).IsNone());
}

TEST(NameTest, ComparesWithoutRegardToCase)
{
	EXPECT_EQ(FName(TEXT("Sofa")), FName(TEXT("SOFA")));
	EXPECT_EQ(GetTypeHash(FName(TEXT("Sofa"))), GetTypeHash(FName(TEXT("sofa"))));
	EXPECT_NE(FName(TEXT("Sofa")), FName(TEXT("Sofas")));
	EXPECT_TRUE(FName(TEXT("Sofa")) == TEXT("sOFA"));
	EXPECT_TRUE(FName(TEXT("Sofa")) != TEXT("Table"));
}

TEST(NameTest, ShowsEachSpellingAsItWasWritten)
{
	const FName First(TEXT("DisplayCase"));
	const FName Second(TEXT("DISPLAYcase"));
	EXPECT_EQ("DisplayCase", ToUtf8(First.ToString()));
	EXPECT_EQ("DISPLAYcase", ToUtf8(Second.ToString()));
	EXPECT_EQ(First.GetComparisonIndex(), Second.GetComparisonIndex());
}

TEST(NameTest, ATrailingNumberIsSplitOff)
{
	const FName Name(TEXT("Item_2"));
	EXPECT_EQ("Item", ToUtf8(Name.GetPlainNameString()));
	EXPECT_EQ(3, Name.GetNumber());
	EXPECT_EQ("Item_2", ToUtf8(Name.ToString()));
	EXPECT_EQ(Name, FName(FName(TEXT("item")), NAME_EXTERNAL_TO_INTERNAL(2)));
	EXPECT_NE(Name, FName(TEXT("Item")));
	EXPECT_NE(Name, FName(TEXT("Item_3")));
	EXPECT_EQ("Item_0", ToUtf8(FName(TEXT("Item_0")).ToString()));
	EXPECT_EQ(1, FName(TEXT("Item_0")).GetNumber());
	EXPECT_EQ(6u, Name.GetStringLength());
}

TEST(NameTest, OtherDigitsStayInTheText)
{
	for (const TCHAR* Text : { TEXT("Item_02"), TEXT("Item2"), TEXT("_2"), TEXT("Item_"), TEXT("12"), TEXT("Item_99999999999"), TEXT("Item_2147483648"), TEXT("Item_2a") })
	{
		EXPECT_EQ(NAME_NO_NUMBER_INTERNAL, FName(Text).GetNumber()) << ToUtf8(Text);
		EXPECT_EQ(ToUtf8(Text), ToUtf8(FName(Text).ToString()));
	}
}

TEST(NameTest, FindDoesNotAdd)
{
	EXPECT_TRUE(FName(TEXT("NeverSeenBefore"), FNAME_Find).IsNone());
	EXPECT_TRUE(FName(TEXT("NeverSeenBefore"), FNAME_Find).IsNone());
	const FName Added(TEXT("SeenBefore"));
	EXPECT_EQ(Added, FName(TEXT("SEENbefore"), FNAME_Find));
	EXPECT_EQ("SeenBefore", ToUtf8(FName(TEXT("SEENbefore"), FNAME_Find).ToString()));
}

TEST(NameTest, CompareIsAlphabetical)
{
	EXPECT_LT(FName(TEXT("apple")).Compare(FName(TEXT("Banana"))), 0);
	EXPECT_GT(FName(TEXT("b")).Compare(FName(TEXT("A"))), 0);
	EXPECT_EQ(0, FName(TEXT("a")).Compare(FName(TEXT("A"))));
	EXPECT_LT(FName(TEXT("Item_2")).Compare(FName(TEXT("Item_10"))), 0);
	EXPECT_TRUE(FName(TEXT("apple")).LexicalLess(FName(TEXT("Banana"))));
	EXPECT_FALSE(FName(TEXT("a")).FastLess(FName(TEXT("A"))));
}

TEST(NameTest, LettersBeyondAsciiCompareAsTheyAre)
{
	EXPECT_EQ(FName(TEXT("K\u00fcche")), FName(TEXT("k\u00fcCHE")));
	EXPECT_NE(FName(TEXT("K\u00fcche")), FName(TEXT("K\u00dcche")));
	EXPECT_EQ("K\xC3\xBC" "che", ToUtf8(FName(TEXT("K\u00fcche")).ToString()));
}

TEST(NameTest, EightBitLiteralsMakeTheSameName)
{
	EXPECT_EQ(FName(TEXT("Narrow_1")), FName("Narrow_1"));
}

TEST(NameTest, WritesIntoABuffer)
{
	TCHAR Buffer[NAME_SIZE + 11];
	EXPECT_EQ(6u, FName(TEXT("Item_7")).ToString(Buffer, UE_ARRAY_COUNT(Buffer)));
	EXPECT_EQ("Item_7", ToUtf8(Buffer));
	FString Text = TEXT("<");
	FName(TEXT("Item_7")).AppendString(Text);
	EXPECT_EQ("<Item_7", ToUtf8(Text));
	FName(TEXT("Other")).ToString(Text);
	EXPECT_EQ("Other", ToUtf8(Text));
}

TEST(NameTest, TheTableHoldsManyNames)
{
	TArray<FName> Names;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		Names.Add(FName(*FString::Printf(TEXT("Many%dNames"), Index)));
	}
	for (int32 Index = 0; Index < 100000; Index += 97)
	{
		EXPECT_EQ(Names[Index], FName(*FString::Printf(TEXT("mANY%dnAMES"), Index)));
		EXPECT_EQ("Many" + std::to_string(Index) + "Names", ToUtf8(Names[Index].ToString()));
	}
}

TEST(NameTest, ThreadsAgreeOnNames)
{
	constexpr int32 NumThreads = 8;
	constexpr int32 NumNames = 5000;
	std::vector<TArray<FName>> Names(NumThreads);
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < NumThreads; ++Thread)
	{
		Threads.emplace_back([&Names, Thread]
		{
			for (int32 Index = 0; Index < NumNames; ++Index)
			{
				const int32 Number = Thread % 2 == 0 ? Index : NumNames - 1 - Index;
				Names[Thread].Add(FName(*FString::Printf(TEXT("%s%dT"), Thread % 3 == 0 ? TEXT("thread") : TEXT("Thread"), Number)));
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (int32 Thread = 1; Thread < NumThreads; ++Thread)
	{
		for (int32 Index = 0; Index < NumNames; ++Index)
		{
			const int32 Place = Thread % 2 == 0 ? Index : NumNames - 1 - Index;
			ASSERT_EQ(Names[0][Index], Names[Thread][Place]);
		}
	}
}

TEST(NameTest, ServesAsAKey)
{
	TMap<FName, int32> Map;
	Map.Add(TEXT("Key_1"), 1);
	Map.Add(TEXT("Key_2"), 2);
	Map.Add(TEXT("KEY_1"), 3);
	EXPECT_EQ(2, Map.Num());
	EXPECT_EQ(3, Map.FindRef(TEXT("key_1")));
	Map.KeySort(FNameLexicalLess());
}

TEST(NameTest, TheLongestNameHas1023Characters)
{
	const FString Longest = FString::ChrN(NAME_SIZE - 1, u'x');
	EXPECT_EQ(1023, FName(Longest).ToString().Len());
}

TEST(NameTest, EightBitNamesAreAsLongAsOthers)
{
	const std::string Longest(1023, 'n');
	EXPECT_EQ(FName(Longest.c_str()), FName(*FString::ChrN(1023, 'n')));
	EXPECT_EQ(FName((Longest + "_2147483646").c_str()).GetNumber(), NAME_EXTERNAL_TO_INTERNAL(2147483646));
	EXPECT_TRUE(FName(static_cast<const ANSICHAR*>(nullptr)).IsNone());
}

TEST(NameDeathTest, ALongerEightBitNameHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(FName((std::string(1024, 'n') + "_2147483646").c_str()), "shorter than 1024");
	EXPECT_DEATH(FName(std::string(5000, 'n').c_str()), "shorter than 1024");
}

TEST(NameDeathTest, ALongerNameHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(FName(FString::ChrN(NAME_SIZE, u'x')), "A name must be shorter than 1024 characters");
}
