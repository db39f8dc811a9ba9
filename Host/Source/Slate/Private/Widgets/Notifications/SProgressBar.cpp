#include "Widgets/Notifications/SProgressBar.h"

#include "Layout/SlateRect.h"
#include "Rendering/DrawElements.h"

namespace
{
	/** Length of the marquee, as a share of the bar, and the bars that it runs along in a second. */
	constexpr float MarqueeLength = 0.3f;
	constexpr float MarqueeSpeed = 0.8f;

	/** Seconds between two frames of the marquee. */
	constexpr float MarqueePeriod = 1.0f / 60.0f;
}

SProgressBar::SProgressBar()
	: PercentAttribute(*this)
	, FillColorAttribute(*this, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	, BorderPaddingAttribute(*this, FVector2D(1.0, 0.0))
{
}

void SProgressBar::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FProgressBarStyle::GetDefault();
	BarFillType = InArgs._BarFillType;
	BarFillStyle = InArgs._BarFillStyle;
	SetFillColorAndOpacity(InArgs._FillColorAndOpacity);
	SetBorderPadding(InArgs._BorderPadding);
	SetPercent(InArgs._Percent);
}

void SProgressBar::SetPercent(TAttribute<TOptional<float>> InPercent)
{
	PercentAttribute.Assign(*this, InPercent);
}

void SProgressBar::SetStyle(const FProgressBarStyle* InStyle)
{
	Style = InStyle ? InStyle : &FProgressBarStyle::GetDefault();
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SProgressBar::SetBarFillType(EProgressBarFillType::Type InBarFillType)
{
	if (BarFillType != InBarFillType)
	{
		BarFillType = InBarFillType;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SProgressBar::SetBarFillStyle(EProgressBarFillStyle::Type InBarFillStyle)
{
	if (BarFillStyle != InBarFillStyle)
	{
		BarFillStyle = InBarFillStyle;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SProgressBar::SetFillColorAndOpacity(TAttribute<FSlateColor> InFillColorAndOpacity)
{
	FillColorAttribute.Assign(*this, InFillColorAndOpacity);
}

void SProgressBar::SetBorderPadding(TAttribute<FVector2D> InBorderPadding)
{
	BorderPaddingAttribute.Assign(*this, InBorderPadding);
}

int32 SProgressBar::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Style->BackgroundImage, Effect,
		Style->BackgroundImage.GetTint(InWidgetStyle) * Tint);

	const FVector2f Padding(BorderPaddingAttribute.Get());
	const FVector2f Size = FVector2f(AllottedGeometry.GetLocalSize()) - Padding * 2.0f;
	if (Size.X <= 0.0f || Size.Y <= 0.0f)
	{
		return LayerId;
	}
	const TOptional<float>& Percent = PercentAttribute.Get();
	const FSlateBrush& Fill = Percent.IsSet() ? Style->FillImage : Style->MarqueeImage;
	const FLinearColor FillTint = Fill.GetTint(InWidgetStyle) * Tint * FillColorAttribute.Get().GetColor(InWidgetStyle);
	FSlateRect Shown = ComputeFill(Size, FMath::Clamp(Percent.Get(0.0f), 0.0f, 1.0f));
	FSlateRect Drawn = BarFillStyle == EProgressBarFillStyle::Scale ? Shown : FSlateRect(0.0f, 0.0f, Size.X, Size.Y);
	if (!Percent.IsSet())
	{
		const_cast<SProgressBar*>(this)->KeepMarqueeMoving();
		const float Begin = (MarqueePlace * (1.0f + MarqueeLength) - MarqueeLength) * Size.X;
		Drawn = FSlateRect(Begin, 0.0f, Begin + MarqueeLength * Size.X, Size.Y);
		Shown = FSlateRect(0.0f, 0.0f, Size.X, Size.Y);
	}

	// A masked picture is seen through the filled part as through a window, so that its ends keep their shape.
	const FGeometry Inside = AllottedGeometry.MakeChild(Size, FSlateLayoutTransform(Padding));
	const FGeometry Window = Inside.MakeChild(Shown.GetSize(), FSlateLayoutTransform(Shown.GetTopLeft()));
	OutDrawElements.PushClip(FSlateClippingZone(Window));
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, Inside.ToPaintGeometry(Drawn.GetSize(), FSlateLayoutTransform(Drawn.GetTopLeft())), &Fill, Effect, FillTint);
	OutDrawElements.PopClip();
	return LayerId + 1;
}

FVector2D SProgressBar::ComputeDesiredSize(float) const
{
	return FVector2D(Style->MarqueeImage.GetImageSize());
}

FSlateRect SProgressBar::ComputeFill(const FVector2f& Size, float Share) const
{
	const FVector2f Filled = Size * Share;
	const FVector2f Rest = Size - Filled;
	switch (BarFillType)
	{
	case EProgressBarFillType::RightToLeft:
		return FSlateRect(Rest.X, 0.0f, Size.X, Size.Y);
	case EProgressBarFillType::FillFromCenter:
		return FSlateRect(Rest.X * 0.5f, Rest.Y * 0.5f, Size.X - Rest.X * 0.5f, Size.Y - Rest.Y * 0.5f);
	case EProgressBarFillType::FillFromCenterHorizontal:
		return FSlateRect(Rest.X * 0.5f, 0.0f, Size.X - Rest.X * 0.5f, Size.Y);
	case EProgressBarFillType::FillFromCenterVertical:
		return FSlateRect(0.0f, Rest.Y * 0.5f, Size.X, Size.Y - Rest.Y * 0.5f);
	case EProgressBarFillType::TopToBottom:
		return FSlateRect(0.0f, 0.0f, Size.X, Filled.Y);
	case EProgressBarFillType::BottomToTop:
		return FSlateRect(0.0f, Rest.Y, Size.X, Size.Y);
	default:
		return FSlateRect(0.0f, 0.0f, Filled.X, Size.Y);
	}
}

EActiveTimerReturnType SProgressBar::MoveMarquee(double, float InDeltaTime)
{
	if (!bMarqueeSeen || PercentAttribute.Get().IsSet())
	{
		MarqueeTimer.Reset();
		return EActiveTimerReturnType::Stop;
	}
	bMarqueeSeen = false;
	MarqueePlace = FMath::Frac(MarqueePlace + InDeltaTime * MarqueeSpeed);
	Invalidate(EInvalidateWidgetReason::Paint);
	return EActiveTimerReturnType::Continue;
}

void SProgressBar::KeepMarqueeMoving()
{
	bMarqueeSeen = true;
	if (!MarqueeTimer.IsValid())
	{
		MarqueeTimer = RegisterActiveTimer(MarqueePeriod, FWidgetActiveTimerDelegate::CreateSP(this, &SProgressBar::MoveMarquee));
	}
}
