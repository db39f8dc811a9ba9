#include "ViewerRun.h"

TEST(ViewerScript, FindsAFlatUnderAPriceOnSomeLevelsAndShowsItInTheScene)
{
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / ("ViewerScript" + std::to_string(::getpid()));
	std::filesystem::create_directories(Folder);
	// The pictures of the script go to the folder that it runs in, and the user's folder is one of this test too.
	const FViewerRun Run = RunViewer("cd " + Folder.string() + " && XDG_DATA_HOME=" + Folder.string(),
		"--renderer cpu --script " HALVEX_SOURCE_DIR "/Tests/Viewer/Scripts/FindFlat.lua", "900x600");
	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;

	Host::FPicture Filtered;
	FString Error;
	ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR((Folder / "filtered.png").c_str()), Filtered, Error)) << TCHAR_TO_UTF8(*Error);
	std::filesystem::remove_all(Folder);
	ASSERT_EQ(Run.Picture.Size, FIntPoint(900, 600));
	ASSERT_EQ(Filtered.Size, Run.Picture.Size);
	// Beside the list is the scene, and in it one flat has the colour of what is selected.
	constexpr int32 ListWidth = 400;
	const auto IsSelected = [](const FColor& Pixel) { return Pixel.B > Pixel.G + 80 && Pixel.B > Pixel.R + 60; };
	int32 NumSelected = 0;
	for (int32 Y = 0; Y < Filtered.Size.Y; ++Y)
	{
		for (int32 X = ListWidth; X < Filtered.Size.X; ++X)
		{
			NumSelected += IsSelected(Run.Picture.At(X, Y)) && !IsSelected(Filtered.At(X, Y)) ? 1 : 0;
		}
	}
	EXPECT_GT(NumSelected, 20);
}
