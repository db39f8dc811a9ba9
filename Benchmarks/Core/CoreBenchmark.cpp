#include "CoreMinimal.h"
#include "Misc/ConfigCacheIni.h"
#include "benchmark/benchmark.h"

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

// Names, maps and delegates, each beside what the standard library offers for the same work.

namespace
{
	TArray<FString> MakeTexts(int32 Num)
	{
		TArray<FString> Texts;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Texts.Add(FString::Printf(TEXT("/Game/Widgets/Element%dOfMany"), Index));
		}
		return Texts;
	}

	TArray<uint32> MakeKeys(int32 Num)
	{
		std::mt19937 Random(7);
		TArray<uint32> Keys;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Keys.Add((uint32)Random());
		}
		return Keys;
	}
}

static void NameFromText(benchmark::State& State)
{
	const TArray<FString> Texts = MakeTexts(1000);
	for (auto _ : State)
	{
		for (const FString& Text : Texts)
		{
			benchmark::DoNotOptimize(FName(*Text));
		}
	}
	State.SetItemsProcessed((int64)State.iterations() * Texts.Num());
}
BENCHMARK(NameFromText);

static void NameFromShortText(benchmark::State& State)
{
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(FName(TEXT("OnClicked")));
	}
	State.SetItemsProcessed((int64)State.iterations());
}
BENCHMARK(NameFromShortText);

static void NameCompare(benchmark::State& State)
{
	TArray<FName> Names;
	for (const FString& Text : MakeTexts(1000))
	{
		Names.Add(FName(*Text));
	}
	const FName Sought = Names.Last();
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Names.Find(Sought));
	}
	State.SetItemsProcessed((int64)State.iterations() * Names.Num());
}
BENCHMARK(NameCompare);

static void NameToString(benchmark::State& State)
{
	const FName Name(TEXT("SomeElement_12"));
	FString Text;
	for (auto _ : State)
	{
		Name.ToString(Text);
		benchmark::DoNotOptimize(*Text);
	}
	State.SetItemsProcessed((int64)State.iterations());
}
BENCHMARK(NameToString);

