#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

namespace Host
{
	/** The rows of a list that are in view, one after the other. It holds no others. */
	class SListPanel : public SPanel
	{
	public:
		class FSlot : public TSlotBase<FSlot>
		{
		};

		SLATE_BEGIN_ARGS(SListPanel) : _Orientation(Orient_Vertical) {}
			SLATE_ARGUMENT(EOrientation, Orientation)
			/** A row wants another size than before. */
			SLATE_EVENT(FSimpleDelegate, OnRowResized)
		SLATE_END_ARGS()

		SListPanel();
		void Construct(const FArguments& InArgs);

		void AddRow(const TSharedRef<SWidget>& Row);
		void RemoveRow(const TSharedRef<SWidget>& Row);
		/** Puts the row at a place among the others. */
		void PlaceRow(const TSharedRef<SWidget>& Row, int32 Index);

		/** Along the orientation; nothing while it is collapsed. */
		float GetRowLength(const SWidget& Row) const;

		/** The scale that the tree measures rows for. */
		float GetMeasureScale() const { return MeasureScale; }

		/** Where the first row begins; negative while its begin is out of view. In slate units, as all lengths. */
		void SetBegin(float InBegin);
		/** The length that all items would take. */
		void SetWantedLength(float InLength);
		/** The rows have the sizes that the list knows of: what differs from now on is told. */
		void NoteRowSizes();

		virtual FChildren* GetChildren() override { return &Slots; }

	protected:
		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	private:
		float SumRowLengths() const;

		TPanelChildren<FSlot> Slots;
		FSimpleDelegate OnRowResized;
		mutable float MeasureScale = 1.0f;
		float Begin = 0.0f;
		float WantedLength = 0.0f;
		/** Sum of the lengths of the rows when they were noted. */
		float NotedLength = 0.0f;
		EOrientation Orientation = Orient_Vertical;
	};
}
