#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "Style/HalvexStyleModels.h"
#include "HalvexUIStyleConfiguration.generated.h"

/** Every visual decision of a project in one asset. A new asset carries the shipped light look. */
UCLASS(BlueprintType)
class HALVEXPROUI_API UHalvexUIStyleConfiguration : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Colours with a regular and a contrast variant, by identifier. They are searched before the simple ones. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexUIConfig")
	TMap<FName, FColorKeyValues> ColorStyleMap;

	/** Colours without a contrast variant, by identifier. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexUIConfig")
	TMap<FName, FLinearColor> ColorSimpleMap;

	/** The font family and its schemas. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexUIConfig")
	FHalvexFontStyle FontStyle;

	/** Icon fonts by name. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexUIConfig")
	TMap<FName, FFontIconData> FontIconMap;

	UHalvexUIStyleConfiguration();
};
