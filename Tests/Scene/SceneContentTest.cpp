#include "Host/SceneContent.h"

#include "ExpectedLog.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Host;

namespace
{
	FSceneOutline MakeL()
	{
		FSceneOutline Outline;
		Outline.Points = { { 0.0, 0.0 }, { 600.0, 0.0 }, { 600.0, 200.0 }, { 200.0, 200.0 }, { 200.0, 500.0 }, { 0.0, 500.0 } };
		Outline.Bottom = 300.0;
		Outline.Top = 600.0;
		return Outline;
	}
}

TEST(SceneContent, VolumesAreCountedInTheOrderInWhichTheyCome)
{
	FSceneContent Content;

	EXPECT_EQ(Content.AddBox(FSceneBox()), 0);
	EXPECT_EQ(Content.AddOutline(MakeL()), 1);
	EXPECT_EQ(Content.AddBox(FSceneBox()), 2);

	EXPECT_EQ(Content.Num(), 3);
	EXPECT_EQ(Content.GetBoxes().Num(), 2);
	EXPECT_EQ(Content.GetOutlines().Num(), 1);
}

TEST(SceneContent, BoundsHoldTurnedBoxesAndOutlines)
{
	FSceneContent Content;
	FSceneBox Box;
	Box.Centre = FVector(1000.0, 0.0, 50.0);
	Box.Extent = FVector(100.0, 50.0, 50.0);
	Box.Yaw = 90.0;
	Content.AddBox(Box);

	EXPECT_TRUE(Content.GetBounds().Min.Equals(FVector(950.0, -100.0, 0.0)));
	EXPECT_TRUE(Content.GetBounds().Max.Equals(FVector(1050.0, 100.0, 100.0)));

	const int32 Outline = Content.AddOutline(MakeL());
	EXPECT_TRUE(Content.GetBounds().Min.Equals(FVector(0.0, -100.0, 0.0)));
	EXPECT_TRUE(Content.GetBounds().Max.Equals(FVector(1050.0, 500.0, 600.0)));
	EXPECT_TRUE(Content.GetVolumeBounds(Outline).Max.Equals(FVector(600.0, 500.0, 600.0)));
}

TEST(SceneContent, ARectangleBecomesABoxWhichEverWayItTurns)
{
	FSceneContent Content;
	FSceneOutline Outline;
	Outline.Points = { { 100.0, 0.0 }, { 400.0, 300.0 }, { 300.0, 400.0 }, { 0.0, 100.0 } };
	Outline.Top = 250.0;
	Content.AddOutline(Outline);
	Outline.Points = { { 0.0, 100.0 }, { 300.0, 400.0 }, { 400.0, 300.0 }, { 100.0, 0.0 } };
	Content.AddOutline(Outline);

	ASSERT_EQ(Content.GetBoxes().Num(), 2);
	for (const FSceneContent::FPlacedBox& Box : Content.GetBoxes())
	{
		EXPECT_TRUE(Box.Centre.Equals(FVector(200.0, 200.0, 125.0)));
		EXPECT_NEAR(Box.Extent.X * Box.Extent.Y, 0.5 * 300.0 * 0.5 * 200.0, 1.0e-6);
	}
	EXPECT_TRUE(Content.GetVolumeBounds(0).Max.Equals(FVector(400.0, 400.0, 250.0)));
	EXPECT_TRUE(Content.GetVolumeBounds(1).Max.Equals(FVector(400.0, 400.0, 250.0)));
}

TEST(SceneContent, RepeatedCornersAreLeftOut)
{
	FSceneContent Content;
	FSceneOutline Outline = MakeL();
	Outline.Points.Insert(FVector2D(Outline.Points[2]), 3);
	Outline.Points.Add(FVector2D(Outline.Points[0]));

	Content.AddOutline(Outline);

	ASSERT_EQ(Content.GetOutlines().Num(), 1);
	EXPECT_EQ(Content.GetOutlines()[0].Points.Num(), 6);
}

TEST(SceneContent, WhatCannotBeDrawnIsLeftOutWithALine)
{
	FSceneContent Content;
	FExpectedLog Lines(TEXT("is left out"), 6);
	FSceneBox Box;
	Box.Extent.Y = 0.0;
	EXPECT_EQ(Content.AddBox(Box), INDEX_NONE);
	Box.Extent.Y = std::numeric_limits<double>::infinity();
	EXPECT_EQ(Content.AddBox(Box), INDEX_NONE);

	FSceneOutline Flat = MakeL();
	Flat.Top = Flat.Bottom;
	EXPECT_EQ(Content.AddOutline(Flat), INDEX_NONE);
	FSceneOutline Line;
	Line.Points = { { 0.0, 0.0 }, { 100.0, 0.0 }, { 200.0, 0.0 } };
	EXPECT_EQ(Content.AddOutline(Line), INDEX_NONE);
	FSceneOutline Crossed;
	Crossed.Points = { { 0.0, 0.0 }, { 500.0, 400.0 }, { 400.0, 0.0 }, { 0.0, 300.0 } };
	EXPECT_EQ(Content.AddOutline(Crossed), INDEX_NONE);
	FSceneOutline Endless = MakeL();
	Endless.Points[1].X = std::numeric_limits<double>::quiet_NaN();
	EXPECT_EQ(Content.AddOutline(Endless), INDEX_NONE);

	EXPECT_EQ(Content.Num(), 0);
	EXPECT_FALSE(Content.GetBounds().IsValid);
}

