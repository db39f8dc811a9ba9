#include "SettingsProgram.h"

#include "gtest/gtest.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace
{
	/** A file of settings as a hand, a program or a disk may leave it. */
	struct FDamage
	{
		const char* Name;
		std::string Bytes;
		/** The settings of a program that finds it. */
		std::string Values;
		/** Part of the one line in the log; none is expected when it is empty. */
		std::string Complaint;
		/** What lies there after the program has saved. */
		std::string Files = "GameUserSettings.ini";
	};

	const std::string Defaults = "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 0, quality 3";
	const std::string Damaged = "GameUserSettings.ini GameUserSettings.ini.damaged";

	std::string MakeFile(const std::string& Lines)
	{
		return "[/Script/Engine.GameUserSettings]\n" + Lines;
	}

	std::string Widen(const std::string& Text)
	{
		std::string Bytes = "\xFF\xFE";
		for (const char Character : Text)
		{
			Bytes += Character;
			Bytes += '\0';
		}
		return Bytes;
	}

	const FDamage Damages[] = {
		{ "CutInAName", MakeFile("Version=5\nAudioQualityLevel=2\nbUseVS"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"GameUserSettings.ini:4: expected Key=Value, found no '='" },
		{ "CutInASection", MakeFile("AudioQualityLevel=2\n[Scalab"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"GameUserSettings.ini:3: " },
		{ "Empty", "", Defaults, "" },
		{ "Binary", std::string("\x7F" "ELF\x02\x01\x00\x00\xFF\xFE", 10), Defaults, "the configuration file is left out: it is no text", Damaged },
		{ "OtherEncoding", MakeFile("AudioQualityLevel=2\n;Gr\xFC\xDF" "e\n"), Defaults, "it is no text: it holds malformed characters", Damaged },
		{ "HalfAWideCharacter", Widen(MakeFile("AudioQualityLevel=2\n")) + "x", Defaults, "it is no text", Damaged },
		{ "WideText", Widen(MakeFile("AudioQualityLevel=2\n")), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3", "" },
		{ "ByteOrderMark", "\xEF\xBB\xBF" + MakeFile("AudioQualityLevel=2\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3", "" },
		{ "ALineOfFourMillions", MakeFile("AudioQualityLevel=2\nbUseVSync=" + std::string(4000000, 'x') + "\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"bUseVSync: expected bool" },
		{ "NumberAsText", MakeFile("AudioQualityLevel=loud\nbUseVSync=True\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 1, audio 0, quality 3",
			"AudioQualityLevel: expected int32, found 'loud'" },
		{ "NumberTooLarge", MakeFile("AudioQualityLevel=99999999999\nbUseVSync=True\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 1, audio 0, quality 3",
			"AudioQualityLevel: expected int32, found '99999999999'" },
		{ "TruthAsText", MakeFile("AudioQualityLevel=2\nbUseVSync=maybe\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"bUseVSync: expected bool, found 'maybe'" },
		{ "WindowOfNothing", MakeFile("ResolutionSizeX=640\nResolutionSizeY=0\nAudioQualityLevel=2\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"ResolutionSizeX and ResolutionSizeY: expected 100 to 16384, found 640 and 0; 800 and 600 are used" },
		{ "WindowModeBeyondTheLast", MakeFile("FullscreenMode=7\nAudioQualityLevel=2\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"FullscreenMode: expected 0 to 2, found 7; 2 is used" },
		{ "RateThatIsNoNumber", MakeFile("FrameRateLimit=nan\nAudioQualityLevel=2\n"), "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 2, quality 3",
			"FrameRateLimit: expected 0 or more frames a second" },
		{ "QualityBeyondTheBest", "[ScalabilityGroups]\nsg.ShadowQuality=77\n", "800x600 Windowed, confirmed 800x600 Windowed, vsync 0, audio 0, quality -1",
			"sg.ShadowQuality: expected 0 to 4, found 77; 4 is used" },
		{ "SectionTwice", MakeFile("AudioQualityLevel=1\nbUseVSync=True\n") + "[Other]\nA=1\n" + MakeFile("AudioQualityLevel=2\n"),
			"800x600 Windowed, confirmed 800x600 Windowed, vsync 1, audio 2, quality 3", "" },
		{ "SectionMissing", "AudioQualityLevel=2\n", Defaults, "GameUserSettings.ini:1: expected a [Section] before the first key" },
		{ "OtherVersion", MakeFile("Version=4\nAudioQualityLevel=2\nResolutionSizeX=640\nResolutionSizeY=480\n"), Defaults,
			"Version: expected 5, found 4; the defaults are used, and the file is set aside", "GameUserSettings.ini GameUserSettings.ini.old" },
	};

	class FSettingsDamageTest : public testing::TestWithParam<FDamage>
	{
	protected:
		FSettingsProgram Program;
	};

	TEST_P(FSettingsDamageTest, IsOneLineAndTheRestGoesOn)
	{
		const FDamage& Damage = GetParam();
		Program.Write(Damage.Bytes);
		const FProgramEnd End = Program.Run({ "headless", "show", "load", "audio=3", "save" });
		EXPECT_EQ(End.ExitCode, 0) << End.Output;
		EXPECT_EQ(End.GetLine("mode "), Damage.Values);
		const std::string Complaints = End.GetComplaints();
		EXPECT_NE(Complaints.find(Damage.Complaint), std::string::npos) << Complaints.substr(0, 1000);
		EXPECT_EQ(std::count(Complaints.begin(), Complaints.end(), '\n'), Damage.Complaint.empty() ? 0 : 1) << Complaints.substr(0, 1000);
		EXPECT_LT(Complaints.size(), 1000u) << "nobody reads this";

		EXPECT_EQ(Program.List(), Damage.Files);
		if (const std::string Kept = Damage.Files.substr(Damage.Files.rfind(' ') + 1); Kept != Damage.Files)
		{
			EXPECT_EQ(Program.Read(Program.GetFile().parent_path() / Kept), Damage.Bytes) << "not as it was";
		}
		EXPECT_NE(Program.Run({ "headless", "show" }).GetLine("mode ").find("audio 3"), std::string::npos) << "not saved";
	}

	INSTANTIATE_TEST_SUITE_P(Files, FSettingsDamageTest, testing::ValuesIn(Damages), [](const testing::TestParamInfo<FDamage>& Info) { return Info.param.Name; });

	/** Something else than a file of settings, or a system that does not let it be read or written. */
	class FSettingsPlaceTest : public testing::Test
	{
	protected:
		static int CountLines(const std::string& Text) { return int(std::count(Text.begin(), Text.end(), '\n')); }

		/** Saves, which must not be possible: one line says so, and nothing beside the file is left. */
		void ExpectCannotSave(const std::string& Reason, const FProgramLimits& Limits)
		{
			const FProgramEnd End = Program.Run({ "headless", "audio=3", "save" }, Limits);
			EXPECT_EQ(End.ExitCode, 0) << End.Output;
			EXPECT_NE(End.GetComplaints().find("GameUserSettings.ini: the configuration cannot be saved: " + Reason), std::string::npos) << End.Output;
			EXPECT_EQ(CountLines(End.GetComplaints()), 1) << End.Output;
			EXPECT_EQ(Program.List(), "GameUserSettings.ini");
		}

		FSettingsProgram Program;
		const std::string Good = MakeFile("AudioQualityLevel=2\n");
		static constexpr FProgramLimits HeedsRights = { .bHeedsRights = true };
	};

	TEST_F(FSettingsPlaceTest, AFileOf200MillionsIsLeftOutAndKept)
	{
		Program.Write(MakeFile("AudioQualityLevel=2\nbUseVSync="));
		std::filesystem::resize_file(Program.GetFile(), 200'000'000);
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.GetLine("mode "), Defaults);
		EXPECT_NE(End.GetComplaints().find("is left out: has 200000000 bytes, at most 4194304 are accepted"), std::string::npos) << End.Output;
		EXPECT_EQ(CountLines(End.GetComplaints()), 1);
		EXPECT_EQ(Program.List(), Damaged);
		EXPECT_EQ(std::filesystem::file_size(Program.GetFile().string() + ".damaged"), 200'000'000u);
	}

	TEST_F(FSettingsPlaceTest, ASecondDamageKeepsTheFirst)
	{
		Program.Write("first\x01");
		Program.Run({ "headless", "audio=3", "save" });
		Program.Write("second\x01");
		Program.Run({ "headless", "audio=3", "save" });
		EXPECT_EQ(Program.List(), "GameUserSettings.ini GameUserSettings.ini.damaged GameUserSettings.ini.damaged2");
		EXPECT_EQ(Program.Read(Program.GetFile().string() + ".damaged"), "first\x01");
		EXPECT_EQ(Program.Read(Program.GetFile().string() + ".damaged2"), "second\x01");
	}

	TEST_F(FSettingsPlaceTest, AFolderInItsPlaceStays)
	{
		std::filesystem::create_directories(Program.GetFile() / "inside");
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.ExitCode, 0);
		EXPECT_EQ(End.GetLine("mode "), Defaults);
		EXPECT_NE(End.GetComplaints().find("the configuration file is left out: is a folder, not a file"), std::string::npos) << End.Output;
		EXPECT_NE(End.GetComplaints().find("the configuration cannot be saved: is a folder, not a file"), std::string::npos) << End.Output;
		EXPECT_TRUE(std::filesystem::is_directory(Program.GetFile() / "inside"));
	}

	TEST_F(FSettingsPlaceTest, APipeInItsPlaceStays)
	{
		ASSERT_EQ(mkfifo(Program.GetFile().c_str(), 0600), 0);
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.ExitCode, 0);
		EXPECT_EQ(CountLines(End.GetComplaints()), 2) << End.Output;
		EXPECT_TRUE(std::filesystem::is_fifo(Program.GetFile()));
	}

	TEST_F(FSettingsPlaceTest, ALinkIsFollowedAndStays)
	{
		const std::filesystem::path Real = Program.GetFile().parent_path().parent_path() / "Real.ini";
		std::filesystem::create_symlink(Real, Program.GetFile());
		Program.Write(Good);
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_NE(End.GetLine("mode ").find("audio 2"), std::string::npos);
		EXPECT_EQ(End.GetComplaints(), "");
		EXPECT_TRUE(std::filesystem::is_symlink(Program.GetFile()));
		EXPECT_NE(Program.Read(Real).find("AudioQualityLevel=3"), std::string::npos);
	}

	TEST_F(FSettingsPlaceTest, ALinkToNowhereIsOneLineAndIsFilledBySaving)
	{
		const std::filesystem::path Real = Program.GetFile().parent_path().parent_path() / "Real.ini";
		std::filesystem::create_symlink(Real, Program.GetFile());
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.GetLine("mode "), Defaults);
		EXPECT_EQ(CountLines(End.GetComplaints()), 1) << End.Output;
		EXPECT_TRUE(std::filesystem::is_symlink(Program.GetFile()));
		EXPECT_NE(Program.Read(Real).find("AudioQualityLevel=3"), std::string::npos);
	}

	TEST_F(FSettingsPlaceTest, ALinkToADeviceLeavesTheDeviceAlone)
	{
		std::filesystem::create_symlink("/dev/full", Program.GetFile());
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.ExitCode, 0);
		EXPECT_EQ(CountLines(End.GetComplaints()), 2) << End.Output;
		EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
	}

	TEST_F(FSettingsPlaceTest, ALinkToItselfIsOneLineEach)
	{
		std::filesystem::create_symlink(Program.GetFile(), Program.GetFile());
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" });
		EXPECT_EQ(End.ExitCode, 0);
		EXPECT_EQ(End.GetLine("mode "), Defaults);
		EXPECT_EQ(CountLines(End.GetComplaints()), 2) << End.Output;
	}

	TEST_F(FSettingsPlaceTest, AFolderThatCannotBeWrittenKeepsTheOldValues)
	{
		Program.Write(Good);
		ASSERT_EQ(chmod(Program.GetFile().parent_path().c_str(), 0500), 0);
		ExpectCannotSave("Permission denied", HeedsRights);
		EXPECT_EQ(Program.Read(), Good);
	}

	TEST_F(FSettingsPlaceTest, AFileThatMustNotBeReadIsLeftOutAndKept)
	{
		Program.Write(Good);
		ASSERT_EQ(chmod(Program.GetFile().c_str(), 0), 0);
		const FProgramEnd End = Program.Run({ "headless", "show", "audio=3", "save" }, HeedsRights);
		EXPECT_EQ(End.GetLine("mode "), Defaults);
		EXPECT_NE(End.GetComplaints().find("the configuration file is left out: Permission denied"), std::string::npos) << End.Output;
		EXPECT_EQ(CountLines(End.GetComplaints()), 1) << End.Output;
		EXPECT_EQ(Program.List(), Damaged);
	}

	TEST_F(FSettingsPlaceTest, AFullDiskKeepsTheOldValues)
	{
		Program.Write(Good);
		ExpectCannotSave("File too large", { .LargestFile = 100 });
		EXPECT_EQ(Program.Read(), Good);
	}

	TEST_F(FSettingsPlaceTest, ADeathOnAFullDiskKeepsTheOldValues)
	{
		Program.Write(Good);
		EXPECT_EQ(Program.Run({ "headless", "audio=3", "save" }, { .LargestFile = 100, .bDiesOfLargeFiles = true }).Signal, SIGXFSZ);
		EXPECT_EQ(Program.Read(), Good);
		EXPECT_NE(Program.Run({ "headless", "show" }).GetLine("mode ").find("audio 2"), std::string::npos);
	}
}
