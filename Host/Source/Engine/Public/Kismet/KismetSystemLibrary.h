#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemLibrary.generated.h"

class APlayerController;

/** The console and the screen, for graphs. */
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Runs what a user could type into the console. A line that names nothing is one log line. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject"))
	static void ExecuteConsoleCommand(const UObject* WorldContextObject, const FString& Command, APlayerController* SpecificPlayer = nullptr);

	/** Each of these is 0, or empty, when there is no such variable. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static float GetConsoleVariableFloatValue(const FString& VariableName);
	UFUNCTION(BlueprintPure, Category = "Development")
	static int32 GetConsoleVariableIntValue(const FString& VariableName);
	UFUNCTION(BlueprintPure, Category = "Development")
	static bool GetConsoleVariableBoolValue(const FString& VariableName);
	UFUNCTION(BlueprintPure, Category = "Development")
	static FString GetConsoleVariableStringValue(const FString& VariableName);

	/** The resolutions of the main screen, and the one that the window has now, each once, the smallest first. False, with an empty list, when there is none. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static bool GetSupportedFullscreenResolutions(TArray<FIntPoint>& Resolutions);

	/** Usual sizes of windows that leave some of the main screen free, the smallest first. False, with an empty list, when none does. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	static bool GetConvenientWindowedResolutions(TArray<FIntPoint>& Resolutions);
};
