#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "EditableTextBox.generated.h"

class SEditableTextBox;

/** A line of text to edit, in a frame. */
UCLASS(meta = (DisplayName = "Text Box"), MinimalAPI)
class UEditableTextBox : public UWidget
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextBoxChangedEvent, const FText&, Text);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextBoxCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);

	/** How the frame and the text look. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Style"))
	FEditableTextBoxStyle WidgetStyle;

	/** Called when the text changes, by typing or from code. */
	UPROPERTY(BlueprintAssignable, Category = "TextBox|Event")
	FOnEditableTextBoxChangedEvent OnTextChanged;

	/** Called when the user has finished: with the enter key, or by leaving the box. */
	UPROPERTY(BlueprintAssignable, Category = "TextBox|Event")
	FOnEditableTextBoxCommittedEvent OnTextCommitted;

	UMG_API UEditableTextBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "GetText (Text Box)"))
	UMG_API FText GetText() const;

	/** Sets the text; an equal one raises nothing. */
	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "SetText (Text Box)"))
	UMG_API void SetText(FText InText);

	/** Sets the text shown while the box is empty. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetHintText(FText InText);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetIsReadOnly(bool bReadOnly);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetIsPassword(bool InIsPassword);

	/** Replaces the style. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetWidgetStyle(const FEditableTextBoxStyle& InStyle);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API void HandleOnTextChanged(const FText& InText);
	UMG_API void HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod);

	TSharedPtr<SEditableTextBox> MyEditableTextBlock;

private:
	/** The text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText Text;

	/** Text shown while the box is empty. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText HintText;

	/** Whether the text can only be read and copied. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool IsReadOnly = false;

	/** Whether dots are shown in place of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool IsPassword = false;

	/** Least width of the text, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	float MinimumDesiredWidth = 0.0f;
};
