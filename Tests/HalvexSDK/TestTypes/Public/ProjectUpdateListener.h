#pragma once

#include "CoreMinimal.h"
#include "Service/ProjectRequestModels.h"
#include "UObject/Object.h"
#include "ProjectUpdateListener.generated.h"

class UHalvexProjectRequestManager;

/** Writes down what a request manager tells, and what it keeps at that moment. */
UCLASS()
class UProjectUpdateListener : public UObject
{
	GENERATED_BODY()

public:
	void ListenTo(UHalvexProjectRequestManager& InManager);

	/** What was told since the last call: "ConfiguratorTarget Added [HH-101], ...", with the target in brackets. */
	FString TakeUpdates();

	UFUNCTION()
	void ReceiveUpdate(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType);

private:
	UPROPERTY()
	TObjectPtr<UHalvexProjectRequestManager> Manager;

	TArray<FString> Updates;
};
