#include "KitReflection.h"
#include "KitTest.h"

#include "Components/CheckBox.h"
#include "Components/ComboBoxString.h"
#include "GameFramework/GameUserSettings.h"
#include "HAL/IConsoleManager.h"
#include "Host/ConfigFiles.h"
#include "Host/Displays.h"
#include "Misc/ConfigCacheIni.h"
#include "RestoredVariable.h"
#include "TemporaryContent.h"
#include "UserWidget/Settings/HalvexSettingCommand.h"
#include "UserWidget/Settings/HalvexSettingDropdown.h"
#include "UserWidget/Settings/HalvexSettingGeneral.h"
#include "UserWidget/Settings/HalvexSettingToggle.h"

#include <sys/inotify.h>
#include <unistd.h>

using namespace KitReflection;

namespace
{
	/** How often a file is opened, by whomever, for as long as this lives. */
	class FFileReads
	{
	public:
		explicit FFileReads(const FString& Filename)
			: Watch(inotify_init1(IN_NONBLOCK))
		{
			EXPECT_GE(inotify_add_watch(Watch, TCHAR_TO_UTF8(*Filename), IN_OPEN), 0);
		}
		~FFileReads() { close(Watch); }
		FFileReads(const FFileReads&) = delete;
		FFileReads& operator=(const FFileReads&) = delete;

		int Count()
		{
			inotify_event Event = {};
			while (read(Watch, &Event, sizeof(Event)) == sizeof(Event))
			{
				++NumReads;
			}
			return NumReads;
		}

	private:
		int Watch;
		int NumReads = 0;
	};

	/** Takes a number away from the console until its end. */
	class FUnregisteredVariable
	{
	public:
		explicit FUnregisteredVariable(const TCHAR* InName)
			: Name(InName)
		{
			const IConsoleVariable* const Variable = IConsoleManager::Get().FindConsoleVariable(Name);
			Help = Variable->GetHelp();
			Default = FCString::Atof(*Variable->GetDefaultValue());
			IConsoleManager::Get().UnregisterConsoleObject(Name);
		}
		~FUnregisteredVariable() { IConsoleManager::Get().RegisterConsoleVariable(Name, Default, *Help); }
		FUnregisteredVariable(const FUnregisteredVariable&) = delete;
		FUnregisteredVariable& operator=(const FUnregisteredVariable&) = delete;

	private:
		const TCHAR* Name;
		FString Help;
		float Default = 0.0f;
	};

	/** A settings panel with two drop-down rows, two toggles and an apply button. */
	class FSettingRowsTest : public FKitTest
	{
	protected:
		virtual void SetUp() override
		{
			FKitTest::SetUp();
			Content.Write(TEXT("Drop.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HalvexSettingDropdown",
				"Root": { "Class": "ComboBoxString", "Name": "SettingWidget" } })");
			Content.Write(TEXT("Toggle.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HalvexSettingToggle",
				"Root": { "Class": "CheckBox", "Name": "SettingWidget" } })");
			Settings().SetToDefaults();
			Settings().SetOverallScalabilityLevel(1);
			Settings().SetFullscreenMode(EWindowMode::Windowed);
			Settings().SetVSyncEnabled(false);
			Settings().ApplySettings(false);
		}

		virtual void TearDown() override
		{
			FKitTest::TearDown();
			Host::FDisplays::Reset();
			Settings().SetToDefaults();
			Settings().ApplySettings(false);
		}

		static UGameUserSettings& Settings() { return *UGameUserSettings::GetGameUserSettings(); }

