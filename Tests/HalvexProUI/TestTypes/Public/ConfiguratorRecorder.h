#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ConfiguratorRecorder.generated.h"

class UHxConfiguratorListElement;

/** Writes down what elements and lists of the configurator tell. */
UCLASS()
class HALVEXPROUITESTTYPES_API UConfiguratorRecorder : public UObject
{
	GENERATED_BODY()

public:
	/** "index 2; clicked Oak; ". */
	FString Take();

	UFUNCTION()
	void ReceivedIndex(int32 NewIndexVariant);
	UFUNCTION()
	void ReceivedElement(UHxConfiguratorListElement* ConfiguratorListElement);

private:
	FString Story;
};
