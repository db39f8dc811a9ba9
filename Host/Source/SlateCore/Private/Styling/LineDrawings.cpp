#include "Styling/LineDrawings.h"

namespace Host
{
	namespace
	{
		const FVector2f ChevronDown[] = {FVector2f(0.1f, 0.3f), FVector2f(0.5f, 0.7f), FVector2f(0.9f, 0.3f)};
		const FVector2f CheckMark[] = {FVector2f(0.23f, 0.52f), FVector2f(0.42f, 0.71f), FVector2f(0.77f, 0.31f)};
		const FVector2f Dash[] = {FVector2f(0.25f, 0.5f), FVector2f(0.75f, 0.5f)};

		struct FNamedDrawing
		{
			FName Name;
			FLineDrawing Drawing;
		};
	}

	const FLineDrawing* FLineDrawing::Find(const FSlateBrush& Brush)
	{
		static const FNamedDrawing Drawings[] = {
			{"ChevronDown", {ChevronDown, 0.15f}},
			{"CheckMark", {CheckMark, 0.125f}},
			{"Dash", {Dash, 0.125f}},
		};
		if (Brush.ImageType != ESlateBrushImageType::Vector || Brush.HasUObject())
		{
			return nullptr;
		}
		for (const FNamedDrawing& Named : Drawings)
		{
			if (Named.Name == Brush.GetResourceName())
			{
				return &Named.Drawing;
			}
		}
		return nullptr;
	}

	FLineDrawingBrush::FLineDrawingBrush(FName Drawing, const FSlateColor& Color, const FVector2f& InImageSize)
		: FSlateBrush(ESlateBrushDrawType::Image, Drawing, FMargin(0.0f), FLinearColor::White, InImageSize)
	{
		TintColor = Color;
		ImageType = ESlateBrushImageType::Vector;
	}

	FLineDrawingBrush::FLineDrawingBrush(FName Drawing, const FSlateBrush& RoundedBox)
		: FSlateBrush(RoundedBox)
	{
		ResourceName = Drawing;
		ImageType = ESlateBrushImageType::Vector;
	}
}
