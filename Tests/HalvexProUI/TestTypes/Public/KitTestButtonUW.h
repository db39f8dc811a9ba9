#pragma once

#include "CoreMinimal.h"
#include "UserWidget/HalvexButtonUW.h"
#include "KitTestButtonUW.generated.h"

class UKitTestRecorder;

/** A button user widget whose blueprint can write to the test's list of events. */
UCLASS()
class HALVEXPROUITESTTYPES_API UKitTestButtonUW : public UHalvexButtonUW
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UKitTestRecorder> Recorder;

	/** What the blueprint's event calls. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	void NoteHook(bool bSelected);
};
