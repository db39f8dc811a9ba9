#include "EngineTest.h"

#include "Engine/Font.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Host/FontServices.h"
#include "Style/HalvexUIStyleConfiguration.h"

namespace
{
	class FFontIconTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			UseStyle(LoadObject<UHalvexUIStyleConfiguration>(nullptr, TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light")));
			Host::FEngineTest::TearDown();
		}

		static void UseStyle(UHalvexUIStyleConfiguration* Style)
		{
			GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = Style;
			UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		}

		/** A style of its own, in use, whose icon font may be changed. */
		static FFontIconData& UseOwnIconFont()
		{
			UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
			UseStyle(Style);
			return Style->FontIconMap[TEXT("FontAwesomeFree")];
		}
	};

	TEST_F(FFontIconTest, DefaultHandlerIsThumbsUpInPrimary)
	{
		const FFontIconHandler Handler = FFontIconHandler::GetDefaultConstruct();
		EXPECT_EQ(Handler.FontIconName, FName(TEXT("FontAwesomeFree")));
		EXPECT_EQ(Handler.IconStyle, FName(TEXT("Regular")));
		EXPECT_EQ(Handler.IconName, FName(TEXT("thumbs-up")));
		EXPECT_EQ(Handler.IconColor.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Handler.IconColor.ColorID, FName(TEXT("Primary")));
		EXPECT_FALSE(Handler.IconColor.bUseContrast);
		EXPECT_FALSE(Handler.IconColor.bOverrideOpacity);
		EXPECT_EQ(Handler.IconColor.GetColor().ToFColor(true).ToHex(), TEXT("7367F0FF"));
		const FSlateFontInfo Font = Handler.GenerateFontSlate(24);
		EXPECT_EQ(Font.FontObject, UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesomeFree")).Font);
		EXPECT_EQ(Font.TypefaceFontName, FName(TEXT("Regular")));
	}

	TEST_F(FFontIconTest, HandlerTakesThreeNames)
	{
		const FFontIconHandler Handler(TEXT("Icons"), TEXT("Thin"), TEXT("house"));
		EXPECT_EQ(Handler.FontIconName, FName(TEXT("Icons")));
		EXPECT_EQ(Handler.IconStyle, FName(TEXT("Thin")));
		EXPECT_EQ(Handler.IconName, FName(TEXT("house")));
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
		EXPECT_EQ(Font.OutlineSettings.OutlineColor, FLinearColor::Black);
	}

	TEST_F(FFontIconTest, DescriptionsThatWereCopiedStay)
	{
		const FFontIconHandler Handler;
		const FSlateFontInfo Small = Handler.GenerateFontSlate(10);
		EXPECT_EQ(Handler.GenerateFontSlate(40).Size, 40.0f);
		EXPECT_EQ(Small.Size, 10.0f);
	}

	TEST_F(FFontIconTest, WithoutAConfigurationThereIsNoTable)
	{
		UseStyle(nullptr);
		const FFontIconHandler Handler;
		EXPECT_EQ(Handler.GenerateFontSlate(32), FSlateFontInfo());
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO TABLE UNICODE");
	}

	TEST_F(FFontIconTest, IconFontWithoutAFontGivesTheDefaultDescription)
	{
		UseOwnIconFont().Font = nullptr;
		const FFontIconHandler Handler;
		EXPECT_EQ(Handler.GenerateFontSlate(32), FSlateFontInfo());
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO TABLE UNICODE");
	}

	TEST_F(FFontIconTest, IconFontWithoutATableStillHasItsFont)
	{
		FFontIconData& Icons = UseOwnIconFont();
		Icons.FontIconList = nullptr;
		const FFontIconHandler Handler;
		EXPECT_EQ(Handler.GenerateFontSlate(32).FontObject, Icons.Font);
		EXPECT_EQ(Host::ToStd(Handler.GetIconUnicode()), "NO TABLE UNICODE");
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllIconsNames(TEXT("FontAwesomeFree")).IsEmpty());
	}

	TEST_F(FFontIconTest, UnknownTypefaceDrawsTheFontsFirst)
	{
		const FFontIconHandler First(TEXT("FontAwesomeFree"), TEXT("Regular"), TEXT("thumbs-up"));
		const FFontIconHandler Unknown(TEXT("FontAwesomeFree"), TEXT("NoSuchTypeface"), TEXT("thumbs-up"));
		EXPECT_EQ(Unknown.GenerateFontSlate(32).TypefaceFontName, FName(TEXT("NoSuchTypeface")));
		const FFontIconHandler Other(TEXT("FontAwesomeFree"), TEXT("Solid"), TEXT("thumbs-up"));
		const auto GetFace = [](const FFontIconHandler& Handler)
		{
			return Host::FFontServices::Get().GetFont(Handler.GenerateFontSlate(32), 1.0f)->GetSlots()[0].Face;
		};
		EXPECT_EQ(GetFace(Unknown), GetFace(First));
		EXPECT_NE(GetFace(Other), GetFace(First));
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
		FFontIconHandler Assigned(TEXT("Other"), TEXT("Other"), TEXT("Other"));
		Assigned = Moved;
		EXPECT_EQ(Assigned.IconName, FName(TEXT("thumbs-up")));
		EXPECT_EQ(Host::ToStd(Assigned.GetIconUnicode()), Host::ToStd(Handler.GetIconUnicode()));
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
}
