#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/SlateColor.h"
#include "Types/SlateAttribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** Base of widgets that are made of others: all of them stand in one slot. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &ChildSlot; }

	/** Multiplies the colours of everything in the widget. */
	void SetColorAndOpacity(const TAttribute<FLinearColor>& InColorAndOpacity);
	const FLinearColor& GetColorAndOpacity() const { return ColorAndOpacity.Get(); }

	/** What text and icons in the widget are drawn in, unless they say otherwise. */
	void SetForegroundColor(const TAttribute<FSlateColor>& InForegroundColor);
	virtual FSlateColor GetForegroundColor() const { return ForegroundColor.Get(); }
	/** The same when the widget is disabled. */
	virtual FSlateColor GetDisabledForegroundColor() const { return GetForegroundColor(); }

	/** Multiplies the size that the content is given along an axis without alignment to fill. */
	void SetContentScale(const TAttribute<FVector2D>& InContentScale);
	const FVector2D& GetContentScale() const { return ContentScale.Get(); }

	/** Multiplies what the widget wants to measure. */
	void SetDesiredSizeScale(const TAttribute<FVector2D>& InDesiredSizeScale);
	const FVector2D& GetDesiredSizeScale() const { return DesiredSizeScale.Get(); }

protected:
	SCompoundWidget();
	virtual ~SCompoundWidget() override = default;

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	/** Holds what the widget is made of. */
	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;

private:
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> ContentScale;
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> DesiredSizeScale;
	TSlateAttribute<FLinearColor, EInvalidateWidgetReason::Paint> ColorAndOpacity;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ForegroundColor;
};
