#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Types/SlateEnums.h"
#include "ScaleBoxSlot.generated.h"

class SScaleBox;

/** Place of the content in a scale box. */
UCLASS(MinimalAPI)
class UScaleBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UScaleBoxSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Scale Box Slot")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Scale Box Slot")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Puts the content into the Slate widget. */
	UMG_API void BuildSlot(TSharedRef<SScaleBox> InScaleBox);

private:
	/** Where the content lies from left to right in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Scale Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Center;

	/** Where the content lies from top to bottom in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Scale Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Center;

	TWeakPtr<SScaleBox> ScaleBox;
};
