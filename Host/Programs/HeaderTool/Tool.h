#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	/** Runs the tool on a command line. Returns the exit code: 0, or 1 with messages. */
	int Run(const std::vector<std::string>& Arguments, std::string& OutMessages);
} // namespace HeaderTool
