#include "EngineTest.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/PathRoots.h"

#include <unistd.h>

#include <filesystem>

namespace Host
{
	namespace
	{
		/** The user's folder of this run: tests never touch the real one. */
		std::filesystem::path UserFolder;
	}

	FEngineLoop& GetTestLoop()
	{
		static FEngineLoop Loop;
		return Loop;
	}

	void StartTestProgram()
	{
		UserFolder = std::filesystem::temp_directory_path() / ("HalvexTests" + std::to_string(::getpid()));
		FPathRoots::SetSavedDir(FString(UTF8_TO_TCHAR(UserFolder.c_str())));
		FEngineLoopSettings Settings;
		Settings.bHeadless = true;
		Settings.Renderer = ERendererChoice::Cpu;
		Settings.WindowSize = FIntPoint(800, 600);
		Settings.PluginFolder = TEXT(HALVEX_PLUGIN_DIR);
		FString Error;
		const bool bStarted = GetTestLoop().Init(Settings, Error);
		checkf(bStarted, TEXT("%s"), *Error);
		GetTestLoop().RunUntilIdle();
	}

	void StopTestProgram()
	{
		GetTestLoop().Exit();
		std::filesystem::remove_all(UserFolder);
	}

	FEngineTest::FEngineTest()
		: Loop(GetTestLoop())
		, Driver(GetTestLoop())
	{
	}

	void FEngineTest::TearDown()
	{
		GEngine->GameViewport->RemoveAllViewportWidgets();
		// The next test finds the pointer where a new program has it.
		Driver.MoveTo(FVector2D::ZeroVector);
		Loop.RunUntilIdle();
	}
}
