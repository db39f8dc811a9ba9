#include "Styling/SlateBrush.h"

#include "Styling/WidgetStyle.h"
#include "UObject/Object.h"
#include "UObject/ReferenceCollector.h"

FLinearColor FSlateColor::GetColor(const FWidgetStyle& InWidgetStyle) const
{
	switch (ColorUseRule)
	{
	case ESlateColorStylingMode::UseColor_Foreground:
		return InWidgetStyle.GetForegroundColor();
	case ESlateColorStylingMode::UseColor_Foreground_Subdued:
		return InWidgetStyle.GetSubduedForegroundColor();
	default:
		return SpecifiedColor;
	}
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, FName InResourceName, const FMargin& InMargin, const FLinearColor& InTint, const FVector2f& InImageSize)
	: DrawAs(InDrawType), ImageSize(InImageSize), Margin(InMargin), TintColor(InTint), ResourceName(InResourceName)
{
}

void FSlateBrush::SetResourceObject(UObject* InResourceObject)
{
	if (ResourceObject != InResourceObject)
	{
		ResourceObject = InResourceObject;
		ResourceName = InResourceObject ? InResourceObject->GetFName() : FName(NAME_None);
	}
}

void FSlateBrush::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(ResourceObject);
}

bool FSlateBrush::operator==(const FSlateBrush& Other) const
{
	return DrawAs == Other.DrawAs && Tiling == Other.Tiling && Mirroring == Other.Mirroring && ImageType == Other.ImageType && ImageSize == Other.ImageSize
		&& Margin == Other.Margin && TintColor == Other.TintColor && OutlineSettings == Other.OutlineSettings && ResourceObject == Other.ResourceObject
		&& ResourceName == Other.ResourceName;
}
