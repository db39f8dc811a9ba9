#include "ScenePictureTools.h"

#include "gtest/gtest.h"

#include <cstdlib>

using namespace Host;

namespace
{
	/** A renderer with a context of its own, a cube, and a place to look from. */
	class FSceneRendererTest : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			BuildCube(Content);
			FString Error;
			Renderer = FSceneRenderer::Make(nullptr, Error);
			ASSERT_TRUE(Renderer.IsValid()) << TCHAR_TO_UTF8(*Error);
			Quality.Shadows = 0;
		}

		const FSceneCounters& Draw()
		{
			FString Error;
			EXPECT_TRUE(Renderer->Draw(Content, View, Size, Quality, Error)) << TCHAR_TO_UTF8(*Error);
			return Renderer->GetCounters();
		}

		/** From straight above, X to the left and Y upward. */
		static FSceneView LookDown(const FVector& Location) { return FSceneView::FromAngles(Location, 90.0, -89.99); }

		FSceneContent Content;
		FSceneView View = MakeView();
		FSceneQuality Quality;
		FIntPoint Size = FIntPoint(320, 240);
		TUniquePtr<FSceneRenderer> Renderer;
	};
}

TEST_F(FSceneRendererTest, DrawsWhatIsThere)
{
	Draw();
	const FPictureReader Picture(*Renderer);

	EXPECT_EQ(Picture.GetSize(), Size);
	EXPECT_LT(Picture.At(View, FVector(0.0, 0.0, 1000.0)).G, 10) << "the cube is black";
	EXPECT_GT(Picture.At(View, FVector(-1200.0, 0.0, 0.0)).G, 150) << "the ground is bright";
	EXPECT_EQ(Picture.At(FIntPoint(0, 0)).A, 255);
}

TEST_F(FSceneRendererTest, RowsComeFromTheTop)
{
	View = FSceneView::FromAngles(FVector(-5000.0, 0.0, 500.0), 0.0, 0.0);
	Draw();
	const FPictureReader Picture(*Renderer);

	// Sky is bluer than ground.
	const FColor Top = Picture.At(FIntPoint(5, 5));
	const FColor Bottom = Picture.At(FIntPoint(5, 235));
	EXPECT_GT(Top.B - Top.R, Bottom.B - Bottom.R);
}

TEST_F(FSceneRendererTest, OutlinesAreDrawnAsBoxesAre)
{
	Draw();
	const int32 Dark = FPictureReader(*Renderer).CountDark();

	// The same cube, but with a corner in the middle of a side, so that it is no rectangle.
	Content.Empty();
	FSceneOutline Outline;
	Outline.Points = { { -500.0, -500.0 }, { 0.0, -500.0 }, { 500.0, -500.0 }, { 500.0, 500.0 }, { -500.0, 500.0 } };
	Outline.Top = 1000.0;
	Outline.Colour = FLinearColor::Black;
	Content.AddOutline(Outline);
	ASSERT_EQ(Content.GetOutlines().Num(), 1);
	Draw();

	EXPECT_NEAR(FPictureReader(*Renderer).CountDark(), Dark, 2);
	EXPECT_GT(Dark, 1000);
}

TEST_F(FSceneRendererTest, ScreenPercentageSaysHowManyPixelsAreDrawn)
{
	const int64 Whole = static_cast<int64>(Size.X) * Size.Y;
	const struct
	{
		float Percentage;
		double Share;
	} Cases[] = { { 100.0f, 1.0 }, { 50.0f, 0.25 }, { 25.0f, 0.0625 }, { 150.0f, 2.25 }, { 200.0f, 4.0 } };
	for (const auto& Case : Cases)
	{
		const int64 Before = Renderer->GetCounters().Pixels;
		Quality.ScreenPercentage = Case.Percentage;
		Draw();

		EXPECT_EQ(Renderer->GetCounters().Pixels - Before, static_cast<int64>(Whole * Case.Share)) << Case.Percentage;
		EXPECT_EQ(FPictureReader(*Renderer).GetSize(), Size) << "scaled to the same size at " << Case.Percentage;
	}
}

