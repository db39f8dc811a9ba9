#include "Clang.h"

namespace HeaderTool
{
	std::string ToString(CXString String)
	{
		const char* Text = clang_getCString(String);
		std::string Result = Text ? Text : "";
		clang_disposeString(String);
		return Result;
	}

	std::string GetSpelling(CXCursor Cursor)
	{
		return ToString(clang_getCursorSpelling(Cursor));
	}

	std::string GetSpelling(CXType Type)
	{
		return ToString(clang_getTypeSpelling(Type));
	}

	std::string GetUnqualifiedSpelling(CXType Type)
	{
		std::string Result = GetSpelling(Type);
		for (const std::string Qualifier : {"const", "volatile"})
		{
			// Ahead of a name, behind the asterisk of a pointer.
			if (Type.kind == CXType_Pointer && Result.ends_with(Qualifier))
			{
				Result.resize(Result.size() - Qualifier.size());
			}
			else if (Type.kind != CXType_Pointer && Result.starts_with(Qualifier + " "))
			{
				Result.erase(0, Qualifier.size() + 1);
			}
		}
		return Result;
	}

	FPlace GetPlace(CXSourceLocation Location)
	{
		FPlace Result;
		clang_getExpansionLocation(Location, &Result.File, &Result.Line, nullptr, &Result.Offset);
		return Result;
	}

	FPlace GetPlace(CXCursor Cursor)
	{
		return GetPlace(clang_getCursorLocation(Cursor));
	}

	unsigned GetStartOffset(CXCursor Cursor)
	{
		return GetPlace(clang_getRangeStart(clang_getCursorExtent(Cursor))).Offset;
	}

	unsigned GetEndOffset(CXCursor Cursor)
	{
		return GetPlace(clang_getRangeEnd(clang_getCursorExtent(Cursor))).Offset;
	}

	std::string GetPath(CXFile File)
	{
		return File ? ToString(clang_getFileName(File)) : std::string();
	}

	std::vector<CXCursor> GetChildren(CXCursor Cursor)
	{
		std::vector<CXCursor> Result;
		clang_visitChildren(
			Cursor,
			[](CXCursor Child, CXCursor, CXClientData Data)
			{
				static_cast<std::vector<CXCursor>*>(Data)->push_back(Child);
				return CXChildVisit_Continue;
			},
			&Result);
		return Result;
	}
} // namespace HeaderTool
