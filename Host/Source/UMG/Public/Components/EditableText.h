#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "EditableText.generated.h"

class SEditableText;

/** A line of text to edit, without a frame. */
UCLASS(meta = (DisplayName = "Editable Text"), MinimalAPI)
class UEditableText : public UWidget
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnEditableTextChangedEvent, const FText&, Text);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnEditableTextCommittedEvent, const FText&, Text, ETextCommit::Type, CommitMethod);

	/** Called when the text changes, by typing or from code. */
	UPROPERTY(BlueprintAssignable, Category = "Widget Event", meta = (DisplayName = "OnTextChanged (Editable Text)"))
	FOnEditableTextChangedEvent OnTextChanged;

	/** Called when the user has finished: with the enter key, or by leaving the text. */
	UPROPERTY(BlueprintAssignable, Category = "Widget Event", meta = (DisplayName = "OnTextCommitted (Editable Text)"))
	FOnEditableTextCommittedEvent OnTextCommitted;

	UMG_API UEditableText(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "GetText (Editable Text)"))
	UMG_API FText GetText() const;

	/** Sets the text; an equal one raises nothing. */
	UFUNCTION(BlueprintCallable, Category = "Widget", meta = (DisplayName = "SetText (Editable Text)"))
	UMG_API void SetText(FText InText);

	/** Sets the text shown while there is none. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetHintText(FText InHintText);
	const FText& GetHintText() const { return HintText; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetIsReadOnly(bool InIsReadOnly);
	bool GetIsReadOnly() const { return IsReadOnly; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetIsPassword(bool InIsPassword);
	bool GetIsPassword() const { return IsPassword; }

	UMG_API void SetMinimumDesiredWidth(float InMinimumDesiredWidth);
	float GetMinimumDesiredWidth() const { return MinimumDesiredWidth; }

	UMG_API void SetIsCaretMovedWhenGainFocus(bool InIsCaretMovedWhenGainFocus);
	bool GetIsCaretMovedWhenGainFocus() const { return IsCaretMovedWhenGainFocus; }

	UMG_API void SetSelectAllTextWhenFocused(bool InSelectAllTextWhenFocused);
	bool GetSelectAllTextWhenFocused() const { return SelectAllTextWhenFocused; }

	UMG_API void SetRevertTextOnEscape(bool InRevertTextOnEscape);
	bool GetRevertTextOnEscape() const { return RevertTextOnEscape; }

	UMG_API void SetClearKeyboardFocusOnCommit(bool InClearKeyboardFocusOnCommit);
	bool GetClearKeyboardFocusOnCommit() const { return ClearKeyboardFocusOnCommit; }

	UMG_API void SetSelectAllTextOnCommit(bool InSelectAllTextOnCommit);
	bool GetSelectAllTextOnCommit() const { return SelectAllTextOnCommit; }

	bool GetAllowContextMenu() const { return AllowContextMenu; }

	/** Sets where the text lies from left to right. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetJustification(ETextJustify::Type InJustification);
	ETextJustify::Type GetJustification() const { return Justification; }

	/** Sets what becomes of text that is longer than the room, while it is not edited. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy);
	ETextOverflowPolicy GetTextOverflowPolicy() const { return OverflowPolicy; }

	/** Sets the font of the style. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetFont(FSlateFontInfo InFontInfo);
	const FSlateFontInfo& GetFont() const { return WidgetStyle.Font; }

	/** Replaces the style. */
	UMG_API void SetWidgetStyle(const FEditableTextStyle& InWidgetStyle);
	const FEditableTextStyle& GetWidgetStyle() const { return WidgetStyle; }

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API void HandleOnTextChanged(const FText& InText);
	UMG_API void HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod);

	TSharedPtr<SEditableText> MyEditableText;

private:
	/** The text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText Text;

	/** Text shown while there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText HintText;

	/** How the text looks. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Style", ShowOnlyInnerProperties, AllowPrivateAccess = "true"))
	FEditableTextStyle WidgetStyle;

	/** Whether the text can only be read and copied. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool IsReadOnly = false;

	/** Whether dots are shown in place of the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	bool IsPassword = false;

	/** Least width of the text, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	float MinimumDesiredWidth = 0.0f;

	/** Whether the caret goes to the end when the text gets the focus other than by the mouse. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool IsCaretMovedWhenGainFocus = true;

	/** Whether getting the focus selects the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool SelectAllTextWhenFocused = false;

	/** Whether escape brings back the text from before the editing. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool RevertTextOnEscape = false;

	/** Whether enter gives up the focus. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool ClearKeyboardFocusOnCommit = true;

	/** Whether enter selects the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool SelectAllTextOnCommit = false;

	/** Whether the right mouse button opens a menu with which the text is edited. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool AllowContextMenu = true;

	/** Where the text lies from left to right. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<ETextJustify::Type> Justification = ETextJustify::Left;

	/** What becomes of text that is longer than the room, while it is not edited. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Clipping", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	ETextOverflowPolicy OverflowPolicy = ETextOverflowPolicy::Clip;
};
