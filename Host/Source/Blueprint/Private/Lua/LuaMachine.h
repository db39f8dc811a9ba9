#pragma once

#include "CoreMinimal.h"
#include "Lua/LuaWatchdog.h"

struct lua_State;
class UObject;

namespace Host
{
	/** A value that the scripting side keeps for us; freed when this goes. */
	class FLuaReference
	{
	public:
		FLuaReference() = default;
		/** Takes the value off the top of the stack. */
		explicit FLuaReference(lua_State* State);
		FLuaReference(FLuaReference&& Other) noexcept;
		FLuaReference& operator=(FLuaReference&& Other) noexcept;
		~FLuaReference();

		bool IsSet() const;
		/** Puts the value on the stack. */
		void Push(lua_State* State) const;

	private:
		int32 Key = -2;
	};

	/** Where the registry keeps what imported scripts define, by path. */
	inline constexpr const char* ImportTableName = "ImportedScripts";

	/**
	 * The one scripting state of the program, with limits on memory and time and nothing within reach but values: text chunks
	 * only, no files, no processes, no loading of code.
	 */
	class FLuaMachine
	{
	public:
		/** While it lives, the running script waits for the program, and what it waits does not count as its time. */
		class FPause
		{
		public:
			FPause();
			~FPause();
			FPause(const FPause&) = delete;
			FPause& operator=(const FPause&) = delete;

		private:
			int32 Depth;
		};

		/** While it lives, a script runs that the program calls by itself; see FLuaWatchdog. */
		class FWatch
		{
		public:
			FWatch();
			~FWatch();
			FWatch(const FWatch&) = delete;
			FWatch& operator=(const FWatch&) = delete;
		};

		/** The machine, started when it is first asked for. */
		static FLuaMachine& Get();

		/** The machine if it runs; null before the start and after the end. */
		static FLuaMachine* GetIfRunning();

		/** Ends the machine; what scripts hold is gone with it. */
		static void Stop();

		FLuaMachine();
		~FLuaMachine();
		FLuaMachine(const FLuaMachine&) = delete;
		FLuaMachine& operator=(const FLuaMachine&) = delete;

		lua_State* GetState() const { return State; }

		/**
		 * Runs a chunk of text in an environment of its own, which stays on the stack with what the chunk defined. False, after
		 * a line in the log and with nothing on the stack, when it cannot be read or fails.
		 * @param Name shown in messages in place of the file
		 */
		bool RunChunk(const FString& Text, const FString& Name);

		/**
		 * Calls the function below its arguments on the stack and leaves its results there. False, after a line in the log and
		 * without results, when it fails.
		 */
		bool Call(int32 NumArguments, int32 NumResults);

		/** Lets imported scripts be read again by the next import. */
		void ForgetImports();

		/** Bytes that scripts hold. */
		int64 GetUsedBytes() const { return UsedBytes; }

		/** Most bytes that scripts may hold together. */
		static constexpr int64 MaxBytes = 64 * 1024 * 1024;

	private:
		static void* Allocate(void* User, void* Pointer, std::size_t OldSize, std::size_t NewSize);
		void OpenLibraries();

		lua_State* State = nullptr;
		int64 UsedBytes = 0;
		TUniquePtr<FLuaWatchdog> Watchdog;
	};
}
