#pragma once

#include "CoreMinimal.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "Geometry.generated.h"

class FArrangedWidget;
class SWidget;

/**
 * Place and size of a widget. Absolute space is that of window pixels. Local units are those of the widget: its top left
 * is (0, 0), and its bottom right the local size. Two transforms lead from local to absolute space: the one of layout, and
 * the one of drawing and hitting, which has the render transforms of the widget and its ancestors in it too.
 */
USTRUCT(BlueprintType)
struct SLATECORE_API FGeometry
{
	GENERATED_BODY()

public:
	/** Size in local units. */
	FVector2f Size = FVector2f(0.0f, 0.0f);

	/** Pixels a local unit, by layout. */
	float Scale = 1.0f;

	/** Top left by layout, in absolute space. */
	FVector2f AbsolutePosition = FVector2f(0.0f, 0.0f);

	/** Top left by layout, in the parent's units. */
	FVector2f Position = FVector2f(0.0f, 0.0f);

	FGeometry() = default;

	/** The geometry of a whole window. */
	static FGeometry MakeRoot(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform);
	static FGeometry MakeRoot(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform, const FSlateRenderTransform& RenderTransform);

	/** A geometry within this one. The pivot of the render transform is in shares of the size. */
	FGeometry MakeChild(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform,
		const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot = FVector2f(0.0f, 0.0f)) const;
	FGeometry MakeChild(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;

	/** As this one, with a render transform besides. */
	FGeometry MakeChild(const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot = FVector2f(0.0f, 0.0f)) const;

	/** A child widget in its place within this geometry, with its render transform. */
	FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;
	FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const UE::Slate::FDeprecateVector2DParameter& ChildOffset,
		const UE::Slate::FDeprecateVector2DParameter& InLocalSize, float ChildScale = 1.0f) const;

	FPaintGeometry ToPaintGeometry() const;
	/** A box within this geometry. */
	FPaintGeometry ToPaintGeometry(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const;
	FPaintGeometry ToPaintGeometry(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& InLayoutTransform,
		const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot = FVector2f(0.0f, 0.0f)) const;
	/** A box of the same size within this geometry. */
	FPaintGeometry ToPaintGeometry(const FSlateLayoutTransform& LayoutTransform) const;

	/** True when the absolute position lies in the drawn box. */
	bool IsUnderLocation(const UE::Slate::FDeprecateVector2DParameter& AbsoluteCoordinate) const;

	/** Undoes the render transforms of the widget and its ancestors. A transform that cannot be undone gives (0, 0). */
	UE::Slate::FDeprecateVector2DResult AbsoluteToLocal(const UE::Slate::FDeprecateVector2DParameter& AbsoluteCoordinate) const;
	UE::Slate::FDeprecateVector2DResult LocalToAbsolute(const UE::Slate::FDeprecateVector2DParameter& LocalCoordinate) const;

	/** In local units. */
	UE::Slate::FDeprecateVector2DResult GetLocalSize() const { return UE::Slate::FDeprecateVector2DResult(Size); }
	/** As drawn, in pixels. */
	UE::Slate::FDeprecateVector2DResult GetAbsoluteSize() const;
	/** By layout, in pixels. */
	UE::Slate::FDeprecateVector2DResult GetDrawSize() const { return UE::Slate::FDeprecateVector2DResult(Size * Scale); }
	/** Top left as drawn. */
	UE::Slate::FDeprecateVector2DResult GetAbsolutePosition() const;
	/** A point as drawn; coordinates are shares of the size. */
	UE::Slate::FDeprecateVector2DResult GetAbsolutePositionAtCoordinates(const UE::Slate::FDeprecateVector2DParameter& NormalCoordinates) const;
	UE::Slate::FDeprecateVector2DResult GetLocalPositionAtCoordinates(const UE::Slate::FDeprecateVector2DParameter& NormalCoordinates) const;

	/** The box by layout, without render transforms. */
	FSlateRect GetLayoutBoundingRect() const;
	FSlateRect GetLayoutBoundingRect(const FSlateRect& LocalRect) const;
	/** The upright rectangle around the drawn box. */
	FSlateRect GetRenderBoundingRect() const;
	FSlateRect GetRenderBoundingRect(const FSlateRect& LocalRect) const;

	FSlateLayoutTransform GetAccumulatedLayoutTransform() const { return FSlateLayoutTransform(Scale, AbsolutePosition); }
	const FSlateRenderTransform& GetAccumulatedRenderTransform() const { return AccumulatedRenderTransform; }
	/** Place in the parent by layout. */
	FSlateLayoutTransform GetLocalLayoutTransform() const { return FSlateLayoutTransform(LocalScale, Position); }

	/** False when the accumulated render transform is only what layout gives. */
	bool HasRenderTransform() const { return bHasRenderTransform; }

	bool operator==(const FGeometry& Other) const
	{
		return Size == Other.Size && Scale == Other.Scale && AbsolutePosition == Other.AbsolutePosition && Position == Other.Position
			&& LocalScale == Other.LocalScale && AccumulatedRenderTransform == Other.AccumulatedRenderTransform;
	}

	FString ToString() const;

private:
	FGeometry(const FVector2f& InLocalSize, const FSlateLayoutTransform& Local, const FSlateLayoutTransform& Accumulated, const FSlateRenderTransform& Render, bool bInHasRenderTransform);

	FSlateRenderTransform AccumulatedRenderTransform;
	/** Units of the parent a local unit. */
	float LocalScale = 1.0f;
	bool bHasRenderTransform = false;
};
