#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Styling/SlateBrush.h"
#include "Image.generated.h"

class SImage;
class UTexture2D;

/** A brush: a picture, a colour or a box. */
UCLASS(MinimalAPI)
class UImage : public UWidget
{
	GENERATED_BODY()

public:
	UMG_API UImage(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	const FLinearColor& GetColorAndOpacity() const { return ColorAndOpacity; }

	/** Sets the colour that the brush is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetColorAndOpacity(FLinearColor InColorAndOpacity);

	/** Sets the alpha of the colour that the brush is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetOpacity(float InOpacity);

	/** Sets the size that the image asks for, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetDesiredSizeOverride(FVector2D DesiredSize);

	const FSlateBrush& GetBrush() const { return Brush; }

	/** Replaces the brush. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API virtual void SetBrush(const FSlateBrush& InBrush);

	/**
	 * Makes the brush show the texture; nothing at all happens when it does already.
	 * @param bMatchSize gives the brush the size of the texture too, (0, 0) for none
	 */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API virtual void SetBrushFromTexture(UTexture2D* Texture, bool bMatchSize = false);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SImage> MyImage;

private:
	/** What is drawn. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FSlateBrush Brush;

	/** Colour that the brush is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor ColorAndOpacity = FLinearColor::White;
};