TEST_F(FSceneRendererTest, PercentagesBeyondTheRangeAreCut)
{
	Quality.ScreenPercentage = 1.0f;
	EXPECT_EQ(Draw().Pixels, 80 * 60);
	const int64 Before = Renderer->GetCounters().Pixels;
	Quality.ScreenPercentage = 100000.0f;
	EXPECT_EQ(Draw().Pixels - Before, 640 * 480);
}

TEST_F(FSceneRendererTest, ScaledPicturesShowTheSame)
{
	Draw();
	const int32 Dark = FPictureReader(*Renderer).CountDark();
	for (const float Percentage : { 50.0f, 75.0f, 130.0f, 200.0f })
	{
		Quality.ScreenPercentage = Percentage;
		Draw();
		const FPictureReader Picture(*Renderer);
		EXPECT_NEAR(Picture.CountDark(), Dark, 0.03 * Dark) << Percentage;
		EXPECT_LT(Picture.At(View, FVector(0.0, 0.0, 1000.0)).G, 10);
		EXPECT_GT(Picture.At(View, FVector(-1200.0, 0.0, 0.0)).G, 150);
	}
}

TEST_F(FSceneRendererTest, FewerPixelsMakeSofterEdges)
{
	Draw();
	const int32 Between = FPictureReader(*Renderer).CountBetween();
	Quality.ScreenPercentage = 25.0f;
	Draw();
	EXPECT_GT(FPictureReader(*Renderer).CountBetween(), 2 * Between);
}

TEST_F(FSceneRendererTest, EdgesAreSmoothOnlyWithAntiAliasing)
{
	Quality.AntiAliasing = 0;
	Draw();
	EXPECT_EQ(FPictureReader(*Renderer).CountBetween(), 0);
	EXPECT_EQ(Renderer->GetCounters().Samples, 1);

	for (int32 Level = 1; Level <= FSceneQuality::HighestLevel; ++Level)
	{
		Quality.AntiAliasing = Level;
		Draw();
		EXPECT_GT(FPictureReader(*Renderer).CountBetween(), 50) << "level " << Level;
		EXPECT_GE(Renderer->GetCounters().Samples, 2) << "level " << Level;
	}
}

TEST_F(FSceneRendererTest, WithoutAntiAliasingLinesAlongEdgesAreHardToo)
{
	FSceneEnvironment Environment = Content.GetEnvironment();
	Environment.EdgeOpacity = 1.0f;
	Content.SetEnvironment(Environment);
	Content.SetColour(0, FLinearColor::White);
	// Of the roof alone: lines of walls that are seen askew fade.
	View = LookDown(FVector(0.0, 0.0, 6000.0));
	Quality.AntiAliasing = 0;
	Draw();
	const FPictureReader Hard(*Renderer);
	EXPECT_EQ(Hard.CountBetween(), 0);
	const int32 Lines = Hard.CountDark();
	EXPECT_GT(Lines, 100);

	Quality.AntiAliasing = 2;
	Draw();
	EXPECT_GT(FPictureReader(*Renderer).CountBetween(), 50);
}

TEST_F(FSceneRendererTest, WithoutShadowsTheGroundIsAsBrightAllAbout)
{
	View = LookDown(FVector(0.0, 0.0, 10000.0));
	Draw();
	const FPictureReader Picture(*Renderer);
	const int32 Lit = Picture.At(View, FVector(-1000.0, 0.0, 0.0)).G;

	for (const FVector& Place : { FVector(1000.0, 0.0, 0.0), FVector(650.0, 0.0, 0.0), FVector(0.0, 1000.0, 0.0), FVector(0.0, -650.0, 0.0) })
	{
		EXPECT_NEAR(Picture.At(View, Place).G, Lit, 3) << TCHAR_TO_UTF8(*Place.ToString());
	}
	EXPECT_EQ(Renderer->GetCounters().ShadowMaps, 0);
	EXPECT_EQ(Renderer->GetCounters().ShadowMapSize, 0);
}

