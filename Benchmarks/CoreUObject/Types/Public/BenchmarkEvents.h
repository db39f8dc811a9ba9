#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/UObjectGlobals.h"
#include "BenchmarkEvents.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FBenchmarkEvent, int32, Value);

/** Raises an event, and listens to it. */
UCLASS()
class COREUOBJECTBENCHMARKTYPES_API UBenchmarkListener : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FBenchmarkEvent OnEvent;

	/** All that was received. */
	int64 Sum = 0;

	UFUNCTION()
	void Receive(int32 Value);
};
