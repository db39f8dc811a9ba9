#include "CheckHelpers.h"
#include "CodeText.h"
#include "DefaultArgument.h"
#include "Flags.h"

#include <algorithm>

namespace HeaderTool
{
	static bool IsTextOrContainer(ETypeKind Kind)
	{
		return Kind == ETypeKind::String || Kind == ETypeKind::Text || Kind == ETypeKind::Array || Kind == ETypeKind::Set ||
			   Kind == ETypeKind::Map;
	}

	void CheckParameterType(const FCheckContext& Context, const FParameter& Parameter)
	{
		const FType& Type = Parameter.Type;
		const std::string Name = "'" + Parameter.Name + "': ";
		if (Type.Kind == ETypeKind::Unsupported)
		{
			const bool bObjectReference = Type.bReference && HasObjectPrefix(Type.Cpp);
			Context.Error(Parameter.Location,
				Name + (bObjectReference ? "an object is passed by pointer: write " + Type.Cpp + "*" : Type.Complaint));
		}
		else if (Type.Kind == ETypeKind::ObjectPtr)
		{
			Context.Error(Parameter.Location, Name + "TObjectPtr is for members: write " + Type.Target + "*");
		}
		else if (Type.bArray)
		{
			Context.Error(Parameter.Location, Name + "a C array cannot be a parameter: use TArray");
		}
		else if (Type.Kind == ETypeKind::PlainEnum && Type.bReference)
		{
			Context.Error(
				Parameter.Location, Name + "a plain enumeration is passed by reference as TEnumAsByte<" + Type.Target + ">&");
		}
		else if (Type.Kind == ETypeKind::MulticastDelegate)
		{
			Context.Error(
				Parameter.Location, Name + "a multicast delegate cannot be a parameter: use a dynamic single-cast delegate");
		}
	}

	static void CheckResult(const FCheckContext& Context, const FFunction& Function)
	{
		const FType& Result = Function.Result;
		if (Result.Kind == ETypeKind::Unsupported)
		{
			Context.Error(Function.Location, "the result of '" + Function.Name + "': " + Result.Complaint);
		}
		else if (Result.Kind == ETypeKind::ObjectPtr)
		{
			Context.Error(Function.Location,
				"the result of '" + Function.Name + "': TObjectPtr is for members: write " + Result.Target + "*");
		}
		else if (Result.Kind == ETypeKind::MulticastDelegate || Result.Kind == ETypeKind::Delegate)
		{
			Context.Error(Function.Location, "the result of '" + Function.Name + "' cannot be a delegate");
		}
	}

	static void CheckParameters(const FCheckContext& Context, const FClass& Class, const FFunction& Function)
	{
		const std::vector<const FKnownClass*> Bases = Context.GetBases(Class);
		const auto IsProperty = [&](const std::string& Name)
		{
			const auto HasName = [&](const std::vector<std::string>& Names)
			{
				return std::find(Names.begin(), Names.end(), Name) != Names.end();
			};
			return std::any_of(Class.Properties.begin(), Class.Properties.end(),
					   [&](const FProperty& Property) { return Property.Name == Name; }) ||
				   std::any_of(Bases.begin(), Bases.end(), [&](const FKnownClass* Base) { return HasName(Base->Properties); });
		};
		for (const FParameter& Parameter : Function.Parameters)
		{
			if (Parameter.Name.empty())
			{
				Context.Error(Parameter.Location, "a parameter of '" + Function.Name + "' has no name: name it");
				continue;
			}
			if (Parameter.Name == "ReturnValue")
			{
				Context.Error(Parameter.Location,
					"'ReturnValue' is the name of the result: rename the parameter of '" + Function.Name + "'");
			}
			if (!Function.bStatic && IsProperty(Parameter.Name))
			{
				Context.Error(Parameter.Location, "the parameter '" + Parameter.Name + "' of '" + Function.Name +
													  "' hides the property of that name: write 'In" + Parameter.Name + "'");
			}
			CheckParameterType(Context, Parameter);
			CheckSpecifiers(Context, EMacro::Parameter, Parameter.Specifiers);
			std::string Text;
			std::string Complaint;
			if (!Parameter.Default.empty() && IsBlueprintFunction(Function) &&
				!ConvertDefaultArgument(Parameter, Text, Complaint))
			{
				Context.Error(Parameter.Location, Complaint);
			}
		}
	}

	static void CheckBlueprint(const FCheckContext& Context, const FFunction& Function)
	{
		if (!IsBlueprintFunction(Function))
		{
			return;
		}
		for (const FParameter& Parameter : Function.Parameters)
		{
			if (const std::string Complaint = FindBlueprintComplaint(Context, Parameter.Type); !Complaint.empty())
			{
				Context.Error(Parameter.Location, "'" + Parameter.Name + "': " + Complaint);
			}
		}
		if (const std::string Complaint = FindBlueprintComplaint(Context, Function.Result); !Complaint.empty())
		{
			Context.Error(Function.Location, "the result of '" + Function.Name + "': " + Complaint);
		}
		const FSpecifier* Pure = Function.Specifiers.Find("BlueprintPure");
		if (Pure && IsPure(Function) && !HasOutputs(Function))
		{
			Context.Error(Function.Location,
				"'" + Function.Name + "' is BlueprintPure but has neither result nor output parameter: write BlueprintCallable");
		}
	}

