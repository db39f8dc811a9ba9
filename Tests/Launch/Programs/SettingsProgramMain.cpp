// A program with user settings, for tests that start it, break its files and kill it:
//
//   SettingsProgram FOLDER [headless|gl] WORD...
//
// FOLDER holds Content, with which it starts, and Saved, the user's files. The words are done in their order; then it ends
// as programs do. With "gl" OpenGL draws its window, else the processor.

#include "FileCalls.h"

#include "Components/Border.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "GameFramework/GameUserSettings.h"
#include "HAL/IConsoleManager.h"
#include "Host/EngineLoop.h"
#include "Host/PathRoots.h"
#include "Host/VideoModeHost.h"
#include "Misc/App.h"

#include <dlfcn.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{
	constexpr double FrameTime = 0.02;

	FString GetModeName(EWindowMode::Type Mode)
	{
		return StaticEnum<EWindowMode::Type>()->GetNameStringByValue(Mode);
	}

	FString Describe(FIntPoint Size, EWindowMode::Type Mode)
	{
		return FString::Printf(TEXT("%dx%d %s"), Size.X, Size.Y, *GetModeName(Mode));
	}

	void Print(const FString& Text)
	{
		std::printf("%s\n", TCHAR_TO_UTF8(*Text));
		std::fflush(stdout);
	}

	class FSettingsProgram
	{
	public:
		explicit FSettingsProgram(const FString& InFolder)
			: Folder(InFolder)
		{
		}

		int Run(TConstArrayView<FString> Words)
		{
			Host::FPathRoots::SetSavedDir(Folder / TEXT("Saved"));
			Host::FEngineLoopSettings Start;
			const FString FirstWord = Words.Num() > 0 ? Words[0] : FString();
			Start.bHeadless = FirstWord == TEXT("headless");
			Start.Renderer = FirstWord == TEXT("gl") ? Host::ERendererChoice::Gl : Host::ERendererChoice::Cpu;
			Start.WindowSize = FIntPoint(800, 600);
			Start.Title = FText::AsCultureInvariant(TEXT("Settings"));
			Start.PluginFolder = Folder;
			FString Error;
			if (!Loop.Init(Start, Error))
			{
				std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Error));
				return 1;
			}
			for (const FString& Word : Words.RightChop(Start.bHeadless || FirstWord == TEXT("gl") ? 1 : 0))
			{
				Do(Word);
			}
			Loop.Exit();
			return 0;
		}

	private:
		static UGameUserSettings& Settings() { return *UGameUserSettings::GetGameUserSettings(); }

		void Do(const FString& Word)
		{
			FString Key = Word;
			FString Value;
			Word.Split(TEXT("="), &Key, &Value);
			const int32 Number = FCString::Atoi(*Value);
			if (Key == TEXT("size"))
			{
				FString Width;
				FString Height;
				Value.Split(TEXT("x"), &Width, &Height);
				Settings().SetScreenResolution(FIntPoint(FCString::Atoi(*Width), FCString::Atoi(*Height)));
			}
			else if (Key == TEXT("mode"))
			{
				Settings().SetFullscreenMode(EWindowMode::Type(StaticEnum<EWindowMode::Type>()->GetValueByNameString(Value)));
			}
			else if (Key == TEXT("vsync"))
			{
				Settings().SetVSyncEnabled(Number != 0);
			}
			else if (Key == TEXT("audio"))
			{
				Settings().SetAudioQualityLevel(Number);
			}
			else if (Key == TEXT("quality"))
			{
				Settings().SetOverallScalabilityLevel(Number);
			}
			else if (Key == TEXT("apply"))
			{
				Settings().ApplySettings(false);
			}
			else if (Key == TEXT("save"))
			{
				Settings().SaveSettings();
			}
			else if (Key == TEXT("confirm"))
			{
				Settings().ConfirmVideoMode();
			}
			else if (Key == TEXT("revert"))
			{
				Settings().RevertVideoMode();
			}
			else if (Key == TEXT("defaults"))
			{
				Settings().SetToDefaults();
			}
			else if (Key == TEXT("show"))
			{
				ShowSettings();
			}
			else if (Key == TEXT("window"))
			{
				ShowWindow();
			}
			else if (Key == TEXT("frames"))
			{
				ShowFrames(Number);
			}
			else if (Key == TEXT("fill"))
			{
				Fill();
			}
			else if (Key == TEXT("swap"))
			{
				ShowSwap();
			}
			else if (Key == TEXT("hold"))
			{
				Hold();
			}
			else if (Key == TEXT("load"))
			{
				Settings().LoadSettings();
			}
			else if (Key == TEXT("leave"))
			{
				// Without stopping anything.
				std::_Exit(0);
			}
			else if (Key == TEXT("die"))
			{
				kill(getpid(), SIGKILL);
			}
			else if (Key == TEXT("dieAt"))
			{
				FileCalls::DieAt(Number);
			}
			else
			{
				std::fprintf(stderr, "%s is no word\n", TCHAR_TO_UTF8(*Word));
			}
		}

		static void ShowSettings()
		{
			Print(FString::Printf(TEXT("mode %s, confirmed %s, vsync %d, audio %d, quality %d"),
				*Describe(Settings().GetScreenResolution(), Settings().GetFullscreenMode()),
				*Describe(Settings().GetLastConfirmedScreenResolution(), Settings().GetLastConfirmedFullscreenMode()),
				Settings().IsVSyncEnabled(), Settings().GetAudioQualityLevel(), Settings().GetOverallScalabilityLevel()));
		}

		/** What the program does, beside what it is told. */
		static void ShowWindow()
		{
			const Host::FVideoMode Mode = Host::FVideoModeHost::Get()->GetVideoMode();
			Print(FString::Printf(TEXT("window %s, vsync %d, quality %d"), *Describe(Mode.Size, Mode.WindowMode),
				IConsoleManager::Get().FindConsoleVariable(TEXT("r.VSync"))->GetInt(), Scalability::GetQualityLevels().GetSingleQualityLevel()));
		}

		void ShowFrames(int32 Count)
		{
			for (int32 Frame = 0; Frame < Count; ++Frame)
			{
				Loop.Step(FrameTime);
			}
		}

		/** Shows one colour, all over the window. */
		static void Fill()
		{
			UBorder* const Filling = NewObject<UBorder>();
			Filling->SetBrushColor(FLinearColor::Red);
			GEngine->GameViewport->AddViewportWidgetContent(Filling->TakeWidget());
		}

		/** Pictures of the screen from one swap to the next, as the video system says. */
		static void ShowSwap()
		{
			// The one that the window stands on: it is loaded already.
			void* const Video = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_NOLOAD);
			using FGetSwapInterval = int (*)();
			const FGetSwapInterval GetSwapInterval = Video ? reinterpret_cast<FGetSwapInterval>(dlsym(Video, "SDL_GL_GetSwapInterval")) : nullptr;
			Print(GetSwapInterval ? FString::Printf(TEXT("swaps %d"), GetSwapInterval()) : FString(TEXT("swaps are not known")));
		}

		/** Shows one colour, and goes on until the end of the standard input. */
		void Hold()
		{
			Fill();
			ShowFrames(10);
			Print(TEXT("holding"));
			char Byte = 0;
			while (read(STDIN_FILENO, &Byte, 1) > 0)
			{
			}
		}

		FString Folder;
		Host::FEngineLoop Loop;
	};
}

int main(int ArgumentCount, char** Arguments)
{
	FApp::SetProjectName(TEXT("SettingsProgram"));
	TArray<FString> Words;
	for (int Index = 2; Index < ArgumentCount; ++Index)
	{
		Words.Add(UTF8_TO_TCHAR(Arguments[Index]));
	}
	return ArgumentCount > 1 ? FSettingsProgram(UTF8_TO_TCHAR(Arguments[1])).Run(Words) : 2;
}
