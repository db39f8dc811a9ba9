#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/DragScroll.h"
#include "Widgets/Input/KeyboardUse.h"
#include "Widgets/Views/STableViewBase.h"

// Scrolling.

FReply STableViewBase::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	const float Units = -MouseEvent.GetWheelDelta() * Host::ScrollStep * WheelScrollMultiplier;
	const bool bScrolls = Units != 0.0f && !MouseEvent.IsControlDown() && CanScroll(Units);
	if (bScrolls)
	{
		Drag->StopMotion();
		if (bAnimateScrolling)
		{
			AnimatedUnits += Units;
			EnsureFrame();
		}
		else
		{
			ScrollBy(Units);
		}
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

FReply STableViewBase::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	EndInertialScrolling();
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton && bClearSelectionOnClick && CountSelected() > 0)
	{
		// No row was there to take the press.
		EmptySelection();
		SignalSelectionChanged(ESelectInfo::OnMouseClick);
		return FReply::Handled();
	}
	if (MouseEvent.GetEffectingButton() != EKeys::RightMouseButton || !bRightClickScrolls || !(CanScroll(-1.0f) || CanScroll(1.0f)))
	{
		return SCompoundWidget::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	Drag->Press();
	return FReply::Handled();
}

FReply STableViewBase::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TOptional<FReply> Reply = Drag->Move(*this, MyGeometry, MouseEvent, Orientation, [this](float Units)
	{
		const float Scrolled = CanScroll(Units) ? Units : 0.0f;
		ScrollBy(Scrolled);
		return Scrolled;
	});
	return Reply.IsSet() ? Reply.GetValue() : SCompoundWidget::OnMouseMove(MyGeometry, MouseEvent);
}

FReply STableViewBase::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	bool bGoesOn = false;
	const TOptional<FReply> Reply = Drag->Release(MouseEvent, bGoesOn);
	if (bGoesOn)
	{
		EnsureFrame();
	}
	return Reply.IsSet() ? Reply.GetValue() : SCompoundWidget::OnMouseButtonUp(MyGeometry, MouseEvent);
}

void STableViewBase::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	Drag->Cancel();
}

// Focus and keys.

FReply STableViewBase::OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent)
{
	bShowsFocus = InFocusEvent.GetCause() != EFocusCause::Mouse;
	if (ResolveMark(Selector) == INDEX_NONE && GetNumItemsBeingObserved() > 0)
	{
		Selector = MakeMark(FMath::Min(FirstShown, GetNumItemsBeingObserved() - 1));
	}
	UpdateRowStates();
	return FReply::Handled();
}

void STableViewBase::OnFocusLost(const FFocusEvent&)
{
	bShowsFocus = false;
	UpdateRowStates();
}

FReply STableViewBase::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// Keys of what is in the rows are not the list's.
	if (!HasKeyboardFocus() || InKeyEvent.IsAltDown() || InKeyEvent.IsCommandDown())
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	const FKey Key = InKeyEvent.GetKey();
	const int32 Num = GetNumItemsBeingObserved();
	if (Key == EKeys::A && InKeyEvent.IsControlDown() && SelectionMode == ESelectionMode::Multi)
	{
		for (int32 Index = 0; Index < Num; ++Index)
		{
			SetSelectedAt(Index, true);
		}
		SignalSelectionChanged(ESelectInfo::OnKeyPress);
		return FReply::Handled();
	}
	const int32 From = ResolveMark(Selector);
	if (Host::IsAcceptKey(Key) && From != INDEX_NONE)
	{
		return Activate(From, InKeyEvent);
	}
	if (const TOptional<FReply> Reply = OnExpansionKey(InKeyEvent, From); Reply.IsSet())
	{
		return Reply.GetValue();
	}
	const TOptional<int32> To = Num > 0 ? GetIndexForKey(Key, From) : TOptional<int32>();
	return To.IsSet() ? MoveSelector(To.GetValue(), InKeyEvent) : SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

