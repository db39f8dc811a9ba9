#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "Overlay.generated.h"

class SOverlay;
class UOverlaySlot;

/** Lays its children on top of each other, later ones above. */
UCLASS(MinimalAPI)
class UOverlay : public UPanelWidget
{
	GENERATED_BODY()

public:
	UMG_API UOverlay(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a child at the end. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UOverlaySlot* AddChildToOverlay(UWidget* Content);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SOverlay> MyOverlay;
};
