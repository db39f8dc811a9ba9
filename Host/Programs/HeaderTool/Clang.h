#pragma once

#include "Diagnostics.h"

#include <clang-c/Index.h>

#include <functional>
#include <string>
#include <vector>

namespace HeaderTool
{
	/** Takes the text out of a libclang string and releases it. */
	std::string ToString(CXString String);

	std::string GetSpelling(CXCursor Cursor);
	std::string GetSpelling(CXType Type);
	/** Spelling without the type's own const and volatile. */
	std::string GetUnqualifiedSpelling(CXType Type);

	/** Place of a cursor in the file that a reader sees: of the macro call, for what a macro makes. */
	struct FPlace
	{
		CXFile File = nullptr;
		unsigned Line = 0;
		unsigned Offset = 0;
	};
	FPlace GetPlace(CXCursor Cursor);
	FPlace GetPlace(CXSourceLocation Location);
	/** Offset of the first character of the cursor's whole declaration. */
	unsigned GetStartOffset(CXCursor Cursor);
	/** Offset behind the cursor's whole declaration. */
	unsigned GetEndOffset(CXCursor Cursor);

	std::string GetPath(CXFile File);

	/** Direct children in order. */
	std::vector<CXCursor> GetChildren(CXCursor Cursor);
} // namespace HeaderTool
