#include "Images/HalvexImageAction.h"

#include "Images/HalvexImageService.h"
#include "Images/HalvexImageSubsystem.h"

void UHalvexImageAction::Cancel()
{
}

bool UHalvexImageAction::HasListeners() const
{
	return false;
}

void UHalvexImageAction::CancelIfAbandoned()
{
	if (bRunning && bHadListeners && !HasListeners())
	{
		Cancel();
	}
}

void UHalvexImageAction::BeginRun()
{
	bRunning = true;
	bHadListeners = HasListeners();
	if (const UHalvexImageSubsystem* Subsystem = UHalvexImageSubsystem::Get())
	{
		Subsystem->GetService().Keep(*this);
	}
}

void UHalvexImageAction::EndRun()
{
	bRunning = false;
	if (const UHalvexImageSubsystem* Subsystem = UHalvexImageSubsystem::Get())
	{
		Subsystem->GetService().LetGo(*this);
	}
}
