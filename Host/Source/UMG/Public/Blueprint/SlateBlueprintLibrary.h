#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Layout/Geometry.h"
#include "SlateBlueprintLibrary.generated.h"

/** Places and sizes of widgets. */
UCLASS(MinimalAPI)
class USlateBlueprintLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** True when the absolute position lies in the widget as it is drawn. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	UMG_API static bool IsUnderLocation(const FGeometry& Geometry, const FVector2D& AbsoluteCoordinate);

	/** A position of absolute space in the widget's own units; render transforms are undone. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	UMG_API static FVector2D AbsoluteToLocal(const FGeometry& Geometry, FVector2D AbsoluteCoordinate);

	/** A position in the widget's own units in absolute space, as it is drawn. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	UMG_API static FVector2D LocalToAbsolute(const FGeometry& Geometry, FVector2D LocalCoordinate);

	/** Size in the widget's own units. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	UMG_API static FVector2D GetLocalSize(const FGeometry& Geometry);

	/** Size in absolute space, as the widget is drawn. */
	UFUNCTION(BlueprintPure, Category = "User Interface|Geometry")
	UMG_API static FVector2D GetAbsoluteSize(const FGeometry& Geometry);
};
