#include "SlotBase.h"

#include "Host/WidgetPasses.h"
#include "Layout/Children.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

using Host::FWidgetPasses;

FSlotBase::FSlotArguments::FSlotArguments(TUniquePtr<FSlotBase> InSlot) : Slot(MoveTemp(InSlot)), ChildWidget(SNullWidget::NullWidget)
{
}

FSlotBase::FSlotArguments::FSlotArguments(FSlotArguments&& Other) = default;
FSlotBase::FSlotArguments::~FSlotArguments() = default;

FSlotBase::FSlotBase() : Widget(SNullWidget::NullWidget)
{
}

FSlotBase::FSlotBase(const FChildren& InOwner) : Owner(&InOwner), Widget(SNullWidget::NullWidget)
{
}

FSlotBase::FSlotBase(const TSharedRef<SWidget>& InWidget) : Widget(InWidget)
{
}

FSlotBase::~FSlotBase()
{
	ReleaseParent();
}

SWidget* FSlotBase::GetOwnerWidget() const
{
	return Owner ? &Owner->GetOwner() : nullptr;
}

void FSlotBase::SetOwner(const FChildren& Children)
{
	checkf(!Owner, TEXT("the slot is in a parent already"));
	Owner = &Children;
	AssignParent();
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	if (Widget == InWidget)
	{
		return;
	}
	ReleaseParent();
	Widget = InWidget;
	AssignParent();
}

const TSharedPtr<SWidget> FSlotBase::DetachWidget()
{
	if (FWidgetPasses::IsNull(Widget.Get()))
	{
		return nullptr;
	}
	const TSharedPtr<SWidget> Detached = Widget;
	ReleaseParent();
	Widget = SNullWidget::NullWidget;
	return Detached;
}

void FSlotBase::Invalidate(EInvalidateWidgetReason InvalidateReason)
{
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		OwnerWidget->Invalidate(InvalidateReason);
	}
}

void FSlotBase::AssignParent()
{
	if (!Owner || FWidgetPasses::IsNull(Widget.Get()))
	{
		return;
	}
	if (SWidget* OtherParent = Widget->State.Parent)
	{
		const FChildren& Siblings = *OtherParent->GetChildren();
		for (int32 Index = 0, Count = Siblings.Num(); Index < Count; ++Index)
		{
			const FSlotBase& Slot = Siblings.GetSlotAt(Index);
			if (&Slot != this && Slot.Widget == Widget)
			{
				const_cast<FSlotBase&>(Slot).DetachWidget();
				break;
			}
		}
	}
	FWidgetPasses::Attach(Owner->GetOwner(), Widget.Get());
}

void FSlotBase::ReleaseParent()
{
	if (Owner && !FWidgetPasses::IsNull(Widget.Get()))
	{
		FWidgetPasses::Detach(Widget.Get());
	}
}
