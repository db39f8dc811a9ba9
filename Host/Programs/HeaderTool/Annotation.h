#pragma once

#include "Clang.h"
#include "Specifiers.h"

namespace HeaderTool
{
	/** Macro arguments of the annotation on an enumerator, parameter or function; empty when it has none. */
	FSpecifiers ReadAnnotation(const FSourceFile& File, CXCursor Cursor, std::string_view Macro, FDiagnostics& Diagnostics);
} // namespace HeaderTool
