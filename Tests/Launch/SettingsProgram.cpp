#include "SettingsProgram.h"

#include "gtest/gtest.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <linux/capability.h>
#include <sstream>

std::string FProgramEnd::GetLine(const std::string& Start) const
{
	std::istringstream Lines(Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		if (Line.starts_with(Start))
		{
			return Line.substr(Start.size());
		}
	}
	return std::string();
}

std::string FProgramEnd::GetComplaints() const
{
	std::string Complaints;
	std::istringstream Lines(Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		if (Line.find("Warning: ") != std::string::npos || Line.find("Error: ") != std::string::npos)
		{
			Complaints += Line + "\n";
		}
	}
	return Complaints;
}

FSettingsProgram::FSettingsProgram()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "settings-XXXXXX").string();
	EXPECT_NE(mkdtemp(Pattern.data()), nullptr);
	Folder = Pattern;
	std::filesystem::create_directories(Folder / "Content");
	std::filesystem::create_directories(GetFile().parent_path());
}

FSettingsProgram::~FSettingsProgram()
{
	if (Process != 0)
	{
		Finish();
	}
	std::filesystem::permissions(GetFile().parent_path(), std::filesystem::perms::owner_all);
	std::filesystem::remove_all(Folder);
}

namespace
{
	void Impose(const FProgramLimits& Limits)
	{
		if (Limits.LargestFile >= 0)
		{
			const rlimit Size = { rlim_t(Limits.LargestFile), rlim_t(Limits.LargestFile) };
			setrlimit(RLIMIT_FSIZE, &Size);
			// No memory of the dying program is kept, which could be larger than what it may write.
			const rlimit Nothing = { 0, 0 };
			setrlimit(RLIMIT_CORE, &Nothing);
			signal(SIGXFSZ, Limits.bDiesOfLargeFiles ? SIG_DFL : SIG_IGN);
		}
		if (Limits.bHeedsRights)
		{
			// Refused to whoever is not root, and needs it as little.
			prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
			prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH, 0, 0, 0);
		}
	}
}

void FSettingsProgram::Launch(const std::vector<std::string>& Words, const FProgramLimits& Limits)
{
	std::vector<std::string> Arguments = { HALVEX_SETTINGS_PROGRAM, Folder.string() };
	Arguments.insert(Arguments.end(), Words.begin(), Words.end());
	std::vector<char*> Pointers;
	for (std::string& Argument : Arguments)
	{
		Pointers.push_back(Argument.data());
	}
	Pointers.push_back(nullptr);

	int ToProgram[2] = {};
	int FromProgram[2] = {};
	ASSERT_EQ(pipe(ToProgram), 0);
	ASSERT_EQ(pipe(FromProgram), 0);
	Process = fork();
	if (Process == 0)
	{
		dup2(ToProgram[0], STDIN_FILENO);
		dup2(FromProgram[1], STDOUT_FILENO);
		dup2(FromProgram[1], STDERR_FILENO);
		for (const int End : { ToProgram[0], ToProgram[1], FromProgram[0], FromProgram[1] })
		{
			close(End);
		}
		setenv("SDL_VIDEODRIVER", Display.empty() ? "dummy" : "x11", 1);
		setenv("DISPLAY", Display.c_str(), 1);
		// Of what draws without a graphics processor, this alone can wait for a screen.
		setenv("SDL_VIDEO_X11_FORCE_EGL", "1", 1);
		// Graphics drivers keep a few buffers of their own until the program ends, which are no leaks of it.
		setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
		Impose(Limits);
		execv(Pointers[0], Pointers.data());
		_exit(127);
	}
	close(ToProgram[0]);
	close(FromProgram[1]);
	Input = ToProgram[1];
	Said = FromProgram[0];
	Output.clear();
}

void FSettingsProgram::Listen(const std::string& Until)
{
	char Bytes[4096];
	while (Until.empty() || Output.find(Until) == std::string::npos)
	{
		const ssize_t Count = read(Said, Bytes, sizeof(Bytes));
		if (Count <= 0)
		{
			return;
		}
		Output.append(Bytes, size_t(Count));
	}
}

FProgramEnd FSettingsProgram::Run(const std::vector<std::string>& Words, const FProgramLimits& Limits)
{
	Launch(Words, Limits);
	return Finish();
}

void FSettingsProgram::Start(const std::vector<std::string>& Words)
{
	Launch(Words, FProgramLimits());
	Listen("holding\n");
}

FProgramEnd FSettingsProgram::Finish()
{
	close(Input);
	Listen(std::string());
	close(Said);
	int Status = 0;
	waitpid(Process, &Status, 0);
	Process = 0;
	FProgramEnd End;
	End.ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	End.Signal = WIFSIGNALED(Status) ? WTERMSIG(Status) : 0;
	End.Output = Output;
	return End;
}

void FSettingsProgram::Write(const std::string& Bytes) const
{
	std::ofstream(GetFile(), std::ios::binary) << Bytes;
}

std::string FSettingsProgram::Read(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
}

std::string FSettingsProgram::List() const
{
	std::vector<std::string> Names;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(GetFile().parent_path()))
	{
		Names.push_back(Entry.path().filename().string());
	}
	std::sort(Names.begin(), Names.end());
	std::string Text;
	for (const std::string& Name : Names)
	{
		Text += (Text.empty() ? "" : " ") + Name;
	}
	return Text;
}
