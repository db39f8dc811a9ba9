#include "Host/SceneRayCaster.h"

#include <gtest/gtest.h>

#include <random>

using namespace Host;

namespace
{
	FSceneBox MakeBox(const FVector& Centre, const FVector& Extent, double Yaw = 0.0)
	{
		FSceneBox Box;
		Box.Centre = Centre;
		Box.Extent = Extent;
		Box.Yaw = Yaw;
		return Box;
	}

	FSceneOutline MakeU()
	{
		FSceneOutline Outline;
		Outline.Points = { { 0.0, 0.0 }, { 600.0, 0.0 }, { 600.0, 600.0 }, { 400.0, 600.0 }, { 400.0, 200.0 }, { 200.0, 200.0 }, { 200.0, 600.0 }, { 0.0, 600.0 } };
		Outline.Top = 300.0;
		return Outline;
	}

	class FRayCasterTest : public testing::Test
	{
	protected:
		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		FSceneRayCaster Caster{ Content };
		FSceneHit Hit;
	};
}

TEST_F(FRayCasterTest, NothingIsMetInAnEmptyScene)
{
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_FALSE(Caster.IsBlocked(FVector::ZeroVector, FVector(1000.0, 0.0, 0.0)));
}

TEST_F(FRayCasterTest, MeetsTheNearestBoxWhereItsFaceIs)
{
	Content->AddBox(MakeBox(FVector(2000.0, 0.0, 0.0), FVector(100.0)));
	Content->AddBox(MakeBox(FVector(1000.0, 0.0, 0.0), FVector(100.0)));

	ASSERT_TRUE(Caster.Cast(FVector::ZeroVector, FVector(5.0, 0.0, 0.0), Hit));

	EXPECT_EQ(Hit.Volume, 1);
	EXPECT_NEAR(Hit.Distance, 900.0, 1.0e-9);
	EXPECT_TRUE(Hit.Place.Equals(FVector(900.0, 0.0, 0.0)));
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(-1.0, 0.0, 0.0), Hit)) << "nothing is behind";
	EXPECT_FALSE(Caster.Cast(FVector(0.0, 100.1, 0.0), FVector(1.0, 0.0, 0.0), Hit)) << "it passes by";
	EXPECT_TRUE(Caster.Cast(FVector(0.0, 99.9, 0.0), FVector(1.0, 0.0, 0.0), Hit));
}

