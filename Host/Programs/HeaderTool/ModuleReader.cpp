#include "ModuleReader.h"

#include "FileSystem.h"

#include <cstring>

namespace HeaderTool
{
	struct FMarkName
	{
		std::string_view Name;
		EMark Kind;
	};

	static constexpr FMarkName MarkNames[] = {
		{"UCLASS", EMark::Class},
		{"UINTERFACE", EMark::Interface},
		{"USTRUCT", EMark::Struct},
		{"UENUM", EMark::Enum},
		{"UDELEGATE", EMark::Delegate},
		{"UPROPERTY", EMark::Property},
		{"UFUNCTION", EMark::Function},
		{"GENERATED_BODY", EMark::Body},
	};

	FModuleReader::FModuleReader(const FOptions& InOptions, const FTranslationUnit& InUnit, FDiagnostics& InDiagnostics)
		: Options(InOptions)
		, Unit(InUnit)
		, Diagnostics(InDiagnostics)
	{
	}

	FModule FModuleReader::Read()
	{
		Module.Name = Options.Module;
		for (const std::string& Path : Options.Headers)
		{
			FHeader Header;
			std::string Text;
			if (!ReadFile(Path, Text))
			{
				Diagnostics.Error({Path, 0}, "the header cannot be read");
			}
			Header.File = std::make_shared<FSourceFile>(Path, std::move(Text));
			Header.IncludePath = Path;
			for (const std::string& Dir : Options.IncludeDirs)
			{
				const std::string Relative = MakeRelative(Path, Dir);
				Header.IncludePath = Relative.size() < Header.IncludePath.size() ? Relative : Header.IncludePath;
			}
			CXFileUniqueID Id = {};
			const CXFile File = clang_getFile(Unit.Get(), Path.c_str());
			if (File)
			{
				clang_getFileUniqueID(File, &Id);
			}
			HeaderIds.push_back(Id);
			Module.Headers.push_back(std::move(Header));
		}
		std::vector<FItem> Items;
		CollectItems(Items);
		for (const FItem& Item : Items)
		{
			ReadItem(Item);
		}
		return std::move(Module);
	}

	int FModuleReader::FindHeader(CXFile File) const
	{
		CXFileUniqueID Id = {};
		if (!File || clang_getFileUniqueID(File, &Id) != 0)
		{
			return -1;
		}
		for (size_t Index = 0; Index < HeaderIds.size(); ++Index)
		{
			if (std::memcmp(&HeaderIds[Index], &Id, sizeof(Id)) == 0)
			{
				return static_cast<int>(Index);
			}
		}
		return -1;
	}

	std::shared_ptr<FSourceFile> FModuleReader::GetSource(CXFile File)
	{
		const int Header = FindHeader(File);
		if (Header >= 0)
		{
			return Module.Headers[static_cast<size_t>(Header)].File;
		}
		const std::string Path = GetPath(File);
		std::shared_ptr<FSourceFile>& Source = Sources[Path];
		if (!Source)
		{
			size_t Size = 0;
			const char* Text = File ? clang_getFileContents(Unit.Get(), File, &Size) : nullptr;
			Source = std::make_shared<FSourceFile>(Path, Text ? std::string(Text, Size) : std::string());
		}
		return Source;
	}

	std::optional<FMark> FModuleReader::GetMark(CXCursor Cursor)
	{
		if (clang_getCursorKind(Cursor) != CXCursor_StaticAssert)
		{
			return std::nullopt;
		}
		const FPlace Place = GetPlace(Cursor);
		if (!Place.File)
		{
			return std::nullopt;
		}
		const std::shared_ptr<FSourceFile> Source = GetSource(Place.File);
		const std::string_view Word = Source->GetIdentifierAt(Place.Offset);
		for (const FMarkName& Name : MarkNames)
		{
			if (Name.Name == Word)
			{
				return FMark{Name.Kind, Source, Place.Offset, Place.Line};
			}
		}
		return std::nullopt;
	}

	bool FModuleReader::IsBaseStructure(CXCursor Cursor) const
	{
		const CXCursorKind Kind = clang_getCursorKind(Cursor);
		return (Kind == CXCursor_StructDecl || Kind == CXCursor_ClassDecl) && GetSpelling(Cursor) == "TBaseStructure";
	}

	void FModuleReader::AddReflectedEnum(CXCursor Cursor)
	{
		if (clang_getCursorKind(Cursor) == CXCursor_EnumDecl)
		{
			Types.AddReflectedEnum(GetSpelling(Cursor));
			return;
		}
		for (const CXCursor Child : GetChildren(Cursor))
		{
			if (clang_getCursorKind(Child) == CXCursor_EnumDecl)
			{
				Types.AddReflectedEnum(GetSpelling(Cursor) + "::" + GetSpelling(Child));
			}
		}
	}

	void FModuleReader::AddForeignType(CXCursor Cursor)
	{
		const FPlace Place = GetPlace(Cursor);
		const std::string Name = GetSpelling(Cursor);
		Module.ForeignTypes.emplace(GetScriptName(Name), std::pair(Name, FLocation{GetPath(Place.File), Place.Line}));
	}

