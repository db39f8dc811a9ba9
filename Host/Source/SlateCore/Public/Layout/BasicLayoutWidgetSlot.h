#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Types/SlateAttribute.h"
#include "Types/SlateEnums.h"

/** A slot that aligns its child and keeps it off the edges. */
template <typename SlotType>
class TBasicLayoutWidgetSlot : public TSlotBase<SlotType>
{
public:
	TBasicLayoutWidgetSlot() : TBasicLayoutWidgetSlot(HAlign_Fill, VAlign_Fill) {}
	TBasicLayoutWidgetSlot(EHorizontalAlignment InHAlign, EVerticalAlignment InVAlign) : HorizontalAlignment(InHAlign), VerticalAlignment(InVAlign) {}

	virtual ~TBasicLayoutWidgetSlot() override
	{
		if (SWidget* OwnerWidget = this->GetOwnerWidget())
		{
			Host::FAttributeBindings::Unbind(*OwnerWidget, &SlotPadding);
		}
	}

	struct FSlotArguments : public TSlotBase<SlotType>::FSlotArguments
	{
		using TSlotBase<SlotType>::FSlotArguments::FSlotArguments;
		FSlotArguments(FSlotArguments&&) = default;

		typename SlotType::FSlotArguments& HAlign(EHorizontalAlignment InHAlignment)
		{
			HorizontalAlignment = InHAlignment;
			return this->Me();
		}

		typename SlotType::FSlotArguments& VAlign(EVerticalAlignment InVAlignment)
		{
			VerticalAlignment = InVAlignment;
			return this->Me();
		}

		typename SlotType::FSlotArguments& Padding(TAttribute<FMargin> InPadding)
		{
			SlotPadding = MoveTemp(InPadding);
			return this->Me();
		}

		typename SlotType::FSlotArguments& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
		typename SlotType::FSlotArguments& Padding(float Horizontal, float Vertical) { return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical))); }
		typename SlotType::FSlotArguments& Padding(float Left, float Top, float Right, float Bottom) { return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom))); }

		TOptional<EHorizontalAlignment> HorizontalAlignment;
		TOptional<EVerticalAlignment> VerticalAlignment;
		TAttribute<FMargin> SlotPadding;
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		TSlotBase<SlotType>::Construct(SlotOwner, MoveTemp(InArgs));
		HorizontalAlignment = InArgs.HorizontalAlignment.Get(HorizontalAlignment);
		VerticalAlignment = InArgs.VerticalAlignment.Get(VerticalAlignment);
		if (InArgs.SlotPadding.IsSet())
		{
			SetPadding(InArgs.SlotPadding);
		}
	}

	void SetHorizontalAlignment(EHorizontalAlignment InAlignment)
	{
		if (HorizontalAlignment != InAlignment)
		{
			HorizontalAlignment = InAlignment;
			this->Invalidate(EInvalidateWidgetReason::Layout);
		}
	}

	void SetVerticalAlignment(EVerticalAlignment InAlignment)
	{
		if (VerticalAlignment != InAlignment)
		{
			VerticalAlignment = InAlignment;
			this->Invalidate(EInvalidateWidgetReason::Layout);
		}
	}

	void SetPadding(TAttribute<FMargin> InPadding)
	{
		if (SWidget* OwnerWidget = this->GetOwnerWidget())
		{
			Host::AssignAttribute(*OwnerWidget, SlotPadding, InPadding, EInvalidateWidgetReason::Layout);
		}
		else
		{
			SlotPadding = InPadding.Get(SlotPadding);
		}
	}

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }
	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }
	const FMargin& GetPadding() const { return SlotPadding; }

private:
	FMargin SlotPadding;
	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;
};

/** The one child of a widget, aligned and padded: arguments are given to it as to a slot. */
class FSingleWidgetChildrenWithBasicLayoutSlot : public TSingleWidgetChildrenWithSlot<TBasicLayoutWidgetSlot<FSingleWidgetChildrenWithBasicLayoutSlot>>
{
public:
	using TSingleWidgetChildrenWithSlot::TSingleWidgetChildrenWithSlot;

	FSingleWidgetChildrenWithBasicLayoutSlot& HAlign(EHorizontalAlignment InAlignment)
	{
		SetHorizontalAlignment(InAlignment);
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& VAlign(EVerticalAlignment InAlignment)
	{
		SetVerticalAlignment(InAlignment);
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(TAttribute<FMargin> InPadding)
	{
		SetPadding(MoveTemp(InPadding));
		return *this;
	}

	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(float Horizontal, float Vertical) { return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical))); }
	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(float Left, float Top, float Right, float Bottom) { return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom))); }
};
