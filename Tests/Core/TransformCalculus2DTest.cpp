#include "Math/TransformCalculus2D.h"

#include "CoreMinimal.h"
#include "gtest/gtest.h"

TEST(TransformCalculus2DTest, ConcatenationAppliesTheLeftOneFirst)
{
	const FTransform2D Scale(2.0f);
	const FTransform2D Move(FVector2f(10, 0));
	EXPECT_EQ(FVector2f(12, 2), Scale.Concatenate(Move).TransformPoint(FVector2f(1, 1)));
	EXPECT_EQ(FVector2f(22, 2), Concatenate(Move, Scale).TransformPoint(FVector2f(1, 1)));
}

TEST(TransformCalculus2DTest, AnInverseUndoesTheTransform)
{
	const FTransform2D Transform(FMatrix2x2(FQuat2D(0.7f)).Concatenate(FMatrix2x2(FScale2D(2.0f, 3.0f))), FVector2f(5, -7));
	const FVector2f Point(3, 4);
	EXPECT_TRUE(Transform.Inverse().TransformPoint(Transform.TransformPoint(Point)).Equals(Point, 1e-4f));
}

TEST(TransformCalculus2DTest, VectorsAreNotTranslated)
{
	const FTransform2D Transform(2.0f, FVector2f(10, 10));
	EXPECT_EQ(FVector2f(2, 4), Transform.TransformVector(FVector2f(1, 2)));
}

TEST(TransformCalculus2DTest, RotationLeadsFromXTowardY)
{
	const FVector2f Turned = FMatrix2x2(FQuat2D(UE_HALF_PI)).TransformPoint(FVector2f(1, 0));
	EXPECT_TRUE(Turned.Equals(FVector2f(0, 1), 1e-6f));
}

TEST(TransformCalculus2DTest, ShearGrowsOneAxisWithTheOther)
{
	EXPECT_EQ(FVector2f(3, 1), FMatrix2x2(FShear2D(2.0f, 0.0f)).TransformPoint(FVector2f(1, 1)));
	EXPECT_TRUE(FMatrix2x2(FShear2D::FromShearAngles(FVector2f(45, 0))).TransformPoint(FVector2f(0, 1)).Equals(FVector2f(1, 1), 1e-6f));
}

TEST(TransformCalculus2DTest, ADefaultTransformIsTheIdentity)
{
	EXPECT_TRUE(FTransform2D().IsIdentity());
	EXPECT_FALSE(FTransform2D(FVector2f(1, 0)).IsIdentity());
}
