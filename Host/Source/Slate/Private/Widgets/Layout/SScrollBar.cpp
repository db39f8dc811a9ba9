#include "Widgets/Layout/SScrollBar.h"

#include "InputCoreTypes.h"
#include "Layout/Oriented.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SScrollBarTrack.h"
#include "Widgets/Layout/SSpacer.h"

SScrollBar::SScrollBar() = default;

void SScrollBar::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar");
	OnUserScrolled = InArgs._OnUserScrolled;
	Orientation = InArgs._Orientation;
	bAlwaysShowScrollbar = InArgs._AlwaysShowScrollbar;
	bAlwaysShowScrollbarTrack = InArgs._AlwaysShowScrollbarTrack;
	bThicknessFromStyle = !InArgs._Thickness.IsSet();

	SBorder::Construct(SBorder::FArguments()
		.Padding(InArgs._Padding)
		[
			SAssignNew(Track, SScrollBarTrack)
			.Orientation(Orientation)
			.TopSlot()
			[
				SAssignNew(SlotBefore, SImage)
			]
			.ThumbSlot()
			[
				SAssignNew(Thumb, SBorder)
				.Padding(FMargin(0.0f))
				[
					SAssignNew(ThumbSpacer, SSpacer)
					.Size(InArgs._Thickness)
				]
			]
			.BottomSlot()
			[
				SAssignNew(SlotBehind, SImage)
			]
		]);
	InvalidateStyle();
	UserVisibility = GetVisibility();
	SetVisibility(ShouldBeVisible());
}

void SScrollBar::SetState(float InOffsetFraction, float InThumbSizeFraction, bool bCallOnUserScrolled)
{
	const bool bWasNeeded = IsNeeded();
	if (Track->SetSizes(InOffsetFraction, InThumbSizeFraction) && IsNeeded() != bWasNeeded)
	{
		UpdateTrackVisibility();
		SetVisibility(ShouldBeVisible());
	}
	if (bCallOnUserScrolled)
	{
		OnUserScrolled.ExecuteIfBound(InOffsetFraction);
	}
}

void SScrollBar::SetOnUserScrolled(const FOnUserScrolled& InHandler)
{
	OnUserScrolled = InHandler;
}

bool SScrollBar::IsNeeded() const
{
	return Track->IsNeeded();
}

float SScrollBar::DistanceFromTop() const
{
	return Track->DistanceFromTop();
}

float SScrollBar::DistanceFromBottom() const
{
	return Track->DistanceFromBottom();
}

float SScrollBar::ThumbSizeFraction() const
{
	return Track->GetThumbSizeFraction();
}

bool SScrollBar::IsScrolling() const
{
	return bDragging;
}

EVisibility SScrollBar::ShouldBeVisible() const
{
	return bAlwaysShowScrollbar || IsNeeded() ? UserVisibility : EVisibility::Collapsed;
}

void SScrollBar::SetStyle(const FScrollBarStyle* InStyle)
{
	const FScrollBarStyle* NewStyle = InStyle ? InStyle : &FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar");
	if (Style != NewStyle)
	{
		Style = NewStyle;
		InvalidateStyle();
	}
}

void SScrollBar::InvalidateStyle()
{
	const bool bVertical = Orientation == Orient_Vertical;
	SetBorderImage(bVertical ? &Style->VerticalBackgroundImage : &Style->HorizontalBackgroundImage);
	SlotBefore->SetImage(bVertical ? &Style->VerticalTopSlotImage : &Style->HorizontalTopSlotImage);
	SlotBehind->SetImage(bVertical ? &Style->VerticalBottomSlotImage : &Style->HorizontalBottomSlotImage);
	if (bThicknessFromStyle)
	{
		ThumbSpacer->SetSize(FVector2D(Style->Thickness, Style->Thickness));
	}
	Thumb->SetBorderImage(ChooseThumbBrush());
	UpdateTrackVisibility();
}

void SScrollBar::SetThickness(TAttribute<FVector2D> InThickness)
{
	bThicknessFromStyle = !InThickness.IsSet();
	ThumbSpacer->SetSize(bThicknessFromStyle ? TAttribute<FVector2D>(FVector2D(Style->Thickness, Style->Thickness)) : InThickness);
}

