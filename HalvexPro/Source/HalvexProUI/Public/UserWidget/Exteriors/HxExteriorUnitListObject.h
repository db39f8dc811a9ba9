#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "HxExteriorUnitListObject.generated.h"

class AUnitVolumeActor;

/** One unit as an item of a list view. */
UCLASS(BlueprintType)
class HALVEXPROUI_API UHxExteriorUnitListObject : public UObject
{
	GENERATED_BODY()

public:
	/** The unit in the scene; may be null. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxExteriorUnitListObject")
	TObjectPtr<AUnitVolumeActor> UnitVolumeActorRef;
};
