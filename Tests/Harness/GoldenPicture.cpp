#include "GoldenPicture.h"

#include "EngineTest.h"

#include <cstdlib>

namespace Host
{
	namespace
	{
		FString GetPathOf(const FString& Name)
		{
			return FString(TEXT(HALVEX_SOURCE_DIR "/Tests/Goldens/")) + Name;
		}

		/** Makes the picture the approved one when the environment says so. */
		bool AcceptIfAsked(const FString& Name, const FPicture& Picture)
		{
			FString Error;
			const bool bAccept = std::getenv("HALVEX_ACCEPT_GOLDENS") != nullptr;
			EXPECT_TRUE(!bAccept || SavePicture(GetPathOf(Name) + TEXT(".png"), Picture, Error)) << ToStd(Error);
			return bAccept;
		}

		void LeavePictures(const FString& Name, const FPicture& Approved, const FPicture& Picture)
		{
			FString Error;
			SavePicture(GetPathOf(Name) + TEXT(".actual.png"), Picture, Error);
			SavePicture(GetPathOf(Name) + TEXT(".difference.png"), MakeDifferencePicture(Approved, Picture), Error);
		}

		/** Means of squares with so many pixels a side; what is left at the right and lower sides is cut off. */
		FPicture MakeSmaller(const FPicture& Picture, int32 Factor)
		{
			FPicture Result;
			Result.Size = Picture.Size / Factor;
			for (int32 Y = 0; Y < Result.Size.Y; ++Y)
			{
				for (int32 X = 0; X < Result.Size.X; ++X)
				{
					int32 Sums[4] = {};
					for (int32 Index = 0; Index < Factor * Factor; ++Index)
					{
						const FColor& Pixel = Picture.At(X * Factor + Index % Factor, Y * Factor + Index / Factor);
						Sums[0] += Pixel.R;
						Sums[1] += Pixel.G;
						Sums[2] += Pixel.B;
						Sums[3] += Pixel.A;
					}
					const auto Mean = [&](int32 Channel) { return static_cast<uint8>(Sums[Channel] / (Factor * Factor)); };
					Result.Pixels.Add(FColor(Mean(0), Mean(1), Mean(2), Mean(3)));
				}
			}
			return Result;
		}
	}

	void ExpectGolden(const FString& Name, const FPicture& Picture)
	{
		if (!AcceptIfAsked(Name, Picture))
		{
			ExpectNearGolden(Name, Picture, 0);
		}
	}

	void ExpectNearGolden(const FString& Name, const FPicture& Picture, int32 Tolerance)
	{
		FString Error;
		FPicture Approved;
		ASSERT_TRUE(LoadPicture(GetPathOf(Name) + TEXT(".png"), Approved, Error)) << ToStd(Error);
		const FPictureDifference Difference = ComparePictures(Approved, Picture, Tolerance);
		if (!Difference.IsSame())
		{
			LeavePictures(Name, Approved, Picture);
			ADD_FAILURE() << ToStd(Name) << ": " << ToStd(Difference.ToString());
		}
	}

	FPictureDifference CompareWithGolden(const FString& Name, const FPicture& Picture, int32 Factor, int32 Tolerance)
	{
		FString Error;
		FPicture Approved;
		EXPECT_TRUE(LoadPicture(GetPathOf(Name) + TEXT(".png"), Approved, Error)) << ToStd(Error);
		return ComparePictures(MakeSmaller(Approved, Factor), MakeSmaller(Picture, Factor), Tolerance);
	}

	void ExpectSimilarGolden(const FString& Name, const FPicture& Picture, int32 Factor, int32 Tolerance)
	{
		if (AcceptIfAsked(Name, Picture))
		{
			return;
		}
		const FPictureDifference Difference = CompareWithGolden(Name, Picture, Factor, Tolerance);
		FString Error;
		if (FPicture Approved; !Difference.IsSame() && LoadPicture(GetPathOf(Name) + TEXT(".png"), Approved, Error))
		{
			LeavePictures(Name, Approved, Picture);
		}
		EXPECT_TRUE(Difference.IsSame()) << ToStd(Name) << ": " << ToStd(Difference.ToString());
	}
}
