#pragma once

#include "HAL/Platform.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/CoreMiscDefines.h"

class FString;

/** A colour as it is shown: red, green and blue through the sRGB curve, alpha straight; 8 bits each, in memory B, G, R, A. */
struct FColor
{
	uint8 B;
	uint8 G;
	uint8 R;
	uint8 A;

	CORE_API static const FColor White;
	CORE_API static const FColor Black;
	/** Black with alpha 0. */
	CORE_API static const FColor Transparent;
	CORE_API static const FColor Red;
	CORE_API static const FColor Green;
	CORE_API static const FColor Blue;
	CORE_API static const FColor Yellow;
	CORE_API static const FColor Cyan;
	CORE_API static const FColor Magenta;

	/** Leaves the channels unset. */
	FColor() = default;
	constexpr explicit FColor(EForceInit) : B(0), G(0), R(0), A(0) {}
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255) : B(InB), G(InG), R(InR), A(InA) {}
	/** From 0xAARRGGBB. */
	constexpr explicit FColor(uint32 InColor) : B(uint8(InColor)), G(uint8(InColor >> 8)), R(uint8(InColor >> 16)), A(uint8(InColor >> 24)) {}

	constexpr bool operator==(const FColor& Other) const = default;

	/** Adds channel by channel, at most 255. */
	constexpr void operator+=(const FColor& Other)
	{
		R = uint8(FMath::Min(int32(R) + int32(Other.R), 255));
		G = uint8(FMath::Min(int32(G) + int32(Other.G), 255));
		B = uint8(FMath::Min(int32(B) + int32(Other.B), 255));
		A = uint8(FMath::Min(int32(A) + int32(Other.A), 255));
	}

	/**
	 * Reads "RGB", "RRGGBB" or "RRGGBBAA" after an optional '#'; alpha is 255 in the shorter forms. Any other length
	 * gives (0, 0, 0, 0); a character that is no hexadecimal digit counts as 0. Nothing is logged.
	 */
	CORE_API static FColor FromHex(const FString& HexString);

	/** "RRGGBBAA", upper case, without '#'. */
	CORE_API FString ToHex() const;

	/** "(R=255,G=0,B=0,A=255)" */
	CORE_API FString ToString() const;
	/** Reads the form of ToString; A may be absent and is then 255. Returns false, leaving this alone, when a channel is missing. */
	CORE_API bool InitFromString(const FString& Text);

	constexpr FColor WithAlpha(uint8 Alpha) const { return FColor(R, G, B, Alpha); }

	/** The channels divided by 255, without the sRGB curve. */
	FLinearColor ReinterpretAsLinear() const;

	/** 0xAARRGGBB. */
	constexpr uint32 ToPackedARGB() const { return uint32(A) << 24 | uint32(R) << 16 | uint32(G) << 8 | uint32(B); }
	constexpr uint32 ToPackedRGBA() const { return uint32(R) << 24 | uint32(G) << 16 | uint32(B) << 8 | uint32(A); }
	constexpr uint32 ToPackedABGR() const { return uint32(A) << 24 | uint32(B) << 16 | uint32(G) << 8 | uint32(R); }
	constexpr uint32 DWColor() const { return ToPackedARGB(); }
};

inline uint32 GetTypeHash(const FColor& Color)
{
	return Color.DWColor();
}

