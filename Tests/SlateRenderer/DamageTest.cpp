#include <random>

#include <gtest/gtest.h>

#include "ElementScene.h"
#include "Host/Texture.h"

using namespace ElementScene;
using namespace Host;

/** Redrawing what changed must give the picture that drawing everything gives. */
namespace
{
	class FRandomScene
	{
	public:
		explicit FRandomScene(uint32 Seed) : Random(Seed)
		{
			for (int32 Index = 0; Index < 40; ++Index)
			{
				Elements.Add(MakeElement());
			}
		}

		/** Changes some elements; what must be redrawn for it. */
		TArray<FPixelRect> Edit()
		{
			TArray<FPixelRect> Damage;
			for (int32 Count = Pick(1, 4); Count > 0; --Count)
			{
				FDrawElement& Element = Elements[Pick(0, Elements.Num() - 1)];
				Damage.Add(Element.Bounds);
				Element = MakeElement();
				Damage.Add(Element.Bounds);
			}
			return Damage;
		}

		FElements Elements;

	private:
		int32 Pick(int32 Low, int32 High) { return std::uniform_int_distribution<int32>(Low, High)(Random); }
		float PickShare() { return static_cast<float>(Pick(0, 1000)) / 1000.0f; }
		FColor PickColour() { return FColor(static_cast<uint8>(Pick(0, 255)), static_cast<uint8>(Pick(0, 255)), static_cast<uint8>(Pick(0, 255)), static_cast<uint8>(Pick(40, 255))); }

		FDrawElement MakeElement()
		{
			FDrawElement Element = MakeAnyElement();
			if (Pick(0, 5) == 0)
			{
				ClipTo(Element, 200.0f * PickShare(), 150.0f * PickShare(), 120.0f, 90.0f, 90.0f * PickShare());
			}
			return Element;
		}

		FDrawElement MakeAnyElement()
		{
			const int32 X = Pick(-20, 180);
			const int32 Y = Pick(-20, 130);
			switch (Pick(0, 6))
			{
			case 0:
				return MakeBox(X, Y, Pick(1, 60), Pick(1, 60), PickColour());
			case 1:
				return MakeRoundedBox(X, Y, Pick(20, 60), Pick(20, 60), 10.0f * PickShare(), PickColour(), static_cast<float>(Pick(0, 3)), PickColour());
			case 2:
				return MakeTurnedBox(static_cast<float>(X), static_cast<float>(Y), 40.0f, 20.0f, 360.0f * PickShare(), 8.0f * PickShare(), PickColour(), 0.5f + PickShare());
			case 3:
				return MakeImage(X, Y, Pick(4, 80), Pick(4, 80), Texture, PickColour());
			case 4:
				return MakeText(X + PickShare(), static_cast<float>(Y), TEXT("Damage"), 8.0f + 8.0f * PickShare(), PickColour());
			case 5:
				return MakeText(Turn(static_cast<float>(X), static_cast<float>(Y), 360.0f * PickShare(), 0.5f + PickShare()), TEXT("Turned"), 12.0f, PickColour());
			default:
				return MakeLines({ FVector2f(200.0f * PickShare(), 150.0f * PickShare()), FVector2f(200.0f * PickShare(), 150.0f * PickShare()), FVector2f(200.0f * PickShare(), 150.0f * PickShare()) },
					0.3f + 8.0f * PickShare(), PickColour());
			}
		}

		std::mt19937 Random;
		TSharedRef<const FTexture> Texture = MakeTestTexture(32, 24);
	};

	constexpr FIntPoint SceneSize(200, 150);

	void ExpectDamageToSuffice(FSlateRenderer& Renderer, uint32 Seed, int32 Rounds)
	{
		FRandomScene Scene(Seed);
		const TUniquePtr<FWindowSurface> Surface = Renderer.CreateSurface(SceneSize, nullptr);
		const FPixelRect All = FPixelRect::Make(0, 0, SceneSize.X, SceneSize.Y);
		DrawDamage(*Surface, Scene.Elements, MakeArrayView(&All, 1));
		for (int32 Round = 0; Round < Rounds; ++Round)
		{
			DrawDamage(*Surface, Scene.Elements, Scene.Edit());
			const FPictureDifference Difference = ComparePictures(Draw(Renderer, SceneSize, Scene.Elements), Read(*Surface));
			ASSERT_TRUE(Difference.IsSame()) << "seed " << Seed << ", round " << Round << ": " << TCHAR_TO_UTF8(*Difference.ToString());
		}
	}
}

TEST(Damage, CpuRedrawsExactlyWhatAFullRedrawDraws)
{
	const TSharedPtr<FSlateRenderer> Cpu = MakeCpu();
	for (uint32 Seed = 1; Seed <= 12; ++Seed)
	{
		ExpectDamageToSuffice(*Cpu, Seed, 15);
	}
}

TEST(Damage, GlRedrawsExactlyWhatAFullRedrawDraws)
{
	const TSharedPtr<FSlateRenderer> Gl = MakeGl();
	for (uint32 Seed = 1; Seed <= 3; ++Seed)
	{
		ExpectDamageToSuffice(*Gl, Seed, 8);
	}
}

TEST(Damage, BothRenderersAgreeOnRandomScenes)
{
	const TSharedPtr<FSlateRenderer> Cpu = MakeCpu();
	const TSharedPtr<FSlateRenderer> Gl = MakeGl();
	for (uint32 Seed = 100; Seed < 110; ++Seed)
	{
		const FRandomScene Scene(Seed);
		const FPicture ByCpu = Draw(*Cpu, SceneSize, Scene.Elements);
		const FPicture ByGl = Draw(*Gl, SceneSize, Scene.Elements);
		// Forty layers, each rounded in its own way, add up.
		const FPictureDifference Difference = ComparePictures(ByCpu, ByGl, 10);
		EXPECT_LE(Difference.NumDifferent, 20) << "seed " << Seed << ": " << TCHAR_TO_UTF8(*Difference.ToString());
	}
}

TEST(Damage, ScatteredDamageIsDrawnInFewParts)
{
	const TSharedPtr<FSlateRenderer> Cpu = MakeCpu();
	const TUniquePtr<FWindowSurface> Surface = Cpu->CreateSurface(FIntPoint(1000, 1000), nullptr);
	TArray<FPixelRect> Damage;
	for (int32 Index = 0; Index < 400; ++Index)
	{
		Damage.Add(FPixelRect::Make(Index % 20 * 50, Index / 20 * 50, Index % 20 * 50 + 4, Index / 20 * 50 + 4));
	}
	int32 NumWalks = 0;
	const auto Traverse = [&NumWalks](const FPixelRect&, FElementVisitor) { ++NumWalks; };

	Surface->DrawFrame(FWindowFrame{ FColor(255, 255, 255, 255), Damage, Traverse });

	EXPECT_LE(NumWalks, 16);
	EXPECT_GE(NumWalks, 1);
}

TEST(Damage, TwoFarCornersAreDrawnApart)
{
	const TSharedPtr<FSlateRenderer> Cpu = MakeCpu();
	const TUniquePtr<FWindowSurface> Surface = Cpu->CreateSurface(FIntPoint(1000, 1000), nullptr);
	const FPixelRect Damage[2] = { FPixelRect::Make(0, 0, 10, 10), FPixelRect::Make(990, 990, 1000, 1000) };

	DrawDamage(*Surface, FElements(), MakeArrayView(Damage, 2));

	EXPECT_EQ(Cpu->GetCounters().DamagedPixels, 200);
}
