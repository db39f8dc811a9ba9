#pragma once

#include "CoreMinimal.h"
#include "UnitVolumeShape.generated.h"

/** The space that a unit takes: a box, or an outline raised from floor to ceiling. In centimetres, Z up. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FUnitVolumeShape
{
	GENERATED_BODY()

	/** Lowest corner of the bounds. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitVolume")
	FVector Min = FVector::ZeroVector;

	/** Highest corner of the bounds. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitVolume")
	FVector Max = FVector::ZeroVector;

	/** Corners of the outline, none twice, in order around it; empty for a box. The bounds are those of the outline. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitVolume")
	TArray<FVector2D> Outline;

	static FUnitVolumeShape MakeBox(const FVector& Min, const FVector& Max);

	/** The outline raised from one height to another. */
	static FUnitVolumeShape MakeExtrusion(TArray<FVector2D> Outline, double Bottom, double Top);

	bool IsBox() const { return Outline.IsEmpty(); }

	/** False while the shape encloses nothing. */
	bool HasVolume() const { return Min.X < Max.X && Min.Y < Max.Y && Min.Z < Max.Z; }

	FBox GetBounds() const { return FBox(Min, Max); }

	/** Area of the ground plan in square centimetres, by the shoelace formula. */
	double GetGroundArea() const;

	/** The four corners of a box, or those of the outline, going round the way that X turns to Y. */
	TArray<FVector2D> GetCorners() const;

	/** Whether a point is inside; those on the surface may count as either. */
	bool Contains(const FVector& Point) const;
};
