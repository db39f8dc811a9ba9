#include "InputCoreTypes.h"
#include "Layout/DragScroll.h"
#include "Layout/Oriented.h"
#include "Layout/ScrollState.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
	/** Share of the view that a page key scrolls by: some of it stays in sight. */
	constexpr float PageShare = 0.9f;
}

FReply SScrollBox::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!Scroll->CanScroll() || MouseEvent.IsControlDown())
	{
		return ConsumeMouseWheel == EConsumeMouseWheel::Always ? FReply::Handled() : FReply::Unhandled();
	}
	const float From = MotionTarget.Get(Scroll->GetOffset());
	const float To = FMath::Clamp(From - MouseEvent.GetWheelDelta() * Host::ScrollStep * WheelScrollMultiplier, 0.0f, Scroll->GetEndOffset());
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
	Drag->Press();
	return FReply::Handled();
}

FReply SScrollBox::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TOptional<FReply> Reply = Drag->Move(*this, MyGeometry, MouseEvent, Orientation, [this](float Units)
	{
		const float Before = Scroll->GetOffset();
		ScrollByUser(Before + Units);
		return Scroll->GetOffset() - Before;
	});
	return Reply.IsSet() ? Reply.GetValue() : SCompoundWidget::OnMouseMove(MyGeometry, MouseEvent);
}

FReply SScrollBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	bool bGoesOn = false;
	const TOptional<FReply> Reply = Drag->Release(MouseEvent, bGoesOn);
	if (bGoesOn)
	{
		EnsureMotion();
	}
	return Reply.IsSet() ? Reply.GetValue() : SCompoundWidget::OnMouseButtonUp(MyGeometry, MouseEvent);
}

void SScrollBox::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	Drag->Cancel();
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
		return Offset - Host::ScrollStep;
	}
	if (HasKeyboardFocus() && Key == (bVertical ? EKeys::Down : EKeys::Right))
	{
		return Offset + Host::ScrollStep;
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
		const float Rest = (Target - Scroll->GetOffset()) * FMath::Exp(-InDeltaTime / Host::ScrollAnimationSeconds);
		const bool bArrives = FMath::Abs(Rest) < Host::ScrollAnimationEnd;
		ScrollByUser(bArrives ? Target : Target - Rest);
		if (!bArrives)
		{
			return EActiveTimerReturnType::Continue;
		}
		MotionTarget.Reset();
	}
	const float Units = Drag->TakeMotion(InDeltaTime);
	if (Units != 0.0f && ScrollByUser(Scroll->GetOffset() + Units))
	{
		return EActiveTimerReturnType::Continue;
	}
	Drag->StopMotion();
	MotionTimer.Reset();
	return EActiveTimerReturnType::Stop;
}
