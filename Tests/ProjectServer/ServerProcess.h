#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

/** A program as a process of its own, which reaches nothing of the user who runs the test; the server unless told otherwise. */
class FServerProcess
{
public:
	/** @param Home where it runs, and keeps what it keeps for its user */
	FServerProcess(const std::filesystem::path& Home, const std::vector<std::string>& Arguments, const std::string& Input = std::string(), const std::string& Program = HALVEX_PROJECT_SERVER);
	~FServerProcess();
	FServerProcess(const FServerProcess&) = delete;
	FServerProcess& operator=(const FServerProcess&) = delete;

	/** Waits until it says where it listens; the address of its paths, and the port. Empty and 0 when it ends without. */
	std::string WaitForUrl();
	int GetPort() const { return Port; }

	void Signal(int Number) const;
	/** Waits for its end; its exit code, or -1 when a signal ended it. */
	int Finish();
	/** All that it has said on both outputs until now; until its end after Finish(). */
	const std::string& GetOutput() const { return Output; }

private:
	bool Listen();

	std::string Output;
	int Said = -1;
	pid_t Process = 0;
	int Port = 0;
};
