#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

/** A module that notes what is done with it. */
class FCoreTestModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void PreUnloadCallback() override;
	virtual void ShutdownModule() override;

	/** What happened to all instances so far, in order. */
	static TArray<FString>& GetEvents();
};
