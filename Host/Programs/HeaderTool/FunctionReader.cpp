#include "Annotation.h"
#include "ModuleReader.h"

namespace HeaderTool
{
	FParameter FModuleReader::ReadParameter(const FSourceFile& File, CXCursor Cursor)
	{
		FParameter Result;
		Result.Name = GetSpelling(Cursor);
		Result.Location = {File.GetPath(), GetPlace(Cursor).Line};
		Result.Type = Types.Read(clang_getCursorType(Cursor));
		Result.Specifiers = ReadAnnotation(File, Cursor, "UPARAM", Diagnostics);

		const unsigned Start = GetStartOffset(Cursor);
		const unsigned End = GetEndOffset(Cursor);
		const std::string_view Text = File.GetText();
		if (Start >= End || End > Text.size())
		{
			return Result;
		}
		const std::string_view Declaration = Text.substr(Start, End - Start);
		int Depth = 0;
		for (size_t Index = 0; Index < Declaration.size();)
		{
			const size_t Skipped = SkipLiteralOrComment(Declaration, Index);
			if (Skipped > Index)
			{
				Index = Skipped;
				continue;
			}
			const char Character = Declaration[Index];
			Depth += Character == '(' || Character == '<' ? 1 : Character == ')' || Character == '>' ? -1 : 0;
			if (Character == '=' && Depth == 0)
			{
				const size_t First = Declaration.find_first_not_of(" \t\r\n", Index + 1);
				Result.Default = First == std::string_view::npos ? std::string() : std::string(Declaration.substr(First));
				break;
			}
			++Index;
		}
		return Result;
	}

	/** True when a body follows the function's declaration. */
	static bool HasBody(const FSourceFile& File, size_t NameOffset)
	{
		const std::string_view Text = File.GetText();
		int Depth = 0;
		for (size_t Index = NameOffset; Index < Text.size();)
		{
			const size_t Skipped = SkipLiteralOrComment(Text, Index);
			if (Skipped > Index)
			{
				Index = Skipped;
				continue;
			}
			const char Character = Text[Index];
			Depth += Character == '(' ? 1 : Character == ')' ? -1 : 0;
			if (Depth == 0 && (Character == ';' || Character == '{'))
			{
				return Character == '{';
			}
			++Index;
		}
		return false;
	}

	FFunction FModuleReader::ReadFunction(const FMark& Mark, CXCursor Cursor)
	{
		FFunction Result;
		FillDeclaration(Result, Mark, GetSpelling(Cursor));
		Result.Result = Types.Read(clang_getCursorResultType(Cursor));
		Result.bStatic = clang_CXXMethod_isStatic(Cursor) != 0;
		Result.bConst = clang_CXXMethod_isConst(Cursor) != 0;
		Result.bVirtual = clang_CXXMethod_isVirtual(Cursor) != 0;
		Result.bTemplate = clang_getCursorKind(Cursor) == CXCursor_FunctionTemplate;
		Result.bHasBody = HasBody(*Mark.File, GetPlace(Cursor).Offset);
		for (const CXCursor Child : GetChildren(Cursor))
		{
			Result.bOverride = Result.bOverride || clang_getCursorKind(Child) == CXCursor_CXXOverrideAttr;
		}
		const int Num = clang_Cursor_getNumArguments(Cursor);
		for (int Index = 0; Index < Num; ++Index)
		{
			Result.Parameters.push_back(
				ReadParameter(*Mark.File, clang_Cursor_getArgument(Cursor, static_cast<unsigned>(Index))));
		}
		return Result;
	}
} // namespace HeaderTool
