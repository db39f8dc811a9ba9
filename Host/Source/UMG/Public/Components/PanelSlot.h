#pragma once

#include "CoreMinimal.h"
#include "Components/Visual.h"
#include "PanelSlot.generated.h"

class UPanelWidget;
class UWidget;

/** The place of a child in its panel: what the panel knows about the child's layout. */
UCLASS(BlueprintType, MinimalAPI)
class UPanelSlot : public UVisual
{
	GENERATED_BODY()

public:
	/** The panel that the slot belongs to. */
	UPROPERTY()
	TObjectPtr<UPanelWidget> Parent;

	/** The widget in the slot. */
	UPROPERTY(Instanced)
	TObjectPtr<UWidget> Content;

	UMG_API UPanelSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UMG_API bool IsDesignTime() const;

	/** Hands the slot's properties to its Slate counterpart; nothing happens before that exists. */
	UMG_API virtual void SynchronizeProperties() {}

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif
};
