#pragma once

#include "Host/EngineLoop.h"

#include <chrono>
#include <functional>
#include <thread>

namespace Host
{
	/**
	 * Runs frames until the condition holds, for what other threads and servers do in their own time. The clock moves on as in
	 * a fast program, so that timers do not hold a test up.
	 * @return false when a generous limit of real time has passed without it
	 */
	inline bool WaitUntil(FEngineLoop& Loop, const std::function<bool()>& Condition, double FrameSeconds = 1.0 / 60.0)
	{
		const auto Limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
		while (!Condition())
		{
			if (std::chrono::steady_clock::now() > Limit)
			{
				return false;
			}
			Loop.RunFrame(FrameSeconds);
			// Others need the processor too.
			std::this_thread::sleep_for(std::chrono::milliseconds(1));
		}
		return true;
	}
}
