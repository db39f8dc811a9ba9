#pragma once

#include "CoreMinimal.h"
#include "Project/ConfiguratorCatalogue.h"
#include "UObject/Object.h"
#include "VariantListener.generated.h"

class UHalvexVariantHandler;
class UTexture2D;

/** Writes down what a handler of variants tells, each as a word or two ended by a semicolon. */
UCLASS()
class UVariantListener : public UObject
{
	GENERATED_BODY()

public:
	/** Called in each change of variants; may be empty. */
	TFunction<void()> InVariantChange;

	void ListenTo(UHalvexVariantHandler& Handler);

	/** What was told since the last call: "variants; looks Top 0.3 Doors 0.9; changes; thumbnail Oak 8x4; ". */
	FString TakeStory();

	UFUNCTION()
	void ReceivedVariantChange();
	UFUNCTION()
	void ReceivedChangeList();
	UFUNCTION()
	void ReceivedLooks(const TArray<FVariantSurfaceLook>& SurfaceLooks);
	UFUNCTION()
	void ReceivedThumbnail(FName Image, UTexture2D* Thumbnail);

private:
	FString Story;
};
