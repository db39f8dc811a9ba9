#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "Margin.generated.h"

/** Distances from the four sides of a box, in slate units. */
USTRUCT(BlueprintType)
struct SLATECORE_API FMargin
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Left = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Top = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Right = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Bottom = 0.0f;

	FMargin() = default;
	FMargin(float UniformMargin) : Left(UniformMargin), Top(UniformMargin), Right(UniformMargin), Bottom(UniformMargin) {}
	FMargin(float Horizontal, float Vertical) : Left(Horizontal), Top(Vertical), Right(Horizontal), Bottom(Vertical) {}
	FMargin(const FVector2f& V) : FMargin(V.X, V.Y) {}
	FMargin(const FVector2D& V) : FMargin(static_cast<float>(V.X), static_cast<float>(V.Y)) {}
	FMargin(float InLeft, float InTop, float InRight, float InBottom) : Left(InLeft), Top(InTop), Right(InRight), Bottom(InBottom) {}
	FMargin(const FVector4& V) : FMargin(static_cast<float>(V.X), static_cast<float>(V.Y), static_cast<float>(V.Z), static_cast<float>(V.W)) {}

	FMargin operator*(float Scale) const { return FMargin(Left * Scale, Top * Scale, Right * Scale, Bottom * Scale); }
	FMargin operator*(const FMargin& Other) const { return FMargin(Left * Other.Left, Top * Other.Top, Right * Other.Right, Bottom * Other.Bottom); }
	FMargin operator+(const FMargin& Other) const { return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom); }
	FMargin operator-(const FMargin& Other) const { return FMargin(Left - Other.Left, Top - Other.Top, Right - Other.Right, Bottom - Other.Bottom); }
	bool operator==(const FMargin& Other) const { return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom; }

	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }

	/** What the margins take together in each direction. */
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }

	template <EOrientation Orientation>
	float GetTotalSpaceAlong() const
	{
		return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom;
	}
};
