#include "TypeReader.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace HeaderTool
{
	struct FScalar
	{
		CXTypeKind Clang;
		ETypeKind Kind;
	};

	static constexpr FScalar Scalars[] = {
		{CXType_Void, ETypeKind::Void},
		{CXType_Bool, ETypeKind::Bool},
		{CXType_SChar, ETypeKind::Int8},
		{CXType_Short, ETypeKind::Int16},
		{CXType_Int, ETypeKind::Int32},
		{CXType_Long, ETypeKind::Int64},
		{CXType_LongLong, ETypeKind::Int64},
		{CXType_UChar, ETypeKind::UInt8},
		{CXType_UShort, ETypeKind::UInt16},
		{CXType_UInt, ETypeKind::UInt32},
		{CXType_ULong, ETypeKind::UInt64},
		{CXType_ULongLong, ETypeKind::UInt64},
		{CXType_Float, ETypeKind::Float},
		{CXType_Double, ETypeKind::Double},
	};

	/** Templates that hold one object class. */
	struct FObjectTemplate
	{
		std::string_view Name;
		ETypeKind Kind;
	};

	static constexpr FObjectTemplate ObjectTemplates[] = {
		{"TObjectPtr", ETypeKind::ObjectPtr},
		{"TSubclassOf", ETypeKind::SubclassOf},
		{"TWeakObjectPtr", ETypeKind::WeakObject},
		{"TSoftObjectPtr", ETypeKind::SoftObject},
		{"TSoftClassPtr", ETypeKind::SoftClass},
		{"TScriptInterface", ETypeKind::Interface},
	};

	/** Types that people try, and what to write. */
	struct FRefusal
	{
		std::string_view Name;
		std::string_view Advice;
	};

	static constexpr FRefusal Refusals[] = {
		{"TSharedPtr", "a shared pointer cannot be reflected: take the macro off, or hold an object in TObjectPtr"},
		{"TSharedRef", "a shared reference cannot be reflected: take the macro off, or hold an object in TObjectPtr"},
		{"TWeakPtr", "TWeakPtr cannot be reflected: take the macro off, or use TWeakObjectPtr for an object"},
		{"TUniquePtr", "TUniquePtr cannot be reflected: take the macro off"},
		{"TFunction", "TFunction cannot be reflected: take the macro off, or use a dynamic delegate"},
		{"TFunctionRef", "TFunctionRef cannot be reflected: take the macro off, or use a dynamic delegate"},
		{"TOptional", "TOptional cannot be reflected here: use a bool and a value"},
		{"TPair", "TPair cannot be reflected: write a USTRUCT"},
		{"TTuple", "TTuple cannot be reflected: write a USTRUCT"},
		{"TAttribute", "TAttribute cannot be reflected: take the macro off"},
		{"TStrongObjectPtr", "TStrongObjectPtr cannot be reflected: use TObjectPtr, which keeps the object alive as a UPROPERTY"},
		{"TDelegate", "a native delegate cannot be reflected: declare it with DECLARE_DYNAMIC_DELEGATE, or take the macro off"},
		{"TMulticastDelegate", "a native multicast delegate cannot be reflected: declare it with "
							   "DECLARE_DYNAMIC_MULTICAST_DELEGATE, or take the macro off"},
		{"TStaticArray", "TStaticArray cannot be reflected: use TArray"},
		{"TArrayView", "TArrayView cannot be reflected: use TArray"},
	};

	bool HasObjectPrefix(const std::string& Name)
	{
		return Name.size() > 1 && (Name[0] == 'U' || Name[0] == 'A') && std::isupper(static_cast<unsigned char>(Name[1]));
	}

	void FTypeReader::AddBaseStructure(CXType Type)
	{
		BaseStructures.insert(GetSpelling(clang_getCanonicalType(Type)));
	}

	bool FTypeReader::IsReflectedClass(CXCursor Class)
	{
		const CXCursor Definition = clang_getCursorDefinition(Class);
		if (clang_Cursor_isNull(Definition))
		{
			return false;
		}
		const std::string Id = ToString(clang_getCursorUSR(Definition));
		const auto Known = ReflectedClasses.find(Id);
		if (Known != ReflectedClasses.end())
		{
			return Known->second;
		}
		// Both bodies, generated and intrinsic ones, declare one of these.
		bool bReflected = false;
		for (const CXCursor Child : GetChildren(Definition))
		{
			if (clang_getCursorKind(Child) == CXCursor_CXXMethod)
			{
				const std::string Name = GetSpelling(Child);
				bReflected = bReflected || Name == "StaticClass" || Name == "StaticStruct";
			}
		}
		ReflectedClasses.emplace(Id, bReflected);
		return bReflected;
	}

	FType FTypeReader::Read(CXType Type)
	{
		FType Result;
		Result.Written = GetSpelling(Type);
		CXType Canonical = clang_getCanonicalType(Type);
		if (Canonical.kind == CXType_RValueReference)
		{
			Result.Complaint = "rvalue references cannot be reflected: take the value or a const reference";
			return Result;
		}
		CXType Written = Type;
		if (Canonical.kind == CXType_LValueReference)
		{
			Result.bReference = true;
			Canonical = clang_getPointeeType(Canonical);
			Written = Type.kind == CXType_LValueReference ? clang_getPointeeType(Type) : Canonical;
		}
		if (Canonical.kind == CXType_ConstantArray)
		{
			Result.bArray = true;
			Canonical = clang_getArrayElementType(Canonical);
		}
		Result.bConst = clang_isConstQualifiedType(Canonical) != 0;
		Result.Cpp = GetUnqualifiedSpelling(Canonical);
		if (Canonical.kind == CXType_Pointer)
		{
			ReadPointer(Canonical, Result);
		}
		else if (Canonical.kind == CXType_Enum)
		{
			ReadEnum(Canonical, Result);
		}
		else if (Canonical.kind == CXType_Record)
		{
			ReadRecord(Written, Canonical, Result);
		}
		else
		{
			ReadScalar(Canonical, Result);
		}
		return Result;
	}

	void FTypeReader::ReadScalar(CXType Canonical, FType& Out)
	{
		const auto Found = std::find_if(
			std::begin(Scalars), std::end(Scalars), [&](const FScalar& Scalar) { return Scalar.Clang == Canonical.kind; });
		if (Found != std::end(Scalars))
		{
			Out.Kind = Found->Kind;
			return;
		}
		const bool bCharacter = Canonical.kind == CXType_Char_S || Canonical.kind == CXType_Char_U ||
								Canonical.kind == CXType_WChar || Canonical.kind == CXType_Char16 ||
								Canonical.kind == CXType_Char32;
		Out.Complaint =
			bCharacter
				? "characters cannot be reflected: use uint8, or FString for text"
				: "'" + Out.Written +
					  "' cannot be reflected: use a number, string, enumeration, USTRUCT, object pointer, dynamic delegate, "
					  "or TArray, TSet or TMap of them";
	}

	void FTypeReader::ReadPointer(CXType Canonical, FType& Out)
	{
		const CXType Pointee = clang_getPointeeType(Canonical);
		if (Pointee.kind != CXType_Record)
		{
			Out.Complaint = "'" + Out.Written + "' cannot be reflected: only objects are held by pointer";
			return;
		}
		const CXCursor Declaration = clang_getTypeDeclaration(Pointee);
		Out.Target = GetUnqualifiedSpelling(Pointee);
		Out.bIncompleteTarget = clang_Cursor_isNull(clang_getCursorDefinition(Declaration)) != 0;
		const bool bObject = HasObjectPrefix(Out.Target) && (Out.bIncompleteTarget || IsReflectedClass(Declaration));
		if (!bObject)
		{
			const bool bInterface =
				Out.Target.size() > 1 && Out.Target[0] == 'I' && std::isupper(static_cast<unsigned char>(Out.Target[1]));
			Out.Complaint =
				bInterface ? "an interface is held in TScriptInterface<" + Out.Target + ">, not by pointer"
						   : "'" + Out.Written +
								 "' cannot be reflected: a structure is held by value, and only classes with UCLASS() by pointer";
			return;
		}
		Out.Kind = Out.Target == "UClass" ? ETypeKind::Class : ETypeKind::Object;
	}

	void FTypeReader::ReadEnum(CXType Canonical, FType& Out)
	{
		const CXCursor Declaration = clang_getTypeDeclaration(Canonical);
		Out.Target = Out.Cpp;
		Out.EnumSize = static_cast<int>(clang_Type_getSizeOf(Canonical));
		if (!ReflectedEnums.contains(Out.Target))
		{
			Out.Complaint = "the enumeration " + Out.Target + " is not reflected: write UENUM() ahead of it";
			return;
		}
		Out.Kind = clang_EnumDecl_isScoped(Declaration) ? ETypeKind::EnumClass : ETypeKind::PlainEnum;
	}

	bool FTypeReader::DerivesFrom(CXCursor Class, std::string_view TemplateName)
	{
		if (GetSpelling(Class) == TemplateName)
		{
			return true;
		}
		CXCursor Body = clang_getCursorDefinition(Class);
		// An implicit instantiation shows its bases in the template.
		const CXCursor Template = clang_getSpecializedCursorTemplate(Class);
		if (!clang_Cursor_isNull(Template))
		{
			Body = Template;
		}
		if (clang_Cursor_isNull(Body))
		{
			return false;
		}
		for (const CXCursor Child : GetChildren(Body))
		{
			if (clang_getCursorKind(Child) != CXCursor_CXXBaseSpecifier)
			{
				continue;
			}
			const CXType Base = clang_getCursorType(Child);
			if (DerivesFrom(clang_getTypeDeclaration(Base), TemplateName) ||
				GetSpelling(Base).starts_with(std::string(TemplateName) + "<"))
			{
				return true;
			}
		}
		return false;
	}

	void FTypeReader::ReadRecord(CXType Written, CXType Canonical, FType& Out)
	{
		const CXCursor Declaration = clang_getTypeDeclaration(Canonical);
		const std::string Name = GetSpelling(Declaration);
		Out.Target = Out.Cpp;
		if (Out.Cpp == "FString" || Out.Cpp == "FName" || Out.Cpp == "FText")
		{
			Out.Kind = Out.Cpp == "FString" ? ETypeKind::String : Out.Cpp == "FName" ? ETypeKind::Name : ETypeKind::Text;
			return;
		}
		// Alias templates of the maths types have a template's name too, so structures come first.
		if (BaseStructures.contains(Out.Cpp) || (IsReflectedClass(Declaration) && !HasObjectPrefix(Name)))
		{
			Out.Kind = ETypeKind::Struct;
			return;
		}
		if (DerivesFrom(Declaration, "TScriptDelegate"))
		{
			Out.Kind = ETypeKind::Delegate;
			return;
		}
		if (DerivesFrom(Declaration, "TMulticastScriptDelegate"))
		{
			Out.Kind = ETypeKind::MulticastDelegate;
			return;
		}
		if (ReadTemplate(Written, Canonical, Name, Out))
		{
			return;
		}
		if (HasObjectPrefix(Name))
		{
			Out.Complaint =
				"an object is held by pointer: write TObjectPtr<" + Name + "> for a member, " + Name + "* for a parameter";
		}
		else if (Out.Cpp.starts_with("std::"))
		{
			Out.Complaint =
				"'" + Out.Written + "' cannot be reflected: use the engine's own types, such as FString, TArray, TMap";
		}
		else if (clang_Cursor_isNull(clang_getCursorDefinition(Declaration)) && clang_Type_getNumTemplateArguments(Canonical) < 1)
		{
			Out.Complaint = Name + " is only forward declared here: include its header";
		}
		else
		{
			Out.Complaint = Name + " is not reflected: write USTRUCT() and GENERATED_BODY() into it, or take the macro off";
		}
	}

	bool FTypeReader::ReadTemplate(CXType Written, CXType Canonical, const std::string& Name, FType& Out)
	{
		for (const FRefusal& Refusal : Refusals)
		{
			if (Refusal.Name == Name)
			{
				Out.Complaint = Refusal.Advice;
				return true;
			}
		}
		if (clang_Type_getNumTemplateArguments(Canonical) < 1)
		{
			return false;
		}
		const CXType Argument = clang_Type_getTemplateArgumentAsType(Canonical, 0);
		for (const FObjectTemplate& Template : ObjectTemplates)
		{
			if (Template.Name == Name)
			{
				ReadObjectTemplate(Template.Kind, Argument, Out);
				return true;
			}
		}
		if (Name == "TEnumAsByte")
		{
			const FType Inner = Read(Argument);
			Out.Target = Inner.Target;
			Out.EnumSize = 1;
			Out.Kind = Inner.Kind == ETypeKind::PlainEnum ? ETypeKind::EnumAsByte : ETypeKind::Unsupported;
			Out.Complaint =
				Inner.Kind == ETypeKind::EnumClass ? "an enum class is written directly, without TEnumAsByte" : Inner.Complaint;
			return true;
		}
		if (Name == "TArray" || Name == "TSet" || Name == "TMap")
		{
			const ETypeKind Kind = Name == "TArray" ? ETypeKind::Array : Name == "TSet" ? ETypeKind::Set : ETypeKind::Map;
			// Elements keep the names that the header gives them where its own words can be had.
			const int NumArguments = Kind == ETypeKind::Map ? 2 : 1;
			ReadContainer(
				Kind, clang_Type_getNumTemplateArguments(Written) >= NumArguments ? Written : Canonical, NumArguments, Out);
			return true;
		}
		return false;
	}

	void FTypeReader::ReadContainer(ETypeKind Kind, CXType Type, int NumArguments, FType& Out)
	{
		Out.Kind = Kind;
		for (int Index = 0; Index < NumArguments; ++Index)
		{
			FType Inner = Read(clang_Type_getTemplateArgumentAsType(Type, static_cast<unsigned>(Index)));
			const bool bContainer =
				Inner.Kind == ETypeKind::Array || Inner.Kind == ETypeKind::Set || Inner.Kind == ETypeKind::Map;
			if (bContainer)
			{
				Out.Kind = ETypeKind::Unsupported;
				Out.Complaint = "containers do not nest: wrap the inner container in a USTRUCT";
			}
			else if (Inner.Kind == ETypeKind::Unsupported)
			{
				Out.Kind = ETypeKind::Unsupported;
				Out.Complaint = Inner.Complaint;
			}
			else if (Inner.Kind == ETypeKind::PlainEnum)
			{
				Out.Kind = ETypeKind::Unsupported;
				Out.Complaint = "a plain enumeration is held in TEnumAsByte<" + Inner.Target + ">";
			}
			else if (Inner.Kind == ETypeKind::MulticastDelegate)
			{
				Out.Kind = ETypeKind::Unsupported;
				Out.Complaint = "a container cannot hold multicast delegates: wrap the delegate in a USTRUCT";
			}
			else if (Inner.bConst)
			{
				Out.Kind = ETypeKind::Unsupported;
				Out.Complaint = "the element of a container cannot be const";
			}
			Out.Arguments.push_back(std::move(Inner));
			if (Out.Kind == ETypeKind::Unsupported)
			{
				return;
			}
		}
	}

	void FTypeReader::ReadObjectTemplate(ETypeKind Kind, CXType Argument, FType& Out)
	{
		const CXCursor Declaration = clang_getTypeDeclaration(Argument);
		const std::string Name = GetSpelling(Declaration);
		Out.Target = GetUnqualifiedSpelling(clang_getCanonicalType(Argument));
		Out.bIncompleteTarget = clang_Cursor_isNull(clang_getCursorDefinition(Declaration)) != 0;
		const bool bInterface = Name.size() > 1 && Name[0] == 'I' && std::isupper(static_cast<unsigned char>(Name[1]));
		const bool bWanted =
			Kind == ETypeKind::Interface ? bInterface : HasObjectPrefix(Name) || (bInterface && Kind == ETypeKind::SubclassOf);
		if (!bWanted || (!Out.bIncompleteTarget && !IsReflectedClass(Declaration)))
		{
			Out.Complaint = Kind == ETypeKind::Interface ? "TScriptInterface takes the I class of an interface"
														 : "'" + Out.Written + "' takes a class with UCLASS()";
			return;
		}
		Out.Kind = Kind == ETypeKind::ObjectPtr && Out.Target == "UClass" ? ETypeKind::Class : Kind;
	}
} // namespace HeaderTool
