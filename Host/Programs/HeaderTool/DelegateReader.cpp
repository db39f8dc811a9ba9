#include "ModuleReader.h"

namespace HeaderTool
{
	static constexpr std::string_view DelegatePrefix = "DECLARE_DYNAMIC_";

	std::string FModuleReader::GetDelegateMacro(CXCursor Cursor)
	{
		const FPlace Place = GetPlace(Cursor);
		if (FindHeader(Place.File) < 0)
		{
			return {};
		}
		const std::string_view Word = GetSource(Place.File)->GetIdentifierAt(Place.Offset);
		return Word.starts_with(DelegatePrefix) ? std::string(Word) : std::string();
	}

	bool FModuleReader::ReadDelegate(
		std::vector<FDelegate>& Out, const std::optional<FMark>& Mark, CXCursor Cursor, const std::string& OuterClass)
	{
		const FPlace Place = GetPlace(Cursor);
		const std::shared_ptr<FSourceFile> File = GetSource(Place.File);
		const std::string_view Macro = File->GetIdentifierAt(Place.Offset);
		std::string_view Text;
		size_t Offset = 0;
		size_t End = 0;
		const bool bClass =
			clang_getCursorKind(Cursor) == CXCursor_ClassDecl || clang_getCursorKind(Cursor) == CXCursor_StructDecl;
		if (!bClass || !clang_isCursorDefinition(Cursor) || !File->GetMacroArguments(Place.Offset, Text, Offset, End))
		{
			return false;
		}
		const std::vector<std::string> Arguments = SplitMacroArguments(Text);
		const bool bHasResult = Macro.find("_RetVal") != std::string_view::npos;
		const size_t NameIndex = bHasResult ? 1 : 0;
		if (Arguments.size() <= NameIndex || GetSpelling(Cursor) != Arguments[NameIndex])
		{
			return false;
		}
		FDelegate Delegate;
		if (Mark && Mark->Kind == EMark::Delegate)
		{
			FillDeclaration(Delegate, *Mark, Arguments[NameIndex]);
		}
		else
		{
			Delegate.Name = Arguments[NameIndex];
			Delegate.Comment = File->GetCommentBefore(Place.Offset);
		}
		Delegate.Location = {File->GetPath(), Place.Line};
		Delegate.bMulticast = Macro.find("MULTICAST") != std::string_view::npos;
		Delegate.OuterClass = OuterClass;
		Delegate.QualifiedName = OuterClass.empty() ? Delegate.Name : OuterClass + "::" + Delegate.Name;
		for (size_t Index = NameIndex + 2; Index < Arguments.size(); Index += 2)
		{
			FParameter Parameter;
			Parameter.Name = Arguments[Index];
			Parameter.Location = Delegate.Location;
			Parameter.Type.Written = Arguments[Index - 1];
			Delegate.Parameters.push_back(std::move(Parameter));
		}
		ReadDelegateTypes(Delegate, Cursor, bHasResult);
		Out.push_back(std::move(Delegate));
		return true;
	}

	void FModuleReader::ReadDelegateTypes(FDelegate& Delegate, CXCursor Class, bool bHasResult)
	{
		// The declared class derives from a template whose last arguments are the result, where there is one, and the parameters;
		// or from one that takes them as a function type.
		Delegate.Result.Kind = ETypeKind::Void;
		const size_t NumTypes = Delegate.Parameters.size() + (bHasResult ? 1 : 0);
		std::vector<CXType> Found;
		for (const CXCursor Child : GetChildren(Class))
		{
			if (clang_getCursorKind(Child) != CXCursor_CXXBaseSpecifier || !Found.empty())
			{
				continue;
			}
			const CXType Base = clang_getCanonicalType(clang_getCursorType(Child));
			const int Num = clang_Type_getNumTemplateArguments(Base);
			const CXType Last =
				Num > 0 ? clang_getCanonicalType(clang_Type_getTemplateArgumentAsType(Base, static_cast<unsigned>(Num - 1)))
						: CXType{};
			if (Num > 0 && Last.kind == CXType_FunctionProto)
			{
				if (bHasResult)
				{
					Found.push_back(clang_getResultType(Last));
				}
				for (int Index = 0; Index < clang_getNumArgTypes(Last); ++Index)
				{
					Found.push_back(clang_getArgType(Last, static_cast<unsigned>(Index)));
				}
				continue;
			}
			for (int Index = Num - static_cast<int>(NumTypes); Index < Num && Index >= 0; ++Index)
			{
				Found.push_back(clang_Type_getTemplateArgumentAsType(Base, static_cast<unsigned>(Index)));
			}
		}
		Delegate.bTypesKnown = Found.size() == NumTypes;
		if (!Delegate.bTypesKnown)
		{
			return;
		}
		size_t Index = 0;
		if (bHasResult)
		{
			Delegate.Result = Types.Read(Found[Index++]);
		}
		for (FParameter& Parameter : Delegate.Parameters)
		{
			Parameter.Type = Types.Read(Found[Index++]);
		}
	}
} // namespace HeaderTool