TOptional<int32> STableViewBase::GetIndexForKey(const FKey& Key, int32 From) const
{
	const bool bVertical = Orientation == Orient_Vertical;
	const int32 Last = GetNumItemsBeingObserved() - 1;
	if (Key == EKeys::Home)
	{
		return 0;
	}
	if (Key == EKeys::End)
	{
		return Last;
	}
	int32 Step = 0;
	if (Key == (bVertical ? EKeys::Up : EKeys::Left))
	{
		Step = -1;
	}
	else if (Key == (bVertical ? EKeys::Down : EKeys::Right))
	{
		Step = 1;
	}
	else if (Key == EKeys::PageUp || Key == EKeys::PageDown)
	{
		// One that was in view stays in view.
		const int32 Page = FMath::Max(CountFullyShown() - 1, 1);
		Step = Key == EKeys::PageUp ? -Page : Page;
	}
	else
	{
		return TOptional<int32>();
	}
	return From == INDEX_NONE ? FMath::Clamp(FirstShown, 0, Last) : FMath::Clamp(From + Step, 0, Last);
}

TOptional<FReply> STableViewBase::OnExpansionKey(const FKeyEvent& InKeyEvent, int32 From)
{
	const bool bOpens = InKeyEvent.GetKey() == EKeys::Right;
	if (!IsTree() || Orientation != Orient_Vertical || From == INDEX_NONE || (!bOpens && InKeyEvent.GetKey() != EKeys::Left))
	{
		return TOptional<FReply>();
	}
	if (SetExpandedAt(From, bOpens))
	{
		return FReply::Handled();
	}
	// An open item leads to its first child, a closed one to what it is a child of.
	const int32 Parent = GetParentIndex(From);
	if (!bOpens && Parent != INDEX_NONE)
	{
		return MoveSelector(Parent, InKeyEvent);
	}
	return bOpens && GetParentIndex(From + 1) == From ? MoveSelector(From + 1, InKeyEvent) : FReply::Handled();
}

int32 STableViewBase::CountFullyShown() const
{
	int32 Count = 0;
	float RowBegin = Begin;
	for (const Host::FShownRow& Row : Shown)
	{
		Count += RowBegin >= 0.0f && RowBegin + Row.Length <= GetView() ? 1 : 0;
		RowBegin += Row.Length;
	}
	return Count;
}

FReply STableViewBase::MoveSelector(int32 Index, const FKeyEvent& InKeyEvent)
{
	const bool bStays = Index == ResolveMark(Selector);
	const bool bShift = InKeyEvent.IsShiftDown();
	Selector = MakeMark(Index);
	bShowsFocus = true;
	RequestScrollTo(Selector.Key, false);
	bool bChanged = false;
	if (SelectionMode == ESelectionMode::Single || (SelectionMode == ESelectionMode::Multi && !bShift && !InKeyEvent.IsControlDown()))
	{
		Anchor = Selector;
		bChanged = SelectOnly(Index);
	}
	else if (SelectionMode == ESelectionMode::Multi && bShift)
	{
		SelectRange(Index);
		bChanged = true;
	}
	if (bChanged)
	{
		SignalSelectionChanged(ESelectInfo::OnNavigation);
	}
	UpdateRowStates();
	// At the end of the list the arrow leads out of it.
	return bStays && !bChanged ? FReply::Unhandled() : FReply::Handled();
}

FReply STableViewBase::Activate(int32 Index, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.IsRepeat())
	{
		return FReply::Handled();
	}
	const TSharedRef<SWidget> KeepAlive = AsShared();
	bShowsFocus = true;
	const FItemMark Activated = MakeMark(Index);
	if (SelectAsClicked(Index, InKeyEvent))
	{
		SignalSelectionChanged(ESelectInfo::OnKeyPress);
	}
	ClickMarked(Activated);
	return FReply::Handled();
}

// Selection.

int32 STableViewBase::ResolveMark(FItemMark& Mark) const
{
	Mark.Index = FindIndex(Mark.Key, Mark.Index);
	return Mark.Index;
}

bool STableViewBase::SelectOnly(int32 Index)
{
	if (IsSelectedAt(Index) && CountSelected() == 1)
	{
		return false;
	}
	EmptySelection();
	SetSelectedAt(Index, true);
	return true;
}

