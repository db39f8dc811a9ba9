#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Templates/UniquePtr.h"
#include "Types/SlateAttribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

namespace Host
{
	class FGridTracks;
}

/**
 * Places children in columns and rows. A column is as wide as its widest child wants, or takes a share of the width
 * that is left when it was made to fill; rows likewise. Children may lie over several cells, and over each other in
 * layers.
 */
class SLATE_API SGridPanel : public SPanel
{
public:
	/** Columns and rows at most: content that asks for others gets the nearest one, instead of all memory. */
	static constexpr int32 MaxTracks = 4096;

	class SLATE_API FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		FSlot(int32 InColumn, int32 InRow, int32 InLayer);

		SLATE_SLOT_BEGIN_ARGS(FSlot, TBasicLayoutWidgetSlot<FSlot>)
			/** Columns that the child lies over; 1 by default. */
			FSlotArguments& ColumnSpan(int32 InColumnSpan)
			{
				GetSlot()->ColumnSpan = FMath::Clamp(InColumnSpan, 1, MaxTracks);
				return Me();
			}

			FSlotArguments& RowSpan(int32 InRowSpan)
			{
				GetSlot()->RowSpan = FMath::Clamp(InRowSpan, 1, MaxTracks);
				return Me();
			}

			/** Moves the child off its place, without effect on others. */
			FSlotArguments& Nudge(const FVector2D& InNudge)
			{
				GetSlot()->Nudge = InNudge;
				return Me();
			}
		SLATE_SLOT_END_ARGS()

		int32 GetColumn() const { return Column; }
		void SetColumn(int32 InColumn);
		int32 GetColumnSpan() const { return ColumnSpan; }
		void SetColumnSpan(int32 InColumnSpan);
		int32 GetRow() const { return Row; }
		void SetRow(int32 InRow);
		int32 GetRowSpan() const { return RowSpan; }
		void SetRowSpan(int32 InRowSpan);
		int32 GetLayer() const { return Layer; }
		void SetLayer(int32 InLayer);
		FVector2D GetNudge() const { return Nudge; }
		void SetNudge(const FVector2D& InNudge);

	private:
		void SetCell(int32& Value, int32 NewValue);
		void SetSpan(int32& Value, int32 NewValue);

		int32 Column;
		int32 ColumnSpan = 1;
		int32 Row;
		int32 RowSpan = 1;
		int32 Layer;
		FVector2D Nudge = FVector2D::ZeroVector;
	};

	/** Names the layer of a slot where a plain number could be taken for something else. */
	struct Layer
	{
		explicit Layer(int32 InLayer) : TheLayer(InLayer) {}

		int32 TheLayer;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	/** A slot at a cell. Higher layers are drawn over lower ones, and hit first. */
	static FSlot::FSlotArguments Slot(int32 Column, int32 Row, Layer InLayer = Layer(0));

	SLATE_BEGIN_ARGS(SGridPanel)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)

		/** Makes a column take a share of the width that is left, in proportion to the coefficients of the others. */
		FArguments& FillColumn(int32 ColumnId, const TAttribute<float>& Coefficient)
		{
			SetFillArgument(ColFillCoefficients, ColumnId, Coefficient);
			return *this;
		}

		FArguments& FillRow(int32 RowId, const TAttribute<float>& Coefficient)
		{
			SetFillArgument(RowFillCoefficients, RowId, Coefficient);
			return *this;
		}

		TArray<TAttribute<float>> ColFillCoefficients;
		TArray<TAttribute<float>> RowFillCoefficients;
	SLATE_END_ARGS()

	SGridPanel();
	virtual ~SGridPanel() override;
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot(int32 Column, int32 Row, Layer InLayer = Layer(0));
	/** False when the widget is not in the panel. */
	bool RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();

	/** A coefficient of 0 makes the column as wide as its content again. */
	void SetColumnFill(int32 ColumnId, const TAttribute<float>& Coefficient);
	void SetRowFill(int32 RowId, const TAttribute<float>& Coefficient);
	void ClearFill();

	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** Coefficients in places that do not move, so that they can be bound to getters. */
	using FFills = TArray<TUniquePtr<float>>;

	static void SetFillArgument(TArray<TAttribute<float>>& Coefficients, int32 Track, const TAttribute<float>& Coefficient);
	int32 PlaceFor(int32 InLayer) const;
	void SortByLayer();
	void SetFill(FFills& Fills, int32 Track, const TAttribute<float>& Coefficient);
	void ClearFills(FFills& Fills);
	void Measure() const;

	TPanelChildren<FSlot> Slots;
	FFills ColumnFills;
	FFills RowFills;
	TUniquePtr<Host::FGridTracks> Columns;
	TUniquePtr<Host::FGridTracks> Rows;
};
