#include "Widgets/SCompoundWidget.h"

#include "Layout/LayoutUtils.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(this), ContentScale(*this, FVector2D(1.0, 1.0)), DesiredSizeScale(*this, FVector2D(1.0, 1.0)), ColorAndOpacity(*this, FLinearColor::White)
	, ForegroundColor(*this, FSlateColor::UseForeground())
{
}

void SCompoundWidget::SetColorAndOpacity(const TAttribute<FLinearColor>& InColorAndOpacity)
{
	ColorAndOpacity.Assign(*this, InColorAndOpacity);
}

void SCompoundWidget::SetForegroundColor(const TAttribute<FSlateColor>& InForegroundColor)
{
	ForegroundColor.Assign(*this, InForegroundColor);
}

void SCompoundWidget::SetContentScale(const TAttribute<FVector2D>& InContentScale)
{
	ContentScale.Assign(*this, InContentScale);
}

void SCompoundWidget::SetDesiredSizeScale(const TAttribute<FVector2D>& InDesiredSizeScale)
{
	DesiredSizeScale.Assign(*this, InDesiredSizeScale);
}

FVector2D SCompoundWidget::ComputeDesiredSize(float) const
{
	const SWidget& Child = ChildSlot.GetWidget().Get();
	if (Child.GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D(0.0, 0.0);
	}
	return (FVector2D(Child.GetDesiredSize()) + ChildSlot.GetPadding().GetDesiredSize()) * DesiredSizeScale.Get();
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot, ContentScale.Get());
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	FWidgetStyle ContentStyle = InWidgetStyle;
	ContentStyle.BlendColorAndOpacityTint(ColorAndOpacity.Get());
	ContentStyle.SetForegroundColor(bEnabled ? GetForegroundColor() : GetDisabledForegroundColor());
	return PaintArrangedChildren(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 1, ContentStyle, bEnabled);
}
