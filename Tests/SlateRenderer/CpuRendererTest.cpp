#include <random>

#include <gtest/gtest.h>

#include "ElementScene.h"
#include "Host/Texture.h"

using namespace ElementScene;
using namespace Host;

namespace
{
	constexpr FColor White(255, 255, 255, 255);
	constexpr FColor Black(0, 0, 0, 255);
	constexpr FColor Red(255, 0, 0, 255);
	constexpr FColor Blue(0, 0, 255, 255);

	class CpuRenderer : public testing::Test
	{
	protected:
		FPicture Draw(const FElements& Elements, FIntPoint Size = FIntPoint(32, 32))
		{
			return ElementScene::Draw(*Renderer, Size, Elements);
		}

		TSharedPtr<FSlateRenderer> Renderer = MakeCpu();
	};

	int32 CountOf(const FPicture& Picture, FColor Colour)
	{
		int32 Count = 0;
		for (const FColor& Pixel : Picture.Pixels)
		{
			Count += Pixel == Colour ? 1 : 0;
		}
		return Count;
	}

	/** Sum of what is missing to white in the red channel, in whole pixels: the area that black covers. */
	float BlackArea(const FPicture& Picture)
	{
		float Sum = 0.0f;
		for (const FColor& Pixel : Picture.Pixels)
		{
			Sum += static_cast<float>(255 - Pixel.R) / 255.0f;
		}
		return Sum;
	}
}

TEST_F(CpuRenderer, PlainBoxFillsExactlyItsPixels)
{
	const FPicture Picture = Draw({ MakeBox(3, 4, 10, 6, Red) });

	EXPECT_EQ(CountOf(Picture, Red), 60);
	EXPECT_EQ(CountOf(Picture, White), 32 * 32 - 60);
	EXPECT_EQ(Picture.At(3, 4), Red);
	EXPECT_EQ(Picture.At(12, 9), Red);
	EXPECT_EQ(Picture.At(2, 4), White);
	EXPECT_EQ(Picture.At(13, 9), White);
}

TEST_F(CpuRenderer, ElementsDrawNothingOutsideOfTheirBounds)
{
	FDrawElement Box = MakeBox(0, 0, 32, 32, Red);
	Box.Bounds = FPixelRect::Make(8, 8, 16, 16);

	const FPicture Picture = Draw({ Box });

	EXPECT_EQ(CountOf(Picture, Red), 64);
	EXPECT_EQ(Picture.At(8, 8), Red);
	EXPECT_EQ(Picture.At(7, 8), White);
}

TEST_F(CpuRenderer, HalfTransparentColoursBlendInSrgbSpace)
{
	const FPicture Picture = Draw({ MakeBox(0, 0, 32, 32, FColor(0, 0, 0, 128)) });

	EXPECT_EQ(Picture.At(5, 5), FColor(127, 127, 127, 255));
}

TEST_F(CpuRenderer, LaterElementsCoverEarlierOnes)
{
	const FPicture Picture = Draw({ MakeBox(0, 0, 20, 20, Red), MakeBox(10, 10, 20, 20, Blue) });

	EXPECT_EQ(Picture.At(9, 9), Red);
	EXPECT_EQ(Picture.At(10, 10), Blue);
}

TEST_F(CpuRenderer, RoundedCornersAreSymmetric)
{
	const FPicture Picture = Draw({ MakeRoundedBox(2, 2, 28, 28, 9.0f, Black) });

	for (int32 Y = 0; Y < 32; ++Y)
	{
		for (int32 X = 0; X < 32; ++X)
		{
			ASSERT_EQ(Picture.At(X, Y), Picture.At(31 - X, Y)) << X << "," << Y;
			ASSERT_EQ(Picture.At(X, Y), Picture.At(X, 31 - Y)) << X << "," << Y;
			ASSERT_EQ(Picture.At(X, Y), Picture.At(Y, X)) << X << "," << Y;
		}
	}
}

