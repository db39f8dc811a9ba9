#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "Clipping.generated.h"

struct FGeometry;
struct FPaintGeometry;

/** Whether a widget cuts off what its children draw outside of it. */
UENUM(BlueprintType)
enum class EWidgetClipping : uint8
{
	/** Does not clip; ancestors may. */
	Inherit,
	/** Clips to its box, within the clipping of its ancestors. */
	ClipToBounds,
	/** Clips to its box alone: what ancestors clip may show. */
	ClipToBoundsWithoutIntersecting UMETA(DisplayName = "Clip To Bounds - Without Intersecting (Advanced)"),
	/** As ClipToBounds, and descendants cannot escape it. */
	ClipToBoundsAlways UMETA(DisplayName = "Clip To Bounds - Always (Advanced)"),
	/** Clips when its content wants more room than it has. */
	OnDemand UMETA(DisplayName = "On Demand (Advanced)"),
};

/** A box, upright or turned, in window pixels, to which drawing and hitting is cut. */
class SLATECORE_API FSlateClippingZone
{
public:
	FVector2f TopLeft = FVector2f(0.0f, 0.0f);
	FVector2f TopRight = FVector2f(0.0f, 0.0f);
	FVector2f BottomLeft = FVector2f(0.0f, 0.0f);
	FVector2f BottomRight = FVector2f(0.0f, 0.0f);

	explicit FSlateClippingZone(const FSlateRect& AxisAlignedRect);
	/** The box as drawn, render transforms included. */
	explicit FSlateClippingZone(const FGeometry& BoundingGeometry);
	explicit FSlateClippingZone(const FPaintGeometry& PaintGeometry);
	FSlateClippingZone(const FVector2f& InTopLeft, const FVector2f& InTopRight, const FVector2f& InBottomLeft, const FVector2f& InBottomRight);

	bool IsAxisAligned() const;
	/** True when nothing can be inside. */
	bool HasZeroArea() const;
	bool IsPointInside(const FVector2f& Point) const;
	FSlateRect GetBoundingBox() const;

	bool operator==(const FSlateClippingZone& Other) const
	{
		return TopLeft == Other.TopLeft && TopRight == Other.TopRight && BottomLeft == Other.BottomLeft && BottomRight == Other.BottomRight;
	}
};
