#include "ServerProcess.h"

#include "gtest/gtest.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

FServerProcess::FServerProcess(const std::filesystem::path& Home, const std::vector<std::string>& Arguments, const std::string& Input, const std::string& Program)
{
	std::vector<std::string> All = { Program };
	All.insert(All.end(), Arguments.begin(), Arguments.end());
	std::vector<char*> Pointers;
	for (std::string& Argument : All)
	{
		Pointers.push_back(Argument.data());
	}
	Pointers.push_back(nullptr);

	int ToServer[2] = {};
	int FromServer[2] = {};
	EXPECT_EQ(0, pipe(ToServer));
	EXPECT_EQ(0, pipe(FromServer));
	Process = fork();
	if (Process == 0)
	{
		dup2(ToServer[0], STDIN_FILENO);
		dup2(FromServer[1], STDOUT_FILENO);
		dup2(FromServer[1], STDERR_FILENO);
		for (const int End : { ToServer[0], ToServer[1], FromServer[0], FromServer[1] })
		{
			close(End);
		}
		if (chdir(Home.c_str()) != 0)
		{
			_exit(126);
		}
		setenv("XDG_DATA_HOME", Home.c_str(), 1);
		setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
		if (Program != HALVEX_PROJECT_SERVER)
		{
			// A graphics driver keeps a few buffers until the program ends.
			setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
		}
		execv(Pointers[0], Pointers.data());
		_exit(127);
	}
	close(ToServer[0]);
	close(FromServer[1]);
	Said = FromServer[0];
	EXPECT_EQ(ssize_t(Input.size()), write(ToServer[1], Input.data(), Input.size()));
	close(ToServer[1]);
}

FServerProcess::~FServerProcess()
{
	if (Process != 0)
	{
		Signal(SIGTERM);
		EXPECT_EQ(0, Finish()) << Output;
	}
}

std::string FServerProcess::WaitForUrl()
{
	const std::string Start = " on http://";
	size_t Place = std::string::npos;
	size_t LineEnd = std::string::npos;
	while ((Place = Output.find(Start)) == std::string::npos || (LineEnd = Output.find('\n', Place)) == std::string::npos)
	{
		if (!Listen())
		{
			return std::string();
		}
	}
	const std::string Url = Output.substr(Place + 4, LineEnd - Place - 4);
	Port = std::stoi(Url.substr(Url.rfind(':') + 1));
	return Url;
}

void FServerProcess::Signal(int Number) const
{
	kill(Process, Number);
}

int FServerProcess::Finish()
{
	while (Listen())
	{
	}
	close(Said);
	int Status = 0;
	waitpid(Process, &Status, 0);
	Process = 0;
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

bool FServerProcess::Listen()
{
	char Bytes[4096];
	const ssize_t Count = read(Said, Bytes, sizeof(Bytes));
	if (Count > 0)
	{
		Output.append(Bytes, size_t(Count));
	}
	return Count > 0;
}
