#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Widgets/Layout/SScaleBox.h"
#include "ScaleBox.generated.h"

class SScaleBox;

/** Scales one child to the room. */
UCLASS(MinimalAPI)
class UScaleBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UMG_API UScaleBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	EStretch::Type GetStretch() const { return Stretch; }

	/** Sets the rule by which the content is scaled. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetStretch(EStretch::Type InStretch);

	EStretchDirection::Type GetStretchDirection() const { return StretchDirection; }

	/** Sets whether the content may be made larger, smaller or both. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetStretchDirection(EStretchDirection::Type InStretchDirection);

	float GetUserSpecifiedScale() const { return UserSpecifiedScale; }

	/** Sets the factor for the user-specified rules. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetUserSpecifiedScale(float InUserSpecifiedScale);

	bool GetIgnoreInheritedScale() const { return IgnoreInheritedScale; }

	/** Sets whether the scale of the widgets around is undone. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetIgnoreInheritedScale(bool InIgnoreInheritedScale);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

	TSharedPtr<SScaleBox> MyScaleBox;

private:
	/** The rule by which the content is scaled. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EStretch::Type> Stretch = EStretch::ScaleToFit;

	/** Whether the content may be made larger, smaller or both. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EStretchDirection::Type> StretchDirection = EStretchDirection::Both;

	/** Factor for the user-specified rules. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching", meta = (AllowPrivateAccess = "true"))
	float UserSpecifiedScale = 1.0f;

	/** Whether the scale of the widgets around is undone. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Stretching", meta = (AllowPrivateAccess = "true"))
	bool IgnoreInheritedScale = false;
};
