#include "Widgets/Layout/SWrapBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Layout/Oriented.h"

void SWrapBox::FSlot::SetFillLineWhenSizeLessThan(TOptional<float> InFillLineWhenSizeLessThan)
{
	if (FillLineWhenSizeLessThan != InFillLineWhenSizeLessThan)
	{
		FillLineWhenSizeLessThan = InFillLineWhenSizeLessThan;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWrapBox::FSlot::SetFillEmptySpace(bool bInFillEmptySpace)
{
	if (bFillEmptySpace != bInFillEmptySpace)
	{
		bFillEmptySpace = bInFillEmptySpace;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWrapBox::FSlot::SetForceNewLine(bool bInForceNewLine)
{
	if (bForceNewLine != bInForceNewLine)
	{
		bForceNewLine = bInForceNewLine;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

SWrapBox::FSlot::FSlotArguments SWrapBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SWrapBox::SWrapBox()
	: Slots(this)
	, PreferredSizeAttribute(*this, 100.0f)
	, HorizontalAlignmentAttribute(*this, HAlign_Left)
{
}

void SWrapBox::Construct(const FArguments& InArgs)
{
	SetWrapSize(InArgs._PreferredSize);
	SetHorizontalAlignment(InArgs._HAlign);
	SetInnerSlotPadding(InArgs._InnerSlotPadding);
	SetUseAllottedSize(InArgs._UseAllottedSize);
	SetOrientation(InArgs._Orientation);
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SWrapBox::FScopedWidgetSlotArguments SWrapBox::AddSlot()
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Slots, INDEX_NONE);
}

int32 SWrapBox::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Slots.Remove(SlotWidget);
}

void SWrapBox::ClearChildren()
{
	Slots.Empty();
}

void SWrapBox::SetInnerSlotPadding(FVector2D InInnerSlotPadding)
{
	if (InnerSlotPadding != InInnerSlotPadding)
	{
		InnerSlotPadding = InInnerSlotPadding;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWrapBox::SetWrapSize(const TAttribute<float>& InWrapSize)
{
	PreferredSizeAttribute.Assign(*this, InWrapSize);
}

void SWrapBox::SetUseAllottedSize(bool bInUseAllottedSize)
{
	if (bUseAllottedSize != bInUseAllottedSize)
	{
		bUseAllottedSize = bInUseAllottedSize;
		// The length is known only after arranging: a tick follows each new geometry within the same frame.
		SetCanTick(bUseAllottedSize);
		AllottedSize = Host::Along(FVector2f(GetTickSpaceGeometry().GetLocalSize()), Orientation);
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWrapBox::SetOrientation(EOrientation InOrientation)
{
	if (Orientation != InOrientation)
	{
		Orientation = InOrientation;
		AllottedSize = Host::Along(FVector2f(GetTickSpaceGeometry().GetLocalSize()), Orientation);
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SWrapBox::SetHorizontalAlignment(TAttribute<EHorizontalAlignment> InHorizontalAlignment)
{
	HorizontalAlignmentAttribute.Assign(*this, InHorizontalAlignment);
}

void SWrapBox::Tick(const FGeometry& AllottedGeometry, const double, const float)
{
	const float Size = Host::Along(FVector2f(AllottedGeometry.GetLocalSize()), Orientation);
	if (AllottedSize != Size)
	{
		AllottedSize = Size;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

FVector2D SWrapBox::ComputeDesiredSize(float) const
{
	const float WrapSize = bUseAllottedSize ? AllottedSize : PreferredSizeAttribute.Get();
	const float LineGap = GetOrientedGap().Y;
	FVector2f Wanted = FVector2f::ZeroVector;
	bool bFirst = true;
	for (int32 Begin = 0; Begin < Slots.Num();)
	{
		const FLine Line = MeasureLine(Begin, WrapSize);
		Begin = Line.End;
		if (Line.NumShown > 0)
		{
			Wanted.X = FMath::Max(Wanted.X, Line.Size.X);
			Wanted.Y += Line.Size.Y + (bFirst ? 0.0f : LineGap);
			bFirst = false;
		}
	}
	return FVector2D(Host::OrientedVector(Orientation, Wanted.X, Wanted.Y));
}

void SWrapBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const float Room = Host::Along(FVector2f(AllottedGeometry.GetLocalSize()), Orientation);
	const float WrapSize = bUseAllottedSize ? Room : PreferredSizeAttribute.Get();
	const float LineGap = GetOrientedGap().Y;
	float LineOffset = 0.0f;
	for (int32 Begin = 0; Begin < Slots.Num();)
	{
		const FLine Line = MeasureLine(Begin, WrapSize);
		Begin = Line.End;
		if (Line.NumShown > 0)
		{
			ArrangeLine(Line, WrapSize, LineOffset, AllottedGeometry, ArrangedChildren);
			LineOffset += Line.Size.Y + LineGap;
		}
	}
}

SWrapBox::FLine SWrapBox::MeasureLine(int32 Begin, float WrapSize) const
{
	// Sums of rounded sizes may exceed by a hair the room that was made for exactly them.
	constexpr float Tolerance = 0.01f;
	const float Gap = GetOrientedGap().X;
	FLine Line;
	Line.Begin = Begin;
	bool bLineIsTaken = false;
	for (Line.End = Begin; Line.End < Slots.Num(); ++Line.End)
	{
		const FSlot& Slot = Slots[Line.End];
		const TOptional<FVector2f> Size = GetOrientedSize(Slot);
		if (!Size.IsSet())
		{
			continue;
		}
		const bool bAlone = IsAlone(Slot, WrapSize);
		const float Length = Line.NumShown > 0 ? Line.Size.X + Gap + Size->X : Size->X;
		if (Line.NumShown > 0 && (bLineIsTaken || bAlone || Slot.GetForceNewLine() || Length > WrapSize + Tolerance))
		{
			break;
		}
		Line.Size = FVector2f(Length, FMath::Max(Line.Size.Y, Size->Y));
		Line.NumFilling += Slot.GetFillEmptySpace() || bAlone ? 1 : 0;
		++Line.NumShown;
		bLineIsTaken = bAlone;
	}
	return Line;
}

FVector2f SWrapBox::GetOrientedGap() const
{
	const FVector2f Gap(InnerSlotPadding);
	return FVector2f(Host::Along(Gap, Orientation), Host::Along(Gap, Host::Across(Orientation)));
}

TOptional<FVector2f> SWrapBox::GetOrientedSize(const FSlot& Slot) const
{
	const TSharedRef<SWidget>& Child = Slot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return TOptional<FVector2f>();
	}
	const FVector2f Size = FVector2f(Child->GetDesiredSize()) + FVector2f(Slot.GetPadding().GetDesiredSize());
	return FVector2f(Host::Along(Size, Orientation), Host::Along(Size, Host::Across(Orientation)));
}

bool SWrapBox::IsAlone(const FSlot& Slot, float WrapSize) const
{
	const TOptional<float> Limit = Slot.GetFillLineWhenSizeLessThan();
	return Limit.IsSet() && WrapSize < Limit.GetValue();
}

void SWrapBox::ArrangeLine(const FLine& Line, float WrapSize, float LineOffset, const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const float Rest = FMath::Max(WrapSize - Line.Size.X, 0.0f);
	const float FillShare = Line.NumFilling > 0 ? Rest / Line.NumFilling : 0.0f;
	const EHorizontalAlignment Alignment = Line.NumFilling > 0 ? HAlign_Left : HorizontalAlignmentAttribute.Get();
	const bool bSpread = Alignment == HAlign_Fill && Line.NumShown > 1;
	const float Gap = GetOrientedGap().X + (bSpread ? Rest / (Line.NumShown - 1) : 0.0f);
	float Offset = Alignment == HAlign_Center ? Rest * 0.5f : Alignment == HAlign_Right ? Rest : 0.0f;

	for (int32 Index = Line.Begin; Index < Line.End; ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TOptional<FVector2f> Size = GetOrientedSize(Slot);
		if (!Size.IsSet())
		{
			continue;
		}
		const float Length = Size->X + (Slot.GetFillEmptySpace() || IsAlone(Slot, WrapSize) ? FillShare : 0.0f);
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (ArrangedChildren.Accepts(Child->GetVisibility()))
		{
			const FVector2f Cell = Host::OrientedVector(Orientation, Length, Line.Size.Y);
			const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Cell.X, Slot, Slot.GetPadding());
			const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Cell.Y, Slot, Slot.GetPadding());
			const FVector2f Place = Host::OrientedVector(Orientation, Offset, LineOffset) + FVector2f(X.Offset, Y.Offset);
			ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, Place, FVector2f(X.Size, Y.Size)));
		}
		Offset += Length + Gap;
	}
}
