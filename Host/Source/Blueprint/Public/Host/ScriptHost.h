#pragma once

#include "CoreMinimal.h"

class FProperty;
class UObject;
struct lua_State;

namespace Host
{
	/** The arguments and results of one call from a script to a function of the program. Arguments count from 1. */
	class BLUEPRINT_API FScriptCall
	{
	public:
		explicit FScriptCall(lua_State* InState)
			: State(InState)
		{
		}

		int32 NumArguments() const;
		/** Each ends the call with an error in the script when the argument is of another kind. */
		FString GetString(int32 Index) const;
		double GetNumber(int32 Index) const;
		UObject& GetObject(int32 Index) const;

		/** As the ones above, with a value for an argument that is missing. */
		FString GetString(int32 Index, const FString& Default) const;
		double GetNumber(int32 Index, double Default) const;

		bool IsString(int32 Index) const;
		/** Whether the argument counts as true: everything but false and what is missing. */
		bool IsTrue(int32 Index) const;
		/** Calls a function given as argument, without arguments, and tells whether what it gave counts as true. */
		bool CallCondition(int32 Index) const;

		void Return(const FString& Value);
		void Return(double Value);
		void Return(int32 Value);
		void Return(bool bValue);
		void Return(const UObject* Value);
		/** The value of a property, in the form that graphs have. */
		void Return(const FProperty& Property, const void* Value);

		/** Ends the call with an error in the script. */
		[[noreturn]] void Fail(const FString& Message) const;

		int32 GetNumResults() const { return NumResults; }

	private:
		lua_State* State;
		int32 NumResults = 0;
	};

	/** A function that scripts can call. */
	using FScriptFunction = TFunction<void(FScriptCall&)>;

	/**
	 * Runs scripts that are no graphs of widgets, with further functions for them. The time that a script may take is that between
	 * two calls of these: while one of them runs, the script waits.
	 */
	class BLUEPRINT_API FScriptHost
	{
	public:
		/** Adds a function that the scripts of this host can call by name. */
		void AddFunction(const FString& Name, FScriptFunction Function);

		/** Runs a script of text. False, after a line in the log, when it cannot be read or fails. */
		bool RunFile(const FString& Filename);

	private:
		TMap<FString, TSharedPtr<FScriptFunction>> Functions;
	};
}
