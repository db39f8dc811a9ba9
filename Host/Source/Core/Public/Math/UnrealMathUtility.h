#pragma once

#include "HAL/Platform.h"
#include "Math/MathFwd.h"
#include "Math/NumericLimits.h"
#include "Misc/AssertionMacros.h"

#include <bit>
#include <cmath>
#include <concepts>
#include <type_traits>

#define UE_PI (3.1415926535897932f)
#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_TWO_PI (6.28318530717958647692f)
#define UE_HALF_PI (1.57079632679489661923f)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_BIG_NUMBER (3.4e+38f)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define UE_SQRT_2 (1.4142135623730950488016887242097f)
#define UE_INV_SQRT_2 (0.70710678118654752440084436210485f)

#define PI UE_PI
#define TWO_PI UE_TWO_PI
#define HALF_PI UE_HALF_PI
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER
#define BIG_NUMBER UE_BIG_NUMBER

namespace Host
{
	/** The type in which two arithmetic values meet: the language's own rule, as "A + B" would give it. */
	template <typename A, typename B>
	using TArithmeticMeeting = std::decay_t<decltype(std::declval<A>() + std::declval<B>())>;
}

/** Mathematics on scalars, and on whatever has the operators that a function uses. Angles are in radians unless named otherwise. */
struct FMath
{
	// Comparison and limits

	template <typename T>
	static constexpr T Abs(const T A)
	{
		return A < T(0) ? T(-A) : A;
	}

	/** -1, 0 or 1. */
	template <typename T>
	static constexpr T Sign(const T A)
	{
		return A > T(0) ? T(1) : (A < T(0) ? T(-1) : T(0));
	}

	template <typename T>
	static constexpr T Max(const T A, const T B)
	{
		return B < A ? A : B;
	}

	template <typename A, typename B>
		requires(std::is_arithmetic_v<A> && std::is_arithmetic_v<B> && !std::is_same_v<A, B>)
	static constexpr Host::TArithmeticMeeting<A, B> Max(const A First, const B Second)
	{
		using FMeeting = Host::TArithmeticMeeting<A, B>;
		return Max<FMeeting>(FMeeting(First), FMeeting(Second));
	}

	template <typename T>
	static constexpr T Min(const T A, const T B)
	{
		return A < B ? A : B;
	}

	template <typename A, typename B>
		requires(std::is_arithmetic_v<A> && std::is_arithmetic_v<B> && !std::is_same_v<A, B>)
	static constexpr Host::TArithmeticMeeting<A, B> Min(const A First, const B Second)
	{
		using FMeeting = Host::TArithmeticMeeting<A, B>;
		return Min<FMeeting>(FMeeting(First), FMeeting(Second));
	}

