#include "BenchmarkListEntry.h"
#include "Blueprint/WidgetTree.h"
#include "Components/ListView.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "EngineBenchmark.h"
#include "Host/Clock.h"
#include "Host/SlateLoop.h"
#include "Host/WidgetActivity.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

namespace
{
	/** A list over the whole window, 1080 high, with entries of two texts. */
	class FShownList
	{
	public:
		explicit FShownList(int64 Count)
			: Screen(CreateWidget<UBenchmarkListScreen>(GEngine->GetGameInstance()))
		{
			List = Screen->WidgetTree->ConstructWidget<UListView>();
			FindFProperty<FClassProperty>(UListView::StaticClass(), TEXT("EntryWidgetClass"))->SetObjectPropertyValue_InContainer(List, UBenchmarkListEntry::StaticClass());
			Screen->WidgetTree->RootWidget = List;
			Items.Reserve(static_cast<int32>(Count));
			for (int64 Index = 0; Index < Count; ++Index)
			{
				UBenchmarkListItem* Item = NewObject<UBenchmarkListItem>(Screen.Get());
				// Different ones follow each other, but not so many that shaping them is what is measured.
				Item->Name = FText::FromString(FString::Printf(TEXT("Unit %d"), static_cast<int32>(Index % 1000)));
				Item->Price = FText::FromString(FString::Printf(TEXT("%d EUR"), static_cast<int32>(200 + Index % 700)));
				Items.Add(Item);
			}
			Screen->AddToViewport();
			List->SetListItems(Items);
			Frame();
			Frame();
		}

		~FShownList()
		{
			Screen->RemoveFromParent();
			Screen.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		/** A frame up to its draw elements. */
		void Frame()
		{
			Host::FWidgetActivity::BeginFrame(Host::FClock::Now(), 0.0f);
			Host::FSlateLoop::Refresh();
			GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
		}

		TStrongObjectPtr<UBenchmarkListScreen> Screen;
		UListView* List = nullptr;
		TArray<UBenchmarkListItem*> Items;
	};

	/** All items replaced, as after a filter, up to the painted rows. */
	void ListItemsSet(benchmark::State& State)
	{
		FShownList Shown(State.range(0));
		for (auto _ : State)
		{
			Shown.List->SetListItems(Shown.Items);
			Shown.Frame();
		}
	}

	/** The same with an item selected, and the items in the opposite order each time. */
	void ListItemsReversed(benchmark::State& State)
	{
		FShownList Shown(State.range(0));
		TArray<UBenchmarkListItem*> Reversed = Shown.Items;
		for (int32 Index = 0; Index < Reversed.Num(); ++Index)
		{
			Reversed[Index] = Shown.Items.Last(Index);
		}
		Shown.List->SetSelectedIndex(static_cast<int32>(State.range(0) / 2));
		bool bReversed = false;
		for (auto _ : State)
		{
			bReversed = !bReversed;
			Shown.List->SetListItems(bReversed ? Reversed : Shown.Items);
			Shown.Frame();
		}
	}

	/** A frame of scrolling by about one row and a half, through all items and back. */
	void ListScrolled(benchmark::State& State)
	{
		FShownList Shown(State.range(0));
		float Offset = 0.0f;
		float Step = 1.5f;
		UBenchmarkListEntry::NumMade = 0;
		for (auto _ : State)
		{
			Offset += Step;
			if (Offset < 0.0f || Offset > static_cast<float>(State.range(0) - 100))
			{
				Step = -Step;
			}
			Shown.List->SetScrollOffset(Offset);
			Shown.Frame();
		}
		State.counters["entries made"] = UBenchmarkListEntry::NumMade;
	}

	/** An item selected that is out of view, scrolled to, and painted. */
	void ListItemSelectedAndShown(benchmark::State& State)
	{
		FShownList Shown(State.range(0));
		int32 Index = 0;
		for (auto _ : State)
		{
			Index = (Index + 397) % static_cast<int32>(State.range(0));
			Shown.List->SetSelectedItem(Shown.Items[Index]);
			Shown.List->RequestNavigateToItem(Shown.Items[Index]);
			Shown.Frame();
		}
	}

	/** A frame in which nothing of the list changed. */
	void ListUnchanged(benchmark::State& State)
	{
		FShownList Shown(State.range(0));
		for (auto _ : State)
		{
			Shown.Frame();
		}
	}
}

BENCHMARK(ListItemsSet)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ListItemsReversed)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ListScrolled)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ListItemSelectedAndShown)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ListUnchanged)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);
