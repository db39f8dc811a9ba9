#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/Anchors.h"
#include "Widgets/SPanel.h"

/**
 * Places each child by anchors in the canvas and offsets from them. Children cover each other in the order of their
 * Z order, and among equals in the order in which they were added.
 */
class SLATE_API SConstraintCanvas : public SPanel
{
public:
	class SLATE_API FSlot : public TSlotBase<FSlot>
	{
	public:
		virtual ~FSlot() override;

		struct FSlotArguments : public TSlotBase<FSlot>::FSlotArguments
		{
			using TSlotBase<FSlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			/**
			 * In a direction with one anchor, left (top) is the distance from the anchor and right (bottom) the size; in a direction
			 * that stretches, left and right are the distances from the two anchors. Default: (0, 0, 1, 1).
			 */
			FSlotArguments& Offset(TAttribute<FMargin> InOffset)
			{
				OffsetArgument = MoveTemp(InOffset);
				return Me();
			}

			/** The point of the child that is put at the anchor, in shares of the child's size. Default: (0.5, 0.5), its middle. */
			FSlotArguments& Alignment(TAttribute<FVector2D> InAlignment)
			{
				AlignmentArgument = MoveTemp(InAlignment);
				return Me();
			}

			/** Default: the top left corner of the canvas. */
			FSlotArguments& Anchors(TAttribute<FAnchors> InAnchors)
			{
				AnchorsArgument = MoveTemp(InAnchors);
				return Me();
			}

			/** The child has the size that it wants, whatever the offset says. */
			FSlotArguments& AutoSize(TAttribute<bool> InAutoSize)
			{
				AutoSizeArgument = MoveTemp(InAutoSize);
				return Me();
			}

			/** Higher ones cover lower ones, and are hit first. */
			FSlotArguments& ZOrder(TOptional<float> InZOrder)
			{
				ZOrderArgument = InZOrder;
				return Me();
			}

			TAttribute<FMargin> OffsetArgument;
			TAttribute<FVector2D> AlignmentArgument;
			TAttribute<FAnchors> AnchorsArgument;
			TAttribute<bool> AutoSizeArgument;
			TOptional<float> ZOrderArgument;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

		FMargin GetOffset() const { return Offset; }
		void SetOffset(const TAttribute<FMargin>& InOffset);
		FAnchors GetAnchors() const { return Anchors; }
		void SetAnchors(const TAttribute<FAnchors>& InAnchors);
		FVector2D GetAlignment() const { return Alignment; }
		void SetAlignment(const TAttribute<FVector2D>& InAlignment);
		bool GetAutoSize() const { return bAutoSize; }
		void SetAutoSize(const TAttribute<bool>& InAutoSize);
		float GetZOrder() const { return ZOrder; }
		void SetZOrder(float InZOrder);

	private:
		friend class SConstraintCanvas;

		bool IsDrawnBefore(const FSlot& Other) const { return ZOrder < Other.ZOrder || (ZOrder == Other.ZOrder && AddedOrder < Other.AddedOrder); }

		template <typename ValueType>
		void Assign(ValueType& Value, const TAttribute<ValueType>& Attribute);

		FMargin Offset = FMargin(0.0f, 0.0f, 1.0f, 1.0f);
		FAnchors Anchors = FAnchors(0.0f, 0.0f);
		FVector2D Alignment = FVector2D(0.5, 0.5);
		float ZOrder = 0.0f;
		/** Counts the slots of the canvas as they come. */
		uint32 AddedOrder = 0;
		bool bAutoSize = false;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SConstraintCanvas)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	SConstraintCanvas();
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot();
	/** Index of the slot in the order of drawing, or INDEX_NONE when the widget is not in the canvas. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();

	/** In the order of drawing. */
	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	void PlaceNewSlot(FSlot& Slot);
	void SortByZOrder();

	/** Kept in the order of drawing. */
	TPanelChildren<FSlot> Slots;
	uint32 NextAddedOrder = 1;
};