TEST_F(FSceneRendererTest, TheShadowLiesWhereTheSunPutsIt)
{
	// Seen from so high that the cube hides nothing of its shadow, which is as long as the cube is high.
	View = LookDown(FVector(500.0, 0.0, 20000.0));
	View.FieldOfView = 14.0;
	int32 LastSize = 0;
	for (int32 Level = 1; Level <= FSceneQuality::HighestLevel; ++Level)
	{
		Quality.Shadows = Level;
		Draw();
		const FPictureReader Picture(*Renderer);
		const int32 Lit = Picture.At(View, FVector(-1300.0, 0.0, 0.0)).G;

		for (const FVector& Place : { FVector(700.0, 0.0, 0.0), FVector(1400.0, 400.0, 0.0), FVector(1400.0, -400.0, 0.0) })
		{
			EXPECT_LT(Picture.At(View, Place).G, Lit - 40) << TCHAR_TO_UTF8(*Place.ToString()) << " at level " << Level;
		}
		for (const FVector& Place : { FVector(1650.0, 0.0, 0.0), FVector(1400.0, 620.0, 0.0), FVector(1400.0, -620.0, 0.0), FVector(0.0, 1300.0, 0.0) })
		{
			EXPECT_NEAR(Picture.At(View, Place).G, Lit, 4) << TCHAR_TO_UTF8(*Place.ToString()) << " at level " << Level;
		}
		EXPECT_GE(Renderer->GetCounters().ShadowMapSize, LastSize);
		LastSize = Renderer->GetCounters().ShadowMapSize;
	}
	EXPECT_GT(LastSize, 2000);
}

TEST_F(FSceneRendererTest, ShadowsAreSofterTheHigherTheirQuality)
{
	View = LookDown(FVector(1500.0, 0.0, 400.0));
	// A row from within the shadow out of it.
	const auto CountSoft = [this]
	{
		Draw();
		const FPictureReader Picture(*Renderer);
		int32 Count = 0;
		const int32 Lit = Picture.At(View, FVector(1600.0, 0.0, 0.0)).G;
		const int32 Dark = Picture.At(View, FVector(1400.0, 0.0, 0.0)).G;
		EXPECT_GT(Lit, Dark + 40);
		for (int32 X = 0; X < Size.X; ++X)
		{
			const int32 Green = Picture.At(FIntPoint(X, Size.Y / 2)).G;
			Count += Green > Dark + 8 && Green < Lit - 8;
		}
		return Count;
	};
	Quality.Shadows = 1;
	const int32 Low = CountSoft();
	Quality.Shadows = 3;
	EXPECT_GT(CountSoft(), Low);
}

TEST_F(FSceneRendererTest, GroundIsDarkerWhereACubeStandsOnIt)
{
	Quality.Shadows = 3;
	Draw();
	const FPictureReader Picture(*Renderer);
	// On the side of the sun, where no shadow falls.
	EXPECT_LT(Picture.At(View, FVector(-540.0, 0.0, 0.0)).G, Picture.At(View, FVector(-1300.0, 0.0, 0.0)).G - 5);
}

TEST_F(FSceneRendererTest, WhatHangsAboveTheGroundDarkensItByItsShadowOnly)
{
	Content.Empty();
	FSceneBox Box;
	Box.Centre = FVector(0.0, 0.0, 1500.0);
	Box.Extent = FVector(500.0, 500.0, 100.0);
	Content.AddBox(Box);
	Quality.Shadows = 3;
	View = FSceneView::FromAngles(FVector(-6000.0, 0.0, 500.0), 0.0, -5.0);
	Draw();
	const FPictureReader Picture(*Renderer);
	EXPECT_NEAR(Picture.At(View, FVector(0.0, 0.0, 0.0)).G, Picture.At(View, FVector(-900.0, 0.0, 0.0)).G, 4);
}

TEST_F(FSceneRendererTest, NothingIsDrawnWhenNothingChanged)
{
	Draw();
	const TSharedPtr<const FTexture> Picture = Renderer->GetPicture();
	const uint32 Generation = Picture->GetGeneration();

	for (int32 Step = 0; Step < 5; ++Step)
	{
		Draw();
	}

	EXPECT_EQ(Renderer->GetCounters().Draws, 1);
	EXPECT_EQ(Renderer->GetCounters().ReadBacks, 1);
	EXPECT_EQ(Renderer->GetPicture(), Picture);
	EXPECT_EQ(Picture->GetGeneration(), Generation);
}

