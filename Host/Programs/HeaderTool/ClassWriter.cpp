#include "CodeText.h"
#include "CodeWriter.h"
#include "Flags.h"
#include "HeaderWriter.h"

namespace HeaderTool
{
	static std::string MakePropertyRow(const FClass& Class, const FProperty& Property, const std::string& Metadata)
	{
		const std::string Member = Class.Name + "::" + Property.Name;
		if (Property.bBitField)
		{
			return "{" + MakeLiteral(Property.Name) + ", &Host::MakeProperty<bool>, 0, " + GetPropertyFlags(Property) + ", " +
				   Metadata + ", &SetBit_" + Property.Name + "},";
		}
		return "{" + MakeLiteral(Property.Name) + ", &Host::MakeProperty<decltype(" + Member + ")>, offsetof(" + Class.Name +
			   ", " + Property.Name + "), " + GetPropertyFlags(Property) + ", " + Metadata + "},";
	}

	void WriteProperties(FCode& Code, const FClass& Class)
	{
		std::vector<std::string> Rows;
		for (const FProperty& Property : Class.Properties)
		{
			if (Property.bBitField)
			{
				Code.Line("static void SetBit_" + Property.Name + "(void* Container) { static_cast<" + Class.Name +
						  "*>(Container)->" + Property.Name + " = true; }");
			}
			const std::string Metadata = WriteMetadata(Code, "Meta_" + Property.Name, MakePropertyMetadata(Property));
			Rows.push_back(MakePropertyRow(Class, Property, Metadata));
		}
		if (Rows.empty())
		{
			return;
		}
		Code.Open("static constexpr Host::FPropertyInfo Properties[] =");
		for (const std::string& Row : Rows)
		{
			Code.Line(Row);
		}
		Code.Close(";");
	}

	static std::string WriteFunctions(FCode& Code, const FClass& Class)
	{
		for (const FFunction& Function : Class.Functions)
		{
			WriteFunctionMembers(Code, Class, Function);
		}
		if (Class.Functions.empty())
		{
			return "{}";
		}
		Code.Open("static constexpr Host::FFunctionInfo Functions[] =");
		for (const FFunction& Function : Class.Functions)
		{
			Code.Line(MakeFunctionRow(Function));
		}
		Code.Close(";");
		return "Functions";
	}

	static std::string WriteInterfaces(FCode& Code, const FClass& Class)
	{
		std::vector<std::string> Rows;
		for (const FBase& Base : Class.Bases)
		{
			if (Base.bInterface)
			{
				Rows.push_back(
					"{&StaticClass<" + Base.Name + ">, &Host::GetInterfaceOffset<" + Class.Name + ", " + Base.Name + ">},");
			}
		}
		if (Rows.empty())
		{
			return "{}";
		}
		Code.Open("static constexpr Host::FInterfaceInfo Interfaces[] =");
		for (const std::string& Row : Rows)
		{
			Code.Line(Row);
		}
		Code.Close(";");
		return "Interfaces";
	}

	static std::string GetConfigName(const FClass& Class)
	{
		const FSpecifier* Config = Class.Specifiers.Find("Config");
		return Config && Config->Value ? MakeLiteral(*Config->Value) : "nullptr";
	}

	static std::string GetWithin(const FClass& Class)
	{
		const FSpecifier* Within = Class.Specifiers.Find("Within");
		return Within && Within->Value ? "&StaticClass<" + *Within->Value + ">" : "nullptr";
	}

	static void WriteClassInfo(FCode& Code, const FModule& Module, const FClass& Class, const std::string& Interfaces,
		const std::string& Functions, const std::string& Metadata)
	{
		const FBase* Super = Class.GetReflectedBase();
		Code.Open("static constexpr Host::FClassInfo Info =");
		Code.Line(MakeLiteral(GetScriptName(Class.Name)) + ",");
		Code.Line(MakeLiteral("/Script/" + Module.Name) + ",");
		Code.Line("&" + (Super ? Super->Name : std::string("UObject")) + "::StaticClass,");
		Code.Line(GetWithin(Class) + ",");
		Code.Line("sizeof(" + Class.Name + "),");
		Code.Line("alignof(" + Class.Name + "),");
		Code.Line(GetClassFlags(Class) + ",");
		Code.Line(GetConfigName(Class) + ",");
		Code.Line("&" + Class.Name + "::__DefaultConstructor,");
		Code.Line("&" + Class.Name + "::AddReferencedObjects,");
		Code.Line(Interfaces + ",");
		Code.Line((Class.Properties.empty() ? "{}" : "Properties") + std::string(","));
		Code.Line(Functions + ",");
		Code.Line(Metadata + ",");
		Code.Close(";");
	}

