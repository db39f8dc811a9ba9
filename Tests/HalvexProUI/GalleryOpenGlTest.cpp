#include "EngineTest.h"

#include "GoldenPicture.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace
{
	struct FOpenGlCase
	{
		const char* Screen;
		const char* Style;
		int32 Scale;

		std::string GetName() const { return std::string(Screen) + "-" + Style + "-" + std::to_string(Scale) + "x"; }
	};

	/** The gallery drawn by OpenGL, in a viewer of its own: a program has one renderer. */
	class FGalleryOpenGlTest : public testing::TestWithParam<FOpenGlCase>
	{
	};

	TEST_P(FGalleryOpenGlTest, LooksAsTheCpuDrawsIt)
	{
		const FOpenGlCase& Case = GetParam();
		const std::filesystem::path File = std::filesystem::temp_directory_path() / ("OpenGl" + std::to_string(::getpid()) + ".png");
		const std::string Size = std::to_string(1280 * Case.Scale) + "x" + std::to_string(800 * Case.Scale);
		// Graphics drivers keep a few buffers of their own until the program ends, which are no leaks of the viewer.
		const std::string Command = std::string("ASAN_OPTIONS=detect_leaks=0 " HALVEX_VIEWER) + " --headless --renderer gl --screen " + Case.Screen + " --style /HalvexPro/Widgets/" + Case.Style
			+ "." + Case.Style + " --size " + Size + " --scale " + std::to_string(Case.Scale) + " --screenshot " + File.string();
		ASSERT_EQ(std::system(Command.c_str()), 0) << Command;

		Host::FPicture Picture;
		FString Error;
		ASSERT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR(File.c_str()), Picture, Error)) << Host::ToStd(Error);
		std::filesystem::remove(File);
		// Edges are rounded to another last bit, and blended once more.
		constexpr int32 Tolerance = 3;
		Host::ExpectNearGolden(UTF8_TO_TCHAR(Case.GetName().c_str()), Picture, Tolerance);
	}

	constexpr const char* Light = "UIStyle_Hx_Light";
	constexpr const char* Dark = "UIStyle_Hx_Dark";

	INSTANTIATE_TEST_SUITE_P(Screens, FGalleryOpenGlTest, testing::Values(
		FOpenGlCase{ "Gallery", Light, 1 }, FOpenGlCase{ "Gallery", Dark, 1 }, FOpenGlCase{ "Gallery", Light, 2 }, FOpenGlCase{ "Gallery", Dark, 2 },
		FOpenGlCase{ "Type", Light, 1 }, FOpenGlCase{ "Icons", Dark, 1 }, FOpenGlCase{ "Shapes", Light, 1 }, FOpenGlCase{ "Buttons", Dark, 1 },
		FOpenGlCase{ "Groups", Light, 1 }, FOpenGlCase{ "Tiles", Dark, 1 }, FOpenGlCase{ "Fields", Light, 1 }),
		[](const testing::TestParamInfo<FOpenGlCase>& Info)
		{
			return std::string(Info.param.Screen) + "_" + Info.param.Style + "_" + std::to_string(Info.param.Scale) + "x";
		});
}
