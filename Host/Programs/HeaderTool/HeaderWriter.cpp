#include "HeaderWriter.h"

#include "CodeText.h"
#include "FileSystem.h"

namespace HeaderTool
{
	namespace
	{
		/** A macro of several lines. */
		class FMacro
		{
		public:
			explicit FMacro(const std::string& Name)
				: Text("#define " + Name)
			{
			}

			void Line(const std::string& Content) { Text += " \\\n\t" + Content; }

			std::string Get() const { return Text + "\n"; }

		private:
			std::string Text;
		};
	} // namespace

	static std::string GetFileId(const FModule& Module, const FHeader& Header)
	{
		std::string Result = "Halvex_" + Module.Name + "_" + GetBaseName(Header.File->GetPath());
		for (char& Character : Result)
		{
			Character = std::isalnum(static_cast<unsigned char>(Character)) ? Character : '_';
		}
		return Result;
	}

	bool NeedsConstructor(const FClass& Class)
	{
		return !Class.bHasConstructor && (Class.Kind == EClassKind::Class || Class.Kind == EClassKind::InterfaceClass);
	}

	std::vector<const FFunction*> GetUndeclaredImplementations(const FClass& Class)
	{
		std::vector<const FFunction*> Result;
		for (const FFunction& Function : Class.Functions)
		{
			if (Function.IsNativeEvent() && !Class.HasMethod(Function.Name + "_Implementation"))
			{
				Result.push_back(&Function);
			}
		}
		return Result;
	}

	static std::string GetImplementationSignature(const FFunction& Function, bool bNamed)
	{
		return GetDeclaredType(Function.Result) + " " + Function.Name + "_Implementation(" + GetParameterList(Function, bNamed) +
			   ")" + (Function.bConst ? " const" : "");
	}

	static void WriteStructBody(FMacro& Macro, const FClass& Class)
	{
		Macro.Line("friend struct ::Host::TReflection<" + Class.Name + ">;");
		Macro.Line("static UScriptStruct* StaticStruct();");
		if (const FBase* Base = Class.GetReflectedBase())
		{
			Macro.Line("typedef " + Base->Name + " Super;");
		}
	}

	static void WriteClassBody(FMacro& Macro, const FModule& Module, const FClass& Class)
	{
		const FBase* Super = Class.GetReflectedBase();
		Macro.Line("private:");
		Macro.Line("friend struct ::Host::TReflection<" + Class.Name + ">;");
		if (!Class.bHasCopyConstructor)
		{
			Macro.Line(Class.Name + "(const " + Class.Name + "&) = delete;");
		}
		if (!Class.bHasCopyAssignment)
		{
			Macro.Line(Class.Name + "& operator=(const " + Class.Name + "&) = delete;");
		}
		Macro.Line("public:");
		Macro.Line("typedef " + (Super ? Super->Name : "UObject") + " Super;");
		Macro.Line("typedef " + Class.Name + " ThisClass;");
		Macro.Line("static UClass* StaticClass();");
		Macro.Line("static const TCHAR* StaticPackage() { return TEXT(\"/Script/" + Module.Name + "\"); }");
		Macro.Line("static void __DefaultConstructor(const FObjectInitializer& X);");
		if (NeedsConstructor(Class))
		{
			Macro.Line(Class.Name + "();");
			Macro.Line(Class.Name + "(const FObjectInitializer& ObjectInitializer);");
		}
		if (!Class.bHasDestructor)
		{
			Macro.Line("virtual ~" + Class.Name + "() override;");
		}
		bool bInterfaces = false;
		for (const FBase& Base : Class.Bases)
		{
			bInterfaces = bInterfaces || Base.bInterface;
		}
		if (bInterfaces)
		{
			Macro.Line("virtual UObject* _getUObject() const override { return const_cast<" + Class.Name + "*>(this); }");
		}
		for (const FFunction* Function : GetUndeclaredImplementations(Class))
		{
			Macro.Line("virtual " + GetImplementationSignature(*Function, false) + ";");
		}
		Macro.Line("private:");
	}

