#include "Math/Transform.h"

#include "CoreMinimal.h"
#include "Math/Box.h"
#include "Math/Matrix.h"
#include "Math/Plane.h"
#include "Math/Quat.h"
#include "Math/Rotator.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	void ExpectNear(const FVector& Expected, const FVector& Actual, double Tolerance = 1e-6)
	{
		EXPECT_TRUE(Expected.Equals(Actual, Tolerance)) << "expected " << ToUtf8(Expected.ToString()) << ", got " << ToUtf8(Actual.ToString());
	}

	const FRotator SomeRotators[] = {
		FRotator(0, 0, 0), FRotator(30, 0, 0), FRotator(0, 45, 0), FRotator(0, 0, 60), FRotator(10, 20, 30),
		FRotator(-80, 170, -120), FRotator(89, -179, 45), FRotator(5, 90, 180), FRotator(45, -90, -45)};
}

TEST(RotatorTest, YawTurnsForwardToTheRight)
{
	ExpectNear(FVector(0, 1, 0), FRotator(0, 90, 0).Vector());
	ExpectNear(FVector(0, 1, 0), FRotator(0, 90, 0).RotateVector(FVector(1, 0, 0)));
	ExpectNear(FVector(-1, 0, 0), FRotator(0, 90, 0).RotateVector(FVector(0, 1, 0)));
}

TEST(RotatorTest, PitchTurnsForwardUp)
{
	ExpectNear(FVector(0, 0, 1), FRotator(90, 0, 0).Vector());
	ExpectNear(FVector(0, 0, 1), FRotator(90, 0, 0).RotateVector(FVector(1, 0, 0)));
}

TEST(RotatorTest, RollTurnsRightDown)
{
	ExpectNear(FVector(0, 0, -1), FRotator(0, 0, 90).RotateVector(FVector(0, 1, 0)));
	ExpectNear(FVector(0, 1, 0), FRotator(0, 0, 90).RotateVector(FVector(0, 0, 1)));
}

TEST(RotatorTest, RollComesBeforePitchBeforeYaw)
{
	const FVector V(1, 2, 3);
	const FVector Steps = FRotator(0, 20, 0).RotateVector(FRotator(10, 0, 0).RotateVector(FRotator(0, 0, 30).RotateVector(V)));
	ExpectNear(Steps, FRotator(10, 20, 30).RotateVector(V));
}

TEST(RotatorTest, QuaternionsComeBackAsTheSameRotation)
{
	for (const FRotator& Rotator : SomeRotators)
	{
		const FRotator Back = Rotator.Quaternion().Rotator();
		EXPECT_TRUE(Back.Equals(Rotator, 1e-4)) << ToUtf8(Rotator.ToString()) << " became " << ToUtf8(Back.ToString());
	}
}

TEST(RotatorTest, StraightUpAndDownTurnAlikeThoughTheAnglesDiffer)
{
	for (const FRotator Rotator : {FRotator(90, 30, 0), FRotator(90, 30, 40), FRotator(-90, 30, 40), FRotator(-90, -100, 170)})
	{
		const FRotator Back = Rotator.Quaternion().Rotator();
		ExpectNear(Rotator.RotateVector(FVector(1, 2, 3)), Back.RotateVector(FVector(1, 2, 3)), 1e-3);
	}
}

TEST(RotatorTest, AnglesNormalise)
{
	EXPECT_EQ(FRotator(-170, 180, 0), FRotator(190, 540, 720).GetNormalized());
	EXPECT_EQ(FRotator(350, 0, 1), FRotator(-10, 360, 721).Clamp());
	EXPECT_TRUE(FRotator(0, 360, 0).Equals(FRotator(0, 0, 0)));
	EXPECT_NE(FRotator(0, 360, 0), FRotator(0, 0, 0));
}

TEST(RotatorTest, ADirectionHasPitchAndYaw)
{
	EXPECT_TRUE(FVector(0, 5, 0).Rotation().Equals(FRotator(0, 90, 0)));
	EXPECT_TRUE(FVector(1, 0, 1).Rotation().Equals(FRotator(45, 0, 0)));
}

TEST(RotatorTest, TextFormComesBack)
{
	EXPECT_EQ("P=1.500000 Y=-2.000000 R=3.000000", ToUtf8(FRotator(1.5, -2, 3).ToString()));
	FRotator Read(0, 0, 0);
	EXPECT_TRUE(Read.InitFromString(TEXT("P=1.5 Y=-2 R=3")));
	EXPECT_EQ(FRotator(1.5, -2, 3), Read);
}

TEST(RotatorTest, InterpolationTakesTheShorterWay)
{
	const FRotator Next = FMath::RInterpTo(FRotator(0, 170, 0), FRotator(0, -170, 0), 0.1f, 5.0f);
	EXPECT_TRUE(Next.Equals(FRotator(0, 180, 0), 1e-4)) << ToUtf8(Next.ToString());
}

