#pragma once

#include "CoreMinimal.h"
#include "Components/TextBlock.h"
#include "Style/HalvexStyleModels.h"
#include "HxFontIcon.generated.h"

class UHxButton;

/** An icon of an icon font, with a second look for contrast and a third for hover; it can follow a button. */
UCLASS()
class HALVEXPROUI_API UHxFontIcon : public UTextBlock
{
	GENERATED_BODY()

public:
	/** Size in points at 96 dots an inch. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxFontIcon")
	int32 IconSize = 20;

	/** Whether the contrast icon is shown; the hover icon goes before it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxFontIcon")
	bool bUseContrast = false;

	/** The icon. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxFontIcon")
	FFontIconHandler IconStyling;

	/** The icon in contrast. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxFontIcon")
	FFontIconHandler IconContrast;

	/** The icon under the pointer. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxFontIcon")
	FFontIconHandler IconHover;

	/** Sets the icon. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetIconByHandler(const FFontIconHandler& InIcon);

	/** Sets the icon in contrast. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetContrastIconByHandler(const FFontIconHandler& InIcon);

	/** Sets the colour of the icon. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetColorByHandler(const FHalvexColorHandler& InColor);

	/** Sets the colour of the icon in contrast. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetColorContrastByHandler(const FHalvexColorHandler& InColor);

	/** Sets which icon is shown; it shows with the next synchronisation only, and callers rely on it. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetIconByName(FName InIconName);

	/** Sets the size in points at 96 dots an inch. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetIconSize(int32 InIconSize);

	/** Shows the icon in contrast, or not. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetContrast(bool bInContrast);

	/** Shows the icon under the pointer, or not. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void SetHover(bool bInHover);

	/** Changes between the icon and the icon in contrast. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void ToggleContras();

	/** Shows the icon in contrast while the button is selected. Binding twice is binding once. */
	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	void BindOnButtonSelectionContras(UHxButton* Button);

	UFUNCTION(BlueprintCallable, Category = "HxFontIcon")
	const FFontIconHandler& GetIconStyle() const;

	virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	UFUNCTION()
	void ReceivedButtonChangeState(UHxButton* Button, bool bSelected);

private:
	/** The icon to show now. */
	const FFontIconHandler& GetActiveHandler() const;

	/** Whether the icon under the pointer is shown. */
	bool bHover = false;
};