TEST_F(CpuRenderer, CircleCoversTheAreaOfACircle)
{
	const FPicture Picture = Draw({ MakeRoundedBox(2, 2, 28, 28, 14.0f, Black) });

	EXPECT_NEAR(BlackArea(Picture), 3.14159f * 14.0f * 14.0f, 1.5f);
	EXPECT_LE(Picture.At(16, 2).R, 4) << "the top of the circle touches the side";
	EXPECT_EQ(Picture.At(2, 2), White);
}

TEST_F(CpuRenderer, PillsOfOddHeightHaveNoSeam)
{
	const FPicture Picture = Draw({ MakeRoundedBox(1, 1, 29, 15, 7.5f, Black) });

	for (int32 X = 8; X < 23; ++X)
	{
		for (int32 Y = 1; Y < 16; ++Y)
		{
			ASSERT_EQ(Picture.At(X, Y), Black) << X << "," << Y;
		}
	}
	EXPECT_EQ(Picture.At(1, 8), Black) << "the middle row reaches the side";
	EXPECT_EQ(Picture.At(29, 8), Black);
}

TEST_F(CpuRenderer, EachCornerHasItsOwnRadius)
{
	FDrawElement Box = MakeBox(0, 0, 32, 32, Black);
	Box.Radii = { 0.0f, 4.0f, 8.0f, 12.0f };

	const FPicture Picture = Draw({ Box });

	EXPECT_EQ(Picture.At(0, 0), Black);
	EXPECT_EQ(Picture.At(31, 0), White);
	EXPECT_EQ(Picture.At(30, 1).R, Picture.At(30, 1).G);
	EXPECT_EQ(Picture.At(30, 30), White);
	EXPECT_EQ(Picture.At(2, 29), White);
	EXPECT_EQ(Picture.At(29, 2), Black) << "a radius of 4 leaves this pixel whole";
}

TEST_F(CpuRenderer, OutlineLiesInsideTheBoxAndIsEvenOnAllSides)
{
	const FPicture Picture = Draw({ MakeRoundedBox(4, 4, 20, 20, 0.0f, Red, 2.0f, Blue) });

	EXPECT_EQ(CountOf(Picture, Blue), 20 * 20 - 16 * 16);
	EXPECT_EQ(CountOf(Picture, Red), 16 * 16);
	EXPECT_EQ(Picture.At(4, 4), Blue);
	EXPECT_EQ(Picture.At(5, 14), Blue);
	EXPECT_EQ(Picture.At(6, 14), Red);
	EXPECT_EQ(Picture.At(22, 14), Blue);
	EXPECT_EQ(Picture.At(14, 23), Blue);
}

TEST_F(CpuRenderer, OutlineReplacesTheFillBeneathIt)
{
	const FPicture Picture = Draw({ MakeRoundedBox(4, 4, 20, 20, 0.0f, Red, 2.0f, FColor(0, 0, 255, 0)) });

	EXPECT_EQ(Picture.At(4, 14), White) << "a transparent outline shows what lies below the box";
	EXPECT_EQ(Picture.At(6, 14), Red);
}

TEST_F(CpuRenderer, OutlineWiderThanTheBoxFillsIt)
{
	const FPicture Picture = Draw({ MakeRoundedBox(4, 4, 11, 9, 3.0f, Red, 20.0f, Blue) });

	EXPECT_EQ(CountOf(Picture, Red), 0);
	EXPECT_EQ(Picture.At(9, 8), Blue);
}

TEST_F(CpuRenderer, BoxAtHalfAPixelCoversItsSidesByHalf)
{
	FDrawElement Box = MakeBox(4, 4, 8, 8, Black);
	Box.LocalToPixel.X = 4.5f;
	Box.Flags = EDrawElementFlags::Translated;
	Box.Bounds = FPixelRect::Make(4, 4, 13, 12);

	const FPicture Picture = Draw({ Box });

	EXPECT_NEAR(Picture.At(4, 6).R, 127, 1);
	EXPECT_EQ(Picture.At(5, 6), Black);
	EXPECT_NEAR(Picture.At(12, 6).R, 127, 1);
	EXPECT_EQ(Picture.At(13, 6), White);
}

