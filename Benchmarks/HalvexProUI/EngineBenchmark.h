#pragma once

#include "CoreMinimal.h"
#include "Host/EngineLoop.h"

/** The engine that the benchmarks of this program run in: headless, drawn by the CPU. */
Host::FEngineLoop& GetBenchmarkLoop();
