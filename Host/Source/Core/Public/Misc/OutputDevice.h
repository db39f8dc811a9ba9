#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** Something that takes lines of text: the answer to a console command, a report. */
class FOutputDevice
{
public:
	virtual ~FOutputDevice() = default;

	/** Takes one line, without a line break at its end. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;

	CORE_API void Log(const TCHAR* Text);
	CORE_API void Log(const FString& Text);

	template <typename FormatType, typename... ArgumentTypes>
	void Logf(const FormatType& Format, const ArgumentTypes&... Arguments)
	{
		Log(FString::Printf(Format, Arguments...));
	}
};