	void FModuleReader::CollectItems(std::vector<FItem>& OutItems)
	{
		std::optional<FMark> Pending;
		for (const CXCursor Cursor : GetChildren(Unit.GetRoot()))
		{
			if (clang_Location_isInSystemHeader(clang_getCursorLocation(Cursor)))
			{
				continue;
			}
			if (const std::optional<FMark> Mark = GetMark(Cursor))
			{
				if (Pending && FindHeader(GetPlace(Cursor).File) >= 0)
				{
					Diagnostics.Error({Pending->File->GetPath(), Pending->Line}, "the macro has no declaration behind it");
				}
				Pending = Mark;
				continue;
			}
			const CXCursorKind Kind = clang_getCursorKind(Cursor);
			if (Kind == CXCursor_UnexposedDecl)
			{
				continue;
			}
			if (IsBaseStructure(Cursor))
			{
				Types.AddBaseStructure(clang_Type_getTemplateArgumentAsType(clang_getCursorType(Cursor), 0));
			}
			if (Pending && Pending->Kind == EMark::Enum)
			{
				AddReflectedEnum(Cursor);
			}
			const int Header = FindHeader(GetPlace(Cursor).File);
			if (Header >= 0)
			{
				OutItems.push_back({static_cast<size_t>(Header), Pending, Cursor});
			}
			else if (Pending)
			{
				AddForeignType(Cursor);
			}
			Pending.reset();
		}
	}

	void FModuleReader::FillDeclaration(FDeclaration& Declaration, const FMark& Mark, const std::string& Name)
	{
		Declaration.Name = Name;
		Declaration.Location = {Mark.File->GetPath(), Mark.Line};
		Declaration.Specifiers = ReadSpecifiers(*Mark.File, Mark.Offset, Diagnostics);
		Declaration.Comment = Mark.File->GetCommentBefore(Mark.Offset);
	}

	void FModuleReader::ReadItem(const FItem& Item)
	{
		FHeader& Header = Module.Headers[Item.Header];
		const CXCursorKind Kind = clang_getCursorKind(Item.Cursor);
		if (!GetDelegateMacro(Item.Cursor).empty())
		{
			ReadDelegate(Header.Delegates, Item.Mark, Item.Cursor, "");
			return;
		}
		if (Item.Mark)
		{
			ReadMarkedItem(Item, *Item.Mark);
			return;
		}
		const bool bClass = (Kind == CXCursor_ClassDecl || Kind == CXCursor_StructDecl) && clang_isCursorDefinition(Item.Cursor);
		if (bClass)
		{
			ReadClass(Header, nullptr, Item.Cursor);
		}
		else if (Kind == CXCursor_Namespace)
		{
			FindMisplaced(Item.Cursor, "a namespace", Item.Header);
		}
		else if (Kind == CXCursor_ClassTemplate)
		{
			FindMisplaced(Item.Cursor, "a template", Item.Header);
		}
	}

	void FModuleReader::ReadMarkedItem(const FItem& Item, const FMark& Mark)
	{
		FHeader& Header = Module.Headers[Item.Header];
		const CXCursorKind Kind = clang_getCursorKind(Item.Cursor);
		const bool bClass = (Kind == CXCursor_ClassDecl || Kind == CXCursor_StructDecl) && clang_isCursorDefinition(Item.Cursor);
		const FLocation Location = {Mark.File->GetPath(), Mark.Line};
		switch (Mark.Kind)
		{
		case EMark::Class:
		case EMark::Interface:
		case EMark::Struct:
			if (bClass)
			{
				ReadClass(Header, &Mark, Item.Cursor);
			}
			else
			{
				const char* What = Mark.Kind == EMark::Struct ? "USTRUCT() must stand right ahead of the definition of a struct"
								   : Mark.Kind == EMark::Class
									   ? "UCLASS() must stand right ahead of the definition of a class"
									   : "UINTERFACE() must stand right ahead of the definition of the U class";
				Diagnostics.Error(Location, Kind == CXCursor_ClassTemplate ? "a template cannot be reflected" : What);
			}
			break;
		case EMark::Enum:
			if (Kind == CXCursor_EnumDecl || Kind == CXCursor_Namespace)
			{
				ReadEnum(Header, Mark, Item.Cursor);
			}
			else
			{
				Diagnostics.Error(Location, "UENUM() must stand right ahead of an enumeration");
			}
			break;
		case EMark::Delegate:
			Diagnostics.Error(Location, "UDELEGATE() must stand right ahead of a DECLARE_DYNAMIC_ macro");
			break;
		case EMark::Property:
			Diagnostics.Error(Location, "UPROPERTY() stands outside of a class");
			break;
		case EMark::Function:
			Diagnostics.Error(Location, "UFUNCTION() stands outside of a class");
			break;
		case EMark::Body:
			Diagnostics.Error(Location, "GENERATED_BODY() stands outside of a class");
			break;
		}
	}

	void FModuleReader::FindMisplaced(CXCursor Scope, const std::string& Where, size_t Header)
	{
		for (const CXCursor Child : GetChildren(Scope))
		{
			const CXCursorKind Kind = clang_getCursorKind(Child);
			const std::optional<FMark> Mark = GetMark(Child);
			if (Mark && Mark->Kind != EMark::Delegate)
			{
				Diagnostics.Error(
					{Mark->File->GetPath(), Mark->Line}, "reflected types stand at file scope: move this one out of " + Where);
				return;
			}
			if (Kind == CXCursor_Namespace ||
				((Kind == CXCursor_ClassDecl || Kind == CXCursor_StructDecl) && clang_isCursorDefinition(Child)))
			{
				FindMisplaced(Child, Where, Header);
			}
		}
	}
} // namespace HeaderTool
