#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** Draws a brush behind its content. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _Content()
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _ContentScale(FVector2D(1.0, 1.0))
		, _DesiredSizeScale(FVector2D(1.0, 1.0))
		, _ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		, _BorderBackgroundColor(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _ForegroundColor(FSlateColor::UseStyle())
		, _ShowEffectWhenDisabled(true)
	{
	}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Between the border's box and the content. */
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_EVENT(FPointerEventHandler, OnMouseButtonDown)
		SLATE_EVENT(FPointerEventHandler, OnMouseButtonUp)
		SLATE_EVENT(FPointerEventHandler, OnMouseMove)
		SLATE_EVENT(FPointerEventHandler, OnMouseDoubleClick)
		/** Kept by address: the brush outlives the widget. Without one, that of the core style. */
		SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
		SLATE_ATTRIBUTE(FVector2D, ContentScale)
		/** Multiplies the wanted size. */
		SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
		/** Multiplies the colours of the content. */
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		/** Multiplies the tint of the brush. */
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		/** Foreground of the content. */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** Whether the brush is drawn paler while the border is disabled. */
		SLATE_ATTRIBUTE(bool, ShowEffectWhenDisabled)
	SLATE_END_ARGS()

	SBorder();
	void Construct(const FArguments& InArgs);

	virtual void SetContent(TSharedRef<SWidget> InContent);
	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }
	void ClearContent();

	void SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity);
	FSlateColor GetBorderBackgroundColor() const { return BorderBackgroundColorAttribute.Get(); }

	void SetHAlign(EHorizontalAlignment HAlign);
	void SetVAlign(EVerticalAlignment VAlign);
	void SetPadding(TAttribute<FMargin> InPadding);
	void SetShowEffectWhenDisabled(TAttribute<bool> InShowEffectWhenDisabled);

	/** Also to be called when the brush was changed in place: the border is painted anew even with the brush that it has. */
	void SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage);
	const FSlateBrush* GetBorderImage() const { return BorderImageAttribute.Get(); }

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	/** As SetBorderImage, for derived classes that know that no brush changed in place: nothing happens when it is the same. */
	void ChangeBorderImage(const FSlateBrush* InBorderImage);

private:
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> BorderImageAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> BorderBackgroundColorAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> ShowDisabledEffectAttribute;
};
