#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "TimerHandle.generated.h"

/** What a timer calls, as graphs bind it. */
DECLARE_DYNAMIC_DELEGATE(FTimerDynamicDelegate);

/** Names one timer of a timer manager. */
USTRUCT(BlueprintType)
struct ENGINE_API FTimerHandle
{
	GENERATED_BODY()

	/** True when it named a timer once; the timer may have ended since. */
	bool IsValid() const { return Handle != 0; }

	void Invalidate() { Handle = 0; }

	bool operator==(const FTimerHandle& Other) const { return Handle == Other.Handle; }

	FString ToString() const { return FString::Printf(TEXT("%llu"), Handle); }

	friend uint32 GetTypeHash(const FTimerHandle& InHandle) { return GetTypeHash(InHandle.Handle); }

private:
	friend class FTimerManager;

	/** Slot and serial number of the timer in its manager; 0 for none. */
	UPROPERTY(Transient)
	uint64 Handle = 0;
};
