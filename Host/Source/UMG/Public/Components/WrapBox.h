#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "Types/SlateEnums.h"
#include "WrapBox.generated.h"

class SWrapBox;
class UWrapBoxSlot;

/** Lays its children out in lines and begins a new one when they no longer fit. */
UCLASS(MinimalAPI)
class UWrapBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Room between children and between lines, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	FVector2D InnerSlotPadding = FVector2D(0.0, 0.0);

	/** Length at which a line ends when the explicit size is used, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout", meta = (EditCondition = "bExplicitWrapSize"))
	float WrapSize = 500.0f;

	/** Whether lines end at Wrap Size instead of at the end of the room. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout", meta = (InlineEditConditionToggle))
	bool bExplicitWrapSize = false;

	/** Where a line lies that is shorter than the room. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Left;

	/** The direction of the lines. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content Layout")
	TEnumAsByte<EOrientation> Orientation = Orient_Horizontal;

	UMG_API UWrapBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a child at the end. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UWrapBoxSlot* AddChildToWrapBox(UWidget* Content);

	/** Sets the room between children and between lines. */
	UFUNCTION(BlueprintCallable, Category = "Content Layout")
	UMG_API void SetInnerSlotPadding(FVector2D InPadding);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SWrapBox> MyWrapBox;
};
