#pragma once

#include "CoreMinimal.h"
#include "Components/TextWidgetTypes.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateColor.h"
#include "TextBlock.generated.h"

class STextBlock;

/** Text to read. */
UCLASS(MinimalAPI, meta = (DisplayName = "Text"))
class UTextBlock : public UTextLayoutWidget
{
	GENERATED_BODY()

public:
	UMG_API UTextBlock(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "GetText (Text)"))
	UMG_API virtual FText GetText() const;

	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "SetText (Text)"))
	UMG_API virtual void SetText(FText InText);

	FSlateColor GetColorAndOpacity() const { return ColorAndOpacity; }

	/** Sets the colour of the text. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetColorAndOpacity(FSlateColor InColorAndOpacity);

	/** Sets the alpha of the colour of the text. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetOpacity(float InOpacity);

	const FSlateFontInfo& GetFont() const { return Font; }

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetFont(FSlateFontInfo InFontInfo);

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetShadowColorAndOpacity(FLinearColor InShadowColorAndOpacity);

	/** Sets where the shadow lies, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetShadowOffset(FVector2D InShadowOffset);

	/** Sets the least width that the text asks for, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetMinDesiredWidth(float InMinDesiredWidth);

	/** Sets whether lines end at the end of the room. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetAutoWrapText(bool InAutoTextWrap);

	/** Sets what becomes of text that is longer than the room. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy);

	UMG_API virtual void SetJustification(ETextJustify::Type InJustification) override;

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	/** Called after the font was set. */
	UMG_API virtual void OnFontChanged() {}

	TSharedPtr<STextBlock> MyTextBlock;

private:
	/** The text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (MultiLine = "true", AllowPrivateAccess = "true"))
	FText Text;

	/** Colour of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FSlateColor ColorAndOpacity = FSlateColor(FLinearColor::White);

	/** Font of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FSlateFontInfo Font;

	/** Where the shadow lies, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FVector2D ShadowOffset = FVector2D(1.0, 1.0);

	/** Colour of the shadow. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Shadow Color", AllowPrivateAccess = "true"))
	FLinearColor ShadowColorAndOpacity = FLinearColor::Transparent;

	/** Least width that the text asks for, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	float MinDesiredWidth = 0.0f;

	/** What becomes of text that is longer than the room. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Clipping", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	ETextOverflowPolicy TextOverflowPolicy = ETextOverflowPolicy::Clip;

	/** How the case of the text is changed for showing. */
	UPROPERTY(EditAnywhere, Category = "Appearance", AdvancedDisplay)
	ETextTransformPolicy TextTransformPolicy = ETextTransformPolicy::None;
};