		/** Shows a panel of the apply type with four rows: Shadow, Texture, Full, Sync. */
		UHalvexSettingGeneral& ShowPanel(const char* ApplyType)
		{
			const FString Text = FString::Printf(TEXT(R"({ "Parent": "/Script/HalvexProUI.HalvexSettingGeneral", "Defaults": { "SettingsApplyType": "%s" },
				"Root": { "Class": "VerticalBox", "Children": [
					{ "Class": "/KitScreens/Drop.Drop", "Name": "Shadow", "Properties": { "SettingType": "ESTD_Shadow" } },
					{ "Class": "/KitScreens/Drop.Drop", "Name": "Texture", "Properties": { "SettingType": "ESTD_Texture", "bAutoApplyOnChange": true } },
					{ "Class": "/KitScreens/Toggle.Toggle", "Name": "Full", "Properties": { "SettingType": "ESTT_FullScreen" } },
					{ "Class": "/KitScreens/Toggle.Toggle", "Name": "Sync", "Properties": { "SettingType": "ESTT_VSync" } },
					{ "Class": "HxButton", "Name": "Btn_ApplyConfirmation", "Properties": { "SizeOverride": { "SizeOverride": { "X": 80, "Y": 30 } } } } ] } })"),
				UTF8_TO_TCHAR(ApplyType));
			const FString Name = FString(TEXT("Panel_")) + UTF8_TO_TCHAR(ApplyType);
			Content.Write(*(Name + TEXT(".widget.json")), TCHAR_TO_UTF8(*Text));
			Panel = MakeOf<UHalvexSettingGeneral>(*Name);
			Place(*Panel, 20.0, 20.0, FVector2D(400.0, 300.0));
			Show();
			return *Panel;
		}

		template <typename T>
		T* MakeOf(const TCHAR* Blueprint)
		{
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/KitScreens/%s.%s_C"), Blueprint, Blueprint));
			return CastChecked<T>(CreateWidget<UUserWidget>(Screen->WidgetTree, Class));
		}

		/** A row of a native class, in the screen's tree. */
		template <typename T>
		T* MakeOfClass()
		{
			return CreateWidget<T>(Screen->WidgetTree);
		}

		UHalvexSettingDropdown& MakeDrop(ESettingTypeDropdown Type)
		{
			UHalvexSettingDropdown* Row = MakeOf<UHalvexSettingDropdown>(TEXT("Drop"));
			Row->SettingType = Type;
			Row->LoadSetting();
			return *Row;
		}

		template <typename T>
		T& Row(const TCHAR* Name) const
		{
			return *CastChecked<T>(Panel->GetWidgetFromName(Name));
		}

		/** Chooses an option with the mouse. */
		void Choose(const TCHAR* Name, const TCHAR* Option)
		{
			Click(*Row<UHalvexSettingDropdown>(Name).SettingWidget);
			Settle();
			ASSERT_TRUE(Driver.Click(FString(TEXT("text:")) + Option)) << Host::ToStd(Driver.GetError());
			Settle();
		}

		static FString ReadSaved(const TCHAR* Key)
		{
			FString Value;
			GConfig->Flush(true, GGameUserSettingsIni);
			GConfig->GetString(TEXT("ScalabilityGroups"), Key, Value, GGameUserSettingsIni);
			return Value;
		}

