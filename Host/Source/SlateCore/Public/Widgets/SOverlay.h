#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** Puts children on top of one another: later ones cover earlier ones, and are hit first. */
class SLATECORE_API SOverlay : public SPanel
{
public:
	class SLATECORE_API FOverlaySlot : public TBasicLayoutWidgetSlot<FOverlaySlot>
	{
	public:
		struct FSlotArguments : public TBasicLayoutWidgetSlot<FOverlaySlot>::FSlotArguments
		{
			using TBasicLayoutWidgetSlot<FOverlaySlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			FSlotArguments& ZOrder(int32 InZOrder)
			{
				SlotZOrder = InZOrder;
				return Me();
			}

			TOptional<int32> SlotZOrder;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

		/** Slots of a higher order cover those of a lower; equal ones stand in the order in which they were added. */
		int32 GetZOrder() const { return ZOrder; }
		void SetZOrder(int32 InOrder);

	private:
		friend class SOverlay;
		int32 ZOrder = 0;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FOverlaySlot>::FScopedWidgetSlotArguments;

	SLATE_BEGIN_ARGS(SOverlay) {}
		SLATE_SLOT_ARGUMENT(FOverlaySlot, Slots)
	SLATE_END_ARGS()

	SOverlay();
	void Construct(const FArguments& InArgs);

	/** Of INDEX_NONE: on top of the others. */
	static FOverlaySlot::FSlotArguments Slot(int32 ZOrder = INDEX_NONE);
	FScopedWidgetSlotArguments AddSlot(int32 ZOrder = INDEX_NONE);

	bool RemoveSlot(const TSharedRef<SWidget>& Widget);
	/** The topmost slot of that order; of INDEX_NONE the topmost of all. */
	void RemoveSlot(int32 ZOrder = INDEX_NONE);
	void ClearChildren() { Children.Empty(); }
	int32 GetNumWidgets() const { return Children.Num(); }

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	/** In the order of drawing. */
	TPanelChildren<FOverlaySlot> Children;

private:
	int32 PlaceFor(int32 ZOrder) const;
};
