#include "Styling/SlateTypes.h"

const FName FCheckBoxStyle::TypeName(TEXT("FCheckBoxStyle"));

const FCheckBoxStyle& FCheckBoxStyle::GetDefault()
{
	static const FCheckBoxStyle Default;
	return Default;
}

void FCheckBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({
		&UncheckedImage, &UncheckedHoveredImage, &UncheckedPressedImage, &CheckedImage, &CheckedHoveredImage, &CheckedPressedImage,
		&UndeterminedImage, &UndeterminedHoveredImage, &UndeterminedPressedImage, &BackgroundImage, &BackgroundHoveredImage,
		&BackgroundPressedImage});
}

const FName FSliderStyle::TypeName(TEXT("FSliderStyle"));

const FSliderStyle& FSliderStyle::GetDefault()
{
	static const FSliderStyle Default;
	return Default;
}

void FSliderStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&NormalBarImage, &HoveredBarImage, &DisabledBarImage, &NormalThumbImage, &HoveredThumbImage, &DisabledThumbImage});
}

const FName FProgressBarStyle::TypeName(TEXT("FProgressBarStyle"));

const FProgressBarStyle& FProgressBarStyle::GetDefault()
{
	static const FProgressBarStyle Default;
	return Default;
}

void FProgressBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&BackgroundImage, &FillImage, &MarqueeImage});
}

const FName FScrollBarStyle::TypeName(TEXT("FScrollBarStyle"));

const FScrollBarStyle& FScrollBarStyle::GetDefault()
{
	static const FScrollBarStyle Default;
	return Default;
}

void FScrollBarStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({
		&HorizontalBackgroundImage, &VerticalBackgroundImage, &VerticalTopSlotImage, &HorizontalTopSlotImage, &VerticalBottomSlotImage,
		&HorizontalBottomSlotImage, &NormalThumbImage, &HoveredThumbImage, &DraggedThumbImage});
}

const FName FScrollBoxStyle::TypeName(TEXT("FScrollBoxStyle"));

const FScrollBoxStyle& FScrollBoxStyle::GetDefault()
{
	static const FScrollBoxStyle Default;
	return Default;
}

void FScrollBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&TopShadowBrush, &BottomShadowBrush, &LeftShadowBrush, &RightShadowBrush});
}

const FName FEditableTextBoxStyle::TypeName(TEXT("FEditableTextBoxStyle"));

const FEditableTextBoxStyle& FEditableTextBoxStyle::GetDefault()
{
	static const FEditableTextBoxStyle Default;
	return Default;
}

void FEditableTextBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({&BackgroundImageNormal, &BackgroundImageHovered, &BackgroundImageFocused, &BackgroundImageReadOnly});
}
