#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderTransform.h"
#include "WidgetTransform.generated.h"

/** A change of how a widget is drawn that leaves the layout alone: scale, then shear, then rotation, then translation. */
USTRUCT(BlueprintType)
struct UMG_API FWidgetTransform
{
	GENERATED_BODY()

	/** Shift in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform", meta = (Units = "SlateUnits"))
	FVector2D Translation = FVector2D(0.0, 0.0);

	/** Factor of each direction. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Scale = FVector2D(1.0, 1.0);

	/** Slant in degrees. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Shear = FVector2D(0.0, 0.0);

	/** Clockwise rotation in degrees. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	float Angle = 0.0f;

	FWidgetTransform() = default;
	FWidgetTransform(const FVector2D& InTranslation, const FVector2D& InScale, const FVector2D& InShear, float InAngle)
		: Translation(InTranslation)
		, Scale(InScale)
		, Shear(InShear)
		, Angle(InAngle)
	{
	}

	/** True when the transform changes nothing. */
	bool IsIdentity() const;

	FSlateRenderTransform ToSlateRenderTransform() const;

	bool operator==(const FWidgetTransform& Other) const = default;
};
