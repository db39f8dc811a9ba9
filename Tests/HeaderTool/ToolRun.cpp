#include "ToolRun.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

FToolRun::FToolRun()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "HeaderToolTest.XXXXXX").string();
	if (!mkdtemp(Pattern.data()))
	{
		throw std::runtime_error("no temporary folder");
	}
	Dir = Pattern;
	std::filesystem::create_directories(Dir + "/Public");
	std::filesystem::create_directories(Dir + "/Out");
}

FToolRun::~FToolRun()
{
	std::error_code Error;
	std::filesystem::remove_all(Dir, Error);
}

void FToolRun::AddHeader(const std::string& Name, const std::string& Text)
{
	std::ofstream(GetHeaderPath(Name)) << Text;
	Headers.push_back(Name);
}

void FToolRun::AddBody(const std::string& Name, const std::string& Body)
{
	AddHeader(Name, "#pragma once\n"
					"\n"
					"#include \"CoreMinimal.h\"\n"
					"#include \"Templates/SubclassOf.h\"\n"
					"#include \"UObject/DynamicDelegates.h\"\n"
					"#include \"UObject/Interface.h\"\n"
					"#include \"UObject/SoftObjectPtr.h\"\n"
					"#include \"" +
						Name + ".generated.h\"\n\n" + Body);
}

int FToolRun::Run()
{
	{
		std::ofstream Arguments(Dir + "/Arguments");
		Arguments << "--module\nToolTest\n--output\n" << Dir << "/Out\n--include\n" << Dir << "/Public\n";
		Arguments << "--include\n" HALVEX_SOURCE_DIR "/Host/Source/Core/Public\n--include\n" HALVEX_SOURCE_DIR
					 "/Host/Source/CoreUObject/Public\n";
		Arguments << "--define\nCORE_API=\n--define\nCOREUOBJECT_API=\n--define\nTOOLTEST_API=\n";
		for (const std::string& Header : Headers)
		{
			Arguments << "--header\n" << GetHeaderPath(Header) << "\n";
		}
	}
	const std::string Command =
		"\"" HEADER_TOOL_PATH "\" --arguments \"" + Dir + "/Arguments\" --depfile \"" + GetOutputPath("ToolTest.d") + "\" 2>&1";
	Messages.clear();
	FILE* Pipe = popen(Command.c_str(), "r");
	if (!Pipe)
	{
		throw std::runtime_error("the program cannot be started");
	}
	char Buffer[4096];
	while (const size_t Num = std::fread(Buffer, 1, sizeof(Buffer), Pipe))
	{
		Messages.append(Buffer, Num);
	}
	const int Status = pclose(Pipe);
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

std::vector<std::string> FToolRun::GetMessagesOf(const std::string& Name) const
{
	const std::string Prefix = GetHeaderPath(Name) + ":";
	std::vector<std::string> Result;
	size_t Start = 0;
	while (Start < Messages.size())
	{
		const size_t End = std::min(Messages.find('\n', Start), Messages.size());
		const std::string Line = Messages.substr(Start, End - Start);
		if (Line.compare(0, Prefix.size(), Prefix) == 0)
		{
			Result.push_back(Line.substr(Prefix.size()));
		}
		Start = End + 1;
	}
	return Result;
}

std::string FToolRun::ReadOutput(const std::string& FileName) const
{
	std::ifstream Stream(GetOutputPath(FileName));
	return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
}
