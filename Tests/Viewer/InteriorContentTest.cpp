#include "EngineTest.h"

#include "Host/InteriorContent.h"

using namespace Host;

namespace
{
	FInteriorPart MakePart(const TCHAR* Surface, double Left, const FColor& Color)
	{
		FInteriorPart Part;
		Part.Surface = Surface;
		Part.Shape = FUnitVolumeShape::MakeBox(FVector(Left, 0.0, 0.0), FVector(Left + 100.0, 200.0, 250.0));
		Part.Color = FLinearColor(Color);
		return Part;
	}

	FVariantSurfaceLook MakeLook(const TCHAR* Surface, const FColor& Color)
	{
		FVariantSurfaceLook Look;
		Look.Surface = Surface;
		Look.Color = FLinearColor(Color);
		return Look;
	}

	const FColor White(250, 250, 250);
	const FColor Red(200, 20, 20);
	const FColor Blue(20, 20, 200);

	FProjectInterior MakeInterior()
	{
		FProjectInterior Interior;
		Interior.Parts = { MakePart(TEXT("Wall"), 0.0, White), MakePart(TEXT("Door"), 100.0, Red), MakePart(TEXT("wall"), 200.0, White) };
		return Interior;
	}

	FColor GetColour(const FInteriorContent& Content, int32 Volume)
	{
		return Content.GetContent()->GetColours()[Volume];
	}
}

TEST(FInteriorContentTest, PartsAreVolumesInTheirOwnColours)
{
	const FInteriorContent Content(MakeInterior());
	EXPECT_EQ(GetColour(Content, 0), White);
	EXPECT_EQ(GetColour(Content, 1), Red);
	EXPECT_EQ(Content.GetBounds().Max, FVector(300.0, 200.0, 250.0));
	EXPECT_EQ(Content.FindVolumes(TEXT("Wall")), (TArray<int32>{ 0, 2 }));
}

TEST(FInteriorContentTest, LooksColourAllPartsOfTheirSurfaceAndNoOther)
{
	FInteriorContent Content(MakeInterior());
	EXPECT_TRUE(Content.ShowLooks({ MakeLook(TEXT("WALL"), Blue), MakeLook(TEXT("Nowhere"), Blue) }));
	EXPECT_EQ(GetColour(Content, 0), Blue);
	EXPECT_EQ(GetColour(Content, 1), Red);
	EXPECT_EQ(GetColour(Content, 2), Blue);
}

TEST(FInteriorContentTest, LooksSayHowSmoothAPartIs)
{
	FInteriorContent Content(MakeInterior());
	FVariantSurfaceLook Polished = MakeLook(TEXT("Wall"), Blue);
	Polished.Roughness = 0.2f;
	EXPECT_TRUE(Content.ShowLooks({ Polished }));
	const int32 Wall = Content.FindVolumes(TEXT("Wall"))[0];
	EXPECT_EQ(Content.GetContent()->GetRoughness()[Wall], 51);
	Content.ShowLooks({});
	EXPECT_EQ(Content.GetContent()->GetRoughness()[Wall], 255) << "by themselves parts are matt";
}

TEST(FInteriorContentTest, WhatIsNoLongerSaidLooksAsItWasMade)
{
	FInteriorContent Content(MakeInterior());
	Content.ShowLooks({ MakeLook(TEXT("Wall"), Blue) });
	EXPECT_TRUE(Content.ShowLooks({ MakeLook(TEXT("Door"), Blue) }));
	EXPECT_EQ(GetColour(Content, 0), White);
	EXPECT_EQ(GetColour(Content, 1), Blue);
}

TEST(FInteriorContentTest, TheSameLooksAgainChangeNothing)
{
	FInteriorContent Content(MakeInterior());
	EXPECT_FALSE(Content.ShowLooks({}));
	Content.ShowLooks({ MakeLook(TEXT("Wall"), Blue) });
	const uint64 Revision = Content.GetContent()->GetRevision();
	EXPECT_FALSE(Content.ShowLooks({ MakeLook(TEXT("Wall"), Blue) }));
	EXPECT_EQ(Content.GetContent()->GetRevision(), Revision);
}

TEST(FInteriorContentTest, CameraStandsWhereTheInteriorSaysOrWhereAllIsSeen)
{
	FProjectInterior Interior = MakeInterior();
	Interior.Camera.Target = FVector(10.0, 20.0, 30.0);
	Interior.Camera.Yaw = -20.0;
	Interior.Camera.Pitch = -70.0;
	const FInteriorContent Framed(Interior);
	EXPECT_FALSE(Framed.HasDistance());
	EXPECT_EQ(Framed.GetPose(1.5).Target, Framed.GetBounds().GetCenter());
	EXPECT_EQ(Framed.GetPose(1.5).Yaw, -20.0);
	EXPECT_GT(Framed.GetPose(0.5).Distance, Framed.GetPose(1.5).Distance);

	Interior.Camera.Distance = 900.0;
	const FInteriorContent Placed(Interior);
	EXPECT_TRUE(Placed.HasDistance());
	EXPECT_EQ(Placed.GetPose(1.5).Target, FVector(10.0, 20.0, 30.0));
	EXPECT_EQ(Placed.GetPose(1.5).Pitch, -70.0);
	EXPECT_EQ(Placed.GetPose(0.5).Distance, 900.0);
}

TEST(FInteriorContentTest, AnEmptyInteriorShowsNothing)
{
	FInteriorContent Content((FProjectInterior()));
	EXPECT_EQ(Content.GetContent()->Num(), 0);
	EXPECT_FALSE(Content.ShowLooks({ MakeLook(TEXT("Wall"), Blue) }));
	EXPECT_FALSE(Content.GetBounds().IsValid);
}
