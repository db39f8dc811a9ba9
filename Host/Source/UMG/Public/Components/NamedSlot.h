#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "NamedSlot.generated.h"

class SBox;

/** A hole in a user widget that whoever uses the user widget fills. */
UCLASS(MinimalAPI)
class UNamedSlot : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Whether only instances of the user widget can fill the hole, not widgets that derive from it. */
	UPROPERTY(EditAnywhere, Category = "Named Slot")
	bool bExposeOnInstanceOnly = false;

	UMG_API UNamedSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

	TSharedPtr<SBox> MyBox;
};
