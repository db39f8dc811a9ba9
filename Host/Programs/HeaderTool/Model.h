#pragma once

#include "Diagnostics.h"
#include "Specifiers.h"

#include <cstdint>
#include <memory>

namespace HeaderTool
{
	enum class ETypeKind
	{
		/** Not reflectable; FType::Complaint says why. */
		Unsupported,
		Void,
		Bool,
		Int8,
		Int16,
		Int32,
		Int64,
		UInt8,
		UInt16,
		UInt32,
		UInt64,
		Float,
		Double,
		String,
		Name,
		Text,
		/** enum without class, written raw. */
		PlainEnum,
		/** TEnumAsByte. */
		EnumAsByte,
		EnumClass,
		/** T* */
		Object,
		/** TObjectPtr */
		ObjectPtr,
		/** UClass* */
		Class,
		SubclassOf,
		WeakObject,
		SoftObject,
		SoftClass,
		Interface,
		Struct,
		Array,
		Set,
		Map,
		Delegate,
		MulticastDelegate,
	};

	/** A type as reflection sees it. */
	struct FType
	{
		ETypeKind Kind = ETypeKind::Unsupported;
		/** Fully qualified, without reference and outer const. */
		std::string Cpp;
		/** The type as the header writes it, for messages. */
		std::string Written;
		/** The class, structure, enumeration or delegate that the type names. */
		std::string Target;
		/** Element of an array or set; key and value of a map. */
		std::vector<FType> Arguments;
		/** For unsupported types: what to write instead. */
		std::string Complaint;
		bool bConst = false;
		bool bReference = false;
		bool bArray = false;
		/** Target is forward declared only, so nothing more is known of it. */
		bool bIncompleteTarget = false;
		/** Width in bytes of the integer below an enumeration. */
		int EnumSize = 0;
	};

	enum class EAccess
	{
		Public,
		Protected,
		Private,
	};

	/** What all declarations have. */
	struct FDeclaration
	{
		std::string Name;
		FLocation Location;
		FSpecifiers Specifiers;
		/** Text of the comment above. */
		std::string Comment;
	};

	struct FProperty : FDeclaration
	{
		FType Type;
		EAccess Access = EAccess::Public;
		bool bBitField = false;
		bool bEditorOnly = false;
		/** Set only for members that are not reflected: their names count, nothing else. */
		bool bReflected = true;
	};

	struct FParameter
	{
		std::string Name;
		FType Type;
		FLocation Location;
		FSpecifiers Specifiers;
		/** Text of the default argument; empty when there is none. */
		std::string Default;
	};

	struct FFunction : FDeclaration
	{
		std::vector<FParameter> Parameters;
		FType Result;
		EAccess Access = EAccess::Public;
		bool bStatic = false;
		bool bConst = false;
		bool bVirtual = false;
		bool bOverride = false;
		bool bHasBody = false;
		bool bTemplate = false;
		bool bEditorOnly = false;

		bool IsNativeEvent() const { return Specifiers.Has("BlueprintNativeEvent"); }
		bool IsImplementableEvent() const { return Specifiers.Has("BlueprintImplementableEvent"); }
		bool IsEvent() const { return IsNativeEvent() || IsImplementableEvent(); }
	};

	struct FDelegate : FDeclaration
	{
		std::vector<FParameter> Parameters;
		FType Result;
		bool bMulticast = false;
		EAccess Access = EAccess::Public;
		/** The class, structure or I half that the declaration stands in; empty at file scope. */
		std::string OuterClass;
		/** Name with the outer class. */
		std::string QualifiedName;
		/** The parameter types could be told. */
		bool bTypesKnown = true;
	};

	struct FEnumerator : FDeclaration
	{
		int64_t Value = 0;
	};

	enum class EEnumForm
	{
		Regular,
		Namespaced,
		EnumClass,
	};

	struct FEnum : FDeclaration
	{
		EEnumForm Form = EEnumForm::Regular;
		/** "EMode" or "EMode::Type". */
		std::string CppType;
		int Size = 4;
		bool bUInt8 = false;
		std::vector<FEnumerator> Enumerators;
	};

	/** A base of a class as written. */
	struct FBase
	{
		std::string Name;
		bool bReflected = false;
		bool bInterface = false;
		FLocation Location;
	};

	enum class EClassKind
	{
		Class,
		/** U half of an interface. */
		InterfaceClass,
		/** I half of an interface. */
		InterfaceBody,
		Struct,
	};

	/** A class, a structure, or one half of an interface. */
	struct FClass : FDeclaration
	{
		EClassKind Kind = EClassKind::Class;
		/** Line of GENERATED_BODY(); 0 when it is missing. */
		unsigned BodyLine = 0;
		bool bBodyFirst = true;
		std::vector<FBase> Bases;
		std::vector<FProperty> Properties;
		std::vector<FFunction> Functions;
		std::vector<FDelegate> Delegates;
		/** Names of all member functions, reflected or not. */
		std::vector<std::string> MethodNames;
		/** Names of members that carry no UPROPERTY. */
		std::vector<std::string> PlainMembers;
		bool bHasConstructor = false;
		bool bHasInitializerConstructor = false;
		bool bHasDefaultConstructor = false;
		bool bHasDestructor = false;
		bool bHasMove = false;
		bool bHasCopyConstructor = false;
		bool bHasCopyAssignment = false;
		bool bHasExportMacro = false;
		/** Nested in a namespace or class, or a template. */
		std::string MisplacedWhere;

		bool HasMethod(const std::string& Method) const;
		/** The reflected class that this one derives from; null when there is none. */
		const FBase* GetReflectedBase() const;
	};

	/** What one header declares, in order. */
	struct FHeader
	{
		std::shared_ptr<FSourceFile> File;
		/** Path by which it is included. */
		std::string IncludePath;
		std::vector<FEnum> Enums;
		std::vector<FDelegate> Delegates;
		std::vector<FClass> Classes;
	};

	/** The class that carries the reflection: for the I half of an interface, its U half. */
	std::string GetReflectedClass(const std::string& ClassName);

	/** Script name: without the prefix. */
	std::string GetScriptName(const std::string& CppName);

	/** A class or structure of a lower module or of this one, as far as derived classes must know it. */
	struct FKnownClass
	{
		std::string Base;
		std::vector<std::string> Properties;
		std::vector<std::string> Functions;
		std::vector<std::string> DeclaredFunctions;
		bool bInitializerConstructor = true;
	};
} // namespace HeaderTool
