#include "EngineTest.h"

#include "Engine/Font.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"
#include "TemporaryContent.h"

#include <filesystem>

namespace
{
	/** Fonts as assets; their files lie beside them. */
	class FFontTest : public Host::FEngineTest
	{
	protected:
		UFont* Load(const TCHAR* Name, const std::string& Filename)
		{
			const std::string Json = R"({ "Class": "/Script/Engine.Font", "Properties": { "FontCacheType": "Runtime", "CompositeFont": { "DefaultTypeface": { "Fonts": [)"
				R"({ "Name": "regular", "Font": { "FontFilename": ")" + Filename + R"(" } } ] } } } })";
			Content.Write(*(FString(Name) + TEXT(".asset.json")), Json.c_str());
			return LoadObject<UFont>(nullptr, *FString::Printf(TEXT("/Fonts/%s.%s"), Name, Name));
		}

		/** A font file that can be used. */
		static std::filesystem::path GetGoodFile()
		{
			return HALVEX_PLUGIN_DIR "/Content/Widgets/Fonts/Monserrat/Montserrat-Bold.ttf";
		}

		std::filesystem::path GetFolder() const { return std::string(TCHAR_TO_UTF8(*Content.GetFolder())); }

		/** Width of a word in the font, in pixels. */
		static float Measure(UFont* Font)
		{
			Host::FFontServices& Services = Host::FFontServices::Get();
			return Services.Shape(Services.GetFont(FSlateFontInfo(Font, 24.0f, TEXT("regular")), 1.0f), TEXT("Words"))->GetWidth();
		}

		Host::FTemporaryContent Content{ TEXT("/Fonts/") };
	};

	TEST_F(FFontTest, FilesAreFoundBesideTheAsset)
	{
		std::filesystem::copy_file(GetGoodFile(), GetFolder() / "Own.ttf");
		EXPECT_NE(Measure(Load(TEXT("Good"), "Own.ttf")), Measure(nullptr));
	}

	TEST_F(FFontTest, MissingFileIsOneLineAndTextGoesOn)
	{
		UFont* Font = Load(TEXT("Missing"), "Nowhere.ttf");
		ASSERT_TRUE(Font);
		const Host::FExpectedLog Missing(TEXT("/Nowhere.ttf"));
		EXPECT_EQ(Measure(Font), Measure(nullptr));
		EXPECT_EQ(Measure(Font), Measure(nullptr));
	}

	TEST_F(FFontTest, BrokenFileIsOneLineAndTextGoesOn)
	{
		Content.Write(TEXT("Text.ttf"), "This is a text file and not a font, whatever its name says.");
		UFont* Font = Load(TEXT("Broken"), "Text.ttf");
		ASSERT_TRUE(Font);
		const Host::FExpectedLog Broken(TEXT("/Text.ttf"));
		EXPECT_EQ(Measure(Font), Measure(nullptr));
	}

	TEST_F(FFontTest, FileOutsideOfTheMountIsRefused)
	{
		const std::filesystem::path Outside = GetFolder().parent_path() / (GetFolder().filename().string() + ".ttf");
		std::filesystem::copy_file(GetGoodFile(), Outside);
		std::filesystem::create_symlink(Outside, GetFolder() / "Link.ttf");
		int32 Number = 0;
		for (const std::string& Filename : { "../" + Outside.filename().string(), Outside.string(), std::string("Link.ttf") })
		{
			const FString Name = FString::Printf(TEXT("Outside%d"), Number++);
			const Host::FExpectedLog Refused(TEXT("of the typeface 'regular' is refused: it leads out of the folder of its mount"));
			UFont* Font = Load(*Name, Filename);
			ASSERT_TRUE(Font);
			EXPECT_NE(Refused.GetLastLine().Find(Name + TEXT(".asset.json: ")), INDEX_NONE);
			EXPECT_EQ(Measure(Font), Measure(nullptr));
		}
		std::filesystem::remove(Outside);
	}

	TEST_F(FFontTest, BrokenAssetIsOneLineThatNamesThePlace)
	{
		Content.Write(TEXT("Syntax.asset.json"), "{\n \"Class\": ");
		const Host::FExpectedLog Broken(TEXT("Syntax.asset.json:2:"));
		EXPECT_EQ(LoadObject<UFont>(nullptr, TEXT("/Fonts/Syntax.Syntax")), nullptr);
	}
}
