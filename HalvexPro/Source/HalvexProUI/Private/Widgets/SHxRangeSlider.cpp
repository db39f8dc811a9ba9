#include "Widgets/SHxRangeSlider.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/SLeafWidget.h"

namespace
{
	/** Steps of a press of Page Up or Page Down, and of an arrow key with Shift. */
	constexpr int32 PageSteps = 10;

	/** Handles nearer than this, in Slate units, are at one place for whoever points at them. */
	constexpr float SamePlace = 1.0f;

	/** Takes the keyboard for the upper handle; the slider does everything else. */
	class SHxUpperHandle : public SLeafWidget
	{
	public:
		DECLARE_DELEGATE_OneParam(FOnFocus, TOptional<EFocusCause> /*Cause*/);

		SLATE_BEGIN_ARGS(SHxUpperHandle) {}
			SLATE_ATTRIBUTE(bool, IsFocusable)
			/** Came, with its cause, or went. */
			SLATE_EVENT(FOnFocus, OnFocus)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			IsFocusable = InArgs._IsFocusable;
			OnFocus = InArgs._OnFocus;
			SetVisibility(EVisibility::HitTestInvisible);
		}

		virtual bool SupportsKeyboardFocus() const override { return IsFocusable.Get(false); }
		virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }

		virtual FReply OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent) override
		{
			OnFocus.ExecuteIfBound(InFocusEvent.GetCause());
			return FReply::Handled();
		}

		virtual void OnFocusLost(const FFocusEvent&) override { OnFocus.ExecuteIfBound(TOptional<EFocusCause>()); }

		virtual int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&, bool) const override
		{
			return LayerId;
		}

	protected:
		virtual FVector2D ComputeDesiredSize(float) const override { return FVector2D::ZeroVector; }

	private:
		TAttribute<bool> IsFocusable;
		FOnFocus OnFocus;
	};
}

void SHxRangeSlider::Construct(const FArguments& InArgs)
{
	OnRangeChanged = InArgs._OnRangeChanged;
	OnRangeCommitted = InArgs._OnRangeCommitted;
	ChildSlot
	[
		SAssignNew(UpperHandle, SHxUpperHandle)
		.IsFocusable_Lambda([this] { return Model.IsUsable(); })
		.OnFocus_Lambda([this](TOptional<EFocusCause> Cause)
		{
			Cause.IsSet() ? GiveFocus(EHxRangeHandle::Upper, Cause.GetValue()) : TakeFocus(EHxRangeHandle::Upper);
		})
	];
}

