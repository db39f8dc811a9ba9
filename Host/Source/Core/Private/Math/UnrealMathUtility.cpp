#include "Math/UnrealMathUtility.h"

#include "Containers/UnrealString.h"
#include "Math/Box.h"
#include "Math/Color.h"
#include "Math/Plane.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"

#include <cstdlib>

namespace
{
	template <typename T>
	T FmodChecked(T X, T Y)
	{
		if (!ensureMsgf(FMath::Abs(Y) > T(UE_SMALL_NUMBER), TEXT("Fmod by zero: the dividend is %f"), double(X)))
		{
			return T(0);
		}
		return std::fmod(X, Y);
	}

	/** Folds an angle into half a turn either way. */
	template <typename T>
	T Unwind(T Angle, T HalfTurn)
	{
		if (!FMath::IsFinite(Angle) || FMath::Abs(Angle) <= HalfTurn)
		{
			return Angle;
		}
		return std::remainder(Angle, T(2) * HalfTurn);
	}

	float LengthSquared(float V) { return V * V; }
	double LengthSquared(double V) { return V * V; }
	float LengthSquared(const FVector2f& V) { return V.SizeSquared(); }
	double LengthSquared(const FVector2D& V) { return V.SizeSquared(); }
	double LengthSquared(const FVector& V) { return V.SizeSquared(); }
	float LengthSquared(const FLinearColor& V) { return V.R * V.R + V.G * V.G + V.B * V.B + V.A * V.A; }

	template <typename T, typename ScalarType>
	T InterpTo(const T& Current, const T& Target, ScalarType DeltaTime, ScalarType InterpSpeed, float SnapDistanceSquared)
	{
		if (InterpSpeed <= ScalarType(0))
		{
			return Target;
		}
		const T Remaining = Target - Current;
		if (LengthSquared(Remaining) < SnapDistanceSquared)
		{
			return Target;
		}
		return Current + Remaining * FMath::Clamp(DeltaTime * InterpSpeed, ScalarType(0), ScalarType(1));
	}

	template <typename T, typename ScalarType>
	T InterpConstantTo(const T& Current, const T& Target, ScalarType DeltaTime, ScalarType InterpSpeed)
	{
		const T Remaining = Target - Current;
		const auto Distance = std::sqrt(LengthSquared(Remaining));
		const ScalarType Step = FMath::Max(DeltaTime * InterpSpeed, ScalarType(0));
		if (Distance <= Step || Distance < UE_SMALL_NUMBER)
		{
			return Target;
		}
		return Current + Remaining * (Step / Distance);
	}
}

float FMath::Fmod(float X, float Y)
{
	return FmodChecked(X, Y);
}

double FMath::Fmod(double X, double Y)
{
	return FmodChecked(X, Y);
}

float FMath::UnwindDegrees(float Degrees)
{
	return Unwind(Degrees, 180.0f);
}

double FMath::UnwindDegrees(double Degrees)
{
	return Unwind(Degrees, 180.0);
}

double FMath::UnwindRadians(double Radians)
{
	return Unwind(Radians, UE_DOUBLE_PI);
}

double FMath::FindDeltaAngleDegrees(double A1, double A2)
{
	return Unwind(A2 - A1, 180.0);
}

double FMath::SmoothStep(double A, double B, double X)
{
	if (X < A)
	{
		return 0.0;
	}
	if (X >= B)
	{
		return 1.0;
	}
	const double Fraction = (X - A) / (B - A);
	return Fraction * Fraction * (3.0 - 2.0 * Fraction);
}

float FMath::FInterpTo(float Current, float Target, float DeltaTime, float InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_SMALL_NUMBER);
}

double FMath::FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_SMALL_NUMBER);
}

FVector2D FMath::Vector2DInterpTo(const FVector2D& Current, const FVector2D& Target, float DeltaTime, float InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_KINDA_SMALL_NUMBER);
}

FVector2f FMath::Vector2DInterpTo(const FVector2f& Current, const FVector2f& Target, float DeltaTime, float InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_KINDA_SMALL_NUMBER);
}

FVector FMath::VInterpTo(const FVector& Current, const FVector& Target, float DeltaTime, float InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_KINDA_SMALL_NUMBER);
}

