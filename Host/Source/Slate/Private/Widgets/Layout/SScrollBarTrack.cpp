#include "Widgets/Layout/SScrollBarTrack.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/Oriented.h"

namespace
{
	/** Length in slate units below which a thumb is hard to take. */
	constexpr float MinThumbLength = 24.0f;

	enum ETrackSlot
	{
		TrackSlot_Before,
		TrackSlot_Thumb,
		TrackSlot_Behind,
	};
}

SScrollBarTrack::SScrollBarTrack()
	: Slots(this)
{
}

void SScrollBarTrack::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	for (const TSharedRef<SWidget>& Widget : {InArgs._TopSlot.Widget, InArgs._ThumbSlot.Widget, InArgs._BottomSlot.Widget})
	{
		FSlot::FSlotArguments Arguments(MakeUnique<FSlot>());
		Arguments.AttachWidget(Widget);
		Slots.AddSlot(MoveTemp(Arguments));
	}
}

bool SScrollBarTrack::SetSizes(float InThumbOffsetFraction, float InThumbSizeFraction)
{
	const float NewSize = FMath::Clamp(InThumbSizeFraction, 0.0f, 1.0f);
	const float NewOffset = FMath::Clamp(InThumbOffsetFraction, 0.0f, 1.0f - NewSize);
	if (OffsetFraction == NewOffset && ThumbSizeFraction == NewSize)
	{
		return false;
	}
	OffsetFraction = NewOffset;
	ThumbSizeFraction = NewSize;
	// Owners learn the sizes while they are arranged themselves; the track must follow in the same pass.
	Invalidate(EInvalidateWidgetReason::ChildOrder);
	return true;
}

void SScrollBarTrack::ComputeThumb(float TrackLength, float& OutBegin, float& OutLength) const
{
	OutLength = FMath::Clamp(ThumbSizeFraction * TrackLength, FMath::Min(MinThumbLength, TrackLength), TrackLength);
	const float HiddenFraction = 1.0f - ThumbSizeFraction;
	OutBegin = HiddenFraction > 0.0f ? OffsetFraction / HiddenFraction * (TrackLength - OutLength) : 0.0f;
}

float SScrollBarTrack::OffsetFractionAt(float ThumbBegin, float TrackLength) const
{
	float Begin = 0.0f;
	float Length = 0.0f;
	ComputeThumb(TrackLength, Begin, Length);
	const float Way = TrackLength - Length;
	return Way > 0.0f ? FMath::Clamp(ThumbBegin / Way, 0.0f, 1.0f) * (1.0f - ThumbSizeFraction) : 0.0f;
}

FVector2D SScrollBarTrack::ComputeDesiredSize(float) const
{
	FVector2f Wanted = FVector2f::ZeroVector;
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FVector2f Size(Slots[Index].GetWidget()->GetDesiredSize());
		Wanted = FVector2f(FMath::Max(Wanted.X, Size.X), FMath::Max(Wanted.Y, Size.Y));
	}
	return FVector2D(Host::OrientedVector(Orientation, MinThumbLength, Host::Along(Wanted, Host::Across(Orientation))));
}

void SScrollBarTrack::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2f Size(AllottedGeometry.GetLocalSize());
	const float Length = Host::Along(Size, Orientation);
	const float Thickness = Host::Along(Size, Host::Across(Orientation));
	float ThumbBegin = 0.0f;
	float ThumbLength = 0.0f;
	ComputeThumb(Length, ThumbBegin, ThumbLength);

	const auto Arrange = [&](ETrackSlot Slot, float Begin, float SlotLength)
	{
		const TSharedRef<SWidget>& Child = Slots[Slot].GetWidget();
		ArrangedChildren.AddWidget(Child->GetVisibility(),
			AllottedGeometry.MakeChild(Child, Host::OrientedVector(Orientation, Begin, 0.0f), Host::OrientedVector(Orientation, SlotLength, Thickness)));
	};
	Arrange(TrackSlot_Before, 0.0f, ThumbBegin);
	Arrange(TrackSlot_Behind, ThumbBegin + ThumbLength, FMath::Max(Length - ThumbBegin - ThumbLength, 0.0f));
	if (IsNeeded())
	{
		Arrange(TrackSlot_Thumb, ThumbBegin, ThumbLength);
	}
}
