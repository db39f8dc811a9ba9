#pragma once

#include "CoreMinimal.h"
#include "Host/StackSlot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

namespace Host
{
	/** Places children one after the other, without gaps. Made as SHorizontalBox or SVerticalBox. */
	template <typename SlotType, EOrientation Orientation>
	class TBoxPanel : public SPanel
	{
	public:
		using FSlot = SlotType;
		using FScopedWidgetSlotArguments = typename TPanelChildren<SlotType>::FScopedWidgetSlotArguments;

		static typename SlotType::FSlotArguments Slot() { return typename SlotType::FSlotArguments(MakeUnique<SlotType>()); }

		FScopedWidgetSlotArguments AddSlot() { return InsertSlot(INDEX_NONE); }

		/** Adds a slot at an index, at the end for INDEX_NONE. */
		FScopedWidgetSlotArguments InsertSlot(int32 Index) { return FScopedWidgetSlotArguments(MakeUnique<SlotType>(), Children, Index); }

		SlotType& GetSlot(int32 SlotIndex) { return Children[SlotIndex]; }
		const SlotType& GetSlot(int32 SlotIndex) const { return Children[SlotIndex]; }

		/** Index of the slot that was removed, or INDEX_NONE. */
		int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget) { return Children.Remove(SlotWidget); }
		void ClearChildren() { Children.Empty(); }
		int32 NumSlots() const { return Children.Num(); }
		bool IsValidSlotIndex(int32 Index) const { return Children.IsValidIndex(Index); }

		virtual FChildren* GetChildren() override { return &Children; }

	protected:
		TBoxPanel() : Children(this) {}

		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

		TPanelChildren<SlotType> Children;
	};

	/** A slot of a row. */
	class SLATECORE_API FHorizontalBoxSlot : public TStackSlot<FHorizontalBoxSlot>
	{
	public:
		struct FSlotArguments : public TStackSlot<FHorizontalBoxSlot>::FSlotArguments
		{
			using TStackSlot<FHorizontalBoxSlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			FSlotArguments& AutoWidth()
			{
				SizeParam = FAuto();
				return Me();
			}

			/** Share of the width that is left. */
			FSlotArguments& FillWidth(TAttribute<float> InStretchCoefficient)
			{
				SizeParam = FStretch(MoveTemp(InStretchCoefficient));
				return Me();
			}

			FSlotArguments& MinWidth(TAttribute<float> InMinWidth)
			{
				MinSize = MoveTemp(InMinWidth);
				return Me();
			}

			FSlotArguments& MaxWidth(TAttribute<float> InMaxWidth)
			{
				MaxSize = MoveTemp(InMaxWidth);
				return Me();
			}
		};

		void SetAutoWidth() { SetSizeParam(FAuto()); }
		void SetFillWidth(TAttribute<float> InStretchCoefficient) { SetSizeParam(FStretch(MoveTemp(InStretchCoefficient))); }
		void SetMinWidth(TAttribute<float> InMinWidth) { Assign(Sizing.MinSize, InMinWidth); }
		void SetMaxWidth(TAttribute<float> InMaxWidth) { Assign(Sizing.MaxSize, InMaxWidth); }
	};

	/** A slot of a column. */
	class SLATECORE_API FVerticalBoxSlot : public TStackSlot<FVerticalBoxSlot>
	{
	public:
		struct FSlotArguments : public TStackSlot<FVerticalBoxSlot>::FSlotArguments
		{
			using TStackSlot<FVerticalBoxSlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			FSlotArguments& AutoHeight()
			{
				SizeParam = FAuto();
				return Me();
			}

			/** Share of the height that is left. */
			FSlotArguments& FillHeight(TAttribute<float> InStretchCoefficient)
			{
				SizeParam = FStretch(MoveTemp(InStretchCoefficient));
				return Me();
			}

			FSlotArguments& MinHeight(TAttribute<float> InMinHeight)
			{
				MinSize = MoveTemp(InMinHeight);
				return Me();
			}

			FSlotArguments& MaxHeight(TAttribute<float> InMaxHeight)
			{
				MaxSize = MoveTemp(InMaxHeight);
				return Me();
			}
		};

		void SetAutoHeight() { SetSizeParam(FAuto()); }
		void SetFillHeight(TAttribute<float> InStretchCoefficient) { SetSizeParam(FStretch(MoveTemp(InStretchCoefficient))); }
		void SetMinHeight(TAttribute<float> InMinHeight) { Assign(Sizing.MinSize, InMinHeight); }
		void SetMaxHeight(TAttribute<float> InMaxHeight) { Assign(Sizing.MaxSize, InMaxHeight); }
	};
}

/** A row of widgets. */
class SLATECORE_API SHorizontalBox : public Host::TBoxPanel<Host::FHorizontalBoxSlot, Orient_Horizontal>
{
public:
	SLATE_BEGIN_ARGS(SHorizontalBox) {}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
};

/** A column of widgets. */
class SLATECORE_API SVerticalBox : public Host::TBoxPanel<Host::FVerticalBoxSlot, Orient_Vertical>
{
public:
	SLATE_BEGIN_ARGS(SVerticalBox) {}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
};

extern template class Host::TBoxPanel<Host::FHorizontalBoxSlot, Orient_Horizontal>;
extern template class Host::TBoxPanel<Host::FVerticalBoxSlot, Orient_Vertical>;
