#include "Styling/SlateStyle.h"

#include "Brushes/SlateNoResource.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateStyle, Log, All);

FName ISlateStyle::Join(FName Name, const ANSICHAR* Specifier)
{
	return Specifier ? FName(*(Name.ToString() + FString(Specifier))) : Name;
}

namespace
{
	template <typename ValueType>
	const ValueType& FindOr(const TMap<FName, ValueType>& Values, FName Name, const ValueType& Default)
	{
		const ValueType* Found = Values.Find(Name);
		return Found ? *Found : Default;
	}
}

const FSlateBrush* FSlateStyleSet::GetBrush(FName PropertyName, const ANSICHAR* Specifier) const
{
	static const FSlateNoResource Nothing;
	const FName Name = Join(PropertyName, Specifier);
	if (const TSharedRef<const FSlateBrush>* Found = Brushes.Find(Name))
	{
		return &Found->Get();
	}
	UE_LOG(LogSlateStyle, Warning, TEXT("The style '%s' has no brush '%s'"), *StyleSetName.ToString(), *Name.ToString());
	return &Nothing;
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* DefaultBrush) const
{
	const TSharedRef<const FSlateBrush>* Found = Brushes.Find(Join(PropertyName, Specifier));
	return Found ? &Found->Get() : DefaultBrush;
}

float FSlateStyleSet::GetFloat(FName PropertyName, const ANSICHAR* Specifier, float DefaultValue) const
{
	return FindOr(Floats, Join(PropertyName, Specifier), DefaultValue);
}

const FLinearColor& FSlateStyleSet::GetColor(FName PropertyName, const ANSICHAR* Specifier, const FLinearColor& DefaultValue) const
{
	return FindOr(Colors, Join(PropertyName, Specifier), DefaultValue);
}

const FMargin& FSlateStyleSet::GetMargin(FName PropertyName, const ANSICHAR* Specifier) const
{
	static const FMargin Zero;
	return FindOr(Margins, Join(PropertyName, Specifier), Zero);
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(FName PropertyName, const ANSICHAR* Specifier) const
{
	return FindOr(Fonts, Join(PropertyName, Specifier), FSlateFontInfo());
}

const FSlateWidgetStyle* FSlateStyleSet::FindWidgetStyle(FName TypeName, FName StyleName) const
{
	const TSharedRef<const FSlateWidgetStyle>* Found = WidgetStyles.Find(StyleName);
	return Found && (*Found)->GetTypeName() == TypeName ? &Found->Get() : nullptr;
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(FName TypeName, FName StyleName) const
{
	const FSlateWidgetStyle* Style = FindWidgetStyle(TypeName, StyleName);
	if (!Style)
	{
		UE_LOG(LogSlateStyle, Warning, TEXT("The style '%s' has no '%s' of the kind %s"), *StyleSetName.ToString(), *StyleName.ToString(), *TypeName.ToString());
	}
	return Style;
}
