#include "EngineBenchmark.h"

#include "Host/LogSink.h"
#include "Host/PathRoots.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

Host::FEngineLoop& GetBenchmarkLoop()
{
	static Host::FEngineLoop Loop;
	return Loop;
}

int main(int ArgumentCount, char** Arguments)
{
	benchmark::Initialize(&ArgumentCount, Arguments);
	Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::Warning);
	// The user's settings shall not change the figures, nor the other way round.
	const std::filesystem::path UserFolder = std::filesystem::temp_directory_path() / ("HalvexBenchmarks" + std::to_string(::getpid()));
	Host::FPathRoots::SetSavedDir(FString(UTF8_TO_TCHAR(UserFolder.c_str())));
	Host::FEngineLoopSettings Settings;
	Settings.bHeadless = true;
	Settings.Renderer = Host::ERendererChoice::Cpu;
	Settings.WindowSize = FIntPoint(1920, 1080);
	Settings.PluginFolder = TEXT(HALVEX_PLUGIN_DIR);
	FString Error;
	const bool bStarted = GetBenchmarkLoop().Init(Settings, Error);
	checkf(bStarted, TEXT("%s"), *Error);
	benchmark::RunSpecifiedBenchmarks();
	GetBenchmarkLoop().Exit();
	std::filesystem::remove_all(UserFolder);
	return 0;
}
