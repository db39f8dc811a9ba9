#pragma once

#include "Clang.h"
#include "Options.h"

namespace HeaderTool
{
	/** All headers of the module, parsed as one translation unit without function bodies. */
	class FTranslationUnit
	{
	public:
		FTranslationUnit() = default;
		FTranslationUnit(const FTranslationUnit&) = delete;
		FTranslationUnit& operator=(const FTranslationUnit&) = delete;
		~FTranslationUnit();

		/** Parses; compiler errors go to the diagnostics. False when there is nothing to look at. */
		bool Parse(const FOptions& Options, FDiagnostics& Diagnostics);

		CXTranslationUnit Get() const { return Unit; }
		CXCursor GetRoot() const { return clang_getTranslationUnitCursor(Unit); }

		/** Files that the outputs depend on, sorted. */
		std::vector<std::string> GetIncludedFiles() const;

	private:
		void ReportErrors(FDiagnostics& Diagnostics) const;

		CXIndex Index = nullptr;
		CXTranslationUnit Unit = nullptr;
		std::string OutputDir;
	};
} // namespace HeaderTool
