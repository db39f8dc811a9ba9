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
		" --headless --renderer cpu --size 1280x800 --script " HALVEX_SOURCE_DIR "/Tests/Viewer/Scripts/FindFlat.lua > log.txt 2>&1";
	const int ExitCode = std::system(Command.c_str());
	std::ifstream Stream(Folder / "log.txt");
	std::stringstream Log;
	Log << Stream.rdbuf();
	EXPECT_EQ(ExitCode, 0) << Log.str();

	Host::FPicture Picture;
	FString Error;
	ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR((Folder / "found.png").c_str()), Picture, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Picture.Size, FIntPoint(1280, 800));
	// Beside the list there is the scene, and in it the selected unit in a colour that nothing else there has.
	constexpr int32 ListWidth = 400;
	int32 NumSelected = 0;
	for (int32 Y = 0; Y < Picture.Size.Y; ++Y)
	{
		for (int32 X = ListWidth; X < Picture.Size.X; ++X)
		{
			const FColor Pixel = Picture.At(X, Y);
			NumSelected += Pixel.B > Pixel.G + 80 && Pixel.B > Pixel.R + 60 ? 1 : 0;
		}
	}
	EXPECT_GT(NumSelected, 100);
	std::filesystem::remove_all(Folder);
}
