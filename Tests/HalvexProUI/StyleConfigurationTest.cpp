#include "EngineTest.h"

#include "Engine/Font.h"
#include "HalvexProUISettings.h"
#include "Host/Mounts.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UObject/UnrealType.h"

namespace
{
	using FStyleConfigurationTest = Host::FEngineTest;

	FString Hex(const FLinearColor& Color)
	{
		return Color.ToFColor(true).ToHex();
	}

	const UHalvexUIStyleConfiguration* LoadStyle(const TCHAR* Name)
	{
		return LoadObject<UHalvexUIStyleConfiguration>(nullptr, *FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Name, Name));
	}

	TEST_F(FStyleConfigurationTest, NewStyleHasThreeStyleColoursThatRotate)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		TArray<FName> Keys;
		Style->ColorStyleMap.GenerateKeyArray(Keys);
		EXPECT_EQ(Keys, TArray<FName>({ TEXT("Primary"), TEXT("Secondary"), TEXT("Third") }));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Primary")].RegularColor), TEXT("7367F0FF"));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Primary")].ContrastColor), TEXT("FBFBFBFF"));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Secondary")].RegularColor), TEXT("FBFBFBFF"));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Secondary")].ContrastColor), TEXT("4B465CFF"));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Third")].RegularColor), TEXT("4B465CFF"));
		EXPECT_EQ(Hex(Style->ColorStyleMap[TEXT("Third")].ContrastColor), TEXT("7367F0FF"));
	}

	TEST_F(FStyleConfigurationTest, NewStyleHasThreeSimpleColours)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		TArray<FName> Keys;
		Style->ColorSimpleMap.GenerateKeyArray(Keys);
		EXPECT_EQ(Keys, TArray<FName>({ TEXT("Success"), TEXT("Warning"), TEXT("Danger") }));
		EXPECT_EQ(Hex(Style->ColorSimpleMap[TEXT("Success")]), TEXT("28C76FFF"));
		EXPECT_EQ(Hex(Style->ColorSimpleMap[TEXT("Warning")]), TEXT("FF9F43FF"));
		EXPECT_EQ(Hex(Style->ColorSimpleMap[TEXT("Danger")]), TEXT("EA5455FF"));
	}

	TEST_F(FStyleConfigurationTest, ColoursAreStoredLinear)
	{
		const FLinearColor Primary = NewObject<UHalvexUIStyleConfiguration>()->ColorStyleMap[TEXT("Primary")].RegularColor;
		EXPECT_NEAR(Primary.R, 0.171441f, 1e-5f);
		EXPECT_NEAR(Primary.B, 0.871367f, 1e-5f);
		EXPECT_EQ(Primary.A, 1.0f);
	}

	TEST_F(FStyleConfigurationTest, NewStyleHasFifteenFontSchemasInOrder)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		struct FExpected
		{
			const TCHAR* Key;
			int32 Size;
			const TCHAR* Typeface;
		};
		const FExpected Expected[] = {
			{ TEXT("h1"), 48, TEXT("regular") }, { TEXT("h1-b"), 48, TEXT("bold") }, { TEXT("h2"), 36, TEXT("regular") }, { TEXT("h2-b"), 26, TEXT("bold") },
			{ TEXT("h3"), 26, TEXT("regular") }, { TEXT("h3-b"), 26, TEXT("bold") }, { TEXT("h4"), 18, TEXT("regular") }, { TEXT("h4-b"), 18, TEXT("bold") },
			{ TEXT("h5-b"), 16, TEXT("bold") }, { TEXT("regular"), 12, TEXT("regular") }, { TEXT("regular-bold"), 12, TEXT("bold") }, { TEXT("small"), 10, TEXT("regular") },
			{ TEXT("small-bold"), 10, TEXT("bold") }, { TEXT("extra-small"), 8, TEXT("regular") }, { TEXT("extra-small-b"), 8, TEXT("bold") },
		};
		ASSERT_EQ(Style->FontStyle.FontSizing.Num(), static_cast<int32>(UE_ARRAY_COUNT(Expected)));
		int32 Index = 0;
		for (const TPair<FName, FHalvexFontSize>& Schema : Style->FontStyle.FontSizing)
		{
			EXPECT_EQ(Schema.Key, FName(Expected[Index].Key));
			EXPECT_EQ(Schema.Value.FontSize, Expected[Index].Size) << Host::ToStd(Schema.Key);
			EXPECT_EQ(Schema.Value.Typeface, FName(Expected[Index].Typeface)) << Host::ToStd(Schema.Key);
			++Index;
		}
	}

	TEST_F(FStyleConfigurationTest, BoldSecondLevelIsSmallerThanTheRegularOne)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		EXPECT_EQ(Style->FontStyle.FontSizing[TEXT("h2")].FontSize, 36);
		EXPECT_EQ(Style->FontStyle.FontSizing[TEXT("h2-b")].FontSize, 26);
	}

	TEST_F(FStyleConfigurationTest, FifthLevelExistsInBoldOnly)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		EXPECT_FALSE(Style->FontStyle.FontSizing.Contains(TEXT("h5")));
		EXPECT_EQ(Style->FontStyle.FontSizing[TEXT("h5-b")].FontSize, 16);
		EXPECT_EQ(Style->FontStyle.FontSizing[TEXT("h5-b")].Typeface, FName(TEXT("bold")));
	}

	TEST_F(FStyleConfigurationTest, NewStyleNamesTheShippedFonts)
	{
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		ASSERT_TRUE(Style->FontStyle.Font);
		EXPECT_EQ(Style->FontStyle.Font->GetPathName(), TEXT("/HalvexPro/Widgets/Fonts/Monserrat/Monserrat.Monserrat"));
		TSet<FName> Typefaces;
		for (const FTypefaceEntry& Entry : Style->FontStyle.Font->GetCompositeFont()->DefaultTypeface.Fonts)
		{
			Typefaces.Add(Entry.Name);
		}
		for (const TPair<FName, FHalvexFontSize>& Schema : Style->FontStyle.FontSizing)
		{
			EXPECT_TRUE(Typefaces.Contains(Schema.Value.Typeface)) << Host::ToStd(Schema.Key);
		}
		ASSERT_EQ(Style->FontIconMap.Num(), 1);
		const FFontIconData& Icons = Style->FontIconMap[TEXT("FontAwesomeFree")];
		EXPECT_EQ(Icons.Font->GetPathName(), TEXT("/HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree"));
		EXPECT_EQ(Icons.FontIconList->GetPathName(), TEXT("/HalvexPro/Widgets/FontIcon/FontAwesomeFree/DT_FontAwesomeFree.DT_FontAwesomeFree"));
	}

	TEST_F(FStyleConfigurationTest, AssetsAreLookedUpForTheFirstObjectOnly)
	{
		// Another object has them although nobody can look anything up now.
		Host::FMounts::Remove(TEXT("/HalvexPro/"));
		const UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		Host::FMounts::Add(TEXT("/HalvexPro/"), TEXT(HALVEX_PLUGIN_DIR "/Content"));
		EXPECT_EQ(Style->FontStyle.Font, GetDefault<UHalvexUIStyleConfiguration>()->FontStyle.Font);
		EXPECT_EQ(Style->FontIconMap[TEXT("FontAwesomeFree")].Font, GetDefault<UHalvexUIStyleConfiguration>()->FontIconMap[TEXT("FontAwesomeFree")].Font);
	}

	TEST_F(FStyleConfigurationTest, ShippedLightStyleHasTheDefaults)
	{
		const UHalvexUIStyleConfiguration* Light = LoadStyle(TEXT("UIStyle_Hx_Light"));
		const UHalvexUIStyleConfiguration* Defaults = GetDefault<UHalvexUIStyleConfiguration>();
		ASSERT_TRUE(Light);
		for (TFieldIterator<FProperty> It(UHalvexUIStyleConfiguration::StaticClass(), EFieldIterationFlags::None); It; ++It)
		{
			EXPECT_TRUE(It->Identical_InContainer(Light, Defaults)) << Host::ToStd(It->GetName());
		}
	}

	TEST_F(FStyleConfigurationTest, ShippedDarkStyleHasABackground)
	{
		const UHalvexUIStyleConfiguration* Dark = LoadStyle(TEXT("UIStyle_Hx_Dark"));
		ASSERT_TRUE(Dark);
		EXPECT_TRUE(Dark->ColorStyleMap.Contains(TEXT("Background")));
	}

	TEST_F(FStyleConfigurationTest, TextIsReadableInBothShippedStyles)
	{
		const auto Luminance = [](const FLinearColor& Color) { return 0.2126f * Color.R + 0.7152f * Color.G + 0.0722f * Color.B; };
		for (const TCHAR* Name : { TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark") })
		{
			const FColorKeyValues& Surface = LoadStyle(Name)->ColorStyleMap[TEXT("Secondary")];
			const float First = Luminance(Surface.RegularColor) + 0.05f;
			const float Second = Luminance(Surface.ContrastColor) + 0.05f;
			EXPECT_GE(FMath::Max(First, Second) / FMath::Min(First, Second), 4.5f) << Host::ToStd(FString(Name));
		}
	}

	TEST_F(FStyleConfigurationTest, SettingsNameTheLightStyle)
	{
		const UHalvexProUISettings* Settings = GetDefault<UHalvexProUISettings>();
		EXPECT_EQ(Settings->ProjectUIConfiguration.ToString(), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"));
		EXPECT_EQ(Settings->GetContainerName(), FName(TEXT("Project")));
		EXPECT_EQ(Settings->GetCategoryName(), FName(TEXT("Plugins")));
		EXPECT_EQ(Host::ToStd(Settings->GetSectionText()), "Halvex Pro UI Settings");
		EXPECT_EQ(Settings->GetClass()->ClassConfigName, FName(TEXT("Halvex")));
	}
}
