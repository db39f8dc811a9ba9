#include "CheckHelpers.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{
	static bool HasPrefix(const std::string& Name, char Prefix)
	{
		return Name.size() > 1 && Name[0] == Prefix &&
			   (std::isupper(static_cast<unsigned char>(Name[1])) || std::isdigit(static_cast<unsigned char>(Name[1])));
	}

	static EMacro GetMacro(const FClass& Class)
	{
		return Class.Kind == EClassKind::Struct	 ? EMacro::Struct
			   : Class.Kind == EClassKind::Class ? EMacro::Class
												 : EMacro::Interface;
	}

	static void CheckBody(const FCheckContext& Context, const FClass& Class)
	{
		if (Class.BodyLine == 0)
		{
			Context.Error(Class.Location, Class.Name + " has no GENERATED_BODY(): write it as the first thing inside the braces");
		}
		else if (!Class.bBodyFirst)
		{
			Context.Error(
				{Class.Location.File, Class.BodyLine}, "GENERATED_BODY() must be the first thing inside of " + Class.Name);
		}
	}

	static void CheckBases(const FCheckContext& Context, const FClass& Class)
	{
		const auto NumObjects = std::count_if(
			Class.Bases.begin(), Class.Bases.end(), [](const FBase& Base) { return Base.bReflected && !Base.bInterface; });
		if (NumObjects == 0)
		{
			const bool bInterface = Class.Kind == EClassKind::InterfaceClass;
			Context.Error(Class.Location,
				Class.Name + " must derive from " + (bInterface ? "UInterface" : "UObject or a class derived from it"));
		}
		else if (NumObjects > 1)
		{
			Context.Error(Class.Location, Class.Name + " derives from several reflected classes: one is allowed, further bases "
													   "are I classes of interfaces or plain classes");
		}
		const FBase* Super = Class.GetReflectedBase();
		if (Super && !Class.Bases.empty() && Super != &Class.Bases[0])
		{
			Context.Error(Class.Location, "the first base of " + Class.Name + " must be " + Super->Name);
		}
	}

	static void CheckClassName(const FCheckContext& Context, const FClass& Class)
	{
		const FBase* Super = Class.GetReflectedBase();
		const bool bActor = Class.Name == "AActor" || (Super && HasPrefix(Super->Name, 'A'));
		const char Wanted = bActor ? 'A' : 'U';
		if (!HasPrefix(Class.Name, Wanted))
		{
			Context.Error(Class.Location,
				"the class " + Class.Name + " must be named with the prefix " + Wanted + (bActor ? ", as it is an actor" : ""));
		}
	}

	static void CheckStruct(const FCheckContext& Context, const FClass& Struct)
	{
		if (!HasPrefix(Struct.Name, 'F'))
		{
			Context.Error(Struct.Location, "the structure " + Struct.Name + " must be named with the prefix F");
		}
		for (const FFunction& Function : Struct.Functions)
		{
			Context.Error(
				Function.Location, "a USTRUCT() cannot have a UFUNCTION(): take the macro off, or write a function library");
		}
		if (Struct.bHasConstructor && !Struct.bHasDefaultConstructor)
		{
			Context.Error(Struct.Location, Struct.Name + " has no default constructor: write '" + Struct.Name + "() = default;'");
		}
		const bool bCopyLost =
			(Struct.bHasDestructor || Struct.bHasMove) && !(Struct.bHasCopyConstructor && Struct.bHasCopyAssignment);
		if (bCopyLost)
		{
			Context.Error(Struct.Location, Struct.Name + " declares a destructor or a move, so it must declare its copy "
														 "constructor and copy assignment too ('= default' will do)");
		}
		const auto NumReflected =
			std::count_if(Struct.Bases.begin(), Struct.Bases.end(), [](const FBase& Base) { return Base.bReflected; });
		if (NumReflected > 1)
		{
			Context.Error(Struct.Location, Struct.Name + " derives from several reflected structures: one is allowed");
		}
	}

	static const FClass* FindClass(const FHeader& Header, const std::string& Name)
	{
		const auto Found =
			std::find_if(Header.Classes.begin(), Header.Classes.end(), [&](const FClass& Class) { return Class.Name == Name; });
		return Found == Header.Classes.end() ? nullptr : &*Found;
	}

	static void CheckInterfaceClass(const FCheckContext& Context, const FHeader& Header, const FClass& Class)
	{
		if (!HasPrefix(Class.Name, 'U'))
		{
			Context.Error(Class.Location, "the class " + Class.Name + " behind UINTERFACE() must be named with the prefix U");
			return;
		}
		const std::string BodyName = "I" + Class.Name.substr(1);
		const FClass* Body = FindClass(Header, BodyName);
		if (!Body || Body->Kind != EClassKind::InterfaceBody)
		{
			Context.Error(
				Class.Location, "the interface " + Class.Name + " has no class " + BodyName + " with GENERATED_BODY() behind it");
		}
		if (!Class.Functions.empty() || !Class.Properties.empty())
		{
			Context.Error(Class.Location, Class.Name + " must be empty: the functions of the interface stand in " + BodyName);
		}
	}

	static void CheckInterfaceBody(const FCheckContext& Context, const FHeader& Header, const FClass& Class)
	{
		const std::string ObjectName = "U" + Class.Name.substr(1);
		const FClass* ObjectClass = FindClass(Header, ObjectName);
		if (!ObjectClass || ObjectClass->Kind != EClassKind::InterfaceClass)
		{
			Context.Error(
				Class.Location, "the interface " + Class.Name + " has no class " + ObjectName + " with UINTERFACE() ahead of it");
			return;
		}
		for (const FProperty& Property : Class.Properties)
		{
			Context.Error(
				Property.Location, "an interface has no UPROPERTY(): declare a function that yields '" + Property.Name + "'");
		}
		for (const FFunction& Function : Class.Functions)
		{
			const bool bCallableOnly =
				!Function.IsEvent() && (Function.Specifiers.Has("BlueprintCallable") || Function.Specifiers.Has("BlueprintPure"));
			if (bCallableOnly && !ObjectClass->Specifiers.HasMeta("CannotImplementInterfaceInBlueprint"))
			{
				Context.Error(Function.Location, "'" + Function.Name +
													 "' must be a BlueprintNativeEvent or BlueprintImplementableEvent, or the "
													 "interface UINTERFACE(meta=(CannotImplementInterfaceInBlueprint))");
			}
			if (Function.bStatic)
			{
				Context.Error(Function.Location, "a function of an interface cannot be static");
			}
		}
	}

	static void CheckContradictions(const FCheckContext& Context, const FClass& Class)
	{
		static constexpr std::pair<const char*, const char*> Pairs[] = {{"Blueprintable", "NotBlueprintable"},
			{"BlueprintType", "NotBlueprintType"}, {"EditInlineNew", "NotEditInlineNew"}, {"Transient", "NonTransient"}};
		for (const auto& [First, Second] : Pairs)
		{
			if (Class.Specifiers.Has(First) && Class.Specifiers.Has(Second))
			{
				Context.Error(
					Class.Location, std::string("'") + First + "' and '" + Second + "' contradict each other: take one away");
			}
		}
		const FSpecifier* Config = Class.Specifiers.Find("Config");
		if (Config && !Config->Value)
		{
			Context.Error(Config->Location, "Config needs the name of a configuration family: write Config=Game");
		}
		if (Class.Specifiers.Has("DefaultConfig") && !Config && Context.GetBases(Class).empty())
		{
			Context.Error(Class.Location, "DefaultConfig needs Config=<Name> too");
		}
	}

	void CheckClass(const FCheckContext& Context, const FHeader& Header, const FClass& Class)
	{
		CheckBody(Context, Class);
		CheckSpecifiers(Context, GetMacro(Class), Class.Specifiers);
		CheckContradictions(Context, Class);
		CheckConditionals(Context, *Header.File, Class.Location, "", "");
		switch (Class.Kind)
		{
		case EClassKind::Class:
			CheckClassName(Context, Class);
			CheckBases(Context, Class);
			break;
		case EClassKind::InterfaceClass:
			CheckInterfaceClass(Context, Header, Class);
			CheckBases(Context, Class);
			break;
		case EClassKind::InterfaceBody:
			CheckInterfaceBody(Context, Header, Class);
			break;
		case EClassKind::Struct:
			CheckStruct(Context, Class);
			break;
		}
		for (const FDelegate& Delegate : Class.Delegates)
		{
			CheckDelegate(Context, Delegate);
		}
		for (const FProperty& Property : Class.Properties)
		{
			CheckProperty(Context, Header, Class, Property);
		}
		if (Class.Kind != EClassKind::Struct)
		{
			CheckFunctions(Context, Header, Class);
		}
	}
} // namespace HeaderTool
