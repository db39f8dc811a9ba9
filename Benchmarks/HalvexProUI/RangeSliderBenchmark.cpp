#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EngineBenchmark.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/SlateCounters.h"
#include "Host/SlateLoop.h"
#include "Host/SlateRoot.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/HxRangeSlider.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

namespace
{
	/** A slider over the whole window whose lower handle is held by the mouse. */
	class FHeldSlider
	{
	public:
		FHeldSlider()
			: Slider(NewObject<UHxRangeSlider>())
		{
			GEngine->GameViewport->AddViewportWidgetContent(Slider->TakeWidget());
			Paint();
			Send(FVector2f(8.0f, 540.0f));
			Pressed.Add(EKeys::LeftMouseButton);
			FSlateApplication::Get().ProcessMouseButtonDownEvent(nullptr, FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
		}

		~FHeldSlider()
		{
			Pressed.Empty();
			FSlateApplication::Get().ProcessMouseButtonUpEvent(FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
			GEngine->GameViewport->RemoveAllViewportWidgets();
			Slider->ReleaseSlateResources(true);
			Paint();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		/** Lays out and paints what changed, without pixels. */
		void Paint()
		{
			Host::FSlateLoop::Refresh();
			GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
		}

		void Send(FVector2f Position)
		{
			FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Position, Mouse, Pressed, EKeys::Invalid, 0.0f, FModifierKeysState()));
			Mouse = Position;
		}

		const TStrongObjectPtr<UHxRangeSlider> Slider;

	private:
		TSet<FKey> Pressed;
		FVector2f Mouse = FVector2f(0.0f, 0.0f);
	};

	/** A thousand moves of a drag, each of which is painted. */
	void DragARangeAThousandTimes(benchmark::State& State)
	{
		FHeldSlider Held;
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		for (auto _ : State)
		{
			for (int32 Move = 1; Move <= 1000; ++Move)
			{
				Held.Send(FVector2f(8.0f + static_cast<float>(Move), 540.0f));
				Held.Paint();
			}
		}
		State.counters["painted"] = static_cast<double>((Host::FSlateCounters::Get() - Before).Painted) / static_cast<double>(State.iterations());
	}
}

BENCHMARK(DragARangeAThousandTimes)->Unit(benchmark::kMillisecond);
