#pragma once

#include "Styling/SlateBrush.h"

/** A box with rounded corners. */
struct FSlateRoundedBoxBrush : public FSlateBrush
{
	FSlateRoundedBoxBrush(const FLinearColor& InColor, float InRadius, const FVector2f& InImageSize = FVector2f(0.0f, 0.0f))
		: FSlateRoundedBoxBrush(InColor, InRadius, FLinearColor::Transparent, 0.0f, InImageSize)
	{
	}

	FSlateRoundedBoxBrush(const FSlateColor& InColor, float InRadius, const FSlateColor& InOutlineColor, float InOutlineWidth,
		const FVector2f& InImageSize = FVector2f(0.0f, 0.0f))
		: FSlateRoundedBoxBrush(InColor, FVector4(InRadius, InRadius, InRadius, InRadius), InOutlineColor, InOutlineWidth, InImageSize)
	{
	}

	FSlateRoundedBoxBrush(const FSlateColor& InColor, const FVector4& InRadii, const FSlateColor& InOutlineColor = FLinearColor::Transparent,
		float InOutlineWidth = 0.0f, const FVector2f& InImageSize = FVector2f(0.0f, 0.0f))
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), FLinearColor::White, InImageSize)
	{
		TintColor = InColor;
		OutlineSettings = FSlateBrushOutlineSettings(InRadii, InOutlineColor, InOutlineWidth);
	}

	/** Rounded by half its height. */
	explicit FSlateRoundedBoxBrush(const FSlateColor& InColor, const FVector2f& InImageSize = FVector2f(0.0f, 0.0f))
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), FLinearColor::White, InImageSize)
	{
		TintColor = InColor;
		OutlineSettings.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
	}
};
