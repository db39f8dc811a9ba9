#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

/** The colours that a widget inherits from its ancestors while it is painted. */
class SLATECORE_API FWidgetStyle
{
public:
	FWidgetStyle() = default;

	/** Share of its opacity that a subdued foreground keeps. */
	static constexpr float SubdueAmount = 0.45f;

	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint)
	{
		ColorAndOpacityTint = ColorAndOpacityTint * InTint;
		return *this;
	}

	FWidgetStyle& BlendOpacity(float InOpacity)
	{
		ColorAndOpacityTint.A *= InOpacity;
		return *this;
	}

	FWidgetStyle& SetForegroundColor(const FSlateColor& InForeground)
	{
		ForegroundColor = InForeground.GetColor(*this);
		return *this;
	}

	const FLinearColor& GetColorAndOpacityTint() const { return ColorAndOpacityTint; }
	const FLinearColor& GetForegroundColor() const { return ForegroundColor; }

	FLinearColor GetSubduedForegroundColor() const
	{
		return FLinearColor(ForegroundColor.R, ForegroundColor.G, ForegroundColor.B, ForegroundColor.A * SubdueAmount);
	}

	bool operator==(const FWidgetStyle& Other) const
	{
		return ColorAndOpacityTint == Other.ColorAndOpacityTint && ForegroundColor == Other.ForegroundColor;
	}

private:
	FLinearColor ColorAndOpacityTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	FLinearColor ForegroundColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
};
