#include "Keywords.h"

#include "Specifiers.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>

namespace HeaderTool
{
	static constexpr std::string_view ClassSpecifiers[] = {
		"Abstract",
		"AdvancedClassDisplay",
		"AutoCollapseCategories",
		"AutoExpandCategories",
		"Blueprintable",
		"BlueprintType",
		"ClassGroup",
		"CollapseCategories",
		"Config",
		"ConfigDoNotCheckDefaults",
		"Const",
		"ConversionRoot",
		"DefaultConfig",
		"DefaultToInstanced",
		"Deprecated",
		"DontAutoCollapseCategories",
		"DontCollapseCategories",
		"EditInlineNew",
		"GlobalUserConfig",
		"HideCategories",
		"HideDropdown",
		"HideFunctions",
		"Intrinsic",
		"MinimalAPI",
		"NonTransient",
		"NotBlueprintable",
		"NotBlueprintType",
		"NotEditInlineNew",
		"NotPlaceable",
		"PerObjectConfig",
		"Placeable",
		"PrioritizeCategories",
		"ProjectUserConfig",
		"ShowCategories",
		"ShowFunctions",
		"Transient",
		"Within",
	};
	static constexpr std::string_view InterfaceSpecifiers[] = {
		"Blueprintable",
		"BlueprintType",
		"ConversionRoot",
		"MinimalAPI",
		"NotBlueprintable",
	};
	static constexpr std::string_view StructSpecifiers[] = {
		"Atomic",
		"BlueprintType",
		"BlueprintInternalUseOnly",
		"Immutable",
		"NoExport",
	};
	static constexpr std::string_view EnumSpecifiers[] = {"BlueprintType", "Flags"};
	static constexpr std::string_view PropertySpecifiers[] = {
		"AdvancedDisplay",
		"AssetRegistrySearchable",
		"BlueprintAssignable",
		"BlueprintCallable",
		"BlueprintGetter",
		"BlueprintReadOnly",
		"BlueprintReadWrite",
		"BlueprintSetter",
		"Category",
		"Config",
		"DuplicateTransient",
		"EditAnywhere",
		"EditDefaultsOnly",
		"EditFixedSize",
		"EditInstanceOnly",
		"Export",
		"FieldNotify",
		"Getter",
		"GlobalConfig",
		"Instanced",
		"Interp",
		"NoClear",
		"NonPIEDuplicateTransient",
		"NonTransactional",
		"SaveGame",
		"Setter",
		"SimpleDisplay",
		"SkipSerialization",
		"TextExportTransient",
		"Transient",
		"VisibleAnywhere",
		"VisibleDefaultsOnly",
		"VisibleInstanceOnly",
	};
	static constexpr std::string_view FunctionSpecifiers[] = {
		"BlueprintCallable",
		"BlueprintCosmetic",
		"BlueprintGetter",
		"BlueprintImplementableEvent",
		"BlueprintInternalUseOnly",
		"BlueprintNativeEvent",
		"BlueprintPure",
		"BlueprintSetter",
		"CallInEditor",
		"Category",
		"Exec",
		"FieldNotify",
		"SealedEvent",
	};
	static constexpr std::string_view DelegateSpecifiers[] = {"BlueprintCallable", "Category"};
	static constexpr std::string_view EnumeratorKeys[] = {
		"DisplayName", "Hidden", "ToolTip", "ShortToolTip", "Spacer", "DisplayPriority"};
	static constexpr std::string_view ParameterKeys[] = {"ref", "const", "DisplayName", "Category", "Meta"};

