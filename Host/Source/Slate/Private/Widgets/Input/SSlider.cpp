#include "Widgets/Input/SSlider.h"

#include "InputCoreTypes.h"
#include "Layout/Oriented.h"
#include "Rendering/DrawElements.h"
#include "Widgets/Input/FocusRing.h"

SSlider::SSlider()
	: ValueAttribute(*this, 1.0f)
	, IndentHandleAttribute(*this, true)
	, LockedAttribute(*this, false)
	, BarColorAttribute(*this, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	, HandleColorAttribute(*this, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	, StepSizeAttribute(*this, 0.01f)
{
}

void SSlider::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FSliderStyle::GetDefault();
	OnMouseCaptureBegin = InArgs._OnMouseCaptureBegin;
	OnMouseCaptureEnd = InArgs._OnMouseCaptureEnd;
	OnValueChanged = InArgs._OnValueChanged;
	Orientation = InArgs._Orientation;
	bMouseUsesStep = InArgs._MouseUsesStep;
	bIsFocusable = InArgs._IsFocusable;
	SetMinAndMaxValues(InArgs._MinValue, InArgs._MaxValue);
	SetValue(InArgs._Value);
	SetIndentHandle(InArgs._IndentHandle);
	SetLocked(InArgs._Locked);
	SetSliderBarColor(InArgs._SliderBarColor);
	SetSliderHandleColor(InArgs._SliderHandleColor);
	SetStepSize(InArgs._StepSize);
}

float SSlider::GetNormalizedValue() const
{
	const float Range = MaxValue - MinValue;
	return Range > 0.0f ? FMath::Clamp((GetValue() - MinValue) / Range, 0.0f, 1.0f) : 1.0f;
}

void SSlider::SetValue(TAttribute<float> InValueAttribute)
{
	ValueAttribute.Assign(*this, InValueAttribute);
}

void SSlider::SetMinAndMaxValues(float InMinValue, float InMaxValue)
{
	const float NewMax = FMath::Max(InMinValue, InMaxValue);
	if (MinValue != InMinValue || MaxValue != NewMax)
	{
		MinValue = InMinValue;
		MaxValue = NewMax;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SSlider::SetIndentHandle(TAttribute<bool> InIndentHandle)
{
	IndentHandleAttribute.Assign(*this, InIndentHandle);
}

void SSlider::SetLocked(TAttribute<bool> InLocked)
{
	LockedAttribute.Assign(*this, InLocked);
}

void SSlider::SetOrientation(EOrientation InOrientation)
{
	if (Orientation != InOrientation)
	{
		Orientation = InOrientation;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SSlider::SetSliderBarColor(TAttribute<FSlateColor> InSliderBarColor)
{
	BarColorAttribute.Assign(*this, InSliderBarColor);
}

void SSlider::SetSliderHandleColor(TAttribute<FSlateColor> InSliderHandleColor)
{
	HandleColorAttribute.Assign(*this, InSliderHandleColor);
}

void SSlider::SetStepSize(TAttribute<float> InStepSize)
{
	StepSizeAttribute.Assign(*this, InStepSize);
}

void SSlider::SetStyle(const FSliderStyle* InStyle)
{
	Style = InStyle ? InStyle : &FSliderStyle::GetDefault();
	Invalidate(EInvalidateWidgetReason::Layout);
}

FReply SSlider::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || IsLocked())
	{
		return FReply::Unhandled();
	}
	bDragging = true;
	const FSimpleDelegate Handler = OnMouseCaptureBegin;
	Handler.ExecuteIfBound();
	CommitValue(ValueAtCursor(MyGeometry, MouseEvent));
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SSlider::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bDragging)
	{
		return FReply::Unhandled();
	}
	EndDrag();
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SSlider::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bDragging || IsLocked())
	{
		return FReply::Unhandled();
	}
	CommitValue(ValueAtCursor(MyGeometry, MouseEvent));
	return FReply::Handled();
}

void SSlider::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SLeafWidget::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SSlider::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SLeafWidget::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SSlider::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SLeafWidget::OnMouseCaptureLost(CaptureLostEvent);
	EndDrag();
}

FReply SSlider::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const FKey Key = InKeyEvent.GetKey();
	const bool bUp = Key == (bHorizontal ? EKeys::Right : EKeys::Up);
	const bool bDown = Key == (bHorizontal ? EKeys::Left : EKeys::Down);
	if ((!bUp && !bDown) || IsLocked())
	{
		return SLeafWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	CommitValue(FMath::Clamp(GetValue() + (bUp ? GetStepSize() : -GetStepSize()), MinValue, MaxValue));
	return FReply::Handled();
}

