#include "SettingsProgram.h"
#include "VirtualScreen.h"

#include "gtest/gtest.h"

namespace
{
	/** A program on a screen of 1400 x 900 pixels of which every one can be looked at. */
	class FSettingsWindowTest : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			ASSERT_TRUE(Screen.IsRunning());
			Program.UseDisplay(Screen.GetDisplay());
		}

		/** Where the program's window is on the screen, by the colour that it shows; "nowhere" when it is not there. */
		std::string FindWindow() const { return Screen.FindRectangle(0xFF0000); }

		FVirtualScreen Screen{ 1400, 900 };
		FSettingsProgram Program;
	};

	TEST_F(FSettingsWindowTest, ASizeIsThatOfTheWindowAtOnceAndAtTheNextStart)
	{
		Program.Start({ "size=640x480", "apply", "confirm", "save", "hold" });
		// In the middle, so that nothing of it stands outside.
		EXPECT_EQ(FindWindow(), "640x480 at 380, 210");
		EXPECT_EQ(Program.Finish().ExitCode, 0);

		Program.Start({ "hold", "window" });
		EXPECT_EQ(FindWindow(), "640x480 at 380, 210");
		EXPECT_EQ(Program.Finish().GetLine("window "), "640x480 Windowed, vsync 0, quality 3");
	}

	TEST_F(FSettingsWindowTest, BorderlessTakesTheWholeScreenAtOnceAndAtTheNextStart)
	{
		Program.Start({ "mode=WindowedFullscreen", "apply", "confirm", "save", "hold", "window", "mode=Windowed", "apply", "frames=5", "window" });
		EXPECT_EQ(FindWindow(), "1400x900 at 0, 0");
		const FProgramEnd End = Program.Finish();
		EXPECT_EQ(End.GetLine("window "), "1400x900 WindowedFullscreen, vsync 0, quality 3");
		EXPECT_NE(End.Output.find("window 800x600 Windowed"), std::string::npos) << End.Output;

		Program.Run({ "mode=WindowedFullscreen", "apply", "confirm", "save" });
		Program.Start({ "hold" });
		EXPECT_EQ(FindWindow(), "1400x900 at 0, 0");
		Program.Finish();
	}

	TEST_F(FSettingsWindowTest, VerticalSyncReachesTheSwap)
	{
		const FProgramEnd End = Program.Run({ "gl", "frames=2", "swap", "vsync=1", "apply", "fill", "frames=2", "swap" });
		ASSERT_EQ(End.ExitCode, 0) << End.Output;
		EXPECT_EQ(End.GetLine("swaps "), "0");
		EXPECT_NE(End.Output.find("swaps 1"), std::string::npos) << End.Output;
		EXPECT_EQ(Program.Run({ "gl", "fill", "frames=2", "swap" }).GetLine("swaps "), "1") << "at the next start";
	}
}