TEST_F(CpuRenderer, TurnedBoxKeepsItsArea)
{
	const FPicture Picture = Draw({ MakeTurnedBox(16.0f, 16.0f, 16.0f, 10.0f, 30.0f, 0.0f, Black) });

	EXPECT_NEAR(BlackArea(Picture), 160.0f, 2.0f);
}

TEST_F(CpuRenderer, BoxTurnedByAQuarterIsTheUprightOne)
{
	const FPicture Upright = Draw({ MakeRoundedBox(11, 8, 10, 16, 3.0f, Black) });
	const FPicture Turned = Draw({ MakeTurnedBox(16.0f, 16.0f, 16.0f, 10.0f, 90.0f, 3.0f, Black) });

	EXPECT_TRUE(ComparePictures(Upright, Turned, 1).IsSame()) << TCHAR_TO_UTF8(*ComparePictures(Upright, Turned, 1).ToString());
}

TEST_F(CpuRenderer, GeneralPathDrawsTheSameAsTheOneForWholePixels)
{
	FDrawElement Fast = MakeRoundedBox(3, 5, 24, 21, 7.0f, Red, 2.0f, Blue);
	Fast.Radii.TopRight = 2.0f;
	FDrawElement General = Fast;
	General.Flags = EDrawElementFlags::None;

	EXPECT_TRUE(ComparePictures(Draw({ Fast }), Draw({ General })).IsSame());
}

TEST_F(CpuRenderer, UnscaledImageIsCopiedPixelByPixel)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(16, 12);
	const FPicture Picture = Draw({ MakeImage(5, 6, 16, 12, Texture) });

	EXPECT_EQ(Picture.At(5 + 7, 6 + 3), FColor(255 * 7 / 16, 255 * 3 / 12, 200, 255));
	EXPECT_EQ(Picture.At(5 + 1, 6 + 1), FColor(255 / 16, 255 / 12, 40, 255));
	EXPECT_EQ(Picture.At(4, 6), White);
}

TEST_F(CpuRenderer, TintMultipliesThePicture)
{
	const FColor Grey(200, 200, 200, 255);
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(1, 1), MakeArrayView(&Grey, 1), EPixelAlpha::Straight);
	const FPicture Picture = Draw({ MakeImage(0, 0, 8, 8, Texture, FColor(255, 128, 0, 255)) });

	EXPECT_EQ(Picture.At(3, 3), FColor(200, 100, 0, 255));
}

TEST_F(CpuRenderer, MirroredImageShowsItsRightSideLeft)
{
	const FColor Pixels[2] = { Red, Blue };
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(2, 1), MakeArrayView(Pixels, 2), EPixelAlpha::Straight);
	FDrawElement Image = MakeImage(0, 0, 2, 1, Texture);
	Image.TextureArea = { 1.0f, 0.0f, 0.0f, 1.0f };

	const FPicture Picture = Draw({ Image });

	EXPECT_EQ(Picture.At(0, 0), Blue);
	EXPECT_EQ(Picture.At(1, 0), Red);
}

TEST_F(CpuRenderer, TiledImageRepeats)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(8, 8);
	FDrawElement Image = MakeImage(0, 0, 20, 12, Texture);
	Image.TextureArea = { 0.0f, 0.0f, 20.0f / 8.0f, 12.0f / 8.0f };
	Image.Flags |= EDrawElementFlags::Tiled;

	const FPicture Picture = Draw({ Image });

	for (int32 Y = 0; Y < 12; ++Y)
	{
		for (int32 X = 0; X < 20; ++X)
		{
			ASSERT_EQ(Picture.At(X, Y), Picture.At(X % 8, Y % 8)) << X << "," << Y;
		}
	}
}

