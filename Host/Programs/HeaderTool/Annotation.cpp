#include "Annotation.h"

namespace HeaderTool
{
	FSpecifiers ReadAnnotation(const FSourceFile& File, CXCursor Cursor, std::string_view Macro, FDiagnostics& Diagnostics)
	{
		for (const CXCursor Child : GetChildren(Cursor))
		{
			if (clang_getCursorKind(Child) != CXCursor_AnnotateAttr)
			{
				continue;
			}
			const FPlace Place = GetPlace(Child);
			if (File.GetIdentifierAt(Place.Offset) == Macro)
			{
				return ReadSpecifiers(File, Place.Offset, Diagnostics);
			}
		}
		return {};
	}
} // namespace HeaderTool
