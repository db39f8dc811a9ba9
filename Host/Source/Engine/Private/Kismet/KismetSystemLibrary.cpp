#include "Kismet/KismetSystemLibrary.h"

#include "HAL/IConsoleManager.h"
#include "Host/Displays.h"
#include "Host/VideoModeHost.h"
#include "Logging/LogMacros.h"
#include "Misc/StringOutputDevice.h"

namespace
{
	IConsoleVariable* FindVariable(const FString& Name)
	{
		return IConsoleManager::Get().FindConsoleVariable(*Name);
	}

	const FIntPoint UsualSizes[] =
	{
		FIntPoint(640, 480), FIntPoint(800, 600), FIntPoint(1024, 768), FIntPoint(1280, 720), FIntPoint(1366, 768),
		FIntPoint(1600, 900), FIntPoint(1920, 1080), FIntPoint(2560, 1440), FIntPoint(3200, 1800), FIntPoint(3840, 2160),
	};
}

void UKismetSystemLibrary::ExecuteConsoleCommand(const UObject* WorldContextObject, const FString& Command, APlayerController*)
{
	FStringOutputDevice Answer;
	UWorld* const World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
	if (!IConsoleManager::Get().ProcessUserConsoleInput(*Command, Answer, World))
	{
		UE_LOG(LogCore, Warning, TEXT("'%s' is no console command"), *Command);
		return;
	}
	UE_LOG(LogCore, Log, TEXT("%s: %s"), *Command, *Answer.TrimEnd());
}

float UKismetSystemLibrary::GetConsoleVariableFloatValue(const FString& VariableName)
{
	const IConsoleVariable* const Variable = FindVariable(VariableName);
	return Variable ? Variable->GetFloat() : 0.0f;
}

int32 UKismetSystemLibrary::GetConsoleVariableIntValue(const FString& VariableName)
{
	const IConsoleVariable* const Variable = FindVariable(VariableName);
	return Variable ? Variable->GetInt() : 0;
}

bool UKismetSystemLibrary::GetConsoleVariableBoolValue(const FString& VariableName)
{
	const IConsoleVariable* const Variable = FindVariable(VariableName);
	return Variable && Variable->GetBool();
}

FString UKismetSystemLibrary::GetConsoleVariableStringValue(const FString& VariableName)
{
	const IConsoleVariable* const Variable = FindVariable(VariableName);
	return Variable ? Variable->GetString() : FString();
}

bool UKismetSystemLibrary::GetSupportedFullscreenResolutions(TArray<FIntPoint>& Resolutions)
{
	Resolutions.Reset();
	for (const Host::FDisplayMode& Mode : Host::FDisplays::GetModes())
	{
		// The same size stands there once for each rate.
		Resolutions.AddUnique(FIntPoint(Mode.Width, Mode.Height));
	}
	if (const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get())
	{
		// Whoever chooses among these finds what there is now.
		Resolutions.AddUnique(Window->GetVideoMode().Size);
	}
	Resolutions.Sort([](const FIntPoint& A, const FIntPoint& B) { return A.X != B.X ? A.X < B.X : A.Y < B.Y; });
	return !Resolutions.IsEmpty();
}

bool UKismetSystemLibrary::GetConvenientWindowedResolutions(TArray<FIntPoint>& Resolutions)
{
	Resolutions.Reset();
	const Host::FDisplayMode Desktop = Host::FDisplays::GetDesktopMode();
	for (const FIntPoint& Size : UsualSizes)
	{
		if (Size.X < Desktop.Width && Size.Y < Desktop.Height)
		{
			Resolutions.Add(Size);
		}
	}
	return !Resolutions.IsEmpty();
}
