#include "Tool.h"

#include "Checks.h"
#include "FileSystem.h"
#include "HeaderWriter.h"
#include "ModuleReader.h"
#include "ModuleWriter.h"

namespace HeaderTool
{
	static std::string EscapeForDepfile(const std::string& Path)
	{
		std::string Result;
		for (const char Character : Path)
		{
			Result += Character == ' ' ? "\\ " : Character == '$' ? "$$" : Character == '#' ? "\\#" : std::string(1, Character);
		}
		return Result;
	}

	static std::string MakeDepfile(const std::string& Output, const std::vector<std::string>& Files)
	{
		std::string Result = EscapeForDepfile(Output) + ":";
		for (const std::string& File : Files)
		{
			Result += " \\\n  " + EscapeForDepfile(File);
		}
		return Result + "\n";
	}

	static bool WriteOutputs(
		const FOptions& Options, const FModule& Module, const FTranslationUnit& Unit, FDiagnostics& Diagnostics)
	{
		const std::string ModulePath = Options.OutputDir + "/" + Module.Name + ".gen.cpp";
		std::vector<std::pair<std::string, std::string>> Outputs = {{ModulePath, WriteModule(Module)}};
		for (const FHeader& Header : Module.Headers)
		{
			Outputs.emplace_back(Options.OutputDir + "/" + GetBaseName(Header.File->GetPath()) + ".generated.h",
				WriteGeneratedHeader(Module, Header));
		}
		if (!Options.Depfile.empty())
		{
			Outputs.emplace_back(Options.Depfile, MakeDepfile(ModulePath, Unit.GetIncludedFiles()));
		}
		for (const auto& [Path, Text] : Outputs)
		{
			if (!WriteFileIfChanged(Path, Text))
			{
				Diagnostics.Error({Path, 0}, "the file cannot be written");
			}
		}
		return !Diagnostics.HasErrors();
	}

	int Run(const std::vector<std::string>& Arguments, std::string& OutMessages)
	{
		FOptions Options;
		std::string Error;
		if (!ReadOptions(Arguments, Options, Error))
		{
			OutMessages = "HeaderTool: " + Error + "\n";
			return 1;
		}
		FDiagnostics Diagnostics;
		FTranslationUnit Unit;
		if (Unit.Parse(Options, Diagnostics))
		{
			const FModule Module = FModuleReader(Options, Unit, Diagnostics).Read();
			CheckModule(Module, Diagnostics);
			if (!Diagnostics.HasErrors())
			{
				WriteOutputs(Options, Module, Unit, Diagnostics);
			}
		}
		OutMessages = Diagnostics.Format();
		return Diagnostics.HasErrors() ? 1 : 0;
	}
} // namespace HeaderTool
