#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** Places children one after the other, and begins a new line where the next one would not fit. */
class SLATE_API SWrapBox : public SPanel
{
public:
	class SLATE_API FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		struct FSlotArguments : public TBasicLayoutWidgetSlot<FSlot>::FSlotArguments
		{
			using TBasicLayoutWidgetSlot<FSlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			/** When the whole box is shorter than this along its lines, the child has a line to itself. */
			FSlotArguments& FillLineWhenSizeLessThan(TOptional<float> InFillLineWhenSizeLessThan)
			{
				GetSlot()->FillLineWhenSizeLessThan = InFillLineWhenSizeLessThan;
				return Me();
			}

			/** The child takes what its line leaves, shared evenly with others that do. */
			FSlotArguments& FillEmptySpace(bool bInFillEmptySpace)
			{
				GetSlot()->bFillEmptySpace = bInFillEmptySpace;
				return Me();
			}

			/** The child begins a line. */
			FSlotArguments& ForceNewLine(bool bInForceNewLine)
			{
				GetSlot()->bForceNewLine = bInForceNewLine;
				return Me();
			}
		};

		TOptional<float> GetFillLineWhenSizeLessThan() const { return FillLineWhenSizeLessThan; }
		void SetFillLineWhenSizeLessThan(TOptional<float> InFillLineWhenSizeLessThan);
		bool GetFillEmptySpace() const { return bFillEmptySpace; }
		void SetFillEmptySpace(bool bInFillEmptySpace);
		bool GetForceNewLine() const { return bForceNewLine; }
		void SetForceNewLine(bool bInForceNewLine);

	private:
		TOptional<float> FillLineWhenSizeLessThan;
		bool bFillEmptySpace = false;
		bool bForceNewLine = false;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SWrapBox)
		: _PreferredSize(100.0f)
		, _HAlign(HAlign_Left)
		, _InnerSlotPadding(FVector2D::ZeroVector)
		, _UseAllottedSize(false)
		, _Orientation(Orient_Horizontal)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** Length at which lines wrap, unless UseAllottedSize says otherwise. */
		SLATE_ATTRIBUTE(float, PreferredSize)
		/** Where a line stands that is shorter than the box; fill widens the gaps between its children. */
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		/** Gaps between the children of a line (X) and between lines (Y); the other way round for vertical lines. */
		SLATE_ARGUMENT(FVector2D, InnerSlotPadding)
		/** Lines wrap at the length that the box was given. */
		SLATE_ARGUMENT(bool, UseAllottedSize)
		/** Direction of the lines. */
		SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_END_ARGS()

	SWrapBox();
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot();
	/** Index of the slot that was removed, or INDEX_NONE. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();
	FSlot& GetSlot(int32 SlotIndex) { return Slots[SlotIndex]; }

	void SetInnerSlotPadding(FVector2D InInnerSlotPadding);
	void SetWrapSize(const TAttribute<float>& InWrapSize);
	void SetUseAllottedSize(bool bInUseAllottedSize);
	void SetOrientation(EOrientation InOrientation);
	void SetHorizontalAlignment(TAttribute<EHorizontalAlignment> InHorizontalAlignment);

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** A line: slots from Begin to before End. All lengths are along (X) and across (Y) the orientation. */
	struct FLine
	{
		int32 Begin = 0;
		int32 End = 0;
		int32 NumShown = 0;
		int32 NumFilling = 0;
		FVector2f Size = FVector2f::ZeroVector;
	};

	/** The line that begins at a slot. */
	FLine MeasureLine(int32 Begin, float WrapSize) const;
	FVector2f GetOrientedGap() const;
	/** Wanted size of a slot, oriented; nothing for what takes no room. */
	TOptional<FVector2f> GetOrientedSize(const FSlot& Slot) const;
	bool IsAlone(const FSlot& Slot, float WrapSize) const;
	void ArrangeLine(const FLine& Line, float WrapSize, float LineOffset, const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;

	TPanelChildren<FSlot> Slots;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> PreferredSizeAttribute;
	TSlateAttribute<EHorizontalAlignment, EInvalidateWidgetReason::Layout> HorizontalAlignmentAttribute;
	FVector2D InnerSlotPadding = FVector2D::ZeroVector;
	EOrientation Orientation = Orient_Horizontal;
	/** Of the last arranging, along the lines. */
	float AllottedSize = 0.0f;
	bool bUseAllottedSize = false;
};
