#include "Host/SceneCamera.h"

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	const FVector2D Size(800.0, 600.0);
	const FBox Site(FVector(-3000.0, -2000.0, 0.0), FVector(3000.0, 2000.0, 1500.0));

	FSceneCamera MakeCamera()
	{
		FSceneCamera Camera;
		Camera.SetBounds(Site);
		FSceneCamera::FPose Pose;
		Pose.Target = FVector(0.0, 0.0, 500.0);
		Pose.Yaw = 30.0;
		Pose.Pitch = -25.0;
		Pose.Distance = 6000.0;
		Camera.JumpTo(Pose);
		return Camera;
	}
}

TEST(SceneCamera, LooksAtItsTargetFromItsDistance)
{
	const FSceneCamera Camera = MakeCamera();
	const FSceneView View = Camera.GetView();
	FVector2D Pixel;

	ASSERT_TRUE(View.Project(FVector(0.0, 0.0, 500.0), Size, Pixel));

	EXPECT_TRUE(Pixel.Equals(Size * 0.5, 1.0e-6));
	EXPECT_NEAR(FVector::Dist(View.Location, FVector(0.0, 0.0, 500.0)), 6000.0, 1.0e-6);
}

TEST(SceneCamera, JumpsWithoutEasing)
{
	FSceneCamera Camera = MakeCamera();
	EXPECT_FALSE(Camera.IsMoving());
	EXPECT_FALSE(Camera.Tick(0.1));
}

TEST(SceneCamera, OrbitingKeepsTargetAndDistance)
{
	FSceneCamera Camera = MakeCamera();

	Camera.Orbit(90.0, -10.0);
	Camera.Finish();

	EXPECT_TRUE(Camera.GetPose().Target.Equals(FVector(0.0, 0.0, 500.0)));
	EXPECT_DOUBLE_EQ(Camera.GetPose().Distance, 6000.0);
	EXPECT_DOUBLE_EQ(Camera.GetPose().Yaw, 120.0);
	EXPECT_DOUBLE_EQ(Camera.GetPose().Pitch, -35.0);
}

TEST(SceneCamera, NeverTurnsOverNorUnderTheGround)
{
	FSceneCamera Camera = MakeCamera();
	Camera.Orbit(0.0, -500.0);
	EXPECT_DOUBLE_EQ(Camera.GetGoal().Pitch, FSceneCamera::LowestPitch);
	Camera.Orbit(0.0, 500.0);
	EXPECT_DOUBLE_EQ(Camera.GetGoal().Pitch, FSceneCamera::HighestPitch);
}

TEST(SceneCamera, WhatIsPannedFollowsThePointer)
{
	FSceneCamera Camera = MakeCamera();
	const FVector Target = Camera.GetPose().Target;
	const FVector2D Way(60.0, -25.0);

	Camera.Pan(Way, Size.Y);
	Camera.Finish();

	FVector2D Pixel;
	ASSERT_TRUE(Camera.GetView().Project(Target, Size, Pixel));
	EXPECT_TRUE(Pixel.Equals(Size * 0.5 + Way, 1.0e-6)) << Pixel.X << " " << Pixel.Y;
}

TEST(SceneCamera, ZoomingKeepsThePlaceWhereItIsSeen)
{
	FSceneCamera Camera = MakeCamera();
	const FVector Place(900.0, -400.0, 300.0);
	FVector2D Before;
	ASSERT_TRUE(Camera.GetView().Project(Place, Size, Before));

	Camera.Zoom(0.5, Place);
	Camera.Finish();

	FVector2D After;
	ASSERT_TRUE(Camera.GetView().Project(Place, Size, After));
	EXPECT_TRUE(After.Equals(Before, 1.0e-6));
	EXPECT_DOUBLE_EQ(Camera.GetPose().Distance, 3000.0);
}

TEST(SceneCamera, StaysAtTheScene)
{
	FSceneCamera Camera = MakeCamera();
	for (int32 Step = 0; Step < 100; ++Step)
	{
		Camera.Zoom(2.0, FVector::ZeroVector);
		Camera.Pan(FVector2D(500.0, 100.0), Size.Y);
	}
	EXPECT_TRUE(Site.IsInsideOrOn(Camera.GetGoal().Target));
	EXPECT_LT(Camera.GetGoal().Distance, 40000.0);
	for (int32 Step = 0; Step < 100; ++Step)
	{
		Camera.Zoom(0.5, FVector::ZeroVector);
	}
	EXPECT_GT(Camera.GetGoal().Distance, 100.0);
}