	template <typename T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}

	template <typename T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}

	/** X within [MinValue, MaxValue]. With inverted bounds the lower bound wins: Max(Min(X, MaxValue), MinValue). */
	template <typename T>
	static constexpr T Clamp(const T X, const T MinValue, const T MaxValue)
	{
		return Max(Min(X, MaxValue), MinValue);
	}

	template <typename X, typename A, typename B>
		requires(std::is_arithmetic_v<X> && std::is_arithmetic_v<A> && std::is_arithmetic_v<B> && !(std::is_same_v<X, A> && std::is_same_v<X, B>))
	static constexpr auto Clamp(const X Value, const A MinValue, const B MaxValue)
	{
		using FMeeting = Host::TArithmeticMeeting<Host::TArithmeticMeeting<X, A>, B>;
		return Clamp<FMeeting>(FMeeting(Value), FMeeting(MinValue), FMeeting(MaxValue));
	}

	/** True for MinValue <= Value < MaxValue. */
	template <typename T>
	static constexpr bool IsWithin(const T Value, const T MinValue, const T MaxValue)
	{
		return Value >= MinValue && Value < MaxValue;
	}

	/** True for MinValue <= Value <= MaxValue. */
	template <typename T>
	static constexpr bool IsWithinInclusive(const T Value, const T MinValue, const T MaxValue)
	{
		return Value >= MinValue && Value <= MaxValue;
	}

	static constexpr bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs(A - B) <= ErrorTolerance;
	}

	static constexpr bool IsNearlyEqual(double A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs(A - B) <= ErrorTolerance;
	}

	template <typename A, typename B>
		requires(std::is_arithmetic_v<A> && std::is_arithmetic_v<B> && !std::is_same_v<A, B>)
	static constexpr bool IsNearlyEqual(A First, B Second, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return IsNearlyEqual(double(First), double(Second), ErrorTolerance);
	}

	static constexpr bool IsNearlyZero(float Value, float ErrorTolerance = UE_SMALL_NUMBER)
	{
		return Abs(Value) <= ErrorTolerance;
	}

	static constexpr bool IsNearlyZero(double Value, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER)
	{
		return Abs(Value) <= ErrorTolerance;
	}

	static bool IsNaN(float A) { return std::isnan(A); }
	static bool IsNaN(double A) { return std::isnan(A); }
	static bool IsFinite(float A) { return std::isfinite(A); }
	static bool IsFinite(double A) { return std::isfinite(A); }

	// Rounding

	/** Toward zero. */
	static constexpr int32 TruncToInt(float F) { return int32(F); }
	static constexpr int64 TruncToInt(double F) { return int64(F); }
	static constexpr int32 TruncToInt32(float F) { return int32(F); }
	static constexpr int32 TruncToInt32(double F) { return int32(F); }
	static float TruncToFloat(float F) { return std::trunc(F); }
	static double TruncToFloat(double F) { return std::trunc(F); }

	/** Toward negative infinity. */
	static int32 FloorToInt(float F) { return int32(std::floor(F)); }
	static int64 FloorToInt(double F) { return int64(std::floor(F)); }
	static int32 FloorToInt32(float F) { return int32(std::floor(F)); }
	static int32 FloorToInt32(double F) { return int32(std::floor(F)); }
	static float FloorToFloat(float F) { return std::floor(F); }
	static double FloorToDouble(double F) { return std::floor(F); }

	/** Toward positive infinity. */
	static int32 CeilToInt(float F) { return int32(std::ceil(F)); }
	static int64 CeilToInt(double F) { return int64(std::ceil(F)); }
	static int32 CeilToInt32(float F) { return int32(std::ceil(F)); }
	static int32 CeilToInt32(double F) { return int32(std::ceil(F)); }
	static float CeilToFloat(float F) { return std::ceil(F); }
	static double CeilToDouble(double F) { return std::ceil(F); }

	/** To the nearest, halves up: 2.5 gives 3, -2.5 gives -2. */
	static int32 RoundToInt(float F) { return FloorToInt(F + 0.5f); }
	static int64 RoundToInt(double F) { return FloorToInt(F + 0.5); }
	static int32 RoundToInt32(float F) { return FloorToInt(F + 0.5f); }
	static int32 RoundToInt32(double F) { return int32(FloorToInt(F + 0.5)); }
	static float RoundToFloat(float F) { return std::floor(F + 0.5f); }
	static double RoundToDouble(double F) { return std::floor(F + 0.5); }

	/** The part after the point, toward zero: -1.25 gives -0.25. */
	static float Fractional(float Value) { return Value - std::trunc(Value); }
	static double Fractional(double Value) { return Value - std::trunc(Value); }
	/** The distance above the floor, in [0, 1): -1.25 gives 0.75. */
	static float Frac(float Value) { return Value - std::floor(Value); }
	static double Frac(double Value) { return Value - std::floor(Value); }

	/** The remainder with the sign of X. Fails an ensure and gives 0 when Y is nearly zero. */
	CORE_API static float Fmod(float X, float Y);
	CORE_API static double Fmod(double X, double Y);

	/** The multiple of GridSize that is nearest to Location; Location itself when GridSize is 0. */
	template <typename T>
	static T GridSnap(T Location, T GridSize)
	{
		return GridSize == T(0) ? Location : std::floor((Location + GridSize / T(2)) / GridSize) * GridSize;
	}

	template <std::integral T>
	static constexpr T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}

	template <std::integral T>
	static constexpr bool IsPowerOfTwo(T Value)
	{
		return (Value & (Value - 1)) == T(0);
	}

	/** The smallest power of two that is not below the value; 1 for 0. */
	static constexpr uint32 RoundUpToPowerOfTwo(uint32 Value)
	{
		return std::bit_ceil(Value);
	}

	/** 31 minus the number of leading zero bits; 0 for 0. */
	static constexpr uint32 FloorLog2(uint32 Value)
	{
		return Value == 0 ? 0 : 31 - uint32(std::countl_zero(Value));
	}

	static constexpr uint32 CeilLogTwo(uint32 Value)
	{
		return Value <= 1 ? 0 : 32 - uint32(std::countl_zero(Value - 1));
	}

	static constexpr uint32 CountLeadingZeros(uint32 Value) { return uint32(std::countl_zero(Value)); }
	static constexpr uint32 CountTrailingZeros(uint32 Value) { return uint32(std::countr_zero(Value)); }
	/** 64 for zero. */
	static constexpr uint64 CountTrailingZeros64(uint64 Value) { return uint64(std::countr_zero(Value)); }
	static constexpr int32 CountBits(uint64 Bits) { return std::popcount(Bits); }

	// Powers and angles

	static float Sqrt(float Value) { return std::sqrt(Value); }
	static double Sqrt(double Value) { return std::sqrt(Value); }
	static float InvSqrt(float F) { return 1.0f / std::sqrt(F); }
	static double InvSqrt(double F) { return 1.0 / std::sqrt(F); }
	static float Pow(float A, float B) { return std::pow(A, B); }
	static double Pow(double A, double B) { return std::pow(A, B); }
	static float Exp(float Value) { return std::exp(Value); }
	static double Exp(double Value) { return std::exp(Value); }
	static float Loge(float Value) { return std::log(Value); }
	static double Loge(double Value) { return std::log(Value); }
	static float Log2(float Value) { return std::log2(Value); }
	static double Log2(double Value) { return std::log2(Value); }
	static float Sin(float Value) { return std::sin(Value); }
	static double Sin(double Value) { return std::sin(Value); }
	static float Cos(float Value) { return std::cos(Value); }
	static double Cos(double Value) { return std::cos(Value); }
	static float Tan(float Value) { return std::tan(Value); }
	static double Tan(double Value) { return std::tan(Value); }
	/** The argument is clamped to [-1, 1]. */
	static float Asin(float Value) { return std::asin(Clamp(Value, -1.0f, 1.0f)); }
	static double Asin(double Value) { return std::asin(Clamp(Value, -1.0, 1.0)); }
	static float Acos(float Value) { return std::acos(Clamp(Value, -1.0f, 1.0f)); }
	static double Acos(double Value) { return std::acos(Clamp(Value, -1.0, 1.0)); }
	static float Atan(float Value) { return std::atan(Value); }
	static double Atan(double Value) { return std::atan(Value); }
	static float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static double Atan2(double Y, double X) { return std::atan2(Y, X); }

	template <typename T>
	static void SinCos(T* ScalarSin, T* ScalarCos, T Value)
	{
		*ScalarSin = std::sin(Value);
		*ScalarCos = std::cos(Value);
	}

	static constexpr float RadiansToDegrees(float Radians) { return Radians * (180.0f / UE_PI); }
	static constexpr double RadiansToDegrees(double Radians) { return Radians * (180.0 / UE_DOUBLE_PI); }
	static constexpr float DegreesToRadians(float Degrees) { return Degrees * (UE_PI / 180.0f); }
	static constexpr double DegreesToRadians(double Degrees) { return Degrees * (UE_DOUBLE_PI / 180.0); }

	/** The same angle within [-180, 180]. */
	CORE_API static float UnwindDegrees(float Degrees);
	CORE_API static double UnwindDegrees(double Degrees);
	/** The same angle within [-Pi, Pi]. */
	CORE_API static double UnwindRadians(double Radians);
	/** The smallest turn from A1 to A2, in degrees, within [-180, 180]. */
	CORE_API static double FindDeltaAngleDegrees(double A1, double A2);

	template <typename T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}

	template <typename T>
	static constexpr T Cube(const T A)
	{
		return A * A * A;
	}

	// Interpolation

	/** A at Alpha 0, B at Alpha 1, and on beyond both. */
	template <typename T, typename U>
		requires(!(std::is_arithmetic_v<T> && !std::is_same_v<T, U> && std::is_integral_v<T>))
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return T(A + Alpha * (B - A));
	}

	/** Whole numbers round to the nearest, so that both ends are reached. */
	template <std::integral T, std::floating_point U>
	static T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return T(std::floor(double(A) + double(Alpha) * (double(B) - double(A)) + 0.5));
	}

	/** Mixed scalar types meet as in "A + B". */
	template <typename A, typename B, typename U>
		requires(std::is_arithmetic_v<A> && std::is_arithmetic_v<B> && !std::is_same_v<A, B>)
	static constexpr auto Lerp(const A& First, const B& Second, const U& Alpha)
	{
		using FMeeting = Host::TArithmeticMeeting<Host::TArithmeticMeeting<A, B>, U>;
		return FMeeting(First) + FMeeting(Alpha) * (FMeeting(Second) - FMeeting(First));
	}

	/** Where Value stands between Min and Max as a fraction; for equal bounds 1 at or above them, else 0. */
	static float GetRangePct(float MinValue, float MaxValue, float Value)
	{
		return float(GetRangePct(double(MinValue), double(MaxValue), double(Value)));
	}

	static double GetRangePct(double MinValue, double MaxValue, double Value)
	{
		const double Range = MaxValue - MinValue;
		if (IsNearlyZero(Range))
		{
			return Value >= MaxValue ? 1.0 : 0.0;
		}
		return (Value - MinValue) / Range;
	}

	/** Ease in and out: slow at both ends, steeper in the middle as Exp grows. */
	template <typename T>
	static T InterpEaseInOut(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp<T>(A, B, Alpha < 0.5f ? 0.5f * Pow(2.0f * Alpha, Exp) : 1.0f - 0.5f * Pow(2.0f * (1.0f - Alpha), Exp));
	}

	template <typename T>
	static T InterpEaseIn(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp<T>(A, B, Pow(Alpha, Exp));
	}

	template <typename T>
	static T InterpEaseOut(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp<T>(A, B, 1.0f - Pow(1.0f - Alpha, Exp));
	}

	/** 0 up to A, 1 from B on, a smooth curve between. */
	CORE_API static double SmoothStep(double A, double B, double X);

	/** Polynomial with value and tangent at both ends. */
	template <typename T, typename U>
	static constexpr T CubicInterp(const T& P0, const T& T0, const T& P1, const T& T1, const U& A)
	{
		const U A2 = A * A;
		const U A3 = A2 * A;
		return T(((2 * A3) - (3 * A2) + 1) * P0) + T((A3 - (2 * A2) + A) * T0) + T((A3 - A2) * T1) + T(((-2 * A3) + (3 * A2)) * P1);
	}

	/**
	 * Moves Current toward Target by the fraction clamp(DeltaTime * InterpSpeed, 0, 1) of what remains.
	 * A speed of 0 or below jumps to the target, and so does a remaining distance whose square is below 1e-8 for
	 * scalars, below 1e-4 for vectors and colours.
	 * @param DeltaTime seconds
	 */
	CORE_API static float FInterpTo(float Current, float Target, float DeltaTime, float InterpSpeed);
	CORE_API static double FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed);
	CORE_API static FVector2D Vector2DInterpTo(const FVector2D& Current, const FVector2D& Target, float DeltaTime, float InterpSpeed);
	CORE_API static FVector2f Vector2DInterpTo(const FVector2f& Current, const FVector2f& Target, float DeltaTime, float InterpSpeed);
	CORE_API static FVector VInterpTo(const FVector& Current, const FVector& Target, float DeltaTime, float InterpSpeed);
	CORE_API static FLinearColor CInterpTo(const FLinearColor& Current, const FLinearColor& Target, float DeltaTime, float InterpSpeed);

	/** Moves Current toward Target by at most DeltaTime * InterpSpeed, never beyond it. */
	CORE_API static float FInterpConstantTo(float Current, float Target, float DeltaTime, float InterpSpeed);
	CORE_API static double FInterpConstantTo(double Current, double Target, double DeltaTime, double InterpSpeed);
	CORE_API static FVector2D Vector2DInterpConstantTo(const FVector2D& Current, const FVector2D& Target, float DeltaTime, float InterpSpeed);
	CORE_API static FVector VInterpConstantTo(const FVector& Current, const FVector& Target, float DeltaTime, float InterpSpeed);

	// Space

	/** Where the line through two points meets a plane; they must not be parallel. */
	CORE_API static FVector LinePlaneIntersection(const FVector& Point1, const FVector& Point2, const FPlane& Plane);
	/** Whether the way from Start to End meets a box. */
	CORE_API static bool LineBoxIntersection(const FBox& Box, const FVector& Start, const FVector& End, const FVector& StartToEnd);
	/** From one to the other at the speed of FInterpTo, each angle the shorter way. */
	CORE_API static FRotator RInterpTo(const FRotator& Current, const FRotator& Target, float DeltaTime, float InterpSpeed);

	// Chance

	/** A pseudo-random whole number in [0, 32767]; the series is the same after each RandInit with the same seed. */
	CORE_API static int32 Rand();
	CORE_API static void RandInit(int32 Seed);
	/** In [0, 1). */
	CORE_API static float FRand();
	/** In [Min, Max]. */
	CORE_API static int32 RandRange(int32 Min, int32 Max);
	CORE_API static float FRandRange(float Min, float Max);
	CORE_API static double FRandRange(double Min, double Max);
	CORE_API static bool RandBool();
};