FLinearColor FMath::CInterpTo(const FLinearColor& Current, const FLinearColor& Target, float DeltaTime, float InterpSpeed)
{
	return InterpTo(Current, Target, DeltaTime, InterpSpeed, UE_KINDA_SMALL_NUMBER);
}

float FMath::FInterpConstantTo(float Current, float Target, float DeltaTime, float InterpSpeed)
{
	return InterpConstantTo(Current, Target, DeltaTime, InterpSpeed);
}

double FMath::FInterpConstantTo(double Current, double Target, double DeltaTime, double InterpSpeed)
{
	return InterpConstantTo(Current, Target, DeltaTime, InterpSpeed);
}

FVector2D FMath::Vector2DInterpConstantTo(const FVector2D& Current, const FVector2D& Target, float DeltaTime, float InterpSpeed)
{
	return InterpConstantTo(Current, Target, DeltaTime, InterpSpeed);
}

FVector FMath::VInterpConstantTo(const FVector& Current, const FVector& Target, float DeltaTime, float InterpSpeed)
{
	return InterpConstantTo(Current, Target, DeltaTime, InterpSpeed);
}

FVector FMath::LinePlaneIntersection(const FVector& Point1, const FVector& Point2, const FPlane& Plane)
{
	const FVector Direction = Point2 - Point1;
	return Point1 - Direction * (Plane.PlaneDot(Point1) / (Plane.GetNormal() | Direction));
}

bool FMath::LineBoxIntersection(const FBox& Box, const FVector& Start, const FVector& End, const FVector& StartToEnd)
{
	// The part of the way, as fractions of it, that lies between the faces of every axis.
	double Enter = 0.0;
	double Leave = 1.0;
	for (int32 Axis = 0; Axis < 3; ++Axis)
	{
		if (StartToEnd[Axis] == 0.0)
		{
			if (Start[Axis] < Box.Min[Axis] || End[Axis] > Box.Max[Axis])
			{
				return false;
			}
			continue;
		}
		const double ToMin = (Box.Min[Axis] - Start[Axis]) / StartToEnd[Axis];
		const double ToMax = (Box.Max[Axis] - Start[Axis]) / StartToEnd[Axis];
		Enter = Max(Enter, Min(ToMin, ToMax));
		Leave = Min(Leave, Max(ToMin, ToMax));
	}
	return Enter <= Leave;
}

FRotator FMath::RInterpTo(const FRotator& Current, const FRotator& Target, float DeltaTime, float InterpSpeed)
{
	if (DeltaTime == 0.0f || Current == Target)
	{
		return Current;
	}
	if (InterpSpeed <= 0.0f)
	{
		return Target;
	}
	const FRotator Remaining = (Target - Current).GetNormalized();
	if (Remaining.IsNearlyZero())
	{
		return Target;
	}
	return (Current + Remaining * double(Clamp(DeltaTime * InterpSpeed, 0.0f, 1.0f))).GetNormalized();
}

namespace
{
	/** xorshift64*: the same series on every machine. */
	uint64 RandomState = 0x853C49E6748FEA9Bull;

	uint32 NextRandom()
	{
		RandomState ^= RandomState >> 12;
		RandomState ^= RandomState << 25;
		RandomState ^= RandomState >> 27;
		return uint32((RandomState * 0x2545F4914F6CDD1Dull) >> 32);
	}
}

void FMath::RandInit(int32 Seed)
{
	RandomState = (uint64(uint32(Seed)) + 1) * 0x9E3779B97F4A7C15ull;
}

int32 FMath::Rand()
{
	return int32(NextRandom() >> 17);
}

float FMath::FRand()
{
	// As many bits as a float holds, so that the result never rounds up to 1.
	return float(NextRandom() >> 8) * (1.0f / float(1u << 24));
}

int32 FMath::RandRange(int32 Min, int32 Max)
{
	if (Max <= Min)
	{
		return Min;
	}
	const uint64 Count = uint64(int64(Max) - int64(Min)) + 1;
	return int32(int64(Min) + int64((uint64(NextRandom()) * Count) >> 32));
}

float FMath::FRandRange(float Min, float Max)
{
	return Min + (Max - Min) * FRand();
}

double FMath::FRandRange(double Min, double Max)
{
	return Min + (Max - Min) * (double(NextRandom()) / 4294967295.0);
}

bool FMath::RandBool()
{
	return (NextRandom() & 0x80000000u) != 0;
}
