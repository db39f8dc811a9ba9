#include <gtest/gtest.h>

#include "ElementScene.h"
#include "Host/Texture.h"

using namespace ElementScene;
using namespace Host;

/** Every kind of element, drawn by both renderers, must look the same but for rounding. */
namespace
{
	constexpr FColor Blue(40, 90, 220, 255);
	constexpr FColor Orange(250, 140, 20, 255);
	constexpr FColor Glass(20, 160, 80, 120);

	class RendererAgreement : public testing::Test
	{
	protected:
		void ExpectAgreement(const FElements& Elements, const TCHAR* Name, int32 Tolerance = 3)
		{
			const FIntPoint Size(192, 128);
			const FPicture ByCpu = Draw(*Cpu, Size, Elements);
			const FPicture ByGl = Draw(*Gl, Size, Elements);
			const FPictureDifference Difference = ComparePictures(ByCpu, ByGl, Tolerance);
			EXPECT_TRUE(Difference.IsSame()) << TCHAR_TO_UTF8(*Difference.ToString());
			if (!Difference.IsSame())
			{
				Leave(ByCpu, *FString::Printf(TEXT("%s.cpu"), Name));
				Leave(ByGl, *FString::Printf(TEXT("%s.gl"), Name));
				Leave(MakeDifferencePicture(ByCpu, ByGl), *FString::Printf(TEXT("%s.difference"), Name));
			}
		}

		TSharedPtr<FSlateRenderer> Cpu = MakeCpu();
		TSharedPtr<FSlateRenderer> Gl = MakeGl();
	};
}

TEST_F(RendererAgreement, PlainBoxes)
{
	ExpectAgreement({ MakeBox(4, 4, 60, 40, Blue), MakeBox(40, 20, 60, 60, Glass), MakeBox(150, 100, 80, 60, Orange) }, TEXT("PlainBoxes"));
}

TEST_F(RendererAgreement, RoundedBoxesWithOutlines)
{
	FDrawElement Uneven = MakeRoundedBox(100, 8, 70, 50, 0.0f, Glass, 3.0f, Orange);
	Uneven.Radii = { 25.0f, 3.0f, 12.5f, 7.0f };
	ExpectAgreement({ MakeRoundedBox(8, 8, 80, 33, 16.5f, Blue, 2.0f, Orange), Uneven, MakeRoundedBox(10, 60, 50, 50, 25.0f, Glass),
		MakeRoundedBox(80, 70, 21, 17, 3.0f, Blue, 12.0f, Orange) }, TEXT("RoundedBoxes"));
}

TEST_F(RendererAgreement, TurnedAndStretchedBoxes)
{
	FDrawElement Outlined = MakeTurnedBox(140.0f, 60.0f, 60.0f, 30.0f, 33.0f, 9.0f, Glass, 1.6f);
	Outlined.OutlineWidth = 2.5f;
	Outlined.OutlineColour = Orange;
	ExpectAgreement({ MakeTurnedBox(50.0f, 60.0f, 70.0f, 30.0f, 17.0f, 6.0f, Blue), Outlined }, TEXT("TurnedBoxes"));
}

TEST_F(RendererAgreement, Images)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(40, 24);
	FDrawElement Mirrored = MakeImage(60, 4, 40, 24, Texture, Glass);
	Mirrored.TextureArea = { 1.0f, 0.0f, 0.0f, 1.0f };
	FDrawElement Tiled = MakeImage(110, 4, 70, 50, Texture);
	Tiled.TextureArea = { 0.0f, 0.0f, 70.0f / 40.0f, 50.0f / 24.0f };
	Tiled.Flags |= EDrawElementFlags::Tiled;
	FDrawElement Opaque = MakeImage(4, 100, 40, 24, Texture);
	Opaque.Flags |= EDrawElementFlags::IgnoreTextureAlpha;
	ExpectAgreement({ MakeImage(4, 4, 40, 24, Texture), Mirrored, Tiled, MakeImage(4, 40, 90, 54, Texture), MakeImage(110, 70, 20, 12, Texture),
		MakeImage(140, 70, 9, 7, Texture), Opaque }, TEXT("Images"), 6);
}

TEST_F(RendererAgreement, PicturesInRoundedAndTurnedBoxes)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(64, 48);
	FDrawElement Rounded = MakeRoundedBox(8, 8, 64, 48, 15.0f, FColor(255, 255, 255, 255), 2.0f, Orange);
	Rounded.Payload = TSharedPtr<const FTexture>(Texture);
	FDrawElement Turned = MakeTurnedBox(130.0f, 64.0f, 64.0f, 48.0f, 25.0f, 0.0f, FColor(255, 255, 255, 255));
	Turned.Kind = EDrawElementKind::Image;
	Turned.TextureArea = FTextureArea();
	Turned.Payload = TSharedPtr<const FTexture>(Texture);
	ExpectAgreement({ Rounded, Turned }, TEXT("PicturesInBoxes"), 6);
}

