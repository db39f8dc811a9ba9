#include "ModuleReader.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{
	static EAccess GetAccess(CXCursor Cursor)
	{
		switch (clang_getCXXAccessSpecifier(Cursor))
		{
		case CX_CXXProtected:
			return EAccess::Protected;
		case CX_CXXPrivate:
			return EAccess::Private;
		default:
			return EAccess::Public;
		}
	}

	static bool IsInterfaceBodyName(const std::string& Name)
	{
		return Name.size() > 1 && Name[0] == 'I' && std::isupper(static_cast<unsigned char>(Name[1]));
	}

	static EClassKind GetClassKind(const FMark* Mark)
	{
		if (!Mark)
		{
			return EClassKind::InterfaceBody;
		}
		return Mark->Kind == EMark::Interface ? EClassKind::InterfaceClass
			   : Mark->Kind == EMark::Struct  ? EClassKind::Struct
											  : EClassKind::Class;
	}

	static bool IsEditorGuard(const std::string& Expression)
	{
		return Expression == "WITH_EDITOR" || Expression == "WITH_EDITORONLY_DATA";
	}

	static bool IsEditorOnly(const FSourceFile& File, unsigned Line)
	{
		const std::vector<FConditional> Conditionals = File.GetConditionals(Line);
		return std::any_of(
			Conditionals.begin(), Conditionals.end(), [](const FConditional& Item) { return IsEditorGuard(Item.Expression); });
	}

	void FModuleReader::ReadClass(FHeader& Header, const FMark* Mark, CXCursor Cursor)
	{
		FClass Class;
		const FPlace Place = GetPlace(Cursor);
		if (Mark)
		{
			FillDeclaration(Class, *Mark, GetSpelling(Cursor));
		}
		else
		{
			Class.Name = GetSpelling(Cursor);
			Class.Comment = Header.File->GetCommentBefore(GetStartOffset(Cursor));
		}
		Class.Location = {Header.File->GetPath(), Place.Line};
		Class.Kind = GetClassKind(Mark);
		ReadBases(Class, Cursor);
		ReadMembers(Class, Cursor);
		if (!Mark && Class.BodyLine == 0)
		{
			// A plain class; only misplaced macros in it are of interest.
			if (!Class.Properties.empty() || !Class.Functions.empty())
			{
				const FLocation& Where = Class.Properties.empty() ? Class.Functions[0].Location : Class.Properties[0].Location;
				Diagnostics.Error(
					Where, "the class " + Class.Name +
							   " has reflected members but is not reflected: write UCLASS() or USTRUCT() ahead of it");
			}
			FindMisplaced(Cursor, "the class " + Class.Name, static_cast<size_t>(&Header - Module.Headers.data()));
			return;
		}
		if (!Mark && !IsInterfaceBodyName(Class.Name))
		{
			Diagnostics.Error(
				Class.Location, "GENERATED_BODY() in " + Class.Name + ", which has no UCLASS() or USTRUCT() ahead of it");
			return;
		}
		LearnBases(Cursor);
		Learn(Cursor);
		Header.Classes.push_back(std::move(Class));
	}

	void FModuleReader::ReadBases(FClass& Class, CXCursor Cursor)
	{
		for (const CXCursor Child : GetChildren(Cursor))
		{
			if (clang_getCursorKind(Child) != CXCursor_CXXBaseSpecifier)
			{
				continue;
			}
			const CXCursor Declaration = clang_getTypeDeclaration(clang_getCanonicalType(clang_getCursorType(Child)));
			FBase Base;
			Base.Name = GetSpelling(Declaration);
			Base.bReflected = Types.IsReflectedClass(Declaration);
			Base.bInterface = Base.bReflected && IsInterfaceBodyName(Base.Name);
			Base.Location = {Class.Location.File, GetPlace(Child).Line};
			Class.Bases.push_back(std::move(Base));
		}
	}

	void FModuleReader::ReadMembers(FClass& Class, CXCursor Cursor)
	{
		std::optional<FMark> Pending;
		bool bFirst = true;
		LastMemberStart = 0;
		for (const CXCursor Child : GetChildren(Cursor))
		{
			const CXCursorKind Kind = clang_getCursorKind(Child);
			if (Kind == CXCursor_CXXBaseSpecifier || clang_isAttribute(Kind) || Kind == CXCursor_CXXFinalAttr)
			{
				continue;
			}
			const std::optional<FMark> Mark = GetMark(Child);
			if (Mark && Mark->Kind == EMark::Body)
			{
				Class.BodyLine = Mark->Line;
				Class.bBodyFirst = bFirst;
			}
			else if (Mark)
			{
				if (Pending)
				{
					Diagnostics.Error({Pending->File->GetPath(), Pending->Line}, "the macro has no declaration behind it");
				}
				Pending = Mark;
			}
			else
			{
				ReadMember(Class, Pending, Child);
			}
			bFirst = false;
		}
		if (Pending)
		{
			Diagnostics.Error({Pending->File->GetPath(), Pending->Line}, "the macro has no declaration behind it");
		}
	}

	void FModuleReader::ReadMember(FClass& Class, std::optional<FMark>& Pending, CXCursor Child)
	{
		const CXCursorKind Kind = clang_getCursorKind(Child);
		if (!GetDelegateMacro(Child).empty())
		{
			if (ReadDelegate(Class.Delegates, Pending, Child, Class.Name))
			{
				Class.Delegates.back().Access = GetAccess(Child);
				Pending.reset();
			}
			return;
		}
		if (Kind == CXCursor_Constructor || Kind == CXCursor_Destructor)
		{
			Class.bHasDestructor = Class.bHasDestructor || Kind == CXCursor_Destructor;
			if (Kind == CXCursor_Constructor)
			{
				ReadConstructor(Class, Child);
			}
		}
		// What the macro's own expansion declares does not count as the reader's.
		const bool bMethod = Kind == CXCursor_CXXMethod &&
							 GetSource(GetPlace(Child).File)->GetIdentifierAt(GetPlace(Child).Offset) != "GENERATED_BODY";
		if (bMethod)
		{
			Class.MethodNames.push_back(GetSpelling(Child));
			if (GetSpelling(Child) == "operator=")
			{
				const CXType Parameter = clang_getArgType(clang_getCursorType(Child), 0);
				Class.bHasMove = Class.bHasMove || Parameter.kind == CXType_RValueReference;
				Class.bHasCopyAssignment = Class.bHasCopyAssignment || Parameter.kind == CXType_LValueReference;
			}
		}
		const bool bMember = Kind == CXCursor_FieldDecl || Kind == CXCursor_VarDecl;
		const bool bFunction = bMethod || Kind == CXCursor_FunctionTemplate;
		if (Pending)
		{
			const FMark Mark = *Pending;
			const FLocation Location = {Mark.File->GetPath(), Mark.Line};
			if (Mark.Kind == EMark::Property && (bMember || bFunction))
			{
				ReadPropertyMember(Class, Mark, Child);
			}
			else if (Mark.Kind == EMark::Function && (bMember || bFunction))
			{
				ReadFunctionMember(Class, Mark, Child);
			}
			else if (Mark.Kind != EMark::Property && Mark.Kind != EMark::Function && Mark.Kind != EMark::Delegate)
			{
				Diagnostics.Error(Location, "reflected types stand at file scope: move this one out of the class " + Class.Name);
			}
			else if (Kind == CXCursor_Constructor || Kind == CXCursor_Destructor || Kind == CXCursor_CXXAccessSpecifier)
			{
				Diagnostics.Error(Location, "the macro has no declaration behind it");
			}
			else
			{
				// A forward declaration inside the member's own declaration.
				return;
			}
			Pending.reset();
			return;
		}
		if (bMember)
		{
			const bool bSecond =
				Kind == CXCursor_FieldDecl && !Class.Properties.empty() && LastMemberStart == GetStartOffset(Child);
			if (bSecond)
			{
				Diagnostics.Error(
					Class.Properties.back().Location, "one member a UPROPERTY(): declare '" + GetSpelling(Child) + "' by itself");
			}
			Class.PlainMembers.push_back(GetSpelling(Child));
		}
	}

	void FModuleReader::ReadConstructor(FClass& Class, CXCursor Child)
	{
		const CXType Type = clang_getCursorType(Child);
		const int Num = clang_getNumArgTypes(Type);
		const std::string First = Num > 0 ? GetSpelling(clang_getCanonicalType(clang_getArgType(Type, 0))) : std::string();
		const bool bCopy = clang_CXXConstructor_isCopyConstructor(Child) != 0;
		const bool bMove = clang_CXXConstructor_isMoveConstructor(Child) != 0;
		Class.bHasCopyConstructor = Class.bHasCopyConstructor || bCopy;
		Class.bHasMove = Class.bHasMove || bMove;
		if (bCopy || bMove)
		{
			return;
		}
		Class.bHasConstructor = true;
		Class.bHasInitializerConstructor =
			Class.bHasInitializerConstructor || First.find("FObjectInitializer") != std::string::npos;
		Class.bHasDefaultConstructor = Class.bHasDefaultConstructor || clang_CXXConstructor_isDefaultConstructor(Child) != 0;
	}

	void FModuleReader::ReadPropertyMember(FClass& Class, const FMark& Mark, CXCursor Child)
	{
		FProperty Property;
		FillDeclaration(Property, Mark, GetSpelling(Child));
		if (clang_getCursorKind(Child) != CXCursor_FieldDecl)
		{
			const bool bStatic = clang_getCursorKind(Child) == CXCursor_VarDecl;
			Diagnostics.Error(Property.Location, bStatic ? "a static member cannot be a UPROPERTY(): take the macro off"
														 : "UPROPERTY() stands ahead of a function: write UFUNCTION()");
			return;
		}
		Property.Location.Line = GetPlace(Child).Line;
		Property.Type = Types.Read(clang_getCursorType(Child));
		Property.Access = GetAccess(Child);
		Property.bBitField = clang_Cursor_isBitField(Child) != 0;
		Property.bEditorOnly = IsEditorOnly(*Mark.File, Mark.Line);
		LastMemberStart = GetStartOffset(Child);
		Class.Properties.push_back(std::move(Property));
	}

	void FModuleReader::ReadFunctionMember(FClass& Class, const FMark& Mark, CXCursor Child)
	{
		const CXCursorKind Kind = clang_getCursorKind(Child);
		if (Kind == CXCursor_FieldDecl || Kind == CXCursor_VarDecl)
		{
			Diagnostics.Error({Mark.File->GetPath(), Mark.Line}, "UFUNCTION() stands ahead of a member: write UPROPERTY()");
			return;
		}
		FFunction Function = ReadFunction(Mark, Child);
		Function.Access = GetAccess(Child);
		Function.bEditorOnly = IsEditorOnly(*Mark.File, Mark.Line);
		Class.Functions.push_back(std::move(Function));
	}

	void FModuleReader::LearnBases(CXCursor Cursor)
	{
		for (const CXCursor Child : GetChildren(Cursor))
		{
			if (clang_getCursorKind(Child) == CXCursor_CXXBaseSpecifier)
			{
				const CXCursor Base =
					clang_getCursorDefinition(clang_getTypeDeclaration(clang_getCanonicalType(clang_getCursorType(Child))));
				if (!clang_Cursor_isNull(Base) && !Module.KnownClasses.contains(GetSpelling(Base)) &&
					Types.IsReflectedClass(Base))
				{
					LearnBases(Base);
					Learn(Base);
				}
			}
		}
	}

	void FModuleReader::Learn(CXCursor Cursor)
	{
		FKnownClass Known;
		FClass Constructors;
		std::optional<FMark> Pending;
		for (const CXCursor Child : GetChildren(Cursor))
		{
			const CXCursorKind Kind = clang_getCursorKind(Child);
			if (const std::optional<FMark> Mark = GetMark(Child))
			{
				Pending = Mark;
				continue;
			}
			if (Kind == CXCursor_CXXBaseSpecifier)
			{
				const std::string Base =
					GetSpelling(clang_getTypeDeclaration(clang_getCanonicalType(clang_getCursorType(Child))));
				Known.Base = Known.Base.empty() && Module.KnownClasses.contains(Base) ? Base : Known.Base;
			}
			else if (Kind == CXCursor_FieldDecl)
			{
				if (Pending && Pending->Kind == EMark::Property)
				{
					Known.Properties.push_back(GetSpelling(Child));
				}
				Pending.reset();
			}
			else if (Kind == CXCursor_CXXMethod)
			{
				Known.DeclaredFunctions.push_back(GetSpelling(Child));
				if (Pending && Pending->Kind == EMark::Function)
				{
					Known.Functions.push_back(GetSpelling(Child));
				}
				Pending.reset();
			}
			else if (Kind == CXCursor_Constructor)
			{
				ReadConstructor(Constructors, Child);
			}
		}
		Known.bInitializerConstructor = !Constructors.bHasConstructor || Constructors.bHasInitializerConstructor;
		Module.KnownClasses[GetSpelling(Cursor)] = std::move(Known);
	}
} // namespace HeaderTool
