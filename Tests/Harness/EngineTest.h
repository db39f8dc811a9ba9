#pragma once

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "Host/AutomationDriver.h"
#include "Host/EngineLoop.h"
#include "gtest/gtest.h"

namespace Host
{
	/** The engine that the tests of this program run in: headless, drawn by the CPU, in a window of 800 x 600 pixels. */
	FEngineLoop& GetTestLoop();

	/** Base of tests in a running engine: drives it as a user would, and leaves the viewport empty. */
	class FEngineTest : public testing::Test
	{
	protected:
		FEngineTest();
		virtual void TearDown() override;

		FEngineLoop& Loop;
		FAutomationDriver Driver;
	};

	inline std::string ToStd(const FString& Text)
	{
		return TCHAR_TO_UTF8(*Text);
	}
	inline std::string ToStd(const FName& Name)
	{
		return ToStd(Name.ToString());
	}
	inline std::string ToStd(const FText& Text)
	{
		return ToStd(Text.ToString());
	}
}
