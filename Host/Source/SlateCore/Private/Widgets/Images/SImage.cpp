#include "Widgets/Images/SImage.h"

#include "Rendering/DrawElements.h"
#include "Styling/SlateBrush.h"

SImage::SImage() : Image(*this, nullptr), ColorAndOpacity(*this, FSlateColor(FLinearColor::White)), DesiredSizeOverride(*this)
{
}

void SImage::Construct(const FArguments& InArgs)
{
	Image.Assign(*this, InArgs._Image);
	ColorAndOpacity.Assign(*this, InArgs._ColorAndOpacity);
	DesiredSizeOverride.Assign(*this, InArgs._DesiredSizeOverride);
	if (InArgs._OnMouseButtonDown.IsBound())
	{
		SetOnMouseButtonDown(InArgs._OnMouseButtonDown);
	}
}

void SImage::SetImage(TAttribute<const FSlateBrush*> InImage)
{
	Image.Assign(*this, InImage);
	// The brush may be the same one with other contents.
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SImage::SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity)
{
	ColorAndOpacity.Assign(*this, InColorAndOpacity);
}

void SImage::SetDesiredSizeOverride(TAttribute<TOptional<FVector2D>> InDesiredSizeOverride)
{
	DesiredSizeOverride.Assign(*this, InDesiredSizeOverride, TOptional<FVector2D>());
}

FVector2D SImage::ComputeDesiredSize(float) const
{
	if (DesiredSizeOverride.Get().IsSet())
	{
		return DesiredSizeOverride.Get().GetValue();
	}
	return Image.Get() ? FVector2D(Image.Get()->GetImageSize()) : FVector2D(0.0, 0.0);
}

int32 SImage::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Brush = Image.Get();
	if (Brush && Brush->IsSet())
	{
		const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
		const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint() * ColorAndOpacity.Get().GetColor(InWidgetStyle) * Brush->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Brush, Effect, Tint);
	}
	return LayerId;
}
