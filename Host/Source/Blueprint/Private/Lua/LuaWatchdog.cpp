#include "Lua/LuaWatchdog.h"

#include "Lua/LuaApi.h"

#include <chrono>

namespace Host
{
	namespace
	{
		void EndScript(lua_State* State, lua_Debug*)
		{
			lua_sethook(State, nullptr, 0, 0);
			luaL_error(State, "the script ran for more than %d seconds and was ended", static_cast<int>(FLuaWatchdog::Limit));
		}
	}

	FLuaWatchdog::FLuaWatchdog(lua_State* InState)
		: State(InState)
	{
	}

	FLuaWatchdog::~FLuaWatchdog()
	{
		{
			const std::lock_guard Lock(Mutex);
			bEnd = true;
		}
		Changed.notify_one();
		if (Thread.joinable())
		{
			Thread.join();
		}
	}

	void FLuaWatchdog::BeginCall()
	{
		if (Depth++ > 0)
		{
			return;
		}
		++Call;
		if (!Thread.joinable())
		{
			Thread = std::thread([this] { Watch(); });
		}
		else if (bAsleep.exchange(false))
		{
			// Under the lock, so that the thread is not between its look and its sleep.
			const std::lock_guard Lock(Mutex);
			Changed.notify_one();
		}
	}

	void FLuaWatchdog::EndCall()
	{
		if (--Depth > 0)
		{
			return;
		}
		const std::lock_guard Lock(Mutex);
		++Call;
		if (lua_gethook(State))
		{
			lua_sethook(State, nullptr, 0, 0);
		}
		if (bFired)
		{
			bFired = false;
			Changed.notify_one();
		}
	}

	int32 FLuaWatchdog::Suspend()
	{
		const int32 Suspended = Depth;
		Depth = 1;
		EndCall();
		return Suspended;
	}

	void FLuaWatchdog::Resume(int32 SuspendedDepth)
	{
		check(Depth == 0);
		BeginCall();
		Depth = SuspendedDepth;
	}

	void FLuaWatchdog::Watch()
	{
		std::unique_lock Lock(Mutex);
		while (!bEnd)
		{
			const uint64 Watched = Call;
			if (Watched % 2 == 0)
			{
				// Said at every look: who wakes this thread takes the word back, and that call may have ended by now.
				Changed.wait(Lock, [this] {
					bAsleep = true;
					return bEnd || Call % 2 == 1;
				});
				bAsleep = false;
				continue;
			}
			Changed.wait_for(Lock, std::chrono::duration<double>(Limit), [this] { return bEnd; });
			if (!bEnd && Call == Watched)
			{
				// Setting a hook is the one thing that another thread may do to a running script.
				lua_sethook(State, &EndScript, LUA_MASKCOUNT | LUA_MASKCALL | LUA_MASKRET, 1);
				bFired = true;
				Changed.wait(Lock, [this, Watched] { return bEnd || Call != Watched; });
			}
		}
	}
}
