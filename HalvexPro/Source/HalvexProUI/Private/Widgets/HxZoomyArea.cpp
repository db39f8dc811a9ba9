#include "Widgets/HxZoomyArea.h"

#include "Engine/World.h"
#include "Input/Events.h"
#include "TimerManager.h"
#include "Widgets/HxWidgetSupport.h"
#include "Widgets/SBoxWithWheel.h"

namespace
{
	/** Seconds between two steps of the easing, and the time that each step takes to have passed, however long the frame was. */
	constexpr float SmoothPeriod = 0.01f;

	/** The easing ends when translation and scale are as near to their targets as this. */
	constexpr double SmoothTolerance = 1.0e-4;
}

UHxZoomyArea::UHxZoomyArea(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetClipping(EWidgetClipping::ClipToBounds);
}

float UHxZoomyArea::GetZoomValue() const
{
	return static_cast<float>(TargetScale.X);
}

void UHxZoomyArea::SetZoomValue(float NewZoom)
{
	// In this order the minimum wins over a maximum below it: screens pin the zoom that way.
	const double Zoom = FMath::Max(FMath::Min(ZoomMinMax.Y, static_cast<double>(NewZoom)), ZoomMinMax.X);
	TargetScale = FVector2D(Zoom, Zoom);
	if (bEnableSmoothTransition)
	{
		CheckSmoothTimer();
	}
	else if (UWidget* Content = GetContent())
	{
		Content->SetRenderScale(TargetScale);
	}
	OnZoomValueChanged.Broadcast(static_cast<float>(Zoom));
}

void UHxZoomyArea::ZoomIn()
{
	ZoomBy(ZoomStep);
}

void UHxZoomyArea::ZoomOut()
{
	ZoomBy(-ZoomStep);
}

void UHxZoomyArea::ZoomBy(float Step)
{
	// From the scale of the moment, which may be half-way to the target: quick notches add up to less than slow ones, and the
	// feel of the wheel depends on it.
	if (const UWidget* Content = GetContent())
	{
		SetZoomValue(static_cast<float>(Content->GetRenderTransform().Scale.X + Step));
	}
}

void UHxZoomyArea::ResetPosition()
{
	// The target stays where the last drag put it, so that the next eased zoom brings the content back there: callers rely on it.
	if (UWidget* Content = GetContent())
	{
		Content->SetRenderTranslation(FVector2D::ZeroVector);
	}
}

void UHxZoomyArea::ResetScale()
{
	SetZoomValue(1.0f);
}

void UHxZoomyArea::ResetTransformation()
{
	ResetPosition();
	SetZoomValue(1.0f);
}

void UHxZoomyArea::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyBox.Reset();
}

#if WITH_EDITOR
const FText UHxZoomyArea::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxZoomyArea::RebuildWidget()
{
	MyBox = SNew(SBoxWithWheel)
		.OnMouseWheel(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseWheel))
		.OnMouseMove(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseMove))
		.OnMouseButtonDown(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseDown))
		.OnMouseButtonUp(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseUp));
	if (UWidget* Content = GetContent())
	{
		MyBox->SetContent(Content->TakeWidget());
	}
	return MyBox.ToSharedRef();
}

FReply UHxZoomyArea::HandleMouseDown(const FGeometry& Geometry, const FPointerEvent&)
{
	// Taken first: a listener may take the area off the screen.
	const TSharedRef<SBoxWithWheel> Captor = MyBox.ToSharedRef();
	bIsMouseDown = true;
	MouseDownLocalPosition = GetMouseLocalPos(Geometry);
	if (const UWidget* Content = GetContent())
	{
		ContentStartTranslation = Content->GetRenderTransform().Translation;
	}
	OnStartCaptureMouse.Broadcast();
	return FReply::Handled().CaptureMouse(Captor);
}

FReply UHxZoomyArea::HandleMouseMove(const FGeometry& Geometry, const FPointerEvent&)
{
	UWidget* Content = GetContent();
	if (!bIsMouseDown || !Content)
	{
		return FReply::Unhandled();
	}
	// The area's own translation counts too: screens that move the area itself are laid out for it.
	TargetTranslation = (GetMouseLocalPos(Geometry) - MouseDownLocalPosition) + GetRenderTransform().Translation + ContentStartTranslation;
	if (bEnableSmoothTransition)
	{
		CheckSmoothTimer();
	}
	else
	{
		Content->SetRenderTranslation(TargetTranslation);
	}
	return FReply::Handled();
}

FReply UHxZoomyArea::HandleMouseUp(const FGeometry&, const FPointerEvent&)
{
	OnStopCaptureMouse.Broadcast();
	bIsMouseDown = false;
	return FReply::Handled().ReleaseMouseCapture();
}

FReply UHxZoomyArea::HandleMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!GetContent())
	{
		return FReply::Unhandled();
	}
	// One step an event, however far the wheel went; a wheel that did not go up zooms out.
	ZoomBy(MouseEvent.GetWheelDelta() > 0.0f ? ZoomStep : -ZoomStep);
	return FReply::Handled();
}

void UHxZoomyArea::CheckSmoothTimer()
{
	// Only widgets of a screen's tree have a world.
	const UWorld* World = GetWorld();
	if (World && !World->GetTimerManager().IsTimerActive(SmoothTimerHandle))
	{
		World->GetTimerManager().SetTimer(SmoothTimerHandle, this, &UHxZoomyArea::SmoothTransitionTick, SmoothPeriod, true);
	}
}

void UHxZoomyArea::SmoothTransitionTick()
{
	UWidget* Content = GetContent();
	if (!Content)
	{
		StopSmoothTimer();
		return;
	}
	FWidgetTransform Transform = Content->GetRenderTransform();
	Transform.Translation = FMath::Vector2DInterpTo(Transform.Translation, TargetTranslation, SmoothPeriod, SmoothTransitionSpeed);
	Transform.Scale = FMath::Vector2DInterpTo(Transform.Scale, TargetScale, SmoothPeriod, SmoothTransitionSpeed);
	Content->SetRenderTransform(Transform);
	if (FVector2D::Distance(TargetTranslation, Transform.Translation) < SmoothTolerance && FVector2D::Distance(TargetScale, Transform.Scale) < SmoothTolerance)
	{
		StopSmoothTimer();
	}
}

void UHxZoomyArea::StopSmoothTimer()
{
	if (const UWorld* World = GetWorld())
	{
		World->GetTimerManager().ClearTimer(SmoothTimerHandle);
	}
	SmoothTimerHandle.Invalidate();
}

FVector2D UHxZoomyArea::GetMouseLocalPos(const FGeometry& Geometry) const
{
	return HxWidgetSupport::GetMouseLocalPos(Geometry);
}
