#include "Blueprint/SlateBlueprintLibrary.h"

bool USlateBlueprintLibrary::IsUnderLocation(const FGeometry& Geometry, const FVector2D& AbsoluteCoordinate)
{
	return Geometry.IsUnderLocation(AbsoluteCoordinate);
}

FVector2D USlateBlueprintLibrary::AbsoluteToLocal(const FGeometry& Geometry, FVector2D AbsoluteCoordinate)
{
	return FVector2D(Geometry.AbsoluteToLocal(AbsoluteCoordinate));
}

FVector2D USlateBlueprintLibrary::LocalToAbsolute(const FGeometry& Geometry, FVector2D LocalCoordinate)
{
	return FVector2D(Geometry.LocalToAbsolute(LocalCoordinate));
}

FVector2D USlateBlueprintLibrary::GetLocalSize(const FGeometry& Geometry)
{
	return FVector2D(Geometry.GetLocalSize());
}

FVector2D USlateBlueprintLibrary::GetAbsoluteSize(const FGeometry& Geometry)
{
	return FVector2D(Geometry.GetAbsoluteSize());
}
