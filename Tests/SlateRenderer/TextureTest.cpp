#include "Host/Texture.h"

#include <gtest/gtest.h>

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