TEST_F(RendererAgreement, SlicedPicturesAndFrames)
{
	const TSharedRef<const FTexture> Texture = MakeTestTexture(24, 24);
	FDrawElement Sliced = MakeImage(6, 6, 80, 50, Texture);
	Sliced.Kind = EDrawElementKind::Sliced;
	Sliced.Margins = { 8.0f, 6.0f, 8.0f, 6.0f };
	Sliced.TextureMargins = { 8.0f / 24.0f, 6.0f / 24.0f, 8.0f / 24.0f, 6.0f / 24.0f };
	FDrawElement Frame = Sliced;
	Frame.LocalToPixel.X = 100.0f;
	Frame.Bounds = FPixelRect::Make(100, 6, 180, 56);
	Frame.Flags |= EDrawElementFlags::Frame;
	ExpectAgreement({ Sliced, Frame }, TEXT("Sliced"), 8);
}

TEST_F(RendererAgreement, Text)
{
	ExpectAgreement({ MakeText(6.0f, 30.0f, TEXT("Quick brown fox"), 14.0f, FColor(0, 0, 0, 255)), MakeText(6.25f, 60.0f, TEXT("Quick brown fox"), 9.0f, Blue),
		MakeText(6.5f, 100.0f, TEXT("Glass"), 30.0f, Glass) }, TEXT("Text"), 2);
}

TEST_F(RendererAgreement, TurnedText)
{
	ExpectAgreement({ MakeText(Turn(20.0f, 90.0f, -20.0f), TEXT("Turned text"), 18.0f, FColor(0, 0, 0, 255)),
		MakeText(Turn(20.0f, 30.0f, 0.0f, 1.3f), TEXT("Larger"), 14.0f, Blue) }, TEXT("TurnedText"), 8);
}

TEST_F(RendererAgreement, Lines)
{
	TArray<FVector2f> Zigzag;
	for (int32 Index = 0; Index < 10; ++Index)
	{
		Zigzag.Add(FVector2f(10.0f + 18.0f * Index, Index % 2 == 0 ? 20.0f : 50.0f));
	}
	ExpectAgreement({ MakeLines(Zigzag, 5.0f, Glass), MakeLines({ FVector2f(10.0f, 70.0f), FVector2f(180.0f, 110.0f) }, 1.0f, FColor(0, 0, 0, 255)),
		MakeLines({ FVector2f(10.0f, 80.0f), FVector2f(180.0f, 120.0f) }, 0.4f, FColor(0, 0, 0, 255)) }, TEXT("Lines"));
}

TEST_F(RendererAgreement, RotatedClips)
{
	FDrawElement Box = MakeRoundedBox(10, 10, 100, 80, 12.0f, Blue, 4.0f, Orange);
	ClipTo(Box, 60.0f, 50.0f, 70.0f, 60.0f, 20.0f);
	ClipTo(Box, 60.0f, 50.0f, 60.0f, 70.0f, -30.0f);
	FDrawElement Text = MakeText(100.0f, 70.0f, TEXT("Clipped"), 24.0f, FColor(0, 0, 0, 255));
	ClipTo(Text, 140.0f, 60.0f, 60.0f, 30.0f, 45.0f);
	ExpectAgreement({ Box, Text, MakeBox(150, 100, 30, 20, Glass) }, TEXT("RotatedClips"));
}

TEST_F(RendererAgreement, AfterATextureWasUpdated)
{
	const FColor Red(255, 0, 0, 255);
	const FColor Green(0, 255, 0, 255);
	const TSharedRef<FTexture> Texture = FTexture::MakeUpdatable(FIntPoint(1, 1), MakeArrayView(&Red, 1), EPixelAlpha::Straight);
	const FElements Elements = { MakeImage(0, 0, 100, 100, Texture) };
	Draw(*Gl, FIntPoint(192, 128), Elements);

	Texture->Update(FPixelRect::Make(0, 0, 1, 1), MakeArrayView(&Green, 1), EPixelAlpha::Straight);

	EXPECT_EQ(Draw(*Gl, FIntPoint(192, 128), Elements).At(5, 5), Green);
	ExpectAgreement(Elements, TEXT("Updated"));
}

