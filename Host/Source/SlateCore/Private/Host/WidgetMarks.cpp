#include "Host/SlateRoot.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Layout/Children.h"
#include "Widgets/SNullWidget.h"

namespace Host
{
	bool FWidgetPasses::IsNull(const SWidget& Widget)
	{
		return &Widget == &SNullWidget::NullWidget.Get();
	}

	EWidgetDirt FWidgetPasses::ToChildFlags(EWidgetDirt Dirt)
	{
		EWidgetDirt Flags = EWidgetDirt::None;
		if (EnumHasAnyFlags(Dirt, EWidgetDirt::AnyPrepass))
		{
			Flags |= EWidgetDirt::ChildPrepass;
		}
		if (EnumHasAnyFlags(Dirt, EWidgetDirt::AnyArrange))
		{
			Flags |= EWidgetDirt::ChildArrange;
		}
		if (EnumHasAnyFlags(Dirt, EWidgetDirt::AnyPaint))
		{
			Flags |= EWidgetDirt::ChildPaint;
		}
		return Flags;
	}

	void FWidgetPasses::Enqueue(FWidgetState& Parent, SWidget& Child)
	{
		FWidgetState& State = Child.State;
		if (!State.bQueued)
		{
			State.bQueued = true;
			State.NextDirty = Parent.FirstDirty;
			Parent.FirstDirty = &Child;
		}
	}

	void FWidgetPasses::Inherit(FWidgetState& Parent, SWidget& Child, EWidgetDirt Which)
	{
		const EWidgetDirt Flags = ToChildFlags(Child.State.Dirt & Which);
		if (Flags != EWidgetDirt::None)
		{
			Parent.Dirt |= Flags;
			Enqueue(Parent, Child);
		}
	}

	void FWidgetPasses::Mark(SWidget& Widget, EWidgetDirt Dirt)
	{
		if (IsNull(Widget))
		{
			return;
		}
		Widget.State.Dirt |= Dirt;
		const EWidgetDirt Flags = ToChildFlags(Dirt);
		SWidget* Marked = &Widget;
		while (SWidget* Parent = Marked->State.Parent)
		{
			Enqueue(Parent->State, *Marked);
			if (EnumHasAllFlags(Parent->State.Dirt, Flags))
			{
				return;
			}
			Parent->State.Dirt |= Flags;
			Marked = Parent;
		}
		if (Marked->bIsRoot)
		{
			Marked->GetExtras().Root->RequestFrame();
		}
	}

	void FWidgetPasses::Invalidate(SWidget& Widget, EInvalidateWidgetReason Reason)
	{
		EWidgetDirt Dirt = EWidgetDirt::None;
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::Layout))
		{
			Dirt |= EWidgetDirt::Prepass | EWidgetDirt::Paint;
		}
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::Paint))
		{
			Dirt |= EWidgetDirt::Paint;
		}
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::ChildOrder))
		{
			Dirt |= EWidgetDirt::Prepass | EWidgetDirt::Arrange;
		}
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::RenderTransform))
		{
			Dirt |= EWidgetDirt::Transform;
		}
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::Prepass))
		{
			MarkAllForPrepass(Widget);
			Dirt |= EWidgetDirt::Prepass;
		}
		if (Dirt != EWidgetDirt::None)
		{
			Mark(Widget, Dirt);
		}
		if (EnumHasAnyFlags(Reason, EInvalidateWidgetReason::Visibility))
		{
			ApplyVisibility(Widget);
		}
	}

	void FWidgetPasses::MarkAllForPrepass(SWidget& Widget)
	{
		Widget.GetChildren()->ForEachWidget([](SWidget& Child)
		{
			if (!IsNull(Child))
			{
				Child.State.Dirt |= EWidgetDirt::Prepass;
				MarkAllForPrepass(Child);
			}
		});
	}

	void FWidgetPasses::MarkAllForPaint(SWidget& Widget)
	{
		Widget.GetChildren()->ForEachWidget([](SWidget& Child)
		{
			if (!IsNull(Child))
			{
				Mark(Child, EWidgetDirt::Paint);
				MarkAllForPaint(Child);
			}
		});
	}

	void FWidgetPasses::ApplyVisibility(SWidget& Widget)
	{
		const EVisibility Before = Widget.AppliedVisibility;
		const EVisibility Now = Widget.Visibility;
		Widget.AppliedVisibility = Now;
		SWidget* Parent = Widget.State.Parent;
		if (!Parent)
		{
			return;
		}
		if ((Before == EVisibility::Collapsed) != (Now == EVisibility::Collapsed))
		{
			Mark(*Parent, EWidgetDirt::Prepass | EWidgetDirt::Arrange);
		}
		else if (Before.IsVisible() != Now.IsVisible())
		{
			Mark(*Parent, EWidgetDirt::Arrange);
		}
	}

	void FWidgetPasses::Attach(SWidget& Parent, SWidget& Child)
	{
		checkf(!Child.State.Parent, TEXT("%s has a parent already"), *Child.ToString());
		Child.State.Parent = &Parent;
		Mark(Parent, EWidgetDirt::Prepass | EWidgetDirt::Arrange);
	}

	void FWidgetPasses::Detach(SWidget& Child)
	{
		SWidget& Parent = *Child.State.Parent;
		if (Child.State.bArranged)
		{
			DropFromView(Child);
			UnlinkArranged(Parent.State, Child);
		}
		if (Child.State.bQueued)
		{
			// The parent now looks at all of its children, which puts those with dirt back into the queue.
			EmptyQueue(Parent.State);
			// The painting pass may have taken the queue over.
			Child.State.NextDirty = nullptr;
			Child.State.bQueued = false;
		}
		Child.State.Parent = nullptr;
		Mark(Parent, EWidgetDirt::Prepass | EWidgetDirt::Arrange);
	}

	void FWidgetPasses::UnlinkArranged(FWidgetState& Parent, SWidget& Child)
	{
		SWidget** Link = &Parent.FirstArranged;
		while (*Link && *Link != &Child)
		{
			Link = &(*Link)->State.NextArranged;
		}
		if (*Link)
		{
			*Link = Child.State.NextArranged;
		}
		Child.State.NextArranged = nullptr;
		Child.State.bArranged = false;
	}

	void FWidgetPasses::EmptyQueue(FWidgetState& Parent)
	{
		while (SWidget* Child = Parent.FirstDirty)
		{
			Parent.FirstDirty = Child->State.NextDirty;
			Child->State.NextDirty = nullptr;
			Child->State.bQueued = false;
		}
	}

	void FWidgetPasses::DropFromView(SWidget& Child)
	{
		if (!Child.State.bInView)
		{
			return;
		}
		FSlateRoot* Root = CurrentRoot ? CurrentRoot : FindRoot(Child);
		if (Root)
		{
			DamageTree(Child, *Root);
		}
		Child.State.bInView = false;
	}

	FSlateRoot* FWidgetPasses::FindRoot(const SWidget& Widget)
	{
		const SWidget* Top = &Widget;
		while (Top->State.Parent)
		{
			Top = Top->State.Parent;
		}
		return Top->bIsRoot ? Top->GetExtras().Root : nullptr;
	}

	bool FWidgetPasses::IsInView(const SWidget& Widget)
	{
		const SWidget* Top = &Widget;
		while (Top->State.bInView && Top->State.Parent)
		{
			Top = Top->State.Parent;
		}
		return Top->State.bInView && Top->bIsRoot;
	}
}
