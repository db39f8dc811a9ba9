#include "Math/Color.h"

#include "Math/Vector4.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <cmath>
#include <cstring>

namespace
{
	/** The curve of sRGB as its standard gives it. */
	double ReferenceToLinear(double Channel)
	{
		return Channel <= 0.04045 ? Channel / 12.92 : std::pow((Channel + 0.055) / 1.055, 2.4);
	}

	double ReferenceFromLinear(double Value)
	{
		return Value <= 0.0031308 ? Value * 12.92 : 1.055 * std::pow(Value, 1.0 / 2.4) - 0.055;
	}
}

TEST(ColorTest, ChannelsAreStoredBlueFirst)
{
	const FColor Color(1, 2, 3, 4);
	const uint8 Expected[] = {3, 2, 1, 4};
	EXPECT_EQ(0, std::memcmp(&Color, Expected, sizeof(Expected)));
	static_assert(sizeof(FColor) == 4);
}

TEST(ColorTest, AlphaIsOpaqueUnlessGiven)
{
	EXPECT_EQ(FColor(1, 2, 3, 255), FColor(1, 2, 3));
	EXPECT_EQ(FLinearColor(0.1f, 0.2f, 0.3f, 1.0f), FLinearColor(0.1f, 0.2f, 0.3f));
}

TEST(ColorTest, SixHexDigitsAreOpaque)
{
	EXPECT_EQ(FColor(0x12, 0x34, 0xAB, 255), FColor::FromHex(TEXT("1234AB")));
}

TEST(ColorTest, EightHexDigitsHaveAlphaLast)
{
	EXPECT_EQ(FColor(0x12, 0x34, 0x56, 0x78), FColor::FromHex(TEXT("12345678")));
}

TEST(ColorTest, ThreeHexDigitsAreDoubled)
{
	EXPECT_EQ(FColor(0x11, 0xAA, 0xFF, 255), FColor::FromHex(TEXT("1af")));
}

TEST(ColorTest, AHashSignMayLead)
{
	EXPECT_EQ(FColor(0x12, 0x34, 0xAB, 255), FColor::FromHex(TEXT("#1234ab")));
	EXPECT_EQ(FColor(0x11, 0x22, 0x33, 255), FColor::FromHex(TEXT("#123")));
	EXPECT_EQ(FColor(1, 2, 3, 4), FColor::FromHex(TEXT("#01020304")));
}

TEST(ColorTest, OtherLengthsAreTransparentBlack)
{
	for (const TCHAR* const Text : {TEXT(""), TEXT("#"), TEXT("1"), TEXT("12"), TEXT("1234"), TEXT("12345"), TEXT("1234567"), TEXT("123456789"), TEXT("##123456")})
	{
		EXPECT_EQ(FColor(0, 0, 0, 0), FColor::FromHex(Text)) << TCHAR_TO_UTF8(Text);
	}
}

TEST(ColorTest, WhatIsNoHexDigitCountsAsZero)
{
	EXPECT_EQ(FColor(0x0F, 0xF0, 0, 255), FColor::FromHex(TEXT("gFFz!?")));
}

TEST(ColorTest, ToHexWritesUpperCaseWithAlphaLast)
{
	EXPECT_EQ("0AFF0B80", ToUtf8(FColor(0x0A, 0xFF, 0x0B, 0x80).ToHex()));
}

TEST(ColorTest, PackedFormsNameTheirOrder)
{
	const FColor Color(0x11, 0x22, 0x33, 0x44);
	EXPECT_EQ(0x44112233u, Color.ToPackedARGB());
	EXPECT_EQ(0x11223344u, Color.ToPackedRGBA());
	EXPECT_EQ(0x44332211u, Color.ToPackedABGR());
	EXPECT_EQ(Color, FColor(0x44112233u));
}

