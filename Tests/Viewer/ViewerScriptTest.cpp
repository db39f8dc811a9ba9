#include "Host/PictureCompare.h"

#include "gtest/gtest.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

TEST(ViewerScript, FindsAFlatUnderAPriceOnSomeLevelsAndShowsItInTheScene)
{
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / ("ViewerScript" + std::to_string(::getpid()));
	std::filesystem::create_directories(Folder);
	// The user's folder is one of this test; a graphics driver keeps a few buffers until the program ends.
	const std::string Command = "cd " + Folder.string() + " && XDG_DATA_HOME=" + Folder.string() + " ASAN_OPTIONS=detect_leaks=0 " HALVEX_VIEWER
		" --headless --renderer cpu --size 900x600 --script " HALVEX_SOURCE_DIR "/Tests/Viewer/Scripts/FindFlat.lua > log.txt 2>&1";
	const int ExitCode = std::system(Command.c_str());
	std::ifstream Stream(Folder / "log.txt");
	std::stringstream Log;
	Log << Stream.rdbuf();
	EXPECT_EQ(ExitCode, 0) << Log.str();

	Host::FPicture Filtered;
	Host::FPicture Found;
	FString Error;
	ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR((Folder / "filtered.png").c_str()), Filtered, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR((Folder / "found.png").c_str()), Found, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Found.Size, FIntPoint(900, 600));
	// Beside the list is the scene, and in it one flat has the colour of what is selected.
	constexpr int32 ListWidth = 400;
	const auto IsSelected = [](const FColor& Pixel) { return Pixel.B > Pixel.G + 80 && Pixel.B > Pixel.R + 60; };
	int32 NumSelected = 0;
	for (int32 Y = 0; Y < Found.Size.Y; ++Y)
	{
		for (int32 X = ListWidth; X < Found.Size.X; ++X)
		{
			NumSelected += IsSelected(Found.At(X, Y)) && !IsSelected(Filtered.At(X, Y)) ? 1 : 0;
		}
	}
	EXPECT_GT(NumSelected, 20);
	std::filesystem::remove_all(Folder);
}
