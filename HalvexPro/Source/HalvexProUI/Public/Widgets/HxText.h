#pragma once

#include "CoreMinimal.h"
#include "Components/TextBlock.h"
#include "Style/HalvexStyleModels.h"
#include "HxText.generated.h"

class UHxButton;

/** A text in the project's style, which can follow a button. */
UCLASS()
class HALVEXPROUI_API UHxText : public UTextBlock
{
	GENERATED_BODY()

public:
	/** Font schema of the project's font style. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexText")
	FName FontStyle = TEXT("regular");

	/** Colour of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexText")
	FHalvexColorHandler ColorText = FHalvexColorHandler::TextColorHandler();

	/** Shows the properties in the project's style of now. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void UpdateStyle();

	/** Sets the colour of the text. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void SetColorByHandler(const FHalvexColorHandler& InColor);

	/** Sets the font schema. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void SetFontStyleFromName(FName InFontStyle);

	/** Shows the contrast of the colour, or the colour itself. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void SetContrast(bool bInContrast);

	/**
	 * Shows the contrast of a colour that is no contrast itself, and a contrast colour as it is. Called twice it leaves what
	 * one call leaves: callers rely on it.
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void ToggleContrast();

	/** Shows the contrast while the button is selected. Binding twice is binding once. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void BindOnButtonSelectionContras(UHxButton* Button);

	virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	UFUNCTION()
	void ReceivedButtonChangeState(UHxButton* Button, bool bSelected);

private:
	/** Whether the contrast of the colour is shown. */
	bool bContrast = false;
};