void SHxRangeSlider::SetModel(const FHxRangeModel& InModel)
{
	if (Model != InModel)
	{
		Model = InModel;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SHxRangeSlider::SetLocked(bool bInLocked)
{
	if (bLocked != bInLocked)
	{
		bLocked = bInLocked;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

float SHxRangeSlider::GetTrackLength(const FGeometry& Geometry) const
{
	return FMath::Max(static_cast<float>(Geometry.GetLocalSize().X) - Style.HandleSize, 0.0f);
}

float SHxRangeSlider::GetPlace(const FGeometry& Geometry, EHxRangeHandle Handle) const
{
	return Style.HandleSize * 0.5f + static_cast<float>(Model.GetShare(Model.GetValue(Handle))) * GetTrackLength(Geometry);
}

double SHxRangeSlider::GetValueAt(const FGeometry& Geometry, float Place) const
{
	const float Length = GetTrackLength(Geometry);
	return Length > 0.0f ? Model.GetValueAt((Place - Style.HandleSize * 0.5f) / Length) : Model.MinValue;
}

EHxRangeHandle SHxRangeSlider::FindNearer(const FGeometry& Geometry, float Place) const
{
	const float Lower = GetPlace(Geometry, EHxRangeHandle::Lower);
	const float Upper = GetPlace(Geometry, EHxRangeHandle::Upper);
	return Place - Lower < Upper - Place ? EHxRangeHandle::Lower : EHxRangeHandle::Upper;
}

SHxRangeSlider::FHit SHxRangeSlider::FindHit(const FGeometry& Geometry, float Place) const
{
	if (!CanMove() || GetTrackLength(Geometry) <= 0.0f)
	{
		return FHit();
	}
	const float Lower = GetPlace(Geometry, EHxRangeHandle::Lower);
	const float Upper = GetPlace(Geometry, EHxRangeHandle::Upper);
	const EGrip Nearer = FindNearer(Geometry, Place) == EHxRangeHandle::Lower ? EGrip::Lower : EGrip::Upper;
	const float Reach = Style.HandleSize * 0.5f;
	if (FMath::Min(FMath::Abs(Place - Lower), FMath::Abs(Place - Upper)) <= Reach)
	{
		return FHit{ Upper - Lower < SamePlace ? EGrip::Either : Nearer, false };
	}
	// A whole range has no room to be moved in, so that a press on it cannot mean that.
	const bool bOnStretch = Lower < Place && Place < Upper && !Model.IsWhole();
	return bOnStretch ? FHit{ EGrip::BothUnlessClicked, false } : FHit{ Nearer, true };
}

void SHxRangeSlider::Hover(EGrip Grip)
{
	if (Hovered != Grip)
	{
		Hovered = Grip;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

FReply SHxRangeSlider::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	if (Dragged != EGrip::None && MouseEvent.GetPointerIndex() != DragPointer)
	{
		// A second finger.
		return FReply::Handled();
	}
	// A press whose release never came is over too.
	EndDrag();
	const float Place = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())).X;
	const FHit Hit = FindHit(MyGeometry, Place);
	if (Hit.Grip == EGrip::None)
	{
		return FReply::Unhandled();
	}
	const EHxRangeHandle Focus = ChooseFocus(MyGeometry, Hit.Grip, Place);
	Dragged = Hit.Grip;
	BeforeDrag = Model;
	bDragMoved = false;
	DragPointer = MouseEvent.GetPointerIndex();
	DragOrigin = Place;
	DragScreenOrigin = FVector2D(MouseEvent.GetScreenSpacePosition());
	GripOffset = Hit.bJumps ? 0.0f : Place - GetPlace(MyGeometry, Focus);
	Invalidate(EInvalidateWidgetReason::Paint);
	if (Hit.bJumps && MoveHandle(MyGeometry, Focus, Place))
	{
		TellChanged();
	}
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(GetFocusWidget(Focus), EFocusCause::Mouse);
}

FReply SHxRangeSlider::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const float Place = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())).X;
	if (Dragged == EGrip::None)
	{
		Hover(FindHit(MyGeometry, Place).Grip);
		return FReply::Unhandled();
	}
	if (MouseEvent.GetPointerIndex() != DragPointer || !CanMove())
	{
		return FReply::Handled();
	}
	if (Dragged == EGrip::BothUnlessClicked && FSlateApplication::Get().HasTraveledFarEnoughToTriggerDrag(MouseEvent, DragScreenOrigin))
	{
		Dragged = EGrip::Both;
	}
	const bool bWasUndecided = Dragged == EGrip::Either;
	if (FollowPointer(MyGeometry, Place))
	{
		FReply Reply = FReply::Handled();
		if (bWasUndecided)
		{
			Reply.SetUserFocus(GetFocusWidget(Dragged == EGrip::Lower ? EHxRangeHandle::Lower : EHxRangeHandle::Upper), EFocusCause::Mouse);
		}
		TellChanged();
		return Reply;
	}
	return FReply::Handled();
}

bool SHxRangeSlider::FollowPointer(const FGeometry& Geometry, float Place)
{
	switch (Dragged)
	{
	case EGrip::Lower:
		return MoveHandle(Geometry, EHxRangeHandle::Lower, Place - GripOffset);
	case EGrip::Upper:
		return MoveHandle(Geometry, EHxRangeHandle::Upper, Place - GripOffset);
	case EGrip::Both:
		return Model.Shift(BeforeDrag, GetValueAt(Geometry, Place) - GetValueAt(Geometry, DragOrigin));
	case EGrip::Either:
	{
		// Decided once one of them moves: both may lie at an end, where only one of them can.
		const EHxRangeHandle Handle = Place < DragOrigin ? EHxRangeHandle::Lower : EHxRangeHandle::Upper;
		if (!MoveHandle(Geometry, Handle, Place - GripOffset))
		{
			return false;
		}
		Dragged = Handle == EHxRangeHandle::Lower ? EGrip::Lower : EGrip::Upper;
		return true;
	}
	default:
		return false;
	}
}

bool SHxRangeSlider::MoveHandle(const FGeometry& Geometry, EHxRangeHandle Handle, float Place)
{
	return Model.Move(Handle, GetValueAt(Geometry, Place));
}

FReply SHxRangeSlider::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || Dragged == EGrip::None || MouseEvent.GetPointerIndex() != DragPointer)
	{
		return FReply::Unhandled();
	}
	const float Place = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())).X;
	if (Dragged == EGrip::BothUnlessClicked && CanMove() && MoveHandle(MyGeometry, FindNearer(MyGeometry, Place), Place))
	{
		TellChanged();
	}
	EndDrag();
	Hover(IsHovered() ? FindHit(MyGeometry, Place).Grip : EGrip::None);
	return FReply::Handled().ReleaseMouseCapture();
}

void SHxRangeSlider::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	EndDrag();
}

void SHxRangeSlider::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	Hover(EGrip::None);
}

FReply SHxRangeSlider::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (!FocusedHandle.IsSet() || !CanMove() || Dragged != EGrip::None || MouseEvent.GetWheelDelta() == 0.0f)
	{
		return FReply::Unhandled();
	}
	// One step an event, however far the wheel went.
	StepFocused(MouseEvent.GetWheelDelta() > 0.0f ? 1 : -1);
	return FReply::Handled();
}