void STableViewBase::SelectRange(int32 Index)
{
	int32 From = ResolveMark(Anchor);
	if (From == INDEX_NONE)
	{
		Anchor = MakeMark(Index);
		From = Index;
	}
	EmptySelection();
	for (int32 Between = FMath::Min(From, Index); Between <= FMath::Max(From, Index); ++Between)
	{
		SetSelectedAt(Between, true);
	}
}

void STableViewBase::ToggleSelected(int32 Index)
{
	const bool bSelect = !IsSelectedAt(Index);
	if (SelectionMode != ESelectionMode::Multi)
	{
		EmptySelection();
	}
	SetSelectedAt(Index, bSelect);
}

bool STableViewBase::SelectAsClicked(int32 Index, const FInputEvent& Event)
{
	Selector = MakeMark(Index);
	const bool bMulti = SelectionMode == ESelectionMode::Multi;
	if (SelectionMode == ESelectionMode::None)
	{
		return false;
	}
	if (bMulti && Event.IsShiftDown())
	{
		SelectRange(Index);
		return true;
	}
	Anchor = Selector;
	if (SelectionMode == ESelectionMode::SingleToggle || (bMulti && Event.IsControlDown()))
	{
		ToggleSelected(Index);
		return true;
	}
	return SelectOnly(Index);
}

void STableViewBase::FlushSelectionSignal()
{
	if (bSignalPending)
	{
		bSignalPending = false;
		SignalSelectionChanged(ESelectInfo::OnMouseClick);
	}
}

// Rows.

int32 STableViewBase::FindShownIndex(const ITableRow& Row) const
{
	const int32 Place = Shown.IndexOfByPredicate([&Row](const Host::FShownRow& Candidate) { return Candidate.Row.Get() == &Row; });
	// The items may have changed since the row was made for its own.
	return Place == INDEX_NONE ? INDEX_NONE : FindIndex(Shown[Place].Key, FirstShown + Place);
}

FReply STableViewBase::OnRowPressed(const ITableRow& Row, const FPointerEvent& MouseEvent)
{
	EndInertialScrolling();
	const int32 Index = FindShownIndex(Row);
	if (Index == INDEX_NONE)
	{
		return FReply::Unhandled();
	}
	bShowsFocus = false;
	// The selection shows at the press, and is told of when the button goes up: what it sets off must not get between the two.
	bSignalPending |= SelectAsClicked(Index, MouseEvent);
	UpdateRowStates();
	FReply Reply = FReply::Handled();
	if (bIsFocusable)
	{
		Reply.SetUserFocus(AsShared(), EFocusCause::Mouse);
	}
	return Reply;
}

void STableViewBase::OnRowReleased(const ITableRow& Row, bool bOverRow)
{
	const int32 Index = FindShownIndex(Row);
	const FItemMark Released = Index != INDEX_NONE && bOverRow ? MakeMark(Index) : FItemMark();
	FlushSelectionSignal();
	ClickMarked(Released);
}

void STableViewBase::ClickMarked(FItemMark Mark)
{
	// Who was told of the selection may have changed the items.
	if (ResolveMark(Mark) != INDEX_NONE)
	{
		SignalClicked(Mark.Index);
	}
}

bool STableViewBase::OnRowDoubleClicked(const ITableRow& Row)
{
	const int32 Index = FindShownIndex(Row);
	return Index != INDEX_NONE && SignalDoubleClicked(Index);
}

void STableViewBase::OnRowHovered(const ITableRow& Row, bool bIsHovered)
{
	const int32 Index = FindShownIndex(Row);
	if (Index != INDEX_NONE)
	{
		SignalHovered(Index, bIsHovered);
	}
}

void STableViewBase::OnRowExpansionToggled(const ITableRow& Row)
{
	const int32 Index = FindShownIndex(Row);
	if (Index != INDEX_NONE && !SetExpandedAt(Index, true))
	{
		SetExpandedAt(Index, false);
	}
}