TEST_F(FSceneRendererTest, EachThingThatChangesIsDrawnOnce)
{
	Quality.Shadows = 2;
	EXPECT_EQ(Draw().Draws, 1);
	View.Location.X += 10.0;
	EXPECT_EQ(Draw().Draws, 2);
	Size.X += 16;
	EXPECT_EQ(Draw().Draws, 3);
	Quality.AntiAliasing = 0;
	EXPECT_EQ(Draw().Draws, 4);
	Content.SetColour(0, FLinearColor::Red);
	EXPECT_EQ(Draw().Draws, 5);
	EXPECT_EQ(Draw().ShadowMaps, 1) << "neither the camera nor colours move shadows";

	Content.AddBox(FSceneBox());
	EXPECT_EQ(Draw().Draws, 6);
	EXPECT_EQ(Draw().ShadowMaps, 2);
	Content.SetColour(1, FLinearColor(1.0f, 1.0f, 1.0f, 0.3f));
	EXPECT_EQ(Draw().ShadowMaps, 3) << "ghosts throw none";
	FSceneEnvironment Environment = Content.GetEnvironment();
	Environment.SunDirection.Y = 0.4;
	Content.SetEnvironment(Environment);
	EXPECT_EQ(Draw().ShadowMaps, 4);
	EXPECT_EQ(Draw().Draws, 8);
}

TEST_F(FSceneRendererTest, AChangedColourIsAllThatIsHandedOver)
{
	for (int32 Index = 0; Index < 5000; ++Index)
	{
		FSceneBox Box;
		Box.Centre = FVector(100.0 * (Index % 100), 100.0 * (Index / 100), 0.0);
		Content.AddBox(Box);
	}
	const int64 Before = Draw().UploadedBytes;
	EXPECT_GT(Before, 5000 * 36);

	Content.SetColour(4321, FLinearColor::Red);
	EXPECT_EQ(Draw().UploadedBytes - Before, 4);
	View.Location.X += 1.0;
	EXPECT_EQ(Draw().UploadedBytes - Before, 4);
}

TEST_F(FSceneRendererTest, ColoursOfSingleVolumesAreShown)
{
	Content.SetColour(0, FLinearColor(0.0f, 0.6f, 0.0f));
	Draw();
	const FPictureReader Before(*Renderer);
	const FColor Green = Before.At(View, FVector(0.0, 0.0, 1000.0));
	EXPECT_GT(Green.G, Green.R + 80);

	Content.SetColour(0, FLinearColor(0.7f, 0.0f, 0.0f));
	Draw();
	const FColor Red = FPictureReader(*Renderer).At(View, FVector(0.0, 0.0, 1000.0));
	EXPECT_GT(Red.R, Red.G + 80);
}

TEST_F(FSceneRendererTest, SmoothVolumesMirrorTheSunWhereTheEyeMeetsIt)
{
	// The sun is at 45 degrees over low X, and the eye over high X at the same height: the roof throws the one to the other.
	View = FSceneView::FromAngles(FVector(1000.0, 0.0, 2000.0), 180.0, -45.0);
	const FVector Roof(0.0, 0.0, 1000.0);
	const FVector Aside(0.0, -450.0, 1000.0);
	Draw();
	EXPECT_LT(FPictureReader(*Renderer).At(View, Roof).G, 10) << "black chalk gives no light back";

	Content.SetRoughness(0, 0.5f);
	Draw();
	const int32 SatinRoof = FPictureReader(*Renderer).At(View, Roof).G;
	const int32 SatinAside = FPictureReader(*Renderer).At(View, Aside).G;
	Content.SetRoughness(0, 0.05f);
	Draw();
	const int32 MirrorRoof = FPictureReader(*Renderer).At(View, Roof).G;
	const int32 MirrorAside = FPictureReader(*Renderer).At(View, Aside).G;

	EXPECT_GT(SatinRoof, 25);
	EXPECT_GT(MirrorRoof, SatinRoof);
	EXPECT_GT(MirrorRoof - MirrorAside, SatinRoof - SatinAside + 20) << "the sun is a smaller spot in a mirror";
	EXPECT_GT(MirrorAside, 20) << "which else shows the sky";

	Content.SetRoughness(0, 1.0f);
	Draw();
	EXPECT_LT(FPictureReader(*Renderer).At(View, Roof).G, 10);
}