TEST_F(CpuRenderer, ImageAtAnEighthOfItsSizeShowsMeans)
{
	TArray<FColor> Pixels;
	for (int32 Index = 0; Index < 64 * 64; ++Index)
	{
		Pixels.Add((Index % 64 + Index / 64) % 2 == 0 ? White : Black);
	}
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(64, 64), Pixels, EPixelAlpha::Straight);

	const FPicture Picture = Draw({ MakeImage(0, 0, 8, 8, Texture) });

	for (int32 Index = 0; Index < 64; ++Index)
	{
		ASSERT_NEAR(Picture.At(Index % 8, Index / 8).R, 128, 2);
	}
}

TEST_F(CpuRenderer, SlicedPictureKeepsItsCornersAndStretchesTheRest)
{
	TArray<FColor> Pixels;
	for (int32 Index = 0; Index < 12 * 12; ++Index)
	{
		const int32 X = Index % 12;
		const int32 Y = Index / 12;
		const bool bSideX = X < 4 || X >= 8;
		const bool bSideY = Y < 4 || Y >= 8;
		Pixels.Add(bSideX && bSideY ? Red : (bSideX || bSideY ? Blue : Black));
	}
	const TSharedRef<const FTexture> Texture = FTexture::Make(FIntPoint(12, 12), Pixels, EPixelAlpha::Straight);
	FDrawElement Element = MakeImage(0, 0, 32, 30, Texture);
	Element.Kind = EDrawElementKind::Sliced;
	Element.Margins = { 4.0f, 4.0f, 4.0f, 4.0f };
	Element.TextureMargins = { 4.0f / 12.0f, 4.0f / 12.0f, 4.0f / 12.0f, 4.0f / 12.0f };

	const FPicture Picture = Draw({ Element });

	EXPECT_EQ(Picture.At(0, 0), Red);
	EXPECT_EQ(Picture.At(3, 3), Red);
	EXPECT_EQ(Picture.At(28, 26), Red);
	EXPECT_EQ(Picture.At(16, 1), Blue);
	EXPECT_EQ(Picture.At(1, 16), Blue);
	EXPECT_EQ(Picture.At(16, 16), Black);
	EXPECT_EQ(Picture.At(31, 29), Red);
}

TEST_F(CpuRenderer, FrameLeavesItsMiddleEmpty)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(12, 12);
	FDrawElement Element = MakeImage(0, 0, 32, 32, Texture);
	Element.Kind = EDrawElementKind::Sliced;
	Element.Flags |= EDrawElementFlags::Frame;
	Element.Margins = { 4.0f, 4.0f, 4.0f, 4.0f };
	Element.TextureMargins = { 4.0f / 12.0f, 4.0f / 12.0f, 4.0f / 12.0f, 4.0f / 12.0f };

	const FPicture Picture = Draw({ Element });

	EXPECT_EQ(Picture.At(16, 16), White);
	EXPECT_EQ(Picture.At(4, 4), White);
	EXPECT_NE(Picture.At(3, 3), White);
	EXPECT_EQ(Picture.At(6, 2), Picture.At(10, 2)) << "sides repeat at the scale of the corners";
}

TEST_F(CpuRenderer, RotatedClipCutsWithSmoothEdges)
{
	FDrawElement Box = MakeBox(0, 0, 32, 32, Black);
	ClipTo(Box, 16.0f, 16.0f, 16.0f, 16.0f, 45.0f);

	const FPicture Picture = Draw({ Box });

	EXPECT_NEAR(BlackArea(Picture), 256.0f, 5.0f);
	EXPECT_EQ(Picture.At(16, 16), Black);
	EXPECT_EQ(Picture.At(6, 6), White);
	EXPECT_GT(CountOf(Picture, White) + CountOf(Picture, Black), 0);
	EXPECT_LT(CountOf(Picture, White) + CountOf(Picture, Black), 32 * 32) << "there are pixels in between";
}

