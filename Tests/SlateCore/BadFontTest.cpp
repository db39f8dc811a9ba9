#include "ExpectedLog.h"
#include "FontTestTools.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

using namespace Host;

/** Font files that cannot be used. Each test writes one, and text must go on with the built-in face. */
class BadFontTest : public FFontTest
{
protected:
	virtual void SetUp() override
	{
		const testing::TestInfo* Test = testing::UnitTest::GetInstance()->current_test_info();
		Path = std::filesystem::temp_directory_path() / (std::string("BadFontTest-") + Test->name() + ".ttf");
	}

	virtual void TearDown() override
	{
		std::error_code Ignored;
		std::filesystem::remove_all(Path, Ignored);
	}

	static std::vector<char> ReadGoodFont()
	{
		std::ifstream Stream(TCHAR_TO_UTF8(*GetFontFile(TEXT("Montserrat-Regular.ttf"))), std::ios::binary);
		return std::vector<char>(std::istreambuf_iterator<char>(Stream), {});
	}

	void Write(const std::vector<char>& Bytes) const
	{
		std::ofstream(Path, std::ios::binary).write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
	}

	FString GetPath() const { return FString(UTF8_TO_TCHAR(Path.c_str())); }

	FShapedRunRef ShapeWith(EFontLoadingPolicy Policy = EFontLoadingPolicy::LazyLoad, float Size = 20.0f)
	{
		const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>(TEXT("regular"), GetPath(), EFontHinting::Default, Policy);
		return Services.Shape(Services.GetFont(MakeInfo(Font, Size), 1.0f), TEXT("Text"));
	}

	void ExpectBuiltIn(const FShapedRun& Run)
	{
		const FShapedRunRef Expected = Services.Shape(Services.GetFont(FSlateFontInfo(nullptr, Pixels(20.0f)), 1.0f), TEXT("Text"));
		EXPECT_FLOAT_EQ(Run.GetWidth(), Expected->GetWidth());
		EXPECT_GT(Run.GetWidth(), 20.0f);
	}

	std::filesystem::path Path;
};

TEST_F(BadFontTest, AMissingFileIsReportedByName)
{
	FExpectedLog Expected(TEXT("cannot be opened"));
	ExpectBuiltIn(*ShapeWith());
	EXPECT_TRUE(Expected.GetLastLine().Contains(GetPath()));
}

TEST_F(BadFontTest, ABadFileIsReportedOnce)
{
	FExpectedLog Expected(TEXT("cannot be opened"), 1);
	ShapeWith();
	ShapeWith(EFontLoadingPolicy::LazyLoad, 25.0f);
	ShapeWith();
}

TEST_F(BadFontTest, AFileThatCameLaterIsFoundAfterAFlush)
{
	{
		FExpectedLog Expected(TEXT("cannot be opened"));
		ShapeWith();
	}
	Write(ReadGoodFont());
	Services.Flush();
	EXPECT_FLOAT_EQ(ShapeWith()->GetWidth(), Services.Shape(GetPlain(20.0f), TEXT("Text"))->GetWidth());
}

TEST_F(BadFontTest, AMissingStreamedFileIsReported)
{
	FExpectedLog Expected(TEXT("cannot be opened"));
	ExpectBuiltIn(*ShapeWith(EFontLoadingPolicy::Stream));
}

TEST_F(BadFontTest, AFolderIsNoFont)
{
	std::filesystem::create_directory(Path);
	FExpectedLog Expected(TEXT("cannot be used as a font"));
	ExpectBuiltIn(*ShapeWith());
}

TEST_F(BadFontTest, AnEmptyFileIsNoFont)
{
	Write({});
	FExpectedLog Expected(TEXT("too short"));
	ExpectBuiltIn(*ShapeWith());
}

TEST_F(BadFontTest, ATextFileIsNoFont)
{
	const std::string Words = "This is a text file and not a font, whatever its name says.";
	Write(std::vector<char>(Words.begin(), Words.end()));
	FExpectedLog Expected(TEXT("no TrueType, OpenType or WOFF font"));
	ExpectBuiltIn(*ShapeWith());
}

TEST_F(BadFontTest, ATruncatedFileIsReportedOrDrawn)
{
	const std::vector<char> Good = ReadGoodFont();
	FExpectedLog Expected(TEXT("cannot be used as a font"));
	Write(std::vector<char>(Good.begin(), Good.begin() + 1000));
	ExpectBuiltIn(*ShapeWith());
}

TEST_F(BadFontTest, AnUnknownSubFaceIsReported)
{
	Write(ReadGoodFont());
	FCompositeFont Font;
	Font.DefaultTypeface.Fonts.AddDefaulted();
	Font.DefaultTypeface.Fonts[0].Font = FFontData(GetPath(), EFontHinting::Default, EFontLoadingPolicy::LazyLoad, 7);
	FExpectedLog Expected(TEXT("cannot be used as a font"));
	ExpectBuiltIn(*Services.Shape(Services.GetFont(MakeInfo(MakeShared<FCompositeFont>(Font), 20.0f), 1.0f), TEXT("Text")));
}

TEST_F(BadFontTest, APackedFontThatWouldUnpackToGigabytesIsRefused)
{
	std::vector<char> Bytes(200, 0);
	const unsigned char Header[] = { 'w', 'O', 'F', 'F', 0, 1, 0, 0, 0, 0, 0, 200, 0, 1, 0, 0, 0x7F, 0xFF, 0xFF, 0xFF };
	std::copy(std::begin(Header), std::end(Header), Bytes.begin());
	Write(Bytes);
	FExpectedLog Expected(TEXT("unpacks to more than"));
	ExpectBuiltIn(*ShapeWith());
}

TEST_F(BadFontTest, ATypefaceWithoutAFileUsesTheBuiltInFaceQuietly)
{
	const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>();
	ExpectBuiltIn(*Services.Shape(Services.GetFont(MakeInfo(Font, 20.0f), 1.0f), TEXT("Text")));
}

TEST_F(BadFontTest, DamagedFilesNeverCrash)
{
	const std::vector<char> Good = ReadGoodFont();
	uint32 Random = 12345;
	const auto Next = [&Random](uint32 Limit)
	{
		Random = Random * 1664525 + 1013904223;
		return (Random >> 8) % Limit;
	};
	for (int32 Round = 0; Round < 60; ++Round)
	{
		std::vector<char> Bytes = Good;
		for (int32 Change = 0; Change < 40; ++Change)
		{
			// Half of the changes hit the tables' directory and headers, where they do most harm.
			const uint32 Place = Change % 2 == 0 ? Next(1024) : Next(static_cast<uint32>(Bytes.size()));
			Bytes[12 + Place % (Bytes.size() - 12)] = static_cast<char>(Next(256));
		}
		Write(Bytes);
		FFontServices Fresh;
		const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>(TEXT("regular"), GetPath(), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
		FExpectedLog Any(TEXT("cannot be used as a font"), FExpectedLog::AnyCount);
		const FSizedFontRef Sized = Fresh.GetFont(MakeInfo(Font, 20.0f), 1.0f);
		const FShapedRunRef Run = Fresh.Shape(Sized, TEXT("The quick brown fox AVAWA fi \u00E9\u0301"));
		for (const FShapedGlyph& Glyph : Run->GetGlyphs())
		{
			float Scale;
			Fresh.GetAtlas().Find(Sized->MakeKey(Glyph, EGlyphPart::Fill, 1.0f, 0, true, Scale));
		}
		EXPECT_TRUE(FMath::IsFinite(Run->GetWidth()));
	}
}
