#pragma once

#include "CoreMinimal.h"
#include "Widgets/Views/STableViewBase.h"

namespace Host
{
	/** Chooses the rows that a view shows: takes over those that it shows already, makes what is missing, lets go of the others. */
	class FListFill
	{
	public:
		/** @param InView length of the view, in slate units */
		FListFill(STableViewBase& InTable, float InView);

		/** Goes on from the rows that are shown, moved by slate units; false when they are not those of their items any more. */
		bool Scroll(float Units);
		/** Begins the view at an offset in items. */
		void Jump(double Offset);
		/** Ends the view with an item; begins it with it when it is longer than the view. */
		void JumpToEndOf(int32 Index);

		int32 First = 0;
		/** Where the first row begins. */
		float Begin = 0.0f;
		TArray<FShownRow> Rows;

	private:
		float GetEnd() const { return Begin + Length; }
		bool Append();
		bool Prepend();
		void DropFirst();
		void DropLast();
		/** Adds and drops rows until they are those that the view has room for. */
		void Settle();

		/** Starts anew with one row; those of the items around it, up to as many as before, are kept for them. */
		void StartAt(int32 Index, int32 FirstKept);
		FShownRow Obtain(int32 Index);
		void Measure(FShownRow& Row) const;

		STableViewBase& Table;
		/** Rows that were shown, and may be of use. */
		TArray<FShownRow>& Old;
		float View;
		/** Of the rows together. */
		float Length = 0.0f;
	};
}
