#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ButtonListener.generated.h"

class UButton;

/** Writes down the events of a button, in order. */
UCLASS()
class UMGTESTTYPES_API UButtonListener : public UObject
{
	GENERATED_BODY()

public:
	FString Events;

	void Listen(UButton& Button);

	UFUNCTION()
	void ReceivedClicked() { Events += TEXT("Clicked "); }
	UFUNCTION()
	void ReceivedPressed() { Events += TEXT("Pressed "); }
	UFUNCTION()
	void ReceivedReleased() { Events += TEXT("Released "); }
	UFUNCTION()
	void ReceivedHovered() { Events += TEXT("Hovered "); }
	UFUNCTION()
	void ReceivedUnhovered() { Events += TEXT("Unhovered "); }
};
