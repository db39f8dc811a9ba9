#include "Host/PictureCompare.h"

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	FPicture MakePicture(FColor Colour)
	{
		FPicture Picture;
		Picture.Size = FIntPoint(4, 3);
		Picture.Pixels.Init(Colour, 12);
		return Picture;
	}
}

TEST(PictureCompare, EqualPicturesAgreeExactly)
{
	const FPictureDifference Difference = ComparePictures(MakePicture(FColor(1, 2, 3, 255)), MakePicture(FColor(1, 2, 3, 255)));

	EXPECT_TRUE(Difference.IsSame());
	EXPECT_EQ(Difference.Largest, 0);
}

TEST(PictureCompare, NamesTheFirstPixelBeyondTolerance)
{
	FPicture Changed = MakePicture(FColor(10, 10, 10, 255));
	Changed.Pixels[4 * 1 + 2].G = 15;
	Changed.Pixels[4 * 2 + 3].B = 60;

	const FPictureDifference Difference = ComparePictures(MakePicture(FColor(10, 10, 10, 255)), Changed, 4);

	EXPECT_EQ(Difference.NumDifferent, 2);
	EXPECT_EQ(Difference.Largest, 50);
	EXPECT_EQ(Difference.FirstPlace, FIntPoint(2, 1));
}

TEST(PictureCompare, ToleratesWhatItIsTold)
{
	EXPECT_TRUE(ComparePictures(MakePicture(FColor(10, 10, 10, 255)), MakePicture(FColor(14, 10, 10, 255)), 4).IsSame());
	EXPECT_FALSE(ComparePictures(MakePicture(FColor(10, 10, 10, 255)), MakePicture(FColor(15, 10, 10, 255)), 4).IsSame());
}

TEST(PictureCompare, IgnoresColoursThatCannotBeSeen)
{
	EXPECT_TRUE(ComparePictures(MakePicture(FColor(255, 0, 0, 0)), MakePicture(FColor(0, 255, 0, 0))).IsSame());
}

TEST(PictureCompare, DifferentSizesNeverAgree)
{
	FPicture Smaller = MakePicture(FColor(0, 0, 0, 255));
	Smaller.Size = FIntPoint(3, 4);

	EXPECT_FALSE(ComparePictures(MakePicture(FColor(0, 0, 0, 255)), Smaller, 255).IsSame());
}

TEST(PictureCompare, DifferencePictureIsRedWhereTheyDiffer)
{
	FPicture Changed = MakePicture(FColor(10, 10, 10, 255));
	Changed.Pixels[5].R = 200;

	const FPicture Difference = MakeDifferencePicture(MakePicture(FColor(10, 10, 10, 255)), Changed);

	EXPECT_EQ(Difference.At(1, 1).R, 255);
	EXPECT_EQ(Difference.At(1, 1).B, 0);
	EXPECT_EQ(Difference.At(0, 0).R, Difference.At(0, 0).B);
}

TEST(PictureCompare, PicturesSurviveAFile)
{
	FPicture Picture = MakePicture(FColor(10, 60, 200, 255));
	Picture.Pixels[3] = FColor(1, 2, 3, 100);
	const FString Path = FString(UTF8_TO_TCHAR(HALVEX_BINARY_DIR)) + TEXT("/TestPictures/RoundTrip.png");
	FString Error;
	FPicture Loaded;

	ASSERT_TRUE(SavePicture(Path, Picture, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_TRUE(LoadPicture(Path, Loaded, Error)) << TCHAR_TO_UTF8(*Error);

	EXPECT_EQ(Loaded.Size, Picture.Size);
	EXPECT_EQ(Loaded.Pixels, Picture.Pixels);
}
