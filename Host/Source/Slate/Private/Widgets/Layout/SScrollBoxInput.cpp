#include "Framework/Application/SlateApplication.h"
#include "Framework/Layout/InertialScrollManager.h"
#include "InputCoreTypes.h"
#include "Layout/Oriented.h"
#include "Layout/ScrollState.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
	/** Slate units for one step of the wheel, or one press of an arrow key. */
	constexpr float ScrollStep = 32.0f;

	/** Share of the view that a page key scrolls by: some of it stays in sight. */
	constexpr float PageShare = 0.9f;

	/** An animated scroll makes all but 1/e of its way in this many seconds. */
	constexpr float AnimationSeconds = 0.06f;

	/** Way in slate units that an animated scroll makes at once in the end. */
	constexpr float AnimationEnd = 0.5f;
}

FReply SScrollBox::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!Scroll->CanScroll() || MouseEvent.IsControlDown())
	{
		return ConsumeMouseWheel == EConsumeMouseWheel::Always ? FReply::Handled() : FReply::Unhandled();
	}
	const float From = MotionTarget.Get(Scroll->GetOffset());
	const float To = FMath::Clamp(From - MouseEvent.GetWheelDelta() * ScrollStep * WheelScrollMultiplier, 0.0f, Scroll->GetEndOffset());
	const bool bScrolls = To != From;
	if (bScrolls && bAnimateWheelScrolling)
	{
		AnimateTo(To);
	}
	else if (bScrolls)
	{
		EndInertialScrolling();
		ScrollByUser(To);
	}
	switch (ConsumeMouseWheel)
	{
	case EConsumeMouseWheel::Always:
		return FReply::Handled();
	case EConsumeMouseWheel::Never:
		return FReply::Unhandled();
	default:
		return bScrolls ? FReply::Handled() : FReply::Unhandled();
	}
}

FReply SScrollBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	EndInertialScrolling();
	if (MouseEvent.GetEffectingButton() != EKeys::RightMouseButton || !bAllowsRightClickDragScrolling || !Scroll->CanScroll())
	{
		return SCompoundWidget::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	bDragPending = true;
	DragDistance = 0.0f;
	return FReply::Handled();
}

FReply SScrollBox::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bDragPending || !MouseEvent.IsMouseButtonDown(EKeys::RightMouseButton))
	{
		bDragPending = false;
		return SCompoundWidget::OnMouseMove(MyGeometry, MouseEvent);
	}
	const float Delta = Host::Along(FVector2f(MouseEvent.GetCursorDelta()), Orientation);
	DragDistance += FMath::Abs(Delta);
	FReply Reply = FReply::Handled();
	if (!bDragging && DragDistance >= FSlateApplication::Get().GetDragTriggerDistance())
	{
		bDragging = true;
		Reply.CaptureMouse(AsShared());
	}
	if (bDragging)
	{
		const float Before = Scroll->GetOffset();
		ScrollByUser(Before - Delta / MyGeometry.Scale);
		Inertia->AddScrollSample(Scroll->GetOffset() - Before, FSlateApplication::Get().GetCurrentTime());
	}
	return Reply;
}

FReply SScrollBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::RightMouseButton || !bDragPending)
	{
		return SCompoundWidget::OnMouseButtonUp(MyGeometry, MouseEvent);
	}
	bDragPending = false;
	if (!bDragging)
	{
		return FReply::Handled();
	}
	bDragging = false;
	// A pause before letting go means that the content shall stay.
	Inertia->AddScrollSample(0.0f, FSlateApplication::Get().GetCurrentTime());
	EnsureMotion();
	return FReply::Handled().ReleaseMouseCapture();
}

void SScrollBox::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	bDragPending = false;
	bDragging = false;
}

FReply SScrollBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const TOptional<float> Target = InKeyEvent.GetModifierKeys().AnyModifiersDown() ? TOptional<float>() : GetOffsetForKey(InKeyEvent.GetKey());
	if (!Target.IsSet() || !Scroll->CanScroll())
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	EndInertialScrolling();
	return ScrollByUser(Target.GetValue()) ? FReply::Handled() : FReply::Unhandled();
}

TOptional<float> SScrollBox::GetOffsetForKey(const FKey& Key) const
{
	const float Offset = Scroll->GetOffset();
	const float Page = Scroll->GetViewSize() * PageShare;
	const bool bVertical = Orientation == Orient_Vertical;
	if (Key == EKeys::PageUp || Key == EKeys::PageDown)
	{
		return Offset + (Key == EKeys::PageUp ? -Page : Page);
	}
	if (Key == EKeys::Home)
	{
		return 0.0f;
	}
	if (Key == EKeys::End)
	{
		return Scroll->GetEndOffset();
	}
	// Arrows move the focus among the descendants; only when the box itself has it they scroll.
	if (HasKeyboardFocus() && Key == (bVertical ? EKeys::Up : EKeys::Left))
	{
		return Offset - ScrollStep;
	}
	if (HasKeyboardFocus() && Key == (bVertical ? EKeys::Down : EKeys::Right))
	{
		return Offset + ScrollStep;
	}
	return TOptional<float>();
}

void SScrollBox::OnFocusChanging(const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
{
	SCompoundWidget::OnFocusChanging(NewWidgetPath, InFocusEvent);
	const bool bByKeys = InFocusEvent.GetCause() == EFocusCause::Navigation;
	if ((!bByKeys && ScrollWhenFocusChanges == EScrollWhenFocusChanges::NoScroll) || !NewWidgetPath.IsValid() || !NewWidgetPath.ContainsWidget(this))
	{
		return;
	}
	const TSharedRef<SWidget> Focused = NewWidgetPath.GetLastWidget();
	if (&Focused.Get() != this)
	{
		const bool bAnimate = ScrollWhenFocusChanges == EScrollWhenFocusChanges::AnimatedScroll;
		ScrollDescendantIntoView(Focused, bAnimate, NavigationDestination, NavigationScrollPadding);
	}
}

void SScrollBox::EnsureMotion()
{
	if (!MotionTimer.IsValid() || !MotionTimer->IsActive())
	{
		MotionTimer = RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateSP(this, &SScrollBox::UpdateMotion));
	}
}

EActiveTimerReturnType SScrollBox::UpdateMotion(double, float InDeltaTime)
{
	if (MotionTarget.IsSet())
	{
		const float Target = FMath::Clamp(MotionTarget.GetValue(), 0.0f, Scroll->GetEndOffset());
		const float Rest = (Target - Scroll->GetOffset()) * FMath::Exp(-InDeltaTime / AnimationSeconds);
		const bool bArrives = FMath::Abs(Rest) < AnimationEnd;
		ScrollByUser(bArrives ? Target : Target - Rest);
		if (!bArrives)
		{
			return EActiveTimerReturnType::Continue;
		}
		MotionTarget.Reset();
	}
	Inertia->UpdateScrollVelocity(InDeltaTime);
	const float Velocity = Inertia->GetScrollVelocity();
	if (Velocity != 0.0f && ScrollByUser(Scroll->GetOffset() + Velocity * InDeltaTime))
	{
		return EActiveTimerReturnType::Continue;
	}
	Inertia->ClearScrollVelocity();
	MotionTimer.Reset();
	return EActiveTimerReturnType::Stop;
}
