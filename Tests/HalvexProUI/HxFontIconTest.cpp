#include "KitTest.h"

#include "HalvexUISubsystem.h"
#include "Host/PropertyEdit.h"
#include "KitReflection.h"
#include "ProjectStyle.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxFontIcon.h"

namespace
{
	using namespace KitReflection;

	class FHxFontIconTest : public FKitTest
	{
	protected:
		virtual void TearDown() override
		{
			UseProjectStyle(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"));
			FKitTest::TearDown();
		}

		/** An icon whose three looks differ in glyph, typeface and colour. */
		void MakeIcon()
		{
			Icon = Make<UHxFontIcon>(TEXT("Icon"));
			Icon->IconStyling = MakeHandler(TEXT("Regular"), TEXT("star"), TEXT("Primary"));
			Icon->IconContrast = MakeHandler(TEXT("Solid"), TEXT("heart"), TEXT("Success"));
			Icon->IconHover = MakeHandler(TEXT("Solid"), TEXT("house"), TEXT("Danger"));
			Place(*Icon, 100.0, 100.0);
		}

		void ShowIcon()
		{
			MakeIcon();
			Show();
		}

		static FFontIconHandler MakeHandler(const TCHAR* Style, const TCHAR* Name, const TCHAR* Color)
		{
			FFontIconHandler Handler(TEXT("FontAwesomeFree"), Style, Name);
			Handler.IconColor = FHalvexColorHandler(Color, false);
			return Handler;
		}

		/** Typeface, glyph's icon name and colour of what is painted. */
		std::string Look()
		{
			Settle();
			const FString Glyph = UTF8_TO_TCHAR(GetPaintedText(*Icon).c_str());
			std::string Name = "?" + GetPaintedText(*Icon);
			for (const FName Candidate : { FName(TEXT("star")), FName(TEXT("heart")), FName(TEXT("house")), FName(TEXT("thumbs-up")) })
			{
				FFontIconHandler Handler(TEXT("FontAwesomeFree"), TEXT("Solid"), Candidate);
				Handler.GenerateFontSlate(20);
				Name = Handler.GetIconUnicode().ToString() == Glyph ? Host::ToStd(Candidate) : Name;
			}
			return Host::ToStd(Icon->GetFont().TypefaceFontName) + " " + Name + " " + GetPaintedTextColour(*Icon);
		}

		UHxFontIcon* Icon = nullptr;
	};

	const std::string Plain = "Regular star 7367F0FF";
	const std::string Contrast = "Solid heart 28C76FFF";
	const std::string Hover = "Solid house EA5455FF";

