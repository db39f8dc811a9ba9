#include "EngineTest.h"

#include "Engine/Font.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexStyleModels.h"
#include "UObject/UnrealType.h"

namespace
{
	using FFontIconTest = Host::FEngineTest;

	TEST_F(FFontIconTest, DefaultHandlerIsThumbsUpInPrimary)
	{
		const FFontIconHandler Handler = FFontIconHandler::GetDefaultConstruct();
		EXPECT_EQ(Handler.FontIconName, FName(TEXT("FontAwesomeFree")));
		EXPECT_EQ(Handler.IconStyle, FName(TEXT("Regular")));
		EXPECT_EQ(Handler.IconName, FName(TEXT("thumbs-up")));
		EXPECT_EQ(Handler.IconColor.ColorID, FName(TEXT("Primary")));
	}

	TEST_F(FFontIconTest, GlyphNeedsTheFontGeneratedFirst)
	{
		const FFontIconHandler Handler;
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO TABLE UNICODE");
		Handler.GenerateFontSlate(24);
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "\xEF\x85\xA4");
		EXPECT_TRUE(Handler.GetIconUnicode().IsCultureInvariant());
	}

	TEST_F(FFontIconTest, FontIsTheIconFontInTheHandlersTypeface)
	{
		const FFontIconHandler Handler(TEXT("FontAwesomeFree"), TEXT("Solid"), TEXT("house"));
		const FSlateFontInfo Font = Handler.GenerateFontSlate(32);
		EXPECT_EQ(Font.FontObject, UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesomeFree")).Font);
		EXPECT_EQ(Font.Size, 32.0f);
		EXPECT_EQ(Font.TypefaceFontName, FName(TEXT("Solid")));
		EXPECT_EQ(Font.OutlineSettings.OutlineSize, 0);
	}

	TEST_F(FFontIconTest, UnknownIconFontGivesTheDefaultDescription)
	{
		const FFontIconHandler Handler(TEXT("NoSuchFont"), TEXT("Solid"), TEXT("house"));
		EXPECT_EQ(Handler.GenerateFontSlate(32), FSlateFontInfo());
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO TABLE UNICODE");
	}

	TEST_F(FFontIconTest, UnknownIconIsReported)
	{
		const FFontIconHandler Handler(TEXT("FontAwesomeFree"), TEXT("Solid"), TEXT("no-such-icon"));
		Handler.GenerateFontSlate(32);
		const Host::FExpectedLog Missing(TEXT("'no-such-icon'"));
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO ROW FOUND UNICODE");
	}

	TEST_F(FFontIconTest, CopiesKeepTheTable)
	{
		const FFontIconHandler Handler;
		Handler.GenerateFontSlate(24);
		FFontIconHandler Copy = Handler;
		EXPECT_EQ(Host::ToStd(Copy.GetIconUnicode()), Host::ToStd(Handler.GetIconUnicode()));
		const FFontIconHandler Moved = MoveTemp(Copy);
		EXPECT_EQ(Host::ToStd(Moved.GetIconUnicode()), Host::ToStd(Handler.GetIconUnicode()));
	}

	TEST_F(FFontIconTest, TypefacesAreListedInTheFontsOrder)
	{
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesomeFree")).GetFontTypeface(), TArray<FName>({ TEXT("Regular"), TEXT("Solid"), TEXT("Brands") }));
		EXPECT_TRUE(FFontIconData().GetFontTypeface().IsEmpty());
		FFontIconData Bitmap;
		Bitmap.Font = NewObject<UFont>();
		EXPECT_TRUE(Bitmap.GetFontTypeface().IsEmpty());
	}

	TEST_F(FFontIconTest, DuplicateTypefacesAreKept)
	{
		FFontIconData Data;
		Data.Font = NewObject<UFont>();
		Data.Font->FontCacheType = EFontCacheType::Runtime;
		Data.Font->CompositeFont.DefaultTypeface.Fonts.Add(FTypefaceEntry(TEXT("A")));
		Data.Font->CompositeFont.DefaultTypeface.Fonts.Add(FTypefaceEntry(TEXT("A")));
		EXPECT_EQ(Data.GetFontTypeface(), TArray<FName>({ TEXT("A"), TEXT("A") }));
	}

	TEST_F(FFontIconTest, EveryIconOfTheTableHasItsGlyphInItsTypefaces)
	{
		const FFontIconData& Data = UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesomeFree"));
		TArray<FFontIconDatatableRow*> Rows;
		Data.FontIconList->GetAllRows(TEXT("test"), Rows);
		EXPECT_GT(Rows.Num(), 1900);
		for (const FFontIconDatatableRow* Row : Rows)
		{
			EXPECT_FALSE(Row->Unicode.IsEmpty()) << Host::ToStd(Row->Label);
			EXPECT_FALSE(Row->Styles.IsEmpty()) << Host::ToStd(Row->Label);
			for (const FName& Typeface : Row->Styles)
			{
				EXPECT_TRUE(Data.GetFontTypeface().Contains(Typeface)) << Host::ToStd(Row->Label);
			}
		}
	}

	TEST_F(FFontIconTest, TablesOfferOnlyIconTables)
	{
		const UScriptStruct* Struct = FFontIconData::StaticStruct();
		EXPECT_EQ(Host::ToStd(Struct->FindPropertyByName(TEXT("FontIconList"))->GetMetaData(TEXT("RequiredAssetDataTags"))), "RowStructure=/Script/HalvexProUI.FontIconDatatableRow");
		EXPECT_EQ(Host::ToStd(FFontIconDatatableRow::StaticStruct()->GetToolTipText()), "FONT ICON TYPES");
		EXPECT_EQ(Host::ToStd(FFontIconDatatableRow::StaticStruct()->FindPropertyByName(TEXT("Label"))->GetMetaData(TEXT("Category"))), "FontIconDatable");
	}
}