static void MapInsert(benchmark::State& State)
{
	const TArray<uint32> Keys = MakeKeys((int32)State.range(0));
	for (auto _ : State)
	{
		TMap<uint32, uint64> Map;
		for (const uint32 Key : Keys)
		{
			Map.Add(Key, Key);
		}
		benchmark::DoNotOptimize(Map.Num());
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(MapInsert)->Arg(100)->Arg(10000)->Arg(1000000);

static void MapInsert_UnorderedMap(benchmark::State& State)
{
	const TArray<uint32> Keys = MakeKeys((int32)State.range(0));
	for (auto _ : State)
	{
		std::unordered_map<uint32, uint64> Map;
		for (const uint32 Key : Keys)
		{
			Map[Key] = Key;
		}
		benchmark::DoNotOptimize(Map.size());
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(MapInsert_UnorderedMap)->Arg(100)->Arg(10000)->Arg(1000000);

static void MapFind(benchmark::State& State)
{
	TArray<uint32> Keys = MakeKeys((int32)State.range(0));
	TMap<uint32, uint64> Map;
	for (const uint32 Key : Keys)
	{
		Map.Add(Key, Key);
	}
	std::shuffle(Keys.GetData(), Keys.GetData() + Keys.Num(), std::mt19937(1));
	for (auto _ : State)
	{
		uint64 Sum = 0;
		for (const uint32 Key : Keys)
		{
			Sum += *Map.Find(Key);
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(MapFind)->Arg(100)->Arg(10000)->Arg(1000000);

static void MapFind_UnorderedMap(benchmark::State& State)
{
	TArray<uint32> Keys = MakeKeys((int32)State.range(0));
	std::unordered_map<uint32, uint64> Map;
	for (const uint32 Key : Keys)
	{
		Map[Key] = Key;
	}
	std::shuffle(Keys.GetData(), Keys.GetData() + Keys.Num(), std::mt19937(1));
	for (auto _ : State)
	{
		uint64 Sum = 0;
		for (const uint32 Key : Keys)
		{
			Sum += Map.find(Key)->second;
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(MapFind_UnorderedMap)->Arg(100)->Arg(10000)->Arg(1000000);

static void MapFindByName(benchmark::State& State)
{
	TArray<FName> Names;
	TMap<FName, int32> Map;
	for (const FString& Text : MakeTexts(1000))
	{
		Names.Add(FName(*Text));
		Map.Add(Names.Last(), Names.Num());
	}
	for (auto _ : State)
	{
		int32 Sum = 0;
		for (const FName Name : Names)
		{
			Sum += *Map.Find(Name);
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * Names.Num());
}
BENCHMARK(MapFindByName);

static void MapFindByString(benchmark::State& State)
{
	const TArray<FString> Texts = MakeTexts(1000);
	TMap<FString, int32> Map;
	for (const FString& Text : Texts)
	{
		Map.Add(Text, Text.Len());
	}
	for (auto _ : State)
	{
		int32 Sum = 0;
		for (const FString& Text : Texts)
		{
			Sum += *Map.Find(Text);
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * Texts.Num());
}
BENCHMARK(MapFindByString);

static void MapFindByString_UnorderedMap(benchmark::State& State)
{
	std::vector<std::u16string> Texts;
	std::unordered_map<std::u16string, int32> Map;
	for (const FString& Text : MakeTexts(1000))
	{
		Texts.push_back(*Text);
		Map[*Text] = Text.Len();
	}
	for (auto _ : State)
	{
		int32 Sum = 0;
		for (const std::u16string& Text : Texts)
		{
			Sum += Map.find(Text)->second;
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * (int64)Texts.size());
}
BENCHMARK(MapFindByString_UnorderedMap);

static void MapIterate(benchmark::State& State)
{
	TMap<uint32, uint64> Map;
	for (const uint32 Key : MakeKeys(100000))
	{
		Map.Add(Key, Key);
	}
	for (auto _ : State)
	{
		uint64 Sum = 0;
		for (const auto& Pair : Map)
		{
			Sum += Pair.Value;
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * Map.Num());
}
BENCHMARK(MapIterate);

static void MapIterate_UnorderedMap(benchmark::State& State)
{
	std::unordered_map<uint32, uint64> Map;
	for (const uint32 Key : MakeKeys(100000))
	{
		Map[Key] = Key;
	}
	for (auto _ : State)
	{
		uint64 Sum = 0;
		for (const auto& Pair : Map)
		{
			Sum += Pair.second;
		}
		benchmark::DoNotOptimize(Sum);
	}
	State.SetItemsProcessed((int64)State.iterations() * (int64)Map.size());
}
BENCHMARK(MapIterate_UnorderedMap);

static void ArrayAdd(benchmark::State& State)
{
	for (auto _ : State)
	{
		TArray<int32> Array;
		for (int32 Index = 0; Index < 100000; ++Index)
		{
			Array.Add(Index);
		}
		benchmark::DoNotOptimize(Array.GetData());
	}
	State.SetItemsProcessed((int64)State.iterations() * 100000);
}
BENCHMARK(ArrayAdd);

static void ArrayAdd_Vector(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::vector<int32> Array;
		for (int32 Index = 0; Index < 100000; ++Index)
		{
			Array.push_back(Index);
		}
		benchmark::DoNotOptimize(Array.data());
	}
	State.SetItemsProcessed((int64)State.iterations() * 100000);
}
BENCHMARK(ArrayAdd_Vector);

static void ArraySort(benchmark::State& State)
{
	const TArray<uint32> Keys = MakeKeys(100000);
	for (auto _ : State)
	{
		TArray<uint32> Array = Keys;
		Array.Sort();
		benchmark::DoNotOptimize(Array.GetData());
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(ArraySort);

static void ArrayStableSort(benchmark::State& State)
{
	const TArray<uint32> Keys = MakeKeys(100000);
	for (auto _ : State)
	{
		TArray<uint32> Array = Keys;
		Array.StableSort();
		benchmark::DoNotOptimize(Array.GetData());
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(ArrayStableSort);

static void ArraySort_StdSort(benchmark::State& State)
{
	const TArray<uint32> Keys = MakeKeys(100000);
	for (auto _ : State)
	{
		TArray<uint32> Array = Keys;
		std::sort(Array.GetData(), Array.GetData() + Array.Num());
		benchmark::DoNotOptimize(Array.GetData());
	}
	State.SetItemsProcessed((int64)State.iterations() * Keys.Num());
}
BENCHMARK(ArraySort_StdSort);

static void MulticastBroadcast(benchmark::State& State)
{
	TMulticastDelegate<void(int32)> Delegate;
	int64 Sum = 0;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Delegate.AddLambda([&Sum, Index](int32 Value) { Sum += Value + Index; });
	}
	for (auto _ : State)
	{
		Delegate.Broadcast(1);
	}
	benchmark::DoNotOptimize(Sum);
	State.SetItemsProcessed((int64)State.iterations() * 100);
}
BENCHMARK(MulticastBroadcast);

static void MulticastBroadcast_VectorOfFunctions(benchmark::State& State)
{
	std::vector<std::function<void(int32)>> Functions;
	int64 Sum = 0;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Functions.push_back([&Sum, Index](int32 Value) { Sum += Value + Index; });
	}
	for (auto _ : State)
	{
		for (const auto& Function : Functions)
		{
			Function(1);
		}
	}
	benchmark::DoNotOptimize(Sum);
	State.SetItemsProcessed((int64)State.iterations() * 100);
}
BENCHMARK(MulticastBroadcast_VectorOfFunctions);

static void DelegateExecuteShared(benchmark::State& State)
{
	struct FReceiver
	{
		int64 Sum = 0;
		void Receive(int32 Value) { Sum += Value; }
	};
	const TSharedRef<FReceiver> Receiver = MakeShared<FReceiver>();
	const TDelegate<void(int32)> Delegate = TDelegate<void(int32)>::CreateSP(Receiver, &FReceiver::Receive);
	for (auto _ : State)
	{
		Delegate.ExecuteIfBound(1);
	}
	benchmark::DoNotOptimize(Receiver->Sum);
	State.SetItemsProcessed((int64)State.iterations());
}
BENCHMARK(DelegateExecuteShared);

static void TextLiteral(benchmark::State& State)
{
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(NSLOCTEXT("Benchmark", "Greeting", "Good morning"));
	}
	State.SetItemsProcessed((int64)State.iterations());
}
BENCHMARK(TextLiteral);

static void StringPrintf(benchmark::State& State)
{
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(*FString::Printf(TEXT("%s has %d of %d"), TEXT("Room"), 3, 12));
	}
	State.SetItemsProcessed((int64)State.iterations());
}
BENCHMARK(StringPrintf);

/** One setting among so many of the user's is changed, in memory. */
static void ConfigSet(benchmark::State& State)
{
	const FString File = TEXT("BenchmarkSettings");
	const int32 NumKeys = (int32)State.range(0);
	for (int32 Index = 0; Index < NumKeys; ++Index)
	{
		GConfig->SetInt(TEXT("Benchmark"), *FString::Printf(TEXT("Setting%d"), Index), Index, File);
	}
	int32 Value = 0;
	for (auto _ : State)
	{
		GConfig->SetInt(TEXT("Benchmark"), TEXT("Setting50"), ++Value, File);
	}
	GConfig->EmptySection(TEXT("Benchmark"), File);
}
BENCHMARK(ConfigSet)->Arg(100)->Arg(1000);
