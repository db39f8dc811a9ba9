#include "Flags.h"

#include "CodeText.h"

#include <algorithm>

namespace HeaderTool
{
	namespace
	{
		struct FFlag
		{
			std::string_view Specifier;
			std::string_view Flags;
		};

		/** Names joined by " | ". */
		class FFlagList
		{
		public:
			void Add(std::string_view Flag) { Text += (Text.empty() ? "" : " | ") + std::string(Flag); }

			void AddIf(bool bCondition, std::string_view Flag)
			{
				if (bCondition)
				{
					Add(Flag);
				}
			}

			template<size_t Count>
			void AddSpecifiers(const FSpecifiers& Specifiers, const FFlag (&Table)[Count])
			{
				for (const FFlag& Entry : Table)
				{
					AddIf(Specifiers.Has(Entry.Specifier), Entry.Flags);
				}
			}

			std::string Get(std::string_view None) const { return Text.empty() ? std::string(None) : Text; }

		private:
			std::string Text;
		};
	} // namespace

	static constexpr FFlag ClassFlags[] = {
		{"Abstract", "CLASS_Abstract"},
		{"DefaultConfig", "CLASS_DefaultConfig"},
		{"ConfigDoNotCheckDefaults", "CLASS_ConfigDoNotCheckDefaults"},
		{"Transient", "CLASS_Transient"},
		{"NotPlaceable", "CLASS_NotPlaceable"},
		{"PerObjectConfig", "CLASS_PerObjectConfig"},
		{"EditInlineNew", "CLASS_EditInlineNew"},
		{"CollapseCategories", "CLASS_CollapseCategories"},
		{"Const", "CLASS_Const"},
		{"MinimalAPI", "CLASS_MinimalAPI"},
		{"Deprecated", "CLASS_Deprecated"},
		{"HideDropdown", "CLASS_HideDropDown"},
		{"GlobalUserConfig", "CLASS_GlobalUserConfig"},
		{"ProjectUserConfig", "CLASS_ProjectUserConfig"},
		{"DefaultToInstanced", "CLASS_DefaultToInstanced"},
	};

	static constexpr FFlag PropertyFlags[] = {
		{"EditAnywhere", "CPF_Edit"},
		{"EditDefaultsOnly", "CPF_Edit | CPF_DisableEditOnInstance"},
		{"EditInstanceOnly", "CPF_Edit | CPF_DisableEditOnTemplate"},
		{"VisibleAnywhere", "CPF_Edit | CPF_EditConst"},
		{"VisibleDefaultsOnly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnInstance"},
		{"VisibleInstanceOnly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnTemplate"},
		{"BlueprintReadOnly", "CPF_BlueprintVisible | CPF_BlueprintReadOnly"},
		{"BlueprintReadWrite", "CPF_BlueprintVisible"},
		{"BlueprintAssignable", "CPF_BlueprintAssignable | CPF_BlueprintVisible"},
		{"BlueprintCallable", "CPF_BlueprintCallable"},
		{"BlueprintSetter", "CPF_BlueprintVisible"},
		{"Config", "CPF_Config"},
		{"GlobalConfig", "CPF_Config | CPF_GlobalConfig"},
		{"Transient", "CPF_Transient"},
		{"DuplicateTransient", "CPF_DuplicateTransient"},
		{"NonPIEDuplicateTransient", "CPF_NonPIEDuplicateTransient"},
		{"TextExportTransient", "CPF_TextExportTransient"},
		{"Instanced", "CPF_PersistentInstance | CPF_ExportObject | CPF_InstancedReference"},
		{"Export", "CPF_ExportObject"},
		{"NoClear", "CPF_NoClear"},
		{"AdvancedDisplay", "CPF_AdvancedDisplay"},
		{"SimpleDisplay", "CPF_SimpleDisplay"},
		{"SaveGame", "CPF_SaveGame"},
		{"SkipSerialization", "CPF_SkipSerialization"},
		{"EditFixedSize", "CPF_EditFixedSize"},
		{"Interp", "CPF_Edit | CPF_BlueprintVisible | CPF_Interp"},
	};

	static std::string_view GetAccessFlag(EAccess Access)
	{
		return Access == EAccess::Public	  ? "CPF_NativeAccessSpecifierPublic"
			   : Access == EAccess::Protected ? "CPF_NativeAccessSpecifierProtected | CPF_Protected"
											  : "CPF_NativeAccessSpecifierPrivate";
	}

	std::string GetClassFlags(const FClass& Class)
	{
		FFlagList List;
		List.AddSpecifiers(Class.Specifiers, ClassFlags);
		List.AddIf(Class.Specifiers.Has("Config"), "CLASS_Config");
		List.AddIf(Class.Kind == EClassKind::InterfaceClass, "CLASS_Abstract | CLASS_Interface");
		return List.Get("CLASS_None");
	}

	bool IsBlueprintVisible(const FProperty& Property)
	{
		static constexpr std::string_view Visible[] = {
			"BlueprintReadOnly", "BlueprintReadWrite", "BlueprintGetter", "BlueprintSetter", "Interp"};
		return std::any_of(
			std::begin(Visible), std::end(Visible), [&](std::string_view Name) { return Property.Specifiers.Has(Name); });
	}