FReply SHxRangeSlider::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Escape && Dragged != EGrip::None)
	{
		TakeDragBack();
		return FReply::Handled().ReleaseMouseCapture();
	}
	const bool bOthersShortcut = InKeyEvent.IsControlDown() || InKeyEvent.IsAltDown() || InKeyEvent.IsCommandDown();
	if (!FocusedHandle.IsSet() || !CanMove() || bOthersShortcut)
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	const bool bBack = Key == EKeys::Left || Key == EKeys::Down || Key == EKeys::PageDown || Key == EKeys::Home;
	const bool bForth = Key == EKeys::Right || Key == EKeys::Up || Key == EKeys::PageUp || Key == EKeys::End;
	if (!bBack && !bForth)
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	if (Dragged != EGrip::None)
	{
		// The hand has it; but the focus stays too.
		return FReply::Handled();
	}
	if (Key == EKeys::Home || Key == EKeys::End)
	{
		FinishMove(Model.Move(FocusedHandle.GetValue(), bBack ? Model.MinValue : Model.MaxValue));
	}
	else
	{
		const bool bPage = InKeyEvent.IsShiftDown() || Key == EKeys::PageUp || Key == EKeys::PageDown;
		StepFocused((bBack ? -1 : 1) * (bPage ? PageSteps : 1));
	}
	return FReply::Handled();
}

void SHxRangeSlider::StepFocused(int32 NumSteps)
{
	FinishMove(Model.Step(FocusedHandle.GetValue(), NumSteps));
}

void SHxRangeSlider::FinishMove(bool bMoved)
{
	if (!bShowsFocus)
	{
		// Whoever took the handle by the mouse and goes on by keys wants to see which one they move.
		bShowsFocus = true;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
	if (bMoved)
	{
		TellChanged();
		const FOnHxRange Handler = OnRangeCommitted;
		Handler.ExecuteIfBound(Model.LowerValue, Model.UpperValue);
	}
}

void SHxRangeSlider::TellChanged()
{
	bDragMoved = true;
	Invalidate(EInvalidateWidgetReason::Paint);
	// Copied, for the listener may do away with the slider.
	const FOnHxRange Handler = OnRangeChanged;
	Handler.ExecuteIfBound(Model.LowerValue, Model.UpperValue);
}

void SHxRangeSlider::EndDrag()
{
	if (Dragged == EGrip::None)
	{
		return;
	}
	Dragged = EGrip::None;
	Invalidate(EInvalidateWidgetReason::Paint);
	if (bDragMoved)
	{
		const FOnHxRange Handler = OnRangeCommitted;
		Handler.ExecuteIfBound(Model.LowerValue, Model.UpperValue);
	}
}

void SHxRangeSlider::TakeDragBack()
{
	Dragged = EGrip::None;
	Invalidate(EInvalidateWidgetReason::Paint);
	const FHxRangeModel Left = Model;
	Model.SetRange(BeforeDrag.LowerValue, BeforeDrag.UpperValue);
	if (Model.LowerValue != Left.LowerValue || Model.UpperValue != Left.UpperValue)
	{
		TellChanged();
	}
}

// The keyboard focus.

FReply SHxRangeSlider::OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent)
{
	GiveFocus(EHxRangeHandle::Lower, InFocusEvent.GetCause());
	return FReply::Handled();
}

void SHxRangeSlider::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SCompoundWidget::OnFocusLost(InFocusEvent);
	TakeFocus(EHxRangeHandle::Lower);
}

FNavigationReply SHxRangeSlider::OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent)
{
	if (InNavigationEvent.GetNavigationType() == EUINavigation::Next && FocusedHandle == EHxRangeHandle::Lower)
	{
		return FNavigationReply::Explicit(UpperHandle);
	}
	if (InNavigationEvent.GetNavigationType() == EUINavigation::Previous && FocusedHandle == EHxRangeHandle::Upper)
	{
		return FNavigationReply::Explicit(AsShared());
	}
	return SCompoundWidget::OnNavigation(MyGeometry, InNavigationEvent);
}

void SHxRangeSlider::GiveFocus(EHxRangeHandle Handle, EFocusCause Cause)
{
	FocusedHandle = Handle;
	bShowsFocus = Cause != EFocusCause::Mouse;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SHxRangeSlider::TakeFocus(EHxRangeHandle Handle)
{
	if (FocusedHandle == Handle)
	{
		FocusedHandle.Reset();
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

TSharedRef<SWidget> SHxRangeSlider::GetFocusWidget(EHxRangeHandle Handle)
{
	return Handle == EHxRangeHandle::Lower ? AsShared() : UpperHandle.ToSharedRef();
}

EHxRangeHandle SHxRangeSlider::ChooseFocus(const FGeometry& Geometry, EGrip Grip, float Place) const
{
	if (Grip == EGrip::Lower || Grip == EGrip::Upper)
	{
		return Grip == EGrip::Lower ? EHxRangeHandle::Lower : EHxRangeHandle::Upper;
	}
	return FocusedHandle.IsSet() ? FocusedHandle.GetValue() : FindNearer(Geometry, Place);
}