	static void WriteConstructors(FCode& Code, const FModule& Module, const FClass& Class)
	{
		const bool bTakesInitializer = NeedsConstructor(Class) || Class.bHasInitializerConstructor;
		Code.Open("void " + Class.Name + "::__DefaultConstructor(const FObjectInitializer& X)");
		Code.Line("::new (static_cast<void*>(X.GetObj())) " + Class.Name + (bTakesInitializer ? "(X);" : "();"));
		Code.Close();
		Code.Line();
		if (NeedsConstructor(Class))
		{
			const FBase* Super = Class.GetReflectedBase();
			const auto Known = Module.KnownClasses.find(Super ? Super->Name : "UObject");
			const bool bSuperTakesInitializer = Known == Module.KnownClasses.end() || Known->second.bInitializerConstructor;
			Code.Line(Class.Name + "::" + Class.Name + "() : " + Class.Name + "(FObjectInitializer::Get()) {}");
			Code.Line();
			Code.Line(Class.Name + "::" + Class.Name + "(const FObjectInitializer&" +
					  (bSuperTakesInitializer ? " ObjectInitializer) : Super(ObjectInitializer) {}" : ") : Super() {}"));
			Code.Line();
		}
		if (!Class.bHasDestructor)
		{
			Code.Line(Class.Name + "::~" + Class.Name + "() = default;");
			Code.Line();
		}
	}

	static void WriteClassAccessors(FCode& Code, const FClass& Class, const FClass* Body)
	{
		Code.Open("UClass* " + Class.Name + "::StaticClass()");
		Code.Line("static UClass* Class = nullptr;");
		Code.Line("return Class ? Class : Host::ConstructClass(Class, Host::TReflection<" + Class.Name + ">::Info);");
		Code.Close();
		Code.Line();
		Code.Line("template<>");
		Code.Open("UClass* StaticClass<" + Class.Name + ">()");
		Code.Line("return " + Class.Name + "::StaticClass();");
		Code.Close();
		Code.Line();
		if (Body)
		{
			Code.Line("template<>");
			Code.Open("UClass* StaticClass<" + Body->Name + ">()");
			Code.Line("return " + Class.Name + "::StaticClass();");
			Code.Close();
			Code.Line();
		}
	}

	void WriteClass(FCode& Code, const FModule& Module, const FClass& Class, const FClass* Body)
	{
		const FClass& Owner = Body ? *Body : Class;
		Code.Open("namespace Host");
		Code.Line("template<>");
		Code.Open("struct TReflection<" + Class.Name + ">");
		for (const FDelegate& Delegate : Owner.Delegates)
		{
			WriteDelegateSignature(Code, Module, Delegate, true);
		}
		WriteProperties(Code, Class);
		const std::string Functions = WriteFunctions(Code, Owner);
		const std::string Interfaces = WriteInterfaces(Code, Class);
		const std::string Metadata = WriteMetadata(Code, "Meta", MakeClassMetadata(Class));
		WriteClassInfo(Code, Module, Class, Interfaces, Functions, Metadata);
		Code.Close(";");
		Code.Close();
		Code.Line();
		WriteClassAccessors(Code, Class, Body);
		WriteConstructors(Code, Module, Class);
		for (const FDelegate& Delegate : Owner.Delegates)
		{
			WriteDelegateAccessor(Code, Delegate);
		}
		for (const FFunction& Function : Owner.Functions)
		{
			if (Function.IsEvent())
			{
				WriteEventBody(Code, Owner, Function);
				Code.Line();
			}
			if (Function.IsEvent() && Body)
			{
				WriteExecuteBody(Code, *Body, Function);
				Code.Line();
			}
		}
	}

