#include "SceneTest.h"

#include "Filters/UnitNumberRangeFilter.h"

namespace
{
	using FUnitVolumesManagerTest = FSceneTest;
	using Host::ToStd;

	TEST_F(FUnitVolumesManagerTest, ManagerIsFoundByAnyContextOfItsWorld)
	{
		EXPECT_EQ(AUnitVolumesManager::GetUnitVolumesManager(World.Get()), Manager);
		EXPECT_EQ(AUnitVolumesManager::GetUnitVolumesManager(Filters), Manager);
		EXPECT_EQ(AUnitVolumesManager::GetUnitVolumesManager(nullptr), nullptr);
		const TStrongObjectPtr<UWorld> Empty(NewObject<UWorld>());
		EXPECT_EQ(AUnitVolumesManager::GetUnitVolumesManager(Empty.Get()), nullptr);
	}

	TEST_F(FUnitVolumesManagerTest, SpawnedUnitsAreAnnouncedAtOnceWithOneResultBehindTheData)
	{
		Manager->SpawnUnits({ MakeUnit(TEXT("A")), MakeUnit(TEXT("B"), 3) });
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
		ASSERT_EQ(Listener->UnitData.Num(), 2);
		EXPECT_EQ(Listener->UnitData[1].Level, 3);
		EXPECT_EQ(ToStd(Unit(TEXT("B")).GetUnitVolumeSceneData().Name), "B");
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FUnitVolumesManagerTest, SpawningReplacesTheUnitsSpawnedBefore)
	{
		SpawnUnits(3);
		Unit(TEXT("B")).SelectUnitVolume(false);
		Heard();
		Manager->SpawnUnits({ MakeUnit(TEXT("X")) });
		EXPECT_EQ(Heard(), "cleared; data 1; result 1 of 1; ");
		EXPECT_EQ(Manager->GetUnitVolumes().Num(), 1);
		EXPECT_EQ(Manager->FindUnitVolume(FName(TEXT("A"))), nullptr);
		Manager->SpawnUnits({});
		EXPECT_EQ(Heard(), "data 0; result 0 of 0; ");
	}

	TEST_F(FUnitVolumesManagerTest, UnitsThatStandInTheLevelJoinInTheirOrderAndAreAnnouncedInTheNextFrame)
	{
		AUnitVolumeActor* const First = World->SpawnActor<AUnitVolumeActor>();
		AUnitVolumeActor* const Second = World->SpawnActor<AUnitVolumeActor>();
		EXPECT_EQ(Heard(), "");
		EXPECT_EQ(Manager->GetUnitVolumes(), (TArray<AUnitVolumeActor*>{ First, Second }));
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FUnitVolumesManagerTest, ManagerThatComesLaterTakesTheUnitsThatAreThere)
	{
		const TStrongObjectPtr<UWorld> Late(NewObject<UWorld>());
		AUnitVolumeActor* const UnitVolume = Late->SpawnActor<AUnitVolumeActor>();
		AUnitVolumesManager* const LateManager = Late->SpawnActor<AUnitVolumesManager>();
		Late->BeginPlay();
		EXPECT_EQ(UnitVolume->GetManager(), LateManager);
		EXPECT_EQ(LateManager->GetUnitVolumes().Num(), 1);
	}

	TEST_F(FUnitVolumesManagerTest, DestroyedUnitLeavesUnitsSelectionHighlightAndResult)
	{
		SpawnUnits(3);
		Unit(TEXT("B")).SelectUnitVolume(false);
		Manager->SetHighlightedUnitVolume(&Unit(TEXT("B")));
		Heard();
		Unit(TEXT("B")).Destroy();
		EXPECT_EQ(Heard(), "highlight none; cleared; ");
		EXPECT_EQ(Passing(), "AC");
		EXPECT_EQ(Manager->GetUnitVolumes().Num(), 2);
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
	}

	TEST_F(FUnitVolumesManagerTest, UnitsOfOneIdAreAllThereAndTheFirstIsFound)
	{
		Manager->SpawnUnits({ MakeUnit(TEXT("A"), 1), MakeUnit(TEXT("A"), 2) });
		EXPECT_EQ(Manager->GetUnitVolumes().Num(), 2);
		EXPECT_EQ(Unit(TEXT("A")).GetUnitData().Level, 1);
	}

