#include "CheckHelpers.h"
#include "Flags.h"

#include <algorithm>

namespace HeaderTool
{
	static bool IsInteger(ETypeKind Kind)
	{
		return Kind >= ETypeKind::Int8 && Kind <= ETypeKind::UInt64;
	}

	static bool IsObjectReference(const FType& Type)
	{
		return Type.Kind == ETypeKind::Object || Type.Kind == ETypeKind::ObjectPtr;
	}

	/** Set elements and map keys need a hash. */
	static std::string FindKeyComplaint(const FType& Type)
	{
		if (Type.Kind != ETypeKind::Set && Type.Kind != ETypeKind::Map)
		{
			return {};
		}
		const ETypeKind Key = Type.Arguments[0].Kind;
		const bool bUnhashable = Key == ETypeKind::Text || Key == ETypeKind::Delegate || Key == ETypeKind::Bool;
		return bUnhashable ? "'" + Type.Arguments[0].Written + "' cannot be the " +
								 (Type.Kind == ETypeKind::Set ? "element of a set" : "key of a map") + ": use FName or FString"
						   : "";
	}

	static void CheckType(const FCheckContext& Context, const FProperty& Property)
	{
		const FType& Type = Property.Type;
		if (Type.Kind == ETypeKind::Unsupported)
		{
			Context.Error(Property.Location, "'" + Property.Name + "': " + Type.Complaint);
			return;
		}
		if (Type.bReference)
		{
			Context.Error(Property.Location,
				"'" + Property.Name + "': a reference cannot be a UPROPERTY(): hold the value, or an object in TObjectPtr");
		}
		if (Type.bConst)
		{
			Context.Error(Property.Location,
				"'" + Property.Name +
					"': a UPROPERTY() cannot be const: take the const away, or VisibleAnywhere to keep users from editing");
		}
		if (Type.Kind == ETypeKind::PlainEnum && !Property.bBitField)
		{
			Context.Error(
				Property.Location, "'" + Property.Name + "': a plain enumeration is held in TEnumAsByte<" + Type.Target + ">");
		}
		if (Property.bBitField && Type.Kind != ETypeKind::Bool && Type.Kind != ETypeKind::UInt8 && Type.Kind != ETypeKind::UInt32)
		{
			Context.Error(Property.Location, "'" + Property.Name + "': a bit is declared as 'uint8 " + Property.Name + " : 1'");
		}
		if (const std::string Complaint = FindKeyComplaint(Type); !Complaint.empty())
		{
			Context.Error(Property.Location, "'" + Property.Name + "': " + Complaint);
		}
	}

	static void CheckBlueprint(const FCheckContext& Context, const FProperty& Property)
	{
		if (!IsBlueprintVisible(Property))
		{
			const FSpecifier* ExposeOnSpawn = Property.Specifiers.FindMeta("ExposeOnSpawn");
			if (ExposeOnSpawn)
			{
				Context.Error(
					ExposeOnSpawn->Location, "ExposeOnSpawn needs a property that graphs see: write BlueprintReadWrite");
			}
			return;
		}
		if (Property.Access == EAccess::Private && !Property.Specifiers.HasMeta("AllowPrivateAccess"))
		{
			Context.Error(Property.Location,
				"'" + Property.Name + "' is private: graphs see it only with meta=(AllowPrivateAccess=\"true\")");
		}
		if (Property.Type.bArray)
		{
			Context.Error(Property.Location, "'" + Property.Name + "': graphs have no C arrays: use TArray");
		}
		// A bit is a boolean to a graph, whatever integer holds it.
		const std::string Complaint = Property.bBitField ? std::string() : FindBlueprintComplaint(Context, Property.Type);
		if (!Complaint.empty())
		{
			Context.Error(Property.Location, "'" + Property.Name + "': " + Complaint);
		}
	}

	static void CheckContradictions(const FCheckContext& Context, const FProperty& Property)
	{
		static constexpr std::string_view EditSpecifiers[] = {"EditAnywhere", "EditDefaultsOnly", "EditInstanceOnly",
			"VisibleAnywhere", "VisibleDefaultsOnly", "VisibleInstanceOnly"};
		std::string First;
		for (const std::string_view Name : EditSpecifiers)
		{
			if (!Property.Specifiers.Has(Name))
			{
				continue;
			}
			if (!First.empty())
			{
				Context.Error(Property.Location, "'" + Property.Name + "': '" + First + "' and '" + std::string(Name) +
													 "' contradict each other: take one away");
			}
			First = Name;
		}
		if (Property.Specifiers.Has("BlueprintReadOnly") && Property.Specifiers.Has("BlueprintReadWrite"))
		{
			Context.Error(Property.Location,
				"'" + Property.Name + "': 'BlueprintReadOnly' and 'BlueprintReadWrite' contradict each other: take one away");
		}
	}

