#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

/** How a program ended, and what it said, its log included. */
struct FProgramEnd
{
	/** -1 when a signal ended it. */
	int ExitCode = -1;
	int Signal = 0;
	std::string Output;

	/** The line that begins with the text, without it; empty when there is none. */
	std::string GetLine(const std::string& Start) const;
	/** The warnings and errors in the log, each with its line end. */
	std::string GetComplaints() const;
};

/** What the system denies to a program. */
struct FProgramLimits
{
	/** Bytes of the largest file that it may write; -1 for any. */
	long LargestFile = -1;
	/** Whether writing more kills it, instead of failing. */
	bool bDiesOfLargeFiles = false;
	/** Whether the rights of files count for it even if it runs as root. */
	bool bHeedsRights = false;
};

/** A program with user settings in a folder of its own: SettingsProgram, started as often as a test wants. */
class FSettingsProgram
{
public:
	FSettingsProgram();
	~FSettingsProgram();
	FSettingsProgram(const FSettingsProgram&) = delete;
	FSettingsProgram& operator=(const FSettingsProgram&) = delete;

	/** From now on it opens its windows on this display, instead of nowhere. */
	void UseDisplay(const std::string& InDisplay) { Display = InDisplay; }

	/** Runs it to its end. */
	FProgramEnd Run(const std::vector<std::string>& Words, const FProgramLimits& Limits = FProgramLimits());

	/** Runs it until it has done the words before "hold", which is among them. */
	void Start(const std::vector<std::string>& Words);
	/** What it has said until now. */
	const std::string& GetOutput() const { return Output; }
	/** Lets what was started go on to its end. */
	FProgramEnd Finish();

	/** The user's file, whether or not it is there. */
	std::filesystem::path GetFile() const { return Folder / "Saved/Config/GameUserSettings.ini"; }
	void Write(const std::string& Bytes) const;
	std::string Read() const { return Read(GetFile()); }
	static std::string Read(const std::filesystem::path& File);
	/** The names of what lies beside the user's file, itself among them, in order. */
	std::string List() const;

private:
	void Launch(const std::vector<std::string>& Words, const FProgramLimits& Limits);
	/** Takes in what the program says, until it says the text or nothing more. */
	void Listen(const std::string& Until);

	std::filesystem::path Folder;
	std::string Display;
	std::string Output;
	pid_t Process = 0;
	int Input = -1;
	int Said = -1;
};
