#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "HorizontalBox.generated.h"

class SHorizontalBox;
class UHorizontalBoxSlot;

/** Lays its children out from left to right. */
UCLASS(MinimalAPI)
class UHorizontalBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	UMG_API UHorizontalBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a child at the end. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UHorizontalBoxSlot* AddChildToHorizontalBox(UWidget* Content);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SHorizontalBox> MyHorizontalBox;
};
