#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** The inside of a scroll bar: the thumb, and what is before and behind it. */
class SLATE_API SScrollBarTrack : public SPanel
{
public:
	class SLATE_API FSlot : public TSlotBase<FSlot>
	{
	};

	SLATE_BEGIN_ARGS(SScrollBarTrack)
		: _Orientation(Orient_Vertical)
	{
	}
		SLATE_NAMED_SLOT(FArguments, TopSlot)
		SLATE_NAMED_SLOT(FArguments, ThumbSlot)
		SLATE_NAMED_SLOT(FArguments, BottomSlot)
		SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_END_ARGS()

	SScrollBarTrack();
	void Construct(const FArguments& InArgs);

	/** Shares of the whole content: before the view, and in view. True when they are other ones than before. */
	bool SetSizes(float InThumbOffsetFraction, float InThumbSizeFraction);

	bool IsNeeded() const { return ThumbSizeFraction < 1.0f - KINDA_SMALL_NUMBER; }
	float DistanceFromTop() const { return OffsetFraction; }
	float DistanceFromBottom() const { return 1.0f - (OffsetFraction + ThumbSizeFraction); }
	float GetThumbSizeFraction() const { return ThumbSizeFraction; }

	/** Place and length of the thumb on a track of some length. A thumb is never too short to be taken. */
	void ComputeThumb(float TrackLength, float& OutBegin, float& OutLength) const;
	/** The offset fraction that puts the begin of the thumb at a place on a track of some length. */
	float OffsetFractionAt(float ThumbBegin, float TrackLength) const;

	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** Before the thumb, the thumb, behind it. */
	TPanelChildren<FSlot> Slots;
	float OffsetFraction = 0.0f;
	float ThumbSizeFraction = 1.0f;
	EOrientation Orientation = Orient_Vertical;
};
