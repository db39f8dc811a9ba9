#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Layout/Geometry.h"
#include "WidgetLayoutLibrary.generated.h"

/** Where the mouse and the viewport are. */
UCLASS(MinimalAPI)
class UWidgetLayoutLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** The cursor in absolute space; (0, 0) without an application. */
	UFUNCTION(BlueprintPure, Category = "Viewport")
	UMG_API static FVector2D GetMousePositionOnPlatform();

	/** The cursor in the units of the viewport of the object's world; (0, 0) without a viewport. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	UMG_API static FVector2D GetMousePositionOnViewport(UObject* WorldContextObject);

	/** Place and size of the viewport of the object's world. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	UMG_API static FGeometry GetViewportWidgetGeometry(UObject* WorldContextObject);

	/** Pixels a Slate unit in the viewport of the object's world; 1 without a viewport. */
	UFUNCTION(BlueprintPure, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	UMG_API static float GetViewportScale(const UObject* WorldContextObject);
};