	static void CheckEvent(const FCheckContext& Context, const FClass& Class, const FFunction& Function)
	{
		const std::string Name = "'" + Function.Name + "'";
		if (Function.IsNativeEvent() && Function.IsImplementableEvent())
		{
			Context.Error(
				Function.Location, Name + " is both BlueprintNativeEvent and BlueprintImplementableEvent: take one away");
		}
		if (Function.bHasBody)
		{
			Context.Error(Function.Location,
				Function.IsNativeEvent() ? Name + " is a native event, whose body is generated: write the default in 'virtual " +
											   GetDeclaredType(Function.Result) + " " + Function.Name + "_Implementation'"
										 : Name + " is an implementable event: declare it only, its body is generated");
		}
		if (Function.bVirtual)
		{
			Context.Error(Function.Location,
				Function.IsNativeEvent()
					? Name + " is a native event: declare it non-virtual; " + Function.Name + "_Implementation is the virtual one"
					: Name + " is an implementable event: it cannot be virtual");
		}
		if (Function.bStatic)
		{
			Context.Error(Function.Location, Name + " is an event: it cannot be static");
		}
		if (Function.IsImplementableEvent() && Function.Access == EAccess::Private)
		{
			Context.Error(
				Function.Location, Name + " is an implementable event: it cannot be private; make it protected or public");
		}
		if (Function.IsImplementableEvent() && Class.HasMethod(Function.Name + "_Implementation"))
		{
			Context.Error(Function.Location, Name + " has an _Implementation: write BlueprintNativeEvent");
		}
		if (Function.Result.bReference)
		{
			Context.Error(Function.Location, Name + " is an event: it must return by value");
		}
		for (const FParameter& Parameter : Function.Parameters)
		{
			if (IsTextOrContainer(Parameter.Type.Kind) && !Parameter.Type.bReference)
			{
				Context.Error(Parameter.Location, "'" + Parameter.Name +
													  "': events take strings, texts and containers as 'const " +
													  Parameter.Type.Written + "&'");
			}
		}
	}

	static void CheckPlace(const FCheckContext& Context, const FClass& Class, const FFunction& Function)
	{
		const std::string Name = "'" + Function.Name + "'";
		if (Function.bTemplate)
		{
			Context.Error(Function.Location, Name + " is a template: a template cannot be a UFUNCTION()");
		}
		if (!Function.bStatic && Context.DerivesFrom(Class, "UBlueprintFunctionLibrary"))
		{
			Context.Error(Function.Location, Name + " is a function of a function library: declare it static");
		}
		for (const FKnownClass* Base : Context.GetBases(Class))
		{
			if (std::find(Base->Functions.begin(), Base->Functions.end(), Function.Name) != Base->Functions.end())
			{
				Context.Error(Function.Location,
					Function.bOverride
						? Name + " overrides a UFUNCTION(): take the macro off"
						: Name + " is a UFUNCTION() of a base class already: override it without the macro, or rename it");
				break;
			}
		}
		const bool bSameAsProperty = std::any_of(Class.Properties.begin(), Class.Properties.end(),
			[&](const FProperty& Property) { return Property.Name == Function.Name; });
		if (bSameAsProperty)
		{
			Context.Error(Function.Location, Name + " has the name of a property: rename one of them");
		}
		if (Function.Specifiers.Has("CallInEditor") && (!Function.Parameters.empty() || HasResult(Function)))
		{
			Context.Error(Function.Location, Name + " is CallInEditor: it can have neither parameters nor result");
		}
		if (Function.Parameters.size() > 200)
		{
			Context.Error(Function.Location, Name + " has too many parameters: pass a USTRUCT");
		}
	}

	void CheckFunctions(const FCheckContext& Context, const FHeader& Header, const FClass& Class)
	{
		std::set<std::string> Names;
		for (const FFunction& Function : Class.Functions)
		{
			if (!Names.insert(Function.Name).second)
			{
				Context.Error(
					Function.Location, "'" + Function.Name + "' is overloaded: one UFUNCTION() a name; rename this one");
			}
			CheckSpecifiers(Context, EMacro::Function, Function.Specifiers);
			CheckConditionals(Context, *Header.File, Function.Location, "WITH_EDITOR", "WITH_EDITORONLY_DATA");
			CheckPlace(Context, Class, Function);
			CheckParameters(Context, Class, Function);
			CheckResult(Context, Function);
			CheckBlueprint(Context, Function);
			if (Function.IsEvent())
			{
				CheckEvent(Context, Class, Function);
			}
		}
	}
} // namespace HeaderTool
