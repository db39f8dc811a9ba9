#include "Metadata.h"

#include "DefaultArgument.h"

#include <algorithm>

namespace HeaderTool
{
	static bool Has(const FMetadata& Metadata, std::string_view Key)
	{
		return std::any_of(Metadata.begin(), Metadata.end(), [&](const auto& Pair) { return EqualsIgnoreCase(Pair.first, Key); });
	}

	static void Add(FMetadata& Metadata, const std::string& Key, const std::string& Value)
	{
		if (!Has(Metadata, Key))
		{
			Metadata.emplace_back(Key, Value);
		}
	}

	/** Specifiers whose value is metadata of the same name. */
	static void AddSpecifier(
		FMetadata& Metadata, const FSpecifiers& Specifiers, std::string_view Key, std::string_view MetaKey = {})
	{
		if (const FSpecifier* Specifier = Specifiers.Find(Key))
		{
			Add(Metadata, std::string(MetaKey.empty() ? Key : MetaKey), GetValueText(*Specifier));
		}
	}

	static void AddCommon(FMetadata& Metadata, const FDeclaration& Declaration)
	{
		for (const FSpecifier& Entry : Declaration.Specifiers.Meta)
		{
			Add(Metadata, Entry.Key, GetValueText(Entry));
		}
		if (!Declaration.Comment.empty())
		{
			Add(Metadata, "ToolTip", Declaration.Comment);
		}
	}

	FMetadata MakeClassMetadata(const FClass& Class)
	{
		FMetadata Result;
		const FSpecifiers& Specifiers = Class.Specifiers;
		if (Specifiers.Has("BlueprintType") || Specifiers.Has("Blueprintable"))
		{
			Add(Result, "BlueprintType", "true");
		}
		if (Specifiers.Has("NotBlueprintType"))
		{
			Add(Result, "NotBlueprintType", "true");
		}
		if (Specifiers.Has("Blueprintable") || Specifiers.Has("NotBlueprintable"))
		{
			Add(Result, "IsBlueprintBase", Specifiers.Has("Blueprintable") ? "true" : "false");
		}
		static constexpr std::string_view Lists[] = {"HideCategories", "ShowCategories", "AutoExpandCategories",
			"AutoCollapseCategories", "HideFunctions", "ShowFunctions", "PrioritizeCategories"};
		for (const std::string_view List : Lists)
		{
			AddSpecifier(Result, Specifiers, List);
		}
		AddSpecifier(Result, Specifiers, "ClassGroup", "ClassGroupNames");
		AddSpecifier(Result, Specifiers, "BlueprintInternalUseOnly");
		AddCommon(Result, Class);
		return Result;
	}

	FMetadata MakePropertyMetadata(const FProperty& Property)
	{
		FMetadata Result;
		static constexpr std::string_view Values[] = {
			"Category", "BlueprintGetter", "BlueprintSetter", "Getter", "Setter", "FieldNotify"};
		for (const std::string_view Value : Values)
		{
			AddSpecifier(Result, Property.Specifiers, Value);
		}
		if (Property.Specifiers.Has("Instanced"))
		{
			Add(Result, "EditInline", "true");
		}
		AddCommon(Result, Property);
		return Result;
	}

	FMetadata MakeFunctionMetadata(const FFunction& Function)
	{
		FMetadata Result;
		static constexpr std::string_view Values[] = {
			"Category", "CallInEditor", "BlueprintInternalUseOnly", "BlueprintGetter", "BlueprintSetter", "FieldNotify"};
		for (const std::string_view Value : Values)
		{
			AddSpecifier(Result, Function.Specifiers, Value);
		}
		for (const FParameter& Parameter : Function.Parameters)
		{
			std::string Text;
			std::string Complaint;
			if (!Parameter.Default.empty() && ConvertDefaultArgument(Parameter, Text, Complaint))
			{
				Add(Result, "CPP_Default_" + Parameter.Name, Text);
			}
		}
		AddCommon(Result, Function);
		return Result;
	}

	FMetadata MakeParameterMetadata(const FParameter& Parameter)
	{
		FMetadata Result;
		AddSpecifier(Result, Parameter.Specifiers, "DisplayName");
		AddSpecifier(Result, Parameter.Specifiers, "Category");
		for (const FSpecifier& Entry : Parameter.Specifiers.Meta)
		{
			Add(Result, Entry.Key, GetValueText(Entry));
		}
		return Result;
	}

	FMetadata MakeDelegateMetadata(const FDelegate& Delegate)
	{
		FMetadata Result;
		AddSpecifier(Result, Delegate.Specifiers, "Category");
		AddCommon(Result, Delegate);
		return Result;
	}

	FMetadata MakeEnumMetadata(const FEnum& Enum)
	{
		FMetadata Result;
		if (Enum.Specifiers.Has("BlueprintType"))
		{
			Add(Result, "BlueprintType", "true");
		}
		AddCommon(Result, Enum);
		return Result;
	}

	FMetadata MakeEnumeratorMetadata(const FEnumerator& Enumerator)
	{
		FMetadata Result;
		AddCommon(Result, Enumerator);
		return Result;
	}
} // namespace HeaderTool
