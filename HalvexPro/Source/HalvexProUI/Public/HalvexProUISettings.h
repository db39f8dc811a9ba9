#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "UObject/SoftObjectPtr.h"
#include "HalvexProUISettings.generated.h"

class UHalvexUIStyleConfiguration;

/** The project's choice of look. */
UCLASS(Config = Halvex, DefaultConfig, meta = (DisplayName = "Halvex Pro UI Settings"))
class HALVEXPROUI_API UHalvexProUISettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	/** The style configuration of the project. */
	UPROPERTY(EditAnywhere, Config, Category = "HalvexStyling")
	TSoftObjectPtr<UHalvexUIStyleConfiguration> ProjectUIConfiguration;

	UHalvexProUISettings();

#if WITH_EDITOR
	/** Makes a newly chosen style take effect at once. */
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent) override;
#endif
};