TEST_F(FRayCasterTest, TurnedBoxesAreMetAsTheyStand)
{
	Content->AddBox(MakeBox(FVector(1000.0, 0.0, 0.0), FVector(200.0, 50.0, 50.0), 90.0));

	ASSERT_TRUE(Caster.Cast(FVector(0.0, 190.0, 0.0), FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_NEAR(Hit.Distance, 950.0, 1.0e-9);
}

TEST_F(FRayCasterTest, OutlinesAreMetAtTheirWallsRoofsAndFloors)
{
	Content->AddOutline(MakeU());

	ASSERT_TRUE(Caster.Cast(FVector(-500.0, 100.0, 150.0), FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_NEAR(Hit.Distance, 500.0, 1.0e-9);
	ASSERT_TRUE(Caster.Cast(FVector(100.0, 500.0, 1000.0), FVector(0.0, 0.0, -1.0), Hit));
	EXPECT_NEAR(Hit.Distance, 700.0, 1.0e-9);
	ASSERT_TRUE(Caster.Cast(FVector(100.0, 500.0, -1000.0), FVector(0.0, 0.0, 1.0), Hit));
	EXPECT_NEAR(Hit.Distance, 1000.0, 1.0e-9);
}

TEST_F(FRayCasterTest, TheCourtOfAnOutlineIsOpen)
{
	Content->AddOutline(MakeU());

	EXPECT_FALSE(Caster.Cast(FVector(300.0, 500.0, 1000.0), FVector(0.0, 0.0, -1.0), Hit)) << "from above into the court";
	ASSERT_TRUE(Caster.Cast(FVector(300.0, 1000.0, 150.0), FVector(0.0, -1.0, 0.0), Hit));
	EXPECT_NEAR(Hit.Distance, 800.0, 1.0e-9) << "at the back of the court";
}

TEST_F(FRayCasterTest, GhostsAndWhatIsNotDrawnLetRaysThrough)
{
	Content->AddBox(MakeBox(FVector(1000.0, 0.0, 0.0), FVector(100.0)));
	Content->AddBox(MakeBox(FVector(2000.0, 0.0, 0.0), FVector(100.0)));
	ASSERT_TRUE(Caster.Cast(FVector::ZeroVector, FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_EQ(Hit.Volume, 0);

	Content->SetColour(0, FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
	ASSERT_TRUE(Caster.Cast(FVector::ZeroVector, FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_EQ(Hit.Volume, 1);
	Content->SetColour(1, FLinearColor(1.0f, 1.0f, 1.0f, 0.0f));
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(1.0, 0.0, 0.0), Hit));
	EXPECT_EQ(Caster.GetNumBuilds(), 1) << "colours change no shapes";
}

TEST_F(FRayCasterTest, NewVolumesAreFound)
{
	Content->AddBox(MakeBox(FVector(1000.0, 0.0, 0.0), FVector(100.0)));
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(0.0, 1.0, 0.0), Hit));
	Content->AddBox(MakeBox(FVector(0.0, 1000.0, 0.0), FVector(100.0)));
	EXPECT_TRUE(Caster.Cast(FVector::ZeroVector, FVector(0.0, 1.0, 0.0), Hit));
	Content->Empty();
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(0.0, 1.0, 0.0), Hit));
}

TEST_F(FRayCasterTest, PlacesBehindVolumesAreBlocked)
{
	Content->AddBox(MakeBox(FVector(1000.0, 0.0, 0.0), FVector(100.0)));

	EXPECT_TRUE(Caster.IsBlocked(FVector::ZeroVector, FVector(2000.0, 0.0, 0.0)));
	EXPECT_FALSE(Caster.IsBlocked(FVector::ZeroVector, FVector(800.0, 0.0, 0.0)));
	EXPECT_FALSE(Caster.IsBlocked(FVector::ZeroVector, FVector(900.0, 0.0, 0.0))) << "a place on the surface is to be seen";
	EXPECT_FALSE(Caster.IsBlocked(FVector::ZeroVector, FVector::ZeroVector));
}

TEST_F(FRayCasterTest, VolumesAroundTheEyeDoNotCount)
{
	Content->AddBox(MakeBox(FVector::ZeroVector, FVector(100.0)));
	EXPECT_FALSE(Caster.Cast(FVector::ZeroVector, FVector(1.0, 0.0, 0.0), Hit));
}

TEST_F(FRayCasterTest, TheGroundIsMetOnlyByRaysTowardIt)
{
	EXPECT_NEAR(Caster.GetDistanceToGround(FVector(0.0, 0.0, 300.0), FVector(0.0, 0.0, -7.0)), 300.0, 1.0e-9);
	EXPECT_LT(Caster.GetDistanceToGround(FVector(0.0, 0.0, 300.0), FVector(0.0, 0.0, 1.0)), 0.0);
	EXPECT_LT(Caster.GetDistanceToGround(FVector(0.0, 0.0, 300.0), FVector(1.0, 0.0, 0.0)), 0.0);
}

TEST_F(FRayCasterTest, AgreesWithTryingEveryVolume)
{
	std::mt19937 Random(7);
	const auto Number = [&Random](double Min, double Max) { return std::uniform_real_distribution<double>(Min, Max)(Random); };
	constexpr int32 NumVolumes = 400;
	// Far from the origin, where single precision would not do.
	const FVector Site(4.0e7, -6.0e7, 0.0);
	for (int32 Index = 0; Index < NumVolumes; ++Index)
	{
		const FVector Centre = Site + FVector(Number(-5000.0, 5000.0), Number(-5000.0, 5000.0), Number(0.0, 3000.0));
		if (Index % 2)
		{
			Content->AddBox(MakeBox(Centre, FVector(Number(20.0, 400.0), Number(20.0, 400.0), Number(20.0, 400.0)), Number(0.0, 360.0)));
			continue;
		}
		FSceneOutline Outline;
		for (int32 Corner = 0; Corner < 7; ++Corner)
		{
			const double Angle = 2.0 * UE_DOUBLE_PI * Corner / 7.0;
			Outline.Points.Add(FVector2D(Centre) + FVector2D(FMath::Cos(Angle), FMath::Sin(Angle)) * Number(50.0, 400.0));
		}
		Outline.Bottom = Centre.Z;
		Outline.Top = Centre.Z + Number(50.0, 500.0);
		Content->AddOutline(Outline);
	}
	ASSERT_EQ(Content->Num(), NumVolumes);

	int32 NumHits = 0;
	for (int32 Ray = 0; Ray < 500; ++Ray)
	{
		const FVector Start = Site + FVector(Number(-9000.0, 9000.0), Number(-9000.0, 9000.0), Number(-2000.0, 6000.0));
		const FVector Direction = Site + FVector(Number(-4000.0, 4000.0), Number(-4000.0, 4000.0), Number(0.0, 3000.0)) - Start;
		FSceneHit Expected;
		Expected.Distance = MAX_dbl;
		for (int32 Volume = 0; Volume < NumVolumes; ++Volume)
		{
			// One volume alone leaves no choice.
			const TSharedRef<FSceneContent> Alone = MakeShared<FSceneContent>();
			const FSceneContent::FVolume& Kind = Content->GetVolume(Volume);
			if (Kind.bBox)
			{
				const FSceneContent::FPlacedBox& Box = Content->GetBoxes()[Kind.Index];
				Alone->AddBox(MakeBox(Box.Centre, Box.Extent, FMath::RadiansToDegrees(FMath::Atan2(Box.Turn.Y, Box.Turn.X))));
			}
			else
			{
				const FSceneContent::FExtrusion& Extrusion = Content->GetOutlines()[Kind.Index];
				FSceneOutline Outline;
				Outline.Points = Extrusion.Points;
				Outline.Bottom = Extrusion.Bottom;
				Outline.Top = Extrusion.Top;
				Alone->AddOutline(Outline);
			}
			FSceneHit Single;
			if (FSceneRayCaster(Alone).Cast(Start, Direction, Single) && Single.Distance < Expected.Distance)
			{
				Expected = Single;
				Expected.Volume = Volume;
			}
		}
		const bool bHit = Caster.Cast(Start, Direction, Hit);
		ASSERT_EQ(bHit, Expected.Volume != INDEX_NONE) << "ray " << Ray;
		if (bHit)
		{
			EXPECT_EQ(Hit.Volume, Expected.Volume) << "ray " << Ray;
			EXPECT_NEAR(Hit.Distance, Expected.Distance, 1.0e-3);
			++NumHits;
		}
	}
	EXPECT_GT(NumHits, 100);
	EXPECT_LT(NumHits, 500);
}

TEST_F(FRayCasterTest, FewVolumesOfManyAreTried)
{
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		Content->AddBox(MakeBox(FVector(500.0 * (Index % 100), 500.0 * (Index / 100), 0.0), FVector(100.0)));
	}
	ASSERT_TRUE(Caster.Cast(FVector(25000.0, 25000.0, 5000.0), FVector(0.0, 0.0, -1.0), Hit));
	EXPECT_EQ(Hit.Volume, 5050);
	EXPECT_LT(Caster.GetNumTried(), 30);
}
