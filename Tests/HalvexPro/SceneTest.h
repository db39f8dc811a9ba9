#pragma once

#include "EngineTest.h"

#include "Engine/World.h"
#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitsFilterManager.h"
#include "SceneListener.h"
#include "UObject/StrongObjectPtr.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

/** A world that plays, with a manager in it and someone who listens to all that happens. */
class FSceneTest : public testing::Test
{
protected:
	FSceneTest()
		: World(NewObject<UWorld>())
		, Listener(NewObject<USceneListener>())
	{
		World->BeginPlay();
		Manager = World->SpawnActor<AUnitVolumesManager>();
		Filters = Manager->GetUnitFilterManager();
		Listener->ListenTo(*Manager);
	}

	static FProjectUnit MakeUnit(const FString& Name, int32 Level = 0, double Price = 0.0)
	{
		FProjectUnit Unit;
		Unit.Data.UnitId = FName(*Name);
		Unit.Data.Name = Name;
		Unit.Data.Level = Level;
		Unit.Data.Price = Price;
		Unit.Volume = FUnitVolumeShape::MakeBox(FVector::ZeroVector, FVector(100.0, 200.0, 300.0));
		return Unit;
	}

	/** Spawns units A, B, C ... on levels 0, 1, 2 ... at 100, 200, 300 ... and forgets what was heard of it. */
	void SpawnUnits(int32 Num)
	{
		TArray<FProjectUnit> Units;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Units.Add(MakeUnit(FString::Printf(TEXT("%c"), TCHAR('A' + Index)), Index, 100.0 * (Index + 1)));
		}
		Manager->SpawnUnits(Units);
		Listener->TakeStory();
	}

	AUnitVolumeActor& Unit(const TCHAR* Name)
	{
		AUnitVolumeActor* const Found = Manager->FindUnitVolume(FName(Name));
		check(Found);
		return *Found;
	}

	std::string Heard()
	{
		return Host::ToStd(Listener->TakeStory());
	}

	/** Names of the passing units, one behind the other. */
	std::string Passing()
	{
		FString Names;
		for (const AUnitVolumeActor* UnitVolume : Filters->GetCurrentFilterResult().UnitVolumes)
		{
			Names += UnitVolume->GetUnitData().Name;
		}
		return Host::ToStd(Names);
	}

	/** A registered collection that filters. */
	UUnitFilterCollection* AddCollection(const TArray<UUnitFilter*>& InFilters)
	{
		UUnitFilterCollection* const Collection = UUnitFilterCollection::CreateUnitFilterCollection(InFilters, false);
		Filters->RegisterFilterCollection(Collection);
		return Collection;
	}

	TStrongObjectPtr<UWorld> World;
	TStrongObjectPtr<USceneListener> Listener;
	AUnitVolumesManager* Manager = nullptr;
	UUnitsFilterManager* Filters = nullptr;
};