TEST_F(RendererAgreement, PictureThatWasTakenOverPartByPart)
{
	constexpr int32 Side = 64;
	const TSharedRef<const FTexture> Pattern = MakeTestTexture(Side, Side);
	const TConstArrayView<FColor> Pixels(reinterpret_cast<const FColor*>(Pattern->GetPixels()), Side * Side);
	const TSharedRef<FTexture> Texture = FTexture::MakeUnfilled(FIntPoint(Side, Side));
	// Brings the glyphs of other tests.
	Draw(*Gl, FIntPoint(192, 128), { MakeBox(4, 4, 60, 40, Blue) });
	const int64 Before = Gl->GetCounters().UploadedBytes;
	int64 Taken = Before;
	for (int32 Top = 0; Top < Side; Top += 7)
	{
		const FPixelRect Area = FPixelRect::Make(0, Top, Side, FMath::Min(Top + 7, Side));
		Texture->Update(Area, Pixels.Slice(Top * Side, Area.Height() * Side), EPixelAlpha::Premultiplied);
		Gl->TakeFilled(Texture, Area);
		EXPECT_LE(Gl->GetCounters().UploadedBytes - Taken, 7 * Side * 4 * 2) << "a part and its share of the smaller levels";
		Taken = Gl->GetCounters().UploadedBytes;
	}
	EXPECT_EQ(Taken - Before, (64 * 64 + 32 * 32 + 16 * 16 + 8 * 8 + 4 * 4 + 2 * 2 + 1) * 4) << "every pixel once";

	const FElements Elements = { MakeImage(0, 0, Side, Side, Texture), MakeImage(80, 0, 20, 20, Texture), MakeImage(110, 0, 4, 4, Texture) };
	const FPicture ByGl = Draw(*Gl, FIntPoint(192, 128), Elements);
	EXPECT_EQ(Gl->GetCounters().UploadedBytes, Taken) << "nothing is left for the frame that shows it";

	const FElements Whole = { MakeImage(0, 0, Side, Side, Pattern), MakeImage(80, 0, 20, 20, Pattern), MakeImage(110, 0, 4, 4, Pattern) };
	EXPECT_TRUE(ComparePictures(ByGl, Draw(*Gl, FIntPoint(192, 128), Whole), 0).IsSame());
	ExpectAgreement(Elements, TEXT("TakenByParts"));
}

TEST_F(RendererAgreement, PictureWhosePartsCameInDisorder)
{
	TArray<FColor> Pixels;
	Pixels.Init(Blue, 16);
	const TSharedRef<FTexture> Texture = FTexture::MakeUnfilled(FIntPoint(4, 8));
	const auto Fill = [&](int32 Top)
	{
		const FPixelRect Area = FPixelRect::Make(0, Top, 4, Top + 4);
		Texture->Update(Area, Pixels, EPixelAlpha::Straight);
		Gl->TakeFilled(Texture, Area);
	};
	Fill(0);
	Pixels.Init(Orange, 16);
	Fill(0);
	Fill(4);

	const FElements Elements = { MakeImage(0, 0, 40, 80, Texture), MakeImage(60, 0, 2, 4, Texture) };
	EXPECT_EQ(Draw(*Gl, FIntPoint(192, 128), Elements).At(5, 5), Orange);
	ExpectAgreement(Elements, TEXT("Disorder"));
}

TEST_F(RendererAgreement, TransparentBackgroundsReadBackAlike)
{
	const FElements Elements = { MakeRoundedBox(10, 10, 40, 40, 20.0f, Glass) };
	const FPicture ByCpu = Draw(*Cpu, FIntPoint(64, 64), Elements, FColor(0, 0, 0, 0));
	const FPicture ByGl = Draw(*Gl, FIntPoint(64, 64), Elements, FColor(0, 0, 0, 0));

	EXPECT_TRUE(ComparePictures(ByCpu, ByGl, 3).IsSame());
	EXPECT_EQ(ByGl.At(0, 0).A, 0);
}

TEST(GlRenderer, ButtonsWithTextTakeOneDrawCall)
{
	const TSharedPtr<FSlateRenderer> Gl = MakeGl();
	FElements Elements;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Elements.Add(MakeRoundedBox(4, 4 + 20 * Index, 100, 18, 5.0f, Blue, 1.0f, Orange));
		Elements.Add(MakeText(10.0f, 18.0f + 20.0f * Index, TEXT("Button"), 9.0f, FColor(255, 255, 255, 255)));
	}

	Draw(*Gl, FIntPoint(128, 1024), Elements);

	EXPECT_EQ(Gl->GetCounters().DrawCalls, 1);
	EXPECT_EQ(Gl->GetCounters().Elements, 100);
}

TEST(GlRenderer, GlyphsAreUploadedOnce)
{
	const TSharedPtr<FSlateRenderer> Gl = MakeGl();
	const FElements Elements = { MakeText(6.0f, 30.0f, TEXT("Upload once"), 14.0f, Blue) };
	Draw(*Gl, FIntPoint(128, 64), Elements);
	const int64 Uploaded = Gl->GetCounters().UploadedBytes;

	Draw(*Gl, FIntPoint(128, 64), Elements);

	EXPECT_GT(Uploaded, 0);
	EXPECT_EQ(Gl->GetCounters().UploadedBytes, Uploaded);
}
