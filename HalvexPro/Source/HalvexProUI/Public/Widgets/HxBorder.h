#pragma once

#include "CoreMinimal.h"
#include "Components/Border.h"
#include "Style/HalvexStyleModels.h"
#include "HxBorder.generated.h"

class SBox;

/** A border in the project's style: a colour, corners and, if wanted, a fixed size. */
UCLASS()
class HALVEXPROUI_API UHxBorder : public UBorder
{
	GENERATED_BODY()

public:
	/** Colour of the fill. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorder")
	FHalvexColorHandler ColorID = FHalvexColorHandler(TEXT("Secondary"), false);

	/** Corners of the fill. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorder")
	FHalvexCornerStyle CornerStyle;

	/** Fixed size of the border, if any. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexBorder")
	FHalvexSizeOverride SizeOverride;

	/** Shows the properties in the project's style of now. */
	UFUNCTION(BlueprintCallable, Category = "HalvexBorder")
	void UpdateStyle();

	/** Sets the colour of the fill. */
	UFUNCTION(BlueprintCallable, Category = "HalvexBorder")
	void SetColorByHandler(const FHalvexColorHandler& InColor);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

private:
	/** Around the engine's border; rules its size. */
	TSharedPtr<SBox> SizeBox;
};
