#pragma once

#include "CoreMinimal.h"
#include "Records/UnitVolumeShape.h"
#include "ProjectInterior.generated.h"

/** A piece of an interior: of a wall, a floor, a cupboard. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FInteriorPart
{
	GENERATED_BODY()

	/** Key of the surface, by which variants say how it looks; none for what stays as it is. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FName Surface;

	/** In centimetres, in the interior's own coordinates: X to the right, Y to the front, Z up from the floor. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FUnitVolumeShape Shape;

	/** How it looks while no variant says anything else. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FLinearColor Color = FLinearColor(0.76f, 0.74f, 0.70f);
};

/** From where an interior looks best. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FInteriorCamera
{
	GENERATED_BODY()

	/** What it looks at, in the interior's own coordinates, in centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FVector Target = FVector::ZeroVector;

	/** Direction in which it looks, in degrees, from X toward Y. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior", meta = (ClampMin = "-360", ClampMax = "360"))
	double Yaw = -60.0;

	/** Up from the horizon, in degrees. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior", meta = (ClampMin = "-89", ClampMax = "-2"))
	double Pitch = -40.0;

	/** From what it looks at, in centimetres; 0 for as far as needed to see it all. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior", meta = (ClampMin = "0"))
	double Distance = 0.0;
};

/** The rooms of a kind of unit, as they are shown while one is configured. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectInterior
{
	GENERATED_BODY()

	/** Key of the interior, unique among the interiors of its project. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FName InteriorId;

	/** What people call it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FString Name;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	FInteriorCamera Camera;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectInterior")
	TArray<FInteriorPart> Parts;
};
