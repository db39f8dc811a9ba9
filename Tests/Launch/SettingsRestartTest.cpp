#include "SettingsProgram.h"

#include "gtest/gtest.h"

#include <csignal>

namespace
{
	/** A program whose user has settings already; it is started, ended, killed and started again. */
	class FSettingsRestartTest : public testing::Test
	{
	protected:
		FSettingsRestartTest()
		{
			const FProgramEnd End = Program.Run({ "size=640x480", "vsync=1", "audio=2", "quality=1", "apply", "confirm", "save" });
			EXPECT_EQ(End.ExitCode, 0) << End.Output;
			OldFile = Program.Read();
		}

		/** What a program of the next start has for settings. */
		std::string Show()
		{
			const FProgramEnd End = Program.Run({ "headless", "show" });
			EXPECT_EQ(End.GetComplaints(), "");
			return End.GetLine("mode ");
		}

		/** What a program of the next start does with its window. */
		std::string ShowWindow()
		{
			const FProgramEnd End = Program.Run({ "window" });
			EXPECT_EQ(End.GetComplaints(), "");
			return End.GetLine("window ");
		}

		/** Runs the words again and again, killed in one call later each time, and looks at what each left. */
		template <typename LookType>
		int KillInEachCall(std::vector<std::string> Words, const LookType& Look)
		{
			Words.insert(Words.begin(), std::string());
			for (int Call = 1;; ++Call)
			{
				Program.Write(OldFile);
				Words.front() = "dieAt=" + std::to_string(Call);
				const FProgramEnd End = Program.Run(Words);
				SCOPED_TRACE(Words.front());
				if (End.Signal != SIGKILL)
				{
					EXPECT_EQ(End.ExitCode, 0) << End.Output;
					return Call - 1;
				}
				Look();
			}
		}

		FSettingsProgram Program;
		std::string OldFile;
		const std::string OldValues = "640x480 Windowed, confirmed 640x480 Windowed, vsync 1, audio 2, quality 1";
		const std::string OldWindow = "640x480 Windowed, vsync 1, quality 1";
	};

	TEST_F(FSettingsRestartTest, TheNextStartHasWhatWasSaved)
	{
		EXPECT_EQ(Show(), OldValues);
		EXPECT_EQ(ShowWindow(), OldWindow);
	}

	TEST_F(FSettingsRestartTest, ADeathWhileSavingLeavesTheOldOrTheNewValuesWhole)
	{
		const std::string NewValues = "700x500 Windowed, confirmed 700x500 Windowed, vsync 0, audio 3, quality 4";
		int NumOld = 0;
		int NumNew = 0;
		const int NumCalls = KillInEachCall({ "size=700x500", "vsync=0", "audio=3", "quality=4", "confirm", "save" }, [&]
		{
			const std::string Values = Show();
			EXPECT_TRUE(Values == NewValues || (Values == OldValues && NumNew == 0)) << Values;
			++(Values == NewValues ? NumNew : NumOld);
		});
		// Before the new file, in it, and before it takes the place of the old one; after that.
		EXPECT_GE(NumOld, 4);
		EXPECT_GE(NumNew, 1);
		EXPECT_EQ(NumCalls, NumOld + NumNew);
		EXPECT_EQ(Show(), NewValues);
	}

	TEST_F(FSettingsRestartTest, ADeathWhileApplyingLeavesTheOldWindow)
	{
		const std::string NewValues = "640x480 Windowed, confirmed 640x480 Windowed, vsync 0, audio 3, quality 4";
		int NumNew = 0;
		KillInEachCall({ "size=700x500", "vsync=0", "audio=3", "quality=4", "apply", "leave" }, [&]
		{
			const FProgramEnd End = Program.Run({ "show", "window" });
			const bool bNew = End.GetLine("mode ") == NewValues;
			EXPECT_TRUE(bNew || End.GetLine("mode ") == OldValues) << End.Output;
			EXPECT_EQ(End.GetLine("window "), bNew ? "640x480 Windowed, vsync 0, quality 4" : OldWindow);
			NumNew += bNew;
		});
		EXPECT_GE(NumNew, 1);
	}

	TEST_F(FSettingsRestartTest, AModeThatWasNotConfirmedEndsWithAProgramThatDies)
	{
		EXPECT_EQ(Program.Run({ "size=700x500", "vsync=0", "apply", "frames=3", "window", "die" }).GetLine("window "), "700x500 Windowed, vsync 0, quality 1");
		EXPECT_EQ(ShowWindow(), "640x480 Windowed, vsync 0, quality 1");
		// It is gone for good: neither a third start nor one that reads the file anew brings it back.
		EXPECT_EQ(Show(), "640x480 Windowed, confirmed 640x480 Windowed, vsync 0, audio 2, quality 1");
	}

	TEST_F(FSettingsRestartTest, AModeThatWasConfirmedAndSavedOutlivesTheProgram)
	{
		Program.Run({ "size=700x500", "apply", "frames=3", "confirm", "save", "die" });
		EXPECT_EQ(ShowWindow(), "700x500 Windowed, vsync 1, quality 1");
	}

	TEST_F(FSettingsRestartTest, AModeThatWasPutBackStaysAway)
	{
		Program.Run({ "size=700x500", "apply", "revert", "apply", "die" });
		EXPECT_EQ(ShowWindow(), OldWindow);
	}

	TEST_F(FSettingsRestartTest, AProgramThatEndsAsItShouldConfirmsTheModeThatItApplied)
	{
		EXPECT_EQ(Program.Run({ "size=700x500", "apply" }).ExitCode, 0);
		EXPECT_EQ(Show(), "700x500 Windowed, confirmed 700x500 Windowed, vsync 1, audio 2, quality 1");
		EXPECT_EQ(ShowWindow(), "700x500 Windowed, vsync 1, quality 1");
	}

	TEST_F(FSettingsRestartTest, AModeThatWasSavedWithoutBeingAppliedIsNotConfirmedByTheEnd)
	{
		EXPECT_EQ(Program.Run({ "size=700x500", "save" }).ExitCode, 0);
		EXPECT_EQ(ShowWindow(), OldWindow);
	}

	TEST_F(FSettingsRestartTest, AProgramWithoutAWindowLeavesTheModeToThoseThatHaveOne)
	{
		Program.Run({ "size=700x500", "apply", "die" });
		EXPECT_EQ(Show(), "700x500 Windowed, confirmed 640x480 Windowed, vsync 1, audio 2, quality 1");
		EXPECT_EQ(ShowWindow(), OldWindow);
	}

	TEST_F(FSettingsRestartTest, DefaultsAreTheWindowOfAFirstStart)
	{
		EXPECT_EQ(Program.Run({ "defaults", "apply", "window" }).GetLine("window "), "800x600 Windowed, vsync 0, quality 3");
	}

	TEST_F(FSettingsRestartTest, ABorderlessWindowComesBack)
	{
		Program.Run({ "mode=WindowedFullscreen", "apply", "confirm", "save", "die" });
		EXPECT_NE(ShowWindow().find(" WindowedFullscreen,"), std::string::npos);
		EXPECT_EQ(Show(), "640x480 WindowedFullscreen, confirmed 640x480 WindowedFullscreen, vsync 1, audio 2, quality 1");
	}
}