	TEST_F(FHxFontIconTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxFontIcon::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UTextBlock::StaticClass());
		EXPECT_EQ(ListNames(Class), "IconSize bUseContrast IconStyling IconContrast IconHover");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HxFontIcon")), "");
		EXPECT_EQ(GetType(Class, TEXT("IconSize")), "int32");
		EXPECT_EQ(GetType(Class, TEXT("bUseContrast")), "bool");
		for (const TCHAR* Name : { TEXT("IconStyling"), TEXT("IconContrast"), TEXT("IconHover") })
		{
			EXPECT_EQ(GetType(Class, Name), "FFontIconHandler");
			EXPECT_TRUE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_Edit));
		}
	}

	TEST_F(FHxFontIconTest, DefaultIsThumbsUpInPrimaryAt20Points)
	{
		const UHxFontIcon* Default = GetDefault<UHxFontIcon>();
		EXPECT_EQ(Default->IconSize, 20);
		EXPECT_FALSE(Default->bUseContrast);
		for (const FFontIconHandler* Handler : { &Default->IconStyling, &Default->IconContrast, &Default->IconHover })
		{
			EXPECT_EQ(Handler->FontIconName, FName(TEXT("FontAwesomeFree")));
			EXPECT_EQ(Handler->IconStyle, FName(TEXT("Regular")));
			EXPECT_EQ(Handler->IconName, FName(TEXT("thumbs-up")));
			EXPECT_EQ(Handler->IconColor.ColorID, FName(TEXT("Primary")));
			EXPECT_FALSE(Handler->IconColor.bUseContrast);
		}
		Icon = Make<UHxFontIcon>();
		Place(*Icon, 100.0, 100.0);
		Show();
		EXPECT_EQ(Look(), "Regular thumbs-up 7367F0FF");
		EXPECT_EQ(Icon->GetFont().Size, 20.0f);
	}

	TEST_F(FHxFontIconTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHxFontIcon::StaticClass();
		for (const TCHAR* Name : { TEXT("SetIconByHandler"), TEXT("SetContrastIconByHandler"), TEXT("SetColorByHandler"), TEXT("SetColorContrastByHandler"), TEXT("SetIconByName"),
				TEXT("SetIconSize"), TEXT("SetContrast"), TEXT("SetHover"), TEXT("ToggleContras"), TEXT("BindOnButtonSelectionContras"), TEXT("GetIconStyle") })
		{
			const UFunction* Function = Class->FindFunctionByName(Name, EIncludeSuperFlag::ExcludeSuper);
			ASSERT_TRUE(Function) << Host::ToStd(FString(Name));
			EXPECT_TRUE(Function->HasAnyFunctionFlags(FUNC_BlueprintCallable)) << Host::ToStd(FString(Name));
		}
		const UFunction* Handler = Class->FindFunctionByName(TEXT("ReceivedButtonChangeState"), EIncludeSuperFlag::ExcludeSuper);
		ASSERT_TRUE(Handler);
		EXPECT_TRUE(Handler->HasAnyFunctionFlags(FUNC_Protected));
	}

	TEST_F(FHxFontIconTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxFontIcon>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxFontIconTest, ShowsTheIconOfItsState)
	{
		ShowIcon();
		EXPECT_EQ(Look(), Plain);
		Icon->SetContrast(true);
		EXPECT_TRUE(Icon->bUseContrast);
		EXPECT_EQ(Look(), Contrast);
		Icon->SetHover(true);
		EXPECT_EQ(Look(), Hover) << "the hover wins over the contrast";
		Icon->SetContrast(false);
		EXPECT_EQ(Look(), Hover);
		Icon->SetHover(false);
		EXPECT_EQ(Look(), Plain);
	}

	TEST_F(FHxFontIconTest, TogglingTwiceGoesBack)
	{
		ShowIcon();
		Icon->ToggleContras();
		EXPECT_EQ(Look(), Contrast);
		Icon->ToggleContras();
		EXPECT_EQ(Look(), Plain);
	}

	TEST_F(FHxFontIconTest, IconByHandlerShowsAtOnce)
	{
		ShowIcon();
		Icon->SetIconByHandler(MakeHandler(TEXT("Solid"), TEXT("house"), TEXT("Warning")));
		EXPECT_EQ(Look(), "Solid house FF9F43FF");
		Icon->SetContrastIconByHandler(MakeHandler(TEXT("Regular"), TEXT("heart"), TEXT("Warning")));
		EXPECT_EQ(Look(), "Solid house FF9F43FF");
		Icon->SetContrast(true);
		EXPECT_EQ(Look(), "Regular heart FF9F43FF");
		EXPECT_EQ(Icon->GetIconStyle().IconName, FName(TEXT("house")));
	}

	TEST_F(FHxFontIconTest, ColourByHandlerIsTheIconsOwn)
	{
		ShowIcon();
		Icon->SetColorByHandler(FHalvexColorHandler(TEXT("Warning"), false));
		EXPECT_EQ(Look(), "Regular star FF9F43FF");
		Icon->SetColorContrastByHandler(FHalvexColorHandler(TEXT("Third"), false));
		EXPECT_EQ(Look(), "Regular star FF9F43FF");
		Icon->SetContrast(true);
		EXPECT_EQ(Look(), "Solid heart 4B465CFF");
	}

	TEST_F(FHxFontIconTest, ColourOfTheContrastIconIsNoVariantOfItsHandler)
	{
		ShowIcon();
		Icon->SetColorContrastByHandler(FHalvexColorHandler(TEXT("Primary"), false));
		Icon->SetContrast(true);
		EXPECT_EQ(Look(), "Solid heart 7367F0FF");
		Icon->SetColorContrastByHandler(FHalvexColorHandler(TEXT("Primary"), true));
		EXPECT_EQ(Look(), "Solid heart FBFBFBFF");
	}

	TEST_F(FHxFontIconTest, OpacityOverrideIsTheAlpha)
	{
		ShowIcon();
		FHalvexColorHandler Color(TEXT("Danger"), false);
		Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Color.bOverrideOpacity = true;
		Color.OpacityOverride = 0.5f;
		Icon->SetColorByHandler(Color);
		EXPECT_EQ(Look(), "Regular star EA545580");
	}

	TEST_F(FHxFontIconTest, IconByNameShowsAtTheNextSynchronisation)
	{
		ShowIcon();
		Icon->SetIconByName(TEXT("heart"));
		EXPECT_EQ(Icon->IconStyling.IconName, FName(TEXT("heart")));
		EXPECT_EQ(Look(), Plain);
		Icon->SynchronizeProperties();
		EXPECT_EQ(Look(), "Regular heart 7367F0FF");
	}

	TEST_F(FHxFontIconTest, SizeShowsAtOnceInEveryState)
	{
		ShowIcon();
		Icon->SetIconSize(40);
		EXPECT_EQ(Icon->IconSize, 40);
		EXPECT_EQ(Icon->GetFont().Size, 40.0f);
		Icon->SetContrast(true);
		EXPECT_EQ(Icon->GetFont().Size, 40.0f);
	}

	TEST_F(FHxFontIconTest, UnknownIconIsDrawnAsWordsAndReported)
	{
		MakeIcon();
		Icon->IconStyling.IconName = TEXT("no-such-icon");
		const Host::FExpectedLog Missing(TEXT("'no-such-icon'"));
		Show();
		EXPECT_EQ(GetPaintedText(*Icon), "NO ROW FOUND UNICODE");
	}

	TEST_F(FHxFontIconTest, UnknownIconFontIsDrawnAsWords)
	{
		MakeIcon();
		Icon->IconStyling.FontIconName = TEXT("NoSuchFont");
		Show();
		EXPECT_EQ(GetPaintedText(*Icon), "NO TABLE UNICODE");
	}

	TEST_F(FHxFontIconTest, WithoutAConfigurationItIsDrawnAsWords)
	{
		UseProjectStyle(TEXT(""));
		MakeIcon();
		Show();
		EXPECT_EQ(Host::ToStd(Icon->GetText()), "NO TABLE UNICODE");
	}

	TEST_F(FHxFontIconTest, IconWinsOverTheTextOfTheBase)
	{
		MakeIcon();
		Icon->SetText(FText::FromString(TEXT("Words")));
		Show();
		EXPECT_EQ(Look(), Plain);
	}

	TEST_F(FHxFontIconTest, FollowsAButton)
	{
		ShowIcon();
		UHxButton* Button = Make<UHxButton>(TEXT("Button"));
		Button->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
		Place(*Button, 300.0, 100.0, FVector2D(50.0, 50.0));
		Settle();
		Icon->BindOnButtonSelectionContras(Button);
		Click(*Button);
		EXPECT_EQ(Look(), Contrast);
		Click(*Button);
		EXPECT_EQ(Look(), Plain);
	}

	TEST_F(FHxFontIconTest, FollowingTwiceLeavesOneBinding)
	{
		ShowIcon();
		UHxButton* Button = Make<UHxButton>(TEXT("Button"));
		Icon->BindOnButtonSelectionContras(Button);
		Icon->BindOnButtonSelectionContras(Button);
		EXPECT_EQ(Button->OnButtonSelectionChange.GetAllObjects(), TArray<UObject*>({ Icon }));
		Icon->BindOnButtonSelectionContras(nullptr);
	}

	TEST_F(FHxFontIconTest, ReportWithoutAButtonIsIgnored)
	{
		ShowIcon();
		struct
		{
			UHxButton* Button;
			bool bSelected;
		} Parms{ nullptr, true };
		Icon->ProcessEvent(Icon->FindFunctionChecked(TEXT("ReceivedButtonChangeState")), &Parms);
		EXPECT_FALSE(Icon->bUseContrast);
		Parms.Button = Make<UHxButton>();
		Icon->ProcessEvent(Icon->FindFunctionChecked(TEXT("ReceivedButtonChangeState")), &Parms);
		EXPECT_TRUE(Icon->bUseContrast);
		EXPECT_EQ(Look(), Contrast);
	}

	TEST_F(FHxFontIconTest, EditingInTheDesignerRestyles)
	{
		MakeIcon();
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Icon, TEXT("IconStyling.IconName"), TEXT("heart"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(Look(), "Regular heart 7367F0FF");
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Icon, TEXT("bUseContrast"), TEXT("True"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(Look(), Contrast);
	}
}
