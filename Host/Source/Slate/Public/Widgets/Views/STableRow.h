#pragma once

#include "CoreMinimal.h"
#include "Host/TableRowBase.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Views/STableViewBase.h"

/** A row of a list of items of a type: some content, over a background that tells whether the item is hovered and selected. */
template <typename ItemType>
class STableRow : public Host::STableRowBase
{
public:
	SLATE_BEGIN_ARGS(STableRow)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>("TableView.Row"))
		, _Padding(FMargin(0.0f))
		, _ShowSelection(true)
	{
	}
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
		/** Around the content. */
		SLATE_ARGUMENT(FMargin, Padding)
		/** Whether a selected row looks other than the others. */
		SLATE_ARGUMENT(bool, ShowSelection)
		SLATE_DEFAULT_SLOT(typename STableRow<ItemType>::FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView)
	{
		ConstructRow(InOwnerTableView, InArgs._Style, InArgs._Padding, InArgs._ShowSelection, InArgs._Content.Widget);
	}
};
