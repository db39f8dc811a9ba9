#include "Style/HalvexStyleModels.h"

#include "HalvexUISubsystem.h"

FHalvexColorHandler::FHalvexColorHandler(const FName InColorID, const bool bInUseContrast)
	: bUseContrast(bInUseContrast)
	, ColorID(InColorID)
{
}

FHalvexColorHandler FHalvexColorHandler::TextColorHandler()
{
	return FHalvexColorHandler(TEXT("Secondary"), true);
}

FLinearColor FHalvexColorHandler::GetColor() const
{
	return ResolveColor(bUseContrast);
}

FLinearColor FHalvexColorHandler::GetContrastColor() const
{
	return ResolveColor(!bUseContrast);
}

FSlateColor FHalvexColorHandler::GetColorSlate() const
{
	return FSlateColor(GetColor());
}

FSlateColor FHalvexColorHandler::GetContrastColorSlate() const
{
	return FSlateColor(GetContrastColor());
}

FLinearColor FHalvexColorHandler::ResolveColor(const bool bContrast) const
{
	FLinearColor Color = FLinearColor::Transparent;
	if (ColorMode == EColorHandlerMode::ECHM_ColorCustom)
	{
		Color = ColorCustom;
	}
	else if (const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get())
	{
		Color = Subsystem->GetHalvexColorByID(ColorID, bContrast);
	}
	if (bOverrideOpacity)
	{
		Color.A = OpacityOverride;
	}
	return Color;
}

FColorKeyValues::FColorKeyValues(const FLinearColor& InRegularColor, const FLinearColor& InContrastColor)
	: RegularColor(InRegularColor)
	, ContrastColor(InContrastColor)
{
}

FHalvexFontSize::FHalvexFontSize(const int32 InFontSize, const FName InTypeface)
	: FontSize(InFontSize)
	, Typeface(InTypeface)
{
}