	static std::string GetExecuteDeclaration(const FFunction& Function)
	{
		const std::string Parameters = GetParameterList(Function, true);
		return "static " + GetDeclaredType(Function.Result) + " Execute_" + Function.Name + "(" +
			   (Function.bConst ? "const " : "") + "UObject* HostObject" + (Parameters.empty() ? "" : ", ") + Parameters + ");";
	}

	static void WriteInterfaceBody(FMacro& Macro, const FClass& Class)
	{
		const FBase* Base = nullptr;
		for (const FBase& Candidate : Class.Bases)
		{
			Base = Candidate.bInterface ? &Candidate : Base;
		}
		const std::string ObjectClass = "U" + Class.Name.substr(1);
		Macro.Line("friend struct ::Host::TReflection<" + ObjectClass + ">;");
		if (!Class.bHasDestructor)
		{
			Macro.Line("protected:");
			Macro.Line("virtual ~" + Class.Name + "() {}");
		}
		Macro.Line("public:");
		Macro.Line("typedef " + ObjectClass + " UClassType;");
		Macro.Line("typedef " + Class.Name + " ThisClass;");
		if (Base)
		{
			Macro.Line("typedef " + Base->Name + " Super;");
		}
		for (const FFunction& Function : Class.Functions)
		{
			if (Function.IsEvent())
			{
				Macro.Line(GetExecuteDeclaration(Function));
			}
		}
		for (const FFunction* Function : GetUndeclaredImplementations(Class))
		{
			const std::string Body = HasResult(*Function) ? "{ return " + GetStoredType(Function->Result) + "{}; }" : "{}";
			Macro.Line("virtual " + GetImplementationSignature(*Function, false) + " " + Body);
		}
		Macro.Line("virtual UObject* _getUObject() const { return nullptr; }");
		Macro.Line("private:");
	}

	static void WriteAccessors(const FHeader& Header, std::string& Out)
	{
		std::string Text;
		for (const FEnum& Enum : Header.Enums)
		{
			// An enumeration in a namespace cannot be declared ahead of it.
			if (Enum.Form == EEnumForm::EnumClass)
			{
				const std::string Underlying = Enum.bUInt8 ? " : uint8" : "";
				Text += Underlying.empty()
							? ""
							: "enum class " + Enum.Name + Underlying + ";\ntemplate<>\nUEnum* StaticEnum<" + Enum.Name + ">();\n";
			}
		}
		for (const FClass& Class : Header.Classes)
		{
			if (Class.Kind == EClassKind::Class || Class.Kind == EClassKind::InterfaceClass)
			{
				Text += "class " + Class.Name + ";\ntemplate<>\nUClass* StaticClass<" + Class.Name + ">();\n";
			}
		}
		Out += Text.empty() ? "" : Text + "\n";
	}

	std::string WriteGeneratedHeader(const FModule& Module, const FHeader& Header)
	{
		const std::string Id = GetFileId(Module, Header);
		std::string Result = "// Generated by HeaderTool from " + Header.IncludePath + ". Do not edit.\n";
		Result += "#pragma once\n\n#include \"UObject/ObjectMacros.h\"\n#include \"UObject/ReflectedTypeAccessors.h\"\n\n";
		WriteAccessors(Header, Result);
		for (const FClass& Class : Header.Classes)
		{
			FMacro Macro(Id + "_" + std::to_string(Class.BodyLine) + "_GENERATED_BODY");
			if (Class.Kind == EClassKind::Struct)
			{
				WriteStructBody(Macro, Class);
			}
			else if (Class.Kind == EClassKind::InterfaceBody)
			{
				WriteInterfaceBody(Macro, Class);
			}
			else
			{
				WriteClassBody(Macro, Module, Class);
			}
			Result += Macro.Get() + "\n";
		}
		Result += "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " + Id + "\n";
		return Result;
	}
} // namespace HeaderTool
