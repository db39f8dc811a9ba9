#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Styling/ISlateStyle.h"

/** A style set that is filled by code. What was set stays at its address until it is set again. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName) : StyleSetName(InStyleSetName) {}
	FSlateStyleSet(const FSlateStyleSet&) = delete;
	FSlateStyleSet& operator=(const FSlateStyleSet&) = delete;

	virtual const FName& GetStyleSetName() const override { return StyleSetName; }
	virtual const FSlateBrush* GetBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* DefaultBrush = nullptr) const override;
	virtual float GetFloat(FName PropertyName, const ANSICHAR* Specifier = nullptr, float DefaultValue = 0.0f) const override;
	virtual const FLinearColor& GetColor(FName PropertyName, const ANSICHAR* Specifier = nullptr, const FLinearColor& DefaultValue = FLinearColor::Black) const override;
	virtual const FMargin& GetMargin(FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual FSlateFontInfo GetFontStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;

	/** Takes the brush over. */
	template <typename BrushType>
		requires std::is_base_of_v<FSlateBrush, BrushType>
	void Set(FName PropertyName, BrushType* InBrush)
	{
		Brushes.Add(PropertyName, TSharedRef<const FSlateBrush>(MakeShareable(InBrush)));
	}

	template <typename StyleType>
		requires std::is_base_of_v<FSlateWidgetStyle, StyleType>
	void Set(FName PropertyName, const StyleType& InStyle)
	{
		WidgetStyles.Add(PropertyName, TSharedRef<const FSlateWidgetStyle>(MakeShared<StyleType>(InStyle)));
	}

	void Set(FName PropertyName, float InFloat) { Floats.Add(PropertyName, InFloat); }
	void Set(FName PropertyName, const FLinearColor& InColor) { Colors.Add(PropertyName, InColor); }
	void Set(FName PropertyName, const FMargin& InMargin) { Margins.Add(PropertyName, InMargin); }
	void Set(FName PropertyName, const FSlateFontInfo& InFont) { Fonts.Add(PropertyName, InFont); }

protected:
	virtual const FSlateWidgetStyle* FindWidgetStyle(FName TypeName, FName StyleName) const override;
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(FName TypeName, FName StyleName) const override;

private:
	FName StyleSetName;
	TMap<FName, TSharedRef<const FSlateBrush>> Brushes;
	TMap<FName, TSharedRef<const FSlateWidgetStyle>> WidgetStyles;
	TMap<FName, float> Floats;
	TMap<FName, FLinearColor> Colors;
	TMap<FName, FMargin> Margins;
	TMap<FName, FSlateFontInfo> Fonts;
};
