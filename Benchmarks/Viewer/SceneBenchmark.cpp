#include <benchmark/benchmark.h>

#include "CoreMinimal.h"
#include "Host/RendererChoice.h"
#include "Host/SceneContent.h"
#include "Host/SceneRayCaster.h"
#include "Host/SceneRenderer.h"
#include "Host/SceneVolumeStates.h"
#include "Host/SceneCamera.h"

using namespace Host;

/** A scene of many units, as a project has them: storeys over storeys, in blocks. */
namespace
{
	constexpr FIntPoint PictureSize(1280, 800);
	constexpr int32 UnitsPerStorey = 20;
	constexpr int32 Storeys = 10;
	constexpr int32 UnitsPerBlock = UnitsPerStorey * Storeys;

	/** Every fourth one is an outline with an inward corner, the others are boxes. */
	void AddUnits(FSceneContent& Content, int32 Count)
	{
		const int32 BlocksPerRow = FMath::CeilToInt32(FMath::Sqrt(static_cast<float>(Count) / UnitsPerBlock));
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const int32 Block = Index / UnitsPerBlock;
			const int32 Place = Index % UnitsPerBlock;
			const FVector2D Corner(Block % BlocksPerRow * 10000.0 + Place % 10 * 800.0, Block / BlocksPerRow * 4000.0 + Place / 10 % 2 * 800.0);
			const double Floor = Place / UnitsPerStorey * 300.0;
			FSceneOutline Outline;
			Outline.Points = { Corner, Corner + FVector2D(780.0, 0.0), Corner + FVector2D(780.0, 780.0), Corner + FVector2D(0.0, 780.0) };
			if (Index % 4 == 0)
			{
				Outline.Points.Insert(Corner + FVector2D(400.0, 780.0), 3);
				Outline.Points.Insert(Corner + FVector2D(400.0, 500.0), 4);
				Outline.Points[5] = Corner + FVector2D(0.0, 500.0);
			}
			Outline.Bottom = Floor;
			Outline.Top = Floor + 280.0;
			Content.AddOutline(Outline);
		}
	}

	FSceneCamera MakeCamera(const FSceneContent& Content)
	{
		FSceneCamera Camera;
		Camera.SetBounds(Content.GetBounds());
		Camera.Frame(Content.GetBounds(), static_cast<double>(PictureSize.X) / PictureSize.Y);
		Camera.Finish();
		return Camera;
	}

	/** A scene with what draws it, the picture staying with the driver as in a window drawn with OpenGL. */
	struct FDrawnScene
	{
		explicit FDrawnScene(int32 Count)
		{
			AddUnits(*Content, Count);
			Camera = MakeCamera(*Content);
			FString Error;
			Windows = MakeRenderer(ERendererChoice::Gl, true, Error);
			Renderer = Windows.IsValid() ? FSceneRenderer::Make(Windows.Get(), Error) : nullptr;
			checkf(Renderer.IsValid(), TEXT("%s"), *Error);
		}

		void Draw()
		{
			FString Error;
			const bool bDrawn = Renderer->Draw(*Content, Camera.GetView(), PictureSize, FSceneQuality(), Error);
			checkf(bDrawn, TEXT("%s"), *Error);
		}

		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		FSceneCamera Camera;
		TSharedPtr<FSlateRenderer> Windows;
		TUniquePtr<FSceneRenderer> Renderer;
	};

	/** Colours and commands of a frame in which the camera moved, up to where the driver goes on by itself. */
	void SceneFrame(benchmark::State& State)
	{
		FDrawnScene Scene(static_cast<int32>(State.range(0)));
		Scene.Draw();
		for (auto _ : State)
		{
			Scene.Camera.Orbit(0.01, 0.0);
			Scene.Camera.Finish();
			Scene.Draw();
		}
		State.counters["draw calls"] = static_cast<double>(Scene.Renderer->GetCounters().DrawCalls) / static_cast<double>(Scene.Renderer->GetCounters().Draws);
	}
	BENCHMARK(SceneFrame)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

	/** From nothing to the first picture: shapes, colours, shadows. */
	void SceneUpload(benchmark::State& State)
	{
		const int32 Count = static_cast<int32>(State.range(0));
		FDrawnScene Scene(Count);
		Scene.Draw();
		int64 Bytes = 0;
		for (auto _ : State)
		{
			State.PauseTiming();
			Scene.Content->Empty();
			AddUnits(*Scene.Content, Count);
			Bytes = Scene.Renderer->GetCounters().UploadedBytes;
			State.ResumeTiming();
			Scene.Draw();
			Bytes = Scene.Renderer->GetCounters().UploadedBytes - Bytes;
		}
		State.counters["bytes a unit"] = static_cast<double>(Bytes) / Count;
	}
	BENCHMARK(SceneUpload)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

	void SceneBuildContent(benchmark::State& State)
	{
		for (auto _ : State)
		{
			FSceneContent Content;
			AddUnits(Content, static_cast<int32>(State.range(0)));
			benchmark::DoNotOptimize(Content.Num());
		}
	}
	BENCHMARK(SceneBuildContent)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

	/** A filter that takes away half of the units, and gives them back. */
	void SceneFilterStates(benchmark::State& State)
	{
		const TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		AddUnits(*Content, static_cast<int32>(State.range(0)));
		FSceneVolumeStates States(Content);
		bool bFiltered = false;
		for (auto _ : State)
		{
			bFiltered = !bFiltered;
			for (int32 Volume = 0; Volume < Content->Num(); ++Volume)
			{
				States.SetVolumeState(Volume, bFiltered && Volume % 2 ? ESceneVolumeState::FilteredOut : ESceneVolumeState::None);
			}
		}
	}
	BENCHMARK(SceneFilterStates)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

	/** The first pick after shapes changed, which makes the hierarchy. */
	void SceneFirstPick(benchmark::State& State)
	{
		const TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		AddUnits(*Content, static_cast<int32>(State.range(0)));
		for (auto _ : State)
		{
			FSceneRayCaster Caster(Content);
			FSceneHit Hit;
			benchmark::DoNotOptimize(Caster.Cast(FVector(0.0, 0.0, 1.0e6), FVector(0.1, 0.1, -1.0), Hit));
		}
	}
	BENCHMARK(SceneFirstPick)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

	/** Under a cursor that goes over the whole picture. */
	void ScenePick(benchmark::State& State)
	{
		const TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		AddUnits(*Content, static_cast<int32>(State.range(0)));
		FSceneRayCaster Caster(Content);
		const FSceneView View = MakeCamera(*Content).GetView();
		FSceneHit Hit;
		Caster.Cast(View.Location, View.Forward, Hit);
		int32 Step = 0;
		for (auto _ : State)
		{
			Step = (Step + 7919) % (PictureSize.X * PictureSize.Y);
			const FVector2D Pixel(Step % PictureSize.X, Step / PictureSize.X);
			benchmark::DoNotOptimize(Caster.Cast(View.Location, View.Deproject(Pixel, FVector2D(PictureSize)), Hit));
		}
	}
	BENCHMARK(ScenePick)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
}
