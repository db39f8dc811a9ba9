#include "EngineTest.h"

#include "Engine/DataAsset.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "Subsystems/EngineSubsystem.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

namespace
{
	using FStyleReflectionTest = Host::FEngineTest;

	std::string GetMeta(const FProperty* Property, const TCHAR* Key)
	{
		return Host::ToStd(Property->GetMetaData(Key));
	}

	/** "Name: Type, ..." of the parameters, the result last. */
	std::string DescribeParameters(const UFunction* Function)
	{
		std::string Text;
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			Text += (Text.empty() ? "" : ", ") + Host::ToStd(It->GetName()) + ": " + Host::ToStd(It->GetCPPType());
		}
		return Text;
	}

	/** Checks what blueprints see of a function. */
	void ExpectFunction(const UClass* Class, const TCHAR* Name, EFunctionFlags Flags, EFunctionFlags NoFlags, const char* Category, const char* Parameters)
	{
		const UFunction* Function = Class->FindFunctionByName(Name, EIncludeSuperFlag::ExcludeSuper);
		ASSERT_NE(Function, nullptr) << Host::ToStd(FString(Name));
		EXPECT_TRUE(Function->HasAllFunctionFlags(Flags | FUNC_BlueprintCallable | FUNC_Public)) << Host::ToStd(FString(Name));
		EXPECT_FALSE(Function->HasAnyFunctionFlags(NoFlags)) << Host::ToStd(FString(Name));
		EXPECT_EQ(Host::ToStd(Function->GetMetaData(TEXT("Category"))), Category) << Host::ToStd(FString(Name));
		EXPECT_EQ(DescribeParameters(Function), Parameters) << Host::ToStd(FString(Name));
		EXPECT_TRUE(Function->HasMetaData(TEXT("ToolTip"))) << Host::ToStd(FString(Name));
	}

	int32 CountFunctions(const UClass* Class)
	{
		int32 Count = 0;
		for (TFieldIterator<UFunction> It(Class, EFieldIterationFlags::None); It; ++It)
		{
			++Count;
		}
		return Count;
	}

	TEST_F(FStyleReflectionTest, StyleConfigurationIsADataAssetOfFourMembers)
	{
		const UClass* Class = UHalvexUIStyleConfiguration::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UDataAsset::StaticClass());
		EXPECT_EQ(Host::ToStd(Class->GetPathName()), "/Script/HalvexProUI.HalvexUIStyleConfiguration");
		std::string Members;
		for (TFieldIterator<FProperty> It(Class, EFieldIterationFlags::None); It; ++It)
		{
			Members += Host::ToStd(It->GetName()) + " ";
			EXPECT_EQ(GetMeta(*It, TEXT("Category")), "HalvexUIConfig");
			EXPECT_TRUE(It->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible)) << Host::ToStd(It->GetName());
		}
		EXPECT_EQ(Members, "ColorStyleMap ColorSimpleMap FontStyle FontIconMap ");
		EXPECT_EQ(CountFunctions(Class), 0);
	}

	TEST_F(FStyleReflectionTest, SettingsHaveOneConfiguredMember)
	{
		const UClass* Class = UHalvexProUISettings::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UDeveloperSettings::StaticClass());
		EXPECT_EQ(Host::ToStd(Class->GetDisplayNameText()), "Halvex Pro UI Settings");
		std::string Members;
		for (TFieldIterator<FProperty> It(Class, EFieldIterationFlags::None); It; ++It)
		{
			Members += Host::ToStd(It->GetName()) + " ";
		}
		EXPECT_EQ(Members, "ProjectUIConfiguration ");
		const FSoftObjectProperty* Style = FindFProperty<FSoftObjectProperty>(Class, TEXT("ProjectUIConfiguration"));
		ASSERT_NE(Style, nullptr);
		EXPECT_EQ(Style->PropertyClass, UHalvexUIStyleConfiguration::StaticClass());
		EXPECT_TRUE(Style->HasAllPropertyFlags(CPF_Edit | CPF_Config));
		EXPECT_EQ(GetMeta(Style, TEXT("Category")), "HalvexStyling");
	}

	TEST_F(FStyleReflectionTest, SubsystemKeepsItsConfigurationAliveUneditedAndUnsaved)
	{
		const UClass* Class = UHalvexUISubsystem::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UEngineSubsystem::StaticClass());
		const FObjectProperty* Config = FindFProperty<FObjectProperty>(Class, TEXT("UIConfig"));
		ASSERT_NE(Config, nullptr);
		EXPECT_EQ(Config->PropertyClass, UHalvexUIStyleConfiguration::StaticClass());
		EXPECT_TRUE(Config->HasAllPropertyFlags(CPF_Transient));
		EXPECT_FALSE(Config->HasAnyPropertyFlags(CPF_Edit | CPF_Config));
	}

	TEST_F(FStyleReflectionTest, SubsystemOffersItsOperationsToBlueprints)
	{
		const UClass* Class = UHalvexUISubsystem::StaticClass();
		const char* const Category = "HalvexUISubsystem";
		const char* const Utilities = "HalvexUISubsystem|Utilities";
		const EFunctionFlags Question = FUNC_BlueprintPure | FUNC_Const;
		const EFunctionFlags Utility = FUNC_Static;
		ExpectFunction(Class, TEXT("RefreshSettingsReferences"), FUNC_None, FUNC_BlueprintPure | FUNC_Static, Category, "");
		ExpectFunction(Class, TEXT("GetHalvexColorByID"), Question, FUNC_Static, Category, "ColorID: FName, bContrast: bool, ReturnValue: FLinearColor");
		ExpectFunction(Class, TEXT("GetHalvexFontStyle"), Question, FUNC_Static, Category, "ReturnValue: FHalvexFontStyle");
		ExpectFunction(Class, TEXT("GetFontIconDataByID"), Question, FUNC_Static, Category, "FontIconID: FName, ReturnValue: FFontIconData");
		ExpectFunction(Class, TEXT("CollapseWidget"), Utility, FUNC_BlueprintPure, Utilities, "Widget: UWidget*");
		ExpectFunction(Class, TEXT("HiddeWidget"), Utility, FUNC_BlueprintPure, Utilities, "Widget: UWidget*");
		ExpectFunction(Class, TEXT("ShowsWidget"), Utility, FUNC_BlueprintPure, Utilities, "Widget: UWidget*, bHitTest: bool");
		EXPECT_EQ(CountFunctions(Class), 7);
		EXPECT_EQ(Host::ToStd(Class->FindFunctionByName(TEXT("GetHalvexColorByID"))->GetMetaData(TEXT("CPP_Default_bContrast"))), "false");
	}

	TEST_F(FStyleReflectionTest, StyleFunctionsAreALibraryForBlueprints)
	{
		const UClass* Class = UHalvexStyleModels::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UBlueprintFunctionLibrary::StaticClass());
		const char* const Category = "HalvexStyleModels";
		ExpectFunction(Class, TEXT("SetHalvexBorderStyle"), FUNC_Static, FUNC_BlueprintPure, Category, "Border: UBorder*, Style: FHalvexBorderStyle");
		ExpectFunction(Class, TEXT("SetHalvexButtonStyle"), FUNC_Static, FUNC_BlueprintPure, Category, "Button: UButton*, Style: FHalvexBorderStyle");
		ExpectFunction(Class, TEXT("SetHalvexTextStyle"), FUNC_Static, FUNC_BlueprintPure, Category, "TextBlock: UTextBlock*, Style: FHalvexTextStyle");
		ExpectFunction(Class, TEXT("GetFontInfoFromFontSchema"), FUNC_Static, FUNC_BlueprintPure, Category, "FontSchema: FName, ReturnValue: FSlateFontInfo");
		EXPECT_EQ(CountFunctions(Class), 4);
	}
}
