#include "Widgets/Layout/SScrollBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/DragScroll.h"
#include "Layout/Oriented.h"
#include "Layout/ScrollState.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SScrollPanel.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"

namespace
{
	/** Way over which a shadow fades in, in slate units. */
	constexpr float ShadowFadeDistance = 32.0f;

	void ShowShadow(SImage& Shadow, float HiddenDistance)
	{
		const float Opacity = FMath::Clamp(HiddenDistance / ShadowFadeDistance, 0.0f, 1.0f);
		Shadow.SetColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, Opacity)));
		Shadow.SetVisibility(Opacity > 0.0f ? EVisibility::HitTestInvisible : EVisibility::Hidden);
	}
}

SScrollBox::SScrollBox()
	: Scroll(MakeUnique<Host::FScrollState>())
	, Drag(MakeUnique<Host::FDragScroll>())
{
}

SScrollBox::~SScrollBox() = default;

bool SScrollBox::IsRightClickScrolling() const
{
	return Drag->IsDragging();
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FScrollBoxStyle::GetDefault();
	ScrollBarStyle = InArgs._ScrollBarStyle ? InArgs._ScrollBarStyle : &FScrollBarStyle::GetDefault();
	OnUserScrolled = InArgs._OnUserScrolled;
	Orientation = InArgs._Orientation;
	ScrollBarVisibility = InArgs._ScrollBarVisibility;
	ScrollBarThickness = InArgs._ScrollBarThickness;
	ScrollBarPadding = InArgs._ScrollBarPadding;
	bScrollBarAlwaysVisible = InArgs._ScrollBarAlwaysVisible;
	bAnimateWheelScrolling = InArgs._AnimateWheelScrolling;
	WheelScrollMultiplier = InArgs._WheelScrollMultiplier;
	NavigationDestination = InArgs._NavigationDestination;
	NavigationScrollPadding = InArgs._NavigationScrollPadding;
	ScrollWhenFocusChanges = InArgs._ScrollWhenFocusChanges;
	ConsumeMouseWheel = InArgs._ConsumeMouseWheel;
	bIsFocusable = InArgs._IsFocusable;

	SAssignNew(ScrollPanel, SScrollPanel, MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
	bScrollBarIsExternal = InArgs._ExternalScrollbar.IsValid();
	if (bScrollBarIsExternal)
	{
		ScrollBar = InArgs._ExternalScrollbar;
		ScrollBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SScrollBox::HandleScrollBarMoved));
	}
	SAssignNew(ShadowBefore, SImage).Visibility(EVisibility::Hidden);
	SAssignNew(ShadowBehind, SImage).Visibility(EVisibility::Hidden);
	Build();
}

SScrollBox::FSlot::FSlotArguments SScrollBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::AddSlot()
{
	return InsertSlot(INDEX_NONE);
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::InsertSlot(int32 Index)
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), ScrollPanel->GetSlots(), Index);
}

void SScrollBox::RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove)
{
	ScrollPanel->GetSlots().Remove(WidgetToRemove);
}

void SScrollBox::ClearChildren()
{
	ScrollPanel->GetSlots().Empty();
}

float SScrollBox::GetScrollOffset() const
{
	return Scroll->GetOffset();
}

void SScrollBox::SetScrollOffset(float NewScrollOffset)
{
	EndInertialScrolling();
	if (Scroll->SetOffset(NewScrollOffset))
	{
		ApplyOffset();
	}
}

float SScrollBox::GetScrollOffsetOfEnd() const
{
	return Scroll->GetEndOffset();
}

float SScrollBox::GetViewFraction() const
{
	return Scroll->GetViewFraction();
}

float SScrollBox::GetViewOffsetFraction() const
{
	return Scroll->GetOffsetFraction();
}

void SScrollBox::ScrollToStart()
{
	SetScrollOffset(0.0f);
}

