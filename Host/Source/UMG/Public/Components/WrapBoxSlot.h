#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/Layout/SWrapBox.h"
#include "WrapBoxSlot.generated.h"

/** Place of a child in a wrap box. */
UCLASS(MinimalAPI)
class UWrapBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UWrapBoxSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FMargin GetPadding() const { return Padding; }

	/** Sets the room around the content, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetFillSpanWhenLessThan(float InFillSpanWhenLessThan);

	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetFillEmptySpace(bool InbFillEmptySpace);

	UFUNCTION(BlueprintCallable, Category = "Layout|Wrap Box Slot")
	UMG_API void SetNewLine(bool InForceNewLine);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content to the Slate panel. */
	UMG_API void BuildSlot(TSharedRef<SWrapBox> Panel);

private:
	/** Takes the rest of the line when the line is shorter than this; off at 0. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	float FillSpanWhenLessThan = 0.0f;

	/** Whether the slot takes the rest of its line. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	bool bFillEmptySpace = false;

	/** Whether the slot begins a line. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	bool bForceNewLine = false;

	/** Room around the content, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	FMargin Padding;

	/** Where the content lies from left to right in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	/** Where the content lies from top to bottom in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Wrap Box Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;

	SWrapBox::FSlot* Slot = nullptr;
};
