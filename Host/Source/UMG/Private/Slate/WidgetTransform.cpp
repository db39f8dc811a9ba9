#include "Slate/WidgetTransform.h"

bool FWidgetTransform::IsIdentity() const
{
	return *this == FWidgetTransform();
}

FSlateRenderTransform FWidgetTransform::ToSlateRenderTransform() const
{
	const FScale2D ScaleStep(static_cast<float>(Scale.X), static_cast<float>(Scale.Y));
	const FShear2D ShearStep = FShear2D::FromShearAngles(FVector2f(static_cast<float>(Shear.X), static_cast<float>(Shear.Y)));
	const FQuat2D Rotation(FMath::DegreesToRadians(Angle));
	return Concatenate(Concatenate(FSlateRenderTransform(ScaleStep), FSlateRenderTransform(ShearStep)), Concatenate(FSlateRenderTransform(Rotation), FSlateRenderTransform(FVector2f(Translation))));
}
