#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/SOverlay.h"
#include "OverlaySlot.generated.h"

/** Place of a child in an overlay. */
UCLASS(MinimalAPI)
class UOverlaySlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UOverlaySlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FMargin GetPadding() const { return Padding; }

	/** Sets the room around the content, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	UMG_API void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Overlay Slot")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content to the Slate panel. */
	UMG_API void BuildSlot(TSharedRef<SOverlay> Panel);

private:
	/** Room around the content, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot", meta = (AllowPrivateAccess = "true"))
	FMargin Padding;

	/** Where the content lies from left to right in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Left;

	/** Where the content lies from top to bottom in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Overlay Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Top;

	SOverlay::FOverlaySlot* Slot = nullptr;
};
