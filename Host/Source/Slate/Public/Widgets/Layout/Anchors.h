#pragma once

#include "CoreMinimal.h"
#include "Types/SlateVector2.h"
#include "Anchors.generated.h"

/**
 * Where in its parent a widget is held, in shares of the parent's size: (0, 0) is the top left corner, (1, 1) the
 * bottom right one. Where minimum and maximum differ in a direction, the widget stretches with the parent in it.
 */
USTRUCT(BlueprintType)
struct SLATE_API FAnchors
{
	GENERATED_BODY()

	/** Anchors of the left and of the top side. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Anchors")
	FVector2D Minimum = FVector2D(0.0, 0.0);

	/** Anchors of the right and of the bottom side. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Anchors")
	FVector2D Maximum = FVector2D(0.0, 0.0);

	FAnchors() = default;

	/** All four sides at the same share of width and height. */
	FAnchors(float UniformAnchors)
		: Minimum(UniformAnchors, UniformAnchors)
		, Maximum(UniformAnchors, UniformAnchors)
	{
	}

	/** One point, at shares of the width and of the height. */
	FAnchors(float Horizontal, float Vertical)
		: Minimum(Horizontal, Vertical)
		, Maximum(Horizontal, Vertical)
	{
	}

	FAnchors(float MinX, float MinY, float MaxX, float MaxY)
		: Minimum(MinX, MinY)
		, Maximum(MaxX, MaxY)
	{
	}

	bool IsStretchedVertical() const { return Minimum.Y != Maximum.Y; }
	bool IsStretchedHorizontal() const { return Minimum.X != Maximum.X; }

	bool operator==(const FAnchors& Other) const { return Minimum == Other.Minimum && Maximum == Other.Maximum; }
	bool operator!=(const FAnchors& Other) const { return !(*this == Other); }
};
