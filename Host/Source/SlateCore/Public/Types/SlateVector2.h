#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "SlateVector2.generated.h"

/**
 * A 2D vector as a member of Slate structures: stored in floats, and taken from and given as either precision.
 */
USTRUCT(BlueprintType)
struct SLATECORE_API FDeprecateSlateVector2D
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Vector")
	float X = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Vector")
	float Y = 0.0f;

	FDeprecateSlateVector2D() = default;
	FDeprecateSlateVector2D(float InX, float InY) : X(InX), Y(InY) {}
	FDeprecateSlateVector2D(const FVector2f& V) : X(V.X), Y(V.Y) {}
	FDeprecateSlateVector2D(const FVector2D& V) : X(static_cast<float>(V.X)), Y(static_cast<float>(V.Y)) {}

	operator FVector2f() const { return FVector2f(X, Y); }
	operator FVector2D() const { return FVector2D(X, Y); }

	bool operator==(const FDeprecateSlateVector2D& Other) const { return X == Other.X && Y == Other.Y; }
	FVector2f operator*(float Scale) const { return FVector2f(X * Scale, Y * Scale); }

	bool IsZero() const { return X == 0.0f && Y == 0.0f; }
};

namespace UE::Slate
{
	/** A vector that Slate hands out: floats, which also pass as a vector of doubles. */
	struct FDeprecateVector2DResult : public FVector2f
	{
		FDeprecateVector2DResult() : FVector2f(0.0f, 0.0f) {}
		FDeprecateVector2DResult(float InX, float InY) : FVector2f(InX, InY) {}
		FDeprecateVector2DResult(const FVector2f& V) : FVector2f(V) {}
		FDeprecateVector2DResult(const FVector2D& V) : FVector2f(static_cast<float>(V.X), static_cast<float>(V.Y)) {}
		FDeprecateVector2DResult(const FDeprecateSlateVector2D& V) : FVector2f(V.X, V.Y) {}

		operator FVector2D() const { return FVector2D(X, Y); }
	};

	/** A vector that Slate takes, of either precision. */
	struct FDeprecateVector2DParameter : public FVector2f
	{
		FDeprecateVector2DParameter() : FVector2f(0.0f, 0.0f) {}
		FDeprecateVector2DParameter(float InX, float InY) : FVector2f(InX, InY) {}
		FDeprecateVector2DParameter(const FVector2f& V) : FVector2f(V) {}
		FDeprecateVector2DParameter(const FVector2D& V) : FVector2f(static_cast<float>(V.X), static_cast<float>(V.Y)) {}
		FDeprecateVector2DParameter(const FDeprecateVector2DResult& V) : FVector2f(V.X, V.Y) {}
		FDeprecateVector2DParameter(const FDeprecateSlateVector2D& V) : FVector2f(V.X, V.Y) {}

		operator FVector2D() const { return FVector2D(X, Y); }
	};

	inline FVector2D operator+(const FDeprecateVector2DResult& A, const FVector2D& B) { return FVector2D(A) + B; }
	inline FVector2D operator+(const FVector2D& A, const FDeprecateVector2DResult& B) { return A + FVector2D(B); }
	inline FVector2D operator-(const FDeprecateVector2DResult& A, const FVector2D& B) { return FVector2D(A) - B; }
	inline FVector2D operator-(const FVector2D& A, const FDeprecateVector2DResult& B) { return A - FVector2D(B); }
	inline FVector2D operator*(const FDeprecateVector2DResult& A, const FVector2D& B) { return FVector2D(A) * B; }
	inline FVector2D operator*(const FVector2D& A, const FDeprecateVector2DResult& B) { return A * FVector2D(B); }
	inline FVector2D operator/(const FDeprecateVector2DResult& A, const FVector2D& B) { return FVector2D(A) / B; }
	inline FVector2D operator/(const FVector2D& A, const FDeprecateVector2DResult& B) { return A / FVector2D(B); }
	inline bool operator==(const FDeprecateVector2DResult& A, const FVector2D& B) { return FVector2D(A) == B; }
	inline bool operator==(const FDeprecateVector2DResult& A, const FVector2f& B) { return A.X == B.X && A.Y == B.Y; }
	inline bool operator==(const FDeprecateVector2DResult& A, const FDeprecateVector2DResult& B) { return A.X == B.X && A.Y == B.Y; }

}
