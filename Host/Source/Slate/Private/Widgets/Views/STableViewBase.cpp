#include "Widgets/Views/STableViewBase.h"

#include "Framework/Application/SlateApplication.h"
#include "Layout/DragScroll.h"
#include "Layout/Oriented.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Views/ListFill.h"
#include "Widgets/Views/SListPanel.h"

namespace
{
	/** Views that are scrolled through row by row; farther ways are made in one leap. */
	constexpr float MaxViewsByRow = 4.0f;
}

STableViewBase::STableViewBase()
	: Drag(MakeUnique<Host::FDragScroll>())
{
	SetCanTick(true);
}

STableViewBase::~STableViewBase() = default;

void STableViewBase::ConstructTable(const FTableArguments& Arguments)
{
	OnScrolled = Arguments.OnScrolled;
	Orientation = Arguments.Orientation;
	SelectionMode = Arguments.SelectionMode;
	ConsumeMouseWheel = Arguments.ConsumeMouseWheel;
	WheelScrollMultiplier = Arguments.WheelScrollMultiplier;
	bClearSelectionOnClick = Arguments.bClearSelectionOnClick;
	bAnimateScrolling = Arguments.bAnimateScrolling;
	bIsFocusable = Arguments.bIsFocusable;
	SetClipping(EWidgetClipping::ClipToBounds);
	BuildView(Arguments);
	RequestListRefresh();
}

void STableViewBase::BuildView(const FTableArguments& Arguments)
{
	SAssignNew(Panel, Host::SListPanel)
		.Clipping(EWidgetClipping::ClipToBounds)
		.Orientation(Orientation)
		.OnRowResized(FSimpleDelegate::CreateSP(this, &STableViewBase::HandleRowResized));
	const FOnUserScrolled ScrollHandler = FOnUserScrolled::CreateSP(this, &STableViewBase::HandleScrollBarMoved);
	TSharedRef<SWidget> Bar = SNullWidget::NullWidget;
	if (Arguments.ExternalScrollbar.IsValid())
	{
		ScrollBar = Arguments.ExternalScrollbar;
		ScrollBar->SetOnUserScrolled(ScrollHandler);
	}
	else
	{
		SAssignNew(ScrollBar, SScrollBar).Style(Arguments.ScrollBarStyle).Orientation(Orientation).OnUserScrolled(ScrollHandler);
		ScrollBar->SetUserVisibility(Arguments.ScrollbarVisibility);
		Bar = ScrollBar.ToSharedRef();
	}
	if (Orientation == Orient_Vertical)
	{
		ChildSlot
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot().FillWidth(1.0f)[Panel.ToSharedRef()]
			+ SHorizontalBox::Slot().AutoWidth()[Bar]
		];
	}
	else
	{
		ChildSlot
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().FillHeight(1.0f)[Panel.ToSharedRef()]
			+ SVerticalBox::Slot().AutoHeight()[Bar]
		];
	}
}

void STableViewBase::RequestListRefresh()
{
	bItemsChanged = true;
	EnsureFrame();
}

void STableViewBase::RequestLayoutRefresh()
{
	bLayoutDirty = true;
	EnsureFrame();
}

void STableViewBase::SetScrollOffset(const float InScrollOffset)
{
	EndInertialScrolling();
	WantedOffset = FMath::Max(InScrollOffset, 0.0f);
	RequestLayoutRefresh();
}

void STableViewBase::ScrollToBottom()
{
	// The greatest offset there is, also of items that come until then.
	SetScrollOffset(static_cast<float>(TNumericLimits<int32>::Max()));
}

void STableViewBase::EndInertialScrolling()
{
	Drag->StopMotion();
	AnimatedUnits = 0.0f;
	PendingUnits = 0.0f;
}

bool STableViewBase::IsRightClickScrolling() const
{
	return Drag->IsDragging();
}

void STableViewBase::SetScrollbarVisibility(const EVisibility InVisibility)
{
	ScrollBar->SetUserVisibility(InVisibility);
}

void STableViewBase::RequestScrollTo(const void* Key, bool bNavigate)
{
	ScrollRequest = FScrollRequest{Key, bNavigate};
	RequestLayoutRefresh();
}

void STableViewBase::RebuildList()
{
	bDropRows = true;
	RequestListRefresh();
}

void STableViewBase::ScrollBy(float Units)
{
	if (Units != 0.0f)
	{
		PendingUnits += Units;
		RequestLayoutRefresh();
	}
}

float STableViewBase::GetView() const
{
	return Host::Along(KnownSize, Orientation);
}

bool STableViewBase::CanScroll(float Units) const
{
	// A pixel's worth of an item that sums of lengths may be off by does not count.
	constexpr double Hardly = 1.0e-3;
	return Units < 0.0f ? Offset > Hardly : Offset + NumInView < GetNumItemsBeingObserved() - Hardly;
}

void STableViewBase::HandleScrollBarMoved(float OffsetFraction)
{
	EndInertialScrolling();
	WantedOffset = static_cast<double>(FMath::Max(OffsetFraction, 0.0f)) * GetNumItemsBeingObserved();
	RequestLayoutRefresh();
}

