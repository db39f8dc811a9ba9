#include "ExpectedLog.h"
#include "Misc/ConfigCacheIni.h"
#include "ObjectTestSettings.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

namespace
{
	const TCHAR* const Section = TEXT("/Script/CoreUObjectTestTypes.ObjectTestSettings");
	const TCHAR* const File = TEXT("ObjectTest");

	/** Works on an object of its own; the class default object was configured before any test ran. */
	class ConfigProperty : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			GConfig->EmptySection(Section, File);
			Settings = NewObject<UObjectTestSettings>();
		}
		virtual void TearDown() override
		{
			GConfig->EmptySection(Section, File);
			GConfig->Flush(false, File);
		}

		UObjectTestSettings* Settings = nullptr;
	};
}

TEST_F(ConfigProperty, ValuesOfEachKindAreRead)
{
	GConfig->SetInt(Section, TEXT("Count"), 12, File);
	GConfig->SetString(Section, TEXT("Title"), TEXT("from file"), File);
	GConfig->SetString(Section, TEXT("Mode"), TEXT("Automatic"), File);
	GConfig->SetArray(Section, TEXT("Names"), { TEXT("One"), TEXT("Two") }, File);
	GConfig->SetString(Section, TEXT("Tint"), TEXT("(R=0.5,G=0.25,B=0.125,A=1.0)"), File);
	GConfig->SetString(Section, TEXT("NotConfigured"), TEXT("55"), File);

	Settings->LoadConfig();

	EXPECT_EQ(Settings->Count, 12);
	EXPECT_EQ(Settings->Title, FString(TEXT("from file")));
	EXPECT_EQ(Settings->Mode, EObjectTestMode::Automatic);
	EXPECT_EQ(Settings->Names, TArray<FString>({ TEXT("One"), TEXT("Two") }));
	EXPECT_EQ(Settings->Tint, FLinearColor(0.5f, 0.25f, 0.125f, 1.0f));
	EXPECT_EQ(Settings->NotConfigured, 1);
}

TEST_F(ConfigProperty, ValueThatIsNotThereKeepsWhatTheConstructorSet)
{
	Settings->LoadConfig();

	EXPECT_EQ(Settings->Count, 1);
	EXPECT_EQ(Settings->Title, FString(TEXT("code")));
	EXPECT_EQ(Settings->Asset.ToString(), FString(TEXT("/Game/FromConstructor.FromConstructor")));
}

TEST_F(ConfigProperty, ConfiguredPathWinsOverTheConstructorsAndIsNotFollowed)
{
	GConfig->SetString(Section, TEXT("Asset"), TEXT("/Game/FromConfig.FromConfig"), File);

	Settings->LoadConfig();

	EXPECT_EQ(Settings->Asset.ToString(), FString(TEXT("/Game/FromConfig.FromConfig")));
	EXPECT_TRUE(Settings->Asset.IsPending());
}

TEST_F(ConfigProperty, UnreadableValueIsAnErrorAndTheOthersAreRead)
{
	Host::FExpectedLog Expected(TEXT("[/Script/CoreUObjectTestTypes.ObjectTestSettings] Count: expected int32, found 'many'"));
	GConfig->SetString(Section, TEXT("Count"), TEXT("many"), File);
	GConfig->SetString(Section, TEXT("Title"), TEXT("read"), File);

	Settings->LoadConfig();

	EXPECT_EQ(Settings->Count, 1);
	EXPECT_EQ(Settings->Title, FString(TEXT("read")));
}

TEST_F(ConfigProperty, NewObjectsTakeTheConfiguredValuesFromTheDefaults)
{
	UObjectTestSettings* Defaults = GetMutableDefault<UObjectTestSettings>();
	Defaults->Count = 31;
	Defaults->NotConfigured = 32;

	UObjectTestSettings* Made = NewObject<UObjectTestSettings>();

	EXPECT_EQ(Made->CountInConstructor, 1);
	EXPECT_EQ(Made->Count, 31);
	EXPECT_EQ(Made->CountAtInit, 31);
	EXPECT_EQ(Made->NotConfigured, 1);
	Defaults->Count = 1;
	Defaults->NotConfigured = 1;
}

TEST_F(ConfigProperty, DerivedClassHasASectionOfItsOwn)
{
	const TCHAR* DerivedSection = TEXT("/Script/CoreUObjectTestTypes.ObjectTestDerivedSettings");
	GConfig->SetInt(Section, TEXT("Count"), 2, File);
	GConfig->SetInt(DerivedSection, TEXT("Count"), 3, File);
	UObjectTestDerivedSettings* Derived = NewObject<UObjectTestDerivedSettings>();

	Derived->LoadConfig();
	EXPECT_EQ(Derived->Count, 3);
	Derived->LoadConfig(UObjectTestSettings::StaticClass());
	EXPECT_EQ(Derived->Count, 2);

	GConfig->EmptySection(DerivedSection, File);
}

TEST_F(ConfigProperty, SavedValuesAreReadBack)
{
	Settings->Count = 77;
	Settings->Title = TEXT("saved \"quoted\", with commas");
	Settings->Names = { TEXT("a b"), TEXT("") };
	Settings->Mode = EObjectTestMode::On;
	Settings->Asset = FSoftObjectPath(TEXT("/Game/Saved.Saved"));
	Settings->SaveConfig();
	GConfig->Flush(true, File);

	UObjectTestSettings* Other = NewObject<UObjectTestSettings>();
	Other->LoadConfig();

	EXPECT_EQ(Other->Count, 77);
	EXPECT_EQ(Other->Title, Settings->Title);
	EXPECT_EQ(Other->Names, Settings->Names);
	EXPECT_EQ(Other->Mode, EObjectTestMode::On);
	EXPECT_EQ(Other->Tint, Settings->Tint);
	EXPECT_EQ(Other->Asset.ToString(), FString(TEXT("/Game/Saved.Saved")));
}
