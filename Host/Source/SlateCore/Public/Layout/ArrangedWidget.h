#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"

class SWidget;

/** A widget and its place. */
class SLATECORE_API FArrangedWidget
{
public:
	FArrangedWidget(TSharedRef<SWidget> InWidget, const FGeometry& InGeometry) : Geometry(InGeometry), Widget(MoveTemp(InWidget)) {}

	static const FArrangedWidget& GetNullWidget();

	/** True when both are the same widget. */
	bool operator==(const FArrangedWidget& Other) const { return Widget == Other.Widget; }

	SWidget* GetWidgetPtr() const { return &Widget.Get(); }
	FString ToString() const;

	FGeometry Geometry;
	TSharedRef<SWidget> Widget;
};
