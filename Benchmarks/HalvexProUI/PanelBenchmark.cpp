#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EngineBenchmark.h"
#include "Host/SlateLoop.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"

#include <benchmark/benchmark.h>

namespace
{
	/** A shown panel that children come and go in, by the way that designers' graphs take. */
	class FShownPanel
	{
	public:
		FShownPanel()
			: Panel(NewObject<UVerticalBox>())
		{
			GEngine->GameViewport->AddViewportWidgetContent(Panel->TakeWidget());
		}

		~FShownPanel()
		{
			GEngine->GameViewport->RemoveAllViewportWidgets();
			Panel->ReleaseSlateResources(true);
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		void Fill(int64 Count)
		{
			for (int64 Index = 0; Index < Count; ++Index)
			{
				Panel->AddChild(NewObject<UTextBlock>(Panel.Get()));
			}
			Host::FSlateLoop::Refresh();
		}

		const TStrongObjectPtr<UVerticalBox> Panel;
	};

	void PanelCleared(benchmark::State& State)
	{
		FShownPanel Shown;
		for (auto _ : State)
		{
			State.PauseTiming();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			Shown.Fill(State.range(0));
			State.ResumeTiming();
			Shown.Panel->ClearChildren();
			Host::FSlateLoop::Refresh();
		}
		State.SetItemsProcessed(State.iterations() * State.range(0));
	}

	/** Children go one by one, the first one first, as a list that runs through does it. */
	void PanelEmptiedFromTheFront(benchmark::State& State)
	{
		FShownPanel Shown;
		for (auto _ : State)
		{
			State.PauseTiming();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			Shown.Fill(State.range(0));
			State.ResumeTiming();
			while (Shown.Panel->HasAnyChildren())
			{
				Shown.Panel->RemoveChildAt(0);
			}
			Host::FSlateLoop::Refresh();
		}
		State.SetItemsProcessed(State.iterations() * State.range(0));
	}

	/** All children marked, then all taken away. */
	void PanelClearedWhileDirty(benchmark::State& State)
	{
		FShownPanel Shown;
		for (auto _ : State)
		{
			State.PauseTiming();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			Shown.Fill(State.range(0));
			for (UWidget* Child : Shown.Panel->GetAllChildren())
			{
				Child->SetRenderOpacity(0.5f);
			}
			State.ResumeTiming();
			Shown.Panel->ClearChildren();
			Host::FSlateLoop::Refresh();
		}
		State.SetItemsProcessed(State.iterations() * State.range(0));
	}
}

BENCHMARK(PanelCleared)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(PanelEmptiedFromTheFront)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(PanelClearedWhileDirty)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
