#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "SlateTypes.generated.h"

UENUM(BlueprintType)
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	/** Neither: for several things that differ. */
	Undetermined,
};

/** The look of text. */
USTRUCT(BlueprintType)
struct SLATECORE_API FTextBlockStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FTextBlockStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateFontInfo Font;
	FTextBlockStyle& SetFont(const FSlateFontInfo& InFont) { Font = InFont; return *this; }
	FTextBlockStyle& SetFontSize(float InSize) { Font.Size = InSize; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ColorAndOpacity = FSlateColor::UseForeground();
	FTextBlockStyle& SetColorAndOpacity(const FSlateColor& InColor) { ColorAndOpacity = InColor; return *this; }

	/** In pixels of the layout; (0, 0) draws no shadow. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FDeprecateSlateVector2D ShadowOffset;
	FTextBlockStyle& SetShadowOffset(const UE::Slate::FDeprecateVector2DParameter& InOffset) { ShadowOffset = FVector2f(InOffset); return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor ShadowColorAndOpacity = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
	FTextBlockStyle& SetShadowColorAndOpacity(const FLinearColor& InColor) { ShadowColorAndOpacity = InColor; return *this; }
};

/** The look of a button. */
USTRUCT(BlueprintType)
struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FButtonStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Normal;
	FButtonStyle& SetNormal(const FSlateBrush& InNormal) { Normal = InNormal; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Hovered;
	FButtonStyle& SetHovered(const FSlateBrush& InHovered) { Hovered = InHovered; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Pressed;
	FButtonStyle& SetPressed(const FSlateBrush& InPressed) { Pressed = InPressed; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush Disabled;
	FButtonStyle& SetDisabled(const FSlateBrush& InDisabled) { Disabled = InDisabled; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor NormalForeground = FSlateColor::UseForeground();
	FButtonStyle& SetNormalForeground(const FSlateColor& InColor) { NormalForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor HoveredForeground = FSlateColor::UseForeground();
	FButtonStyle& SetHoveredForeground(const FSlateColor& InColor) { HoveredForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor PressedForeground = FSlateColor::UseForeground();
	FButtonStyle& SetPressedForeground(const FSlateColor& InColor) { PressedForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor DisabledForeground = FSlateColor::UseForeground();
	FButtonStyle& SetDisabledForeground(const FSlateColor& InColor) { DisabledForeground = InColor; return *this; }

	/** Between the border and the content. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin NormalPadding;
	FButtonStyle& SetNormalPadding(const FMargin& InPadding) { NormalPadding = InPadding; return *this; }

	/** The same while pressed. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin PressedPadding;
	FButtonStyle& SetPressedPadding(const FMargin& InPadding) { PressedPadding = InPadding; return *this; }
};

/** The look of text that can be edited. */
USTRUCT(BlueprintType)
struct SLATECORE_API FEditableTextStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FEditableTextStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateFontInfo Font;
	FEditableTextStyle& SetFont(const FSlateFontInfo& InFont) { Font = InFont; return *this; }
	FEditableTextStyle& SetFontSize(float InSize) { Font.Size = InSize; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ColorAndOpacity = FSlateColor::UseForeground();
	FEditableTextStyle& SetColorAndOpacity(const FSlateColor& InColor) { ColorAndOpacity = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageSelected;
	FEditableTextStyle& SetBackgroundImageSelected(const FSlateBrush& InBrush) { BackgroundImageSelected = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageComposing;
	FEditableTextStyle& SetBackgroundImageComposing(const FSlateBrush& InBrush) { BackgroundImageComposing = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CaretImage;
	FEditableTextStyle& SetCaretImage(const FSlateBrush& InBrush) { CaretImage = InBrush; return *this; }
};

UENUM(BlueprintType)
namespace ESlateCheckBoxType
{
	enum Type : int
	{
		/** A small box beside the content. */
		CheckBox UMETA(DisplayName = "Check Box"),
		/** A frame around the content, which looks like a button. */
		ToggleButton UMETA(DisplayName = "Toggle Button"),
	};
}

/** The look of a check box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FCheckBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FCheckBoxStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	TEnumAsByte<ESlateCheckBoxType::Type> CheckBoxType = ESlateCheckBoxType::CheckBox;
	FCheckBoxStyle& SetCheckBoxType(ESlateCheckBoxType::Type InCheckBoxType) { CheckBoxType = InCheckBoxType; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedImage;
	FCheckBoxStyle& SetUncheckedImage(const FSlateBrush& InBrush) { UncheckedImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedHoveredImage;
	FCheckBoxStyle& SetUncheckedHoveredImage(const FSlateBrush& InBrush) { UncheckedHoveredImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UncheckedPressedImage;
	FCheckBoxStyle& SetUncheckedPressedImage(const FSlateBrush& InBrush) { UncheckedPressedImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedImage;
	FCheckBoxStyle& SetCheckedImage(const FSlateBrush& InBrush) { CheckedImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedHoveredImage;
	FCheckBoxStyle& SetCheckedHoveredImage(const FSlateBrush& InBrush) { CheckedHoveredImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush CheckedPressedImage;
	FCheckBoxStyle& SetCheckedPressedImage(const FSlateBrush& InBrush) { CheckedPressedImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UndeterminedImage;
	FCheckBoxStyle& SetUndeterminedImage(const FSlateBrush& InBrush) { UndeterminedImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UndeterminedHoveredImage;
	FCheckBoxStyle& SetUndeterminedHoveredImage(const FSlateBrush& InBrush) { UndeterminedHoveredImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush UndeterminedPressedImage;
	FCheckBoxStyle& SetUndeterminedPressedImage(const FSlateBrush& InBrush) { UndeterminedPressedImage = InBrush; return *this; }

	/** Between the box and the content, or around the content of a toggle button. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin Padding;
	FCheckBoxStyle& SetPadding(const FMargin& InPadding) { Padding = InPadding; return *this; }

	/** Behind box and content. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImage;
	FCheckBoxStyle& SetBackgroundImage(const FSlateBrush& InBrush) { BackgroundImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundHoveredImage;
	FCheckBoxStyle& SetBackgroundHoveredImage(const FSlateBrush& InBrush) { BackgroundHoveredImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundPressedImage;
	FCheckBoxStyle& SetBackgroundPressedImage(const FSlateBrush& InBrush) { BackgroundPressedImage = InBrush; return *this; }

	/** Of the content while unchecked. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ForegroundColor = FSlateColor::UseForeground();
	FCheckBoxStyle& SetForegroundColor(const FSlateColor& InColor) { ForegroundColor = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor HoveredForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetHoveredForeground(const FSlateColor& InColor) { HoveredForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor PressedForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetPressedForeground(const FSlateColor& InColor) { PressedForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor CheckedForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetCheckedForeground(const FSlateColor& InColor) { CheckedForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor CheckedHoveredForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetCheckedHoveredForeground(const FSlateColor& InColor) { CheckedHoveredForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor CheckedPressedForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetCheckedPressedForeground(const FSlateColor& InColor) { CheckedPressedForeground = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor UndeterminedForeground = FSlateColor::UseForeground();
	FCheckBoxStyle& SetUndeterminedForeground(const FSlateColor& InColor) { UndeterminedForeground = InColor; return *this; }

	/** Multiplies the images. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor BorderBackgroundColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	FCheckBoxStyle& SetBorderBackgroundColor(const FSlateColor& InColor) { BorderBackgroundColor = InColor; return *this; }
};

/** The look of a slider. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSliderStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FSliderStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush NormalBarImage;
	FSliderStyle& SetNormalBarImage(const FSlateBrush& InBrush) { NormalBarImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HoveredBarImage;
	FSliderStyle& SetHoveredBarImage(const FSlateBrush& InBrush) { HoveredBarImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DisabledBarImage;
	FSliderStyle& SetDisabledBarImage(const FSlateBrush& InBrush) { DisabledBarImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush NormalThumbImage;
	FSliderStyle& SetNormalThumbImage(const FSlateBrush& InBrush) { NormalThumbImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HoveredThumbImage;
	FSliderStyle& SetHoveredThumbImage(const FSlateBrush& InBrush) { HoveredThumbImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DisabledThumbImage;
	FSliderStyle& SetDisabledThumbImage(const FSlateBrush& InBrush) { DisabledThumbImage = InBrush; return *this; }

	/** In slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float BarThickness = 2.0f;
	FSliderStyle& SetBarThickness(float InBarThickness) { BarThickness = InBarThickness; return *this; }
};

/** The look of a progress bar. */
USTRUCT(BlueprintType)
struct SLATECORE_API FProgressBarStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FProgressBarStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImage;
	FProgressBarStyle& SetBackgroundImage(const FSlateBrush& InBrush) { BackgroundImage = InBrush; return *this; }

	/** Over the done part. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush FillImage;
	FProgressBarStyle& SetFillImage(const FSlateBrush& InBrush) { FillImage = InBrush; return *this; }

	/** Runs along the bar while it is unknown how much is done. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush MarqueeImage;
	FProgressBarStyle& SetMarqueeImage(const FSlateBrush& InBrush) { MarqueeImage = InBrush; return *this; }
};

/** The look of a scroll bar. */
USTRUCT(BlueprintType)
struct SLATECORE_API FScrollBarStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FScrollBarStyle& GetDefault();

	/** Behind the whole of a horizontal bar. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HorizontalBackgroundImage;
	FScrollBarStyle& SetHorizontalBackgroundImage(const FSlateBrush& InBrush) { HorizontalBackgroundImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush VerticalBackgroundImage;
	FScrollBarStyle& SetVerticalBackgroundImage(const FSlateBrush& InBrush) { VerticalBackgroundImage = InBrush; return *this; }

	/** The track before the thumb. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush VerticalTopSlotImage;
	FScrollBarStyle& SetVerticalTopSlotImage(const FSlateBrush& InBrush) { VerticalTopSlotImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HorizontalTopSlotImage;
	FScrollBarStyle& SetHorizontalTopSlotImage(const FSlateBrush& InBrush) { HorizontalTopSlotImage = InBrush; return *this; }

	/** The track behind the thumb. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush VerticalBottomSlotImage;
	FScrollBarStyle& SetVerticalBottomSlotImage(const FSlateBrush& InBrush) { VerticalBottomSlotImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HorizontalBottomSlotImage;
	FScrollBarStyle& SetHorizontalBottomSlotImage(const FSlateBrush& InBrush) { HorizontalBottomSlotImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush NormalThumbImage;
	FScrollBarStyle& SetNormalThumbImage(const FSlateBrush& InBrush) { NormalThumbImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush HoveredThumbImage;
	FScrollBarStyle& SetHoveredThumbImage(const FSlateBrush& InBrush) { HoveredThumbImage = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DraggedThumbImage;
	FScrollBarStyle& SetDraggedThumbImage(const FSlateBrush& InBrush) { DraggedThumbImage = InBrush; return *this; }

	/** Of the thumb, across the bar; in slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Thickness = 16.0f;
	FScrollBarStyle& SetThickness(float InThickness) { Thickness = InThickness; return *this; }
};

/** The look of a scroll box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FScrollBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FScrollBoxStyle& GetDefault();

	/** Of the scroll bar; in slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float BarThickness = 9.0f;
	FScrollBoxStyle& SetBarThickness(float InBarThickness) { BarThickness = InBarThickness; return *this; }

	/** Shown while there is more above. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush TopShadowBrush;
	FScrollBoxStyle& SetTopShadowBrush(const FSlateBrush& InBrush) { TopShadowBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BottomShadowBrush;
	FScrollBoxStyle& SetBottomShadowBrush(const FSlateBrush& InBrush) { BottomShadowBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush LeftShadowBrush;
	FScrollBoxStyle& SetLeftShadowBrush(const FSlateBrush& InBrush) { LeftShadowBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush RightShadowBrush;
	FScrollBoxStyle& SetRightShadowBrush(const FSlateBrush& InBrush) { RightShadowBrush = InBrush; return *this; }

	/** Around all of the content of a horizontal box; scrolls with it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin HorizontalScrolledContentPadding = FMargin(0.0f, 0.0f, 1.0f, 0.0f);
	FScrollBoxStyle& SetHorizontalScrolledContentPadding(const FMargin& InPadding) { HorizontalScrolledContentPadding = InPadding; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin VerticalScrolledContentPadding = FMargin(0.0f, 0.0f, 0.0f, 1.0f);
	FScrollBoxStyle& SetVerticalScrolledContentPadding(const FMargin& InPadding) { VerticalScrolledContentPadding = InPadding; return *this; }
};

/** The look of a text box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FEditableTextBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FEditableTextBoxStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageNormal;
	FEditableTextBoxStyle& SetBackgroundImageNormal(const FSlateBrush& InBrush) { BackgroundImageNormal = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageHovered;
	FEditableTextBoxStyle& SetBackgroundImageHovered(const FSlateBrush& InBrush) { BackgroundImageHovered = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageFocused;
	FEditableTextBoxStyle& SetBackgroundImageFocused(const FSlateBrush& InBrush) { BackgroundImageFocused = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush BackgroundImageReadOnly;
	FEditableTextBoxStyle& SetBackgroundImageReadOnly(const FSlateBrush& InBrush) { BackgroundImageReadOnly = InBrush; return *this; }

	/** Between the frame and the text. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin Padding;
	FEditableTextBoxStyle& SetPadding(const FMargin& InPadding) { Padding = InPadding; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FTextBlockStyle TextStyle;
	FEditableTextBoxStyle& SetTextStyle(const FTextBlockStyle& InStyle) { TextStyle = InStyle; return *this; }
	FEditableTextBoxStyle& SetFont(const FSlateFontInfo& InFont) { TextStyle.Font = InFont; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ForegroundColor = FSlateColor::UseForeground();
	FEditableTextBoxStyle& SetForegroundColor(const FSlateColor& InColor) { ForegroundColor = InColor; return *this; }

	/** Multiplies the frame. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor BackgroundColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	FEditableTextBoxStyle& SetBackgroundColor(const FSlateColor& InColor) { BackgroundColor = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor ReadOnlyForegroundColor = FSlateColor::UseForeground();
	FEditableTextBoxStyle& SetReadOnlyForegroundColor(const FSlateColor& InColor) { ReadOnlyForegroundColor = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor FocusedForegroundColor = FSlateColor::UseForeground();
	FEditableTextBoxStyle& SetFocusedForegroundColor(const FSlateColor& InColor) { FocusedForegroundColor = InColor; return *this; }
};

/** The look of a row of a list. */
USTRUCT(BlueprintType)
struct SLATECORE_API FTableRowStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FTableRowStyle& GetDefault();

	/** Behind the row that is selected. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush ActiveBrush;
	FTableRowStyle& SetActiveBrush(const FSlateBrush& InBrush) { ActiveBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush ActiveHoveredBrush;
	FTableRowStyle& SetActiveHoveredBrush(const FSlateBrush& InBrush) { ActiveHoveredBrush = InBrush; return *this; }

	/** Behind the first row, the third and so on. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush EvenRowBackgroundBrush;
	FTableRowStyle& SetEvenRowBackgroundBrush(const FSlateBrush& InBrush) { EvenRowBackgroundBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush EvenRowBackgroundHoveredBrush;
	FTableRowStyle& SetEvenRowBackgroundHoveredBrush(const FSlateBrush& InBrush) { EvenRowBackgroundHoveredBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush OddRowBackgroundBrush;
	FTableRowStyle& SetOddRowBackgroundBrush(const FSlateBrush& InBrush) { OddRowBackgroundBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush OddRowBackgroundHoveredBrush;
	FTableRowStyle& SetOddRowBackgroundHoveredBrush(const FSlateBrush& InBrush) { OddRowBackgroundHoveredBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor TextColor = FSlateColor::UseForeground();
	FTableRowStyle& SetTextColor(const FSlateColor& InColor) { TextColor = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor SelectedTextColor = FSlateColor::UseForeground();
	FTableRowStyle& SetSelectedTextColor(const FSlateColor& InColor) { SelectedTextColor = InColor; return *this; }
};

/** The look of a button that opens a menu. */
USTRUCT(BlueprintType)
struct SLATECORE_API FComboButtonStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FComboButtonStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FButtonStyle ButtonStyle;
	FComboButtonStyle& SetButtonStyle(const FButtonStyle& InStyle) { ButtonStyle = InStyle; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DownArrowImage;
	FComboButtonStyle& SetDownArrowImage(const FSlateBrush& InBrush) { DownArrowImage = InBrush; return *this; }

	/** Behind the menu. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush MenuBorderBrush;
	FComboButtonStyle& SetMenuBorderBrush(const FSlateBrush& InBrush) { MenuBorderBrush = InBrush; return *this; }

	/** Between the edge of the menu and what is in it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin MenuBorderPadding;
	FComboButtonStyle& SetMenuBorderPadding(const FMargin& InPadding) { MenuBorderPadding = InPadding; return *this; }
};

/** The look of a combo box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FComboBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FComboBoxStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FComboButtonStyle ComboButtonStyle;
	FComboBoxStyle& SetComboButtonStyle(const FComboButtonStyle& InStyle) { ComboButtonStyle = InStyle; return *this; }

	/** Around what a row of the list shows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin MenuRowPadding;
	FComboBoxStyle& SetMenuRowPadding(const FMargin& InPadding) { MenuRowPadding = InPadding; return *this; }
};
