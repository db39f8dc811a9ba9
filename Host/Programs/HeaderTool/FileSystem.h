#pragma once

#include <string>
#include <string_view>

namespace HeaderTool
{
	/** Whole file; false when it cannot be read. */
	bool ReadFile(const std::string& Path, std::string& OutText);

	/** Writes the file unless it holds the text already, so that nothing is built again needlessly. False on failure. */
	bool WriteFileIfChanged(const std::string& Path, std::string_view Text);

	/** Name of the file without folders and extension. */
	std::string GetBaseName(std::string_view Path);

	/** Path relative to a folder; the path itself when it does not lie in it. */
	std::string MakeRelative(const std::string& Path, const std::string& Dir);
} // namespace HeaderTool
