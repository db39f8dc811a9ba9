#include "MadeUpProject.h"
#include "Project/ProjectReader.h"
#include "Project/UnitTableReader.h"

#include <benchmark/benchmark.h>

namespace
{
	TConstArrayView<uint8> View(const std::string& Text)
	{
		return MakeArrayView(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size()));
	}

	/** A project's text to its records. */
	void ReadProject(benchmark::State& State)
	{
		const std::string Text = MakeProjectText(int32(State.range(0)));
		for (auto _ : State)
		{
			FProjectData Project;
			FReadProblems Problems(TEXT("project.json"));
			verify(FProjectReader::ReadBytes(View(Text), Project, Problems));
			check(Problems.IsEmpty());
			State.PauseTiming();
			Project = FProjectData();
			State.ResumeTiming();
		}
		State.SetBytesProcessed(State.iterations() * int64(Text.size()));
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(ReadProject)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

	/** The sample project's file, with its rooms and its catalogue, to its records. */
	void ReadSample(benchmark::State& State)
	{
		for (auto _ : State)
		{
			FProjectData Project;
			verify(FProjectReader::LoadFolder(TEXT(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside"), Project));
			benchmark::DoNotOptimize(Project.Catalogue.Categories.GetData());
		}
	}
	BENCHMARK(ReadSample)->Unit(benchmark::kMillisecond);

	/** A sales list to units. */
	void ReadTable(benchmark::State& State)
	{
		const std::string Text = MakeTableText(int32(State.range(0)));
		const FUnitTableMapping Mapping = FUnitTableMapping::MakeDefault();
		for (auto _ : State)
		{
			TArray<FProjectUnit> Units;
			FReadProblems Problems(TEXT("list.csv"));
			verify(FUnitTableReader::ReadBytes(View(Text), Mapping, Units, Problems));
			check(Units.Num() == State.range(0));
		}
		State.SetBytesProcessed(State.iterations() * int64(Text.size()));
		State.SetComplexityN(State.range(0));
	}
	BENCHMARK(ReadTable)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();
}
