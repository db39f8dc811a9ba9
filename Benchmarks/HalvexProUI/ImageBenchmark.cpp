#include "Blueprint/UserWidget.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/WrapBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EngineBenchmark.h"
#include "Images/HalvexImageSubsystem.h"
#include "LoopbackServer.h"
#include "TestPictures.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/HxImage.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

namespace
{
	constexpr int32 NumPictures = 200;
	constexpr int32 PictureSide = 512;
	constexpr double FrameSeconds = 1.0 / 60.0;

	/** A screen full of images below a text that changes with every frame. */
	class FPictureWall
	{
	public:
		FPictureWall()
			: Panel(NewObject<UVerticalBox>())
		{
			Text = NewObject<UTextBlock>(Panel.Get());
			Panel->AddChild(Text);
			UWrapBox* Wall = NewObject<UWrapBox>(Panel.Get());
			Panel->AddChild(Wall);
			for (int32 Index = 0; Index < NumPictures; ++Index)
			{
				USizeBox* Box = NewObject<USizeBox>(Wall);
				Box->SetWidthOverride(80.0f);
				Box->SetHeightOverride(80.0f);
				Images.Add(NewObject<UHxImage>(Box));
				Box->AddChild(Images.Last());
				Wall->AddChild(Box);
			}
			GEngine->GameViewport->AddViewportWidgetContent(Panel->TakeWidget());
			GetBenchmarkLoop().RunUntilIdle();
		}

		~FPictureWall()
		{
			GEngine->GameViewport->RemoveAllViewportWidgets();
			Panel->ReleaseSlateResources(true);
			Panel.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
		}

		void Ask(const Host::FLoopbackServer& Server)
		{
			for (int32 Index = 0; Index < NumPictures; ++Index)
			{
				FImageObjectData Data;
				Data.Address = Server.GetUrl("/" + std::to_string(Index) + ".jpg");
				Images[Index]->SetImageFromData(Data, EIRS_Medium);
			}
		}

		/** Runs a frame as a screen of 60 frames a second shows it; gives the seconds that the game thread was busy. */
		double RunFrame()
		{
			using FSteady = std::chrono::steady_clock;
			const FSteady::time_point Start = FSteady::now();
			Text->SetText(FText::FromString(FString::Printf(TEXT("Frame %d"), ++NumFrames)));
			GetBenchmarkLoop().RunFrame(FrameSeconds);
			const std::chrono::duration<double> Busy = FSteady::now() - Start;
			std::this_thread::sleep_until(Start + std::chrono::duration_cast<FSteady::duration>(std::chrono::duration<double>(FrameSeconds)));
			return Busy.count();
		}

		int32 NumFrames = 0;

	private:
		TStrongObjectPtr<UVerticalBox> Panel;
		UTextBlock* Text = nullptr;
		TArray<UHxImage*> Images;
	};

	/** The time is that of the longest frame. */
	void LongestFrame(benchmark::State& State, bool bFetch)
	{
		Host::FLoopbackServer Server;
		Host::FServerReply Reply;
		Reply.Body = Host::TestPictures::Make(PictureSide, PictureSide, FColor(42, 157, 143), EImageFormat::JPEG);
		for (int32 Index = 0; Index < NumPictures; ++Index)
		{
			Server.Serve("/" + std::to_string(Index) + ".jpg", Reply);
		}
		double NumFrames = 0.0;
		double Sum = 0.0;
		for (auto _ : State)
		{
			FPictureWall Wall;
			double Longest = 0.0;
			if (bFetch)
			{
				Wall.Ask(Server);
			}
			// As many frames as the pictures need here, with and without them.
			constexpr int32 FewestFrames = 120;
			while (Wall.NumFrames < FewestFrames || UHalvexImageSubsystem::Get()->GetNumTransfers() > 0)
			{
				const double Busy = Wall.RunFrame();
				Longest = std::max(Longest, Busy);
				Sum += Busy;
			}
			NumFrames += Wall.NumFrames;
			State.SetIterationTime(Longest);
		}
		State.counters["frames"] = NumFrames / static_cast<double>(State.iterations());
		State.counters["mean_ms"] = Sum / NumFrames * 1000.0;
	}

	void LongestFrameWithoutPictures(benchmark::State& State) { LongestFrame(State, false); }
	void LongestFrameWhilePicturesArrive(benchmark::State& State) { LongestFrame(State, true); }

	BENCHMARK(LongestFrameWithoutPictures)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
	BENCHMARK(LongestFrameWhilePicturesArrive)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
}