TEST(QuatTest, AProductTurnsByTheSecondFirst)
{
	const FQuat A(FRotator(10, 20, 30));
	const FQuat B(FRotator(-40, 50, 60));
	ExpectNear(A.RotateVector(B.RotateVector(FVector(1, 2, 3))), (A * B).RotateVector(FVector(1, 2, 3)));
}

TEST(QuatTest, AnInverseTurnsBack)
{
	const FQuat Quat(FRotator(10, 20, 30));
	ExpectNear(FVector(1, 2, 3), Quat.UnrotateVector(Quat.RotateVector(FVector(1, 2, 3))));
	EXPECT_TRUE((Quat * Quat.Inverse()).IsIdentity(1e-9));
}

TEST(QuatTest, AngleAndAxisComeBack)
{
	const FQuat Quat(FVector(0, 0, 1), 1.25);
	EXPECT_NEAR(1.25, Quat.GetAngle(), 1e-9);
	ExpectNear(FVector(0, 0, 1), Quat.GetRotationAxis());
	EXPECT_NEAR(0.75, Quat.AngularDistance(FQuat(FVector(0, 0, 1), 2.0)), 1e-9);
}

TEST(QuatTest, SlerpMovesAtAnEvenSpeed)
{
	const FQuat From(FRotator(0, 0, 0));
	const FQuat To(FRotator(0, 90, 0));
	EXPECT_TRUE(FQuat::Slerp(From, To, 0.25).Rotator().Equals(FRotator(0, 22.5, 0), 1e-4));
	EXPECT_TRUE(FQuat::Slerp(From, To * -1.0, 0.5).Rotator().Equals(FRotator(0, 45, 0), 1e-4));
}

TEST(QuatTest, VectorsAreBroughtTogether)
{
	const FVector A(1, 2, -3);
	for (const FVector B : {FVector(3, 1, 2), FVector(-1, -2, 3), FVector(2, 4, -6)})
	{
		ExpectNear(B.GetSafeNormal(), FQuat::FindBetweenVectors(A, B).RotateVector(A.GetSafeNormal()));
	}
}

TEST(MatrixTest, AProductAppliesTheLeftOneFirst)
{
	const FMatrix Matrix = FScaleMatrix(2.0) * FTranslationMatrix(FVector(10, 0, 0));
	ExpectNear(FVector(12, 2, 2), Matrix.TransformPosition(FVector(1, 1, 1)));
	ExpectNear(FVector(2, 2, 2), Matrix.TransformVector(FVector(1, 1, 1)));
	ExpectNear(FVector(10, 0, 0), Matrix.GetOrigin());
}

TEST(MatrixTest, AnInverseUndoes)
{
	const FMatrix Matrix = FScaleMatrix(FVector(2, 3, -4)) * FRotationMatrix(FRotator(10, 20, 30)) * FTranslationMatrix(FVector(1, -2, 3));
	EXPECT_TRUE((Matrix * Matrix.Inverse()).Equals(FMatrix::Identity, 1e-9));
	EXPECT_TRUE((Matrix.Inverse() * Matrix).Equals(FMatrix::Identity, 1e-9));
	EXPECT_NEAR(-24.0, Matrix.Determinant(), 1e-9);
}

TEST(MatrixTest, AProjectionHasItsInverseToo)
{
	FMatrix Matrix(FVector4(2, 0, 0, 0), FVector4(0, 3, 0, 0), FVector4(1, 0, 0.5, 1), FVector4(0, 0, 7, 0));
	EXPECT_TRUE((Matrix * Matrix.Inverse()).Equals(FMatrix::Identity, 1e-9));
}

TEST(MatrixTest, WithoutAnInverseTheIdentityComes)
{
	EXPECT_EQ(FMatrix::Identity, FScaleMatrix(FVector(1, 0, 1)).Inverse());
}

TEST(MatrixTest, RotationsComeBack)
{
	for (const FRotator& Rotator : SomeRotators)
	{
		const FMatrix Matrix = FRotationMatrix(Rotator);
		EXPECT_TRUE(Matrix.ToQuat().Equals(Rotator.Quaternion(), 1e-6)) << ToUtf8(Rotator.ToString());
		ExpectNear(Rotator.RotateVector(FVector(1, 2, 3)), Matrix.TransformVector(FVector(1, 2, 3)));
	}
}

TEST(TransformTest, ScaleComesBeforeRotationBeforeTranslation)
{
	const FTransform Transform(FRotator(0, 90, 0), FVector(10, 0, 0), FVector(2, 1, 1));
	ExpectNear(FVector(10, 2, 0), Transform.TransformPosition(FVector(1, 0, 0)));
	ExpectNear(FVector(0, 2, 0), Transform.TransformVector(FVector(1, 0, 0)));
	ExpectNear(FVector(10, 1, 0), Transform.TransformPositionNoScale(FVector(1, 0, 0)));
}

