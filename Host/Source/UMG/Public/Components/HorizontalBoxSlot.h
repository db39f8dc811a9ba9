#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/SBoxPanel.h"
#include "HorizontalBoxSlot.generated.h"

/** Place of a child in a horizontal box. */
UCLASS(MinimalAPI)
class UHorizontalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UHorizontalBoxSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FMargin GetPadding() const { return Padding; }

	/** Sets the room around the content, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	UMG_API void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	FSlateChildSize GetSize() const { return Size; }

	/** Sets how much of the box's length the slot gets. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Horizontal Box Slot")
	UMG_API void SetSize(FSlateChildSize InSize);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content to the Slate panel. */
	UMG_API void BuildSlot(TSharedRef<SHorizontalBox> Panel);

private:
	/** How much of the box's length the slot gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot", meta = (AllowPrivateAccess = "true"))
	FSlateChildSize Size = ESlateSizeRule::Automatic;

	/** Room around the content, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot", meta = (AllowPrivateAccess = "true"))
	FMargin Padding;

	/** Where the content lies from left to right in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	/** Where the content lies from top to bottom in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Horizontal Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;

	SHorizontalBox::FSlot* Slot = nullptr;
};
