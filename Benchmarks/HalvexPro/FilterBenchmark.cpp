#include "Engine/World.h"
#include "Filters/UnitAvailabilityFilter.h"
#include "Filters/UnitChoiceFilter.h"
#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitTextFilter.h"
#include "Filters/UnitsFilterManager.h"
#include "MadeUpProject.h"
#include "UObject/StrongObjectPtr.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace
{
	/** A scene of so many units, with a collection that filters. */
	struct FScene
	{
		TStrongObjectPtr<UWorld> World;
		AUnitVolumesManager* Manager;
		UUnitsFilterManager* Filters;
		UUnitFilterCollection* Collection;

		explicit FScene(int32 NumUnits)
			: World(NewObject<UWorld>())
		{
			World->BeginPlay();
			Manager = World->SpawnActor<AUnitVolumesManager>();
			Filters = Manager->GetUnitFilterManager();
			Manager->SpawnUnits(MakeProjectUnits(NumUnits));
			Collection = UUnitFilterCollection::CreateUnitFilterCollection({}, false);
			Filters->RegisterFilterCollection(Collection);
		}

		~FScene()
		{
			World.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	};

	/** One of four filters changes, as with a drag of a slider: from the change to the result and the units told. */
	void MoveOneFilter(benchmark::State& State)
	{
		FScene Scene(int32(State.range(0)));
		UUnitFilter* const Availability = UUnitAvailabilityFilter::CreateAvailabilityFilter(true);
		UUnitFilter* const Choice = UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Orientation, { FName(TEXT("South")), FName(TEXT("East")), FName(TEXT("SouthWest")) });
		UUnitFilter* const Text = UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("block"));
		int32 Step = 0;
		for (auto _ : State)
		{
			UUnitFilter* const Price = UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 0.0, 200000.0 + 10000.0 * (++Step % 60));
			Scene.Collection->ReplaceFilters({ Price, Choice, Text, Availability });
		}
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(MoveOneFilter)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

	/** A text is searched in all names, accents and case ignored; half of the units come and go. */
	void TypeIntoTextFilter(benchmark::State& State)
	{
		FScene Scene(int32(State.range(0)));
		const TCHAR* const Texts[] = { TEXT("1.0"), TEXT("3.1"), TEXT("BL\u00D6CK 1"), TEXT("nothing") };
		int32 Step = 0;
		for (auto _ : State)
		{
			Scene.Collection->ReplaceFilters({ UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, Texts[++Step % 4]) });
		}
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(TypeIntoTextFilter)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

	/** Every unit passes, then none, then all again: each unit is told. */
	void FilterAllOutAndIn(benchmark::State& State)
	{
		FScene Scene(int32(State.range(0)));
		for (auto _ : State)
		{
			Scene.Collection->ReplaceFilters({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, -2.0, -1.0) });
			Scene.Collection->ReplaceFilters({});
		}
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(FilterAllOutAndIn)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

	/** One unit is sold. */
	void ChangeOneUnit(benchmark::State& State)
	{
		FScene Scene(int32(State.range(0)));
		Scene.Collection->ReplaceFilters({ UUnitAvailabilityFilter::CreateAvailabilityFilter(false), UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("block")) });
		AUnitVolumeActor* const UnitVolume = Scene.Manager->GetUnitVolumes()[int32(State.range(0)) / 2];
		FUnitData Data = UnitVolume->GetUnitData();
		for (auto _ : State)
		{
			Data.Status = Data.Status == EUnitStatus::Sold ? EUnitStatus::Available : EUnitStatus::Sold;
			UnitVolume->SetUnitVolumeSceneData(Data);
		}
	}
	BENCHMARK(ChangeOneUnit)->Arg(100000)->Unit(benchmark::kMillisecond);

	/** Units of a project put into the scene, from records to actors, columns and the first result. */
	void SpawnUnits(benchmark::State& State)
	{
		const TArray<FProjectUnit> Units = MakeProjectUnits(int32(State.range(0)));
		int64 Bytes = 0;
		for (auto _ : State)
		{
			State.PauseTiming();
			TStrongObjectPtr<UWorld> World(NewObject<UWorld>());
			World->BeginPlay();
			AUnitVolumesManager* const Manager = World->SpawnActor<AUnitVolumesManager>();
			const int64 Before = int64(mallinfo2().uordblks + mallinfo2().hblkhd);
			State.ResumeTiming();
			Manager->SpawnUnits(Units);
			State.PauseTiming();
			Bytes = int64(mallinfo2().uordblks + mallinfo2().hblkhd) - Before;
			World.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			State.ResumeTiming();
		}
		State.counters["bytes"] = double(Bytes) / double(State.range(0));
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(SpawnUnits)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
}