TEST_F(CpuRenderer, HorizontalLineOfWholePixelsIsSharp)
{
	const FPicture Picture = Draw({ MakeLines({ FVector2f(4.0f, 10.0f), FVector2f(20.0f, 10.0f) }, 2.0f, Black) });

	EXPECT_EQ(CountOf(Picture, Black), 16 * 2);
	EXPECT_EQ(CountOf(Picture, White), 32 * 32 - 32);
	EXPECT_EQ(Picture.At(4, 9), Black);
	EXPECT_EQ(Picture.At(19, 10), Black);
}

TEST_F(CpuRenderer, TranslucentPolylineIsEvenAtItsJoints)
{
	const FPicture Picture = Draw({ MakeLines({ FVector2f(4.0f, 4.0f), FVector2f(16.0f, 26.0f), FVector2f(28.0f, 4.0f) }, 6.0f, FColor(0, 0, 0, 128)) });

	for (const FColor& Pixel : Picture.Pixels)
	{
		ASSERT_GE(Pixel.R, 127) << "no pixel is blended twice";
	}
	EXPECT_EQ(Picture.At(16, 25).R, 127);
}

TEST_F(CpuRenderer, LineThinnerThanAPixelIsFaint)
{
	const FPicture Picture = Draw({ MakeLines({ FVector2f(4.0f, 10.5f), FVector2f(20.0f, 10.5f) }, 0.5f, Black) });

	EXPECT_NEAR(Picture.At(10, 10).R, 127, 1);
	EXPECT_EQ(Picture.At(10, 9), White);
	EXPECT_EQ(Picture.At(10, 11), White);
}

TEST_F(CpuRenderer, LineWithoutAntialiasingHasOnlyWholePixels)
{
	const FPicture Picture = Draw({ MakeLines({ FVector2f(4.0f, 4.0f), FVector2f(28.0f, 19.0f) }, 3.0f, Black, false) });

	EXPECT_EQ(CountOf(Picture, Black) + CountOf(Picture, White), 32 * 32);
	EXPECT_GT(CountOf(Picture, Black), 60);
}

TEST_F(CpuRenderer, TextLeavesInkWithinItsBounds)
{
	const FDrawElement Text = MakeText(4.0f, 20.0f, TEXT("Hg"), 12.0f, Black);
	const FPicture Picture = Draw({ Text }, FIntPoint(48, 32));

	EXPECT_GT(BlackArea(Picture), 20.0f);
	for (int32 Y = 0; Y < 32; ++Y)
	{
		for (int32 X = 0; X < 48; ++X)
		{
			const bool bInside = X >= Text.Bounds.Left && X < Text.Bounds.Right && Y >= Text.Bounds.Top && Y < Text.Bounds.Bottom;
			ASSERT_TRUE(bInside || Picture.At(X, Y) == White) << X << "," << Y;
		}
	}
}

TEST_F(CpuRenderer, TextMagnifiedByATransformCoversAsMuchMore)
{
	const FPicture Once = Draw({ MakeText(4.0f, 40.0f, TEXT("Hg"), 16.0f, Black) }, FIntPoint(160, 120));
	const FPicture Thrice = Draw({ MakeText(Turn(4.0f, 80.0f, 0.0f, 3.0f), TEXT("Hg"), 16.0f, Black) }, FIntPoint(160, 120));

	EXPECT_NEAR(BlackArea(Thrice) / BlackArea(Once), 9.0f, 0.9f);
}

TEST_F(CpuRenderer, SurfaceKeepsTransparencyForPictures)
{
	const FPicture Picture = ElementScene::Draw(*Renderer, FIntPoint(8, 8), { MakeBox(0, 0, 4, 8, FColor(10, 200, 30, 128)) }, FColor(0, 0, 0, 0));

	EXPECT_EQ(Picture.At(6, 6).A, 0);
	EXPECT_EQ(Picture.At(1, 1).A, 128);
	EXPECT_NEAR(Picture.At(1, 1).G, 200, 1);
}

