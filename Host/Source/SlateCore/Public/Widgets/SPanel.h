#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** Base of widgets that arrange children and draw nothing themselves. */
class SLATECORE_API SPanel : public SWidget
{
public:
	virtual FChildren* GetChildren() override = 0;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override = 0;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override = 0;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
};
