#include "Widgets/Text/STextBlock.h"

#include "Host/FontServices.h"
#include "Host/TextBoundaries.h"
#include "Host/TextLayout.h"
#include "Layout/Geometry.h"
#include "Rendering/DrawElements.h"

namespace
{
	/** Widths closer than this count as equal: they come about in different ways. In pixels. */
	constexpr float WidthTolerance = 1.0f / 64.0f;

	/** A longer text that is to be wrapped is hardly one line: it is not tried as one. */
	constexpr int32 MaxSingleLineLength = 256;

	bool HasLineBreak(FStringView Text)
	{
		for (const TCHAR Unit : Text)
		{
			if (Host::FTextBoundaries::IsLineBreak(Unit))
			{
				return true;
			}
		}
		return false;
	}

	Host::ETextAlign GetAlign(ETextJustify::Type Justification)
	{
		switch (Justification)
		{
		case ETextJustify::Center:
			return Host::ETextAlign::Center;
		case ETextJustify::Right:
			return Host::ETextAlign::End;
		default:
			return Host::ETextAlign::Start;
		}
	}

	Host::ETextOverflow GetOverflow(ETextOverflowPolicy Policy)
	{
		switch (Policy)
		{
		case ETextOverflowPolicy::Ellipsis:
			return Host::ETextOverflow::Ellipsis;
		case ETextOverflowPolicy::MultilineEllipsis:
			return Host::ETextOverflow::MultilineEllipsis;
		default:
			return Host::ETextOverflow::Clip;
		}
	}
}

float STextBlock::GetWrapWidth(float LayoutScale, float LocalWidth) const
{
	float Width = FMath::Max(WrapTextAt.Get(), 0.0f);
	if (bAutoWrapText.Get() && LocalWidth > 0.0f)
	{
		Width = Width > 0.0f ? FMath::Min(Width, LocalWidth) : LocalWidth;
	}
	if (Width <= 0.0f)
	{
		return 0.0f;
	}
	const FMargin& Space = Margin.Get();
	return FMath::Max(Width - Space.Left - Space.Right, 1.0f) * LayoutScale;
}

void STextBlock::UpdateLayout(float LayoutScale, float WrapWidth) const
{
	FString Buffer;
	const FStringView Shown = GetShownText(Buffer);
	const bool bTooLong = WrapWidth > 0.0f && Shown.Len() > MaxSingleLineLength;
	if (!bTooLong && !HasLineBreak(Shown))
	{
		Host::FFontServices& Services = Host::FFontServices::Get();
		SingleRun = Services.Shape(Services.GetFont(Font.Get(), LayoutScale), Shown);
		if (WrapWidth <= 0.0f || SingleRun->GetWidth() <= WrapWidth + WidthTolerance)
		{
			FullLayout.Reset();
			return;
		}
	}
	SingleRun.Reset();
	UpdateFullLayout(Shown, LayoutScale, WrapWidth);
}

void STextBlock::UpdateFullLayout(FStringView Shown, float LayoutScale, float WrapWidth) const
{
	if (!FullLayout)
	{
		FullLayout = MakeUnique<Host::FTextLayout>();
	}
	Host::FTextLayoutStyle Style;
	Style.Font = Host::FFontServices::Get().GetFont(Font.Get(), LayoutScale);
	Style.WrapWidth = WrapWidth;
	Style.bBreakWords = WrappingPolicy.Get() == ETextWrappingPolicy::AllowPerCharacterWrapping;
	Style.LineHeightScale = LineHeightPercentage.Get();
	Style.Align = GetAlign(Justification.Get());
	Style.Margin = Margin.Get() * LayoutScale;
	FullLayout->SetStyle(Style);
	FullLayout->SetText(Shown);
}

FVector2f STextBlock::GetTextSize(float LayoutScale) const
{
	if (!SingleRun.IsValid())
	{
		return FullLayout->GetSize();
	}
	const FMargin Space = Margin.Get() * LayoutScale;
	const float LineHeight = FMath::Max(1.0f, FMath::RoundToFloat(SingleRun->GetFont().GetMetrics().LineHeight * LineHeightPercentage.Get()));
	// Whole pixels, as those of a full layout.
	return FVector2f(FMath::CeilToFloat(SingleRun->GetWidth() + Space.Left + Space.Right - WidthTolerance),
		FMath::CeilToFloat(LineHeight + Space.Top + Space.Bottom - WidthTolerance));
}

FVector2D STextBlock::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const float Scale = LayoutScaleMultiplier > 0.0f ? LayoutScaleMultiplier : 1.0f;
	MeasuredWidth = GetCachedGeometry().Size.X;
	UpdateLayout(Scale, GetWrapWidth(Scale, MeasuredWidth));
	const FVector2f Size = GetTextSize(Scale) / Scale;
	const FVector2D Shadow = ShadowOffset.Get();
	const double Width = Size.X + FMath::Abs(Shadow.X);
	return FVector2D(FMath::Max(Width, static_cast<double>(MinDesiredWidth.Get())), Size.Y + FMath::Abs(Shadow.Y));
}

