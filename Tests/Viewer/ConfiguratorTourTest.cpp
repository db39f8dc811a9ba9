#include "ViewerRun.h"

namespace
{
	/** Between the panels of the configurator, in a window of this size. */
	constexpr const char* WindowSize = "1000x640";
	constexpr int32 RoomsLeft = 400;
	constexpr int32 RoomsRight = 640;

	FViewerRun RunScript(const char* Name)
	{
		return RunViewer("", std::string("--renderer cpu --project " HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside --script " HALVEX_SOURCE_DIR "/Tests/Viewer/Scripts/") + Name,
			WindowSize);
	}

	/** Pixels of the rooms that are nearly black, as black granite is in any light. */
	int32 CountDarkPixels(const Host::FPicture& Picture)
	{
		int32 Count = 0;
		for (int32 Y = 0; Y < Picture.Size.Y; ++Y)
		{
			for (int32 X = RoomsLeft; X < RoomsRight; ++X)
			{
				const FColor& Pixel = Picture.At(X, Y);
				Count += Pixel.R < 64 && Pixel.G < 64 && Pixel.B < 64;
			}
		}
		return Count;
	}
}

TEST(ConfiguratorTour, AKitchenIsConfiguredFromTheListOfUnitsToTheSummary)
{
	const FViewerRun Run = RunScript("ConfigureAKitchen.lua");
	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_EQ(Run.Log.find("Warning"), std::string::npos) << Run.Log;

	const FViewerRun Before = RunScript("OpenRooms.lua");
	EXPECT_EQ(Before.ExitCode, 0) << Before.Log;
	EXPECT_GT(CountDarkPixels(Run.Picture), CountDarkPixels(Before.Picture) + 200) << "the worktop of black granite is to be seen";
}