	static constexpr std::string_view MetadataKeys[] = {
		"AdvancedClassDisplay",
		"AdvancedDisplay",
		"AllowAbstract",
		"AllowAnyActor",
		"AllowEditInlineCustomization",
		"AllowPrivateAccess",
		"AllowPreserveRatio",
		"AllowedClasses",
		"AllowedTypes",
		"ArrayClamp",
		"ArrayParm",
		"ArraySizeEnum",
		"ArrayTypeDependentParams",
		"AssetBundles",
		"AutoCreateRefTerm",
		"BaseStruct",
		"BindWidget",
		"BindWidgetAnim",
		"BindWidgetAnimOptional",
		"BindWidgetOptional",
		"Bitflags",
		"Bitmask",
		"BitmaskEnum",
		"BlueprintAutocast",
		"BlueprintBaseOnly",
		"BlueprintCompilerGeneratedDefaults",
		"BlueprintInternalUseOnly",
		"BlueprintProtected",
		"BlueprintSpawnableComponent",
		"BlueprintThreadSafe",
		"BlueprintType",
		"CallableWithoutWorldContext",
		"CallInEditor",
		"CannotImplementInterfaceInBlueprint",
		"Categories",
		"Category",
		"ClampMax",
		"ClampMin",
		"CommutativeAssociativeBinaryOperator",
		"CompactNodeTitle",
		"ConfigRestartRequired",
		"ConfigHierarchyEditable",
		"ConsoleVariable",
		"ContentDir",
		"CustomStructureParam",
		"DataTablePin",
		"DebugTreeLeaf",
		"DefaultToSelf",
		"Delta",
		"Deprecated",
		"DeprecatedFunction",
		"DeprecatedNode",
		"DeprecatedProperty",
		"DeprecationMessage",
		"DesignerRebuild",
		"DesignerCategory",
		"DeterminesOutputType",
		"DevelopmentOnly",
		"DisableNativeTick",
		"DisallowedClasses",
		"DisplayAfter",
		"DisplayName",
		"DisplayPriority",
		"DisplayThumbnail",
		"DocumentationPolicy",
		"DontUpdateWhileEditing",
		"DynamicOutputParam",
		"EditCondition",
		"EditConditionHides",
		"EditFixedOrder",
		"EditInline",
		"EditorConfig",
		"EntryClass",
		"EntryInterface",
		"ExactClass",
		"ExpandEnumAsExecs",
		"ExpandBoolAsExecs",
		"ExpandByDefault",
		"ExposeFunctionCategories",
		"ExposeOnSpawn",
		"ExposedAsyncProxy",
		"FilePathFilter",
		"ForceAsFunction",
		"ForceInlineRow",
		"ForceRebuildProperty",
		"ForceShowEngineContent",
		"ForceShowPluginContent",
		"FullyExpand",
		"FunctionReference",
		"GetAssetFilter",
		"GetByRef",
		"GetKeyOptions",
		"GetOptions",
		"GetValueOptions",
		"HasDedicatedAsyncNode",
		"HasNativeBreak",
		"HasNativeMake",
		"HideAlphaChannel",
		"HideCategories",
		"HideFunctions",
		"HideInDetailPanel",
		"HideInDetailsView",
		"HidePin",
		"HideSelfPin",
		"HideViewOptions",
		"Hidden",
		"IgnoreCategoryKeywordsInSubclasses",
		"IgnoreForMemberInitializationTest",
		"IncludeAssetBundles",
		"InlineEditConditionToggle",
		"InternalUseParam",
		"InvalidEnumValues",
		"IsBindableEvent",
		"IsBlueprintBase",
		"IsConversionRoot",
		"Keywords",
		"KismetHideOverrides",
		"Latent",
		"LatentInfo",
		"LinearDeltaSensitivity",
		"LoadBehavior",
		"LongPackageName",
		"MakeEditWidget",
		"MakeStructureDefaultValue",
		"MapParam",
		"MaterialParameterCollectionFunction",
		"MaxLength",
		"MetaClass",
		"ModuleRelativePath",
		"MultiLine",
		"MustBeLevelActor",
		"MustImplement",
		"Multiple",
		"NativeBreakFunc",
		"NativeConst",
		"NativeMakeFunc",
		"NeedsLatentFixup",
		"NoAutoJson",
		"NoEditInline",
		"NoElementDuplicate",
		"NoResetToDefault",
		"NoSpinbox",
		"NotBlueprintThreadSafe",
		"OnlyPlaceable",
		"OptionalWidget",
		"OverrideNativeName",
		"PasswordField",
		"PresentationOptions",
		"PrioritizeCategories",
		"ProhibitedInterfaces",
		"PropertyValidator",
		"ReadOnlyKeys",
		"ReapplyCondition",
		"RelativePath",
		"RelativeToGameContentDir",
		"RelativeToGameDir",
		"RequiredAssetDataTags",
		"DisallowedAssetDataTags",
		"RestrictedToClasses",
		"ReturnDisplayName",
		"RowType",
		"ScriptMethod",
		"ScriptName",
		"ScriptNoExport",
		"SetParam",
		"SheetType",
		"ShortToolTip",
		"ShouldUseCodeGenerator",
		"ShowCategories",
		"ShowInnerProperties",
		"ShowOnlyInnerProperties",
		"ShowTreeView",
		"ShowWorldContextPin",
		"SliderExponent",
		"Spacer",
		"SparseClassDataTypes",
		"StructTypeConst",
		"SupportDynamicSliderMaxValue",
		"SupportDynamicSliderMinValue",
		"TitleProperty",
		"ToolTip",
		"UIMax",
		"UIMin",
		"Units",
		"ForceUnits",
		"UnsafeDuringActorConstruction",
		"Untracked",
		"UseEnumValuesAsMaskValuesInEditor",
		"UsesHierarchy",
		"ValidEnumValues",
		"ViewmodelBlueprintWidgetExtension",
		"WorldContext",
		"XAxisName",
		"YAxisName",
	};

