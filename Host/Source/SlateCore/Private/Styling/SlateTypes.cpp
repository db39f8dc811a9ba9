#include "Styling/SlateTypes.h"

const FName FSlateWidgetStyle::TypeName(TEXT("FSlateWidgetStyle"));
const FName FTextBlockStyle::TypeName(TEXT("FTextBlockStyle"));
const FName FButtonStyle::TypeName(TEXT("FButtonStyle"));
const FName FEditableTextStyle::TypeName(TEXT("FEditableTextStyle"));

void FTextBlockStyle::GetResources(TArray<const FSlateBrush*>&) const
{
}

const FTextBlockStyle& FTextBlockStyle::GetDefault()
{
	static const FTextBlockStyle Default;
	return Default;
}

void FButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&Normal);
	OutBrushes.Add(&Hovered);
	OutBrushes.Add(&Pressed);
	OutBrushes.Add(&Disabled);
}

const FButtonStyle& FButtonStyle::GetDefault()
{
	static const FButtonStyle Default;
	return Default;
}

void FEditableTextStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Add(&BackgroundImageSelected);
	OutBrushes.Add(&BackgroundImageComposing);
	OutBrushes.Add(&CaretImage);
}

const FEditableTextStyle& FEditableTextStyle::GetDefault()
{
	static const FEditableTextStyle Default;
	return Default;
}
