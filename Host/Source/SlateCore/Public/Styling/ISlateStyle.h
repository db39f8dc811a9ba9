#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

/** A named set of brushes, colours, sizes and widget styles. */
class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;

	/** The style of that name and kind; an unknown one is reported by a warning, and the kind's default taken. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		const FSlateWidgetStyle* Style = GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier));
		return Style ? *static_cast<const WidgetStyleType*>(Style) : WidgetStyleType::GetDefault();
	}

	template <typename WidgetStyleType>
	bool HasWidgetStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		return FindWidgetStyle(WidgetStyleType::TypeName, Join(PropertyName, Specifier)) != nullptr;
	}

	/** An unknown name is reported by a warning, and a brush that draws nothing given. */
	virtual const FSlateBrush* GetBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	/** Null when there is none of that name. */
	virtual const FSlateBrush* GetOptionalBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* DefaultBrush = nullptr) const = 0;
	virtual float GetFloat(FName PropertyName, const ANSICHAR* Specifier = nullptr, float DefaultValue = 0.0f) const = 0;
	virtual const FLinearColor& GetColor(FName PropertyName, const ANSICHAR* Specifier = nullptr, const FLinearColor& DefaultValue = FLinearColor::Black) const = 0;
	virtual const FMargin& GetMargin(FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;
	virtual FSlateFontInfo GetFontStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

protected:
	/** The name followed by the specifier. */
	static FName Join(FName Name, const ANSICHAR* Specifier);

	virtual const FSlateWidgetStyle* FindWidgetStyle(FName TypeName, FName StyleName) const = 0;
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(FName TypeName, FName StyleName) const = 0;
};
