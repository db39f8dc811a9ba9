#pragma once

#include "CoreMinimal.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

struct lua_State;

namespace Host
{
	/**
	 * Ends scripts that run too long. An instruction hook doubles a script's run time, so none is armed until a call has
	 * lasted for its time; a thread that sleeps otherwise watches for that.
	 */
	class FLuaWatchdog
	{
	public:
		explicit FLuaWatchdog(lua_State* InState);
		~FLuaWatchdog();
		FLuaWatchdog(const FLuaWatchdog&) = delete;
		FLuaWatchdog& operator=(const FLuaWatchdog&) = delete;

		/** A call from outside begins; calls that it makes in turn share its time. */
		void BeginCall();
		void EndCall();

		/** The running call waits for the program from now on: its time is over, and calls until Resume have times of their own. */
		int32 Suspend();
		/** The call goes on, with its time from the beginning. */
		void Resume(int32 SuspendedDepth);

		/** Seconds that a call may last; one that lasts longer is ended before it has lasted twice that. */
		static constexpr double Limit = 2.0;

	private:
		void Watch();

		lua_State* State;
		std::mutex Mutex;
		std::condition_variable Changed;
		/** Counts the calls from outside; odd while one runs. */
		std::atomic<uint64> Call{0};
		/** True while the thread waits for a call to begin. */
		std::atomic<bool> bAsleep{false};
		bool bEnd = false;
		/** True once the hook was armed for the running call. */
		bool bFired = false;
		int32 Depth = 0;
		/** Started with the first call. */
		std::thread Thread;
	};
}
