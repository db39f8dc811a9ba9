#include "Misc/FileHelper.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

using Host::FExpectedLog;
using EEncodingOptions = FFileHelper::EEncodingOptions;

namespace
{
	std::string Load(const FString& File)
	{
		FString Text;
		EXPECT_TRUE(FFileHelper::LoadFileToString(Text, *File));
		return ToUtf8(Text);
	}
}

TEST(FileHelperTest, TextIsReadAsUtf8)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ("Gr\xC3\xBC\xC3\x9F" "e \xF0\x9F\x98\x80", Load(Folder.Write(TEXT("A.txt"), "Gr\xC3\xBC\xC3\x9F" "e \xF0\x9F\x98\x80")));
}

TEST(FileHelperTest, ByteOrderMarksChooseTheEncoding)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ("\xC3\xA4", Load(Folder.Write(TEXT("Utf8.txt"), "\xEF\xBB\xBF\xC3\xA4")));
	EXPECT_EQ("a\xC3\xA4", Load(Folder.Write(TEXT("Low.txt"), "\xFF\xFE" "a\0\xE4\0", 6)));
	EXPECT_EQ("a\xC3\xA4", Load(Folder.Write(TEXT("High.txt"), "\xFE\xFF\0a\0\xE4", 6)));
}

TEST(FileHelperTest, MalformedBytesBecomeReplacementCharacters)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ("a\xEF\xBF\xBD" "b", Load(Folder.Write(TEXT("A.txt"), "a\xFF" "b")));
}

TEST(FileHelperTest, AnEmptyFileIsAnEmptyText)
{
	const FTemporaryFolder Folder;
	EXPECT_EQ("", Load(Folder.Write(TEXT("A.txt"), "")));
}

TEST(FileHelperTest, AMissingFileIsOneWarningAndChangesNothing)
{
	const FExpectedLog Expected(TEXT("/no/such/file: cannot be read: No such file or directory"));
	FString Text = TEXT("before");
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, TEXT("/no/such/file")));
	EXPECT_EQ("before", ToUtf8(Text));
}

TEST(FileHelperTest, AReaderMayAskForSilence)
{
	TArray<uint8> Bytes;
	EXPECT_FALSE(FFileHelper::LoadFileToArray(Bytes, TEXT("/no/such/file"), FILEREAD_Silent));
}

TEST(FileHelperTest, LinesComeWithoutTheirEnds)
{
	const FTemporaryFolder Folder;
	TArray<FString> Lines;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *Folder.Write(TEXT("A.txt"), "one\r\n\ntwo\n")));
	ASSERT_GE(Lines.Num(), 3);
	EXPECT_EQ("one", ToUtf8(Lines[0]));
	EXPECT_EQ("", ToUtf8(Lines[1]));
	EXPECT_EQ("two", ToUtf8(Lines[2]));
}

TEST(FileHelperTest, TextIsWrittenAsAsciiWhereThatSuffices)
{
	const FTemporaryFolder Folder;
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("plain"), *(Folder / TEXT("A.txt"))));
	EXPECT_EQ("plain", Folder.Read(TEXT("A.txt")));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("\u00e4"), *(Folder / TEXT("A.txt"))));
	EXPECT_EQ(std::string("\xFF\xFE\xE4\0", 4), Folder.Read(TEXT("A.txt")));
}

TEST(FileHelperTest, EveryEncodingReadsBack)
{
	const FTemporaryFolder Folder;
	for (const EEncodingOptions Options : {EEncodingOptions::AutoDetect, EEncodingOptions::ForceUnicode, EEncodingOptions::ForceUTF8, EEncodingOptions::ForceUTF8WithoutBOM})
	{
		ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("\u00e4\u4e2d\n"), *(Folder / TEXT("A.txt")), Options));
		EXPECT_EQ("\xC3\xA4\xE4\xB8\xAD\n", Load(Folder / TEXT("A.txt")));
	}
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("\u00e4!"), *(Folder / TEXT("A.txt")), EEncodingOptions::ForceAnsi));
	EXPECT_EQ("?!", Load(Folder / TEXT("A.txt")));
}

TEST(FileHelperTest, WhatCannotBeWrittenIsOneWarning)
{
	const FTemporaryFolder Folder;
	Folder.Write(TEXT("File"), "");
	const FExpectedLog Expected(TEXT("cannot be written"));
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("x"), *(Folder / TEXT("File/A.txt"))));
}