Host::FPlacedRun STextBlock::PlaceSingleRun(const FGeometry& AllottedGeometry) const
{
	const FMargin Space = Margin.Get() * AllottedGeometry.Scale;
	const float Free = FMath::Max(0.0f, AllottedGeometry.Size.X * AllottedGeometry.Scale - Space.Left - Space.Right - SingleRun->GetWidth());
	const Host::ETextAlign Align = GetAlign(Justification.Get());
	float Left = Space.Left;
	if (Align == Host::ETextAlign::Center)
	{
		Left += Free / 2.0f;
	}
	else if ((Align == Host::ETextAlign::End) != SingleRun->IsRightToLeft())
	{
		Left += Free;
	}
	return { SingleRun.ToSharedRef(), FVector2f(Left, Space.Top + SingleRun->GetFont().GetMetrics().Baseline) };
}

bool STextBlock::IsSingleRunShown(const FGeometry& AllottedGeometry) const
{
	const float Scale = AllottedGeometry.Scale;
	return SingleRun.IsValid() && (OverflowPolicy == ETextOverflowPolicy::Clip || GetTextSize(Scale).X <= AllottedGeometry.Size.X * Scale + WidthTolerance);
}

void STextBlock::PlaceLines(const FGeometry& AllottedGeometry, TArray<Host::FPlacedRun>& OutRuns) const
{
	const float Scale = AllottedGeometry.Scale;
	if (SingleRun.IsValid())
	{
		UpdateFullLayout(SingleRun->GetText(), Scale, 0.0f);
	}
	FullLayout->Place(AllottedGeometry.Size * Scale, GetOverflow(OverflowPolicy), OutRuns);
}

void STextBlock::PaintRuns(TConstArrayView<Host::FPlacedRun> Runs, const FGeometry& AllottedGeometry, FVector2f Offset, const FTextColours& Colours,
	ESlateDrawEffect DrawEffects, FSlateWindowElementList& OutDrawElements, int32 LayerId) const
{
	const float PixelsToUnits = 1.0f / AllottedGeometry.Scale;
	for (const Host::FPlacedRun& Placed : Runs)
	{
		const Host::FFontMetrics& Metrics = Placed.Run->GetFont().GetMetrics();
		const FVector2f TopLeft(Placed.Origin.X * PixelsToUnits + Offset.X, (Placed.Origin.Y - Metrics.Baseline) * PixelsToUnits + Offset.Y);
		const FVector2f Size(Placed.Run->GetWidth() * PixelsToUnits, Metrics.LineHeight * PixelsToUnits);
		FSlateDrawElement::MakeShapedText(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(Size, FSlateLayoutTransform(TopLeft)),
			Placed.Run, DrawEffects, Colours.Fill, Colours.Outline);
	}
}

int32 STextBlock::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (AllottedGeometry.Scale <= 0.0f)
	{
		return LayerId;
	}
	UpdateLayout(AllottedGeometry.Scale, GetWrapWidth(AllottedGeometry.Scale, AllottedGeometry.Size.X));
	if (bAutoWrapText.Get() && MeasuredWidth != AllottedGeometry.Size.X)
	{
		// The width is only known now; the height that it asks for is taken into account on the next frame.
		const_cast<STextBlock*>(this)->Invalidate(EInvalidateWidgetReason::Layout);
	}
	const ESlateDrawEffect DrawEffects = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	if (IsSingleRunShown(AllottedGeometry))
	{
		const Host::FPlacedRun Placed = PlaceSingleRun(AllottedGeometry);
		return PaintText(TConstArrayView<Host::FPlacedRun>(&Placed, 1), AllottedGeometry, OutDrawElements, LayerId, InWidgetStyle, DrawEffects);
	}
	TArray<Host::FPlacedRun> Runs;
	PlaceLines(AllottedGeometry, Runs);
	return PaintText(Runs, AllottedGeometry, OutDrawElements, LayerId, InWidgetStyle, DrawEffects);
}

int32 STextBlock::PaintText(TConstArrayView<Host::FPlacedRun> Runs, const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, ESlateDrawEffect DrawEffects) const
{
	const FFontOutlineSettings& Outline = Font.Get().OutlineSettings;
	const FLinearColor& Tint = InWidgetStyle.GetColorAndOpacityTint();
	const FVector2f Shadow(ShadowOffset.Get());
	const FLinearColor ShadowColour = ShadowColorAndOpacity.Get() * Tint;
	if (!Shadow.IsZero() && ShadowColour.A > 0.0f)
	{
		const FLinearColor ShadowOutline = Outline.bApplyOutlineToDropShadows ? ShadowColour : FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
		PaintRuns(Runs, AllottedGeometry, Shadow, { ShadowColour, ShadowOutline }, DrawEffects, OutDrawElements, LayerId);
		++LayerId;
	}
	const FTextColours Colours = { ColorAndOpacity.Get().GetColor(InWidgetStyle) * Tint, Outline.OutlineColor * Tint };
	PaintRuns(Runs, AllottedGeometry, FVector2f(0.0f, 0.0f), Colours, DrawEffects, OutDrawElements, LayerId);
	return LayerId;
}
