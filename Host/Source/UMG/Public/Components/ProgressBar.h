#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Notifications/SProgressBar.h"
#include "ProgressBar.generated.h"

/** Shows how much of something is done; or, while that is unknown, that something is being done. */
UCLASS(MinimalAPI)
class UProgressBar : public UWidget
{
	GENERATED_BODY()

public:
	UMG_API UProgressBar(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	const FProgressBarStyle& GetWidgetStyle() const { return WidgetStyle; }

	/** Replaces the style. */
	UMG_API void SetWidgetStyle(const FProgressBarStyle& InStyle);

	float GetPercent() const { return Percent; }

	/** Sets how much is done, from 0 to 1; shown unless the bar is a marquee. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	UMG_API void SetPercent(float InPercent);

	EProgressBarFillType::Type GetBarFillType() const { return BarFillType; }

	/** Sets from where the bar fills. */
	UMG_API void SetBarFillType(EProgressBarFillType::Type InBarFillType);

	EProgressBarFillStyle::Type GetBarFillStyle() const { return BarFillStyle; }

	/** Sets what becomes of the picture of the done part. */
	UMG_API void SetBarFillStyle(EProgressBarFillStyle::Type InBarFillStyle);

	bool UseMarquee() const { return bIsMarquee; }

	/** Sets whether the bar shows only that something is being done, by a movement. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	UMG_API void SetIsMarquee(bool InbIsMarquee);

	FVector2D GetBorderPadding() const { return BorderPadding; }

	/** Sets how far the done part is off the edges, in Slate units. */
	UMG_API void SetBorderPadding(FVector2D InBorderPadding);

	FLinearColor GetFillColorAndOpacity() const { return FillColorAndOpacity; }

	/** Sets the colour that the done part is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Progress")
	UMG_API void SetFillColorAndOpacity(FLinearColor InColor);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SProgressBar> MyProgressBar;

private:
	/** Hands the share to the Slate side; a marquee has none. */
	void PushPercent();

	/** How the bar looks. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Style", meta = (DisplayName = "Style", AllowPrivateAccess = "true"))
	FProgressBarStyle WidgetStyle;

	/** How much is done, from 0 to 1. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress", meta = (UIMin = "0", UIMax = "1", AllowPrivateAccess = "true"))
	float Percent = 0.0f;

	/** From where the bar fills. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EProgressBarFillType::Type> BarFillType = EProgressBarFillType::LeftToRight;

	/** What becomes of the picture of the done part. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EProgressBarFillStyle::Type> BarFillStyle = EProgressBarFillStyle::Mask;

	/** Whether the bar shows only that something is being done, by a movement. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress", meta = (AllowPrivateAccess = "true"))
	bool bIsMarquee = false;

	/** How far the done part is off the edges, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Progress", meta = (AllowPrivateAccess = "true"))
	FVector2D BorderPadding = FVector2D(0.0, 0.0);

	/** Colour that the done part is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor FillColorAndOpacity = FLinearColor::White;
};
