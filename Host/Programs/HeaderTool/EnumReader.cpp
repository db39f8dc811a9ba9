#include "ModuleReader.h"

namespace HeaderTool
{
	/** Offset of the UMETA that belongs to the enumerator at an offset; 0 when it has none. */
	static size_t FindEnumeratorAnnotation(const FSourceFile& File, size_t Offset)
	{
		const std::string_view Text = File.GetText();
		int Depth = 0;
		while (Offset < Text.size())
		{
			const size_t Skipped = SkipLiteralOrComment(Text, Offset);
			const std::string_view Word = File.GetIdentifierAt(Offset);
			if (Skipped > Offset)
			{
				Offset = Skipped;
			}
			else if (Word == "UMETA")
			{
				return Offset;
			}
			else if (!Word.empty())
			{
				Offset += Word.size();
			}
			else
			{
				Depth += Text[Offset] == '(' ? 1 : Text[Offset] == ')' ? -1 : 0;
				if (Depth == 0 && (Text[Offset] == ',' || Text[Offset] == '}'))
				{
					return 0;
				}
				++Offset;
			}
		}
		return 0;
	}

	void FModuleReader::ReadEnum(FHeader& Header, const FMark& Mark, CXCursor Cursor)
	{
		FEnum Enum;
		FillDeclaration(Enum, Mark, GetSpelling(Cursor));
		Enum.CppType = Enum.Name;
		CXCursor Declaration = Cursor;
		if (clang_getCursorKind(Cursor) == CXCursor_Namespace)
		{
			Enum.Form = EEnumForm::Namespaced;
			Declaration = clang_getNullCursor();
			for (const CXCursor Child : GetChildren(Cursor))
			{
				if (clang_getCursorKind(Child) == CXCursor_EnumDecl)
				{
					Declaration = Child;
				}
			}
			if (clang_Cursor_isNull(Declaration))
			{
				Diagnostics.Error(Enum.Location, "UENUM() is followed by a namespace without an enumeration");
				return;
			}
			Enum.CppType += "::" + GetSpelling(Declaration);
		}
		else if (clang_EnumDecl_isScoped(Declaration))
		{
			Enum.Form = EEnumForm::EnumClass;
		}
		const CXType Integer = clang_getCanonicalType(clang_getEnumDeclIntegerType(Declaration));
		Enum.Size = static_cast<int>(clang_Type_getSizeOf(Integer));
		Enum.bUInt8 = Integer.kind == CXType_UChar;
		for (const CXCursor Child : GetChildren(Declaration))
		{
			if (clang_getCursorKind(Child) != CXCursor_EnumConstantDecl)
			{
				continue;
			}
			FEnumerator Enumerator;
			Enumerator.Name = GetSpelling(Child);
			const FPlace Place = GetPlace(Child);
			Enumerator.Location = {Mark.File->GetPath(), Place.Line};
			Enumerator.Comment = Mark.File->GetCommentBefore(Place.Offset);
			Enumerator.Value = clang_getEnumConstantDeclValue(Child);
			if (const size_t Annotation = FindEnumeratorAnnotation(*Mark.File, Place.Offset))
			{
				// The keys of UMETA are metadata themselves.
				Enumerator.Specifiers.Meta = ReadSpecifiers(*Mark.File, Annotation, Diagnostics).Entries;
			}
			Enum.Enumerators.push_back(std::move(Enumerator));
		}
		Header.Enums.push_back(std::move(Enum));
	}
} // namespace HeaderTool
