#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "SlateWidgetStyle.generated.h"

struct FSlateBrush;

/** Base of the structures that hold the look of a kind of widget. */
USTRUCT()
struct SLATECORE_API FSlateWidgetStyle
{
	GENERATED_BODY()

	FSlateWidgetStyle() = default;
	FSlateWidgetStyle(const FSlateWidgetStyle&) = default;
	FSlateWidgetStyle& operator=(const FSlateWidgetStyle&) = default;
	virtual ~FSlateWidgetStyle() = default;

	/** The brushes of the style. */
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const { (void)OutBrushes; }

	/** Name of the structure, by which a style set tells kinds of styles apart. */
	virtual const FName GetTypeName() const { return TypeName; }
	static const FName TypeName;
};
