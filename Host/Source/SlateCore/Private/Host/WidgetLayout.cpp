#include "Host/SlateCounters.h"
#include "Host/SlateRoot.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"

namespace Host
{
	TArray<TWeakPtr<SWidget>> FWidgetPasses::MovedTickers;

	bool FWidgetPasses::Prepass(SWidget& Widget, float Scale)
	{
		++FSlateCounters::Get().Visited;
		FWidgetState& State = Widget.State;
		const bool bAll = EnumHasAnyFlags(State.Dirt, EWidgetDirt::Prepass) || State.PrepassScale != Scale;
		if (!bAll && !EnumHasAnyFlags(State.Dirt, EWidgetDirt::ChildPrepass))
		{
			return false;
		}
		// Before anything below runs: what is marked from now on is for the next frame.
		State.Dirt &= ~EWidgetDirt::AnyPrepass;
		State.PrepassScale = Scale;
		bool bMeasure = bAll;
		if (!Widget.bHasCustomPrepass || Widget.CustomPrepass(Scale))
		{
			// A custom prepass may have changed the children.
			const bool bChanged = EnumHasAnyFlags(State.Dirt, EWidgetDirt::Prepass);
			State.Dirt &= ~EWidgetDirt::AnyPrepass;
			bMeasure |= bChanged;
			bMeasure |= bAll || bChanged ? PrepassChildren(Widget, Scale) : PrepassDirtyChildren(Widget);
		}
		if (!bMeasure)
		{
			return false;
		}
		++FSlateCounters::Get().Measured;
		State.Dirt |= EWidgetDirt::Arrange;
		const FVector2f Size(Widget.ComputeDesiredSize(Scale));
		if (Size == State.DesiredSize)
		{
			return false;
		}
		State.DesiredSize = Size;
		if (Widget.Clipping == EWidgetClipping::OnDemand)
		{
			// Whether it clips depends on what it wants.
			State.Dirt |= EWidgetDirt::Paint;
		}
		return true;
	}

	bool FWidgetPasses::PrepassChildren(SWidget& Widget, float Scale)
	{
		bool bChanged = false;
		const FChildren& Children = *Widget.GetChildren();
		for (int32 Index = 0, Count = Children.Num(); Index < Count; ++Index)
		{
			SWidget& Child = Children.GetSlotAt(Index).GetWidget().Get();
			if (!IsNull(Child) && Child.Visibility != EVisibility::Collapsed)
			{
				bChanged |= Prepass(Child, Scale * Widget.GetRelativeLayoutScale(Index, Scale));
				Inherit(Widget.State, Child, EWidgetDirt::AnyArrange | EWidgetDirt::AnyPaint);
			}
		}
		return bChanged;
	}

	bool FWidgetPasses::PrepassDirtyChildren(SWidget& Widget)
	{
		bool bChanged = false;
		for (SWidget* Child = Widget.State.FirstDirty; Child; Child = Child->State.NextDirty)
		{
			if (Child->Visibility != EVisibility::Collapsed)
			{
				bChanged |= Prepass(*Child, Child->State.PrepassScale);
				Inherit(Widget.State, *Child, EWidgetDirt::AnyArrange | EWidgetDirt::AnyPaint);
			}
		}
		return bChanged;
	}

	bool FWidgetPasses::Arrange(SWidget& Widget, const FGeometry& Geometry)
	{
		++FSlateCounters::Get().Visited;
		FWidgetState& State = Widget.State;
		const bool bMoved = !(State.Geometry == Geometry);
		if (!bMoved && !EnumHasAnyFlags(State.Dirt, EWidgetDirt::AnyArrange))
		{
			return false;
		}
		const bool bAnew = bMoved || EnumHasAnyFlags(State.Dirt, EWidgetDirt::Arrange);
		State.Dirt &= ~EWidgetDirt::AnyArrange;
		if (bMoved)
		{
			State.Geometry = Geometry;
			State.Dirt |= EWidgetDirt::Paint;
			if (Widget.bCanTick)
			{
				MovedTickers.Add(Widget.AsShared());
			}
		}
		if (bAnew)
		{
			ArrangeAnew(Widget);
		}
		else
		{
			ArrangeDirtyChildren(Widget);
		}
		return bMoved;
	}

