#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Internationalization/Text.h"
#include "Layout/Margin.h"
#include "Rendering/RenderingCommon.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateAttribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

namespace Host
{
	class FTextLayout;
	struct FPlacedRun;
	struct FShapedRun;
}

/** Shows text: of one line, or of several where the text has line breaks or is wrapped. */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _TextStyle(&FTextBlockStyle::GetDefault())
	{
	}
		SLATE_ATTRIBUTE(FText, Text)
		/** Gives font, colours and shadow where the arguments below do not; read when the widget is made. */
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		/** In slate units; (0, 0) draws no shadow. */
		SLATE_ATTRIBUTE(FVector2D, ShadowOffset)
		SLATE_ATTRIBUTE(FLinearColor, ShadowColorAndOpacity)
		/** Width, in slate units, at which lines are wrapped; 0 does not. */
		SLATE_ATTRIBUTE(float, WrapTextAt)
		/** Wraps lines at the width that the widget was last given. */
		SLATE_ATTRIBUTE(bool, AutoWrapText)
		SLATE_ATTRIBUTE(ETextWrappingPolicy, WrappingPolicy)
		SLATE_ATTRIBUTE(ETextTransformPolicy, TransformPolicy)
		/** Free space around the text, in slate units. */
		SLATE_ATTRIBUTE(FMargin, Margin)
		/** Distance of lines as a share of the font's line height. */
		SLATE_ATTRIBUTE(float, LineHeightPercentage)
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		/** In slate units. */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_ARGUMENT(TOptional<ETextOverflowPolicy>, OverflowPolicy)
		/** Called on a double click. */
		SLATE_EVENT(FPointerEventHandler, OnDoubleClicked)
	SLATE_END_ARGS()

	STextBlock();
	virtual ~STextBlock() override;
	void Construct(const FArguments& InArgs);

	/** The text as it was set, before it is transformed. */
	const FText& GetText() const { return Text.Get(); }
	void SetText(TAttribute<FText> InText);

	const FSlateFontInfo& GetFont() const { return Font.Get(); }
	void SetFont(TAttribute<FSlateFontInfo> InFont);
	const FSlateColor& GetColorAndOpacity() const { return ColorAndOpacity.Get(); }
	void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity);
	/** Takes font, colours and shadow from a style; null stands for the default one. */
	void SetTextStyle(const FTextBlockStyle* InTextStyle);

	FVector2D GetShadowOffset() const { return ShadowOffset.Get(); }
	void SetShadowOffset(TAttribute<FVector2D> InShadowOffset);
	const FLinearColor& GetShadowColorAndOpacity() const { return ShadowColorAndOpacity.Get(); }
	void SetShadowColorAndOpacity(TAttribute<FLinearColor> InShadowColorAndOpacity);

	void SetWrapTextAt(TAttribute<float> InWrapTextAt);
	void SetAutoWrapText(TAttribute<bool> InAutoWrapText);
	void SetWrappingPolicy(TAttribute<ETextWrappingPolicy> InWrappingPolicy);
	void SetTransformPolicy(TAttribute<ETextTransformPolicy> InTransformPolicy);
	ETextTransformPolicy GetTransformPolicy() const { return TransformPolicy.Get(); }
	void SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy);
	void SetMargin(TAttribute<FMargin> InMargin);
	void SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage);
	void SetJustification(TAttribute<ETextJustify::Type> InJustification);
	void SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth);

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	struct FTextColours
	{
		FLinearColor Fill;
		FLinearColor Outline;
	};

	/** The text as it is shown; the buffer is only used when that differs from what was set. */
	FStringView GetShownText(FString& Buffer) const;
	/** Width at which lines are wrapped, in pixels, when the widget is that wide in slate units; 0 when they are not. */
	float GetWrapWidth(float LayoutScale, float LocalWidth) const;
	/** Shapes the text for a scale as one line if it is one that fits, or lays it out. Costs little when nothing changed. */
	void UpdateLayout(float LayoutScale, float WrapWidth) const;
	void UpdateFullLayout(FStringView Shown, float LayoutScale, float WrapWidth) const;
	/** Of the text and its margin, in pixels. */
	FVector2f GetTextSize(float LayoutScale) const;
	/** Whether the one run is all there is to paint: nothing is cut off by an ellipsis. */
	bool IsSingleRunShown(const FGeometry& AllottedGeometry) const;
	Host::FPlacedRun PlaceSingleRun(const FGeometry& AllottedGeometry) const;
	void PlaceLines(const FGeometry& AllottedGeometry, TArray<Host::FPlacedRun>& OutRuns) const;

	/** Paints runs with their shadow. Returns the highest layer used. */
	int32 PaintText(TConstArrayView<Host::FPlacedRun> Runs, const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const;
	void PaintRuns(TConstArrayView<Host::FPlacedRun> Runs, const FGeometry& AllottedGeometry, FVector2f Offset, const FTextColours& Colours,
		ESlateDrawEffect DrawEffects, FSlateWindowElementList& OutDrawElements, int32 LayerId) const;

	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> Text;
	TSlateAttribute<FSlateFontInfo, EInvalidateWidgetReason::Layout> Font;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAndOpacity;
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> ShadowOffset;
	TSlateAttribute<FLinearColor, EInvalidateWidgetReason::Paint> ShadowColorAndOpacity;
	TSlateAttribute<FMargin, EInvalidateWidgetReason::Layout> Margin;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> WrapTextAt;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> LineHeightPercentage;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> MinDesiredWidth;
	TSlateAttribute<ETextJustify::Type, EInvalidateWidgetReason::Paint> Justification;
	TSlateAttribute<ETextWrappingPolicy, EInvalidateWidgetReason::Layout> WrappingPolicy;
	TSlateAttribute<ETextTransformPolicy, EInvalidateWidgetReason::Layout> TransformPolicy;
	TSlateAttribute<bool, EInvalidateWidgetReason::Layout> bAutoWrapText;
	ETextOverflowPolicy OverflowPolicy = ETextOverflowPolicy::Clip;

	/** The run of text of one line, which most is. Otherwise null. */
	mutable TSharedPtr<const Host::FShapedRun> SingleRun;
	/** The layout of text that is wrapped, cut off, or has line breaks. Otherwise null. */
	mutable TUniquePtr<Host::FTextLayout> FullLayout;
	/** The widget's width, in slate units, that the text was last measured for; counts when AutoWrapText is set. */
	mutable float MeasuredWidth = 0.0f;
};