/** A colour in linear light, straight alpha. */
struct FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	CORE_API static const FLinearColor White;
	CORE_API static const FLinearColor Gray;
	CORE_API static const FLinearColor Black;
	/** Black with alpha 0. */
	CORE_API static const FLinearColor Transparent;
	CORE_API static const FLinearColor Red;
	CORE_API static const FLinearColor Green;
	CORE_API static const FLinearColor Blue;
	CORE_API static const FLinearColor Yellow;

	/** Leaves the channels unset. */
	FLinearColor() = default;
	constexpr explicit FLinearColor(EForceInit) : R(0), G(0), B(0), A(0) {}
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f) : R(InR), G(InG), B(InB), A(InA) {}
	/** Red, green and blue through the sRGB curve; alpha divided by 255. */
	CORE_API FLinearColor(const FColor& Color);
	CORE_API explicit FLinearColor(const FVector& Vector);
	CORE_API explicit FLinearColor(const FVector4& Vector);

	constexpr bool operator==(const FLinearColor& Other) const { return R == Other.R && G == Other.G && B == Other.B && A == Other.A; }
	constexpr bool operator!=(const FLinearColor& Other) const { return !(*this == Other); }

	constexpr FLinearColor operator+(const FLinearColor& Other) const { return FLinearColor(R + Other.R, G + Other.G, B + Other.B, A + Other.A); }
	constexpr FLinearColor operator-(const FLinearColor& Other) const { return FLinearColor(R - Other.R, G - Other.G, B - Other.B, A - Other.A); }
	constexpr FLinearColor operator*(const FLinearColor& Other) const { return FLinearColor(R * Other.R, G * Other.G, B * Other.B, A * Other.A); }
	constexpr FLinearColor operator/(const FLinearColor& Other) const { return FLinearColor(R / Other.R, G / Other.G, B / Other.B, A / Other.A); }
	constexpr FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	constexpr FLinearColor operator/(float Scalar) const { return *this * (1.0f / Scalar); }
	constexpr FLinearColor& operator+=(const FLinearColor& Other) { return *this = *this + Other; }
	constexpr FLinearColor& operator-=(const FLinearColor& Other) { return *this = *this - Other; }
	constexpr FLinearColor& operator*=(const FLinearColor& Other) { return *this = *this * Other; }
	constexpr FLinearColor& operator*=(float Scalar) { return *this = *this * Scalar; }
	constexpr FLinearColor& operator/=(float Scalar) { return *this = *this / Scalar; }

	float& Component(int32 Index)
	{
		check(Index >= 0 && Index < 4);
		return Index < 2 ? (Index == 0 ? R : G) : (Index == 2 ? B : A);
	}

	float Component(int32 Index) const
	{
		check(Index >= 0 && Index < 4);
		return Index < 2 ? (Index == 0 ? R : G) : (Index == 2 ? B : A);
	}

	constexpr bool Equals(const FLinearColor& Other, float Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - Other.R) < Tolerance && FMath::Abs(G - Other.G) < Tolerance
			&& FMath::Abs(B - Other.B) < Tolerance && FMath::Abs(A - Other.A) < Tolerance;
	}

	constexpr bool IsAlmostBlack() const { return R * R < UE_DOUBLE_SMALL_NUMBER && G * G < UE_DOUBLE_SMALL_NUMBER && B * B < UE_DOUBLE_SMALL_NUMBER; }
	constexpr FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }
	constexpr FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const
	{
		return FLinearColor(FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax), FMath::Clamp(B, InMin, InMax), FMath::Clamp(A, InMin, InMax));
	}

	constexpr float GetMax() const { return FMath::Max(FMath::Max(FMath::Max(R, G), B), A); }
	constexpr float GetMin() const { return FMath::Min(FMath::Min(FMath::Min(R, G), B), A); }
	/** How bright the colour looks: 0.3, 0.59 and 0.11 of red, green and blue. */
	constexpr float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }
	/** Toward the gray of the same luminance, wholly at 1. */
	CORE_API FLinearColor Desaturate(float Desaturation) const;

	/** Channels are clamped to [0, 1] and rounded; bSRGB puts red, green and blue through the sRGB curve. */
	CORE_API FColor ToFColor(bool bSRGB) const;
	/** ToFColor(true): the inverse of the construction from FColor, exact for each of the 256 values. */
	CORE_API FColor ToFColorSRGB() const;
	/** ToFColor(false). */
	CORE_API FColor QuantizeRound() const;

	static FLinearColor FromSRGBColor(const FColor& Color) { return FLinearColor(Color); }

	/** Hue in degrees [0, 360) as R, saturation and value in [0, 1] as G and B, alpha. */
	CORE_API FLinearColor LinearRGBToHSV() const;
	CORE_API FLinearColor HSVToLinearRGB() const;
	/** Interpolates hue the shorter way round, saturation, value and alpha. */
	CORE_API static FLinearColor LerpUsingHSV(const FLinearColor& From, const FLinearColor& To, float Progress);

	static float Dist(const FLinearColor& V1, const FLinearColor& V2)
	{
		const FLinearColor D = V2 - V1;
		return FMath::Sqrt(D.R * D.R + D.G * D.G + D.B * D.B + D.A * D.A);
	}

	/** "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)" */
	CORE_API FString ToString() const;
	/** Reads the form of ToString; A may be absent and is then 1. Returns false, leaving this alone, when a channel is missing. */
	CORE_API bool InitFromString(const FString& Text);
};

inline constexpr FLinearColor operator*(float Scalar, const FLinearColor& Color)
{
	return Color * Scalar;
}

inline uint32 GetTypeHash(const FLinearColor& Color)
{
	// Adding zero makes -0 and 0, which are equal, hash alike.
	uint32 Hash = std::bit_cast<uint32>(Color.R + 0.0f);
	Hash = Hash * 31u + std::bit_cast<uint32>(Color.G + 0.0f);
	Hash = Hash * 31u + std::bit_cast<uint32>(Color.B + 0.0f);
	return Hash * 31u + std::bit_cast<uint32>(Color.A + 0.0f);
}

inline FLinearColor FColor::ReinterpretAsLinear() const
{
	return FLinearColor(R / 255.0f, G / 255.0f, B / 255.0f, A / 255.0f);
}
