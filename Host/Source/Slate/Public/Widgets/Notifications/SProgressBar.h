#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"
#include "SProgressBar.generated.h"

/** From where a progress bar fills. */
UENUM(BlueprintType)
namespace EProgressBarFillType
{
	enum Type : int
	{
		LeftToRight UMETA(DisplayName = "Left to Right"),
		RightToLeft UMETA(DisplayName = "Right to Left"),
		FillFromCenter UMETA(DisplayName = "Fill From Center"),
		FillFromCenterHorizontal UMETA(DisplayName = "Fill From Center Horizontal"),
		FillFromCenterVertical UMETA(DisplayName = "Fill From Center Vertical"),
		TopToBottom UMETA(DisplayName = "Top to Bottom"),
		BottomToTop UMETA(DisplayName = "Bottom to Top"),
	};
}

/** What becomes of the picture of the done part. */
UENUM(BlueprintType)
namespace EProgressBarFillStyle
{
	enum Type : int
	{
		/** It is as large as the bar, and cut off where the done part ends. */
		Mask,
		/** It is stretched over the done part. */
		Scale,
	};
}

/** Shows how much of something is done; or, while that is unknown, that something is being done. */
class SLATE_API SProgressBar : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SProgressBar)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FProgressBarStyle>("ProgressBar"))
		, _BarFillType(EProgressBarFillType::LeftToRight)
		, _BarFillStyle(EProgressBarFillStyle::Mask)
		, _Percent(TOptional<float>())
		, _FillColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _BorderPadding(FVector2D(1.0, 0.0))
	{
	}
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FProgressBarStyle, Style)
		SLATE_ARGUMENT(EProgressBarFillType::Type, BarFillType)
		SLATE_ARGUMENT(EProgressBarFillStyle::Type, BarFillStyle)
		/** From 0 to 1; unset while it is unknown. */
		SLATE_ATTRIBUTE(TOptional<float>, Percent)
		SLATE_ATTRIBUTE(FSlateColor, FillColorAndOpacity)
		/** Of the filled part off the edges. */
		SLATE_ATTRIBUTE(FVector2D, BorderPadding)
	SLATE_END_ARGS()

	SProgressBar();
	void Construct(const FArguments& InArgs);

	void SetPercent(TAttribute<TOptional<float>> InPercent);
	/** Also to be called when the style was changed in place. */
	void SetStyle(const FProgressBarStyle* InStyle);
	void SetBarFillType(EProgressBarFillType::Type InBarFillType);
	void SetBarFillStyle(EProgressBarFillStyle::Type InBarFillStyle);
	void SetFillColorAndOpacity(TAttribute<FSlateColor> InFillColorAndOpacity);
	void SetBorderPadding(TAttribute<FVector2D> InBorderPadding);

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	/** The filled part of a box of some size. */
	FSlateRect ComputeFill(const FVector2f& Size, float Share) const;
	/** Has frames made while the motion of an unknown progress is seen, and no longer. */
	EActiveTimerReturnType MoveMarquee(double InCurrentTime, float InDeltaTime);
	void KeepMarqueeMoving();

	TSlateAttribute<TOptional<float>, EInvalidateWidgetReason::Paint> PercentAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> FillColorAttribute;
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Paint> BorderPaddingAttribute;
	const FProgressBarStyle* Style = nullptr;
	TSharedPtr<FActiveTimerHandle> MarqueeTimer;
	/** Way of the marquee, in shares of the bar. */
	float MarqueePlace = 0.0f;
	/** It was painted since it moved last. */
	bool bMarqueeSeen = false;
	TEnumAsByte<EProgressBarFillType::Type> BarFillType = EProgressBarFillType::LeftToRight;
	TEnumAsByte<EProgressBarFillStyle::Type> BarFillStyle = EProgressBarFillStyle::Mask;
};
