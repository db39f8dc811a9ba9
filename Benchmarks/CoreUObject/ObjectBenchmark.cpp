#include "CoreMinimal.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"
#include "benchmark/benchmark.h"

namespace
{
	constexpr int32 NumObjects = 100000;

	void MakeObjects(UObject* Outer)
	{
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			benchmark::DoNotOptimize(NewObject<UPackage>(Outer));
		}
	}

	/** 100,000 objects made, each with a name of its own. */
	void NewObjects(benchmark::State& State)
	{
		for (auto _ : State)
		{
			MakeObjects(GetTransientPackage());
			State.PauseTiming();
			CollectGarbage(RF_NoFlags);
			State.ResumeTiming();
		}
		State.SetItemsProcessed(State.iterations() * NumObjects);
	}

	/** 100,000 objects that nothing refers to, collected. */
	void CollectDeadObjects(benchmark::State& State)
	{
		for (auto _ : State)
		{
			State.PauseTiming();
			MakeObjects(GetTransientPackage());
			State.ResumeTiming();
			CollectGarbage(RF_NoFlags);
		}
		State.SetItemsProcessed(State.iterations() * NumObjects);
	}

	/** A collection that finds 100,000 objects alive. */
	void CollectLivingObjects(benchmark::State& State)
	{
		MakeObjects(GetTransientPackage());
		ForEachObjectWithOuter(GetTransientPackage(), [](UObject* Object) { Object->AddToRoot(); });
		for (auto _ : State)
		{
			CollectGarbage(RF_NoFlags);
		}
		ForEachObjectWithOuter(GetTransientPackage(), [](UObject* Object) { Object->RemoveFromRoot(); });
		CollectGarbage(RF_NoFlags);
		State.SetItemsProcessed(State.iterations() * NumObjects);
	}

	void FindObjectsByName(benchmark::State& State)
	{
		MakeObjects(GetTransientPackage());
		TArray<FName> Names;
		ForEachObjectWithOuter(GetTransientPackage(), [&Names](UObject* Object) { Names.Add(Object->GetFName()); });
		for (auto _ : State)
		{
			for (const FName Name : Names)
			{
				benchmark::DoNotOptimize(StaticFindObjectFast(nullptr, GetTransientPackage(), Name));
			}
		}
		CollectGarbage(RF_NoFlags);
		State.SetItemsProcessed(State.iterations() * Names.Num());
	}
}

BENCHMARK(NewObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(CollectDeadObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(CollectLivingObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(FindObjectsByName)->Unit(benchmark::kMillisecond);
