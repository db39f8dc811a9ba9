#include <random>

#include <gtest/gtest.h>

#include "CoreMinimal.h"

// The blending of rows is nobody else's business, but its two forms must be held together.
#include "../../Host/Source/SlateRenderer/Private/Cpu/PixelMath.h"
#include "../../Host/Source/SlateRenderer/Private/Cpu/PixelRows.h"

using namespace Host;

namespace
{
	class PixelRowsForms : public testing::TestWithParam<int32>
	{
	protected:
		uint32 PickPixel()
		{
			const uint32 Word = Random();
			return PixelMath::Premultiply(FColor(static_cast<uint8>(Word), static_cast<uint8>(Word >> 8), static_cast<uint8>(Word >> 16), PickShare()));
		}

		uint8 PickShare()
		{
			const uint32 Word = Random();
			return Word % 4 == 0 ? 0 : (Word % 4 == 1 ? 255 : static_cast<uint8>(Word >> 8));
		}

		void SetUp() override
		{
			for (int32 Index = 0; Index < GetParam(); ++Index)
			{
				Below.Add(PickPixel());
				Above.Add(PickPixel());
				Mask.Add(PickShare());
			}
		}

		std::mt19937 Random{ 7 };
		TArray<uint32> Below;
		TArray<uint32> Above;
		TArray<uint8> Mask;
	};
}

TEST_P(PixelRowsForms, BlendColourIsTheSameInBoth)
{
	const uint32 Colour = PickPixel();
	TArray<uint32> Fast = Below;
	TArray<uint32> Plain = Below;
	PixelRows::BlendColour(Fast.GetData(), Fast.Num(), Colour);
	PixelRows::Plain::BlendColour(Plain.GetData(), Plain.Num(), Colour);
	EXPECT_EQ(Fast, Plain);
}

TEST_P(PixelRowsForms, BlendMaskIsTheSameInBoth)
{
	const uint32 Colour = PickPixel();
	TArray<uint32> Fast = Below;
	TArray<uint32> Plain = Below;
	PixelRows::BlendMask(Fast.GetData(), Mask.GetData(), Fast.Num(), Colour);
	PixelRows::Plain::BlendMask(Plain.GetData(), Mask.GetData(), Plain.Num(), Colour);
	EXPECT_EQ(Fast, Plain);
}

TEST_P(PixelRowsForms, BlendPixelsIsTheSameInBoth)
{
	TArray<uint32> Fast = Below;
	TArray<uint32> Plain = Below;
	PixelRows::BlendPixels(Fast.GetData(), Above.GetData(), Fast.Num());
	PixelRows::Plain::BlendPixels(Plain.GetData(), Above.GetData(), Plain.Num());
	EXPECT_EQ(Fast, Plain);
}

TEST_P(PixelRowsForms, ScaleByMaskIsTheSameInBoth)
{
	TArray<uint32> Fast = Below;
	TArray<uint32> Plain = Below;
	PixelRows::ScaleByMask(Fast.GetData(), Mask.GetData(), Fast.Num());
	PixelRows::Plain::ScaleByMask(Plain.GetData(), Mask.GetData(), Plain.Num());
	EXPECT_EQ(Fast, Plain);
}

INSTANTIATE_TEST_SUITE_P(Lengths, PixelRowsForms, testing::Values(0, 1, 3, 4, 5, 16, 1023));

TEST(PixelMath, MultiplyIsExactForAllBytes)
{
	for (uint32 A = 0; A < 256; ++A)
	{
		for (uint32 B = 0; B < 256; ++B)
		{
			ASSERT_EQ(PixelMath::Multiply(A, B), (A * B * 2 + 255) / 510) << A << " * " << B;
		}
	}
}

TEST(PixelMath, StraightColoursSurvivePremultiplicationWhenOpaque)
{
	const FColor Colour(12, 200, 77, 255);
	EXPECT_EQ(PixelMath::ToStraight(PixelMath::Premultiply(Colour)), Colour);
}

TEST(PixelMath, BlendingNeverOverflowsAChannel)
{
	for (uint32 Alpha = 0; Alpha < 256; ++Alpha)
	{
		const uint32 Source = PixelMath::Premultiply(FColor(255, 255, 255, static_cast<uint8>(Alpha)));
		ASSERT_EQ(PixelMath::Over(Source, 0xffffffffu), 0xffffffffu) << Alpha;
	}
}
