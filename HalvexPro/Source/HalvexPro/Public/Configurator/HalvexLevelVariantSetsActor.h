#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "HalvexLevelVariantSetsActor.generated.h"

class UHalvexConfiguratorDataAsset;
class UHalvexVariantHandler;

/** Stands in a level whose rooms can be configured, and holds the handler of their variants. A level has one. */
UCLASS()
class HALVEXPRO_API AHalvexLevelVariantSetsActor : public AActor
{
	GENERATED_BODY()

public:
	/** The catalogue that the level begins with; none for a level that is given its catalogue later. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "LevelVariantSets")
	TObjectPtr<UHalvexConfiguratorDataAsset> StartCatalogue;

	/** Gives the handler a catalogue, and makes the handler with the first one. */
	UFUNCTION(BlueprintCallable, Category = "LevelVariantSets")
	void SetCatalogue(UHalvexConfiguratorDataAsset* Catalogue);

	/** Null until there is a catalogue. */
	UFUNCTION(BlueprintCallable, Category = "LevelVariantSets")
	UHalvexVariantHandler* GetVariantHandler() const { return VariantHandler; }

protected:
	virtual void BeginPlay() override;

private:
	UPROPERTY()
	TObjectPtr<UHalvexVariantHandler> VariantHandler;
};
