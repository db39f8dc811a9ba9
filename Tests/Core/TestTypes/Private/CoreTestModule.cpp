#include "CoreTestModule.h"

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FCoreTestModule, CoreTestTypes)

TArray<FString>& FCoreTestModule::GetEvents()
{
	static TArray<FString> Events;
	return Events;
}

void FCoreTestModule::StartupModule()
{
	GetEvents().Add(TEXT("Startup"));
}

void FCoreTestModule::PreUnloadCallback()
{
	GetEvents().Add(TEXT("PreUnload"));
}

void FCoreTestModule::ShutdownModule()
{
	GetEvents().Add(TEXT("Shutdown"));
}