TEST_F(FSceneRendererTest, GhostsLetShowWhatIsBehind)
{
	Draw();
	const FPictureReader Solid(*Renderer);
	const int32 Black = Solid.At(View, FVector(0.0, 0.0, 1000.0)).G;
	Content.SetColour(0, FLinearColor(0.0f, 0.0f, 0.0f, 0.3f));
	Draw();
	const int32 Ghost = FPictureReader(*Renderer).At(View, FVector(0.0, 0.0, 1000.0)).G;
	Content.SetColour(0, FLinearColor(0.0f, 0.0f, 0.0f, 0.0f));
	Draw();
	const int32 Gone = FPictureReader(*Renderer).At(View, FVector(0.0, 0.0, 1000.0)).G;

	EXPECT_GT(Ghost, Black + 60);
	EXPECT_LT(Ghost, Gone - 20);
	EXPECT_EQ(FPictureReader(*Renderer).CountDark(), 0);
}

TEST_F(FSceneRendererTest, ManyGhostsInARowLookAsOne)
{
	Content.SetColour(0, FLinearColor(0.0f, 0.0f, 0.0f, 0.3f));
	Draw();
	const FColor One = FPictureReader(*Renderer).At(View, FVector(100.0, 50.0, 1000.0));

	for (const double Height : { 150.0, 450.0, 700.0 })
	{
		FSceneBox Box;
		Box.Centre = FVector(0.0, 0.0, Height);
		Box.Extent = FVector(480.0, 480.0, 100.0);
		Box.Colour = FLinearColor(0.0f, 0.0f, 0.0f, 0.3f);
		Content.AddBox(Box);
	}
	Draw();
	const FColor Many = FPictureReader(*Renderer).At(View, FVector(100.0, 50.0, 1000.0));

	EXPECT_NEAR(Many.G, One.G, 1);
}

TEST_F(FSceneRendererTest, AnotherSceneIsDrawnAsItIs)
{
	Draw();
	FSceneContent Other;
	FSceneBox Box;
	Box.Colour = FLinearColor(0.7f, 0.0f, 0.0f);
	Box.Centre = FVector(0.0, 0.0, 500.0);
	Box.Extent = FVector(500.0, 500.0, 500.0);
	Other.AddBox(Box);
	FString Error;

	ASSERT_TRUE(Renderer->Draw(Other, View, Size, Quality, Error)) << TCHAR_TO_UTF8(*Error);

	EXPECT_EQ(Renderer->GetCounters().Draws, 2);
	const FColor Red = FPictureReader(*Renderer).At(View, FVector(0.0, 0.0, 1000.0));
	EXPECT_GT(Red.R, Red.G + 80);
}

TEST_F(FSceneRendererTest, DrawCallsDoNotGrowWithTheNumberOfBoxes)
{
	const int64 One = Draw().DrawCalls;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Content.AddBox(FSceneBox());
	}
	EXPECT_EQ(Draw().DrawCalls, 2 * One);
}

TEST_F(FSceneRendererTest, AnEmptySceneIsGroundAndSky)
{
	Content.Empty();
	Quality.Shadows = 3;
	Draw();
	EXPECT_EQ(FPictureReader(*Renderer).CountDark(), 0);
}

TEST_F(FSceneRendererTest, OddAndHugeSizesAreDrawn)
{
	for (const FIntPoint& Odd : { FIntPoint(1, 1), FIntPoint(3, 701), FIntPoint(0, 0) })
	{
		Size = Odd;
		Draw();
		EXPECT_EQ(FPictureReader(*Renderer).GetSize(), FIntPoint(FMath::Max(1, Odd.X), FMath::Max(1, Odd.Y)));
	}
	Size = FIntPoint(1000000, 2);
	Draw();
	EXPECT_LE(FPictureReader(*Renderer).GetSize().X, FTexture::MaxSize);
}

TEST_F(FSceneRendererTest, ScenesFarFromTheOriginAreAsSharp)
{
	Quality.AntiAliasing = 0;
	Draw();
	const int32 Dark = FPictureReader(*Renderer).CountDark();

	const FVector Far(5.0e8, -3.0e8, 0.0);
	Content.Empty();
	FSceneBox Box;
	Box.Centre = Far + FVector(0.0, 0.0, 500.0);
	Box.Extent = FVector(500.0, 500.0, 500.0);
	Box.Colour = FLinearColor::Black;
	Content.AddBox(Box);
	View.Location += Far;
	Draw();

	EXPECT_NEAR(FPictureReader(*Renderer).CountDark(), Dark, 2);
}
