#include "Misc/OutputDevice.h"

#include "Logging/LogMacros.h"

void FOutputDevice::Log(const TCHAR* Text)
{
	Serialize(Text, ELogVerbosity::Log, LogCore.GetCategoryName());
}

void FOutputDevice::Log(const FString& Text)
{
	Log(*Text);
}
