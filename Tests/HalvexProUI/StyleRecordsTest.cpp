#include "EngineTest.h"

#include "Engine/Font.h"
#include "Host/PropertyEdit.h"
#include "KitReflection.h"
#include "Style/HalvexStyleModels.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "StyleRecordHolder.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <type_traits>
#include <vector>

namespace
{
	using namespace KitReflection;
	using FStyleRecordsTest = Host::FEngineTest;

	std::vector<const UScriptStruct*> GetRecords()
	{
		return { FHalvexColorHandler::StaticStruct(), FColorKeyValues::StaticStruct(), FHalvexFontSize::StaticStruct(), FHalvexFontStyle::StaticStruct(),
			FHalvexCornerStyle::StaticStruct(), FHalvexSizeOverride::StaticStruct(), FHalvexTextStyle::StaticStruct(), FHalvexBorderStyle::StaticStruct(),
			FHalvexButtonStyle::StaticStruct(), FFontIconDatatableRow::StaticStruct(), FFontIconData::StaticStruct(), FFontIconHandler::StaticStruct() };
	}

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
		const char* const Names[] = { "ECHM_ColorStyle", "ECHM_ColorSimple", "ECHM_ColorCustom", "ECHM_Disable" };
		const char* const DisplayNames[] = { "Color Style", "Color Simple", "Custom Color", "Disable Color" };
		// The last one is the maximum that every enumeration has.
		ASSERT_EQ(Enum->NumEnums(), 5);
		for (int32 Index = 0; Index < 4; ++Index)
		{
			EXPECT_EQ(Enum->GetValueByIndex(Index), Index);
			EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(Index)), Names[Index]);
			EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(Index)), DisplayNames[Index]);
		}
		EXPECT_EQ(Host::ToStd(Enum->GetToolTipText()), "COLOR TYPE");
		EXPECT_TRUE(Enum->GetBoolMetaData(TEXT("BlueprintType")));
		static_assert(sizeof(EColorHandlerMode) == 1, "the mode is stored in one byte");
	}

	TEST_F(FStyleRecordsTest, RecordsAreBlueprintTypesOfTheModule)
	{
		for (const UScriptStruct* Struct : GetRecords())
		{
			EXPECT_TRUE(Struct->GetBoolMetaData(TEXT("BlueprintType"))) << Host::ToStd(Struct->GetName());
			EXPECT_EQ(Host::ToStd(Struct->GetOutermost()->GetName()), "/Script/HalvexProUI") << Host::ToStd(Struct->GetName());
			EXPECT_TRUE(Struct->HasMetaData(TEXT("ToolTip"))) << Host::ToStd(Struct->GetName());
			for (TFieldIterator<FProperty> It(Struct, EFieldIterationFlags::None); It; ++It)
			{
				EXPECT_TRUE(It->HasMetaData(TEXT("ToolTip"))) << Host::ToStd(It->GetPathName());
			}
		}
	}

	TEST_F(FStyleRecordsTest, SomeRecordsCarryTheHeadingsOfTheirGroup)
	{
		EXPECT_EQ(Host::ToStd(FHalvexFontSize::StaticStruct()->GetToolTipText()), "FONT TYPES");
		EXPECT_EQ(Host::ToStd(FHalvexCornerStyle::StaticStruct()->GetToolTipText()), "BORDER");
		// Spelled so.
		EXPECT_EQ(Host::ToStd(FHalvexSizeOverride::StaticStruct()->GetToolTipText()), "SixeOverride");
		EXPECT_EQ(Host::ToStd(FHalvexTextStyle::StaticStruct()->GetToolTipText()), "Components Styles");
		EXPECT_EQ(Host::ToStd(FFontIconDatatableRow::StaticStruct()->GetToolTipText()), "FONT ICON TYPES");
	}

	TEST_F(FStyleRecordsTest, ColourHandlerOffersItsFieldsByMode)
	{
		const UScriptStruct* Struct = FHalvexColorHandler::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexColorHandler")), "ColorMode bUseContrast ColorID ColorCustom bOverrideOpacity OpacityOverride");
		EXPECT_EQ(GetMeta(Struct, TEXT("ColorID"), TEXT("EditCondition")), "ColorMode!=EColorHandlerMode::ECHM_ColorCustom");
		EXPECT_TRUE(HasMeta(Struct, TEXT("ColorID"), TEXT("EditConditionHides")));
		EXPECT_EQ(GetMeta(Struct, TEXT("ColorCustom"), TEXT("EditCondition")), "ColorMode==EColorHandlerMode::ECHM_ColorCustom");
		EXPECT_TRUE(HasMeta(Struct, TEXT("ColorCustom"), TEXT("EditConditionHides")));
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

	/** The rest of a handler whose identifier and contrast flag were given. */
	void ExpectOtherwiseDefault(const FHalvexColorHandler& Handler)
	{
		EXPECT_EQ(Handler.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Handler.ColorCustom, FLinearColor::White);
		EXPECT_FALSE(Handler.bOverrideOpacity);
		EXPECT_EQ(Handler.OpacityOverride, 1.0f);
	}

	TEST_F(FStyleRecordsTest, ColourHandlerTakesAnIdentifierAndTheContrastFlag)
	{
		for (const bool bContrast : { false, true })
		{
			const FHalvexColorHandler Handler(TEXT("Danger"), bContrast);
			EXPECT_EQ(Handler.ColorID, FName(TEXT("Danger")));
			EXPECT_EQ(Handler.bUseContrast, bContrast);
			ExpectOtherwiseDefault(Handler);
		}
	}

	TEST_F(FStyleRecordsTest, TextColourHandlerIsSecondaryWithContrast)
	{
		const FHalvexColorHandler Handler = FHalvexColorHandler::TextColorHandler();
		EXPECT_TRUE(Handler.bUseContrast);
		EXPECT_EQ(Handler.ColorID, FName(TEXT("Secondary")));
		ExpectOtherwiseDefault(Handler);
	}

	/** Whether a designer may change the member. */
	bool CanEdit(UStyleRecordHolder* Holder, const TCHAR* Path)
	{
		FString Reason;
		return Host::FPropertyEdit::CanEdit(Holder, Path, Reason);
	}

	TEST_F(FStyleRecordsTest, DesignersEditTheColourFieldsOfTheMode)
	{
		UStyleRecordHolder* Holder = NewObject<UStyleRecordHolder>();
		for (const EColorHandlerMode Mode : { EColorHandlerMode::ECHM_ColorStyle, EColorHandlerMode::ECHM_ColorSimple, EColorHandlerMode::ECHM_Disable })
		{
			Holder->Color.ColorMode = Mode;
			EXPECT_TRUE(CanEdit(Holder, TEXT("Color.ColorID")));
			EXPECT_FALSE(CanEdit(Holder, TEXT("Color.ColorCustom")));
		}
		Holder->Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		EXPECT_FALSE(CanEdit(Holder, TEXT("Color.ColorID")));
		EXPECT_TRUE(CanEdit(Holder, TEXT("Color.ColorCustom")));
		EXPECT_FALSE(CanEdit(Holder, TEXT("Color.OpacityOverride")));
		Holder->Color.bOverrideOpacity = true;
		EXPECT_TRUE(CanEdit(Holder, TEXT("Color.OpacityOverride")));
	}

	TEST_F(FStyleRecordsTest, DesignersEditTheCornersAndTheSizeInUse)
	{
		UStyleRecordHolder* Holder = NewObject<UStyleRecordHolder>();
		EXPECT_TRUE(CanEdit(Holder, TEXT("Button.CornerStyle.UniformCorner")));
		EXPECT_FALSE(CanEdit(Holder, TEXT("Button.CornerStyle.CornerRadius")));
		Holder->Button.CornerStyle.bUseUniformCorner = false;
		EXPECT_FALSE(CanEdit(Holder, TEXT("Button.CornerStyle.UniformCorner")));
		EXPECT_TRUE(CanEdit(Holder, TEXT("Button.CornerStyle.CornerRadius")));
		EXPECT_FALSE(CanEdit(Holder, TEXT("Button.SizeOverride.AspectRatio")));
		Holder->Button.SizeOverride.bUseAspectRatio = true;
		EXPECT_TRUE(CanEdit(Holder, TEXT("Button.SizeOverride.AspectRatio")));
	}

	TEST_F(FStyleRecordsTest, ColourPairDefaultsToWhiteAndGray)
	{
		EXPECT_EQ(ListMembers(FColorKeyValues::StaticStruct(), TEXT("ColorKeyValues")), "RegularColor ContrastColor");
		EXPECT_EQ(FColorKeyValues().RegularColor, FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
		EXPECT_EQ(FColorKeyValues().ContrastColor, FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));
		const FColorKeyValues Pair(FLinearColor::Red, FLinearColor::Blue);
		EXPECT_EQ(Pair.RegularColor, FLinearColor::Red);
		EXPECT_EQ(Pair.ContrastColor, FLinearColor::Blue);
	}

	TEST_F(FStyleRecordsTest, FontSchemaDefaultsTo21PointsRegular)
	{
		const UScriptStruct* Struct = FHalvexFontSize::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexFontSize")), "FontSize Typeface");
		EXPECT_EQ(GetMeta(Struct, TEXT("FontSize"), TEXT("ClampMin")), "1");
		EXPECT_EQ(FHalvexFontSize().FontSize, 21);
		EXPECT_EQ(FHalvexFontSize().Typeface, FName(TEXT("regular")));
		const FHalvexFontSize Schema(-4, TEXT("bold"));
		EXPECT_EQ(Schema.FontSize, -4);
		EXPECT_EQ(Schema.Typeface, FName(TEXT("bold")));
	}

	TEST_F(FStyleRecordsTest, FontStyleTakesFontAssetsOnly)
	{
		const UScriptStruct* Struct = FHalvexFontStyle::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexFontSchema")), "Font FontSizing");
		EXPECT_EQ(GetMeta(Struct, TEXT("Font"), TEXT("AllowedClasses")), "/Script/Engine.Font");
		EXPECT_FALSE(FHalvexFontStyle().Font);
		EXPECT_TRUE(FHalvexFontStyle().FontSizing.IsEmpty());
	}

	TEST_F(FStyleRecordsTest, FontStyleIsCopiedAndMovedWhole)
	{
		FHalvexFontStyle Style;
		Style.Font = NewObject<UFont>();
		Style.FontSizing.Add(TEXT("h9"), FHalvexFontSize(4, TEXT("thin")));
		FHalvexFontStyle Copy = Style;
		EXPECT_EQ(Copy.Font, Style.Font);
		EXPECT_EQ(Copy.FontSizing[TEXT("h9")].FontSize, 4);
		const FHalvexFontSize* Entry = Copy.FontSizing.Find(TEXT("h9"));
		const FHalvexFontStyle Moved = MoveTemp(Copy);
		EXPECT_EQ(Moved.Font, Style.Font);
		EXPECT_EQ(Moved.FontSizing.Find(TEXT("h9")), Entry);
	}

	TEST_F(FStyleRecordsTest, CornersAreUniformFiveByDefault)
	{
		const UScriptStruct* Struct = FHalvexCornerStyle::StaticStruct();
		EXPECT_EQ(ListMembers(Struct, TEXT("HalvexCornerStyle")), "bUseUniformCorner UniformCorner CornerRadius RoundingType");
		EXPECT_EQ(GetMeta(Struct, TEXT("UniformCorner"), TEXT("EditCondition")), "bUseUniformCorner");
		EXPECT_TRUE(HasMeta(Struct, TEXT("UniformCorner"), TEXT("EditConditionHides")));
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
		EXPECT_TRUE(HasMeta(Struct, TEXT("bUseAspectRatio"), TEXT("InlineEditConditionToggle")));
		EXPECT_EQ(GetMeta(Struct, TEXT("AspectRatio"), TEXT("EditCondition")), "bUseAspectRatio");
		const FHalvexSizeOverride Size = FHalvexButtonStyle().SizeOverride;
		EXPECT_TRUE(Size.bUseOverride);
		EXPECT_EQ(Size.SizeOverride, FVector2D(0.0, 0.0));
		EXPECT_FALSE(Size.bUseAspectRatio);
		EXPECT_EQ(Size.AspectRatio, 1.0f);
	}

	TEST_F(FStyleRecordsTest, BorderStyleIsOpaqueWithUniformCornersOfFive)
	{
		EXPECT_EQ(ListMembers(FHalvexBorderStyle::StaticStruct(), TEXT("HalvexBorderStyleSchema")), "ColorStyle Opacity RoundType bUniformCorner UniformBorder CornerBorder");
		const FHalvexBorderStyle Style;
		EXPECT_EQ(Style.ColorStyle.ColorID, FName(TEXT("Background")));
		EXPECT_FALSE(Style.ColorStyle.bUseContrast);
		ExpectOtherwiseDefault(Style.ColorStyle);
		EXPECT_EQ(Style.Opacity, 1.0f);
		EXPECT_EQ(Style.RoundType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_EQ(static_cast<int>(Style.RoundType.GetValue()), 0);
		EXPECT_TRUE(Style.bUniformCorner);
		EXPECT_EQ(Style.UniformBorder, 5.0f);
		EXPECT_EQ(Style.CornerBorder, FVector4(5.0, 5.0, 5.0, 5.0));
	}

	TEST_F(FStyleRecordsTest, ButtonStyleIsOpaqueWithUniformCornersOfFive)
	{
		EXPECT_EQ(ListMembers(FHalvexButtonStyle::StaticStruct(), TEXT("HalvexButtonStyle")), "ColorStyle CornerStyle SizeOverride Opacity");
		const FHalvexButtonStyle Style;
		EXPECT_EQ(Style.ColorStyle.ColorID, FName(TEXT("Background")));
		EXPECT_FALSE(Style.ColorStyle.bUseContrast);
		ExpectOtherwiseDefault(Style.ColorStyle);
		EXPECT_TRUE(Style.CornerStyle.bUseUniformCorner);
		EXPECT_EQ(Style.CornerStyle.UniformCorner, 5.0f);
		EXPECT_EQ(Style.CornerStyle.CornerRadius, FVector4(5.0, 5.0, 5.0, 5.0));
		EXPECT_EQ(Style.CornerStyle.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_EQ(Style.Opacity, 1.0f);
	}

	TEST_F(FStyleRecordsTest, BorderAndButtonStylesAskForABackgroundThatTheDefaultsLack)
	{
		const UHalvexUIStyleConfiguration* Defaults = GetDefault<UHalvexUIStyleConfiguration>();
		for (const FName& ColorID : { FHalvexBorderStyle().ColorStyle.ColorID, FHalvexButtonStyle().ColorStyle.ColorID })
		{
			EXPECT_EQ(ColorID, FName(TEXT("Background")));
			EXPECT_FALSE(Defaults->ColorStyleMap.Contains(ColorID));
			EXPECT_FALSE(Defaults->ColorSimpleMap.Contains(ColorID));
		}
		EXPECT_EQ(FHalvexBorderStyle().ColorStyle.GetColor(), FLinearColor::Transparent);
	}

	TEST_F(FStyleRecordsTest, TextStyleIsPrimaryWithoutASchema)
	{
		EXPECT_EQ(ListMembers(FHalvexTextStyle::StaticStruct(), TEXT("HalvexTextStyleSchema")), "ColorStyle FontSchema");
		const FHalvexTextStyle Style;
		EXPECT_EQ(Style.ColorStyle.ColorID, FName(TEXT("Primary")));
		EXPECT_FALSE(Style.ColorStyle.bUseContrast);
		ExpectOtherwiseDefault(Style.ColorStyle);
		EXPECT_TRUE(Style.FontSchema.IsNone());
	}

	TEST_F(FStyleRecordsTest, IconRecordsHaveTheirFieldsInOrder)
	{
		EXPECT_EQ(ListMembers(FFontIconDatatableRow::StaticStruct(), TEXT("FontIconDatable")), "Label Styles Search Unicode");
		EXPECT_TRUE(FFontIconDatatableRow::StaticStruct()->IsChildOf(FTableRowBase::StaticStruct()));
		EXPECT_EQ(ListMembers(FFontIconData::StaticStruct(), TEXT("FontIcon")), "Font FontIconList");
		EXPECT_EQ(GetMeta(FFontIconData::StaticStruct(), TEXT("Font"), TEXT("AllowedClasses")), "/Script/Engine.Font");
		EXPECT_EQ(GetMeta(FFontIconData::StaticStruct(), TEXT("FontIconList"), TEXT("RequiredAssetDataTags")), "RowStructure=/Script/HalvexProUI.FontIconDatatableRow");
		EXPECT_FALSE(FFontIconData().Font);
		EXPECT_FALSE(FFontIconData().FontIconList);
		static_assert(std::has_virtual_destructor_v<FFontIconData>, "icon fonts are destroyed through their base");
		EXPECT_EQ(ListMembers(FFontIconHandler::StaticStruct(), TEXT("FontIconHandler")), "FontIconName IconStyle IconName IconColor");
	}

	TEST_F(FStyleRecordsTest, FieldsHaveTheTypesThatBlueprintsKnow)
	{
		const auto GetTypes = [](const UScriptStruct* Struct)
		{
			std::string Types;
			for (TFieldIterator<FProperty> It(Struct, EFieldIterationFlags::None); It; ++It)
			{
				Types += (Types.empty() ? "" : " ") + Host::ToStd(It->GetCPPType());
			}
			return Types;
		};
		EXPECT_EQ(GetTypes(FHalvexColorHandler::StaticStruct()), "EColorHandlerMode bool FName FLinearColor bool float");
		EXPECT_EQ(GetTypes(FColorKeyValues::StaticStruct()), "FLinearColor FLinearColor");
		EXPECT_EQ(GetTypes(FHalvexFontSize::StaticStruct()), "int32 FName");
		EXPECT_EQ(GetTypes(FHalvexCornerStyle::StaticStruct()), "bool float FVector4 TEnumAsByte<ESlateBrushRoundingType::Type>");
		EXPECT_EQ(GetTypes(FHalvexSizeOverride::StaticStruct()), "bool FVector2D bool float");
		EXPECT_EQ(GetTypes(FHalvexTextStyle::StaticStruct()), "FHalvexColorHandler FName");
		EXPECT_EQ(GetTypes(FHalvexBorderStyle::StaticStruct()), "FHalvexColorHandler float TEnumAsByte<ESlateBrushRoundingType::Type> bool float FVector4");
		EXPECT_EQ(GetTypes(FHalvexButtonStyle::StaticStruct()), "FHalvexColorHandler FHalvexCornerStyle FHalvexSizeOverride float");
		EXPECT_EQ(GetTypes(FFontIconHandler::StaticStruct()), "FName FName FName FHalvexColorHandler");
	}
}
