#include "Math/Color.h"

#include "Containers/UnrealString.h"
#include "Math/Vector.h"
#include "Math/Vector4.h"
#include "Misc/Parse.h"

#include <array>

constexpr FColor FColor::White(255, 255, 255);
constexpr FColor FColor::Black(0, 0, 0);
constexpr FColor FColor::Transparent(0, 0, 0, 0);
constexpr FColor FColor::Red(255, 0, 0);
constexpr FColor FColor::Green(0, 255, 0);
constexpr FColor FColor::Blue(0, 0, 255);
constexpr FColor FColor::Yellow(255, 255, 0);
constexpr FColor FColor::Cyan(0, 255, 255);
constexpr FColor FColor::Magenta(255, 0, 255);

constexpr FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
constexpr FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
constexpr FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
constexpr FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
constexpr FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
constexpr FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
constexpr FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);
constexpr FLinearColor FLinearColor::Yellow(1.0f, 1.0f, 0.0f);

namespace
{
	/** The sRGB curve, both ways, by tables: as exact as the formula, and cheap enough for every colour painted. */
	class FSRGBTables
	{
	public:
		static const FSRGBTables& Get()
		{
			static const FSRGBTables Tables;
			return Tables;
		}

		float ToLinear(uint8 Code) const
		{
			return Linear[Code];
		}

		/** The code whose channel value is nearest to the curve at a linear value; what is no number counts as 0. */
		uint8 FromLinear(float Value) const
		{
			if (!(Value > 0.0f))
			{
				return 0;
			}
			if (Value >= 1.0f)
			{
				return 255;
			}
			uint32 Code = FirstCode[uint32(Value * BinCount)];
			while (Value >= Threshold[Code])
			{
				++Code;
			}
			return uint8(Code);
		}

	private:
		static constexpr uint32 BinCount = 1024;

		/** Linear value of each code. */
		std::array<float, 256> Linear;
		/** Where each code ends: the linear value half way to the next code on the curve. */
		std::array<float, 256> Threshold;
		/** The lowest code that a bin of linear values holds. */
		std::array<uint8, BinCount> FirstCode;

		static double CurveToLinear(double Channel)
		{
			return Channel <= 0.04045 ? Channel / 12.92 : std::pow((Channel + 0.055) / 1.055, 2.4);
		}

		FSRGBTables()
		{
			for (uint32 Code = 0; Code < 256; ++Code)
			{
				Linear[Code] = float(CurveToLinear(Code / 255.0));
				Threshold[Code] = float(CurveToLinear((Code + 0.5) / 255.0));
			}
			uint32 Code = 0;
			for (uint32 Bin = 0; Bin < BinCount; ++Bin)
			{
				while (float(Bin) / BinCount >= Threshold[Code])
				{
					++Code;
				}
				FirstCode[Bin] = uint8(Code);
			}
		}
	};

	uint8 QuantizeChannel(float Value)
	{
		if (!(Value > 0.0f))
		{
			return 0;
		}
		return Value >= 1.0f ? 255 : uint8(Value * 255.0f + 0.5f);
	}
}

FColor FColor::FromHex(const FString& HexString)
{
	const int32 Start = !HexString.IsEmpty() && HexString[0] == TEXT('#') ? 1 : 0;
	const int32 DigitCount = HexString.Len() - Start;
	const auto Digit = [&](int32 Index) { return FParse::HexDigit(HexString[Start + Index]); };
	if (DigitCount == 3)
	{
		return FColor(uint8(Digit(0) * 17), uint8(Digit(1) * 17), uint8(Digit(2) * 17));
	}
	const auto Pair = [&](int32 Index) { return uint8(Digit(2 * Index) * 16 + Digit(2 * Index + 1)); };
	if (DigitCount == 6)
	{
		return FColor(Pair(0), Pair(1), Pair(2));
	}
	if (DigitCount == 8)
	{
		return FColor(Pair(0), Pair(1), Pair(2), Pair(3));
	}
	return FColor(ForceInit);
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%u,G=%u,B=%u,A=%u)"), R, G, B, A);
}

