#include "Host/EngineLoop.h"

#include "Containers/Ticker.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "GameFramework/GameUserSettings.h"
#include "HAL/PlatformProcess.h"
#include "HAL/PlatformTime.h"
#include "Host/BackgroundThreads.h"
#include "Host/Clock.h"
#include "Host/ConfigFiles.h"
#include "Host/ConsoleConfig.h"
#include "Host/DesktopApplication.h"
#include "Host/DesktopInput.h"
#include "Host/Displays.h"
#include "Host/FontServices.h"
#include "Host/GameThreadQueue.h"
#include "Host/Mounts.h"
#include "Host/SlateLoop.h"
#include "Host/StartModules.h"
#include "Host/WindowVideoMode.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "UObject/GarbageCollection.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** Seconds between collections while frames run. */
		constexpr double CollectionInterval = 30.0;
		/** Length of the frames of a headless program: what a screen would give it. */
		constexpr double HeadlessFrame = 1.0 / 60.0;
		/** Seconds of real time that an idle program is waited for to hear of its background threads. */
		constexpr double LongestBackgroundWait = 5.0;

		bool HasUnconfirmedMode(const UGameUserSettings& UserSettings)
		{
			return UserSettings.GetScreenResolution() != UserSettings.GetLastConfirmedScreenResolution()
				|| UserSettings.GetFullscreenMode() != UserSettings.GetLastConfirmedFullscreenMode();
		}
	}

	FEngineLoop::FEngineLoop() = default;

	FEngineLoop::~FEngineLoop()
	{
		Exit();
	}

	bool FEngineLoop::Init(const FEngineLoopSettings& InSettings, FString& OutError)
	{
		check(!bStarted);
		Settings = InSettings;
		bStarted = true;
		bExitRequested = false;

		if (!FMounts::Add(TEXT("/HalvexPro/"), FPaths::Combine(Settings.PluginFolder, TEXT("Content"))))
		{
			OutError = FString::Printf(TEXT("%s has no content."), *Settings.PluginFolder);
			Exit();
			return false;
		}
		FConfigFiles::AddPluginFolder(FPaths::Combine(Settings.PluginFolder, TEXT("Config")));
		// Ahead of everything that could read a variable.
		ApplyConsoleVariables(TEXT("ConsoleVariables"), GEngineIni, ECVF_SetBySystemSettingsIni);
		if (!StartPlatform(OutError))
		{
			Exit();
			return false;
		}
		FSlateApplication::Create();
		if (!FSlateApplication::Get().InitializeRenderer(Renderer.ToSharedRef()))
		{
			OutError = FString::Printf(TEXT("the renderer '%s' cannot be used."), Renderer->GetName());
			Exit();
			return false;
		}
		StartLinkedModules();

		GEngine = NewObject<UEngine>();
		GEngine->AddToRoot();
		GEngine->Init();
		StartWindow();
		ApplyUserSettings();
		StartMode = VideoMode->GetAskedMode();
		LastCollection = FClock::Now();
		return true;
	}

	bool FEngineLoop::StartPlatform(FString& OutError)
	{
		if (!Settings.bHeadless)
		{
			Desktop = FDesktopApplication::Create(OutError);
			if (!Desktop)
			{
				return false;
			}
			Input = MakeUnique<FDesktopInput>(*this);
			FGameThreadQueue::SetWakeUp([] { FDesktopApplication::Wake(); });
		}
		Renderer = MakeRenderer(Settings.Renderer, Settings.bHeadless, OutError);
		return Renderer.IsValid();
	}

	void FEngineLoop::StartWindow()
	{
		Window = SNew(SWindow)
			.Title(Settings.Title)
			.ClientSize(FVector2D(Settings.WindowSize))
			[
				GEngine->GameViewport->GetViewportOverlay()
			];
		float Scale = 1.0f;
		if (Desktop)
		{
			FDesktopWindowSettings WindowSettings;
			WindowSettings.Title = Settings.Title.ToString();
			WindowSettings.Size = Settings.WindowSize;
			WindowSettings.bOpenGl = FString(Renderer->GetName()) == TEXT("gl");
			if (const TSharedPtr<FGenericWindow> NativeWindow = Desktop->MakeWindow(WindowSettings))
			{
				Window->SetNativeWindow(NativeWindow.ToSharedRef());
				Scale = NativeWindow->GetDPIScaleFactor();
				int32 Width = 0;
				int32 Height = 0;
				NativeWindow->GetClientSize(Width, Height);
				Window->SetCachedSize(FVector2D(Width, Height));
			}
			FSlateApplication::Get().SetPlatformCursor(Desktop->GetCursor());
			FSlateLoop::SetTextInputDevice(&Desktop->GetTextInput());
		}
		Window->SetDPIScaleFactor(Settings.Scale > 0.0f ? Settings.Scale : Scale);
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		VideoMode = MakeUnique<FWindowVideoMode>(Window.ToSharedRef());
	}

	void FEngineLoop::ApplyUserSettings()
	{
		if (GEngine->GameUserSettings)
		{
			// Whoever asked for them earlier got them without a window.
			GEngine->GameUserSettings->LoadSettings();
		}
		UGameUserSettings* const UserSettings = GEngine->GetGameUserSettings();
		// Before the user has saved anything the program decides; and what is made without a screen must not depend on who makes it.
		if (Settings.bHeadless || !GConfig->DoesSectionExist(*UGameUserSettings::StaticClass()->GetPathName(), GGameUserSettingsIni))
		{
			return;
		}
		if (HasUnconfirmedMode(*UserSettings))
		{
			UE_LOG(LogCore, Log, TEXT("The program ended before its video mode was confirmed: the one before it is used"));
			UserSettings->RevertVideoMode();
			UserSettings->SaveSettings();
		}
		UserSettings->ApplyNonResolutionSettings();
		if (!Settings.bKeepWindowSize)
		{
			UserSettings->ApplyResolutionSettings(true);
		}
	}

	void FEngineLoop::ConfirmVideoMode()
	{
		if (!VideoMode || Settings.bHeadless || VideoMode->GetAskedMode() == StartMode)
		{
			return;
		}
		// What was chosen, but not applied or not saved, is no part of it.
		UGameUserSettings* const Saved = GEngine->GetGameUserSettings();
		Saved->LoadSettings();
		const FVideoMode SavedMode{ Saved->GetScreenResolution(), Saved->GetFullscreenMode() };
		if (SavedMode == VideoMode->GetAskedMode() && HasUnconfirmedMode(*Saved))
		{
			Saved->ConfirmVideoMode();
			Saved->SaveSettings();
		}
	}

	int32 FEngineLoop::Run()
	{
		while (!bExitRequested)
		{
			const double Start = FPlatformTime::Seconds();
			// Ahead of the events, which else would happen at the time at which the last wait began.
			FClock::FollowRealTime();
			if (Desktop)
			{
				Desktop->PumpEvents(*Input);
			}
			RunFrame(0.0);
			if (Desktop && !bExitRequested)
			{
				Desktop->WaitForEvents(GetSecondsToWait(Start));
			}
			// An event ends the wait, but makes no more frames than the user allows.
			if (const double Rest = Start + GetLeastFrameTime() - FPlatformTime::Seconds(); Rest > 0.0 && !bExitRequested)
			{
				FPlatformProcess::Sleep(static_cast<float>(Rest));
			}
		}
		return ExitCode;
	}

	double FEngineLoop::GetLeastFrameTime()
	{
		// The end of the program must not wait for longer.
		constexpr double LongestFrame = 1.0;
		const double Limit = GEngine->GetMaxFPS();
		return Limit > 0.0 ? FMath::Min(1.0 / Limit, LongestFrame) : 0.0;
	}

	double FEngineLoop::GetSecondsToWait(double FrameStart) const
	{
		const double Seconds = GetSecondsUntilNextFrame();
		if (Seconds < 0.0)
		{
			return Seconds;
		}
		constexpr int32 UsualRate = 60;
		const int32 Rate = FDisplays::GetDesktopMode().RefreshRate;
		return FMath::Max(Seconds, FrameStart + 1.0 / (Rate > 0 ? Rate : UsualRate) - FPlatformTime::Seconds());
	}

	void FEngineLoop::RunFrame(double Seconds)
	{
		if (Seconds > 0.0)
		{
			FClock::Advance(Seconds);
		}
		FGameThreadQueue::Run();
		FTSTicker::GetCoreTicker().Tick(static_cast<float>(FClock::DeltaTime()));
		GEngine->Tick(static_cast<float>(FClock::DeltaTime()));
		FSlateApplication::Get().Tick();
		CollectGarbageIfDue();
	}

	void FEngineLoop::Step(double Seconds)
	{
		if (!Desktop)
		{
			RunFrame(Seconds);
			return;
		}
		const double End = FPlatformTime::Seconds() + Seconds;
		Desktop->PumpEvents(*Input);
		FClock::FollowRealTime();
		RunFrame(0.0);
		if (const double Rest = End - FPlatformTime::Seconds(); Rest > 0.0)
		{
			FPlatformProcess::Sleep(static_cast<float>(Rest));
		}
	}

	void FEngineLoop::RunUntilIdle(double MaxSeconds)
	{
		double Passed = 0.0;
		do
		{
			RunFrame(HeadlessFrame);
			Passed += HeadlessFrame;
			WaitForBackgroundWork();
		} while (Passed < MaxSeconds && GetSecondsUntilNextFrame() >= 0.0 && GetSecondsUntilNextFrame() <= HeadlessFrame);
	}

	void FEngineLoop::WaitForBackgroundWork()
	{
		const double Limit = FPlatformTime::Seconds() + LongestBackgroundWait;
		while (FBackgroundThreads::GetNumPending() > 0 && FPlatformTime::Seconds() < Limit)
		{
			FPlatformProcess::Sleep(0.001f);
		}
	}

	double FEngineLoop::GetSecondsUntilNextFrame() const
	{
		if (!FGameThreadQueue::IsEmpty())
		{
			return 0.0;
		}
		double Seconds = -1.0;
		const auto Shorten = [&Seconds](double Candidate)
		{
			if (Candidate >= 0.0 && (Seconds < 0.0 || Candidate < Seconds))
			{
				Seconds = Candidate;
			}
		};
		const double SlateTime = FSlateLoop::GetNextWakeTime();
		if (SlateTime < MAX_dbl)
		{
			Shorten(FMath::Max(0.0, SlateTime - FClock::Now()));
		}
		Shorten(FTSTicker::GetCoreTicker().GetSecondsUntilNextCall());
		if (const UWorld* World = GEngine->GetGameInstance() ? GEngine->GetGameInstance()->GetWorld() : nullptr; World && !World->IsPaused())
		{
			Shorten(World->GetTimerManager().GetSecondsUntilNextTimer());
		}
		return Seconds;
	}

	void FEngineLoop::CollectGarbageIfDue()
	{
		if (FClock::Now() - LastCollection >= CollectionInterval)
		{
			LastCollection = FClock::Now();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	}

	void FEngineLoop::RequestExit(int32 InExitCode)
	{
		bExitRequested = true;
		ExitCode = InExitCode;
	}

	bool FEngineLoop::TakePicture(FPicture& OutPicture)
	{
		FWindowSurface* Surface = Window ? FSlateLoop::FindSurface(*Window) : nullptr;
		if (!Surface)
		{
			return false;
		}
		Surface->ReadPixels(OutPicture.Pixels, OutPicture.Size);
		return true;
	}

	void FEngineLoop::Exit()
	{
		if (!bStarted)
		{
			return;
		}
		bStarted = false;
		FCoreDelegates::OnEnginePreExit.Broadcast();
		if (GEngine)
		{
			GEngine->PreExit();
			// After the widgets have gone, which may have put another mode back.
			ConfirmVideoMode();
		}
		FCoreDelegates::OnExit.Broadcast();
		FBackgroundThreads::Stop();
		// What they handed over still belongs to this run.
		FGameThreadQueue::Run();
		VideoMode.Reset();
		Window.Reset();
		if (FSlateApplication::IsInitialized())
		{
			FSlateApplication::Shutdown();
		}
		if (GEngine)
		{
			GEngine->RemoveFromRoot();
			GEngine = nullptr;
		}
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		FGameThreadQueue::SetWakeUp(nullptr);
		if (Renderer)
		{
			Renderer->Destroy();
			Renderer.Reset();
		}
		FFontServices::Shutdown();
		Input.Reset();
		Desktop.Reset();
		FConfigFiles::RemovePluginFolder(FPaths::Combine(Settings.PluginFolder, TEXT("Config")));
		FMounts::Remove(TEXT("/HalvexPro/"));
	}
}