void SScrollBox::ScrollToEnd()
{
	EndInertialScrolling();
	Scroll->RequestEnd();
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SScrollBox::EndInertialScrolling()
{
	Drag->StopMotion();
	MotionTarget.Reset();
}

void SScrollBox::ScrollDescendantIntoView(
	const TSharedPtr<SWidget>& WidgetToScrollIntoView, bool InAnimateScroll, EDescendantScrollDestination InDestination, float InScrollPadding)
{
	if (WidgetToScrollIntoView.IsValid())
	{
		ScrollRequest = FScrollIntoViewRequest{WidgetToScrollIntoView, InDestination, InScrollPadding, InAnimateScroll};
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScrollBox::SetOrientation(EOrientation InOrientation)
{
	if (Orientation != InOrientation)
	{
		Orientation = InOrientation;
		Build();
	}
}

void SScrollBox::SetStyle(const FScrollBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &FScrollBoxStyle::GetDefault();
	InvalidateStyle();
}

void SScrollBox::SetScrollBarStyle(const FScrollBarStyle* InStyle)
{
	ScrollBarStyle = InStyle ? InStyle : &FScrollBarStyle::GetDefault();
	ScrollBar->SetStyle(ScrollBarStyle);
}

void SScrollBox::InvalidateStyle()
{
	const bool bVertical = Orientation == Orient_Vertical;
	ScrollPanel->SetContentPadding(bVertical ? Style->VerticalScrolledContentPadding : Style->HorizontalScrolledContentPadding);
	ShadowBefore->SetImage(bVertical ? &Style->TopShadowBrush : &Style->LeftShadowBrush);
	ShadowBehind->SetImage(bVertical ? &Style->BottomShadowBrush : &Style->RightShadowBrush);
	if (!bScrollBarIsExternal && !ScrollBarThickness.IsSet())
	{
		ScrollBar->SetThickness(FVector2D(Style->BarThickness, Style->BarThickness));
	}
}

void SScrollBox::InvalidateScrollBarStyle()
{
	ScrollBar->InvalidateStyle();
}

void SScrollBox::SetScrollBarVisibility(EVisibility InVisibility)
{
	ScrollBarVisibility = InVisibility;
	ScrollBar->SetUserVisibility(InVisibility);
}

void SScrollBox::SetScrollBarAlwaysVisible(bool InAlwaysVisible)
{
	bScrollBarAlwaysVisible = InAlwaysVisible;
	ScrollBar->SetScrollBarAlwaysVisible(InAlwaysVisible);
}

void SScrollBox::SetScrollBarThickness(FVector2D InThickness)
{
	ScrollBarThickness = InThickness;
	ScrollBar->SetThickness(InThickness);
}

void SScrollBox::SetScrollBarPadding(const FMargin& InPadding)
{
	ScrollBarPadding = InPadding;
	ScrollBar->SetPadding(InPadding);
}

void SScrollBox::Build()
{
	ChildSlot.DetachWidget();
	MakeScrollBar();
	const bool bVertical = Orientation == Orient_Vertical;
	const TSharedRef<SWidget> View = SNew(SOverlay)
		.Clipping(EWidgetClipping::ClipToBounds)
		+ SOverlay::Slot()
		[
			ScrollPanel.ToSharedRef()
		]
		+ SOverlay::Slot()
		.HAlign(bVertical ? HAlign_Fill : HAlign_Left)
		.VAlign(bVertical ? VAlign_Top : VAlign_Fill)
		[
			ShadowBefore.ToSharedRef()
		]
		+ SOverlay::Slot()
		.HAlign(bVertical ? HAlign_Fill : HAlign_Right)
		.VAlign(bVertical ? VAlign_Bottom : VAlign_Fill)
		[
			ShadowBehind.ToSharedRef()
		];
	const TSharedRef<SWidget> Bar = bScrollBarIsExternal ? SNullWidget::NullWidget : StaticCastSharedRef<SWidget>(ScrollBar.ToSharedRef());
	if (bVertical)
	{
		ChildSlot
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot().FillWidth(1.0f)[View]
			+ SHorizontalBox::Slot().AutoWidth()[Bar]
		];
	}
	else
	{
		ChildSlot
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().FillHeight(1.0f)[View]
			+ SVerticalBox::Slot().AutoHeight()[Bar]
		];
	}
	ScrollPanel->SetOrientation(Orientation);
	InvalidateStyle();
}

void SScrollBox::MakeScrollBar()
{
	if (bScrollBarIsExternal)
	{
		return;
	}
	SAssignNew(ScrollBar, SScrollBar)
		.Style(ScrollBarStyle)
		.Orientation(Orientation)
		.Padding(ScrollBarPadding)
		.AlwaysShowScrollbar(bScrollBarAlwaysVisible)
		.Thickness(ScrollBarThickness.Get(FVector2D(Style->BarThickness, Style->BarThickness)))
		.OnUserScrolled(FOnUserScrolled::CreateSP(this, &SScrollBox::HandleScrollBarMoved));
	ScrollBar->SetUserVisibility(ScrollBarVisibility);
}

void SScrollBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// Other geometries are questions what would be where, and change nothing.
	if (AllottedGeometry == GetCachedGeometry())
	{
		const_cast<SScrollBox*>(this)->UpdateFromLayout(AllottedGeometry);
	}
	SCompoundWidget::OnArrangeChildren(AllottedGeometry, ArrangedChildren);
}

