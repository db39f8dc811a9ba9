#include "CheckHelpers.h"
#include "FileSystem.h"

#include <algorithm>

namespace HeaderTool
{
	/** Line of the first reflected declaration; 0 when there is none. */
	static unsigned GetFirstTypeLine(const FHeader& Header)
	{
		unsigned Result = 0;
		const auto See = [&](const FLocation& Location)
		{
			Result = Result == 0 ? Location.Line : std::min(Result, Location.Line);
		};
		for (const FEnum& Enum : Header.Enums)
		{
			See(Enum.Location);
		}
		for (const FDelegate& Delegate : Header.Delegates)
		{
			See(Delegate.Location);
		}
		for (const FClass& Class : Header.Classes)
		{
			See(Class.Location);
		}
		return Result;
	}

	/** The number of parameters is part of a delegate macro's name: there is none for more than nine, and types come with names.
	 */
	static void CheckDelegateMacros(const FCheckContext& Context, const FSourceFile& File)
	{
		const std::string_view Text = File.GetText();
		for (size_t Offset = 0; Offset < Text.size();)
		{
			const size_t Skipped = SkipLiteralOrComment(Text, Offset);
			const std::string_view Word = File.GetIdentifierAt(Offset);
			if (Skipped > Offset || Word.empty())
			{
				Offset = std::max(Skipped, Offset + 1);
				continue;
			}
			std::string_view Arguments;
			size_t Start = 0;
			size_t End = 0;
			if (Word.starts_with("DECLARE_DYNAMIC_") && File.GetMacroArguments(Offset, Arguments, Start, End))
			{
				const size_t NumNames = Word.find("_RetVal") == std::string_view::npos ? 1 : 2;
				const size_t Num = SplitMacroArguments(Arguments).size();
				if (Num > NumNames + 18)
				{
					Context.Error(
						{File.GetPath(), File.GetLine(Offset)}, "a dynamic delegate has at most nine parameters: pass a USTRUCT");
				}
				else if (Num > NumNames && (Num - NumNames) % 2 != 0)
				{
					Context.Error({File.GetPath(), File.GetLine(Offset)},
						"type and name of each parameter are arguments of their own: write (FName, Type1, Name1, ...); a type "
						"with a comma needs a USTRUCT around it");
				}
			}
			Offset += Word.size();
		}
	}

	void CheckHeader(const FCheckContext& Context, const FHeader& Header)
	{
		CheckDelegateMacros(Context, *Header.File);
		const std::string& Path = Header.File->GetPath();
		const std::string Wanted = GetBaseName(Path) + ".generated.h";
		const std::vector<FInclude>& Includes = Header.File->GetIncludes();
		const FInclude* Own = nullptr;
		for (const FInclude& Include : Includes)
		{
			const bool bGenerated = Include.Path.ends_with(".generated.h");
			if (bGenerated && Include.Path != Wanted)
			{
				Context.Error(
					{Path, Include.Line}, "a header includes its own generated header only: write #include \"" + Wanted + "\"");
			}
			Own = Include.Path == Wanted ? &Include : Own;
		}
		const unsigned FirstType = GetFirstTypeLine(Header);
		if (!Own)
		{
			if (FirstType > 0)
			{
				Context.Error({Path, FirstType},
					"the header declares reflected types: write #include \"" + Wanted + "\" as its last include");
			}
			return;
		}
		if (Own != &Includes.back())
		{
			Context.Error({Path, Own->Line}, "\"" + Wanted + "\" must be the last include of the header");
		}
		if (FirstType > 0 && FirstType < Own->Line)
		{
			Context.Error({Path, Own->Line}, "\"" + Wanted + "\" must be included ahead of the first reflected type");
		}
	}
} // namespace HeaderTool
