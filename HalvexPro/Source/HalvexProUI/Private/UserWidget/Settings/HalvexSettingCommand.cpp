#include "UserWidget/Settings/HalvexSettingCommand.h"

#include "HAL/IConsoleManager.h"
#include "Kismet/KismetSystemLibrary.h"

float UHalvexSettingCommand::GetScreenPercentageValue() const
{
	const IConsoleVariable* Variable = IConsoleManager::Get().FindConsoleVariable(TEXT("r.ScreenPercentage"));
	return Variable ? Variable->GetFloat() : -1.0f;
}

void UHalvexSettingCommand::SetScreenPercentageValue(float InValue)
{
	UKismetSystemLibrary::ExecuteConsoleCommand(this, FString::Printf(TEXT("r.ScreenPercentage %d"), static_cast<int32>(InValue)));
}
