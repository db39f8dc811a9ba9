#include <benchmark/benchmark.h>

#include "Brushes/SlateColorBrush.h"
#include "Host/SlateRoot.h"
#include "Rendering/DrawElements.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"

namespace
{
	const FSlateColorBrush White(FLinearColor::White);

	/** A window full of images, a hundred in a row, under a frame whose tint they inherit. */
	class FImageWall
	{
	public:
		explicit FImageWall(int64 Count)
		{
			const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
			TSharedPtr<SHorizontalBox> Row;
			for (int64 Index = 0; Index < Count; ++Index)
			{
				if (Index % 100 == 0)
				{
					Column->AddSlot().AutoHeight()[SAssignNew(Row, SHorizontalBox)];
				}
				TSharedPtr<SImage> Image;
				Row->AddSlot().AutoWidth().Padding(1.0f)[SAssignNew(Image, SImage).Image(&White).DesiredSizeOverride(TOptional<FVector2D>(FVector2D(8.0, 8.0)))];
				Images.Add(Image.ToSharedRef());
			}
			SAssignNew(Frame, SFrame)[Column];
			Root.SetSize(FIntPoint(1920, 1080), 1.0f);
			Root.SetWidget(Frame.Get());
		}

		~FImageWall() { Root.SetWidget(nullptr); }

		void Run()
		{
			Root.ClearDamage();
			Root.RunFrame(0.0, 0.0f);
		}

		class SFrame : public SCompoundWidget
		{
		public:
			SLATE_BEGIN_ARGS(SFrame) {}
				SLATE_DEFAULT_SLOT(FArguments, Content)
			SLATE_END_ARGS()

			void Construct(const FArguments& InArgs) { ChildSlot[InArgs._Content.Widget]; }
		};

		Host::FSlateRoot Root;
		TSharedPtr<SFrame> Frame;
		TArray<TSharedRef<SImage>> Images;
	};
}

static void BuildAndPaint(benchmark::State& State)
{
	for (auto _ : State)
	{
		FImageWall Wall(State.range(0));
		Wall.Run();
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}
BENCHMARK(BuildAndPaint)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void UnchangedFrame(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	for (auto _ : State)
	{
		Wall.Run();
	}
}
BENCHMARK(UnchangedFrame)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void OneRepainted(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	float Red = 0.0f;
	for (auto _ : State)
	{
		Red = 1.0f - Red;
		Wall.Images[Wall.Images.Num() / 2]->SetColorAndOpacity(FSlateColor(FLinearColor(Red, 0.0f, 0.0f, 1.0f)));
		Wall.Run();
	}
}
BENCHMARK(OneRepainted)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void OneResized(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	double Width = 8.0;
	for (auto _ : State)
	{
		Width = 17.0 - Width;
		Wall.Images[Wall.Images.Num() / 2]->SetDesiredSizeOverride(TOptional<FVector2D>(FVector2D(Width, 8.0)));
		Wall.Run();
	}
}
BENCHMARK(OneResized)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void EverythingMeasuredArrangedAndPainted(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	float Scale = 1.0f;
	for (auto _ : State)
	{
		Scale = 2.25f - Scale;
		Wall.Root.SetSize(FIntPoint(1920, 1080), Scale);
		Wall.Run();
	}
}
BENCHMARK(EverythingMeasuredArrangedAndPainted)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void EverythingRepainted(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	float Red = 0.0f;
	for (auto _ : State)
	{
		Red = 1.0f - Red;
		Wall.Frame->SetColorAndOpacity(FLinearColor(Red, 1.0f, 1.0f, 1.0f));
		Wall.Run();
	}
}
BENCHMARK(EverythingRepainted)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

static void HitTest(benchmark::State& State)
{
	FImageWall Wall(State.range(0));
	Wall.Run();
	float X = 0.0f;
	for (auto _ : State)
	{
		X = X > 900.0f ? 0.0f : X + 7.0f;
		benchmark::DoNotOptimize(Wall.Root.HitTest(FVector2f(X, 45.0f)));
	}
}
BENCHMARK(HitTest)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