void STableViewBase::HandleRowResized()
{
	if (!bUpdating)
	{
		RequestLayoutRefresh();
	}
}

// Frames.

void STableViewBase::EnsureFrame()
{
	if (!FrameTimer.IsValid() || !FrameTimer->IsActive())
	{
		FrameTimer = RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateSP(this, &STableViewBase::OnFrame));
	}
}

EActiveTimerReturnType STableViewBase::OnFrame(double, float InDeltaTime)
{
	if (!bHasGeometry && IsParentValid())
	{
		if (!bAwaitsGeometry)
		{
			// The layout of this frame may give it some.
			bAwaitsGeometry = true;
			return EActiveTimerReturnType::Continue;
		}
		// A list without room yet asks for what its items need, once it has a row to judge by.
		LearnGeometry(GetCachedGeometry());
	}
	const bool bMoves = UpdateMotion(InDeltaTime);
	Update();
	if (bMoves || (bHasGeometry && IsPendingRefresh()))
	{
		return EActiveTimerReturnType::Continue;
	}
	FrameTimer.Reset();
	return EActiveTimerReturnType::Stop;
}

bool STableViewBase::UpdateMotion(float DeltaTime)
{
	if (AnimatedUnits != 0.0f)
	{
		const float Rest = AnimatedUnits * FMath::Exp(-DeltaTime / Host::ScrollAnimationSeconds);
		const bool bArrives = FMath::Abs(Rest) < Host::ScrollAnimationEnd;
		ScrollBy(bArrives ? AnimatedUnits : AnimatedUnits - Rest);
		AnimatedUnits = bArrives ? 0.0f : Rest;
	}
	const float Motion = Drag->IsPending() ? 0.0f : Drag->TakeMotion(DeltaTime);
	if (Motion != 0.0f && CanScroll(Motion))
	{
		ScrollBy(Motion);
	}
	else if (!Drag->IsPending())
	{
		Drag->StopMotion();
	}
	return AnimatedUnits != 0.0f || Motion != 0.0f;
}

void STableViewBase::Tick(const FGeometry& AllottedGeometry, const double, const float)
{
	if (LearnGeometry(AllottedGeometry))
	{
		bLayoutDirty = true;
		Update();
	}
}

bool STableViewBase::LearnGeometry(const FGeometry& Geometry)
{
	const FVector2f Size = Geometry.GetLocalSize();
	if (bHasGeometry && Size == KnownSize)
	{
		return false;
	}
	bHasGeometry = true;
	KnownSize = Size;
	return true;
}

void STableViewBase::Update()
{
	// What callers ask for while rows are made is for the next frame.
	if (bUpdating || !bHasGeometry || !IsPendingRefresh())
	{
		return;
	}
	bUpdating = true;
	if (bItemsChanged)
	{
		OnItemsChanged();
	}
	UpdateRows();
	if (ScrollRequest.IsSet())
	{
		ResolveScrollRequest();
	}
	bUpdating = false;
	if (IsPendingRefresh())
	{
		EnsureFrame();
	}
}

void STableViewBase::UpdateRows()
{
	const bool bNewItems = bItemsChanged;
	bItemsChanged = false;
	bLayoutDirty = false;
	const float Units = PendingUnits;
	PendingUnits = 0.0f;
	if (bDropRows)
	{
		bDropRows = false;
		TArray<Host::FShownRow> Dropped = MoveTemp(Shown);
		Shown.Reset();
		for (Host::FShownRow& Row : Dropped)
		{
			ReleaseShownRow(Row);
		}
	}

	const float View = GetView();
	Host::FListFill Fill(*this, View);
	if (bNewItems)
	{
		EstimatedNum = INDEX_NONE;
	}
	if (GetNumItemsBeingObserved() > 0)
	{
		if (!WantedOffset.IsSet() && FMath::Abs(Units) > View * MaxViewsByRow && NumInView > 0.0)
		{
			WantedOffset = FMath::Max(Offset + Units * NumInView / View, 0.0);
		}
		if (WantedOffset.IsSet() || bNewItems || !Fill.Scroll(Units))
		{
			Fill.Jump(WantedOffset.Get(Offset));
		}
	}
	WantedOffset.Reset();
	TakeRows(Fill);
}

