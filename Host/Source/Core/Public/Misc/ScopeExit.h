#pragma once

#include "Templates/UnrealTemplate.h"

/** Runs a callable when its scope ends. */
template <typename FuncType>
class TScopeGuard : private FNoncopyable
{
public:
	explicit TScopeGuard(FuncType&& InFunc)
		: Func(static_cast<FuncType&&>(InFunc))
	{
	}

	~TScopeGuard()
	{
		Func();
	}

private:
	FuncType Func;
};

struct FScopeGuardSyntaxSupport
{
	template <typename FuncType>
	TScopeGuard<FuncType> operator+(FuncType&& InFunc)
	{
		return TScopeGuard<FuncType>(static_cast<FuncType&&>(InFunc));
	}
};

/** `ON_SCOPE_EXIT { Statements; };` runs the statements when the enclosing scope is left. */
#define ON_SCOPE_EXIT const auto PREPROCESSOR_JOIN(ScopeGuard_, __LINE__) = FScopeGuardSyntaxSupport() + [&]()
