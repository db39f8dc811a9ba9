#include "SceneTest.h"

#include "CountingUnitFilter.h"
#include "Filters/UnitChoiceFilter.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Misc/Paths.h"
#include "Project/UnitTableReader.h"

namespace
{
	using FUnitsFilterManagerTest = FSceneTest;

	UUnitFilter* Levels(double Minimum, double Maximum)
	{
		return UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, Minimum, Maximum);
	}

	UUnitFilter* Prices(double Minimum, double Maximum)
	{
		return UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, Minimum, Maximum);
	}

	TEST_F(FUnitsFilterManagerTest, WithoutFiltersEveryUnitPassesInTheScenesOrder)
	{
		SpawnUnits(4);
		EXPECT_EQ(Passing(), "ABCD");
		EXPECT_EQ(Filters->GetCurrentFilterResult().SelectionNum, 4);
		EXPECT_EQ(Filters->GetCurrentFilterResult().TotalNum, 4);
	}

	TEST_F(FUnitsFilterManagerTest, UnitMustPassAllFiltersOfAllCollections)
	{
		SpawnUnits(6);
		AddCollection({ Levels(1.0, 4.0), Prices(0.0, 400.0) });
		EXPECT_EQ(Passing(), "BCD");
		AddCollection({ Levels(3.0, 9.0) });
		EXPECT_EQ(Passing(), "D");
		EXPECT_EQ(Heard(), "result 3 of 6; result 1 of 6; ");
		EXPECT_TRUE(Unit(TEXT("A")).IsFilteredOut());
		EXPECT_FALSE(Unit(TEXT("D")).IsFilteredOut());
	}

	TEST_F(FUnitsFilterManagerTest, ReplacedFiltersTakeTheirPlaceAtOnce)
	{
		SpawnUnits(4);
		UUnitFilterCollection* const Collection = AddCollection({ Levels(0.0, 0.0) });
		Heard();
		Collection->ReplaceFilters({ Levels(2.0, 3.0) });
		EXPECT_EQ(Heard(), "result 2 of 4; ");
		EXPECT_EQ(Passing(), "CD");
		Collection->ReplaceFilters({});
		EXPECT_EQ(Heard(), "result 4 of 4; ");
	}

	TEST_F(FUnitsFilterManagerTest, ReplacingByTheSameFiltersRaisesAResultAsWell)
	{
		SpawnUnits(4);
		UUnitFilterCollection* const Collection = AddCollection({ Levels(0.0, 1.0) });
		Heard();
		Collection->ReplaceFilters(Collection->GetFilters());
		EXPECT_EQ(Heard(), "result 2 of 4; ");
	}

	TEST_F(FUnitsFilterManagerTest, NullFiltersStopNothingAndKeepTheirPlace)
	{
		SpawnUnits(3);
		UUnitFilterCollection* const Collection = AddCollection({ nullptr, Levels(1.0, 1.0), nullptr });
		EXPECT_EQ(Passing(), "B");
		EXPECT_EQ(Collection->GetFilters().Num(), 3);
		EXPECT_EQ(Collection->GetFilters()[0], nullptr);
	}

	TEST_F(FUnitsFilterManagerTest, CollectionOnInitialisationStopsNothingUntilItIsFinished)
	{
		SpawnUnits(3);
		UUnitFilterCollection* const Collection = UUnitFilterCollection::CreateUnitFilterCollection({}, true);
		EXPECT_TRUE(Collection->IsOnInitialization());
		Filters->RegisterFilterCollection(Collection);
		Collection->ReplaceFilters({ Levels(1.0, 1.0) });
		EXPECT_EQ(Heard(), "");
		EXPECT_EQ(Passing(), "ABC");
		Collection->FinishInitialization();
		EXPECT_FALSE(Collection->IsOnInitialization());
		EXPECT_EQ(Heard(), "result 1 of 3; ");
		Collection->FinishInitialization();
		EXPECT_EQ(Heard(), "");
		EXPECT_EQ(Passing(), "B");
	}

	TEST_F(FUnitsFilterManagerTest, CollectionIsRegisteredOnce)
	{
		SpawnUnits(2);
		UUnitFilterCollection* const Collection = AddCollection({ Levels(1.0, 1.0) });
		Filters->RegisterFilterCollection(Collection);
		Filters->RegisterFilterCollection(nullptr);
		EXPECT_EQ(Heard(), "result 1 of 2; ");
		Collection->ReplaceFilters({});
		EXPECT_EQ(Heard(), "result 2 of 2; ");
	}

	TEST_F(FUnitsFilterManagerTest, UnregisteredCollectionStopsNothing)
	{
		SpawnUnits(2);
		UUnitFilterCollection* const Collection = AddCollection({ Levels(1.0, 1.0) });
		Heard();
		Filters->UnregisterFilterCollection(Collection);
		EXPECT_EQ(Heard(), "result 2 of 2; ");
		Collection->ReplaceFilters({ Levels(9.0, 9.0) });
		Filters->UnregisterFilterCollection(Collection);
		Filters->UnregisterFilterCollection(nullptr);
		EXPECT_EQ(Heard(), "");
		EXPECT_EQ(Passing(), "AB");
	}

	TEST_F(FUnitsFilterManagerTest, ClearingTakesOutAllFiltersAndEndsInOneResult)
	{
		SpawnUnits(3);
		UUnitFilterCollection* const First = AddCollection({ Levels(1.0, 2.0) });
		AddCollection({ Levels(0.0, 1.0) });
		Heard();
		Listener->InClear = [First] { First->ReplaceFilters({ nullptr }); };
		Filters->ClearAllFilters();
		EXPECT_EQ(Heard(), "clear all; result 3 of 3; ");
		EXPECT_EQ(Passing(), "ABC");
	}

	TEST_F(FUnitsFilterManagerTest, ClearingWithoutFiltersIsHeardAsWell)
	{
		SpawnUnits(1);
		Filters->ClearAllFilters();
		EXPECT_EQ(Heard(), "clear all; result 1 of 1; ");
	}

	TEST_F(FUnitsFilterManagerTest, ChangeInAHandlerIsEvaluatedAfterIt)
	{
		SpawnUnits(4);
		UUnitFilterCollection* const Collection = AddCollection({ Levels(0.0, 2.0) });
		Heard();
		bool bChanged = false;
		Listener->InResult = [&]
		{
			if (!bChanged)
			{
				bChanged = true;
				Collection->ReplaceFilters({ Levels(3.0, 3.0) });
				EXPECT_EQ(Passing(), "D");
			}
		};
		Filters->RefreshFilterResult();
		EXPECT_EQ(Heard(), "result 3 of 4; result 1 of 4; ");
		EXPECT_EQ(Listener->Result.SelectionNum, 1);
	}

	TEST_F(FUnitsFilterManagerTest, HandlersThatNeverRestAreStopped)
	{
		SpawnUnits(1);
		UUnitFilterCollection* const Collection = AddCollection({});
		Listener->InResult = [Collection] { Collection->ReplaceFilters({}); };
		const Host::FExpectedLog Warning(TEXT("handlers of the filter result change the filters at every result"));
		Filters->RefreshFilterResult();
		Listener->InResult = nullptr;
		Heard();
		Filters->RefreshFilterResult();
		EXPECT_EQ(Heard(), "result 1 of 1; ");
	}

	TEST_F(FUnitsFilterManagerTest, ChangesWhileResultsAreHeldEndInOneResult)
	{
		UUnitFilterCollection* const Collection = UUnitFilterCollection::CreateUnitFilterCollection({}, true);
		Filters->RegisterFilterCollection(Collection);
		Manager->SpawnUnits({ MakeUnit(TEXT("A"), 0), MakeUnit(TEXT("B"), 1) });
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
		{
			const UUnitsFilterManager::FHoldResults Hold(*Filters);
			Collection->ReplaceFilters({ Levels(1.0, 1.0) });
			Collection->FinishInitialization();
			EXPECT_EQ(Passing(), "B");
			EXPECT_EQ(Heard(), "");
		}
		EXPECT_EQ(Heard(), "result 1 of 2; ");
	}

	TEST_F(FUnitsFilterManagerTest, AnswerOfAnUnchangedFilterIsKept)
	{
		SpawnUnits(4);
		UCountingUnitFilter* const Counting = NewObject<UCountingUnitFilter>();
		Counting->Condition = TEXT("even");
		UUnitFilterCollection* const Collection = AddCollection({ Counting, Levels(0.0, 9.0) });
		EXPECT_EQ(Passing(), "AC");
		EXPECT_EQ(Counting->NumEvaluations, 1);

		UCountingUnitFilter* const Same = NewObject<UCountingUnitFilter>();
		Same->Condition = TEXT("even");
		Collection->ReplaceFilters({ Same, Levels(1.0, 9.0) });
		EXPECT_EQ(Passing(), "C");
		EXPECT_EQ(Same->NumEvaluations, 0);

		Collection->ReplaceFilters({});
		Collection->ReplaceFilters({ Same });
		EXPECT_EQ(Same->NumEvaluations, 1) << "an answer that is not needed is forgotten";
	}

	TEST_F(FUnitsFilterManagerTest, ChangedUnitIsAskedAloneAgain)
	{
		SpawnUnits(4);
		UCountingUnitFilter* const Counting = NewObject<UCountingUnitFilter>();
		Counting->Condition = TEXT("even");
		AddCollection({ Counting });
		EXPECT_EQ(Counting->NumUnitsAsked, 4);
		FUnitData Data = Unit(TEXT("B")).GetUnitData();
		Data.Level = 4;
		Unit(TEXT("B")).SetUnitVolumeSceneData(Data);
		EXPECT_EQ(Passing(), "ABC");
		EXPECT_EQ(Counting->NumUnitsAsked, 5);
		EXPECT_EQ(Counting->NumEvaluations, 1);
	}

	TEST_F(FUnitsFilterManagerTest, FilterWithoutAConditionTextIsAskedEachTimeAboutWhatStillPasses)
	{
		SpawnUnits(6);
		UCountingUnitFilter* const Counting = NewObject<UCountingUnitFilter>();
		UUnitFilterCollection* const Collection = AddCollection({ Levels(0.0, 2.0), Counting });
		EXPECT_EQ(Passing(), "AC");
		EXPECT_EQ(Counting->NumUnitsAsked, 3);
		Collection->ReplaceFilters(Collection->GetFilters());
		EXPECT_EQ(Counting->NumUnitsAsked, 6);
	}

	TEST_F(FUnitsFilterManagerTest, FilterEditedInPlaceCountsFromTheNextEvaluation)
	{
		SpawnUnits(4);
		UUnitNumberRangeFilter* const Filter = UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, 0.0, 1.0);
		AddCollection({ Filter });
		Filter->Maximum = 2.0;
		EXPECT_EQ(Passing(), "AB");
		Filters->RefreshFilterResult();
		EXPECT_EQ(Passing(), "ABC");
	}

	TEST_F(FUnitsFilterManagerTest, LimitsOfANumberAreThoseOfTheUnits)
	{
		double Minimum = 1.0;
		double Maximum = 1.0;
		EXPECT_FALSE(Filters->GetNumberLimits(EUnitNumberField::Price, false, Minimum, Maximum));
		EXPECT_EQ(Maximum, 0.0);
		Manager->SpawnUnits({ MakeUnit(TEXT("A"), 3, 0.0), MakeUnit(TEXT("B"), -1, 500.0), MakeUnit(TEXT("C"), 7, 200.0) });
		EXPECT_TRUE(Filters->GetNumberLimits(EUnitNumberField::Level, false, Minimum, Maximum));
		EXPECT_EQ(Minimum, -1.0);
		EXPECT_EQ(Maximum, 7.0);
		EXPECT_TRUE(Filters->GetNumberLimits(EUnitNumberField::Price, true, Minimum, Maximum));
		EXPECT_EQ(Minimum, 200.0) << "a price that is not told is no limit";
		EXPECT_EQ(Maximum, 500.0);
		EXPECT_FALSE(Filters->GetNumberLimits(EUnitNumberField::Area, true, Minimum, Maximum));
	}

	/** "value total/passing" of each count. */
	std::string Describe(const TArray<FUnitChoiceCount>& Counts)
	{
		std::string Text;
		for (const FUnitChoiceCount& Count : Counts)
		{
			Text += Host::ToStd(FString::Printf(TEXT("%s %d/%d; "), *Count.Value.ToString(), Count.TotalNum, Count.PassingNum));
		}
		return Text;
	}

	TEST_F(FUnitsFilterManagerTest, ValuesAreCountedAmongUnitsThatPassAllOtherFilters)
	{
		TArray<FProjectUnit> Units;
		for (int32 Index = 0; Index < 6; ++Index)
		{
			Units.Add(MakeUnit(FString::Printf(TEXT("%d"), Index), Index));
			Units.Last().Data.Building = Index % 2 == 0 ? TEXT("wharf") : TEXT("attic");
			Units.Last().Data.Status = Index < 3 ? EUnitStatus::Sold : EUnitStatus::Available;
		}
		Manager->SpawnUnits(Units);
		EXPECT_EQ(Describe(Filters->CountChoices(EUnitChoiceField::Building)), "wharf 3/3; attic 3/3; ");
		EXPECT_EQ(Describe(Filters->CountChoices(EUnitChoiceField::Status)), "Available 3/3; Sold 3/3; ") << "in the order of the states";
		AddCollection({ UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Building, { TEXT("wharf") }), Levels(1.0, 9.0), nullptr });
		EXPECT_EQ(Describe(Filters->CountChoices(EUnitChoiceField::Building)), "wharf 3/2; attic 3/3; ") << "its own filter does not count";
		EXPECT_EQ(Describe(Filters->CountChoices(EUnitChoiceField::Status)), "Available 3/1; Sold 3/1; ");
		EXPECT_EQ(Passing(), "24") << "counting changes nothing";
		FUnitData Data = Unit(TEXT("1")).GetUnitData();
		for (const TCHAR* Name : { TEXT("1"), TEXT("3"), TEXT("5") })
		{
			Data = Unit(Name).GetUnitData();
			Data.Building = TEXT("wharf");
			Unit(Name).SetUnitVolumeSceneData(Data);
		}
		EXPECT_EQ(Describe(Filters->CountChoices(EUnitChoiceField::Building)), "wharf 6/5; ") << "a value that no unit has any more is gone";
	}

	TEST_F(FUnitsFilterManagerTest, ValuesThatNoUnitHasAreTold)
	{
		SpawnUnits(2);
		FUnitFilterSet Set;
		FUnitFilterRecord Record;
		Record.Kind = EUnitFilterKind::Choice;
		Record.Field = TEXT("Status");
		Record.Values = { TEXT("Available"), TEXT("Sold") };
		Set.Filters.Add(Record);
		Record.Field = TEXT("Building");
		Record.Values = { TEXT("tower") };
		Set.Filters.Add(Record);
		Set.Filters.Add(FUnitFilterRecord());
		EXPECT_EQ(Host::ToStd(FString::Join(Filters->FindMissingValues(Set), TEXT("; "))), "status: Sold; building: tower");
	}

	TEST_F(FUnitsFilterManagerTest, PassingUnitsAreSavedAsATable)
	{
		SpawnUnits(4);
		AddCollection({ Levels(1.0, 2.0) });
		const FString Path = FPaths::ProjectSavedDir() / TEXT("Tables/passing");
		ASSERT_TRUE(Filters->SavePassingUnits(Path));
		TArray<FProjectUnit> Read;
		ASSERT_TRUE(FUnitTableReader::LoadFile(Path + TEXT(".csv"), FUnitTableMapping::MakeDefault(), Read));
		ASSERT_EQ(Read.Num(), 2);
		EXPECT_EQ(Read[0].Data.Name, TEXT("B"));
		EXPECT_EQ(Read[1].Data.Name, TEXT("C"));
	}
}
