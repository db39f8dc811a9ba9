#include "LeakWatch.h"
#include "LogWatch.h"
#include "gtest/gtest.h"

#include "Host/LogSink.h"

namespace Host
{
	/** Starts what the modules under test stand on; each family of test programs has its own. */
	void StartTestProgram();
	void StopTestProgram();
}

int main(int ArgumentCount, char** Arguments)
{
	testing::InitGoogleTest(&ArgumentCount, Arguments);
	// What a test logs is judged by the watch, and printed with its failure.
	Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::NoLogging);
	Host::FLogSinks::Add(Host::FTestLogWatch::Get());
	testing::UnitTest::GetInstance()->listeners().Append(new Host::FLeakWatch);
	Host::StartTestProgram();
	const int Result = RUN_ALL_TESTS();
	Host::StopTestProgram();
	Host::FLogSinks::Remove(Host::FTestLogWatch::Get());
	return Result;
}