		Host::FTemporaryContent Content{ TEXT("/KitScreens/") };
		UHalvexSettingGeneral* Panel = nullptr;
	};

	TEST_F(FSettingRowsTest, RowsShowTheValuesOfTheUserSettings)
	{
		Settings().SetShadowQuality(3);
		Settings().SetFullscreenMode(EWindowMode::Fullscreen);
		Settings().SetVSyncEnabled(true);
		ShowPanel("ESAT_Confirmation");
		EXPECT_EQ(Host::ToStd(Row<UHalvexSettingDropdown>(TEXT("Shadow")).SettingWidget->GetSelectedOption()), "Epic");
		EXPECT_EQ(Host::ToStd(Row<UHalvexSettingDropdown>(TEXT("Texture")).SettingWidget->GetSelectedOption()), "Medium");
		EXPECT_TRUE(Row<UHalvexSettingToggle>(TEXT("Full")).SettingWidget->IsChecked()) << "exclusive full screen shows as checked too";
		EXPECT_TRUE(Row<UHalvexSettingToggle>(TEXT("Sync")).SettingWidget->IsChecked());
	}

	TEST_F(FSettingRowsTest, ChangeWaitsForTheConfirmation)
	{
		ShowPanel("ESAT_Confirmation");
		UHalvexSettingDropdown& Shadow = Row<UHalvexSettingDropdown>(TEXT("Shadow"));
		Choose(TEXT("Shadow"), TEXT("Epic"));
		EXPECT_EQ(Settings().GetShadowQuality(), 3) << "in the user settings at once";
		EXPECT_EQ(Host::ToStd(ReadSaved(TEXT("sg.ShadowQuality"))), "1") << "but not saved";
		EXPECT_TRUE(Shadow.bSettingMarkDirty);
		EXPECT_TRUE(Panel->IsSettingsMarkAsDirty());

		Click(*Panel->GetWidgetFromName(TEXT("Btn_ApplyConfirmation")));
		EXPECT_EQ(Host::ToStd(ReadSaved(TEXT("sg.ShadowQuality"))), "3");
		EXPECT_FALSE(Shadow.bSettingMarkDirty);
		EXPECT_FALSE(Panel->IsSettingsMarkAsDirty());
	}

	TEST_F(FSettingRowsTest, ConfirmingWithNothingChangedDoesNothing)
	{
		ShowPanel("ESAT_Confirmation");
		Settings().SetShadowQuality(4);
		Click(*Panel->GetWidgetFromName(TEXT("Btn_ApplyConfirmation")));
		EXPECT_EQ(Host::ToStd(ReadSaved(TEXT("sg.ShadowQuality"))), "1") << "not saved";
		EXPECT_EQ(Row<UHalvexSettingDropdown>(TEXT("Shadow")).SettingWidget->GetSelectedIndex(), 1) << "and no row shows it";
		EXPECT_FALSE(Panel->ApplySettingsIfMarkedAsDirty());
		Panel->MarkSettingsAsDirty();
		EXPECT_TRUE(Panel->ApplySettingsIfMarkedAsDirty());
		EXPECT_EQ(Row<UHalvexSettingDropdown>(TEXT("Shadow")).SettingWidget->GetSelectedIndex(), 4);
	}

	TEST_F(FSettingRowsTest, AutoApplySavesAtOnceAndLeavesThePanelClean)
	{
		ShowPanel("ESAT_AutoApply");
		Choose(TEXT("Shadow"), TEXT("High"));
		EXPECT_EQ(Host::ToStd(ReadSaved(TEXT("sg.ShadowQuality"))), "2");
		EXPECT_FALSE(Panel->IsSettingsMarkAsDirty());
	}

	TEST_F(FSettingRowsTest, ApplyTypeRulesTheRowsUnlessItIsCustom)
	{
		ShowPanel("ESAT_Confirmation");
		EXPECT_FALSE(Row<UHalvexSettingItem>(TEXT("Texture")).bAutoApplyOnChange);
		Panel->RemoveFromParent();
		StartScreen();
		ShowPanel("ESAT_Custom");
		EXPECT_FALSE(Row<UHalvexSettingItem>(TEXT("Shadow")).bAutoApplyOnChange);
		EXPECT_TRUE(Row<UHalvexSettingItem>(TEXT("Texture")).bAutoApplyOnChange);
	}

	TEST_F(FSettingRowsTest, FullScreenMeansABorderlessWindow)
	{
		ShowPanel("ESAT_Confirmation");
		const UHalvexSettingToggle& Full = Row<UHalvexSettingToggle>(TEXT("Full"));
		Click(*Full.SettingWidget);
		EXPECT_EQ(Settings().GetFullscreenMode(), EWindowMode::WindowedFullscreen);
		EXPECT_TRUE(Panel->IsSettingsMarkAsDirty());
		Click(*Full.SettingWidget);
		EXPECT_EQ(Settings().GetFullscreenMode(), EWindowMode::Windowed);
	}

	TEST_F(FSettingRowsTest, VerticalSyncFollowsItsBox)
	{
		ShowPanel("ESAT_AutoApply");
		Click(*Row<UHalvexSettingToggle>(TEXT("Sync")).SettingWidget);
		EXPECT_TRUE(Settings().IsVSyncEnabled());
		EXPECT_FALSE(Panel->IsSettingsMarkAsDirty());
	}

	TEST_F(FSettingRowsTest, EachTypeReadsAndWritesItsOwnLevel)
	{
		struct FCase
		{
			ESettingTypeDropdown Type;
			int32 (UGameUserSettings::*Get)() const;
		};
		const FCase Cases[] = {
			{ ESettingTypeDropdown::ESTD_Shadow, &UGameUserSettings::GetShadowQuality },
			{ ESettingTypeDropdown::ESTD_Shading, &UGameUserSettings::GetShadingQuality },
			{ ESettingTypeDropdown::ESTD_Foliage, &UGameUserSettings::GetFoliageQuality },
			{ ESettingTypeDropdown::ESTD_Texture, &UGameUserSettings::GetTextureQuality },
			{ ESettingTypeDropdown::ESTD_Reflection, &UGameUserSettings::GetReflectionQuality },
			{ ESettingTypeDropdown::ESTD_AA, &UGameUserSettings::GetAntiAliasingQuality },
			{ ESettingTypeDropdown::ESTD_Audio, &UGameUserSettings::GetAudioQualityLevel },
			{ ESettingTypeDropdown::ESTD_VFX, &UGameUserSettings::GetVisualEffectQuality },
			{ ESettingTypeDropdown::ESTD_GIllumination, &UGameUserSettings::GetGlobalIlluminationQuality },
			{ ESettingTypeDropdown::ESTD_PostProcess, &UGameUserSettings::GetPostProcessingQuality },
			{ ESettingTypeDropdown::ESTD_ViewDistance, &UGameUserSettings::GetViewDistanceQuality },
		};
		Settings().SetAudioQualityLevel(1);
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(static_cast<int32>(Case.Type));
			UHalvexSettingDropdown& Drop = MakeDrop(Case.Type);
			EXPECT_EQ(Drop.SettingWidget->GetSelectedIndex(), 1);
			Drop.SettingWidget->SetSelectedIndex(3);
			Drop.SetSetting();
			EXPECT_EQ((Settings().*Case.Get)(), 3);
		}
	}

	TEST_F(FSettingRowsTest, GeneralWritesEveryGroup)
	{
		UHalvexSettingDropdown& Drop = MakeDrop(ESettingTypeDropdown::ESTD_General);
		Drop.SettingWidget->SetSelectedIndex(0);
		Drop.SetSetting();
		EXPECT_EQ(Settings().GetOverallScalabilityLevel(), 0);
		EXPECT_EQ(Settings().GetFoliageQuality(), 0);
	}

	TEST_F(FSettingRowsTest, GapsInTheLevelsWriteTheirLevelAndSelectTheirPlace)
	{
		UHalvexSettingDropdown& Drop = MakeDrop(ESettingTypeDropdown::ESTD_Shadow);
		Drop.OptionsToDisplay.Empty();
		Drop.OptionsToDisplay.Add(1, FText::FromString(TEXT("Medium")));
		Drop.OptionsToDisplay.Add(3, FText::FromString(TEXT("Epic")));
		Drop.FillUpOptions();
		ASSERT_EQ(Drop.SettingWidget->GetOptionCount(), 2);
		Drop.SettingWidget->SetSelectedOption(TEXT("epic"));
		Drop.SetSetting();
		EXPECT_EQ(Settings().GetShadowQuality(), 3);
		Drop.RefreshSetting();
		EXPECT_EQ(Drop.SettingWidget->GetSelectedIndex(), 1) << "option 3 does not exist";
	}

	TEST_F(FSettingRowsTest, ResolutionsAreOfferedAsTheDisplayListsThem)
	{
		Host::FDisplays::Set({ { 1280, 720, 60 }, { 1920, 1080, 60 } }, { 1920, 1080, 60 });
		Settings().SetScreenResolution(FIntPoint(1920, 1080));
		UHalvexSettingDropdown& Drop = MakeDrop(ESettingTypeDropdown::ESTD_Resolution);
		EXPECT_EQ(Host::ToStd(Drop.SettingWidget->GetSelectedOption()), "1920x1080");
		Drop.SettingWidget->SetSelectedOption(TEXT("1280x720"));
		Drop.SetSetting();
		EXPECT_EQ(Settings().GetScreenResolution(), FIntPoint(1280, 720));
	}

	TEST_F(FSettingRowsTest, ResolutionThatIsNotOfferedLeavesTheSelection)
	{
		Host::FDisplays::Set({ { 1280, 720, 60 }, { 1920, 1080, 60 } }, { 1920, 1080, 60 });
		Settings().SetScreenResolution(FIntPoint(1280, 720));
		UHalvexSettingDropdown& Drop = MakeDrop(ESettingTypeDropdown::ESTD_Resolution);
		Settings().SetScreenResolution(FIntPoint(1234, 567));
		Drop.RefreshSetting();
		EXPECT_EQ(Host::ToStd(Drop.SettingWidget->GetSelectedOption()), "1280x720");
	}

	TEST_F(FSettingRowsTest, WithoutASelectionTheResolutionStays)
	{
		Host::FDisplays::Set({ { 1280, 720, 60 } }, { 1280, 720, 60 });
		Settings().SetScreenResolution(FIntPoint(1234, 567));
		UHalvexSettingDropdown& Drop = MakeDrop(ESettingTypeDropdown::ESTD_Resolution);
		Drop.SetSetting();
		EXPECT_EQ(Settings().GetScreenResolution(), FIntPoint(1234, 567));
	}

	TEST_F(FSettingRowsTest, SelectionMadeByTheRowItselfIsTakenAndLeavesItClean)
	{
		ShowPanel("ESAT_Confirmation");
		UHalvexSettingDropdown& Shadow = Row<UHalvexSettingDropdown>(TEXT("Shadow"));
		Settings().SetShadowQuality(4);
		Shadow.RefreshSetting();
		EXPECT_EQ(Shadow.SettingWidget->GetSelectedIndex(), 4);
		EXPECT_FALSE(Shadow.bSettingMarkDirty) << "cleared at the end of the refresh";
		EXPECT_TRUE(Panel->IsSettingsMarkAsDirty()) << "told of the change all the same";
	}

	TEST_F(FSettingRowsTest, TwoPanelsLoadTheFileOnce)
	{
		Content.Write(TEXT("Loading.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HalvexSettingGeneral",
			"Root": { "Class": "VerticalBox", "Children": [
				{ "Class": "/KitScreens/Drop.Drop", "Name": "Shadow", "Properties": { "SettingType": "ESTD_Shadow", "bUseLoadSetting": true } },
				{ "Class": "/KitScreens/Drop.Drop", "Name": "Texture", "Properties": { "SettingType": "ESTD_Texture", "bUseLoadSetting": true } } ] } })");
		FFileReads Reads(Host::FConfigFiles::GetUserFile(GGameUserSettingsIni));
		Settings().SetShadowQuality(4);
		GConfig->Flush(true, GGameUserSettingsIni);
		MakeOf<UHalvexSettingGeneral>(TEXT("Loading"));
		EXPECT_EQ(Settings().GetShadowQuality(), 1) << "what was not applied is gone";
		EXPECT_EQ(Reads.Count(), 1);

		Settings().SetShadowQuality(4);
		GConfig->Flush(true, GGameUserSettingsIni);
		MakeOf<UHalvexSettingGeneral>(TEXT("Loading"));
		EXPECT_EQ(Settings().GetShadowQuality(), 4);
		EXPECT_EQ(Reads.Count(), 1);
	}

	TEST_F(FSettingRowsTest, GraphsAnswerTheEventsOfARow)
	{
		Content.Write(TEXT("Named.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HalvexSettingDropdown",
			"Root": { "Class": "ComboBoxString", "Name": "SettingWidget" } })");
		Content.Write(TEXT("Named.lua"), "function GetResolutionFormatString(self, Value) return Value.X .. ' by ' .. Value.Y end");
		Host::FDisplays::Set({ { 1280, 720, 60 } }, { 1280, 720, 60 });
		UHalvexSettingDropdown* Row = MakeOf<UHalvexSettingDropdown>(TEXT("Named"));
		Row->SettingType = ESettingTypeDropdown::ESTD_Resolution;
		Row->LoadSetting();
		EXPECT_NE(Row->SettingWidget->FindOptionIndex(TEXT("1280 by 720")), INDEX_NONE);
	}

	TEST_F(FSettingRowsTest, ScreenPercentageIsSetAsAWholeNumber)
	{
		const Host::FRestoredVariable Restored(TEXT("r.ScreenPercentage"));
		UHalvexSettingCommand* Row = MakeOfClass<UHalvexSettingCommand>();
		Row->SetScreenPercentageValue(75.6f);
		EXPECT_EQ(Row->GetScreenPercentageValue(), 75.0f);
	}

	TEST_F(FSettingRowsTest, WithoutItsVariableTheScreenPercentageIsBelowZero)
	{
		UHalvexSettingCommand* Row = MakeOfClass<UHalvexSettingCommand>();
		const FUnregisteredVariable Gone(TEXT("r.ScreenPercentage"));
		EXPECT_EQ(Row->GetScreenPercentageValue(), -1.0f);
		Settings().ApplyNonResolutionSettings();
		EXPECT_EQ(Row->GetScreenPercentageValue(), -1.0f) << "nothing brings it back";
		const Host::FExpectedLog Unknown(TEXT("'r.ScreenPercentage 75' is no console command"));
		Row->SetScreenPercentageValue(75.0f);
	}

	TEST_F(FSettingRowsTest, DesignersAreToldWhatTheRowsAre)
	{
		EXPECT_EQ(ListNames(UHalvexSettingItem::StaticClass()), "bSettingMarkDirty OnSettingItemDirty bAutoApplyOnChange bUseLoadSetting");
		EXPECT_EQ(ListNames(UHalvexSettingDropdown::StaticClass()), "SettingType SettingWidget OptionsToDisplay");
		EXPECT_EQ(ListNames(UHalvexSettingToggle::StaticClass()), "SettingType SettingWidget");
		EXPECT_EQ(GetMeta(UHalvexSettingItem::StaticClass(), TEXT("bUseLoadSetting"), TEXT("ToolTip")),
			"Call the load settings from GameUserSettings on NativeOnInitialized process. Recommended use a general apply");
		EXPECT_EQ(GetMeta(UHalvexSettingDropdown::StaticClass(), TEXT("OptionsToDisplay"), TEXT("EditCondition")), "SettingType!=ESettingTypeDropdown::ESTD_Resolution");
		const UHalvexSettingDropdown* Default = GetDefault<UHalvexSettingDropdown>();
		std::string Labels;
		for (const TPair<int32, FText>& Option : Default->OptionsToDisplay)
		{
			Labels += std::to_string(Option.Key) + Host::ToStd(Option.Value) + " ";
		}
		EXPECT_EQ(Labels, "0Low 1Medium 2High 3Epic 4Cinematic ");
		const UEnum* Types = StaticEnum<ESettingTypeDropdown>();
		EXPECT_EQ(Host::ToStd(Types->GetDisplayNameTextByValue(10)), "Global Ilumination");
	}
}
