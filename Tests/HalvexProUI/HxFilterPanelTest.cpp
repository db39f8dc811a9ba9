#include "UnitSceneTest.h"

#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitsFilterManager.h"
#include "KitReflection.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UserWidget/Filters/HxFilterComponent.h"
#include "UserWidget/Filters/HxFilterPanel.h"

using namespace KitReflection;

namespace
{
	/**
	 * A panel over units on levels 0 to 4 with two components: Low lets units from its level upwards pass, High those up to its
	 * own; each has no filter while its level is -1. The graphs count what they are told.
	 */
	class FHxFilterPanelTest : public FUnitSceneTest
	{
	protected:
		void WriteComponent(const TCHAR* Name, const char* Limits)
		{
			Content.Write(*(FString(Name) + TEXT(".widget.json")), R"({ "Parent": "/Script/HalvexProUI.HxFilterComponent",
				"Variables": { "Level": { "Type": "int", "Default": -1 }, "Resets": { "Type": "int", "Default": 0 }, "Units": { "Type": "int", "Default": 0 }, "Updates": { "Type": "int", "Default": 0 } },
				"Root": { "Class": "Spacer" } })");
			const std::string Graph = std::string("local Ranges = Class('/Script/HalvexPro.UnitNumberRangeFilter')\n"
				"function GetBuildUnitFilter(self) if self.Level >= 0 then return Ranges:CreateNumberRangeFilter('Level', ") + Limits + ") end end\n"
				"function OnFilterReset(self) self.Level = -1 self.Resets = self.Resets + 1 end\n"
				"function OnFilterUnitData(self, Data) self.Units = #Data self.Updates = self.Updates + 1 end";
			Content.Write(*(FString(Name) + TEXT(".lua")), Graph.c_str());
		}

		void ShowFilters()
		{
			WriteComponent(TEXT("Low"), "self.Level, 1000");
			WriteComponent(TEXT("High"), "-1000, self.Level");
			Content.Write(TEXT("Filters.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxFilterPanel",
				"Variables": { "Updates": { "Type": "int", "Default": 0 }, "Results": { "Type": "string", "Default": "" } },
				"Root": { "Class": "VerticalBox", "Children": [ { "Class": "/KitScreens/Low.Low", "Name": "Low" }, { "Class": "/KitScreens/High.High", "Name": "High" } ] } })");
			Content.Write(TEXT("Filters.lua"), "function OnUnitDataUpdated(self) self.Updates = self.Updates + 1 end\n"
				"function OnFilterDataUpdated(self, Passing, Total) self.Results = self.Results .. Passing .. '/' .. Total .. ' ' end");
			Panel = CastChecked<UHxFilterPanel>(ShowPanel(TEXT("Filters")));
			Low = CastChecked<UHxFilterComponent>(Panel->GetWidgetFromName(TEXT("Low")));
			High = CastChecked<UHxFilterComponent>(Panel->GetWidgetFromName(TEXT("High")));
		}

		/** The panel with its components attached, over five units that have told their data. */
		void ShowOverFive()
		{
			MakeScene();
			ShowFilters();
			Panel->SetFiltersWidgets({ Low, High });
			SpawnUnits({ TEXT("A"), TEXT("B"), TEXT("C"), TEXT("D"), TEXT("E") });
		}

		static void SetLevel(UHxFilterComponent& Component, int32 Level)
		{
			const FIntProperty* Property = CastFieldChecked<FIntProperty>(Component.GetClass()->FindPropertyByName(TEXT("Level")));
			Property->SetPropertyValue_InContainer(&Component, Level);
		}

		std::string Passing() const
		{
			FString Names;
			for (const AUnitVolumeActor* UnitVolume : Panel->GetUnitVolumeActorsFromFilters())
			{
				Names += UnitVolume->GetUnitData().Name;
			}
			return Host::ToStd(Names);
		}

