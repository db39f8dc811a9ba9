#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Margin.h"
#include "TextWidgetTypes.generated.h"

/** Base of widgets that lay out text. */
UCLASS(Abstract, BlueprintType, MinimalAPI)
class UTextLayoutWidget : public UWidget
{
	GENERATED_BODY()

public:
	UMG_API UTextLayoutWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Sets where the lines lie from left to right. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API virtual void SetJustification(ETextJustify::Type InJustification);

	ETextJustify::Type GetJustification() const { return Justification; }
	bool GetAutoWrapText() const { return AutoWrapText; }

protected:
	/** Where the lines lie from left to right. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	TEnumAsByte<ETextJustify::Type> Justification = ETextJustify::Left;

	/** Which places of the text may be broken when it is wrapped. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wrapping", AdvancedDisplay)
	ETextWrappingPolicy WrappingPolicy = ETextWrappingPolicy::DefaultWrapping;

	/** Whether lines end at the end of the room. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wrapping")
	uint8 AutoWrapText : 1;

	/** Length at which lines end, in Slate units; 0 for none. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wrapping", AdvancedDisplay)
	float WrapTextAt = 0.0f;

	/** Room around the text, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance", AdvancedDisplay)
	FMargin Margin;

	/** Height of a line as a share of what the font asks for. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance", AdvancedDisplay)
	float LineHeightPercentage = 1.0f;
};
