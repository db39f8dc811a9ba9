#include "ViewerRun.h"

namespace
{
	/** Between the panels of the configurator, in a window of this size. */
	const std::string WindowSize = "1000x640";
	constexpr int32 RoomsLeft = 400;
	constexpr int32 RoomsRight = 640;

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
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / ("ConfiguratorTour" + std::to_string(::getpid()));
	std::filesystem::create_directory(Folder);
	const FViewerRun Run = RunViewer("cd " + Folder.string() + " &&",
		"--renderer cpu --project " HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside --script " HALVEX_SOURCE_DIR "/Tests/Viewer/Scripts/ConfigureAKitchen.lua", WindowSize);
	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_EQ(Run.Log.find("Warning"), std::string::npos) << Run.Log;

	Host::FPicture Before;
	FString Error;
	EXPECT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR((Folder / "KitchenBefore.png").c_str()), Before, Error)) << TCHAR_TO_UTF8(*Error);
	EXPECT_GT(CountDarkPixels(Run.Picture), CountDarkPixels(Before) + 200) << "the worktop of black granite is to be seen";
	std::filesystem::remove_all(Folder);
}
