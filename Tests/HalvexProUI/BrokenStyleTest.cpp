#include "EngineTest.h"

#include "Components/TextBlock.h"
#include "Engine/DataTable.h"
#include "Engine/Engine.h"
#include "Engine/Font.h"
#include "Engine/GameViewportClient.h"
#include "HalvexUISubsystem.h"
#include "ProjectStyle.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "TemporaryContent.h"

namespace
{
	/** Style configurations that are not what they should be. */
	class FBrokenStyleTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			UseProjectStyle(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"));
			Host::FEngineTest::TearDown();
		}

		/** Writes a style with the given properties, and uses it. */
		void UseProperties(const TCHAR* Name, const char* Properties)
		{
			const std::string Json = std::string("{ \"Class\": \"/Script/HalvexProUI.HalvexUIStyleConfiguration\", \"Properties\": {\n") + Properties + "\n} }";
			Content.Write(*(FString(Name) + TEXT(".asset.json")), Json.c_str());
			UseProjectStyle(*FString::Printf(TEXT("/Styles/%s.%s"), Name, Name));
		}

		static FString GetHex(const TCHAR* ColorID)
		{
			return UHalvexUISubsystem::Get()->GetHalvexColorByID(ColorID).ToFColor(true).ToHex();
		}

		Host::FTemporaryContent Content{ TEXT("/Styles/") };
	};

	TEST_F(FBrokenStyleTest, MissingStyleIsOneLineHoweverOftenItIsAskedFor)
	{
		const Host::FExpectedLog Missing(TEXT("/Styles/Nowhere.Nowhere': there is no file for /Styles/Nowhere"));
		UseProjectStyle(TEXT("/Styles/Nowhere.Nowhere"));
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FBrokenStyleTest, BrokenStyleIsOneLineThatNamesThePlace)
	{
		Content.Write(TEXT("Broken.asset.json"), "{\n\t\"Class\": \"/Script/HalvexProUI.HalvexUIStyleConfiguration\"\n\t\"Properties\": {}\n}");
		const Host::FExpectedLog Broken(TEXT("/Broken.asset.json:3:"));
		UseProjectStyle(TEXT("/Styles/Broken.Broken"));
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FBrokenStyleTest, StyleOutsideOfItsMountIsOneLine)
	{
		const Host::FExpectedLog Refused(TEXT("/Styles/../Secret.Secret"));
		UseProjectStyle(TEXT("/Styles/../Secret.Secret"));
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FBrokenStyleTest, AssetOfAnotherClassIsNotLogged)
	{
		Content.Write(TEXT("Font.asset.json"), R"({ "Class": "/Script/Engine.Font" })");
		UseProjectStyle(TEXT("/Styles/Font.Font"));
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FBrokenStyleTest, BadColourIsOneLineAndTheOthersAreThere)
	{
		const Host::FExpectedLog Bad(TEXT("/BadColour.asset.json:3:"));
		UseProperties(TEXT("BadColour"), "\"ColorSimpleMap\": [ [\"Good\", \"#102030\"],\n[\"Bad\", \"#12345\"],\n[\"Also\", \"#405060\"] ]");
		EXPECT_EQ(GetHex(TEXT("Good")), TEXT("102030FF"));
		EXPECT_EQ(GetHex(TEXT("Also")), TEXT("405060FF"));
		EXPECT_EQ(GetHex(TEXT("Primary")), TEXT("7367F0FF"));
	}

	TEST_F(FBrokenStyleTest, EntryWithABadMemberKeepsItsOthers)
	{
		const Host::FExpectedLog Bad(TEXT("/BadMember.asset.json:3:"));
		const Host::FExpectedLog NoPair(TEXT("/BadMember.asset.json:4:"));
		const Host::FExpectedLog NoKey(TEXT("/BadMember.asset.json:5:"));
		UseProperties(TEXT("BadMember"), "\"ColorStyleMap\": [\n[\"Half\", { \"RegularColor\": 17, \"ContrastColor\": \"#102030\" }],\n[\"None\"],\n[{}, {}],\n[\"Whole\", { \"RegularColor\": \"#405060\" }] ]");
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetAllColorStyleOptions(), TArray<FName>({ TEXT("Half"), TEXT("Whole") }));
		EXPECT_EQ(GetHex(TEXT("Half")), TEXT("FFFFFFFF"));
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("Half"), true).ToFColor(true).ToHex(), TEXT("102030FF"));
		EXPECT_EQ(GetHex(TEXT("Whole")), TEXT("405060FF"));
	}

	TEST_F(FBrokenStyleTest, UnknownPropertyIsOneLineAndTheRestIsRead)
	{
		const Host::FExpectedLog Unknown(TEXT("/Unknown.asset.json:2:20: property 'ColourSimpleMap': HalvexUIStyleConfiguration has no such property; is 'ColorSimpleMap' meant?"));
		UseProperties(TEXT("Unknown"), "\"ColourSimpleMap\": [],\n\"ColorSimpleMap\": [ [\"Own\", \"#102030\"] ]");
		EXPECT_EQ(GetHex(TEXT("Own")), TEXT("102030FF"));
	}

	TEST_F(FBrokenStyleTest, MissingFontIsOneLineAndTextKeepsItsOwn)
	{
		{
			const Host::FExpectedLog Missing(TEXT("/NoFont.asset.json:2:"));
			UseProperties(TEXT("NoFont"), R"("FontStyle": { "Font": "/Styles/Nowhere3.Nowhere3", "FontSizing": [ ["big", { "FontSize": 90, "Typeface": "bold" }] ] })");
			EXPECT_NE(Missing.GetLastLine().Find(TEXT("/Styles/Nowhere3.Nowhere3")), INDEX_NONE);
		}
		EXPECT_EQ(UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("big")).Size, 90.0f);
		EXPECT_EQ(GetHex(TEXT("Primary")), TEXT("7367F0FF"));
	}

	TEST_F(FBrokenStyleTest, FontWithoutItsFileIsOneLineAndTextIsShown)
	{
		Content.Write(TEXT("Hollow.asset.json"), R"({ "Class": "/Script/Engine.Font", "Properties": { "FontCacheType": "Runtime", "CompositeFont": { "DefaultTypeface": { "Fonts": [ { "Name": "regular", "Font": { "FontFilename": "Hollow.ttf" } } ] } } } })");
		UseProperties(TEXT("HollowFont"), R"("FontStyle": { "Font": "/Styles/Hollow.Hollow", "FontSizing": [ ["h1", { "FontSize": 40, "Typeface": "regular" }] ] })");
		UTextBlock* Text = NewObject<UTextBlock>();
		Text->SetText(FText::FromString(TEXT("Shown")));
		FHalvexTextStyle TextStyle;
		TextStyle.FontSchema = TEXT("h1");
		UHalvexStyleModels::SetHalvexTextStyle(Text, TextStyle);
		const Host::FExpectedLog Missing(TEXT("/Hollow.ttf"));
		GEngine->GameViewport->AddViewportWidgetContent(Text->TakeWidget());
		Loop.RunUntilIdle();
		EXPECT_GT(Text->GetDesiredSize().X, 40.0);
	}

	TEST_F(FBrokenStyleTest, MissingIconTableIsOneLineAndShowsOnScreen)
	{
		{
			const Host::FExpectedLog Missing(TEXT("/NoTable.asset.json:2:"));
			UseProperties(TEXT("NoTable"), R"("FontIconMap": [ ["FontAwesomeFree", { "Font": "/HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree", "FontIconList": "/Styles/Nowhere4.Nowhere4" }] ])");
		}
		const FFontIconHandler Icon;
		EXPECT_TRUE(Icon.GenerateFontSlate(24).FontObject);
		EXPECT_EQ(Host::ToStd(Icon.GetIconUnicode()), "NO TABLE UNICODE");
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllIconsNames(TEXT("FontAwesomeFree")).IsEmpty());
	}

	TEST_F(FBrokenStyleTest, TableOfOtherRowsIsReportedAndShowsOnScreen)
	{
		Content.Write(TEXT("Other.table.json"), R"({ "RowStruct": "/Script/Engine.TableRowBase", "Rows": { "thumbs-up": {} } })");
		UseProperties(TEXT("OtherTable"), R"("FontIconMap": [ ["FontAwesomeFree", { "Font": "/HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree", "FontIconList": "/Styles/Other.Other" }] ])");
		const FFontIconHandler Icon;
		Icon.GenerateFontSlate(24);
		const Host::FExpectedLog Wrong(TEXT("its rows are of '/Script/Engine.TableRowBase'"));
		EXPECT_EQ(Host::ToStd(Icon.GetIconUnicode()), "NO ROW FOUND UNICODE");
	}
}