TEST(ColorTest, EveryCodeBecomesTheCurvesValue)
{
	for (int32 Code = 0; Code < 256; ++Code)
	{
		const FLinearColor Linear(FColor(uint8(Code), 0, 0));
		EXPECT_EQ(float(ReferenceToLinear(Code / 255.0)), Linear.R) << Code;
	}
}

TEST(ColorTest, AlphaIsLinearInTheConversion)
{
	EXPECT_FLOAT_EQ(128.0f / 255.0f, FLinearColor(FColor(0, 0, 0, 128)).A);
}

TEST(ColorTest, EveryCodeSurvivesTheWayToLinearAndBack)
{
	for (int32 Code = 0; Code < 256; ++Code)
	{
		const FColor Color(uint8(Code), uint8(255 - Code), uint8(Code), uint8(Code));
		EXPECT_EQ(Color, FLinearColor(Color).ToFColor(true)) << Code;
	}
}

TEST(ColorTest, LinearValuesGoToTheNearestCode)
{
	for (int32 Step = 0; Step <= 100000; ++Step)
	{
		const float Value = float(Step) / 100000.0f;
		const double Exact = ReferenceFromLinear(double(Value)) * 255.0;
		const double Distance = std::abs(double(FLinearColor(Value, 0, 0).ToFColorSRGB().R) - Exact);
		ASSERT_LE(Distance, 0.5 + 1e-3) << Value;
	}
}

TEST(ColorTest, ConversionToCodesClamps)
{
	EXPECT_EQ(FColor(255, 0, 255, 0), FLinearColor(2.0f, -1.0f, 1e30f, -0.5f).ToFColor(true));
	EXPECT_EQ(FColor(255, 0, 255, 255), FLinearColor(2.0f, -1.0f, 1e30f, 7.0f).ToFColor(false));
}

TEST(ColorTest, WhatIsNoNumberBecomesZero)
{
	const float NaN = std::nanf("");
	EXPECT_EQ(FColor(0, 0, 0, 0), FLinearColor(NaN, NaN, NaN, NaN).ToFColor(true));
}

TEST(ColorTest, ConversionWithoutTheCurveRounds)
{
	EXPECT_EQ(FColor(128, 64, 0, 255), FLinearColor(0.5f, 0.25f, 0.0f).ToFColor(false));
}

TEST(ColorTest, ReinterpretingSkipsTheCurve)
{
	const FLinearColor Linear = FColor(51, 102, 255, 0).ReinterpretAsLinear();
	EXPECT_TRUE(Linear.Equals(FLinearColor(0.2f, 0.4f, 1.0f, 0.0f), 1e-6f));
}

TEST(ColorTest, ConstantsHaveTheirDocumentedValues)
{
	EXPECT_EQ(FLinearColor(1, 1, 1, 1), FLinearColor::White);
	EXPECT_EQ(FLinearColor(0.5f, 0.5f, 0.5f, 1), FLinearColor::Gray);
	EXPECT_EQ(FLinearColor(0, 0, 0, 1), FLinearColor::Black);
	EXPECT_EQ(FLinearColor(0, 0, 0, 0), FLinearColor::Transparent);
	EXPECT_EQ(FLinearColor(1, 1, 0, 1), FLinearColor::Yellow);
	EXPECT_EQ(FColor(255, 255, 255, 255), FColor::White);
	EXPECT_EQ(FColor(0, 0, 0, 0), FColor::Transparent);
}

TEST(ColorTest, ForceInitClearsEveryChannel)
{
	EXPECT_EQ(FLinearColor(0, 0, 0, 0), FLinearColor(ForceInit));
	EXPECT_EQ(FColor(0, 0, 0, 0), FColor(ForceInit));
}

TEST(ColorTest, NewOpacityLeavesTheColour)
{
	EXPECT_EQ(FLinearColor(0.1f, 0.2f, 0.3f, 0.4f), FLinearColor(0.1f, 0.2f, 0.3f, 0.9f).CopyWithNewOpacity(0.4f));
}