bool FColor::InitFromString(const FString& Text)
{
	FColor Read(0, 0, 0);
	if (!FParse::Value(*Text, TEXT("R="), Read.R) || !FParse::Value(*Text, TEXT("G="), Read.G) || !FParse::Value(*Text, TEXT("B="), Read.B))
	{
		return false;
	}
	FParse::Value(*Text, TEXT("A="), Read.A);
	*this = Read;
	return true;
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(FSRGBTables::Get().ToLinear(Color.R))
	, G(FSRGBTables::Get().ToLinear(Color.G))
	, B(FSRGBTables::Get().ToLinear(Color.B))
	, A(Color.A / 255.0f)
{
}

FLinearColor::FLinearColor(const FVector& Vector)
	: R(float(Vector.X))
	, G(float(Vector.Y))
	, B(float(Vector.Z))
	, A(1.0f)
{
}

FLinearColor::FLinearColor(const FVector4& Vector)
	: R(float(Vector.X))
	, G(float(Vector.Y))
	, B(float(Vector.Z))
	, A(float(Vector.W))
{
}

FLinearColor FLinearColor::Desaturate(float Desaturation) const
{
	const float Luminance = GetLuminance();
	return FMath::Lerp(*this, FLinearColor(Luminance, Luminance, Luminance, A), Desaturation);
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	return bSRGB ? ToFColorSRGB() : QuantizeRound();
}

FColor FLinearColor::ToFColorSRGB() const
{
	const FSRGBTables& Tables = FSRGBTables::Get();
	return FColor(Tables.FromLinear(R), Tables.FromLinear(G), Tables.FromLinear(B), QuantizeChannel(A));
}

FColor FLinearColor::QuantizeRound() const
{
	return FColor(QuantizeChannel(R), QuantizeChannel(G), QuantizeChannel(B), QuantizeChannel(A));
}

FLinearColor FLinearColor::LinearRGBToHSV() const
{
	const float Greatest = FMath::Max3(R, G, B);
	const float Range = Greatest - FMath::Min3(R, G, B);
	float Hue = 0.0f;
	if (Range > 0.0f)
	{
		if (Greatest == R)
		{
			Hue = FMath::Fmod(60.0f * (G - B) / Range + 360.0f, 360.0f);
		}
		else if (Greatest == G)
		{
			Hue = 60.0f * (B - R) / Range + 120.0f;
		}
		else
		{
			Hue = 60.0f * (R - G) / Range + 240.0f;
		}
	}
	return FLinearColor(Hue, Greatest > 0.0f ? Range / Greatest : 0.0f, Greatest, A);
}

FLinearColor FLinearColor::HSVToLinearRGB() const
{
	const float Saturation = G;
	const float Value = B;
	const float Sextant = R / 60.0f;
	const float Floor = std::floor(Sextant);
	const float Fraction = Sextant - Floor;
	const float Low = Value * (1.0f - Saturation);
	const float Falling = Value * (1.0f - Fraction * Saturation);
	const float Rising = Value * (1.0f - (1.0f - Fraction) * Saturation);
	switch (((int32(Floor) % 6) + 6) % 6)
	{
	case 0: return FLinearColor(Value, Rising, Low, A);
	case 1: return FLinearColor(Falling, Value, Low, A);
	case 2: return FLinearColor(Low, Value, Rising, A);
	case 3: return FLinearColor(Low, Falling, Value, A);
	case 4: return FLinearColor(Rising, Low, Value, A);
	default: return FLinearColor(Value, Low, Falling, A);
	}
}

FLinearColor FLinearColor::LerpUsingHSV(const FLinearColor& From, const FLinearColor& To, float Progress)
{
	const FLinearColor FromHSV = From.LinearRGBToHSV();
	const FLinearColor ToHSV = To.LinearRGBToHSV();
	const float Turn = float(FMath::FindDeltaAngleDegrees(FromHSV.R, ToHSV.R));
	FLinearColor Result = FMath::Lerp(FromHSV, ToHSV, Progress);
	Result.R = FMath::Fmod(FromHSV.R + Progress * Turn + 360.0f, 360.0f);
	return Result.HSVToLinearRGB();
}

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
}

bool FLinearColor::InitFromString(const FString& Text)
{
	FLinearColor Read(0.0f, 0.0f, 0.0f);
	if (!FParse::Value(*Text, TEXT("R="), Read.R) || !FParse::Value(*Text, TEXT("G="), Read.G) || !FParse::Value(*Text, TEXT("B="), Read.B))
	{
		return false;
	}
	FParse::Value(*Text, TEXT("A="), Read.A);
	*this = Read;
	return true;
}
