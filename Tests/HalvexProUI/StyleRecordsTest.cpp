#include "EngineTest.h"

#include "KitReflection.h"
#include "Style/HalvexStyleModels.h"

namespace
{
	using namespace KitReflection;
	using FStyleRecordsTest = Host::FEngineTest;

	/** Names of the members in order, joined by spaces; checks that each is in the category. */
	std::string ListMembers(const UStruct* Struct, const TCHAR* Category)
	{
		std::string Names;
		for (TFieldIterator<FProperty> It(Struct, EFieldIterationFlags::None); It; ++It)
		{
			EXPECT_EQ(Host::ToStd(It->GetMetaData(TEXT("Category"))), Host::ToStd(FString(Category))) << Host::ToStd(It->GetName());
			EXPECT_TRUE(It->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible)) << Host::ToStd(It->GetName());
			Names += (Names.empty() ? "" : " ") + Host::ToStd(It->GetName());
		}
		return Names;
	}

	TEST_F(FStyleRecordsTest, ColourModesAreNamedForDesigners)
	{
		const UEnum* Enum = StaticEnum<EColorHandlerMode>();
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(0)), "Color Style");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(1)), "Color Simple");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(2)), "Custom Color");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(3)), "Disable Color");
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(3)), "ECHM_Disable");
		EXPECT_EQ(Host::ToStd(Enum->GetToolTipText()), "COLOR TYPE");
	}

	TEST_F(FStyleRecordsTest, ColourHandlerOffersItsFieldsByMode)
	{
		const UScriptStruct* Struct = FHalvexColorHandler::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexColorHandler")), "ColorMode bUseContrast ColorID ColorCustom bOverrideOpacity OpacityOverride");
		EXPECT_EQ(GetMeta(Struct, TEXT("ColorID"), TEXT("EditCondition")), "ColorMode!=EColorHandlerMode::ECHM_ColorCustom");
		EXPECT_TRUE(HasMeta(Struct, TEXT("ColorID"), TEXT("EditConditionHides")));
		EXPECT_EQ(GetMeta(Struct, TEXT("ColorCustom"), TEXT("EditCondition")), "ColorMode==EColorHandlerMode::ECHM_ColorCustom");
		EXPECT_TRUE(HasMeta(Struct, TEXT("bOverrideOpacity"), TEXT("InlineEditConditionToggle")));
		EXPECT_EQ(GetMeta(Struct, TEXT("OpacityOverride"), TEXT("EditCondition")), "bOverrideOpacity");
	}

	TEST_F(FStyleRecordsTest, DefaultColourHandlerIsPrimaryWithoutContrast)
	{
		const FHalvexColorHandler Handler;
		EXPECT_EQ(Handler.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_FALSE(Handler.bUseContrast);
		EXPECT_EQ(Handler.ColorID, FName(TEXT("Primary")));
		EXPECT_EQ(Handler.ColorCustom, FLinearColor::White);
		EXPECT_FALSE(Handler.bOverrideOpacity);
		EXPECT_EQ(Handler.OpacityOverride, 1.0f);
	}

	TEST_F(FStyleRecordsTest, TextColourHandlerIsSecondaryWithContrast)
	{
		const FHalvexColorHandler Handler = FHalvexColorHandler::TextColorHandler();
		EXPECT_EQ(Handler.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_TRUE(Handler.bUseContrast);
		EXPECT_EQ(Handler.ColorID, FName(TEXT("Secondary")));
	}

	TEST_F(FStyleRecordsTest, ColourPairDefaultsToWhiteAndGray)
	{
		EXPECT_EQ(ListMembers(FColorKeyValues::StaticStruct(), TEXT("ColorKeyValues")), "RegularColor ContrastColor");
		EXPECT_EQ(FColorKeyValues().RegularColor, FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
		EXPECT_EQ(FColorKeyValues().ContrastColor, FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));
	}

	TEST_F(FStyleRecordsTest, FontSchemaDefaultsTo21PointsRegular)
	{
		const UScriptStruct* Struct = FHalvexFontSize::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexFontSize")), "FontSize Typeface");
		EXPECT_EQ(GetMeta(Struct, TEXT("FontSize"), TEXT("ClampMin")), "1");
		EXPECT_EQ(Host::ToStd(Struct->GetToolTipText()), "FONT TYPES");
		EXPECT_EQ(FHalvexFontSize().FontSize, 21);
		EXPECT_EQ(FHalvexFontSize().Typeface, FName(TEXT("regular")));
	}

	TEST_F(FStyleRecordsTest, FontStyleTakesFontAssetsOnly)
	{
		const UScriptStruct* Struct = FHalvexFontStyle::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexFontSchema")), "Font FontSizing");
		EXPECT_EQ(GetMeta(Struct, TEXT("Font"), TEXT("AllowedClasses")), "/Script/Engine.Font");
		EXPECT_FALSE(FHalvexFontStyle().Font);
		EXPECT_TRUE(FHalvexFontStyle().FontSizing.IsEmpty());
	}

	TEST_F(FStyleRecordsTest, CornersAreUniformFiveByDefault)
	{
		const UScriptStruct* Struct = FHalvexCornerStyle::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexCornerStyle")), "bUseUniformCorner UniformCorner CornerRadius RoundingType");
		EXPECT_EQ(GetMeta(Struct, TEXT("UniformCorner"), TEXT("EditCondition")), "bUseUniformCorner");
		EXPECT_EQ(GetMeta(Struct, TEXT("CornerRadius"), TEXT("EditCondition")), "!bUseUniformCorner");
		EXPECT_TRUE(HasMeta(Struct, TEXT("CornerRadius"), TEXT("EditConditionHides")));
		const FHalvexCornerStyle Corners;
		EXPECT_TRUE(Corners.bUseUniformCorner);
		EXPECT_EQ(Corners.UniformCorner, 5.0f);
		EXPECT_EQ(Corners.CornerRadius, FVector4(5.0, 5.0, 5.0, 5.0));
		EXPECT_EQ(Corners.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
	}

	TEST_F(FStyleRecordsTest, SizeOverrideIsZeroByDefault)
	{
		const UScriptStruct* Struct = FHalvexSizeOverride::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexSizeOverride")), "bUseOverride SizeOverride bUseAspectRatio AspectRatio");
		EXPECT_EQ(Host::ToStd(Struct->GetToolTipText()), "SixeOverride");
		EXPECT_TRUE(HasMeta(Struct, TEXT("bUseAspectRatio"), TEXT("InlineEditConditionToggle")));
		const FHalvexSizeOverride Size = FHalvexButtonStyle().SizeOverride;
		EXPECT_TRUE(Size.bUseOverride);
		EXPECT_EQ(Size.SizeOverride, FVector2D(0.0, 0.0));
		EXPECT_FALSE(Size.bUseAspectRatio);
		EXPECT_EQ(Size.AspectRatio, 1.0f);
	}

	TEST_F(FStyleRecordsTest, BorderAndButtonStylesAskForABackgroundThatTheDefaultsLack)
	{
		EXPECT_EQ(ListMembers(FHalvexBorderStyle::StaticStruct(), TEXT("HalvexBorderStyleSchema")), "ColorStyle Opacity RoundType bUniformCorner UniformBorder CornerBorder");
		EXPECT_EQ(ListMembers(FHalvexButtonStyle::StaticStruct(), TEXT("HalvexButtonStyle")), "ColorStyle CornerStyle SizeOverride Opacity");
		EXPECT_EQ(FHalvexBorderStyle().ColorStyle.ColorID, FName(TEXT("Background")));
		EXPECT_EQ(FHalvexButtonStyle().ColorStyle.ColorID, FName(TEXT("Background")));
		EXPECT_EQ(FHalvexBorderStyle().ColorStyle.GetColor(), FLinearColor::Transparent);
	}

	TEST_F(FStyleRecordsTest, TextStyleIsPrimaryWithoutASchema)
	{
		EXPECT_EQ(ListMembers(FHalvexTextStyle::StaticStruct(), TEXT("HalvexTextStyleSchema")), "ColorStyle FontSchema");
		EXPECT_EQ(FHalvexTextStyle().ColorStyle.ColorID, FName(TEXT("Primary")));
		EXPECT_TRUE(FHalvexTextStyle().FontSchema.IsNone());
	}
}
