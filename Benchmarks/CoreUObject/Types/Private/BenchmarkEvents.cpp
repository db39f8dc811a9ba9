#include "BenchmarkEvents.h"

void UBenchmarkListener::Receive(int32 Value)
{
	Sum += Value;
}