void STableViewBase::TakeRows(Host::FListFill& Fill)
{
	TArray<Host::FShownRow> Left = MoveTemp(Shown);
	Shown.Reset();
	for (Host::FShownRow& Row : Left)
	{
		ReleaseShownRow(Row);
	}
	const float View = GetView();
	Shown = MoveTemp(Fill.Rows);
	FirstShown = Fill.First;
	Begin = Fill.Begin;

	int32 NumRows = 0;
	float Length = 0.0f;
	double InView = 0.0;
	for (int32 Place = 0; Place < Shown.Num(); ++Place)
	{
		const Host::FShownRow& Row = Shown[Place];
		if (Row.Widget.IsValid())
		{
			Panel->PlaceRow(Row.Widget.ToSharedRef(), NumRows++);
		}
		const float Visible = FMath::Min(Begin + Length + Row.Length, View) - FMath::Max(Begin + Length, 0.0f);
		InView += Row.Length > 0.0f ? FMath::Clamp(Visible / Row.Length, 0.0f, 1.0f) : 1.0f;
		Length += Row.Length;
	}
	const double OldOffset = Offset;
	Offset = FirstShown + (Shown.Num() > 0 && Shown[0].Length > 0.0f ? FMath::Clamp(-Begin / Shown[0].Length, 0.0f, 1.0f) : 0.0f);
	NumInView = InView;

	const int32 Num = GetNumItemsBeingObserved();
	if (Shown.Num() == Num)
	{
		Panel->SetWantedLength(Length);
	}
	else if (EstimatedNum != Num)
	{
		// Estimated once, lest the room that a list asks for change while it is scrolled.
		Panel->SetWantedLength(Shown.IsEmpty() ? 0.0f : Length / Shown.Num() * Num);
	}
	EstimatedNum = Num;
	Panel->SetBegin(Begin);
	Panel->NoteRowSizes();
	UpdateScrollBar();
	OnShownRowsChanged();
	UpdateRowStates();
	if (Offset != OldOffset)
	{
		OnScrolled.ExecuteIfBound(Offset, FMath::Max(Num - NumInView - Offset, 0.0));
	}
}

void STableViewBase::ReleaseShownRow(Host::FShownRow& ShownRow)
{
	if (ShownRow.Row.IsValid())
	{
		const Host::FShownRow Released = MoveTemp(ShownRow);
		ShownRow = Host::FShownRow();
		Panel->RemoveRow(Released.Widget.ToSharedRef());
		Released.Row->ResetRow();
		ReleaseRow(Released.Row.ToSharedRef());
	}
}

void STableViewBase::UpdateScrollBar()
{
	const double Num = GetNumItemsBeingObserved();
	if (Num > 0.0 && CanScroll(-1.0f))
	{
		ScrollBar->SetState(static_cast<float>(Offset / Num), static_cast<float>(NumInView / Num));
	}
	else
	{
		ScrollBar->SetState(0.0f, CanScroll(1.0f) ? static_cast<float>(NumInView / Num) : 1.0f);
	}
}

void STableViewBase::ResolveScrollRequest()
{
	const FScrollRequest Request = ScrollRequest.GetValue();
	ScrollRequest.Reset();
	const int32 Index = FindIndex(Request.Key, FirstShown);
	if (Index == INDEX_NONE)
	{
		return;
	}
	const float View = GetView();
	const bool bBefore = Index < FirstShown || (Index == FirstShown && Begin < 0.0f);
	float End = Begin;
	for (int32 Place = 0; Place < Shown.Num() && FirstShown + Place <= Index; ++Place)
	{
		End += Shown[Place].Length;
	}
	const bool bBehind = Index >= FirstShown + Shown.Num() || End > View;
	if (bBefore || bBehind)
	{
		Host::FListFill Fill(*this, View);
		if (bBefore)
		{
			Fill.Jump(Index);
		}
		else
		{
			Fill.JumpToEndOf(Index);
		}
		TakeRows(Fill);
	}
	if (Request.bNavigate)
	{
		Selector = MakeMark(Index);
		Anchor = Selector;
		FSlateApplication::Get().SetUserFocus(0, AsShared(), EFocusCause::Navigation);
		bShowsFocus = HasKeyboardFocus();
		UpdateRowStates();
	}
	const int32 Place = Index - FirstShown;
	if (Shown.IsValidIndex(Place) && Shown[Place].Row.IsValid())
	{
		SignalScrolledIntoView(Index, Shown[Place].Row.ToSharedRef());
	}
}

// Items.

int32 STableViewBase::FindIndex(const void* Key, int32 Hint) const
{
	if (!Key)
	{
		return INDEX_NONE;
	}
	if (Hint != INDEX_NONE && GetItemKey(Hint) == Key)
	{
		return Hint;
	}
	for (int32 Index = 0, Num = GetNumItemsBeingObserved(); Index < Num; ++Index)
	{
		if (GetItemKey(Index) == Key)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

void STableViewBase::FillRowState(int32 Index, Host::FTableRowState& OutState) const
{
	OutState.bSelected = IsSelectedAt(Index);
	OutState.bShowsFocus = bShowsFocus && Selector.Key == GetItemKey(Index);
}

void STableViewBase::UpdateRowStates()
{
	for (int32 Place = 0; Place < Shown.Num(); ++Place)
	{
		const int32 Index = FirstShown + Place;
		// Items that moved since are for the refresh.
		if (const TSharedPtr<ITableRow> Row = Shown[Place].Row; Row.IsValid() && Shown[Place].Key == GetItemKey(Index))
		{
			UpdateRowState(*Row, Index);
		}
	}
}

void STableViewBase::UpdateRowState(ITableRow& Row, int32 Index) const
{
	Host::FTableRowState State;
	FillRowState(Index, State);
	Row.SetRowState(State);
}
