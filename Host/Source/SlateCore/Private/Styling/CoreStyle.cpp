#include "Styling/CoreStyle.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Styling/CoreControlStyles.h"
#include "Styling/SlateStyle.h"

namespace
{
	TUniquePtr<FSlateStyleSet> CoreStyleSet;

	FLinearColor Srgb(uint8 R, uint8 G, uint8 B, uint8 A = 255)
	{
		return FLinearColor(FColor(R, G, B, A));
	}

	void AddBrushes(FSlateStyleSet& Set)
	{
		Set.Set("WhiteBrush", new FSlateColorBrush(FLinearColor::White));
		Set.Set("BlackBrush", new FSlateColorBrush(FLinearColor::Black));
		Set.Set("GenericWhiteBox", new FSlateColorBrush(FLinearColor::White));
		Set.Set("NoBorder", new FSlateNoResource());
		Set.Set("NoBrush", new FSlateNoResource());
		Set.Set("Border", new FSlateRoundedBoxBrush(Srgb(36, 36, 36), 4.0f, Srgb(56, 56, 56), 1.0f));
		Set.Set("Menu.Background", new FSlateRoundedBoxBrush(Srgb(42, 42, 42), 4.0f, Srgb(70, 70, 70), 1.0f));
		Set.Set("ToolTip.Background", new FSlateRoundedBoxBrush(Srgb(26, 26, 26), 4.0f, Srgb(80, 80, 80), 1.0f));
		Set.Set("FocusRectangle", new FSlateRoundedBoxBrush(FLinearColor::Transparent, 6.0f, Srgb(38, 187, 255), 1.5f));
	}

	void AddTextStyles(FSlateStyleSet& Set)
	{
		const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle("Regular", 9.0f);
		Set.Set("NormalFont", Font);
		Set.Set("NormalText", FTextBlockStyle().SetFont(Font).SetColorAndOpacity(FSlateColor::UseForeground()));
		Set.Set("ToolTip.Font", FCoreStyle::GetDefaultFontStyle("Regular", 8.0f));
		Set.Set("NormalEditableText", FEditableTextStyle()
			.SetFont(Font)
			.SetColorAndOpacity(FSlateColor::UseForeground())
			.SetBackgroundImageSelected(FSlateColorBrush(Srgb(0, 112, 224)))
			// Besides, what is composed is underlined.
			.SetBackgroundImageComposing(FSlateNoResource())
			.SetCaretImage(FSlateColorBrush(FLinearColor::White)));
	}

	void AddButtonStyles(FSlateStyleSet& Set)
	{
		const FLinearColor Edge = Srgb(20, 20, 20);
		Set.Set("Button", FButtonStyle()
			.SetNormal(FSlateRoundedBoxBrush(Srgb(56, 56, 56), 4.0f, Edge, 1.0f))
			.SetHovered(FSlateRoundedBoxBrush(Srgb(87, 87, 87), 4.0f, Edge, 1.0f))
			.SetPressed(FSlateRoundedBoxBrush(Srgb(36, 36, 36), 4.0f, Edge, 1.0f))
			.SetDisabled(FSlateRoundedBoxBrush(Srgb(46, 46, 46), 4.0f, Edge, 1.0f))
			.SetNormalForeground(Srgb(192, 192, 192))
			.SetHoveredForeground(FLinearColor::White)
			.SetPressedForeground(FLinearColor::White)
			.SetDisabledForeground(Srgb(128, 128, 128))
			.SetNormalPadding(FMargin(12.0f, 1.5f, 12.0f, 1.5f))
			.SetPressedPadding(FMargin(12.0f, 2.5f, 12.0f, 0.5f)));
		Set.Set("Menu.Button", FButtonStyle()
			.SetNormal(FSlateNoResource())
			.SetHovered(FSlateRoundedBoxBrush(Srgb(0, 112, 224), 3.0f))
			.SetPressed(FSlateRoundedBoxBrush(Srgb(0, 80, 160), 3.0f))
			.SetDisabled(FSlateNoResource())
			.SetNormalForeground(Srgb(192, 192, 192))
			.SetHoveredForeground(FLinearColor::White)
			.SetPressedForeground(FLinearColor::White)
			.SetDisabledForeground(Srgb(128, 128, 128))
			.SetNormalPadding(FMargin(8.0f, 2.0f))
			.SetPressedPadding(FMargin(8.0f, 2.0f)));
		Set.Set("NoBorder", FButtonStyle()
			.SetNormal(FSlateNoResource())
			.SetHovered(FSlateNoResource())
			.SetPressed(FSlateNoResource())
			.SetDisabled(FSlateNoResource()));
	}
}

FSlateStyleSet& FCoreStyle::GetSet()
{
	if (!CoreStyleSet.IsValid())
	{
		CoreStyleSet = MakeUnique<FSlateStyleSet>(FName("CoreStyle"));
		AddBrushes(*CoreStyleSet);
		AddTextStyles(*CoreStyleSet);
		AddButtonStyles(*CoreStyleSet);
		Host::AddCoreControlStyles(*CoreStyleSet);
	}
	return *CoreStyleSet;
}

const ISlateStyle& FCoreStyle::Get()
{
	return GetSet();
}

void FCoreStyle::ResetToDefault()
{
	CoreStyleSet.Reset();
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const float InSize, const FFontOutlineSettings& InOutlineSettings)
{
	// Without a font object it is drawn in the default font.
	return FSlateFontInfo(TSharedPtr<const FCompositeFont>(), InSize, InTypefaceFontName, InOutlineSettings);
}
