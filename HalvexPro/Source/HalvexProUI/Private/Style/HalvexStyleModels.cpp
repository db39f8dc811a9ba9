#include "Style/HalvexStyleModels.h"

#include "Components/Border.h"
#include "Components/TextBlock.h"
#include "Engine/Font.h"
#include "HalvexUISubsystem.h"
#include "Styling/SlateTypes.h"

namespace
{
	/** The colour of a style record, before any opacity is applied. */
	FLinearColor GetStyleRecordColor(const FHalvexColorHandler& ColorStyle)
	{
		if (ColorStyle.ColorMode == EColorHandlerMode::ECHM_ColorCustom)
		{
			return ColorStyle.ColorCustom;
		}
		const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get();
		return Subsystem ? Subsystem->GetHalvexColorByID(ColorStyle.ColorID, ColorStyle.bUseContrast) : FLinearColor::Transparent;
	}

	FVector4 GetCornerRadii(const bool bUniform, const float UniformRadius, const FVector4& Radii)
	{
		return bUniform ? FVector4(UniformRadius, UniformRadius, UniformRadius, UniformRadius) : Radii;
	}
}

void FHalvexCornerStyle::SetCornerBrush(FSlateBrush& Brush) const
{
	Brush.DrawAs = ESlateBrushDrawType::RoundedBox;
	Brush.OutlineSettings.CornerRadii = GetCornerRadii(bUseUniformCorner, UniformCorner, CornerRadius);
	Brush.OutlineSettings.RoundingType = RoundingType;
}

void FHalvexCornerStyle::SetCornerBrushButton(FButtonStyle& ButtonStyle) const
{
	SetCornerBrush(ButtonStyle.Normal);
	SetCornerBrush(ButtonStyle.Hovered);
	SetCornerBrush(ButtonStyle.Pressed);
}

void UHalvexStyleModels::SetHalvexBorderStyle(UBorder* Border, const FHalvexBorderStyle& Style)
{
	if (!Border)
	{
		return;
	}
	FSlateBrush Brush;
	Brush.TintColor = FSlateColor(GetStyleRecordColor(Style.ColorStyle).CopyWithNewOpacity(Style.Opacity));
	Brush.OutlineSettings.CornerRadii = GetCornerRadii(Style.bUniformCorner, Style.UniformBorder, Style.CornerBorder);
	Brush.OutlineSettings.RoundingType = Style.RoundType;
	Brush.DrawAs = ESlateBrushDrawType::RoundedBox;
	Border->SetBrush(Brush);
}

void UHalvexStyleModels::SetHalvexButtonStyle(UButton*, const FHalvexBorderStyle&)
{
	// Established behaviour: existing blueprints call this and expect the button's own style to survive.
}

void UHalvexStyleModels::SetHalvexTextStyle(UTextBlock* TextBlock, const FHalvexTextStyle& Style)
{
	if (!TextBlock)
	{
		return;
	}
	FLinearColor Color = GetStyleRecordColor(Style.ColorStyle);
	if (Style.ColorStyle.bOverrideOpacity)
	{
		Color.A = Style.ColorStyle.OpacityOverride;
	}
	TextBlock->SetColorAndOpacity(FSlateColor(Color));

	const FSlateFontInfo FontInfo = GetFontInfoFromFontSchema(Style.FontSchema);
	if (FontInfo.FontObject)
	{
		TextBlock->SetFont(FontInfo);
	}
}

FSlateFontInfo UHalvexStyleModels::GetFontInfoFromFontSchema(FName FontSchema)
{
	constexpr float UnknownSchemaSize = 18.0f;

	const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get();
	const FHalvexFontStyle FontStyle = Subsystem ? Subsystem->GetHalvexFontStyle() : FHalvexFontStyle();
	if (const FHalvexFontSize* Schema = FontStyle.FontSizing.Find(FontSchema))
	{
		return FSlateFontInfo(FontStyle.Font, static_cast<float>(Schema->FontSize), Schema->Typeface);
	}
	return FSlateFontInfo(FontStyle.Font, UnknownSchemaSize);
}
