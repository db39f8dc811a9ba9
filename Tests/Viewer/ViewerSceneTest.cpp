#include "LoopbackServer.h"
#include "ViewerRun.h"

namespace
{
	int32 CountColours(const Host::FPicture& Picture)
	{
		TSet<FColor> Colours;
		for (const FColor& Pixel : Picture.Pixels)
		{
			Colours.Add(Pixel);
		}
		return Colours.Num();
	}
}

TEST(ViewerScene, BothRenderersShowTheSamePicture)
{
	const FViewerRun Cpu = RunViewer("", "--renderer cpu --scene sample");
	const FViewerRun Gl = RunViewer("", "--renderer gl --scene sample");
	ASSERT_EQ(Cpu.ExitCode, 0) << Cpu.Log;
	ASSERT_EQ(Gl.ExitCode, 0) << Gl.Log;

	constexpr int32 Tolerance = 2;
	const Host::FPictureDifference Difference = Host::ComparePictures(Cpu.Picture, Gl.Picture, Tolerance);
	EXPECT_TRUE(Difference.IsSame()) << TCHAR_TO_UTF8(*Difference.ToString());
	EXPECT_GT(CountColours(Cpu.Picture), 1000) << "there is a scene in it";
}

TEST(ViewerScene, WithoutADriverThereIsAPlainBackgroundAndOneLine)
{
	const FViewerRun Run = RunViewer("__EGL_VENDOR_LIBRARY_DIRS=/nonexistent", "--renderer cpu --scene sample");

	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_EQ(CountColours(Run.Picture), 1);
	const size_t Line = Run.Log.find("The 3D scene is not shown");
	ASSERT_NE(Line, std::string::npos) << Run.Log;
	EXPECT_EQ(Run.Log.find("The 3D scene", Line + 1), std::string::npos) << Run.Log;
}

TEST(ViewerScene, AScreenLiesOverTheScene)
{
	const FViewerRun Run = RunViewer("", "--renderer cpu --scene sample --screen Gallery");
	const FViewerRun Alone = RunViewer("", "--renderer cpu --screen Gallery");

	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_TRUE(Host::ComparePictures(Alone.Picture, Run.Picture).IsSame()) << "the gallery has a background of its own";
}

TEST(ViewerScene, AProjectIsShownInThePlaceOfTheGallery)
{
	const std::string Script = (std::filesystem::temp_directory_path() / ("ViewerScene" + std::to_string(::getpid()) + ".lua")).string();
	std::ofstream(Script) << "Click(240, 8)\n";
	const FViewerRun Run = RunViewer("", "--renderer cpu --project " HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside --script " + Script);
	const FViewerRun Gallery = RunViewer("", "--renderer cpu --project none");
	std::filesystem::remove(Script);

	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_EQ(Gallery.ExitCode, 0) << Gallery.Log;
	EXPECT_FALSE(Host::ComparePictures(Gallery.Picture, Run.Picture).IsSame());
	EXPECT_GT(CountColours(Run.Picture), 500) << "there is a scene in it, beside the list";
}

TEST(ViewerScene, AProjectFromAnAddressIsShownAsTheSameOneFromAFolder)
{
	const std::string Folder = HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside";
	std::ifstream File(Folder + "/project.json");
	std::stringstream Text;
	Text << File.rdbuf();
	Host::FLoopbackServer Server;
	Host::FServerReply Reply;
	Reply.Body = Text.str();
	Server.Serve("/quay/project.json", Reply);
	const FViewerRun FromAddress = RunViewer("", "--renderer cpu --project " + std::string(TCHAR_TO_UTF8(*Server.GetUrl("/quay"))));
	const FViewerRun FromFolder = RunViewer("", "--renderer cpu --project " + Folder);
	const FViewerRun Missing = RunViewer("", "--renderer cpu --project " + std::string(TCHAR_TO_UTF8(*Server.GetUrl("/other"))));

	EXPECT_EQ(FromAddress.ExitCode, 0) << FromAddress.Log;
	EXPECT_TRUE(Host::ComparePictures(FromFolder.Picture, FromAddress.Picture).IsSame()) << "it waits for what comes";
	EXPECT_EQ(Missing.ExitCode, 0);
	EXPECT_NE(Missing.Log.find("There is no project at this address (404)."), std::string::npos) << Missing.Log;
}

TEST(ViewerScene, ASalesListIsShownAndItsOtherColumnsAreOneLine)
{
	const std::string List = (std::filesystem::temp_directory_path() / ("ViewerScene" + std::to_string(::getpid()) + ".csv")).string();
	std::ofstream(List) << "id,name,colour,minX,minY,minZ,maxX,maxY,maxZ,broker\nA,Flat A,red,0,0,0,8,6,3,Anna\nB,Flat B,blue,9,0,0,17,6,3,Otto\n";
	const FViewerRun Run = RunViewer("", "--renderer cpu --project " + List);
	std::filesystem::remove(List);

	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_NE(Run.Log.find(List + ": columns that the mapping does not name are left out: colour, broker\n"), std::string::npos) << Run.Log;
	EXPECT_EQ(Run.Log.find("Warning"), std::string::npos) << Run.Log;
	EXPECT_GT(CountColours(Run.Picture), 300) << "there is a scene in it, beside the list";
}

TEST(ViewerScene, WithABrokenProjectTheViewerGoesOnWithoutOne)
{
	const FViewerRun Run = RunViewer("", "--renderer cpu --project /nonexistent");
	const FViewerRun Gallery = RunViewer("", "--renderer cpu --project none");

	EXPECT_EQ(Run.ExitCode, 0) << Run.Log;
	EXPECT_TRUE(Host::ComparePictures(Gallery.Picture, Run.Picture).IsSame());
	const size_t Line = Run.Log.find("/nonexistent/project.json: the file cannot be read");
	ASSERT_NE(Line, std::string::npos) << Run.Log;
	EXPECT_EQ(Run.Log.find("Warning", Line), std::string::npos) << Run.Log;
}
