#pragma once

#include "Misc/OutputDevice.h"

/** Gathers what is written in a string, each line ended by a line break. */
class FStringOutputDevice : public FString, public FOutputDevice
{
public:
	explicit FStringOutputDevice(const TCHAR* Start = TEXT(""))
		: FString(Start)
	{
	}

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type, const FName&) override
	{
		*static_cast<FString*>(this) += V;
		*static_cast<FString*>(this) += LINE_TERMINATOR;
	}
};
