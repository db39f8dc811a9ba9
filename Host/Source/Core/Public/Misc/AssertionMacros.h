#pragma once

#include "HAL/Platform.h"

/*
 * Assertions, compiled into every build.
 *
 * check     halts when the expression is false; the expression must have no effect that the program needs
 * verify    as check; says that the expression is evaluated for its effect
 * ensure    reports the first failure at its place, with a call stack, and goes on; its value is the truth of the expression
 * The forms ending in f or Msgf add a message: a literal format and its arguments.
 */

class FString;

namespace Host
{
	/** Logs "Assertion failed: <Expression> [File:...] [Line: n]" and aborts. */
	[[noreturn]] CORE_API void CheckFailed(const char* Expression, const char* File, int32 Line);
	[[noreturn]] CORE_API void CheckFailedWithMessage(const char* Expression, const char* File, int32 Line, const FString& Message);

	/** Logs "Ensure condition failed: <Expression> [File:...] [Line: n]" and the call stack as an error. Returns false. */
	CORE_API bool EnsureFailed(const char* Expression, const char* File, int32 Line);
	CORE_API bool EnsureFailedWithMessage(const char* Expression, const char* File, int32 Line, const FString& Message);

	/** Names Type late, so that a template below the string's header may use the string once it is called. */
	template <typename Type, typename...>
	struct TLate
	{
		using FType = Type;
	};

	template <typename FormatType, typename... ArgumentTypes>
	[[noreturn]] void CheckFailedf(const char* Expression, const char* File, int32 Line, const FormatType& Format, const ArgumentTypes&... Arguments)
	{
		CheckFailedWithMessage(Expression, File, Line, TLate<FString, FormatType>::FType::Printf(Format, Arguments...));
	}

	template <typename FormatType, typename... ArgumentTypes>
	bool EnsureFailedf(const char* Expression, const char* File, int32 Line, const FormatType& Format, const ArgumentTypes&... Arguments)
	{
		return EnsureFailedWithMessage(Expression, File, Line, TLate<FString, FormatType>::FType::Printf(Format, Arguments...));
	}
}

#define check(Expression) \
	do \
	{ \
		if (!(Expression)) [[unlikely]] \
		{ \
			::Host::CheckFailed(#Expression, __FILE__, __LINE__); \
		} \
	} while (false)

#define checkf(Expression, Format, ...) \
	do \
	{ \
		if (!(Expression)) [[unlikely]] \
		{ \
			::Host::CheckFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(,) __VA_ARGS__); \
		} \
	} while (false)

#define verify(Expression) check(Expression)
#define verifyf(Expression, Format, ...) checkf(Expression, Format __VA_OPT__(,) __VA_ARGS__)

/** Runs statements that exist only for the sake of a check. */
#define checkCode(...) do { __VA_ARGS__; } while (false)

/** Halts: control must never come here. */
#define checkNoEntry() ::Host::CheckFailed("Enclosing block should never be called", __FILE__, __LINE__)

/** Halts: a virtual function whose base must be overridden was called. */
#define unimplemented() ::Host::CheckFailed("Unimplemented function called", __FILE__, __LINE__)

// The lambda gives every use a flag of its own; an unused result is not worth a warning.
#define HOST_ENSURE(bAlways, Expression, Report) \
	(!!(Expression) || ([&]() -> bool \
	{ \
		static bool bEnsureReported = false; \
		if (bEnsureReported && !(bAlways)) \
		{ \
			return false; \
		} \
		bEnsureReported = true; \
		return Report; \
	})())

#define ensure(Expression) \
	HOST_ENSURE(false, Expression, ::Host::EnsureFailed(#Expression, __FILE__, __LINE__))
#define ensureMsgf(Expression, Format, ...) \
	HOST_ENSURE(false, Expression, ::Host::EnsureFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(,) __VA_ARGS__))
/** As ensure, but every failure is reported. */
#define ensureAlways(Expression) \
	HOST_ENSURE(true, Expression, ::Host::EnsureFailed(#Expression, __FILE__, __LINE__))
#define ensureAlwaysMsgf(Expression, Format, ...) \
	HOST_ENSURE(true, Expression, ::Host::EnsureFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(,) __VA_ARGS__))
