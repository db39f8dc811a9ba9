#include "Layout/Children.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

TSharedRef<const SWidget> FChildren::GetChildAt(int32 Index) const
{
	return GetSlotAt(Index).GetWidget();
}

const FSlotBase& FNoChildren::GetSlotAt(int32 ChildIndex) const
{
	checkf(false, TEXT("a widget without children was asked for child %d"), ChildIndex);
	static const FSlotBase Unused;
	return Unused;
}

bool Host::IsNullWidget(const TSharedRef<SWidget>& Widget)
{
	return Widget == SNullWidget::NullWidget;
}
