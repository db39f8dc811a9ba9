#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "VerticalBox.generated.h"

class SVerticalBox;
class UVerticalBoxSlot;

/** Lays its children out from top to bottom. */
UCLASS(MinimalAPI)
class UVerticalBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	UMG_API UVerticalBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a child at the end. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UVerticalBoxSlot* AddChildToVerticalBox(UWidget* Content);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SVerticalBox> MyVerticalBox;
};