		UHxFilterPanel* Panel = nullptr;
		UHxFilterComponent* Low = nullptr;
		UHxFilterComponent* High = nullptr;
	};

	TEST_F(FHxFilterPanelTest, FirstDataSeedsTheComponentsAndOpensTheCollection)
	{
		MakeScene();
		ShowFilters();
		Panel->SetFiltersWidgets({ Low, High });
		SetLevel(*Low, 3);
		ASSERT_TRUE(Panel->FilterCollection);
		EXPECT_TRUE(Panel->FilterCollection->IsOnInitialization());
		SpawnUnits({ TEXT("A"), TEXT("B"), TEXT("C"), TEXT("D"), TEXT("E") });
		EXPECT_FALSE(Panel->FilterCollection->IsOnInitialization());
		EXPECT_EQ(Read(*Low, TEXT("Units")), "5");
		EXPECT_EQ(Read(*High, TEXT("Units")), "5");
		EXPECT_EQ(Read(*Panel, TEXT("Updates")), "1");
		EXPECT_EQ(Panel->UnitDataList.Num(), 5);
		EXPECT_EQ(Passing(), "DE");
	}

	TEST_F(FHxFilterPanelTest, ChangeOfOneComponentCommitsTheFiltersOfAll)
	{
		ShowOverFive();
		SetLevel(*Low, 1);
		SetLevel(*High, 3);
		Low->FilterValueHasChange();
		EXPECT_EQ(Passing(), "BCD");
		EXPECT_EQ(Heard(), "3 of 5; ");
	}

	TEST_F(FHxFilterPanelTest, ResultsAreToldToTheGraph)
	{
		ShowOverFive();
		SetLevel(*Low, 4);
		Low->FilterValueHasChange();
		const std::string Results = Read(*Panel, TEXT("Results"));
		EXPECT_EQ(Results.substr(Results.size() - 4), "1/5 ");
	}

	TEST_F(FHxFilterPanelTest, FiltersAreGatheredInTheOrderOfTheComponentsWithNullForNone)
	{
		ShowOverFive();
		SetLevel(*Low, 2);
		Panel->FiltersWidgets.Swap(0, 1);
		const TArray<UUnitFilter*> Filters = Panel->GatherUnitFilters();
		ASSERT_EQ(Filters.Num(), 2);
		EXPECT_EQ(Filters[0], nullptr);
		EXPECT_EQ(CastChecked<UUnitNumberRangeFilter>(Filters[1])->Minimum, 2.0);
	}

	TEST_F(FHxFilterPanelTest, CommittingNothingKeepsTheFilters)
	{
		ShowOverFive();
		SetLevel(*Low, 3);
		Low->FilterValueHasChange();
		Heard();
		Panel->CommitFilters(TArray<UUnitFilter*>());
		EXPECT_EQ(Passing(), "DE");
		EXPECT_EQ(Heard(), "") << "and evaluates nothing";
	}

	TEST_F(FHxFilterPanelTest, NewDataWithoutComponentsDropsTheFilters)
	{
		ShowOverFive();
		SetLevel(*Low, 3);
		Low->FilterValueHasChange();
		Panel->SetFiltersWidgets(TArray<UHxFilterComponent*>());
		EXPECT_EQ(Passing(), "DE");
		Manager->AnnounceUnitData();
		EXPECT_EQ(Passing(), "ABCDE");
	}

	TEST_F(FHxFilterPanelTest, ComponentThatIsGivenTwiceCommitsTwice)
	{
		ShowOverFive();
		const Host::FExpectedLog Doubled(TEXT("Ensure"));
		Panel->SetFiltersWidgets({ Low });
		SetLevel(*Low, 4);
		Low->FilterValueHasChange();
		EXPECT_EQ(Heard(), "1 of 5; 1 of 5; ");
	}

	TEST_F(FHxFilterPanelTest, ComponentsBeforeAreStillListenedTo)
	{
		ShowOverFive();
		{
			const Host::FExpectedLog Doubled(TEXT("Ensure"));
			Panel->SetFiltersWidgets({ High });
		}
		SetLevel(*Low, 4);
		SetLevel(*High, 1);
		Low->FilterValueHasChange();
		EXPECT_EQ(Passing(), "AB") << "but only the filters of the new ones count";
	}

	TEST_F(FHxFilterPanelTest, DataCanBeStoredWithoutTellingTheComponents)
	{
		ShowOverFive();
		const std::string Before = Read(*Low, TEXT("Updates"));
		Panel->SetUnitData({ FUnitData(), FUnitData() }, false);
		EXPECT_EQ(Panel->UnitDataList.Num(), 2);
		EXPECT_EQ(Read(*Low, TEXT("Updates")), Before);
		Panel->SetUnitData(Panel->UnitDataList);
		EXPECT_EQ(Panel->UnitDataList.Num(), 2);
		EXPECT_EQ(Read(*Low, TEXT("Units")), "2");
	}

	TEST_F(FHxFilterPanelTest, ReactivityHasNoEffect)
	{
		ShowOverFive();
		for (const bool bReactive : { false, true })
		{
			Panel->SetReactivityFilters(bReactive);
			SetLevel(*Low, bReactive ? 1 : 2);
			Low->FilterValueHasChange();
			EXPECT_EQ(Passing(), bReactive ? "BCDE" : "CDE");
		}
	}

	TEST_F(FHxFilterPanelTest, ClearingAllResetsEveryComponentAndCommitsNothingByItself)
	{
		ShowOverFive();
		SetLevel(*Low, 3);
		Low->FilterValueHasChange();
		Panel->Received_OnClearAllFilters();
		EXPECT_EQ(Read(*Low, TEXT("Resets")), "1");
		EXPECT_EQ(Read(*High, TEXT("Resets")), "1");
		EXPECT_EQ(Passing(), "DE") << "until a component tells of its change, or the scene drops the filters itself";
		Low->FilterValueHasChange();
		EXPECT_EQ(Passing(), "ABCDE");
	}

	TEST_F(FHxFilterPanelTest, SceneClearsAllFilters)
	{
		ShowOverFive();
		SetLevel(*Low, 3);
		Low->FilterValueHasChange();
		Filters->ClearAllFilters();
		EXPECT_EQ(Read(*Low, TEXT("Resets")), "1");
		EXPECT_EQ(Passing(), "ABCDE");
	}

	TEST_F(FHxFilterPanelTest, ScanningForFiltersHasNoEffect)
	{
		MakeScene();
		ShowFilters();
		Panel->bScanForFilters = true;
		SpawnUnits({ TEXT("A") });
		EXPECT_TRUE(Panel->FiltersWidgets.IsEmpty());
	}

	TEST_F(FHxFilterPanelTest, WithoutAManagerItIsInert)
	{
		ShowFilters();
		Panel->SetFiltersWidgets({ Low, High });
		SetLevel(*Low, 1);
		Low->FilterValueHasChange();
		Panel->ResetFilters();
		EXPECT_EQ(Read(*Low, TEXT("Resets")), "1");
		EXPECT_FALSE(Panel->FilterCollection);
		EXPECT_TRUE(Panel->GetUnitVolumeActorsFromFilters().IsEmpty());
	}

	TEST_F(FHxFilterPanelTest, ComponentWithoutListenersTellsNobody)
	{
		ShowFilters();
		Low->FilterValueHasChange();
		EXPECT_FALSE(Low->OnFiltersChanged.IsBound());
	}

	TEST_F(FHxFilterPanelTest, MembersAreReflectedAsBlueprintsKnowThem)
	{
		EXPECT_EQ(ListNames(UHxFilterPanel::StaticClass()), "bScanForFilters FiltersWidgets UnitVolumesManager UnitDataList FilterManager FilterCollection");
		EXPECT_EQ(ListOutsideCategory(UHxFilterPanel::StaticClass(), TEXT("HalvexFiltersPanelUW")), "");
		EXPECT_EQ(ListOutsideCategory(UHxFilterComponent::StaticClass(), TEXT("HalvexFilterUW")), "");
		EXPECT_EQ(GetMeta(UHxFilterComponent::StaticClass(), TEXT("OnFiltersChanged"), TEXT("ToolTip")), "HalvexFilterPanelUW will bind this event to knows when need to refresh the filters");
	}
}