	static void CheckDelegateSpecifiers(const FCheckContext& Context, const FProperty& Property)
	{
		for (const std::string_view Name : {"BlueprintAssignable", "BlueprintCallable"})
		{
			if (Property.Specifiers.Has(Name) && Property.Type.Kind != ETypeKind::MulticastDelegate)
			{
				Context.Error(
					Property.Location, "'" + Property.Name + "': '" + std::string(Name) +
										   "' goes on dynamic multicast delegates only (DECLARE_DYNAMIC_MULTICAST_DELEGATE)");
			}
		}
	}

	static void CheckMetadata(const FCheckContext& Context, const FProperty& Property)
	{
		const FSpecifiers& Specifiers = Property.Specifiers;
		const FType& Type = Property.Type;
		if (Specifiers.HasMeta("InlineEditConditionToggle") && Type.Kind != ETypeKind::Bool && !Property.bBitField)
		{
			Context.Error(Property.Location, "'" + Property.Name + "': InlineEditConditionToggle goes on a bool");
		}
		if (Specifiers.HasMeta("Bitmask") && !IsInteger(Type.Kind))
		{
			Context.Error(Property.Location, "'" + Property.Name + "': Bitmask goes on an int32");
		}
		const std::string BitmaskEnum = Specifiers.GetMeta("BitmaskEnum");
		if (Specifiers.HasMeta("BitmaskEnum") && !BitmaskEnum.starts_with("/Script/"))
		{
			Context.Error(
				Property.Location, "'" + Property.Name + "': BitmaskEnum takes a full path: write BitmaskEnum=\"/Script/" +
									   Context.Module.Name + "." + (BitmaskEnum.empty() ? "EFlags" : BitmaskEnum) + "\"");
		}
		for (const std::string_view Key : {"BindWidget", "BindWidgetOptional", "BindWidgetAnim", "BindWidgetAnimOptional"})
		{
			if (!Specifiers.HasMeta(Key))
			{
				continue;
			}
			if (!IsObjectReference(Type))
			{
				Context.Error(Property.Location,
					"'" + Property.Name + "': " + std::string(Key) + " goes on an object pointer (TObjectPtr)");
			}
			if (Key.starts_with("BindWidgetAnim") && !Specifiers.Has("Transient"))
			{
				Context.Error(
					Property.Location, "'" + Property.Name + "': " + std::string(Key) + " needs the specifier Transient");
			}
		}
		const bool bHoldsObjects =
			IsObjectReference(Type) ||
			(!Type.Arguments.empty() && (IsObjectReference(Type.Arguments[0]) || IsObjectReference(Type.Arguments.back())));
		if (Specifiers.Has("Instanced") && !bHoldsObjects && Type.Kind != ETypeKind::Unsupported)
		{
			Context.Error(Property.Location, "'" + Property.Name + "': Instanced goes on object pointers");
		}
	}

	static void CheckAccessorNames(const FCheckContext& Context, const FClass& Class, const FProperty& Property)
	{
		for (const std::string_view Name : {"BlueprintGetter", "BlueprintSetter"})
		{
			const FSpecifier* Accessor = Property.Specifiers.Find(Name);
			if (!Accessor)
			{
				continue;
			}
			const std::string Function = Accessor->Value.value_or("");
			const bool bFound = std::any_of(Class.Functions.begin(), Class.Functions.end(),
				[&](const FFunction& Candidate) { return Candidate.Name == Function; });
			if (!bFound)
			{
				Context.Error(Accessor->Location, "'" + Property.Name + "': " + std::string(Name) + " names '" + Function +
													  "', which is no UFUNCTION() of " + Class.Name);
			}
		}
	}

	static void CheckName(const FCheckContext& Context, const FClass& Class, const FProperty& Property)
	{
		for (const FKnownClass* Base : Context.GetBases(Class))
		{
			if (std::find(Base->Properties.begin(), Base->Properties.end(), Property.Name) != Base->Properties.end())
			{
				Context.Error(Property.Location,
					"'" + Property.Name +
						"' hides the property of that name in a base class: rename it, or use the inherited one");
			}
		}
	}

	void CheckProperty(const FCheckContext& Context, const FHeader& Header, const FClass& Class, const FProperty& Property)
	{
		CheckSpecifiers(Context, EMacro::Property, Property.Specifiers);
		CheckConditionals(Context, *Header.File, Property.Location, "WITH_EDITORONLY_DATA", "WITH_EDITOR");
		CheckType(Context, Property);
		CheckBlueprint(Context, Property);
		CheckContradictions(Context, Property);
		CheckDelegateSpecifiers(Context, Property);
		CheckMetadata(Context, Property);
		CheckAccessorNames(Context, Class, Property);
		CheckName(Context, Class, Property);
	}
} // namespace HeaderTool