	void FWidgetPasses::ArrangeAnew(SWidget& Widget)
	{
		++FSlateCounters::Get().Arranged;
		FWidgetState& State = Widget.State;
		FArrangedChildren Children(EVisibility::Visible);
		Widget.OnArrangeChildren(State.Geometry, Children);
		LinkArranged(Widget, Children);
		for (const FArrangedWidget& Arranged : Children.GetInternalArray())
		{
			SWidget& Child = Arranged.Widget.Get();
			if (IsNull(Child))
			{
				continue;
			}
			if (Arrange(Child, Arranged.Geometry) && !Child.State.bInView)
			{
				// It may have been left out for lying outside; now it may not.
				State.Dirt |= EWidgetDirt::Paint;
			}
			Inherit(State, Child, EWidgetDirt::AnyArrange | EWidgetDirt::AnyPaint);
		}
	}

	void FWidgetPasses::ArrangeDirtyChildren(SWidget& Widget)
	{
		FWidgetState& State = Widget.State;
		for (SWidget* Child = State.FirstDirty; Child; Child = Child->State.NextDirty)
		{
			FWidgetState& ChildState = Child->State;
			if (!ChildState.bArranged)
			{
				continue;
			}
			FGeometry Geometry = ChildState.Geometry;
			if (EnumHasAnyFlags(ChildState.Dirt, EWidgetDirt::Transform))
			{
				Geometry = State.Geometry.MakeChild(Child->AsShared(), Geometry.GetLocalSize(), Geometry.GetLocalLayoutTransform()).Geometry;
			}
			if (Arrange(*Child, Geometry) && !ChildState.bInView)
			{
				State.Dirt |= EWidgetDirt::Paint;
			}
			Inherit(State, *Child, EWidgetDirt::AnyArrange | EWidgetDirt::AnyPaint);
		}
	}

	void FWidgetPasses::LinkArranged(SWidget& Widget, const FArrangedChildren& Children)
	{
		FWidgetState& State = Widget.State;
		const SWidget* Old = State.FirstArranged;
		bool bSame = true;
		for (const FArrangedWidget& Arranged : Children.GetInternalArray())
		{
			const SWidget* Child = Arranged.GetWidgetPtr();
			if (IsNull(*Child))
			{
				continue;
			}
			if (Child != Old)
			{
				bSame = false;
				break;
			}
			Old = Old->State.NextArranged;
		}
		if (bSame && !Old)
		{
			return;
		}

		TArray<SWidget*, TInlineAllocator<16>> Before;
		for (SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			Child->State.bArranged = false;
			Before.Add(Child);
		}
		SWidget** Link = &State.FirstArranged;
		for (const FArrangedWidget& Arranged : Children.GetInternalArray())
		{
			SWidget* Child = Arranged.GetWidgetPtr();
			if (IsNull(*Child))
			{
				continue;
			}
			checkf(Child->State.Parent == &Widget, TEXT("%s arranged %s, which is not a child of it"), *Widget.ToString(), *Child->ToString());
			checkf(!Child->State.bArranged, TEXT("%s arranged %s twice"), *Widget.ToString(), *Child->ToString());
			Child->State.bArranged = true;
			*Link = Child;
			Link = &Child->State.NextArranged;
		}
		*Link = nullptr;
		SWidget* Next = State.FirstArranged;
		for (SWidget* Child : Before)
		{
			if (!Child->State.bArranged)
			{
				Child->State.NextArranged = nullptr;
				DropFromView(*Child);
				continue;
			}
			while (Next && !Next->State.bInView)
			{
				Next = Next->State.NextArranged;
			}
			if (!Child->State.bInView || !Next)
			{
				continue;
			}
			if (Next != Child && CurrentRoot)
			{
				// Another one stands in its place in the order: what lies on top may differ although each is as it was.
				DamageTree(*Child, *CurrentRoot);
				DamageTree(*Next, *CurrentRoot);
			}
			Next = Next->State.NextArranged;
		}
		State.Dirt |= EWidgetDirt::Paint;
	}

	bool FWidgetPasses::GetArrangedFromCache(const SWidget& Widget, const FGeometry& Geometry, FArrangedChildren& ArrangedChildren)
	{
		const FWidgetState& State = Widget.State;
		if (!(ArrangedChildren.GetFilter() == EVisibility::Visible) || EnumHasAnyFlags(State.Dirt, EWidgetDirt::Arrange | EWidgetDirt::Transform | EWidgetDirt::ChildArrange)
			|| !(State.Geometry == Geometry))
		{
			return false;
		}
		for (SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			ArrangedChildren.AddWidget(FArrangedWidget(Child->AsShared(), Child->State.Geometry));
		}
		return true;
	}
}