TEST(SceneCamera, FramesTheWholeBoxAndHardlyMore)
{
	for (const double AspectRatio : { 0.5, 1.0, 2.0 })
	{
		FSceneCamera Camera = MakeCamera();

		Camera.Frame(Site, AspectRatio);
		Camera.Finish();

		const FVector2D Picture(600.0 * AspectRatio, 600.0);
		double Least = 1.0;
		for (int32 Corner = 0; Corner < 8; ++Corner)
		{
			const FVector Place(Corner & 1 ? Site.Max.X : Site.Min.X, Corner & 2 ? Site.Max.Y : Site.Min.Y, Corner & 4 ? Site.Max.Z : Site.Min.Z);
			FVector2D Pixel;
			ASSERT_TRUE(Camera.GetView().Project(Place, Picture, Pixel));
			const FVector2D Share = Pixel / Picture;
			Least = FMath::Min(Least, FMath::Min(FMath::Min(Share.X, 1.0 - Share.X), FMath::Min(Share.Y, 1.0 - Share.Y)));
		}
		EXPECT_GT(Least, 0.0) << "cut off at " << AspectRatio;
		EXPECT_LT(Least, 0.08) << "too far away at " << AspectRatio;
	}
}

TEST(SceneCamera, FocusPutsThePlaceInTheMiddle)
{
	FSceneCamera Camera = MakeCamera();
	const FVector Place(1200.0, 700.0, 800.0);

	Camera.Focus(Place, 300.0, 1.5);
	Camera.Finish();

	FVector2D Pixel;
	ASSERT_TRUE(Camera.GetView().Project(Place, Size, Pixel));
	EXPECT_TRUE(Pixel.Equals(Size * 0.5, 1.0e-6));
	EXPECT_LT(Camera.GetPose().Distance, 2000.0);
}

TEST(SceneCamera, EasesTowardTheGoalAndArrives)
{
	FSceneCamera Camera = MakeCamera();
	Camera.Orbit(40.0, 0.0);
	EXPECT_TRUE(Camera.IsMoving());
	EXPECT_DOUBLE_EQ(Camera.GetPose().Yaw, 30.0);

	double Yaw = Camera.GetPose().Yaw;
	double LastStep = 1.0e9;
	int32 Frames = 0;
	while (Camera.Tick(1.0 / 60.0))
	{
		const double Step = Camera.GetPose().Yaw - Yaw;
		Yaw = Camera.GetPose().Yaw;
		EXPECT_GE(Step, 0.0);
		// The last frame does what is left at once.
		EXPECT_LE(Step, LastStep + 0.011);
		LastStep = Step;
		ASSERT_LT(++Frames, 200);
	}

	EXPECT_DOUBLE_EQ(Camera.GetPose().Yaw, 70.0);
	EXPECT_FALSE(Camera.IsMoving());
}

TEST(SceneCamera, HowFarItComesDoesNotDependOnTheLengthOfFrames)
{
	FSceneCamera Long = MakeCamera();
	FSceneCamera Short = MakeCamera();
	for (FSceneCamera* const Camera : { &Long, &Short })
	{
		Camera->Orbit(40.0, -8.0);
		Camera->Zoom(0.4, FVector(500.0, 0.0, 0.0));
	}

	Long.Tick(0.1);
	for (int32 Step = 0; Step < 10; ++Step)
	{
		Short.Tick(0.01);
	}

	EXPECT_NEAR(Long.GetPose().Yaw, Short.GetPose().Yaw, 1.0e-9);
	EXPECT_NEAR(Long.GetPose().Distance, Short.GetPose().Distance, 1.0e-6);
	EXPECT_TRUE(Long.GetPose().Target.Equals(Short.GetPose().Target, 1.0e-6));
}

TEST(SceneCamera, NoTimeMovesNothing)
{
	FSceneCamera Camera = MakeCamera();
	Camera.Orbit(40.0, 0.0);

	Camera.Tick(0.0);

	EXPECT_DOUBLE_EQ(Camera.GetPose().Yaw, 30.0);
	EXPECT_TRUE(Camera.IsMoving());
}

TEST(SceneCamera, NearAndFarHoldTheSceneFromAnywhere)
{
	FSceneCamera Camera = MakeCamera();
	for (int32 Step = 0; Step < 8; ++Step)
	{
		Camera.Orbit(45.0, -7.0);
		Camera.Finish();
		const FSceneView View = Camera.GetView();
		for (int32 Corner = 0; Corner < 8; ++Corner)
		{
			const FVector Place(Corner & 1 ? Site.Max.X : Site.Min.X, Corner & 2 ? Site.Max.Y : Site.Min.Y, Corner & 4 ? Site.Max.Z : Site.Min.Z);
			EXPECT_LT((Place - View.Location) | View.Forward, View.FarDistance);
		}
		EXPECT_LT(View.NearDistance, 0.1 * Camera.GetPose().Distance);
	}
}
