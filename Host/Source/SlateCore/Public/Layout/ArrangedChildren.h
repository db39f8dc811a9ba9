#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

/** Takes the children of a widget as it arranges them, in paint order, and leaves out those of unwanted visibility. */
class FArrangedChildren
{
public:
	using FArrangedWidgetArray = TArray<FArrangedWidget, TInlineAllocator<4>>;

	explicit FArrangedChildren(EVisibility InVisibilityFilter) : VisibilityFilter(InVisibilityFilter) {}

	EVisibility GetFilter() const { return VisibilityFilter; }
	bool Accepts(EVisibility InVisibility) const { return EVisibility::DoesVisibilityPassFilter(InVisibility, VisibilityFilter); }

	void AddWidget(const FArrangedWidget& InWidgetGeometry) { Array.Add(InWidgetGeometry); }

	/** Adds the widget when its visibility passes the filter. */
	void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Add(InWidgetGeometry);
		}
	}

	void InsertWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry, int32 Index)
	{
		if (Accepts(VisibilityOverride))
		{
			Array.Insert(InWidgetGeometry, Index);
		}
	}

	void SetFilter(EVisibility InFilter) { VisibilityFilter = InFilter; }
	void Empty() { Array.Reset(); }

	int32 Num() const { return Array.Num(); }
	bool IsValidIndex(int32 Index) const { return Array.IsValidIndex(Index); }
	const FArrangedWidget& operator[](int32 Index) const { return Array[Index]; }
	FArrangedWidget& operator[](int32 Index) { return Array[Index]; }
	const FArrangedWidgetArray& GetInternalArray() const { return Array; }
	FArrangedWidgetArray& GetInternalArray() { return Array; }

private:
	EVisibility VisibilityFilter;
	FArrangedWidgetArray Array;
};