TEST(SceneContent, SettingTheColourThatIsThereChangesNothing)
{
	FSceneContent Content;
	FSceneBox Box;
	Box.Colour = FLinearColor(0.2f, 0.3f, 0.4f);
	Content.AddBox(Box);
	const uint64 Revision = Content.GetRevision();

	Content.SetColour(0, Box.Colour);

	EXPECT_EQ(Content.GetRevision(), Revision);
}

TEST(SceneContent, ColoursChangeNeitherShapesNorShadows)
{
	FSceneContent Content;
	Content.AddBox(FSceneBox());
	const uint64 Revision = Content.GetRevision();
	const uint64 Shapes = Content.GetShapeRevision();
	const uint64 Shadows = Content.GetShadowRevision();

	Content.SetColour(0, FLinearColor::Red);

	EXPECT_NE(Content.GetRevision(), Revision);
	EXPECT_EQ(Content.GetShapeRevision(), Shapes);
	EXPECT_EQ(Content.GetShadowRevision(), Shadows);
}

TEST(SceneContent, RoughnessIsKeptOnceAnyVolumeIsSmooth)
{
	FSceneContent Content;
	Content.AddBox(FSceneBox());
	Content.AddBox(FSceneBox());
	const uint64 Revision = Content.GetRevision();
	const uint64 Colours = Content.GetColourRevision();
	const uint64 Roughness = Content.GetRoughnessRevision();

	Content.SetRoughness(1, 1.0f);
	EXPECT_EQ(Content.GetRevision(), Revision);
	EXPECT_TRUE(Content.GetRoughness().IsEmpty());

	Content.SetRoughness(1, 0.2f);
	EXPECT_EQ(Content.GetRoughness(), TArray<uint8>({ 255, 51 }));
	EXPECT_NE(Content.GetRevision(), Revision);
	EXPECT_NE(Content.GetRoughnessRevision(), Roughness);
	EXPECT_EQ(Content.GetColourRevision(), Colours);

	Content.AddBox(FSceneBox());
	Content.SetRoughness(1, -3.0f);
	EXPECT_EQ(Content.GetRoughness(), TArray<uint8>({ 255, 0, 255 }));
	Content.Empty();
	EXPECT_TRUE(Content.GetRoughness().IsEmpty());
}

TEST(SceneContent, GhostsAreCountedAndThrowNoShadow)
{
	FSceneContent Content;
	Content.AddBox(FSceneBox());
	const uint64 Shadows = Content.GetShadowRevision();

	Content.SetColour(0, FLinearColor(1.0f, 1.0f, 1.0f, 0.2f));
	EXPECT_EQ(Content.GetNumGhosts(), 1);
	EXPECT_NE(Content.GetShadowRevision(), Shadows);

	Content.SetColour(0, FLinearColor(1.0f, 1.0f, 1.0f, 0.0f));
	EXPECT_EQ(Content.GetNumGhosts(), 0) << "what is not drawn is no ghost";
}

TEST(SceneContent, TellsWhichColoursWereSetSince)
{
	FSceneContent Content;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Content.AddBox(FSceneBox());
	}
	const uint64 Since = Content.GetColourRevision();
	TArray<int32> Changed;
	EXPECT_TRUE(Content.GetColoursSetSince(Since, Changed));
	EXPECT_EQ(Changed.Num(), 0);

	Content.SetColour(2, FLinearColor::Red);
	Content.SetColour(0, FLinearColor::Green);

	EXPECT_TRUE(Content.GetColoursSetSince(Since, Changed));
	EXPECT_EQ(Changed, (TArray<int32>{ 2, 0 }));
}

TEST(SceneContent, ChangesTooLongAgoAreNotToldOneByOne)
{
	FSceneContent Content;
	Content.AddBox(FSceneBox());
	const uint64 Since = Content.GetColourRevision();
	for (int32 Step = 0; Step < 10000; ++Step)
	{
		Content.SetColour(0, Step % 2 ? FLinearColor::Red : FLinearColor::Green);
	}
	TArray<int32> Changed;

	EXPECT_FALSE(Content.GetColoursSetSince(Since, Changed));
	EXPECT_TRUE(Content.GetColoursSetSince(Content.GetColourRevision() - 1, Changed));
	EXPECT_EQ(Changed.Num(), 1);
}

TEST(SceneContent, EmptiedItHoldsNothing)
{
	FSceneContent Content;
	Content.AddBox(FSceneBox());
	Content.AddOutline(MakeL());
	const uint64 Shapes = Content.GetShapeRevision();

	Content.Empty();

	EXPECT_EQ(Content.Num(), 0);
	EXPECT_FALSE(Content.GetBounds().IsValid);
	EXPECT_NE(Content.GetShapeRevision(), Shapes);
}
