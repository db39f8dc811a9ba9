#pragma once

#include <cstdlib>
#include <string>

/** Sets an environment variable until its end. */
class FEnvironment
{
public:
	FEnvironment(const char* InName, const char* Value)
		: Name(InName)
		, bWasSet(std::getenv(InName) != nullptr)
		, Old(bWasSet ? std::getenv(InName) : "")
	{
		setenv(Name, Value, 1);
	}

	~FEnvironment()
	{
		bWasSet ? setenv(Name, Old.c_str(), 1) : unsetenv(Name);
	}

	FEnvironment(const FEnvironment&) = delete;
	FEnvironment& operator=(const FEnvironment&) = delete;

private:
	const char* Name;
	bool bWasSet;
	std::string Old;
};
