#pragma once

#include "Math/TransformCalculus2D.h"
#include "Rendering/SlateRenderTransform.h"

/** Where layout puts a child in its parent: a uniform scale, then a translation in the parent's units. */
class FSlateLayoutTransform
{
public:
	explicit FSlateLayoutTransform(float InScale = 1.0f, const FVector2f& InTranslation = FVector2f(0.0f, 0.0f)) : Scale(InScale), Translation(InTranslation) {}
	FSlateLayoutTransform(float InScale, const FVector2D& InTranslation) : FSlateLayoutTransform(InScale, FVector2f(InTranslation)) {}
	explicit FSlateLayoutTransform(const FVector2f& InTranslation) : Scale(1.0f), Translation(InTranslation) {}
	explicit FSlateLayoutTransform(const FVector2D& InTranslation) : FSlateLayoutTransform(FVector2f(InTranslation)) {}

	FVector2f GetTranslation() const { return Translation; }
	float GetScale() const { return Scale; }
	FMatrix2x2 GetMatrix() const { return FMatrix2x2(Scale); }
	FSlateRenderTransform ToRenderTransform() const { return FSlateRenderTransform(Scale, Translation); }

	FVector2f TransformPoint(const FVector2f& Point) const { return Point * Scale + Translation; }
	FVector2f TransformVector(const FVector2f& Vector) const { return Vector * Scale; }

	/** This one first, then the other. */
	FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& Other) const
	{
		return FSlateLayoutTransform(Scale * Other.Scale, Other.TransformPoint(Translation));
	}

	FSlateLayoutTransform Inverse() const { return FSlateLayoutTransform(1.0f / Scale, Translation * (-1.0f / Scale)); }

	bool operator==(const FSlateLayoutTransform& Other) const { return Scale == Other.Scale && Translation == Other.Translation; }

private:
	float Scale;
	FVector2f Translation;
};

inline FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& First, const FSlateLayoutTransform& Second)
{
	return First.Concatenate(Second);
}

inline FSlateRenderTransform Concatenate(const FSlateRenderTransform& First, const FSlateLayoutTransform& Second)
{
	return First.Concatenate(Second.ToRenderTransform());
}