void SScrollBar::SetUserVisibility(EVisibility InUserVisibility)
{
	if (!(UserVisibility == InUserVisibility))
	{
		UserVisibility = InUserVisibility;
		SetVisibility(ShouldBeVisible());
	}
}

void SScrollBar::SetScrollBarAlwaysVisible(bool InAlwaysVisible)
{
	if (bAlwaysShowScrollbar != InAlwaysVisible)
	{
		bAlwaysShowScrollbar = InAlwaysVisible;
		SetVisibility(ShouldBeVisible());
	}
}

void SScrollBar::SetScrollBarTrackAlwaysVisible(bool InAlwaysVisible)
{
	bAlwaysShowScrollbarTrack = InAlwaysVisible;
	UpdateTrackVisibility();
}

FReply SScrollBar::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !IsNeeded())
	{
		return FReply::Unhandled();
	}
	float ThumbBegin = 0.0f;
	float ThumbLength = 0.0f;
	Track->ComputeThumb(Host::Along(FVector2f(Track->GetCachedGeometry().GetLocalSize()), Orientation), ThumbBegin, ThumbLength);
	const float Place = GetPlaceOnTrack(MouseEvent);
	const bool bOnThumb = Place >= ThumbBegin && Place < ThumbBegin + ThumbLength;
	// Beside the thumb: it comes to the cursor, and is then held by its middle.
	DragGrabOffset = bOnThumb ? Place - ThumbBegin : ThumbLength * 0.5f;
	bDragging = true;
	if (!bOnThumb)
	{
		ScrollTo(Place - DragGrabOffset);
	}
	UpdateThumb();
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SScrollBar::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bDragging)
	{
		return FReply::Unhandled();
	}
	EndDrag();
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SScrollBar::OnMouseMove(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (bDragging && HasMouseCapture())
	{
		const float Begin = GetPlaceOnTrack(MouseEvent) - DragGrabOffset;
		ScrollTo(Begin);
		return FReply::Handled();
	}
	const bool bNowHovered = Thumb->GetCachedGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition());
	if (bThumbHovered != bNowHovered)
	{
		bThumbHovered = bNowHovered;
		UpdateThumb();
	}
	return FReply::Unhandled();
}

void SScrollBar::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	bThumbHovered = Thumb->GetCachedGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition());
	UpdateThumb();
}

void SScrollBar::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	bThumbHovered = false;
	UpdateThumb();
}

void SScrollBar::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SBorder::OnMouseCaptureLost(CaptureLostEvent);
	EndDrag();
}

void SScrollBar::ScrollTo(float PlaceOnTrack)
{
	const float Offset = Track->OffsetFractionAt(PlaceOnTrack, Host::Along(FVector2f(Track->GetCachedGeometry().GetLocalSize()), Orientation));
	SetState(Offset, Track->GetThumbSizeFraction(), true);
}

float SScrollBar::GetPlaceOnTrack(const FPointerEvent& MouseEvent) const
{
	return Host::Along(FVector2f(Track->GetCachedGeometry().AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())), Orientation);
}

void SScrollBar::EndDrag()
{
	if (bDragging)
	{
		bDragging = false;
		UpdateThumb();
	}
}

const FSlateBrush* SScrollBar::ChooseThumbBrush() const
{
	return bDragging ? &Style->DraggedThumbImage : bThumbHovered ? &Style->HoveredThumbImage : &Style->NormalThumbImage;
}

void SScrollBar::UpdateThumb()
{
	const FSlateBrush* Brush = ChooseThumbBrush();
	if (Thumb->GetBorderImage() != Brush)
	{
		Thumb->SetBorderImage(Brush);
	}
}

void SScrollBar::UpdateTrackVisibility()
{
	const EVisibility Visibility = bAlwaysShowScrollbarTrack || IsNeeded() ? EVisibility::HitTestInvisible : EVisibility::Hidden;
	SlotBefore->SetVisibility(Visibility);
	SlotBehind->SetVisibility(Visibility);
}
