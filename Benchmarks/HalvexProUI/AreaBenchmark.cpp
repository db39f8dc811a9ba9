#include "Blueprint/WidgetTree.h"
#include "Components/HorizontalBox.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EngineBenchmark.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/SlateCounters.h"
#include "Host/SlateLoop.h"
#include "Host/SlateRoot.h"
#include "StyledButton.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/HxZoomyArea.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

namespace
{
	/** Buttons of four widgets each that make 1,000 widgets. */
	constexpr int32 NumButtons = 250;
	constexpr int32 NumColumns = 10;

	/** A zoom area over the whole window with 1,000 widgets in it, all in view. */
	class FShownArea
	{
	public:
		FShownArea()
			: Tree(NewObject<UWidgetTree>())
		{
			GetBenchmarkLoop().GetWindow()->SetCachedSize(FVector2D(1920.0, 1080.0));
			UHxZoomyArea* Area = Tree->ConstructWidget<UHxZoomyArea>();
			// Eased, the content would be drawn once a frame however often the mouse moves.
			Area->bEnableSmoothTransition = false;
			Tree->RootWidget = Area;
			UVerticalBox* Column = Tree->ConstructWidget<UVerticalBox>();
			Area->SetContent(Column);
			UHorizontalBox* Row = nullptr;
			for (int32 Index = 0; Index < NumButtons; ++Index)
			{
				if (Index % NumColumns == 0)
				{
					Row = Tree->ConstructWidget<UHorizontalBox>();
					Column->AddChild(Row);
				}
				Row->AddChild(&FStyledButton(*Tree, EButtonContent::IconAndText, Index).GetWidget());
			}
			GEngine->GameViewport->AddViewportWidgetContent(Area->TakeWidget());
			Paint();
			// Where no button is.
			Send(FVector2f(1800.0f, 1000.0f));
		}

		~FShownArea()
		{
			GEngine->GameViewport->RemoveAllViewportWidgets();
			Tree->RootWidget->ReleaseSlateResources(true);
			Tree.Reset();
			Paint();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		/** Presses the mouse, so that it drags from now on. */
		void Press()
		{
			Pressed.Add(EKeys::LeftMouseButton);
			FSlateApplication::Get().ProcessMouseButtonDownEvent(nullptr, FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
		}

		void Release()
		{
			Pressed.Empty();
			FSlateApplication::Get().ProcessMouseButtonUpEvent(FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
		}

		/** Moves the mouse by one of a few pixels, there and back. */
		void Drag()
		{
			Number = (Number + 1) % 8;
			Send(FVector2f(1800.0f + static_cast<float>(Number), 1000.0f));
		}

		/** Turns the wheel up and down in turn. */
		void TurnWheel()
		{
			bUp = !bUp;
			FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::MouseWheelAxis, bUp ? 1.0f : -1.0f, FModifierKeysState()));
		}

		/** Lays out and paints what changed, without pixels. */
		void Paint()
		{
			Host::FSlateLoop::Refresh();
			GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
		}

	private:
		void Send(FVector2f Position)
		{
			FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Position, Mouse, Pressed, EKeys::Invalid, 0.0f, FModifierKeysState()));
			Mouse = Position;
		}

		TStrongObjectPtr<UWidgetTree> Tree;
		TSet<FKey> Pressed;
		FVector2f Mouse = FVector2f(0.0f, 0.0f);
		int32 Number = 0;
		bool bUp = false;
	};

	void CountPainted(benchmark::State& State, const Host::FSlateCounters& Before)
	{
		State.counters["painted"] = static_cast<double>((Host::FSlateCounters::Get() - Before).Painted) / static_cast<double>(State.iterations());
	}

	void ZoomAThousand(benchmark::State& State)
	{
		FShownArea Shown;
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		for (auto _ : State)
		{
			Shown.TurnWheel();
			Shown.Paint();
		}
		CountPainted(State, Before);
	}

	void DragAThousand(benchmark::State& State)
	{
		FShownArea Shown;
		Shown.Press();
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		for (auto _ : State)
		{
			Shown.Drag();
			Shown.Paint();
		}
		CountPainted(State, Before);
		Shown.Release();
	}

	/** With sixteen moves between two frames, as a quick mouse sends them: each meets the place that the one before has led to. */
	void DragAThousandByAQuickMouse(benchmark::State& State)
	{
		FShownArea Shown;
		Shown.Press();
		for (auto _ : State)
		{
			for (int32 Move = 0; Move < 16; ++Move)
			{
				Shown.Drag();
			}
			Shown.Paint();
		}
		Shown.Release();
	}

	void DragAThousandWithPixels(benchmark::State& State)
	{
		FShownArea Shown;
		Shown.Press();
		for (auto _ : State)
		{
			Shown.Drag();
			GetBenchmarkLoop().RunFrame(0.0);
		}
		Shown.Release();
	}
}

BENCHMARK(ZoomAThousand)->Unit(benchmark::kMillisecond);
BENCHMARK(DragAThousand)->Unit(benchmark::kMillisecond);
BENCHMARK(DragAThousandByAQuickMouse)->Unit(benchmark::kMillisecond);
BENCHMARK(DragAThousandWithPixels)->Unit(benchmark::kMillisecond);
