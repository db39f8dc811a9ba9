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
	}

	void ExpectGolden(const FString& Name, const FPicture& Picture)
	{
		FString Error;
		if (std::getenv("HALVEX_ACCEPT_GOLDENS"))
		{
			EXPECT_TRUE(SavePicture(GetPathOf(Name) + TEXT(".png"), Picture, Error)) << ToStd(Error);
			return;
		}
		ExpectNearGolden(Name, Picture, 0);
	}

	void ExpectNearGolden(const FString& Name, const FPicture& Picture, int32 Tolerance)
	{
		const FString Base = GetPathOf(Name);
		FString Error;
		FPicture Approved;
		ASSERT_TRUE(LoadPicture(Base + TEXT(".png"), Approved, Error)) << ToStd(Error);
		const FPictureDifference Difference = ComparePictures(Approved, Picture, Tolerance);
		if (!Difference.IsSame())
		{
			SavePicture(Base + TEXT(".actual.png"), Picture, Error);
			SavePicture(Base + TEXT(".difference.png"), MakeDifferencePicture(Approved, Picture), Error);
			ADD_FAILURE() << ToStd(Name) << ": " << ToStd(Difference.ToString());
		}
	}
}
