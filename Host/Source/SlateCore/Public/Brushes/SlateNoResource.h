#pragma once

#include "Styling/SlateBrush.h"

/** Draws nothing. */
struct FSlateNoResource : public FSlateBrush
{
	explicit FSlateNoResource(const FVector2f& InImageSize = FVector2f(0.0f, 0.0f))
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, NAME_None, FMargin(0.0f), FLinearColor::White, InImageSize)
	{
	}
};
