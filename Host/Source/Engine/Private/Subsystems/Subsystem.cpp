#include "Subsystems/Subsystem.h"

bool USubsystem::ShouldCreateSubsystem(UObject*) const
{
	return true;
}

void USubsystem::Initialize(FSubsystemCollectionBase&)
{
}

void USubsystem::Deinitialize()
{
}
