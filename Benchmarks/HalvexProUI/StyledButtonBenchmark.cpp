#include "Host/SlateCounters.h"
#include "StyledWall.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace
{
	/** Buttons of four widgets each that make 10,000 widgets. */
	constexpr int32 NumForTenThousand = 2500;
	constexpr int32 Thousand = 1000;

	/** Bytes that the program has of the heap. */
	int64 GetHeapBytes()
	{
		const struct mallinfo2 Info = mallinfo2();
		return static_cast<int64>(Info.uordblks + Info.hblkhd);
	}

	/** Shows that every button was painted: a face, an icon and a text. */
	void CountElements(benchmark::State& State, const Host::FSlateCounters& Before)
	{
		State.counters["elements"] = static_cast<double>((Host::FSlateCounters::Get() - Before).Elements);
	}

	void StyledButtonsPainted(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::IconAndText);
		for (auto _ : State)
		{
			State.PauseTiming();
			Wall.Clear();
			const Host::FSlateCounters Before = Host::FSlateCounters::Get();
			State.ResumeTiming();
			Wall.Fill();
			Wall.Paint();
			State.PauseTiming();
			CountElements(State, Before);
			State.ResumeTiming();
		}
	}

	void StyledButtonsWithPixels(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::IconAndText);
		Wall.RunFrame();
		for (auto _ : State)
		{
			State.PauseTiming();
			Wall.Clear();
			State.ResumeTiming();
			Wall.Fill();
			Wall.RunFrame();
		}
	}

	void UnchangedFrameOfTenThousand(benchmark::State& State)
	{
		FStyledWall Wall(NumForTenThousand, EButtonContent::IconAndText);
		Wall.RunFrame();
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		for (auto _ : State)
		{
			Wall.RunFrame();
		}
		CountElements(State, Before);
		State.counters["widgets"] = Wall.GetNumWidgets();
	}

	void OneTextOfTenThousand(benchmark::State& State)
	{
		FStyledWall Wall(NumForTenThousand, EButtonContent::IconAndText);
		int32 Number = 0;
		for (auto _ : State)
		{
			Wall.GetButtons()[NumForTenThousand / 2].SetText(FText::AsCultureInvariant(FString::Printf(TEXT("Text %d"), ++Number)));
			Wall.Paint();
		}
	}

	/** Each step leaves a button and enters another. */
	void HoverAmongAThousand(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::IconAndText);
		int32 Index = 0;
		for (auto _ : State)
		{
			Index = (Index + 77) % Thousand;
			Wall.HoverOver(Index);
			Wall.Paint();
		}
	}

	void HoverAmongAThousandWithPixels(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::IconAndText);
		Wall.RunFrame();
		int32 Index = 0;
		for (auto _ : State)
		{
			Index = (Index + 77) % Thousand;
			Wall.HoverOver(Index);
			Wall.RunFrame();
		}
	}

	void StyleChangeOfTenThousand(benchmark::State& State)
	{
		FStyledWall Wall(NumForTenThousand, EButtonContent::IconAndText);
		const auto Change = [&Wall]
		{
			SwitchProjectStyle();
			for (const FStyledButton& Button : Wall.GetButtons())
			{
				Button.Restyle();
			}
			Wall.Paint();
		};
		// Both styles have been seen before: what is measured is not the shaping.
		Change();
		Change();
		for (auto _ : State)
		{
			const Host::FSlateCounters Before = Host::FSlateCounters::Get();
			Change();
			CountElements(State, Before);
		}
		State.counters["widgets"] = Wall.GetNumWidgets();
	}

	/** All that a button with a text holds: objects, slots, Slate side, painted elements, its shaped text. */
	void MemoryOfAStyledButton(benchmark::State& State)
	{
		FStyledWall Wall(Thousand, EButtonContent::Text);
		for (auto _ : State)
		{
			Wall.Clear();
			const int64 Before = GetHeapBytes();
			Wall.Fill();
			Wall.Paint();
			State.counters["bytes"] = static_cast<double>(GetHeapBytes() - Before) / Thousand;
		}
	}
}

BENCHMARK(StyledButtonsPainted)->Unit(benchmark::kMillisecond);
BENCHMARK(StyledButtonsWithPixels)->Unit(benchmark::kMillisecond);
BENCHMARK(UnchangedFrameOfTenThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneTextOfTenThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK(HoverAmongAThousand)->Unit(benchmark::kMicrosecond);
BENCHMARK(HoverAmongAThousandWithPixels)->Unit(benchmark::kMicrosecond);
BENCHMARK(StyleChangeOfTenThousand)->Unit(benchmark::kMillisecond);
BENCHMARK(MemoryOfAStyledButton)->Iterations(3);
