#include "Misc/App.h"

#include "Containers/UnrealString.h"
#include "HAL/PlatformProcess.h"
#include "Host/Clock.h"

namespace
{
	FString& GetStoredProjectName()
	{
		static FString Name = FPlatformProcess::ExecutableName();
		return Name;
	}
}

const TCHAR* FApp::GetProjectName()
{
	return *GetStoredProjectName();
}

void FApp::SetProjectName(const TCHAR* InProjectName)
{
	GetStoredProjectName() = InProjectName;
}

double FApp::GetCurrentTime()
{
	return Host::FClock::Now();
}

double FApp::GetDeltaTime()
{
	return Host::FClock::DeltaTime();
}
