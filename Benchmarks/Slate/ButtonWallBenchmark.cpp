#include <benchmark/benchmark.h>

#include "Brushes/SlateRoundedBoxBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/Clock.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Buttons in rows of twenty, each with a picture and a text of its own. */
	TSharedRef<SWidget> MakeButtons(int64 Count, TArray<TSharedRef<STextBlock>>& OutTexts)
	{
		static const FSlateRoundedBoxBrush Icon(FLinearColor::Red, 4.0f, FVector2f(16.0f, 16.0f));
		const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
		TSharedPtr<SHorizontalBox> Row;
		for (int64 Index = 0; Index < Count; ++Index)
		{
			if (Index % 20 == 0)
			{
				Column->AddSlot().AutoHeight()[SAssignNew(Row, SHorizontalBox)];
			}
			TSharedPtr<STextBlock> Text;
			Row->AddSlot().AutoWidth().Padding(1.0f)
			[
				SNew(SButton)
				[
					SNew(SHorizontalBox)
					+ SHorizontalBox::Slot().AutoWidth()[SNew(SImage).Image(&Icon)]
					+ SHorizontalBox::Slot().AutoWidth()[SAssignNew(Text, STextBlock).Text(FText::FromString(FString::Printf(TEXT("Button %d"), static_cast<int32>(Index))))]
				]
			];
			OutTexts.Add(Text.ToSharedRef());
		}
		return Column;
	}

	/** An application with a window full of buttons. */
	class FButtonWall
	{
	public:
		explicit FButtonWall(int64 Count) : Count(Count)
		{
			FSlateApplication::Create();
			Window = SNew(SWindow).ClientSize(FVector2D(1920.0, 1080.0));
			FSlateApplication::Get().AddWindow(Window.ToSharedRef());
			Fill();
		}

		~FButtonWall()
		{
			Texts.Empty();
			Window.Reset();
			FSlateApplication::Shutdown();
		}

		void Fill()
		{
			Texts.Reset();
			Window->SetContent(MakeButtons(Count, Texts));
			Frame();
		}

		void Clear()
		{
			Texts.Reset();
			Window->SetContent(SNullWidget::NullWidget);
			Frame();
		}

		void Frame()
		{
			Window->GetRoot().ClearDamage();
			FSlateApplication::Get().Tick();
		}

		void Move(float X, float Y)
		{
			const FVector2f Position(X, Y);
			FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Position, Last, TSet<FKey>(), EKeys::Invalid, 0.0f, FModifierKeysState()));
			Last = Position;
		}

		int64 Count;
		TSharedPtr<SWindow> Window;
		TArray<TSharedRef<STextBlock>> Texts;
		FVector2f Last = FVector2f(0.0f, 0.0f);
	};
}

/** From nothing to painted elements, glyphs at hand. */
static void ButtonsFromNothing(benchmark::State& State)
{
	FButtonWall Wall(State.range(0));
	for (auto _ : State)
	{
		State.PauseTiming();
		Wall.Clear();
		State.ResumeTiming();
		Wall.Fill();
	}
}
BENCHMARK(ButtonsFromNothing)->Arg(1000)->Unit(benchmark::kMicrosecond);

static void IdleTick(benchmark::State& State)
{
	FButtonWall Wall(State.range(0));
	for (auto _ : State)
	{
		Wall.Frame();
	}
}
BENCHMARK(IdleTick)->Arg(1000)->Arg(2500)->Unit(benchmark::kMicrosecond);

static void OneTextChanged(benchmark::State& State)
{
	FButtonWall Wall(State.range(0));
	int32 Number = 0;
	for (auto _ : State)
	{
		Wall.Texts[5]->SetText(FText::FromString(FString::Printf(TEXT("Button %d"), ++Number)));
		Wall.Frame();
	}
}
BENCHMARK(OneTextChanged)->Arg(1000)->Arg(2500)->Unit(benchmark::kMicrosecond);

/** Moves that each leave a button and enter another one. */
static void Hover(benchmark::State& State)
{
	FButtonWall Wall(State.range(0));
	int32 Step = 0;
	for (auto _ : State)
	{
		Step = (Step + 1) % 10;
		Wall.Move(20.0f + 90.0f * Step, 200.0f + Step);
		Wall.Frame();
	}
}
BENCHMARK(Hover)->Arg(1000)->Unit(benchmark::kMicrosecond);

static void EverythingAtAnotherScale(benchmark::State& State)
{
	FButtonWall Wall(State.range(0));
	float Scale = 1.0f;
	for (auto _ : State)
	{
		Scale = 2.25f - Scale;
		Wall.Window->SetDPIScaleFactor(Scale);
		Wall.Frame();
	}
}
BENCHMARK(EverythingAtAnotherScale)->Arg(1000)->Unit(benchmark::kMicrosecond);
