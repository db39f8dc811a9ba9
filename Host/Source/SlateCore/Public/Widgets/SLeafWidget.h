#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** Base of widgets without children. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() final override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override = 0;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override = 0;

private:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const final override;
};
