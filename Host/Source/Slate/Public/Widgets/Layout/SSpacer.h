#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** Empty space. */
class SLATE_API SSpacer : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SSpacer)
		: _Size(FVector2D::ZeroVector)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		/** Size that it wants, in slate units. */
		SLATE_ATTRIBUTE(FVector2D, Size)
	SLATE_END_ARGS()

	SSpacer();
	void Construct(const FArguments& InArgs);

	FVector2D GetSize() const { return SizeAttribute.Get(); }
	void SetSize(TAttribute<FVector2D> InSpacerSize);

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> SizeAttribute;
};