	/** Spellings that come to mind first and are not the key. */
	struct FMistake
	{
		std::string_view Wrong;
		std::string_view Right;
	};
	static constexpr FMistake KnownMistakes[] = {
		{"InlineEditToggle", "InlineEditConditionToggle"},
		{"EditConditionToggle", "InlineEditConditionToggle"},
		{"InlineEditCondition", "InlineEditConditionToggle"},
		{"EditConditionHide", "EditConditionHides"},
		{"HideEditCondition", "EditConditionHides"},
		{"WidgetBind", "BindWidget"},
		{"OptionalBindWidget", "BindWidgetOptional"},
		{"MinClamp", "ClampMin"},
		{"MaxClamp", "ClampMax"},
		{"AllowedClass", "AllowedClasses"},
		{"SpawnExposed", "ExposeOnSpawn"},
		{"UseEnumValuesAsMask", "UseEnumValuesAsMaskValuesInEditor"},
	};

	static std::span<const std::string_view> GetSpecifiers(EMacro Macro)
	{
		switch (Macro)
		{
		case EMacro::Class:
			return ClassSpecifiers;
		case EMacro::Interface:
			return InterfaceSpecifiers;
		case EMacro::Struct:
			return StructSpecifiers;
		case EMacro::Enum:
			return EnumSpecifiers;
		case EMacro::Property:
			return PropertySpecifiers;
		case EMacro::Function:
			return FunctionSpecifiers;
		case EMacro::Delegate:
			return DelegateSpecifiers;
		case EMacro::Enumerator:
			return EnumeratorKeys;
		case EMacro::Parameter:
			return ParameterKeys;
		}
		return {};
	}

	const char* GetMacroName(EMacro Macro)
	{
		static constexpr const char* Names[] = {
			"UCLASS", "UINTERFACE", "USTRUCT", "UENUM", "UPROPERTY", "UFUNCTION", "UDELEGATE", "UMETA", "UPARAM"};
		return Names[static_cast<int>(Macro)];
	}

	static bool Contains(std::span<const std::string_view> Words, std::string_view Word)
	{
		return std::any_of(Words.begin(), Words.end(), [&](std::string_view Known) { return EqualsIgnoreCase(Known, Word); });
	}

	/** Number of letters to insert, remove or replace, up to a limit. */
	static size_t GetEditDistance(std::string_view A, std::string_view B)
	{
		std::vector<size_t> Row(B.size() + 1);
		for (size_t Column = 0; Column <= B.size(); ++Column)
		{
			Row[Column] = Column;
		}
		for (size_t Line = 1; Line <= A.size(); ++Line)
		{
			size_t Diagonal = Row[0];
			Row[0] = Line;
			for (size_t Column = 1; Column <= B.size(); ++Column)
			{
				const bool bSame = std::tolower(static_cast<unsigned char>(A[Line - 1])) ==
								   std::tolower(static_cast<unsigned char>(B[Column - 1]));
				const size_t Replace = Diagonal + (bSame ? 0 : 1);
				Diagonal = Row[Column];
				Row[Column] = std::min({Replace, Row[Column] + 1, Row[Column - 1] + 1});
			}
		}
		return Row[B.size()];
	}

	static std::string FindNearest(std::span<const std::string_view> Words, std::string_view Word, size_t MaxDistance)
	{
		std::string_view Best;
		size_t BestDistance = MaxDistance + 1;
		for (const std::string_view Known : Words)
		{
			const size_t LengthDifference = Known.size() > Word.size() ? Known.size() - Word.size() : Word.size() - Known.size();
			if (LengthDifference >= BestDistance || Word.size() > 64)
			{
				continue;
			}
			const size_t Distance = GetEditDistance(Known, Word);
			if (Distance < BestDistance)
			{
				BestDistance = Distance;
				Best = Known;
			}
		}
		return std::string(Best);
	}

	bool IsSpecifier(EMacro Macro, std::string_view Word)
	{
		return Contains(GetSpecifiers(Macro), Word);
	}

	std::string SuggestSpecifier(EMacro Macro, std::string_view Word)
	{
		return FindNearest(GetSpecifiers(Macro), Word, std::max<size_t>(2, Word.size() / 3));
	}

	bool IsMetadataKey(std::string_view Word)
	{
		return Contains(MetadataKeys, Word);
	}

	std::string SuggestMetadataKey(std::string_view Word)
	{
		for (const FMistake& Mistake : KnownMistakes)
		{
			if (EqualsIgnoreCase(Mistake.Wrong, Word))
			{
				return std::string(Mistake.Right);
			}
		}
		return Word.size() < 4 ? std::string() : FindNearest(MetadataKeys, Word, 2);
	}
} // namespace HeaderTool