TEST(ColorTest, MultiplyingIsPerChannel)
{
	EXPECT_EQ(FLinearColor(0.5f, 0.0f, 0.25f, 0.5f), FLinearColor(0.5f, 1.0f, 0.5f, 1.0f) * FLinearColor(1.0f, 0.0f, 0.5f, 0.5f));
	EXPECT_EQ(FLinearColor(0.25f, 0.5f, 0.25f, 0.5f), FLinearColor(0.5f, 1.0f, 0.5f, 1.0f) * 0.5f);
}

TEST(ColorTest, EqualityIsExactAndEqualsHasATolerance)
{
	const FLinearColor A(0.5f, 0.5f, 0.5f);
	const FLinearColor B(0.50005f, 0.5f, 0.5f);
	EXPECT_NE(A, B);
	EXPECT_TRUE(A.Equals(B));
	EXPECT_FALSE(A.Equals(B, 1e-6f));
}

TEST(ColorTest, HueSaturationAndValueComeBack)
{
	for (const FColor Color : {FColor(255, 0, 0), FColor(10, 200, 30), FColor(4, 4, 250), FColor(90, 90, 90), FColor(200, 10, 190), FColor(0, 0, 0)})
	{
		const FLinearColor Linear(Color);
		EXPECT_TRUE(Linear.LinearRGBToHSV().HSVToLinearRGB().Equals(Linear, 1e-4f)) << TCHAR_TO_UTF8(*Color.ToString());
	}
}

TEST(ColorTest, HueIsInDegrees)
{
	EXPECT_FLOAT_EQ(0.0f, FLinearColor::Red.LinearRGBToHSV().R);
	EXPECT_FLOAT_EQ(120.0f, FLinearColor::Green.LinearRGBToHSV().R);
	EXPECT_FLOAT_EQ(240.0f, FLinearColor::Blue.LinearRGBToHSV().R);
	EXPECT_FLOAT_EQ(60.0f, FLinearColor::Yellow.LinearRGBToHSV().R);
}

TEST(ColorTest, InterpolatingHueTakesTheShorterWay)
{
	// From 300 degrees to 60 the shorter way leads over 0, which is red.
	const FLinearColor Middle = FLinearColor::LerpUsingHSV(FLinearColor(1, 0, 1), FLinearColor(1, 1, 0), 0.5f);
	EXPECT_TRUE(Middle.Equals(FLinearColor::Red, 1e-4f)) << TCHAR_TO_UTF8(*Middle.ToString());
}

TEST(ColorTest, TextFormComesBack)
{
	FLinearColor Linear(ForceInit);
	EXPECT_TRUE(Linear.InitFromString(FLinearColor(0.25f, 0.5f, 0.75f, 0.125f).ToString()));
	EXPECT_EQ(FLinearColor(0.25f, 0.5f, 0.75f, 0.125f), Linear);

	FColor Color(ForceInit);
	EXPECT_TRUE(Color.InitFromString(FColor(1, 2, 3, 4).ToString()));
	EXPECT_EQ(FColor(1, 2, 3, 4), Color);
}

TEST(ColorTest, TextWithoutAlphaIsOpaqueAndBrokenTextChangesNothing)
{
	FLinearColor Linear(ForceInit);
	EXPECT_TRUE(Linear.InitFromString(TEXT("(R=1,G=0,B=0)")));
	EXPECT_EQ(FLinearColor::Red, Linear);
	EXPECT_FALSE(Linear.InitFromString(TEXT("(R=0,G=1)")));
	EXPECT_EQ(FLinearColor::Red, Linear);
}

TEST(ColorTest, AFourVectorTakesTheLinearChannels)
{
	EXPECT_EQ(FVector4(0.5, 0.25, 1.0, 0.75), FVector4(FLinearColor(0.5f, 0.25f, 1.0f, 0.75f)));
}
