#include "Host/SceneView.h"

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	const FVector2D Size(800.0, 600.0);
}

TEST(SceneView, LooksAlongItsAngles)
{
	EXPECT_TRUE(FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0).Forward.Equals(FVector(1.0, 0.0, 0.0)));
	EXPECT_TRUE(FSceneView::FromAngles(FVector::ZeroVector, 90.0, 0.0).Forward.Equals(FVector(0.0, 1.0, 0.0)));
	EXPECT_TRUE(FSceneView::FromAngles(FVector::ZeroVector, 90.0, -90.0).Forward.Equals(FVector(0.0, 0.0, -1.0)));
	EXPECT_TRUE(FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0).Right.Equals(FVector(0.0, 1.0, 0.0)));
	EXPECT_TRUE(FSceneView::FromAngles(FVector::ZeroVector, 30.0, 0.0).Up.Equals(FVector(0.0, 0.0, 1.0)));
}

TEST(SceneView, WhatIsAheadIsInTheMiddle)
{
	const FSceneView View = FSceneView::FromAngles(FVector(100.0, 200.0, 300.0), 35.0, -20.0);
	FVector2D Pixel;

	ASSERT_TRUE(View.Project(View.Location + View.Forward * 1000.0, Size, Pixel));

	EXPECT_NEAR(Pixel.X, 400.0, 1.0e-6);
	EXPECT_NEAR(Pixel.Y, 300.0, 1.0e-6);
}

TEST(SceneView, RightIsRightAndUpIsUp)
{
	const FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0);
	FVector2D Pixel;

	ASSERT_TRUE(View.Project(FVector(1000.0, 100.0, 50.0), Size, Pixel));

	EXPECT_GT(Pixel.X, 400.0);
	EXPECT_LT(Pixel.Y, 300.0);
}

TEST(SceneView, TheFieldOfViewReachesFromTheUpperToTheLowerSide)
{
	FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0);
	View.FieldOfView = 90.0;
	FVector2D Pixel;

	ASSERT_TRUE(View.Project(FVector(1000.0, 0.0, 1000.0), Size, Pixel));
	EXPECT_NEAR(Pixel.Y, 0.0, 1.0e-6);
	ASSERT_TRUE(View.Project(FVector(1000.0, 0.0, -1000.0), Size, Pixel));
	EXPECT_NEAR(Pixel.Y, 600.0, 1.0e-6);
}

TEST(SceneView, WhatIsBehindIsNotSeen)
{
	const FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0);
	FVector2D Pixel;
	EXPECT_FALSE(View.Project(FVector(-1.0, 0.0, 0.0), Size, Pixel));
	EXPECT_FALSE(View.Project(FVector(0.0, 5.0, 0.0), Size, Pixel));
}

TEST(SceneView, DeprojectingLeadsBackToThePlace)
{
	const FSceneView View = FSceneView::FromAngles(FVector(-500.0, 40.0, 900.0), 61.0, -33.0);
	for (const FVector2D& Pixel : { FVector2D(0.0, 0.0), FVector2D(799.0, 20.0), FVector2D(123.0, 456.0) })
	{
		FVector2D Again;
		ASSERT_TRUE(View.Project(View.Location + View.Deproject(Pixel, Size) * 700.0, Size, Again));
		EXPECT_NEAR(Again.X, Pixel.X, 1.0e-6);
		EXPECT_NEAR(Again.Y, Pixel.Y, 1.0e-6);
	}
}

TEST(SceneView, TheMatrixAgreesWithProject)
{
	FSceneView View = FSceneView::FromAngles(FVector(-500.0, 40.0, 900.0), 61.0, -33.0);
	View.NearDistance = 10.0;
	View.FarDistance = 5000.0;
	const FVector Origin(1000.0, -300.0, 20.0);
	const FMatrix Matrix = View.GetViewProjection(Size.X / Size.Y, Origin);
	const FVector Place = View.Location + View.Deproject(FVector2D(200.0, 100.0), Size) * 800.0;

	const FVector4 Clip = Matrix.TransformPosition(Place - Origin);
	FVector2D Pixel;
	ASSERT_TRUE(View.Project(Place, Size, Pixel));

	EXPECT_NEAR((Clip.X / Clip.W * 0.5 + 0.5) * Size.X, Pixel.X, 1.0e-6);
	EXPECT_NEAR((0.5 - Clip.Y / Clip.W * 0.5) * Size.Y, Pixel.Y, 1.0e-6);
}

TEST(SceneView, DepthGoesFromNearToFar)
{
	FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, 0.0, 0.0);
	View.NearDistance = 10.0;
	View.FarDistance = 5000.0;
	const FMatrix Matrix = View.GetViewProjection(1.0, FVector::ZeroVector);

	const FVector4 Near = Matrix.TransformPosition(FVector(10.0, 0.0, 0.0));
	const FVector4 Far = Matrix.TransformPosition(FVector(5000.0, 0.0, 0.0));

	EXPECT_NEAR(Near.Z / Near.W, -1.0, 1.0e-9);
	EXPECT_NEAR(Far.Z / Far.W, 1.0, 1.0e-9);
}
