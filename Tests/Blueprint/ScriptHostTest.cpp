#include "Host/ScriptHost.h"

#include "EngineTest.h"
#include "HAL/PlatformProcess.h"
#include "TemporaryContent.h"

namespace
{
	class FScriptHostTest : public Host::FEngineTest
	{
	protected:
		bool Run(const char* Text) { return Scripts.RunFile(Content.Write(TEXT("script.lua"), Text)); }

		Host::FTemporaryContent Content{ TEXT("/Scripts/") };
		Host::FScriptHost Scripts;
	};

	TEST_F(FScriptHostTest, TimeOfTheProgramIsNotTheScripts)
	{
		// Longer than a script may run by itself.
		Scripts.AddFunction(TEXT("Work"), [](Host::FScriptCall&) { FPlatformProcess::Sleep(2.5f); });
		EXPECT_TRUE(Run("Work() for i = 1, 100000 do end"));
	}

	TEST_F(FScriptHostTest, ScriptIsEndedAfterTheProgramHasWorked)
	{
		Scripts.AddFunction(TEXT("Work"), [](Host::FScriptCall&) {});
		const Host::FExpectedLog Ended(TEXT("the script ran for more than 2 seconds and was ended"));
		EXPECT_FALSE(Run("Work() while true do end"));
	}
}
