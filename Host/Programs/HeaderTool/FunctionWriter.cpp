#include "CodeText.h"
#include "CodeWriter.h"
#include "Flags.h"

namespace HeaderTool
{
	static std::string GetParmsName(const FFunction& Function)
	{
		return "FParms_" + Function.Name;
	}

	static bool HasParms(const FFunction& Function)
	{
		return HasResult(Function) || !Function.Parameters.empty();
	}

	static void WriteParms(FCode& Code, const FFunction& Function)
	{
		Code.Open("struct " + GetParmsName(Function));
		for (const FParameter& Parameter : Function.Parameters)
		{
			Code.Line(GetStoredType(Parameter.Type) + " " + Parameter.Name + "{};");
		}
		if (HasResult(Function))
		{
			Code.Line(GetStoredType(Function.Result) + " ReturnValue{};");
		}
		Code.Close(";");
	}

	static std::string MakeParameterRow(
		const std::string& Parms, const std::string& Name, const std::string& Flags, const std::string& Metadata)
	{
		return "{" + MakeLiteral(Name) + ", &Host::MakeProperty<decltype(" + Parms + "::" + Name + ")>, offsetof(" + Parms +
			   ", " + Name + "), " + Flags + ", " + Metadata + "},";
	}

	static void WriteParameterTable(FCode& Code, const FFunction& Function)
	{
		const std::string Parms = GetParmsName(Function);
		std::vector<std::string> Rows;
		for (const FParameter& Parameter : Function.Parameters)
		{
			const std::string Metadata =
				WriteMetadata(Code, "Meta_" + Function.Name + "_" + Parameter.Name, MakeParameterMetadata(Parameter));
			Rows.push_back(MakeParameterRow(Parms, Parameter.Name, GetParameterFlags(Parameter), Metadata));
		}
		if (HasResult(Function))
		{
			Rows.push_back(MakeParameterRow(Parms, "ReturnValue", GetResultFlags(Function.Result), "{}"));
		}
		Code.Open("static constexpr Host::FPropertyInfo Parameters_" + Function.Name + "[] =");
		for (const std::string& Row : Rows)
		{
			Code.Line(Row);
		}
		Code.Close(";");
	}

	/** What the call by reflection calls. */
	static std::string MakeCallee(const FClass& Class, const FFunction& Function)
	{
		const std::string Name = Function.Name + (Function.IsNativeEvent() ? "_Implementation" : "");
		if (Function.bStatic)
		{
			return Class.Name + "::" + Name;
		}
		if (Class.Kind == EClassKind::InterfaceBody)
		{
			return "static_cast<" + Class.Name + "*>(Context->GetNativeInterfaceAddress(" + GetReflectedClass(Class.Name) +
				   "::StaticClass()))->" + Name;
		}
		return "static_cast<" + Class.Name + "*>(Context)->" + Name;
	}

	static void WriteNativeCall(FCode& Code, const FClass& Class, const FFunction& Function)
	{
		const std::string Context = Function.bStatic ? "UObject*" : "UObject* Context";
		Code.Open("static void Exec_" + Function.Name + "(" + Context + ", " + (HasParms(Function) ? "void* Data)" : "void*)"));
		if (HasParms(Function))
		{
			Code.Line(GetParmsName(Function) + "& Parms = *static_cast<" + GetParmsName(Function) + "*>(Data);");
		}
		const std::string Call = MakeCallee(Class, Function) + "(" + GetArgumentList(Function, "Parms.") + ");";
		Code.Line((HasResult(Function) ? "Parms.ReturnValue = " : "") + Call);
		Code.Close();
	}

	void WriteFunctionMembers(FCode& Code, const FClass& Class, const FFunction& Function)
	{
		if (HasParms(Function))
		{
			WriteParms(Code, Function);
			WriteParameterTable(Code, Function);
		}
		if (!Function.IsImplementableEvent())
		{
			WriteNativeCall(Code, Class, Function);
		}
		WriteMetadata(Code, "Meta_" + Function.Name, MakeFunctionMetadata(Function));
	}

