#pragma once

#include "CoreMinimal.h"
#include "Components/EditableText.h"
#include "Style/HalvexStyleModels.h"
#include "HxEditableText.generated.h"

/** A line of text to edit, in the project's style. */
UCLASS()
class HALVEXPROUI_API UHxEditableText : public UEditableText
{
	GENERATED_BODY()

public:
	/** Font schema of the project's font style. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexText")
	FName FontStyle = TEXT("regular");

	/** Colour of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexText")
	FHalvexColorHandler ColorID = FHalvexColorHandler::TextColorHandler();

	/** Shows the properties in the project's style of now. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void UpdateStyle();

	/** Sets the colour of the text. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void SetColorByHandler(const FHalvexColorHandler& InColor);

	/** Sets the font schema. */
	UFUNCTION(BlueprintCallable, Category = "HalvexText")
	void SetFontStyleFromName(FName InFontStyle);

	virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif
};