TEST(TransformTest, AProductAppliesTheLeftOneFirst)
{
	const FTransform A(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 2, 2));
	const FTransform B(FRotator(-40, 50, 60), FVector(-7, 8, 9), FVector(0.5, 0.5, 0.5));
	ExpectNear(B.TransformPosition(A.TransformPosition(FVector(1, 2, 3))), (A * B).TransformPosition(FVector(1, 2, 3)));
}

TEST(TransformTest, InversesUndo)
{
	const FTransform Transform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 2, 2));
	ExpectNear(FVector(4, 5, 6), Transform.Inverse().TransformPosition(Transform.TransformPosition(FVector(4, 5, 6))));
	const FTransform Uneven(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 3, 4));
	ExpectNear(FVector(4, 5, 6), Uneven.InverseTransformPosition(Uneven.TransformPosition(FVector(4, 5, 6))));
	ExpectNear(FVector(4, 5, 6), Uneven.InverseTransformVector(Uneven.TransformVector(FVector(4, 5, 6))));
}

TEST(TransformTest, ARelativeTransformLeadsBack)
{
	const FTransform Parent(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 2, 2));
	const FTransform World(FRotator(-40, 50, 60), FVector(-7, 8, 9), FVector(3, 1, 1));
	EXPECT_TRUE((World.GetRelativeTransform(Parent) * Parent).Equals(World, 1e-6));
}

TEST(TransformTest, TheMatrixDoesTheSame)
{
	const FTransform Transform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2, 3, 4));
	ExpectNear(Transform.TransformPosition(FVector(4, 5, 6)), Transform.ToMatrixWithScale().TransformPosition(FVector(4, 5, 6)));
}

TEST(TransformTest, ADefaultTransformIsTheIdentity)
{
	EXPECT_EQ(FTransform::Identity, FTransform());
	ExpectNear(FVector(1, 2, 3), FTransform().TransformPosition(FVector(1, 2, 3)));
}

TEST(PlaneTest, PointsAreMeasuredAlongTheNormal)
{
	const FPlane Plane(FVector(0, 0, 5), FVector(0, 0, 1));
	EXPECT_EQ(2.0, Plane.PlaneDot(FVector(100, 3, 7)));
	EXPECT_EQ(-5.0, Plane.PlaneDot(FVector(0, 0, 0)));
	ExpectNear(FVector(2, 0, 5), FMath::LinePlaneIntersection(FVector(0, 0, 9), FVector(1, 0, 7), Plane));
}

TEST(BoxTest, ABoxGrowsToHoldItsPoints)
{
	FBox Box(ForceInit);
	EXPECT_FALSE(Box.IsValid);
	Box += FVector(1, 2, 3);
	Box += FVector(-1, 5, 0);
	EXPECT_EQ(FBox(FVector(-1, 2, 0), FVector(1, 5, 3)), Box);
	Box += FBox(ForceInit);
	EXPECT_EQ(18.0, Box.GetVolume());
}

TEST(BoxTest, ATransformedBoxHoldsItsCorners)
{
	const FBox Box(FVector(-1, -1, -1), FVector(1, 1, 1));
	const FBox Turned = Box.TransformBy(FTransform(FRotator(0, 45, 0), FVector(10, 0, 0)));
	ExpectNear(FVector(10, 0, 0), Turned.GetCenter());
	ExpectNear(FVector(std::sqrt(2.0), std::sqrt(2.0), 1), Turned.GetExtent());
	EXPECT_FALSE(FBox(ForceInit).TransformBy(FTransform()).IsValid);
}

TEST(BoxTest, LinesMeetABox)
{
	const FBox Box(FVector(-1, -1, -1), FVector(1, 1, 1));
	const auto Meets = [&](const FVector& Start, const FVector& End) { return FMath::LineBoxIntersection(Box, Start, End, End - Start); };
	EXPECT_TRUE(Meets(FVector(-5, 0, 0), FVector(5, 0, 0)));
	EXPECT_FALSE(Meets(FVector(-5, 0, 0), FVector(-2, 0, 0)));
	EXPECT_FALSE(Meets(FVector(-5, 2, 0), FVector(5, 2, 0)));
	EXPECT_TRUE(Meets(FVector(0, 0, 0), FVector(0.5, 0, 0)));
	EXPECT_TRUE(Meets(FVector(-3, -2, 0), FVector(2, 3, 0)));
	EXPECT_FALSE(Meets(FVector(-3, 0, 0), FVector(0, 3, 0)));
}
