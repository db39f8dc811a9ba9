#include "Host/Texture.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace Host;

TEST(Texture, KeepsPixelsPremultiplied)
{
	const FColor Pixel(200, 100, 0, 128);
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(1, 1), MakeArrayView(&Pixel, 1), EPixelAlpha::Straight);

	EXPECT_EQ(Texture->GetPixels()[0], 0x80643200u);
	EXPECT_FALSE(Texture->IsOpaque());
}

TEST(Texture, IgnoredAlphaCountsAsFull)
{
	const FColor Pixel(200, 100, 0, 0);
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(1, 1), MakeArrayView(&Pixel, 1), EPixelAlpha::Ignored);

	EXPECT_EQ(Texture->GetPixels()[0], 0xffc86400u);
	EXPECT_TRUE(Texture->IsOpaque());
}

TEST(Texture, ChannelsAboveAlphaAreCut)
{
	const FColor Pixel(200, 10, 0, 100);
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(1, 1), MakeArrayView(&Pixel, 1), EPixelAlpha::Premultiplied);

	EXPECT_EQ(Texture->GetPixels()[0], 0x64640a00u);
}

TEST(Texture, UpdatesRaiseTheGenerationAndChangeOnlyTheirArea)
{
	const FColor Red(255, 0, 0, 255);
	const TSharedRef<FTexture> Texture = FTexture::MakeUpdatable(FIntPoint(3, 2), TConstArrayView<FColor>(), EPixelAlpha::Straight);
	EXPECT_EQ(Texture->GetGeneration(), 1u);

	Texture->Update(FPixelRect::Make(1, 1, 2, 2), MakeArrayView(&Red, 1), EPixelAlpha::Straight);

	EXPECT_EQ(Texture->GetGeneration(), 2u);
	EXPECT_EQ(Texture->GetPixels()[4], 0xffff0000u);
	EXPECT_EQ(Texture->GetPixels()[3], 0u);
	EXPECT_EQ(Texture->GetPixels()[5], 0u);
}

TEST(Texture, MipsAreMeansOfFourPixels)
{
	const FColor Pixels[4] = { FColor(0, 0, 0, 255), FColor(255, 0, 0, 255), FColor(0, 255, 0, 255), FColor(1, 1, 200, 255) };
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(2, 2), MakeArrayView(Pixels, 4), EPixelAlpha::Straight);
	FIntPoint Size;

	const uint32* Mip = Texture->GetMip(1, Size);

	EXPECT_EQ(Size, FIntPoint(1, 1));
	EXPECT_EQ(Mip[0], 0xff404032u);
	EXPECT_EQ(Texture->GetNumMips(), 2);
}

TEST(Texture, NarrowTexturesHaveMipsToo)
{
	TArray<FColor> Pixels;
	Pixels.Init(FColor(80, 80, 80, 255), 9);
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(9, 1), Pixels, EPixelAlpha::Straight);
	FIntPoint Size;

	const uint32* Mip = Texture->GetMip(3, Size);

	EXPECT_EQ(Size, FIntPoint(1, 1));
	EXPECT_EQ(Mip[0], 0xff505050u);
	EXPECT_EQ(Texture->GetMip(100, Size), Mip) << "there is no level beyond one pixel";
}

TEST(Texture, UpdatesMakeNewMips)
{
	TArray<FColor> Pixels;
	Pixels.Init(FColor(80, 80, 80, 255), 4);
	const TSharedRef<FTexture> Texture = FTexture::MakeUpdatable(FIntPoint(2, 2), Pixels, EPixelAlpha::Straight);
	FIntPoint Size;
	Texture->GetMip(1, Size);
	Pixels.Init(FColor(90, 90, 90, 255), 4);

	Texture->Update(FPixelRect::Make(0, 0, 2, 2), Pixels, EPixelAlpha::Straight);

	EXPECT_EQ(Texture->GetMip(1, Size)[0], 0xff5a5a5au);
}

namespace
{
	/** No two pixels alike, half of the rows with see-through ones. */
	TArray<FColor> MakeMixedPixels(FIntPoint Size)
	{
		TArray<FColor> Pixels;
		for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
		{
			const bool bOpaque = Index / Size.X % 2 == 0;
			Pixels.Add(FColor(static_cast<uint8>(Index * 7), static_cast<uint8>(Index * 13), static_cast<uint8>(Index * 29), static_cast<uint8>(bOpaque ? 255 : Index * 3)));
		}
		return Pixels;
	}

	void FillRows(FTexture& Texture, TConstArrayView<FColor> Pixels, int32 Top, int32 Bottom)
	{
		const int32 Width = Texture.GetSize().X;
		Texture.Update(FPixelRect::Make(0, Top, Width, Bottom), Pixels.Slice(Top * Width, (Bottom - Top) * Width), EPixelAlpha::Straight);
	}

	void ExpectSameLevels(const FTexture& Actual, const FTexture& Expected)
	{
		for (int32 Level = 0; Level < Expected.GetNumMips(); ++Level)
		{
			FIntPoint Size;
			FIntPoint ActualSize;
			const uint32* ExpectedPixels = Expected.GetMip(Level, Size);
			const uint32* ActualPixels = Actual.GetMip(Level, ActualSize);
			ASSERT_EQ(ActualSize, Size);
			for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
			{
				ASSERT_EQ(ActualPixels[Index], ExpectedPixels[Index]) << "pixel " << Index << " of level " << Level;
			}
		}
	}

