#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"
#include "Types/SlateVector2.h"

/** The box that an element is painted in: its size in local units, and how these become window pixels. */
struct SLATECORE_API FPaintGeometry
{
	/** Top left without render transforms, in window pixels. */
	UE::Slate::FDeprecateVector2DResult DrawPosition;
	/** Pixels a local unit, without render transforms. */
	float DrawScale = 1.0f;

	FPaintGeometry() = default;
	FPaintGeometry(const FSlateLayoutTransform& LayoutTransform, const FSlateRenderTransform& RenderTransform, const FVector2f& InLocalSize, bool bInHasRenderTransform)
		: DrawPosition(LayoutTransform.GetTranslation()), DrawScale(LayoutTransform.GetScale()), LocalSize(InLocalSize)
		, AccumulatedRenderTransform(RenderTransform), bHasRenderTransform(bInHasRenderTransform)
	{
	}

	/** False when the render transform is only what layout gives. */
	bool HasRenderTransform() const { return bHasRenderTransform; }
	const FSlateRenderTransform& GetAccumulatedRenderTransform() const { return AccumulatedRenderTransform; }
	UE::Slate::FDeprecateVector2DResult GetLocalSize() const { return UE::Slate::FDeprecateVector2DResult(LocalSize); }

private:
	FVector2f LocalSize = FVector2f(0.0f, 0.0f);
	FSlateRenderTransform AccumulatedRenderTransform;
	bool bHasRenderTransform = false;
};
