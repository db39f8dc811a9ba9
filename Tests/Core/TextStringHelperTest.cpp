#include "Internationalization/TextStringHelper.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string Write(const FText& Text, bool bRequiresQuotes = false)
	{
		FString Buffer;
		FTextStringHelper::WriteToBuffer(Buffer, Text, bRequiresQuotes);
		return ToUtf8(Buffer);
	}

	FText Read(const TCHAR* Buffer)
	{
		FText Text = INVTEXT("(unread)");
		FTextStringHelper::ReadFromBuffer(Buffer, Text);
		return Text;
	}
}

TEST(TextStringHelperTest, WritesEachKindOfText)
{
	EXPECT_EQ("NSLOCTEXT(\"Ns\", \"Key\", \"Say \\\"hi\\\"\")", Write(NSLOCTEXT("Ns", "Key", "Say \"hi\"")));
	EXPECT_EQ("INVTEXT(\"v1\")", Write(INVTEXT("v1")));
	EXPECT_EQ("plain", Write(FText::FromString(TEXT("plain"))));
	EXPECT_EQ("\"plain\"", Write(FText::FromString(TEXT("plain")), true));
	EXPECT_EQ("", Write(FText()));
}

TEST(TextStringHelperTest, ReadsWhatItWrote)
{
	for (const FText& Text : { NSLOCTEXT("Ns", "Key", "a\n\"b\"\\"), INVTEXT("x, (y)"), FText::FromString(TEXT("plain")), FText() })
	{
		FString Buffer;
		FTextStringHelper::WriteToBuffer(Buffer, Text, true);
		Buffer += TEXT(" rest");
		FText Back = INVTEXT("(unread)");
		const TCHAR* End = FTextStringHelper::ReadFromBuffer(*Buffer, Back, nullptr, nullptr, true);
		ASSERT_NE(nullptr, End);
		EXPECT_EQ(" rest", ToUtf8(End));
		EXPECT_EQ(ToUtf8(Text.ToString()), ToUtf8(Back.ToString()));
		EXPECT_EQ(Text.IsCultureInvariant(), Back.IsCultureInvariant());
		EXPECT_EQ(FTextInspector::GetKey(Text), FTextInspector::GetKey(Back));
		EXPECT_EQ(FTextInspector::GetNamespace(Text), FTextInspector::GetNamespace(Back));
	}
}

TEST(TextStringHelperTest, ReadsMacrosWithSpacesAndTextMacro)
{
	EXPECT_TRUE(Read(TEXT("NSLOCTEXT( \"Ns\" ,TEXT(\"Key\"), \"Source\" )")).IdenticalTo(NSLOCTEXT("Ns", "Key", "Source")));
	FText Text;
	FTextStringHelper::ReadFromBuffer(TEXT("LOCTEXT(\"Key\", \"Source\")"), Text, TEXT("Ns"));
	EXPECT_TRUE(Text.IdenticalTo(NSLOCTEXT("Ns", "Key", "Source")));
}

TEST(TextStringHelperTest, AnythingElseIsThePlainText)
{
	EXPECT_EQ("just words", ToUtf8(Read(TEXT("just words")).ToString()));
	EXPECT_EQ("quoted", ToUtf8(Read(TEXT("\"quoted\"")).ToString()));
	EXPECT_EQ("INVTEXT without", ToUtf8(Read(TEXT("INVTEXT without")).ToString()));
	EXPECT_TRUE(FTextStringHelper::IsComplexText(TEXT(" INVTEXT (\"a\")")));
	EXPECT_FALSE(FTextStringHelper::IsComplexText(TEXT("INVTEXT without")));
}

TEST(TextStringHelperTest, AMalformedBufferChangesNothing)
{
	for (const TCHAR* Buffer : { TEXT("NSLOCTEXT(\"a\", \"b\")"), TEXT("INVTEXT(\"a"), TEXT("INVTEXT(\"a\\"), TEXT("\"open"), TEXT("INVTEXT(a)"), TEXT("NSLOCTEXT(") })
	{
		EXPECT_EQ("(unread)", ToUtf8(Read(Buffer).ToString())) << ToUtf8(Buffer);
	}
	FText Text;
	EXPECT_EQ(nullptr, FTextStringHelper::ReadFromBuffer(TEXT("no quotes"), Text, nullptr, nullptr, true));
}
