#include "TranslationUnit.h"

#include "FileSystem.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace HeaderTool
{
	/** File that exists in memory only and includes the module's headers. */
	static constexpr const char* UmbrellaName = "HeaderToolUmbrella.cpp";

	FTranslationUnit::~FTranslationUnit()
	{
		if (Unit)
		{
			clang_disposeTranslationUnit(Unit);
		}
		if (Index)
		{
			clang_disposeIndex(Index);
		}
	}

	/**
	 * Names of the generated headers that some header on the include path may include. They are served empty: their content is
	 * what this tool is about to write, and those of other modules declare nothing that a header needs.
	 */
	static std::set<std::string> FindGeneratedHeaders(const FOptions& Options)
	{
		std::set<std::string> Result;
		for (const std::string& Header : Options.Headers)
		{
			Result.insert(GetBaseName(Header) + ".generated.h");
		}
		for (const std::string& Dir : Options.IncludeDirs)
		{
			std::error_code Error;
			for (std::filesystem::recursive_directory_iterator It(Dir, Error), End; !Error && It != End; It.increment(Error))
			{
				if (It->path().extension() == ".h")
				{
					Result.insert(GetBaseName(It->path().native()) + ".generated.h");
				}
			}
		}
		return Result;
	}

	static std::vector<std::string> MakeCompilerArguments(const FOptions& Options)
	{
		std::vector<std::string> Result = {
			"-x", "c++", "-std=c++20", "-fno-rtti", "-w", "-ferror-limit=200", "-DHEADER_TOOL=1", "-I" + Options.OutputDir};
		for (const std::string& Dir : Options.IncludeDirs)
		{
			Result.push_back("-I" + Dir);
		}
		for (const std::string& Define : Options.Defines)
		{
			Result.push_back("-D" + Define);
		}
		return Result;
	}

	bool FTranslationUnit::Parse(const FOptions& Options, FDiagnostics& Diagnostics)
	{
		OutputDir = Options.OutputDir;
		// Which core structures are described without macros stands in a header that few headers need.
		std::string Umbrella = "#if __has_include(\"UObject/BaseStructures.h\")\n#include \"UObject/BaseStructures.h\"\n#endif\n";
		for (const std::string& Header : Options.Headers)
		{
			Umbrella += "#include \"" + Header + "\"\n";
		}
		std::vector<std::string> Paths;
		for (const std::string& Name : FindGeneratedHeaders(Options))
		{
			Paths.push_back(OutputDir + "/" + Name);
		}
		std::vector<CXUnsavedFile> Files = {{UmbrellaName, Umbrella.data(), Umbrella.size()}};
		for (const std::string& Path : Paths)
		{
			Files.push_back({Path.c_str(), "", 0});
		}
		const std::vector<std::string> Arguments = MakeCompilerArguments(Options);
		std::vector<const char*> Pointers;
		for (const std::string& Argument : Arguments)
		{
			Pointers.push_back(Argument.c_str());
		}
		Index = clang_createIndex(0, 0);
		const CXErrorCode Error =
			clang_parseTranslationUnit2(Index, UmbrellaName, Pointers.data(), static_cast<int>(Pointers.size()), Files.data(),
				static_cast<unsigned>(Files.size()), CXTranslationUnit_SkipFunctionBodies | CXTranslationUnit_KeepGoing, &Unit);
		if (Error != CXError_Success || !Unit)
		{
			Diagnostics.Error({Options.Module, 0}, "the headers could not be parsed");
			return false;
		}
		ReportErrors(Diagnostics);
		return true;
	}

	/**
	 * What the compiler says because generated members are not there in this pass is left to the real compilation: overrides of
	 * generated functions and the Super of a class.
	 */
	static bool FollowsFromMissingCode(const std::string& Message)
	{
		return Message.find("'override'") != std::string::npos || Message.find("'Super'") != std::string::npos ||
			   Message.find("'ThisClass'") != std::string::npos;
	}

	void FTranslationUnit::ReportErrors(FDiagnostics& Diagnostics) const
	{
		const unsigned Num = clang_getNumDiagnostics(Unit);
		for (unsigned Number = 0; Number < Num; ++Number)
		{
			const CXDiagnostic Diagnostic = clang_getDiagnostic(Unit, Number);
			const std::string Message = ToString(clang_getDiagnosticSpelling(Diagnostic));
			if (clang_getDiagnosticSeverity(Diagnostic) >= CXDiagnostic_Error && !FollowsFromMissingCode(Message))
			{
				const FPlace Place = GetPlace(clang_getDiagnosticLocation(Diagnostic));
				Diagnostics.Error({GetPath(Place.File), Place.Line}, Message);
			}
			clang_disposeDiagnostic(Diagnostic);
		}
	}

	std::vector<std::string> FTranslationUnit::GetIncludedFiles() const
	{
		std::vector<std::string> Result;
		clang_getInclusions(
			Unit,
			[](CXFile File, CXSourceLocation*, unsigned, CXClientData Data)
			{ static_cast<std::vector<std::string>*>(Data)->push_back(GetPath(File)); },
			&Result);
		std::erase_if(Result, [&](const std::string& Path) { return Path == UmbrellaName || Path.starts_with(OutputDir + "/"); });
		std::sort(Result.begin(), Result.end());
		Result.erase(std::unique(Result.begin(), Result.end()), Result.end());
		return Result;
	}
} // namespace HeaderTool