	TEST_F(FUnitVolumesManagerTest, UpdateGivesUnitsOtherDataAndOneResult)
	{
		SpawnUnits(4);
		AddCollection({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 0.0, 250.0) });
		EXPECT_EQ(Heard(), "result 2 of 4; ");
		TArray<FUnitData> Changed = { Unit(TEXT("A")).GetUnitData(), Unit(TEXT("D")).GetUnitData() };
		Changed[0].Price = 1000.0;
		Changed[1].Price = 10.0;
		Manager->UpdateUnitData(Changed);
		EXPECT_EQ(Heard(), "data 4; result 2 of 4; ");
		EXPECT_EQ(Passing(), "BD");
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FUnitVolumesManagerTest, UpdateOfAUnitThatIsNotThereIsOneLogLine)
	{
		SpawnUnits(1);
		const Host::FExpectedLog Warning(TEXT("there is no unit 'Z' to update"));
		Manager->UpdateUnitData({ MakeUnit(TEXT("Z")).Data });
	}

	TEST_F(FUnitVolumesManagerTest, OneUnitsNewDataIsFilteredAtOnceAndAnnouncedInTheNextFrame)
	{
		SpawnUnits(2);
		FUnitData Data = Unit(TEXT("A")).GetUnitData();
		Data.Name = TEXT("Z");
		Data.UnitId = FName(TEXT("Z"));
		Unit(TEXT("A")).SetUnitVolumeSceneData(Data);
		EXPECT_EQ(Heard(), "result 2 of 2; ");
		EXPECT_EQ(Passing(), "ZB");
		EXPECT_EQ(Manager->FindUnitVolume(FName(TEXT("A"))), nullptr);
		EXPECT_EQ(ToStd(Unit(TEXT("Z")).GetUnitData().Name), "Z");
		World->Tick(0.1f);
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
	}

	TEST_F(FUnitVolumesManagerTest, DataCanBeAnnouncedAgain)
	{
		SpawnUnits(2);
		Manager->AnnounceUnitData();
		EXPECT_EQ(Heard(), "data 2; result 2 of 2; ");
	}

	TEST_F(FUnitVolumesManagerTest, SelectingReplacesTheSelection)
	{
		SpawnUnits(3);
		Unit(TEXT("A")).SelectUnitVolume(false);
		Unit(TEXT("C")).SelectUnitVolume(false);
		EXPECT_EQ(Heard(), "selected A; selected C; ");
		EXPECT_FALSE(Unit(TEXT("A")).IsSelected());
		EXPECT_TRUE(Unit(TEXT("C")).IsSelected());
	}

	TEST_F(FUnitVolumesManagerTest, SelectingTheSameUnitAgainIsNotHeard)
	{
		SpawnUnits(2);
		Unit(TEXT("A")).SelectUnitVolume(false);
		Heard();
		Unit(TEXT("A")).SelectUnitVolume(false);
		Unit(TEXT("A")).SelectUnitVolume(true);
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FUnitVolumesManagerTest, UnitsCanBeAddedToTheSelectionAndTakenOut)
	{
		SpawnUnits(3);
		Unit(TEXT("C")).SelectUnitVolume(false);
		Unit(TEXT("A")).SelectUnitVolume(true);
		EXPECT_EQ(Heard(), "selected C; selected C A; ");
		Unit(TEXT("C")).UnselectUnitVolume();
		Unit(TEXT("C")).UnselectUnitVolume();
		EXPECT_EQ(Heard(), "selected A; ");
		Unit(TEXT("A")).UnselectUnitVolume();
		EXPECT_EQ(Heard(), "cleared; ");
	}

	TEST_F(FUnitVolumesManagerTest, SelectingOneOfSeveralLeavesThatOne)
	{
		SpawnUnits(2);
		Unit(TEXT("A")).SelectUnitVolume(false);
		Unit(TEXT("B")).SelectUnitVolume(true);
		Heard();
		Unit(TEXT("A")).SelectUnitVolume(false);
		EXPECT_EQ(Heard(), "selected A; ");
		EXPECT_EQ(Manager->GetSelectedUnitVolumes().Num(), 1);
	}

	TEST_F(FUnitVolumesManagerTest, ClearingIsHeardOnceAndOnlyOfASelection)
	{
		SpawnUnits(2);
		Manager->ClearSelection();
		EXPECT_EQ(Heard(), "");
		Unit(TEXT("A")).SelectUnitVolume(false);
		Unit(TEXT("B")).SelectUnitVolume(true);
		Heard();
		Manager->ClearSelection();
		EXPECT_EQ(Heard(), "cleared; ");
		EXPECT_FALSE(Unit(TEXT("A")).IsSelected());
	}

	TEST_F(FUnitVolumesManagerTest, FilteredUnitStaysSelected)
	{
		SpawnUnits(2);
		Unit(TEXT("B")).SelectUnitVolume(false);
		AddCollection({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, 0.0, 0.0) });
		EXPECT_TRUE(Unit(TEXT("B")).IsFilteredOut());
		EXPECT_TRUE(Unit(TEXT("B")).IsSelected());
	}

	TEST_F(FUnitVolumesManagerTest, OneUnitIsHighlightedAtATime)
	{
		SpawnUnits(2);
		Manager->SetHighlightedUnitVolume(&Unit(TEXT("A")));
		Manager->SetHighlightedUnitVolume(&Unit(TEXT("A")));
		Manager->SetHighlightedUnitVolume(&Unit(TEXT("B")));
		Manager->SetHighlightedUnitVolume(nullptr);
		EXPECT_EQ(Heard(), "highlight A; highlight B; highlight none; ");
		EXPECT_FALSE(Unit(TEXT("A")).IsHighlighted());
	}

	TEST_F(FUnitVolumesManagerTest, UnitsOfNoManagerAndOthersCannotBeSelected)
	{
		SpawnUnits(1);
		const TStrongObjectPtr<UWorld> Other(NewObject<UWorld>());
		AUnitVolumeActor* const Stranger = Other->SpawnActor<AUnitVolumeActor>();
		Stranger->SelectUnitVolume(false);
		Manager->SelectUnitVolume(Stranger, false);
		Manager->SelectUnitVolume(nullptr, false);
		Manager->SetHighlightedUnitVolume(Stranger);
		EXPECT_EQ(Heard(), "");
		EXPECT_FALSE(Stranger->IsSelected());
	}

	TEST_F(FUnitVolumesManagerTest, UnitTellsOfEachChangeOfItsState)
	{
		SpawnUnits(2);
		AUnitVolumeActor& UnitVolume = Unit(TEXT("B"));
		UnitVolume.OnUnitVolumeStateChange.AddDynamic(Listener.Get(), &USceneListener::ReceivedState);
		UnitVolume.SelectUnitVolume(false);
		EXPECT_EQ(Heard(), "B S--; selected B; ");
		Manager->SetHighlightedUnitVolume(&UnitVolume);
		EXPECT_EQ(Heard(), "B SH-; highlight B; ");
		AddCollection({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, 0.0, 0.0) });
		EXPECT_EQ(Heard(), "B SHF; result 1 of 2; ");
		Filters->ClearAllFilters();
		EXPECT_EQ(Heard(), "clear all; B SH-; result 2 of 2; ");
		UnitVolume.SetUnitVolumeSceneData(UnitVolume.GetUnitData());
		EXPECT_EQ(Heard(), "result 2 of 2; B SH-; ");
	}

	TEST_F(FUnitVolumesManagerTest, UnitWithoutARootStandsWhereItsVolumeIs)
	{
		SpawnUnits(1);
		const FBox Bounds = Unit(TEXT("A")).GetVolumeBounds();
		EXPECT_EQ(Bounds.Min, FVector::ZeroVector);
		EXPECT_EQ(Bounds.Max, FVector(100.0, 200.0, 300.0));
	}

	TEST_F(FUnitVolumesManagerTest, GroupsGoByTheirNamesOrElseByTheirKeys)
	{
		FProjectGroup Group;
		Group.GroupId = TEXT("harbour");
		Group.Name = TEXT("Harbour House");
		Manager->SetUnitGroups({ Group });
		EXPECT_EQ(Manager->GetUnitGroupName(TEXT("harbour")), TEXT("Harbour House"));
		EXPECT_EQ(Manager->GetUnitGroupName(TEXT("wharf")), TEXT("wharf"));
		Manager->SetUnitGroups({});
		EXPECT_EQ(Manager->GetUnitGroupName(TEXT("harbour")), TEXT("harbour"));
	}
}
