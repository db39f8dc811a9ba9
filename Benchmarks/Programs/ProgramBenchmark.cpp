#include "ChildProcess.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{
	constexpr const char* FirstFrame = "the first frame is there";

	/** A folder that goes with the benchmark. */
	class FScratchFolder
	{
	public:
		FScratchFolder() : Path(std::filesystem::temp_directory_path() / ("HalvexBenchmarks" + std::to_string(::getpid())))
		{
			std::filesystem::create_directories(Path);
		}
		~FScratchFolder() { std::filesystem::remove_all(Path); }

		const std::filesystem::path Path;
	};

	void Repeat(benchmark::State& State, const std::vector<std::string>& Arguments, const std::string& Sought)
	{
		double Processor = 0.0;
		for (auto _ : State)
		{
			const FChildRun Run = RunChild(Arguments, Sought);
			if (!Run.bSucceeded)
			{
				State.SkipWithError((Arguments[0] + " failed").c_str());
				return;
			}
			State.SetIterationTime(Run.Seconds);
			Processor += Run.ProcessorSeconds;
		}
		State.counters["processor_ms"] = benchmark::Counter(1e3 * Processor, benchmark::Counter::kAvgIterations);
	}

	/** From the start of the process to the end of the frame that shows the screen. */
	void ViewerStart(benchmark::State& State, const std::string& Screen, bool bWindow)
	{
		if (bWindow && !std::getenv("DISPLAY"))
		{
			State.SkipWithError("there is no display");
			return;
		}
		const FScratchFolder Folder;
		const std::filesystem::path Script = Folder.Path / "FirstFrame.lua";
		std::ofstream(Script) << "print('" << FirstFrame << "')\n";
		std::vector<std::string> Arguments{ VIEWER_PATH, "--screen", Screen, "--renderer", "cpu", "--script", Script.string() };
		if (!bWindow)
		{
			Arguments.push_back("--headless");
		}
		RunChild(Arguments, FirstFrame);
		Repeat(State, Arguments, FirstFrame);
	}

	void HeaderToolOnThePlugin(benchmark::State& State)
	{
		const FScratchFolder Folder;
		const std::filesystem::path Response = Folder.Path / "HalvexProUI.args";
		{
			// As the build calls it, but writing elsewhere.
			std::ifstream In(HEADER_TOOL_ARGUMENTS);
			std::ofstream Out(Response);
			bool bIsOutput = false;
			for (std::string Line; std::getline(In, Line);)
			{
				Out << (bIsOutput ? Folder.Path.string() : Line) << '\n';
				bIsOutput = Line == "--output";
			}
		}
		Repeat(State, { HEADER_TOOL_PATH, "--arguments", Response.string() }, std::string());
	}
}

// One start a repetition, so that the table can show the best and the median.
BENCHMARK_CAPTURE(ViewerStart, Headless, "Gallery", false)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ViewerStart, Window, "Gallery", true)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(HeaderToolOnThePlugin)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