	std::string GetPropertyFlags(const FProperty& Property)
	{
		FFlagList List;
		List.AddSpecifiers(Property.Specifiers, PropertyFlags);
		const bool bReadOnlyByGetter = Property.Specifiers.Has("BlueprintGetter") &&
									   !Property.Specifiers.Has("BlueprintSetter") &&
									   !Property.Specifiers.Has("BlueprintReadWrite");
		List.AddIf(bReadOnlyByGetter, "CPF_BlueprintVisible | CPF_BlueprintReadOnly");
		const FSpecifier* ExposeOnSpawn = Property.Specifiers.FindMeta("ExposeOnSpawn");
		List.AddIf(ExposeOnSpawn && !EqualsIgnoreCase(GetValueText(*ExposeOnSpawn), "false"), "CPF_ExposeOnSpawn");
		List.AddIf(Property.bEditorOnly, "CPF_EditorOnly");
		List.Add(GetAccessFlag(Property.Access));
		return List.Get("CPF_None");
	}

	std::string GetParameterFlags(const FParameter& Parameter)
	{
		FFlagList List;
		List.Add("CPF_Parm");
		List.AddIf(Parameter.Type.bReference, "CPF_OutParm");
		List.AddIf(Parameter.Type.bReference && (Parameter.Type.bConst || Parameter.Specifiers.Has("ref")), "CPF_ReferenceParm");
		List.AddIf(Parameter.Type.bConst || Parameter.Specifiers.Has("const"), "CPF_ConstParm");
		return List.Get("CPF_None");
	}

	std::string GetResultFlags(const FType& Result)
	{
		return Result.bConst ? "CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_ConstParm"
							 : "CPF_Parm | CPF_OutParm | CPF_ReturnParm";
	}

	bool HasOutputs(const FFunction& Function)
	{
		return HasResult(Function) ||
			   std::any_of(Function.Parameters.begin(), Function.Parameters.end(),
				   [](const FParameter& Parameter) { return IsOutput(Parameter) && !Parameter.Specifiers.Has("ref"); });
	}

	bool IsBlueprintFunction(const FFunction& Function)
	{
		static constexpr std::string_view Names[] = {"BlueprintCallable", "BlueprintPure", "BlueprintImplementableEvent",
			"BlueprintNativeEvent", "BlueprintGetter", "BlueprintSetter"};
		return std::any_of(
			std::begin(Names), std::end(Names), [&](std::string_view Name) { return Function.Specifiers.Has(Name); });
	}

	bool IsPure(const FFunction& Function)
	{
		const FSpecifier* Pure = Function.Specifiers.Find("BlueprintPure");
		if (Pure)
		{
			return !EqualsIgnoreCase(GetValueText(*Pure), "false");
		}
		return Function.Specifiers.Has("BlueprintGetter") ||
			   (Function.bConst && Function.Specifiers.Has("BlueprintCallable") && HasOutputs(Function));
	}

	std::string GetFunctionFlags(const FFunction& Function)
	{
		FFlagList List;
		const FSpecifiers& Specifiers = Function.Specifiers;
		List.AddIf(!Function.IsImplementableEvent(), "FUNC_Native");
		List.AddIf(Function.IsEvent(), "FUNC_Event | FUNC_BlueprintEvent");
		const bool bCallable = Specifiers.Has("BlueprintCallable") || Specifiers.Has("BlueprintPure") ||
							   Specifiers.Has("BlueprintGetter") || Specifiers.Has("BlueprintSetter");
		List.AddIf(bCallable, "FUNC_BlueprintCallable");
		List.AddIf(IsPure(Function), "FUNC_BlueprintPure");
		List.AddIf(Specifiers.Has("BlueprintCosmetic"), "FUNC_BlueprintCosmetic");
		List.AddIf(Specifiers.Has("Exec"), "FUNC_Exec");
		List.AddIf(Function.bStatic, "FUNC_Static");
		List.AddIf(Function.bConst, "FUNC_Const");
		List.AddIf(Function.bEditorOnly, "FUNC_EditorOnly");
		List.AddIf(!Function.bVirtual && !Function.IsEvent(), "FUNC_Final");
		List.AddIf(HasOutputs(Function), "FUNC_HasOutParms");
		List.Add(Function.Access == EAccess::Public		 ? "FUNC_Public"
				 : Function.Access == EAccess::Protected ? "FUNC_Protected"
														 : "FUNC_Private");
		return List.Get("FUNC_None");
	}

	std::string GetDelegateFlags(const FDelegate& Delegate)
	{
		const bool bOutputs =
			Delegate.Result.Kind != ETypeKind::Void || std::any_of(Delegate.Parameters.begin(), Delegate.Parameters.end(),
														   [](const FParameter& Parameter) { return IsOutput(Parameter); });
		FFlagList List;
		List.Add("FUNC_Delegate | FUNC_Public");
		List.AddIf(Delegate.bMulticast, "FUNC_MulticastDelegate");
		List.AddIf(bOutputs, "FUNC_HasOutParms");
		return List.Get("FUNC_None");
	}
} // namespace HeaderTool
