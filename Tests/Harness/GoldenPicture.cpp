#include "GoldenPicture.h"

#include "EngineTest.h"

#include <cstdlib>

namespace Host
{
	void ExpectGolden(const FString& Name, const FPicture& Picture)
	{
		const FString Base = FString(TEXT(HALVEX_SOURCE_DIR "/Tests/Goldens/")) + Name;
		FString Error;
		if (std::getenv("HALVEX_ACCEPT_GOLDENS"))
		{
			EXPECT_TRUE(SavePicture(Base + TEXT(".png"), Picture, Error)) << ToStd(Error);
			return;
		}
		FPicture Approved;
		ASSERT_TRUE(LoadPicture(Base + TEXT(".png"), Approved, Error)) << ToStd(Error);
		const FPictureDifference Difference = ComparePictures(Approved, Picture);
		if (!Difference.IsSame())
		{
			SavePicture(Base + TEXT(".actual.png"), Picture, Error);
			SavePicture(Base + TEXT(".difference.png"), MakeDifferencePicture(Approved, Picture), Error);
			ADD_FAILURE() << ToStd(Name) << ": " << ToStd(Difference.ToString());
		}
	}
}