int32 SSlider::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const bool bActive = bEnabled && (IsHovered() || bDragging);
	const FSlateBrush& Bar = !bEnabled ? Style->DisabledBarImage : bActive ? Style->HoveredBarImage : Style->NormalBarImage;
	const FSlateBrush& Thumb = !bEnabled ? Style->DisabledThumbImage : bActive ? Style->HoveredThumbImage : Style->NormalThumbImage;
	const ESlateDrawEffect Effect = bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;

	const FVector2f Size(AllottedGeometry.GetLocalSize());
	const EOrientation Across = Host::Across(Orientation);
	const FTrack Track = ComputeTrack(AllottedGeometry);
	const FVector2f ThumbSize(Thumb.GetImageSize());
	// Vertical sliders rise upwards, against the coordinates.
	const float Share = Orientation == Orient_Horizontal ? GetNormalizedValue() : 1.0f - GetNormalizedValue();
	const auto Draw = [&](int32 Layer, const FSlateBrush& Brush, const FVector2f& Place, const FVector2f& BoxSize, const FSlateColor& Color)
	{
		const FLinearColor Tint = Brush.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() * Color.GetColor(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, Layer, AllottedGeometry.ToPaintGeometry(BoxSize, FSlateLayoutTransform(Place)), &Brush, Effect, Tint);
	};

	const float BarTop = (Host::Along(Size, Across) - Style->BarThickness) * 0.5f;
	const float Indent = IndentHandleAttribute.Get() ? Host::Along(ThumbSize, Orientation) * 0.5f : 0.0f;
	const float BarLength = FMath::Max(Host::Along(Size, Orientation) - 2.0f * Indent, 0.0f);
	Draw(LayerId, Bar, Host::OrientedVector(Orientation, Indent, BarTop), Host::OrientedVector(Orientation, BarLength, Style->BarThickness), BarColorAttribute.Get());
	const float ThumbBegin = Track.Begin + Track.Length * Share - Host::Along(ThumbSize, Orientation) * 0.5f;
	const float ThumbTop = (Host::Along(Size, Across) - Host::Along(ThumbSize, Across)) * 0.5f;
	const FVector2f ThumbPlace = Host::OrientedVector(Orientation, ThumbBegin, ThumbTop);
	Draw(LayerId + 1, Thumb, ThumbPlace, ThumbSize, HandleColorAttribute.Get());
	Host::PaintFocusRing(*this, AllottedGeometry.MakeChild(ThumbSize, FSlateLayoutTransform(ThumbPlace)), ESlateBrushRoundingType::HalfHeightRadius,
		OutDrawElements, LayerId + 2);
	return LayerId + 2;
}

FVector2D SSlider::ComputeDesiredSize(float) const
{
	const FVector2f ThumbSize(Style->NormalThumbImage.GetImageSize());
	const float Thickness = FMath::Max(Host::Along(ThumbSize, Host::Across(Orientation)), Style->BarThickness);
	return FVector2D(Host::OrientedVector(Orientation, Host::Along(ThumbSize, Orientation), Thickness));
}

SSlider::FTrack SSlider::ComputeTrack(const FGeometry& Geometry) const
{
	// The middle of the handle moves between half a handle from both ends, whether the bar is indented or not.
	const float HalfHandle = Host::Along(FVector2f(Style->NormalThumbImage.GetImageSize()), Orientation) * 0.5f;
	const float Length = Host::Along(FVector2f(Geometry.GetLocalSize()), Orientation);
	return FTrack{HalfHandle, FMath::Max(Length - 2.0f * HalfHandle, 0.0f)};
}

float SSlider::ValueAtCursor(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	const FTrack Track = ComputeTrack(MyGeometry);
	const float Place = Host::Along(FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())), Orientation);
	const float Share = Track.Length > 0.0f ? FMath::Clamp((Place - Track.Begin) / Track.Length, 0.0f, 1.0f) : 0.0f;
	const float Rising = Orientation == Orient_Horizontal ? Share : 1.0f - Share;
	const float Value = MinValue + Rising * (MaxValue - MinValue);
	return bMouseUsesStep ? SnapToStep(Value) : Value;
}

float SSlider::SnapToStep(float Value) const
{
	const float Step = GetStepSize();
	return Step > 0.0f ? FMath::Clamp(MinValue + FMath::RoundToFloat((Value - MinValue) / Step) * Step, MinValue, MaxValue) : Value;
}

void SSlider::CommitValue(float NewValue)
{
	if (NewValue == GetValue())
	{
		return;
	}
	// What a getter gives follows from what the handler does with the new value.
	if (!ValueAttribute.IsBound(*this))
	{
		ValueAttribute.Set(*this, NewValue);
	}
	const FOnFloatValueChanged Handler = OnValueChanged;
	Handler.ExecuteIfBound(NewValue);
}

void SSlider::EndDrag()
{
	if (bDragging)
	{
		bDragging = false;
		Invalidate(EInvalidateWidgetReason::Paint);
		const FSimpleDelegate Handler = OnMouseCaptureEnd;
		Handler.ExecuteIfBound();
	}
}