void SScrollBox::UpdateFromLayout(const FGeometry& AllottedGeometry)
{
	const FVector2f Content(ScrollPanel->GetDesiredSize());
	const FVector2f View(AllottedGeometry.GetLocalSize());
	Scroll->SetSizes(Host::Along(Content, Orientation), Host::Along(View, Orientation));
	ResolveScrollRequest();
	ApplyOffset();
}

void SScrollBox::ResolveScrollRequest()
{
	if (!ScrollRequest.IsSet())
	{
		return;
	}
	const FScrollIntoViewRequest Request = ScrollRequest.GetValue();
	ScrollRequest.Reset();
	TSharedPtr<SWidget> Descendant = Request.Descendant.Pin();

	// From the descendant up to the child of the panel that it is in.
	TArray<TSharedRef<SWidget>> Path;
	while (Descendant.IsValid() && Descendant != ScrollPanel)
	{
		Path.Add(Descendant.ToSharedRef());
		Descendant = Descendant->GetParentWidget();
	}
	if (!Descendant.IsValid() || Path.IsEmpty())
	{
		return;
	}
	const int32 SlotIndex = ScrollPanel->GetSlots().IndexOf(Path.Last());
	if (SlotIndex == INDEX_NONE)
	{
		return;
	}

	// It may be out of view, and so without a place by the last layout: it is asked for on the way down.
	const FGeometry Unscrolled = FGeometry::MakeRoot(ScrollPanel->GetCachedGeometry().GetLocalSize(), FSlateLayoutTransform());
	FGeometry Geometry = ScrollPanel->ArrangeSlot(SlotIndex, Unscrolled, 0.0f).Geometry;
	for (int32 Depth = Path.Num() - 2; Depth >= 0; --Depth)
	{
		FArrangedChildren Arranged(EVisibility::Visible);
		Path[Depth + 1]->ArrangeChildren(Geometry, Arranged);
		const FArrangedWidget* Found = Arranged.GetInternalArray().FindByPredicate([&Path, Depth](const FArrangedWidget& Child) { return Child.Widget == Path[Depth]; });
		if (!Found)
		{
			return;
		}
		Geometry = Found->Geometry;
	}
	const FVector2f Begin = Geometry.GetAccumulatedLayoutTransform().GetTranslation();
	const FVector2f Length = FVector2f(Geometry.GetLocalSize()) * Geometry.Scale;
	const float Target = ComputeOffsetFor(Host::Along(Begin, Orientation), Host::Along(Length, Orientation), Request.Destination, Request.Padding);
	if (Request.bAnimate)
	{
		AnimateTo(Target);
	}
	else
	{
		EndInertialScrolling();
		Scroll->SetOffset(Target);
	}
}

float SScrollBox::ComputeOffsetFor(float Begin, float Length, EDescendantScrollDestination Destination, float Padding) const
{
	const float View = Scroll->GetViewSize();
	const float ToBegin = Begin - Padding;
	const float ToEnd = Begin + Length + Padding - View;
	switch (Destination)
	{
	case EDescendantScrollDestination::TopOrLeft:
		return ToBegin;
	case EDescendantScrollDestination::Center:
		return Begin + (Length - View) * 0.5f;
	case EDescendantScrollDestination::BottomOrRight:
		return ToEnd;
	default:
		// Of what is longer than the view, the begin is shown.
		return Scroll->GetOffset() > ToBegin || ToEnd > ToBegin ? ToBegin : FMath::Max(Scroll->GetOffset(), ToEnd);
	}
}

bool SScrollBox::ScrollByUser(float NewOffset)
{
	if (!Scroll->SetOffset(NewOffset))
	{
		return false;
	}
	ApplyOffset();
	const FOnUserScrolled Handler = OnUserScrolled;
	Handler.ExecuteIfBound(Scroll->GetOffset());
	return true;
}

void SScrollBox::AnimateTo(float NewOffset)
{
	Drag->StopMotion();
	MotionTarget = FMath::Clamp(NewOffset, 0.0f, Scroll->GetEndOffset());
	EnsureMotion();
}

void SScrollBox::ApplyOffset()
{
	ScrollPanel->SetOffset(Scroll->GetOffset());
	ScrollBar->SetState(Scroll->GetOffsetFraction(), Scroll->GetViewFraction());
	UpdateShadows();
}

void SScrollBox::UpdateShadows()
{
	ShowShadow(*ShadowBefore, Scroll->GetOffset());
	ShowShadow(*ShadowBehind, Scroll->GetEndOffset() - Scroll->GetOffset());
}

void SScrollBox::HandleScrollBarMoved(float OffsetFraction)
{
	EndInertialScrolling();
	ScrollByUser(OffsetFraction * Scroll->GetContentSize());
}
