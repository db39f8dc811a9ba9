#pragma once

#include "Styling/SlateBrush.h"

/** Fills its box with one colour. */
struct FSlateColorBrush : public FSlateBrush
{
	explicit FSlateColorBrush(const FLinearColor& InColor) : FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), InColor) {}
	explicit FSlateColorBrush(const FColor& InColor) : FSlateColorBrush(FLinearColor(InColor)) {}
	explicit FSlateColorBrush(const FSlateColor& InColor) : FSlateColorBrush(FLinearColor::White) { TintColor = InColor; }
};