	std::string MakeFunctionRow(const FFunction& Function)
	{
		const std::string Native = Function.IsImplementableEvent() ? "nullptr" : "&Exec_" + Function.Name;
		const std::string Parms = GetParmsName(Function);
		const std::string Layout =
			HasParms(Function) ? "sizeof(" + Parms + "), alignof(" + Parms + "), Parameters_" + Function.Name : "0, 1, {}";
		const std::string Metadata = MakeFunctionMetadata(Function).empty() ? "{}" : "Meta_" + Function.Name;
		return "{" + MakeLiteral(Function.Name) + ", " + GetFunctionFlags(Function) + ", " + Native + ", " + Layout + ", " +
			   Metadata + "},";
	}

	/** Fills the parameters, calls the script, copies the outputs. */
	static void WriteScriptCall(FCode& Code, const FClass& Class, const FFunction& Function, const std::string& Object)
	{
		if (!HasParms(Function))
		{
			Code.Line(Object + "->ProcessEvent(HostScript, nullptr);");
			return;
		}
		Code.Line("Host::TReflection<" + GetReflectedClass(Class.Name) + ">::" + GetParmsName(Function) + " HostParms;");
		for (const FParameter& Parameter : Function.Parameters)
		{
			Code.Line("HostParms." + Parameter.Name + " = " + Parameter.Name + ";");
		}
		Code.Line(Object + "->ProcessEvent(HostScript, &HostParms);");
		for (const FParameter& Parameter : Function.Parameters)
		{
			if (IsOutput(Parameter))
			{
				Code.Line(Parameter.Name + " = HostParms." + Parameter.Name + ";");
			}
		}
		if (HasResult(Function))
		{
			Code.Line("return HostParms.ReturnValue;");
		}
	}

	static void WriteDefaultReturn(FCode& Code, const FFunction& Function)
	{
		if (HasResult(Function))
		{
			// Also right for a pointer, whose type cannot stand before braces.
			Code.Line("return {};");
		}
	}

	static std::string MakeSignature(const FClass& Class, const FFunction& Function)
	{
		return GetDeclaredType(Function.Result) + " " + Class.Name + "::" + Function.Name + "(" +
			   GetParameterList(Function, true) + ")" + (Function.bConst ? " const" : "");
	}

	static std::string MakeUnnamedSignature(const FClass& Class, const FFunction& Function)
	{
		return GetDeclaredType(Function.Result) + " " + Class.Name + "::" + Function.Name + "(" +
			   GetParameterList(Function, false) + ")" + (Function.bConst ? " const" : "");
	}

	void WriteEventBody(FCode& Code, const FClass& Class, const FFunction& Function)
	{
		if (Class.Kind == EClassKind::InterfaceBody)
		{
			Code.Open(MakeUnnamedSignature(Class, Function));
			Code.Line("checkf(false, TEXT(\"Events of interfaces are not called directly: call " + Class.Name + "::Execute_" +
					  Function.Name + "\"));");
			WriteDefaultReturn(Code, Function);
			Code.Close();
			return;
		}
		Code.Open(MakeSignature(Class, Function));
		Code.Line("static const FName HostName(" + MakeLiteral(Function.Name) + ");");
		Code.Open("if (UFunction* HostScript = Host::FindScriptFunction(this, HostName))");
		const std::string Object = Function.bConst ? "const_cast<" + Class.Name + "*>(this)" : "this";
		WriteScriptCall(Code, Class, Function, Object);
		if (!HasResult(Function) && Function.IsNativeEvent())
		{
			Code.Line("return;");
		}
		Code.Close();
		if (Function.IsNativeEvent())
		{
			Code.Line((HasResult(Function) ? "return " : "") + Function.Name + "_Implementation(" +
					  GetArgumentList(Function, "") + ");");
		}
		else
		{
			WriteDefaultReturn(Code, Function);
		}
		Code.Close();
	}

