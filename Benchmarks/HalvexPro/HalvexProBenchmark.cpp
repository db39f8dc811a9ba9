#include "CoreMinimal.h"
#include "Host/LogSink.h"
#include "Host/StartModules.h"

#include <benchmark/benchmark.h>

int main(int ArgumentCount, char** Arguments)
{
	benchmark::Initialize(&ArgumentCount, Arguments);
	Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::Warning);
	Host::StartLinkedModules();
	benchmark::RunSpecifiedBenchmarks();
	return 0;
}
