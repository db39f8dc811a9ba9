#include "Rendering/DrawElements.h"
#include "Widgets/SHxRangeSlider.h"

namespace
{
	/** Slate units from a handle to the outside of its halo and of its ring. */
	constexpr float HaloDistance = 4.0f;
	constexpr float RingWidth = 2.0f;

	/** Opacity of the halo, in shares of that of the handle. */
	constexpr float HoveredHalo = 0.2f;
	constexpr float DraggedHalo = 0.4f;

	FLinearColor WithOpacity(const FLinearColor& Color, float Share)
	{
		return Color.CopyWithNewOpacity(Color.A * Share);
	}

	/** A square or a bar, in pixels of the widget. */
	struct FPixelBox
	{
		int32 Left;
		int32 Top;
		int32 Width;
		int32 Height;

		FPixelBox Grow(int32 By) const { return FPixelBox{ Left - By, Top - By, Width + 2 * By, Height + 2 * By }; }
	};
}

SHxRangeSlider::SHxRangeSlider()
{
	FillBrush.DrawAs = ESlateBrushDrawType::RoundedBox;
	FillBrush.OutlineSettings.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
	RingBrush = FillBrush;
	RingBrush.OutlineSettings.Width = RingWidth;
	RingBrush.OutlineSettings.Color = FSlateColor(Style.FocusColor);
}

void SHxRangeSlider::SetStyle(const FHxRangeSliderStyle& InStyle)
{
	if (Style == InStyle)
	{
		return;
	}
	const bool bSameSize = Style.HandleSize == InStyle.HandleSize && Style.BarThickness == InStyle.BarThickness;
	Style = InStyle;
	RingBrush.OutlineSettings.Color = FSlateColor(Style.FocusColor);
	Invalidate(bSameSize ? EInvalidateWidgetReason::Paint : EInvalidateWidgetReason::Layout);
}

FVector2D SHxRangeSlider::ComputeDesiredSize(float) const
{
	// Halos and rings stick out at the sides, where a row has its margin, so that the bar is in line with what is above it.
	return FVector2D(2.0f * Style.HandleSize, FMath::Max(Style.HandleSize, Style.BarThickness) + 2.0f * HaloDistance);
}

bool SHxRangeSlider::IsLit(EHxRangeHandle Handle, EGrip Grip) const
{
	switch (Grip)
	{
	case EGrip::Lower:
		return Handle == EHxRangeHandle::Lower;
	case EGrip::Upper:
		return Handle == EHxRangeHandle::Upper;
	default:
		return Grip != EGrip::None;
	}
}

int32 SHxRangeSlider::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const float Scale = AllottedGeometry.Scale;
	if (!(Scale > 0.0f))
	{
		return LayerId;
	}
	const bool bUsable = Model.IsUsable();
	const bool bActive = ShouldBeEnabled(bParentEnabled) && bUsable;
	const ESlateDrawEffect Effect = bActive ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const auto Draw = [&](int32 Layer, const FSlateBrush& Brush, const FPixelBox& Box, const FLinearColor& Color)
	{
		const FVector2f Place(static_cast<float>(Box.Left) / Scale, static_cast<float>(Box.Top) / Scale);
		const FVector2f Size(static_cast<float>(Box.Width) / Scale, static_cast<float>(Box.Height) / Scale);
		FSlateDrawElement::MakeBox(OutDrawElements, Layer, AllottedGeometry.ToPaintGeometry(Size, FSlateLayoutTransform(Place)), &Brush, Effect,
			Color * InWidgetStyle.GetColorAndOpacityTint());
	};

	// In whole pixels, and bar and handles either all of an even or all of an odd height, so that they have one middle at all scales.
	const FVector2f Size(AllottedGeometry.GetLocalSize());
	const int32 Thickness = FMath::Max(FMath::RoundToInt32(Style.BarThickness * Scale), 1);
	int32 Diameter = FMath::Max(FMath::RoundToInt32(Style.HandleSize * Scale), 1);
	Diameter += (Diameter - Thickness) & 1;
	const int32 Top = FMath::FloorToInt32((Size.Y * Scale - static_cast<float>(Diameter)) * 0.5f);
	const int32 Way = FMath::Max(FMath::RoundToInt32(Size.X * Scale) - Diameter, 0);
	const auto MakeHandle = [&](EHxRangeHandle Handle, int32 UnusablePlace)
	{
		const int32 Place = bUsable ? FMath::RoundToInt32(Model.GetShare(Model.GetValue(Handle)) * Way) : UnusablePlace;
		return FPixelBox{ Place, Top, Diameter, Diameter };
	};
	const FPixelBox Lower = MakeHandle(EHxRangeHandle::Lower, 0);
	const FPixelBox Upper = MakeHandle(EHxRangeHandle::Upper, Way);
	const int32 BarTop = Top + (Diameter - Thickness) / 2;

	Draw(LayerId, FillBrush, FPixelBox{ Diameter / 2, BarTop, Way, Thickness }, Style.BarColor);
	Draw(LayerId + 1, FillBrush, FPixelBox{ Lower.Left + Diameter / 2, BarTop, Upper.Left - Lower.Left, Thickness }, Style.RangeColor);
	const int32 Distance = FMath::RoundToInt32(HaloDistance * Scale);
	const auto DrawHandle = [&](EHxRangeHandle Handle, const FPixelBox& Box)
	{
		const bool bDragged = IsLit(Handle, Dragged);
		const bool bHovered = Dragged == EGrip::None && !bLocked && IsLit(Handle, Hovered);
		if (bActive && (bDragged || bHovered))
		{
			Draw(LayerId + 2, FillBrush, Box.Grow(Distance), WithOpacity(Style.HandleColor, bDragged ? DraggedHalo : HoveredHalo));
		}
		Draw(LayerId + 3, FillBrush, Box, Style.HandleColor);
		if (bActive && bShowsFocus && FocusedHandle == Handle)
		{
			Draw(LayerId + 4, RingBrush, Box.Grow(Distance), FLinearColor::Transparent);
		}
	};
	DrawHandle(EHxRangeHandle::Lower, Lower);
	DrawHandle(EHxRangeHandle::Upper, Upper);
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 4, InWidgetStyle, bParentEnabled);
}
