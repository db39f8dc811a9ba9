#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class SWidget;

namespace Host
{
	/** What a row shows of its item's standing in the list. The list hands it over whenever it may be another one. */
	struct FTableRowState
	{
		/** Steps from the items of the top level; lists without levels have 0. */
		int32 IndentLevel = 0;
		bool bSelected = false;
		bool bExpanded = false;
		bool bHasChildren = false;
		/** Keys go from here, and the list has the focus by them. */
		bool bShowsFocus = false;

		bool operator==(const FTableRowState&) const = default;
	};
}

/** A row of a list: a widget that shows one item. */
class ITableRow
{
public:
	virtual ~ITableRow() = default;

	/** The row comes into the list. */
	virtual void InitializeRow() = 0;
	/** The row leaves the list. */
	virtual void ResetRow() = 0;

	/** Where the item stands among those of the list. */
	virtual void SetIndexInList(int32 InIndexInList) = 0;
	virtual int32 GetIndexInList() = 0;

	virtual void SetRowState(const Host::FTableRowState& InState) = 0;
	virtual bool IsItemSelected() const = 0;
	virtual bool IsItemExpanded() const = 0;
	virtual int32 GetIndentLevel() const = 0;
	virtual bool DoesItemHaveChildren() const = 0;
	/** Opens or closes the item, in a tree. */
	virtual void ToggleExpansion() = 0;

	virtual TSharedRef<SWidget> AsWidget() = 0;
	/** What the row shows. */
	virtual TSharedPtr<SWidget> GetContent() = 0;
};