TEST_F(CpuRenderer, NoDamageDrawsNothing)
{
	const TUniquePtr<FWindowSurface> Surface = Renderer->CreateSurface(FIntPoint(16, 16), nullptr);
	const int64 Before = Renderer->GetCounters().Elements;

	DrawDamage(*Surface, { MakeBox(0, 0, 16, 16, Red) }, TConstArrayView<FPixelRect>());

	EXPECT_EQ(Renderer->GetCounters().Elements, Before);
	EXPECT_EQ(Renderer->GetCounters().Frames, 0);
}

TEST_F(CpuRenderer, ElementsBesideTheDamageAreNotDrawn)
{
	const TUniquePtr<FWindowSurface> Surface = Renderer->CreateSurface(FIntPoint(64, 64), nullptr);
	const FPixelRect Damage = FPixelRect::Make(0, 0, 8, 8);

	DrawDamage(*Surface, { MakeBox(0, 0, 16, 16, Red), MakeBox(32, 32, 16, 16, Red) }, MakeArrayView(&Damage, 1));

	EXPECT_EQ(Renderer->GetCounters().Elements, 1);
	EXPECT_EQ(Renderer->GetCounters().DamagedPixels, 64);
}

TEST_F(CpuRenderer, DrawsTheSamePictureWithEveryCompiler)
{
	std::mt19937 Random(5);
	const auto Pick = [&Random](int32 Low, int32 High) { return Low + static_cast<int32>(Random() % static_cast<uint32>(High - Low + 1)); };
	const TSharedRef<const FTexture> Texture = MakeTestTexture(37, 53);
	FElements Elements;
	for (int32 Index = 0; Index < 300; ++Index)
	{
		// One after the other: compilers differ in the order in which they evaluate arguments.
		const int32 X = Pick(-20, 300);
		const int32 Y = Pick(-20, 200);
		const int32 Width = Pick(8, 90);
		const int32 Height = Pick(8, 90);
		const float Share = static_cast<float>(Pick(0, 1000)) / 1000.0f;
		const FColor Colour = FColor(static_cast<uint8>(Pick(0, 255) & 0xff), static_cast<uint8>(Index), 90, static_cast<uint8>(60 + Index % 196));
		switch (Index % 4)
		{
		case 0:
			Elements.Add(MakeRoundedBox(X, Y, Width, Height, 4.0f * Share, Colour, static_cast<float>(Index % 3), FColor(0, 0, 0, 200)));
			break;
		case 1:
		{
			// No sine or cosine: libraries round them in different ways.
			FDrawElement Turned = MakeRoundedBox(0, 0, Width, Height, 4.0f, Colour);
			Turned.Flags = EDrawElementFlags::None;
			Turned.LocalToPixel = { 0.8f, 0.6f, -0.6f * (0.5f + Share), 0.8f, static_cast<float>(X), static_cast<float>(Y) };
			Turned.Bounds = BoundsOf(Turned.LocalToPixel, 0.0f, 0.0f, Turned.LocalSize.X, Turned.LocalSize.Y);
			Elements.Add(MoveTemp(Turned));
			break;
		}
		case 2:
			Elements.Add(MakeImage(X, Y, Width, Height, Texture, Colour));
			break;
		default:
			Elements.Add(MakeLines({ FVector2f(static_cast<float>(X), static_cast<float>(Y)), FVector2f(300.0f * Share, 100.0f), FVector2f(100.0f, 200.0f * Share) }, 0.3f + 6.0f * Share, Colour));
			break;
		}
	}

	uint64 Hash = 1469598103934665603ull;
	for (const FColor& Pixel : Draw(Elements, FIntPoint(320, 240)).Pixels)
	{
		Hash = (Hash ^ Pixel.DWColor()) * 1099511628211ull;
	}

	// Changes only together with what is drawn; then look at the pictures first.
	EXPECT_EQ(Hash, 18008735961019295029ull);
}
