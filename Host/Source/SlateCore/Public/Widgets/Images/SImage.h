#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"
#include "Types/SlateAttribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

struct FSlateBrush;

/** Shows a brush over its whole area. */
class SLATECORE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage) : _Image(nullptr), _ColorAndOpacity(FLinearColor::White) {}
		/** Kept by address: the brush outlives the widget. */
		SLATE_ATTRIBUTE(const FSlateBrush*, Image)
		/** Multiplies the tint of the brush. */
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		/** In place of the image size of the brush. */
		SLATE_ATTRIBUTE(TOptional<FVector2D>, DesiredSizeOverride)
		SLATE_EVENT(FPointerEventHandler, OnMouseButtonDown)
	SLATE_END_ARGS()

	SImage();
	void Construct(const FArguments& InArgs);

	/** Also to be called when the brush was changed in place. */
	void SetImage(TAttribute<const FSlateBrush*> InImage);
	const FSlateBrush* GetImage() const { return Image.Get(); }
	void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity);
	const FSlateColor& GetColorAndOpacity() const { return ColorAndOpacity.Get(); }
	void SetDesiredSizeOverride(TAttribute<TOptional<FVector2D>> InDesiredSizeOverride);

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Layout> Image;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAndOpacity;
	TSlateAttribute<TOptional<FVector2D>, EInvalidateWidgetReason::Layout> DesiredSizeOverride;
};
