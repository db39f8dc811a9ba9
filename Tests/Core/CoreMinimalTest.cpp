// Nothing else: what the engine's minimal header offers must be there with it.
#include "CoreMinimal.h"
#include "gtest/gtest.h"

TEST(CoreMinimalTest, OffersTheTypesOfMathematics)
{
	const FTransform Transform(FRotator(0.0, 90.0, 0.0), FVector(1.0, 2.0, 3.0));
	EXPECT_TRUE(Transform.TransformPosition(FVector(1.0, 0.0, 0.0)).Equals(FVector(1.0, 3.0, 3.0), 1e-9));
	EXPECT_TRUE(FQuat::Identity.IsNormalized());
	EXPECT_EQ(1.0, FMatrix::Identity.M[0][0]);
	EXPECT_EQ(1.0, FPlane(0.0, 0.0, 1.0, 4.0).Z);
	EXPECT_TRUE(FBox(FVector(0.0, 0.0, 0.0), FVector(2.0, 2.0, 2.0)).IsInside(FVector(1.0, 1.0, 1.0)));
	EXPECT_TRUE(FBox2D(FVector2D(0.0, 0.0), FVector2D(2.0, 2.0)).IsInside(FVector2D(1.0, 1.0)));
	EXPECT_EQ(3, FIntRect(1, 1, 4, 2).Width());
	EXPECT_EQ(1, static_cast<int>(EAxis::X));
}
