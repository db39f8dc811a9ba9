#pragma once

#include "CoreMinimal.h"

/** Arithmetic on premultiplied pixels of 8 bits a channel, B lowest. All exact, so that pictures are the same everywhere. */
namespace Host::PixelMath
{
	inline constexpr uint32 EvenMask = 0x00ff00ffu;

	/** A * B / 255, rounded, for bytes. */
	inline uint32 Multiply(uint32 A, uint32 B)
	{
		const uint32 Product = A * B + 128;
		return (Product + (Product >> 8)) >> 8;
	}

	/** Two channels of 16 bits each, divided by 255, rounded. */
	inline uint32 DividePair(uint32 Pair)
	{
		const uint32 Biased = Pair + 0x00800080u;
		return (Biased + (Biased >> 8 & EvenMask)) >> 8 & EvenMask;
	}

	/** All channels times Share / 255. */
	inline uint32 Scale(uint32 Pixel, uint32 Share)
	{
		return DividePair((Pixel & EvenMask) * Share) | DividePair((Pixel >> 8 & EvenMask) * Share) << 8;
	}

	inline uint32 Alpha(uint32 Pixel)
	{
		return Pixel >> 24;
	}

	/** Source over destination. */
	inline uint32 Over(uint32 Source, uint32 Destination)
	{
		return Source + Scale(Destination, 255 - Alpha(Source));
	}

	/** A * ShareA / 255 + B * ShareB / 255, where the shares add up to 255 at most. */
	inline uint32 Mix(uint32 A, uint32 ShareA, uint32 B, uint32 ShareB)
	{
		const uint32 Even = (A & EvenMask) * ShareA + (B & EvenMask) * ShareB;
		const uint32 Odd = (A >> 8 & EvenMask) * ShareA + (B >> 8 & EvenMask) * ShareB;
		return DividePair(Even) | DividePair(Odd) << 8;
	}

	/** From A (at Fraction 0) towards B (at 256), channel by channel. */
	inline uint32 Interpolate(uint32 A, uint32 B, uint32 Fraction)
	{
		const uint32 Rest = 256 - Fraction;
		const uint32 Even = ((A & EvenMask) * Rest + (B & EvenMask) * Fraction + 0x00800080u) >> 8 & EvenMask;
		const uint32 Odd = ((A >> 8 & EvenMask) * Rest + (B >> 8 & EvenMask) * Fraction + 0x00800080u) & ~EvenMask;
		return Even | Odd;
	}

	inline uint32 Premultiply(const FColor& Colour)
	{
		const uint32 A = Colour.A;
		return Multiply(Colour.B, A) | Multiply(Colour.G, A) << 8 | Multiply(Colour.R, A) << 16 | A << 24;
	}

	/** Each channel of the pixel times the same channel of the tint, both premultiplied. */
	inline uint32 Tint(uint32 Pixel, uint32 TintColour)
	{
		return Multiply(Pixel & 255, TintColour & 255) | Multiply(Pixel >> 8 & 255, TintColour >> 8 & 255) << 8
			| Multiply(Pixel >> 16 & 255, TintColour >> 16 & 255) << 16 | Multiply(Pixel >> 24, TintColour >> 24) << 24;
	}

	/** The pixel as if it were opaque: its colour with full alpha. */
	inline uint32 Opaque(uint32 Pixel)
	{
		const uint32 A = Alpha(Pixel);
		if (A == 255 || A == 0)
		{
			return Pixel | 0xff000000u;
		}
		const auto Divide = [A](uint32 Channel) { return FMath::Min<uint32>((Channel * 255 + A / 2) / A, 255); };
		return Divide(Pixel & 255) | Divide(Pixel >> 8 & 255) << 8 | Divide(Pixel >> 16 & 255) << 16 | 0xff000000u;
	}

	/** The colour of a premultiplied pixel with straight alpha. */
	inline FColor ToStraight(uint32 Pixel)
	{
		const uint32 Colour = Alpha(Pixel) == 0 ? 0 : Opaque(Pixel);
		return FColor(static_cast<uint8>(Colour >> 16), static_cast<uint8>(Colour >> 8), static_cast<uint8>(Colour), static_cast<uint8>(Alpha(Pixel)));
	}

	/** A share of 0 to 1 in 255 steps; what lies beyond is cut. */
	inline uint32 ToShare(float Value)
	{
		if (!(Value > 0.0f))
		{
			return 0;
		}
		return Value < 1.0f ? static_cast<uint32>(Value * 255.0f + 0.5f) : 255;
	}
}
