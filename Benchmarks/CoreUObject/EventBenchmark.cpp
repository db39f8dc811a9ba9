#include "BenchmarkEvents.h"
#include "CoreMinimal.h"
#include "UObject/StrongObjectPtr.h"
#include "benchmark/benchmark.h"

namespace
{
	constexpr int32 NumListeners = 100;

	/** An event that is bound by object and function name reaches 100 objects. */
	void DynamicBroadcast(benchmark::State& State)
	{
		const TStrongObjectPtr<UBenchmarkListener> Source(NewObject<UBenchmarkListener>());
		TArray<TStrongObjectPtr<UBenchmarkListener>> Listeners;
		for (int32 Index = 0; Index < NumListeners; ++Index)
		{
			Listeners.Emplace(NewObject<UBenchmarkListener>());
			Source->OnEvent.AddDynamic(Listeners.Last().Get(), &UBenchmarkListener::Receive);
		}
		for (auto _ : State)
		{
			Source->OnEvent.Broadcast(1);
		}
		benchmark::DoNotOptimize(Listeners[0]->Sum);
		State.SetItemsProcessed(State.iterations() * NumListeners);
	}
}

BENCHMARK(DynamicBroadcast);