	/** Width, height, and rows that are filled in at a time. */
	class FTextureFill : public testing::TestWithParam<std::tuple<int32, int32, int32>>
	{
	};
}

TEST_P(FTextureFill, MakesTheLevelsAlongWithTheRows)
{
	const auto [Width, Height, Step] = GetParam();
	const FIntPoint Size(Width, Height);
	const TArray<FColor> Pixels = MakeMixedPixels(Size);
	const TSharedRef<const FTexture> Whole = FTexture::Make(Size, Pixels, EPixelAlpha::Straight);
	const TSharedRef<FTexture> Filled = FTexture::MakeUnfilled(Size);
	for (int32 Top = 0; Top < Height; Top += Step)
	{
		const int64 Before = FTexture::GetNumWrittenPixels();
		FillRows(*Filled, Pixels, Top, FMath::Min(Top + Step, Height));
		// Its own pixels, a quarter of them for each further level, and the row of each level that it brings to an end.
		EXPECT_LE(FTexture::GetNumWrittenPixels() - Before, int64(Width) * Step * 2 + 32);
	}
	const int64 AfterFilling = FTexture::GetNumWrittenPixels();
	FIntPoint LastSize;
	Filled->GetMip(Filled->GetNumMips() - 1, LastSize);

	EXPECT_EQ(FTexture::GetNumWrittenPixels(), AfterFilling) << "nothing is left to make when it is shown";
	ExpectSameLevels(*Filled, *Whole);
}

INSTANTIATE_TEST_SUITE_P(Sizes, FTextureFill, testing::Values(std::make_tuple(64, 64, 7), std::make_tuple(33, 21, 1), std::make_tuple(1, 40, 3),
	std::make_tuple(40, 1, 1), std::make_tuple(16, 100, 64), std::make_tuple(1, 1, 1)));

TEST(Texture, FilledInAnyOrderItHasTheSameLevels)
{
	const FIntPoint Size(24, 24);
	const TArray<FColor> Pixels = MakeMixedPixels(Size);
	const TSharedRef<FTexture> Texture = FTexture::MakeUnfilled(Size);
	FillRows(*Texture, Pixels, 10, 24);
	FillRows(*Texture, Pixels, 0, 11);
	FillRows(*Texture, Pixels, 11, 12);

	ExpectSameLevels(*Texture, *FTexture::Make(Size, Pixels, EPixelAlpha::Straight));
}

TEST(Texture, UpdateKeepsTheRowsOfLevelsThatLieAboveIt)
{
	const FIntPoint Size(32, 32);
	const TArray<FColor> Pixels = MakeMixedPixels(Size);
	TArray<FColor> Others = MakeMixedPixels(Size);
	for (int32 Index = 21 * Size.X; Index < Others.Num(); ++Index)
	{
		Others[Index] = FColor(1, 2, 3, 255);
	}
	const TSharedRef<FTexture> Texture = FTexture::MakeUpdatable(Size, Pixels, EPixelAlpha::Straight);
	FIntPoint LevelSize;
	Texture->GetMip(1, LevelSize);

	FillRows(*Texture, Others, 21, 32);
	const int64 Before = FTexture::GetNumWrittenPixels();
	Texture->GetMip(1, LevelSize);

	EXPECT_EQ(FTexture::GetNumWrittenPixels() - Before, 16 * 6);
	ExpectSameLevels(*Texture, *FTexture::Make(Size, Others, EPixelAlpha::Straight));
}

TEST(Texture, LivingOnesAreCounted)
{
	const int32 Before = FTexture::GetNumAlive();
	{
		const FColor Pixel(1, 2, 3, 4);
		const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(1, 1), MakeArrayView(&Pixel, 1), EPixelAlpha::Straight);
		EXPECT_EQ(FTexture::GetNumAlive(), Before + 1);
	}
	EXPECT_EQ(FTexture::GetNumAlive(), Before);
}

TEST(PixelRect, SaturatesInsteadOfWrapping)
{
	EXPECT_EQ(FPixelRect::Make(-1000000, 5, 1000000, 7), (FPixelRect{ -32767, 5, 32767, 7 }));
	EXPECT_EQ(FPixelRect::Around(-1e9f, 0.5f, 1e9f, 1.5f), (FPixelRect{ -32767, 0, 32767, 2 }));
}

TEST(PixelRect, OfNoNumbersIsEmpty)
{
	EXPECT_TRUE(FPixelRect::Around(0.0f / 0.0f, 0.0f, 10.0f, 10.0f).IsEmpty());
}

TEST(PixelRect, EmptyOnesAddNothingToAUnion)
{
	const FPixelRect Rect = FPixelRect::Make(1, 2, 3, 4);
	EXPECT_EQ(Rect.Union(FPixelRect::Make(50, 50, 50, 60)), Rect);
	EXPECT_EQ(FPixelRect().Union(Rect), Rect);
}
