#include "Layout/Geometry.h"

#include <gtest/gtest.h>

#include "Layout/Clipping.h"

namespace
{
	void ExpectNear(const FVector2f& Actual, float X, float Y)
	{
		EXPECT_NEAR(Actual.X, X, 1e-3f);
		EXPECT_NEAR(Actual.Y, Y, 1e-3f);
	}

	FSlateRenderTransform Turn(float Degrees)
	{
		return FSlateRenderTransform(FQuat2D(FMath::DegreesToRadians(Degrees)));
	}
}

TEST(GeometryTest, ChildPlacesAndScalesAccumulate)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 100.0f), FSlateLayoutTransform(2.0f, FVector2f(10.0f, 20.0f)));
	const FGeometry Child = Root.MakeChild(FVector2f(50.0f, 40.0f), FSlateLayoutTransform(0.5f, FVector2f(30.0f, 5.0f)));
	EXPECT_EQ(Child.Scale, 1.0f);
	ExpectNear(Child.GetAbsolutePosition(), 70.0f, 30.0f);
	ExpectNear(Child.GetAbsoluteSize(), 50.0f, 40.0f);
	ExpectNear(Child.LocalToAbsolute(FVector2f(10.0f, 10.0f)), 80.0f, 40.0f);
	ExpectNear(Child.AbsoluteToLocal(FVector2f(80.0f, 40.0f)), 10.0f, 10.0f);
	EXPECT_FALSE(Child.HasRenderTransform());
}

TEST(GeometryTest, AbsoluteToLocalUndoesTheRenderTransformOfTheWidgetAndItsAncestors)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform());
	const FGeometry Parent = Root.MakeChild(FVector2f(100.0f, 100.0f), FSlateLayoutTransform(FVector2f(50.0f, 50.0f)), Turn(90.0f), FVector2f(0.5f, 0.5f));
	const FGeometry Child = Parent.MakeChild(FVector2f(20.0f, 20.0f), FSlateLayoutTransform(FVector2f(0.0f, 0.0f)), FSlateRenderTransform(FVector2f(10.0f, 0.0f)));
	// Clockwise by a quarter, the parent's top left is at its right; the child is moved along what is now downward.
	ExpectNear(Child.LocalToAbsolute(FVector2f(0.0f, 0.0f)), 150.0f, 60.0f);
	ExpectNear(Child.AbsoluteToLocal(FVector2f(150.0f, 60.0f)), 0.0f, 0.0f);
	ExpectNear(Child.AbsoluteToLocal(FVector2f(140.0f, 60.0f)), 0.0f, 10.0f);
}

TEST(GeometryTest, PivotStaysInPlace)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform());
	const FGeometry Child = Root.MakeChild(FVector2f(40.0f, 20.0f), FSlateLayoutTransform(FVector2f(10.0f, 10.0f)), FSlateRenderTransform(2.0f), FVector2f(0.5f, 0.5f));
	ExpectNear(Child.LocalToAbsolute(FVector2f(20.0f, 10.0f)), 30.0f, 20.0f);
	ExpectNear(Child.LocalToAbsolute(FVector2f(0.0f, 0.0f)), -10.0f, 0.0f);
}

TEST(GeometryTest, IdentityRenderTransformIsNone)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform(1.5f));
	const FGeometry Plain = Root.MakeChild(FVector2f(40.0f, 20.0f), FSlateLayoutTransform(FVector2f(3.0f, 7.0f)));
	const FGeometry WithIdentity = Root.MakeChild(FVector2f(40.0f, 20.0f), FSlateLayoutTransform(FVector2f(3.0f, 7.0f)), FSlateRenderTransform(), FVector2f(0.5f, 0.5f));
	EXPECT_TRUE(Plain == WithIdentity);
	EXPECT_FALSE(WithIdentity.HasRenderTransform());
}

TEST(GeometryTest, TransformThatCannotBeUndoneContainsNoPoint)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform());
	const FGeometry Flat = Root.MakeChild(FVector2f(40.0f, 20.0f), FSlateLayoutTransform(), FSlateRenderTransform(FScale2D(1.0f, 0.0f)));
	EXPECT_FALSE(Flat.IsUnderLocation(FVector2f(10.0f, 0.0f)));
	ExpectNear(Flat.AbsoluteToLocal(FVector2f(10.0f, 0.0f)), 0.0f, 0.0f);
}

TEST(GeometryTest, RightAndBottomEdgesAreOutside)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(20.0f, 10.0f), FSlateLayoutTransform());
	EXPECT_TRUE(Root.IsUnderLocation(FVector2f(0.0f, 0.0f)));
	EXPECT_FALSE(Root.IsUnderLocation(FVector2f(20.0f, 5.0f)));
	EXPECT_FALSE(Root.IsUnderLocation(FVector2f(5.0f, 10.0f)));
}

TEST(GeometryTest, RenderBoundsSurroundTheTurnedBox)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform());
	const FGeometry Turned = Root.MakeChild(FVector2f(40.0f, 20.0f), FSlateLayoutTransform(FVector2f(100.0f, 100.0f)), Turn(90.0f));
	const FSlateRect Bounds = Turned.GetRenderBoundingRect();
	ExpectNear(Bounds.GetTopLeft(), 80.0f, 100.0f);
	ExpectNear(Bounds.GetBottomRight(), 100.0f, 140.0f);
	EXPECT_EQ(Turned.GetLayoutBoundingRect(), FSlateRect(100.0f, 100.0f, 140.0f, 120.0f));
}

TEST(GeometryTest, VectorsPassInBothPrecisions)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(200.0, 100.0), FSlateLayoutTransform());
	const FVector2D Double = Root.GetLocalSize();
	const FVector2f Single = Root.GetLocalSize();
	EXPECT_EQ(Double, FVector2D(200.0, 100.0));
	EXPECT_EQ(Single, FVector2f(200.0f, 100.0f));
	EXPECT_EQ(Root.GetLocalSize() - FVector2D(50.0, 50.0), FVector2D(150.0, 50.0));
}

TEST(ClippingZoneTest, KnowsUprightFromTurned)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(200.0f, 200.0f), FSlateLayoutTransform());
	EXPECT_TRUE(FSlateClippingZone(Root).IsAxisAligned());
	EXPECT_TRUE(FSlateClippingZone(Root.MakeChild(Turn(90.0f))).IsAxisAligned());
	EXPECT_FALSE(FSlateClippingZone(Root.MakeChild(Turn(45.0f))).IsAxisAligned());
}

TEST(ClippingZoneTest, PointInsideATurnedZone)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2f(100.0f, 100.0f), FSlateLayoutTransform());
	const FSlateClippingZone Zone(Root.MakeChild(Turn(45.0f), FVector2f(0.5f, 0.5f)));
	EXPECT_TRUE(Zone.IsPointInside(FVector2f(50.0f, 50.0f)));
	EXPECT_TRUE(Zone.IsPointInside(FVector2f(50.0f, -15.0f)));
	EXPECT_FALSE(Zone.IsPointInside(FVector2f(5.0f, 5.0f)));
}
