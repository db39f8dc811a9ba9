#include "Options.h"

#include "FileSystem.h"

namespace HeaderTool
{
	static bool ExpandArgumentFiles(
		const std::vector<std::string>& Arguments, std::vector<std::string>& OutExpanded, std::string& OutError)
	{
		for (size_t Index = 0; Index < Arguments.size(); ++Index)
		{
			if (Arguments[Index] != "--arguments")
			{
				OutExpanded.push_back(Arguments[Index]);
				continue;
			}
			std::string Text;
			if (Index + 1 >= Arguments.size() || !ReadFile(Arguments[Index + 1], Text))
			{
				OutError = "--arguments needs the name of a readable file";
				return false;
			}
			++Index;
			size_t Start = 0;
			while (Start < Text.size())
			{
				const size_t End = std::min(Text.find('\n', Start), Text.size());
				if (End > Start)
				{
					OutExpanded.push_back(Text.substr(Start, End - Start));
				}
				Start = End + 1;
			}
		}
		return true;
	}

	bool ReadOptions(const std::vector<std::string>& Arguments, FOptions& OutOptions, std::string& OutError)
	{
		std::vector<std::string> Expanded;
		if (!ExpandArgumentFiles(Arguments, Expanded, OutError))
		{
			return false;
		}
		for (size_t Index = 0; Index < Expanded.size(); ++Index)
		{
			const std::string& Name = Expanded[Index];
			if (Index + 1 >= Expanded.size())
			{
				OutError = "'" + Name + "' needs a value";
				return false;
			}
			const std::string& Value = Expanded[++Index];
			if (Name == "--module")
			{
				OutOptions.Module = Value;
			}
			else if (Name == "--output")
			{
				OutOptions.OutputDir = Value;
			}
			else if (Name == "--include")
			{
				OutOptions.IncludeDirs.push_back(Value);
			}
			else if (Name == "--define")
			{
				OutOptions.Defines.push_back(Value);
			}
			else if (Name == "--header")
			{
				OutOptions.Headers.push_back(Value);
			}
			else if (Name == "--depfile")
			{
				OutOptions.Depfile = Value;
			}
			else
			{
				OutError = "unknown argument '" + Name + "'";
				return false;
			}
		}
		if (OutOptions.Module.empty() || OutOptions.OutputDir.empty())
		{
			OutError =
				"usage: HeaderTool --module NAME --output DIR [--include DIR]... [--define NAME=VALUE]... [--header FILE]... "
				"[--depfile FILE] [--arguments FILE]";
			return false;
		}
		return true;
	}
} // namespace HeaderTool
