#pragma once

#include "Host/PictureCompare.h"

#include "gtest/gtest.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/** A run of the viewer as a program of its own: there is one renderer in a program. */
struct FViewerRun
{
	int ExitCode = -1;
	std::string Log;
	Host::FPicture Picture;
};

/** Runs it without a window to a last picture. The environment stands before the program: "NAME=value", or "cd FOLDER &&". */
inline FViewerRun RunViewer(const std::string& Environment, const std::string& Arguments, const std::string& Size = "480x300")
{
	const std::filesystem::path Base = std::filesystem::temp_directory_path() / ("ViewerScene" + std::to_string(::getpid()));
	const std::string PictureFile = Base.string() + ".png";
	const std::string LogFile = Base.string() + ".log";
	// Graphics drivers keep a few buffers of their own until the program ends, which are no leaks of the viewer.
	const std::string Command = Environment + " ASAN_OPTIONS=detect_leaks=0 " HALVEX_VIEWER " --headless --size " + Size + " " + Arguments + " --screenshot " + PictureFile
		+ " > " + LogFile + " 2>&1";
	FViewerRun Run;
	Run.ExitCode = std::system(Command.c_str());
	std::ifstream Stream(LogFile);
	std::stringstream Text;
	Text << Stream.rdbuf();
	Run.Log = Text.str();
	FString Error;
	EXPECT_TRUE(Host::LoadPicture(UTF8_TO_TCHAR(PictureFile.c_str()), Run.Picture, Error)) << TCHAR_TO_UTF8(*Error) << "\n" << Run.Log;
	std::filesystem::remove(PictureFile);
	std::filesystem::remove(LogFile);
	return Run;
}