	void WriteStruct(FCode& Code, const FModule& Module, const FClass& Struct)
	{
		Code.Open("namespace Host");
		Code.Line("template<>");
		Code.Open("struct TReflection<" + Struct.Name + ">");
		for (const FDelegate& Delegate : Struct.Delegates)
		{
			WriteDelegateSignature(Code, Module, Delegate, false);
		}
		WriteProperties(Code, Struct);
		const std::string Metadata = WriteMetadata(Code, "Meta", MakeClassMetadata(Struct));
		const FBase* Super = Struct.GetReflectedBase();
		Code.Open("static UScriptStruct* Get()");
		Code.Line("static UScriptStruct* Struct = nullptr;");
		Code.Line("static const Host::FStructInfo Info = {" + MakeLiteral(GetScriptName(Struct.Name)) + ", " +
				  MakeLiteral("/Script/" + Module.Name) + ", " + (Super ? "&" + Super->Name + "::StaticStruct" : "nullptr") +
				  ", Host::GetStructOps<" + Struct.Name + ">(), " + (Struct.Properties.empty() ? "{}" : "Properties") + ", " +
				  Metadata + "};");
		Code.Line("return Struct ? Struct : Host::ConstructStruct(Struct, Info);");
		Code.Close();
		Code.Close(";");
		Code.Close();
		Code.Line();
		Code.Open("UScriptStruct* " + Struct.Name + "::StaticStruct()");
		Code.Line("return Host::TReflection<" + Struct.Name + ">::Get();");
		Code.Close();
		Code.Line();
		Code.Line("template<>");
		Code.Open("UScriptStruct* StaticStruct<" + Struct.Name + ">()");
		Code.Line("return " + Struct.Name + "::StaticStruct();");
		Code.Close();
		Code.Line();
		for (const FDelegate& Delegate : Struct.Delegates)
		{
			WriteDelegateAccessor(Code, Delegate);
		}
	}

	void WriteEnum(FCode& Code, const FModule& Module, const FEnum& Enum)
	{
		static constexpr const char* Forms[] = {"Regular", "Namespaced", "EnumClass"};
		Code.Open("namespace");
		Code.Open("struct FEnumReflection_" + Enum.Name);
		std::vector<std::string> Rows;
		for (const FEnumerator& Enumerator : Enum.Enumerators)
		{
			const std::string Metadata = WriteMetadata(Code, "Meta_" + Enumerator.Name, MakeEnumeratorMetadata(Enumerator));
			Rows.push_back("{" + MakeLiteral(Enumerator.Name) + ", " + std::to_string(Enumerator.Value) + ", " + Metadata + "},");
		}
		if (!Rows.empty())
		{
			Code.Open("static constexpr Host::FEnumeratorInfo Enumerators[] =");
			for (const std::string& Row : Rows)
			{
				Code.Line(Row);
			}
			Code.Close(";");
		}
		const std::string Metadata = WriteMetadata(Code, "Meta_Enum", MakeEnumMetadata(Enum));
		const bool bFlags = Enum.Specifiers.HasMeta("Bitflags") || Enum.Specifiers.Has("Flags");
		Code.Line("static constexpr Host::FEnumInfo Info = {" + MakeLiteral(GetScriptName(Enum.Name)) + ", " +
				  MakeLiteral("/Script/" + Module.Name) + ", " + MakeLiteral(Enum.CppType) +
				  ", UEnum::ECppForm::" + Forms[static_cast<int>(Enum.Form)] + ", " + (bFlags ? "true" : "false") + ", " +
				  (Rows.empty() ? "{}" : "Enumerators") + ", " + Metadata + "};");
		Code.Close(";");
		Code.Close();
		Code.Line();
		Code.Line("template<>");
		Code.Open("UEnum* StaticEnum<" + Enum.CppType + ">()");
		Code.Line("static UEnum* Enum = nullptr;");
		Code.Line("return Enum ? Enum : Host::ConstructEnum(Enum, FEnumReflection_" + Enum.Name + "::Info);");
		Code.Close();
		Code.Line();
	}
} // namespace HeaderTool
