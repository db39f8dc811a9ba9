#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	/** What one run is asked to do. */
	struct FOptions
	{
		/** Name of the module, as in /Script/<Module>. */
		std::string Module;
		/** Folder of the written files. */
		std::string OutputDir;
		std::vector<std::string> IncludeDirs;
		/** NAME or NAME=VALUE. */
		std::vector<std::string> Defines;
		/** The module's reflected headers. */
		std::vector<std::string> Headers;
		/** File for the build that lists what the outputs depend on; empty for none. */
		std::string Depfile;
	};

	/**
	 * Reads the command line; "--arguments FILE" stands for the lines of a file, one argument each.
	 * False, with a reason, when the arguments make no sense.
	 */
	bool ReadOptions(const std::vector<std::string>& Arguments, FOptions& OutOptions, std::string& OutError);
} // namespace HeaderTool
