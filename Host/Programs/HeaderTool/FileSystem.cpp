#include "FileSystem.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace HeaderTool
{
	bool ReadFile(const std::string& Path, std::string& OutText)
	{
		std::ifstream Stream(Path, std::ios::binary);
		if (!Stream || std::filesystem::is_directory(Path))
		{
			return false;
		}
		OutText.assign(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
		return !Stream.bad();
	}

	bool WriteFileIfChanged(const std::string& Path, std::string_view Text)
	{
		std::string Old;
		if (ReadFile(Path, Old) && Old == Text)
		{
			return true;
		}
		std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
		Stream.write(Text.data(), static_cast<std::streamsize>(Text.size()));
		Stream.flush();
		return Stream.good();
	}

	std::string GetBaseName(std::string_view Path)
	{
		const size_t Slash = Path.find_last_of('/');
		const std::string_view Name = Slash == std::string_view::npos ? Path : Path.substr(Slash + 1);
		return std::string(Name.substr(0, Name.find('.')));
	}

	std::string MakeRelative(const std::string& Path, const std::string& Dir)
	{
		const bool bInside = Path.size() > Dir.size() + 1 && Path.compare(0, Dir.size(), Dir) == 0 && Path[Dir.size()] == '/';
		return bInside ? Path.substr(Dir.size() + 1) : Path;
	}
} // namespace HeaderTool
