#include "ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

extern char** environ;

namespace
{
	double ToSeconds(const timeval& Time)
	{
		return static_cast<double>(Time.tv_sec) + 1e-6 * static_cast<double>(Time.tv_usec);
	}
}

FChildRun RunChild(const std::vector<std::string>& Arguments, const std::string& Sought)
{
	FChildRun Run;
	int Pipe[2];
	if (::pipe2(Pipe, O_CLOEXEC) != 0)
	{
		return Run;
	}
	posix_spawn_file_actions_t Actions;
	::posix_spawn_file_actions_init(&Actions);
	::posix_spawn_file_actions_adddup2(&Actions, Pipe[1], STDOUT_FILENO);
	::posix_spawn_file_actions_adddup2(&Actions, Pipe[1], STDERR_FILENO);
	std::vector<char*> Pointers;
	for (const std::string& Argument : Arguments)
	{
		Pointers.push_back(const_cast<char*>(Argument.c_str()));
	}
	Pointers.push_back(nullptr);

	const auto Start = std::chrono::steady_clock::now();
	const auto GetSeconds = [Start] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count(); };
	pid_t Process = 0;
	const bool bStarted = ::posix_spawn(&Process, Arguments[0].c_str(), &Actions, nullptr, Pointers.data(), environ) == 0;
	::posix_spawn_file_actions_destroy(&Actions);
	::close(Pipe[1]);
	bool bFound = false;
	std::string Printed;
	char Buffer[4096];
	for (ssize_t Count; bStarted && (Count = ::read(Pipe[0], Buffer, sizeof(Buffer))) > 0;)
	{
		Printed.append(Buffer, static_cast<size_t>(Count));
		if (!bFound && !Sought.empty() && Printed.find(Sought) != std::string::npos)
		{
			bFound = true;
			Run.Seconds = GetSeconds();
		}
	}
	::close(Pipe[0]);
	if (!bStarted)
	{
		return Run;
	}
	int Status = 0;
	rusage Usage{};
	::wait4(Process, &Status, 0, &Usage);
	if (Sought.empty())
	{
		Run.Seconds = GetSeconds();
	}
	Run.ProcessorSeconds = ToSeconds(Usage.ru_utime) + ToSeconds(Usage.ru_stime);
	Run.bSucceeded = WIFEXITED(Status) && WEXITSTATUS(Status) == 0 && (bFound || Sought.empty());
	return Run;
}