	void WriteExecuteBody(FCode& Code, const FClass& Class, const FFunction& Function)
	{
		const std::string Parameters = GetParameterList(Function, true);
		Code.Open(GetDeclaredType(Function.Result) + " " + Class.Name + "::Execute_" + Function.Name + "(" +
				  (Function.bConst ? "const " : "") + "UObject* HostObject" + (Parameters.empty() ? "" : ", ") + Parameters +
				  ")");
		const std::string ObjectClass = GetReflectedClass(Class.Name);
		Code.Line("checkf(HostObject && HostObject->GetClass()->ImplementsInterface(" + ObjectClass +
				  "::StaticClass()), TEXT(\"The object does not implement " + ObjectClass + "\"));");
		Code.Line("static const FName HostName(" + MakeLiteral(Function.Name) + ");");
		Code.Open("if (UFunction* HostScript = Host::FindScriptFunction(HostObject, HostName))");
		WriteScriptCall(Code, Class, Function, Function.bConst ? "const_cast<UObject*>(HostObject)" : "HostObject");
		if (!HasResult(Function) && Function.IsNativeEvent())
		{
			Code.Line("return;");
		}
		Code.Close();
		if (Function.IsNativeEvent())
		{
			const std::string Native = (Function.bConst ? "const " : "") + Class.Name + "* HostNative = static_cast<" +
									   (Function.bConst ? "const " : "") + Class.Name + "*>";
			Code.Open("if (" + Native + "(HostObject->GetNativeInterfaceAddress(" + ObjectClass + "::StaticClass())))");
			Code.Line((HasResult(Function) ? "return " : "") + std::string("HostNative->") + Function.Name + "_Implementation(" +
					  GetArgumentList(Function, "") + ");");
			Code.Close();
		}
		WriteDefaultReturn(Code, Function);
		Code.Close();
	}

	/** A delegate's signature is a function in all but its name and class. */
	static FFunction MakeSignatureFunction(const FDelegate& Delegate)
	{
		FFunction Function;
		Function.Name = Delegate.Name;
		Function.Parameters = Delegate.Parameters;
		Function.Result = Delegate.Result;
		return Function;
	}

	void WriteDelegateSignature(FCode& Code, const FModule& Module, const FDelegate& Delegate, bool bOuterIsClass)
	{
		const FFunction Function = MakeSignatureFunction(Delegate);
		const std::string Parms = GetParmsName(Function);
		Code.Open("struct FSignature_" + Delegate.Name);
		if (HasParms(Function))
		{
			WriteParms(Code, Function);
			WriteParameterTable(Code, Function);
		}
		const std::string Metadata = WriteMetadata(Code, "Meta", MakeDelegateMetadata(Delegate));
		const std::string Layout =
			HasParms(Function) ? "sizeof(" + Parms + "), alignof(" + Parms + "), Parameters_" + Function.Name : "0, 1, {}";
		Code.Open("static constexpr Host::FSignatureInfo Info =");
		Code.Line("{" + MakeLiteral(GetScriptName(Delegate.Name) + "__DelegateSignature") + ", " + GetDelegateFlags(Delegate) +
				  ", nullptr, " + Layout + ", " + Metadata + "},");
		Code.Line(MakeLiteral("/Script/" + Module.Name) + ",");
		Code.Line(bOuterIsClass ? "&" + GetReflectedClass(Delegate.OuterClass) + "::StaticClass," : "nullptr,");
		Code.Close(";");
		Code.Close(";");
	}

	void WriteDelegateAccessor(FCode& Code, const FDelegate& Delegate)
	{
		const std::string Scope =
			Delegate.OuterClass.empty() ? "" : "Host::TReflection<" + GetReflectedClass(Delegate.OuterClass) + ">::";
		Code.Line("template<>");
		Code.Open("UFunction* Host::StaticSignature<" + Delegate.QualifiedName + ">()");
		Code.Line("static UFunction* Signature = nullptr;");
		Code.Line("return Signature ? Signature : Host::ConstructSignature(Signature, " + Scope + "FSignature_" + Delegate.Name +
				  "::Info);");
		Code.Close();
		Code.Line();
	}
} // namespace HeaderTool
