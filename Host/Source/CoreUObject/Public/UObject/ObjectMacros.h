#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"
#include "UObject/Script.h"

class FObjectInitializer;
class FReferenceCollector;
class UClass;
class UEnum;
class UObject;
class UScriptStruct;

/** State and nature of an object. */
enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	/** Visible outside its package. */
	RF_Public = 0x00000001,
	/** Kept although nothing refers to it. */
	RF_Standalone = 0x00000002,
	/** Describes native code; lives as long as the process. */
	RF_MarkAsNative = 0x00000004,
	/** Takes part in undo. */
	RF_Transactional = 0x00000008,
	/** The default object of its class. */
	RF_ClassDefaultObject = 0x00000010,
	/** Serves as the template of other objects. */
	RF_ArchetypeObject = 0x00000020,
	/** Never saved. */
	RF_Transient = 0x00000040,
	/** Entered into the root set as soon as it is made. */
	RF_MarkAsRootSet = 0x00000080,
	/** Its constructor has not returned yet. */
	RF_NeedInitialization = 0x00000200,
	/** Known by name, its content not read yet. */
	RF_NeedLoad = 0x00000400,
	/** PostLoad has not run yet. */
	RF_NeedPostLoad = 0x00001000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	/** Made by CreateDefaultSubobject. */
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_LoadCompleted = 0x00400000,
	/** Destroyed on purpose; references to it are cleared by the next collection. */
	RF_MirroredGarbage = 0x40000000,
};
ENUM_CLASS_FLAGS(EObjectFlags)

/** All flags, for functions that take a mask. */
inline constexpr EObjectFlags RF_AllFlags = static_cast<EObjectFlags>(0x7fffffff);

/** State that the object array keeps of an object. */
enum class EInternalObjectFlags : int32
{
	None = 0,
	/** Destroyed on purpose. */
	Garbage = 1 << 21,
	/** Describes native code: alive as long as the process. */
	Native = 1 << 25,
	/** The collection in progress has not reached it. */
	Unreachable = 1 << 28,
	/** Alive whether or not anything refers to it. */
	RootSet = 1 << 30,
};
ENUM_CLASS_FLAGS(EInternalObjectFlags)

/** Nature of a class. */
enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	/** No objects can be made of it, only of classes derived from it. */
	CLASS_Abstract = 0x00000001u,
	/** Saves its configuration to the project's default file. */
	CLASS_DefaultConfig = 0x00000002u,
	/** Some properties are read from configuration files. */
	CLASS_Config = 0x00000004u,
	/** Objects are never saved. */
	CLASS_Transient = 0x00000008u,
	/** Describes compiled code. */
	CLASS_Native = 0x00000080u,
	/** Not offered where a class is chosen. */
	CLASS_NotPlaceable = 0x00000200u,
	/** Each section of the configuration belongs to one object. */
	CLASS_PerObjectConfig = 0x00000400u,
	/** Objects can be made in place where a property refers to one. */
	CLASS_EditInlineNew = 0x00001000u,
	CLASS_CollapseCategories = 0x00002000u,
	/** Describes an interface. */
	CLASS_Interface = 0x00004000u,
	CLASS_Const = 0x00010000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_Hidden = 0x01000000u,
	/** Kept for old content; offered no more. */
	CLASS_Deprecated = 0x02000000u,
	CLASS_HideDropDown = 0x04000000u,
	/** Configuration is saved to the user's own file for all projects. */
	CLASS_GlobalUserConfig = 0x08000000u,
	/** Saves all of its configuration, whatever lower layers say. */
	CLASS_ConfigDoNotCheckDefaults = 0x20000000u,
	/** Has no counterpart in a header that the header tool reads. */
	CLASS_Intrinsic = 0x10000000u,
	/** Properties that refer to its objects own them. */
	CLASS_DefaultToInstanced = 0x00200000u,
	/** Made at run time from a blueprint. */
	CLASS_CompiledFromBlueprint = 0x00040000u,
	/** Replaced by a newer version of itself. */
	CLASS_NewerVersionExists = 0x80000000u,
	CLASS_ProjectUserConfig = 0x40000000u,

	/** What a derived class takes over. */
	CLASS_Inherit = CLASS_Transient | CLASS_DefaultConfig | CLASS_Config | CLASS_ConfigDoNotCheckDefaults | CLASS_PerObjectConfig | CLASS_ProjectUserConfig
		| CLASS_GlobalUserConfig | CLASS_Interface | CLASS_DefaultToInstanced | CLASS_EditInlineNew | CLASS_Const | CLASS_CompiledFromBlueprint,
	/** What a class made at run time takes over from its parent. */
	CLASS_ScriptInherit = CLASS_Inherit,
};
ENUM_CLASS_FLAGS(EClassFlags)

/** Which of the describing classes a class is; lets Cast answer for them without a walk. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0x0,
	CASTCLASS_UField = 0x1,
	CASTCLASS_UEnum = 0x4,
	CASTCLASS_UStruct = 0x8,
	CASTCLASS_UScriptStruct = 0x10,
	CASTCLASS_UClass = 0x20,
	CASTCLASS_UFunction = 0x80000,
	CASTCLASS_UDelegateFunction = 0x100000,
	CASTCLASS_UPackage = 0x400000000,

	CASTCLASS_FInt8Property = 0x2,
	CASTCLASS_FByteProperty = 0x40,
	CASTCLASS_FIntProperty = 0x80,
	CASTCLASS_FFloatProperty = 0x100,
	CASTCLASS_FUInt64Property = 0x200,
	CASTCLASS_FClassProperty = 0x400,
	CASTCLASS_FUInt32Property = 0x800,
	CASTCLASS_FInterfaceProperty = 0x1000,
	CASTCLASS_FNameProperty = 0x2000,
	CASTCLASS_FStrProperty = 0x4000,
	CASTCLASS_FProperty = 0x8000,
	CASTCLASS_FObjectProperty = 0x10000,
	CASTCLASS_FBoolProperty = 0x20000,
	CASTCLASS_FUInt16Property = 0x40000,
	CASTCLASS_FStructProperty = 0x200000,
	CASTCLASS_FArrayProperty = 0x400000,
	CASTCLASS_FInt64Property = 0x800000,
	CASTCLASS_FDelegateProperty = 0x1000000,
	CASTCLASS_FNumericProperty = 0x2000000,
	CASTCLASS_FMulticastDelegateProperty = 0x4000000,
	CASTCLASS_FObjectPropertyBase = 0x8000000,
	CASTCLASS_FWeakObjectProperty = 0x10000000,
	CASTCLASS_FSoftObjectProperty = 0x40000000,
	CASTCLASS_FTextProperty = 0x80000000,
	CASTCLASS_FInt16Property = 0x100000000,
	CASTCLASS_FDoubleProperty = 0x200000000,
	CASTCLASS_FSoftClassProperty = 0x800000000,
	CASTCLASS_FMapProperty = 0x1000000000,
	CASTCLASS_FSetProperty = 0x2000000000,
	CASTCLASS_FEnumProperty = 0x4000000000,
	CASTCLASS_FMulticastInlineDelegateProperty = 0x8000000000,
};
ENUM_CLASS_FLAGS(EClassCastFlags)

/** What may be done with a property, and what it is to a function. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	/** Editable by the user. */
	CPF_Edit = 0x0000000000000001,
	/** A function parameter that is passed by const reference, or a read-only element. */
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	/** The object referred to can be exported with its owner. */
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	/** Elements of the container cannot be added or removed by the user. */
	CPF_EditFixedSize = 0x0000000000000040,
	/** A function parameter, the result included. */
	CPF_Parm = 0x0000000000000080,
	/** Value is copied out after a call. */
	CPF_OutParm = 0x0000000000000100,
	/** Value bits 0 are a valid value. */
	CPF_ZeroConstructor = 0x0000000000000200,
	CPF_ReturnParm = 0x0000000000000400,
	/** Not editable on templates. */
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_NonNullable = 0x0000000000001000,
	CPF_Transient = 0x0000000000002000,
	/** Loaded from and saved to configuration. */
	CPF_Config = 0x0000000000004000,
	/** Not editable on instances. */
	CPF_DisableEditOnInstance = 0x0000000000010000,
	/** Shown, not editable. */
	CPF_EditConst = 0x0000000000020000,
	/** The base class's configuration holds the value. */
	CPF_GlobalConfig = 0x0000000000040000,
	/** The object referred to belongs to the owner. */
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	/** Cannot be set to none by the user. */
	CPF_NoClear = 0x0000000002000000,
	/** A parameter that is passed by reference both ways. */
	CPF_ReferenceParm = 0x0000000008000000,
	/** Graphs can bind events to it. */
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_Deprecated = 0x0000000020000000,
	/** Copying the bytes copies the value. */
	CPF_IsPlainOldData = 0x0000000040000000,
	CPF_SkipSerialization = 0x0080000000000000,
	CPF_RequiredParm = 0x0000000100000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_Protected = 0x0000080000000000,
	/** Graphs can call the delegate. */
	CPF_BlueprintCallable = 0x0000100000000000,
	CPF_TextExportTransient = 0x0000400000000000,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_PersistentInstance = 0x0002000000000000,
	/** TObjectPtr, not a raw pointer. */
	CPF_TObjectPtr = 0x0100000000000000,
	/** Value needs no destructor. */
	CPF_NoDestructor = 0x0000001000000000,
	/** Has a hash. */
	CPF_HasGetValueTypeHash = 0x0008000000000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_ContainsInstancedReference = 0x0000000000800000,
	CPF_Net = 0x0000000000000020,
	CPF_Interp = 0x0000000200000000,

	CPF_ParmFlags = CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_ReferenceParm | CPF_ConstParm | CPF_RequiredParm,
	CPF_NativeAccessSpecifiers = CPF_NativeAccessSpecifierPublic | CPF_NativeAccessSpecifierProtected | CPF_NativeAccessSpecifierPrivate,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

/** How a property's value is written as text. */
enum EPropertyPortFlags : uint32
{
	PPF_None = 0x00000000,
	/** Strings and names are quoted, so that the value can stand among others. */
	PPF_Delimited = 0x00000002,
	/** Object references name the object alone where the class can be told from the property. */
	PPF_SimpleObjectText = 0x00000400,
	/** Enumerators by the name that a user reads. */
	PPF_PropertyWindow = 0x00000020,
	/** Texts by their source string alone. */
	PPF_ExternalEditor = 0x00200000,
};

/** Selects the constructors of objects that describe native code. */
enum EStaticConstructor
{
	EC_StaticConstructor,
};

namespace Host
{
	/** Registration of one reflected type; the generated code specialises it, and reflected types befriend it. */
	template<typename TReflected>
	struct TReflection;

	struct FIntrinsicTypes;
}

#if defined(HEADER_TOOL) && HEADER_TOOL

// The header tool's pass: each macro leaves a mark ahead of what it describes; the tool reads the arguments from the header's text.
#define UCLASS(...) static_assert(true, "UCLASS");
#define UINTERFACE(...) static_assert(true, "UINTERFACE");
#define USTRUCT(...) static_assert(true, "USTRUCT");
#define UENUM(...) static_assert(true, "UENUM");
#define UDELEGATE(...) static_assert(true, "UDELEGATE");
#define UPROPERTY(...) static_assert(true, "UPROPERTY");
#define UFUNCTION(...) static_assert(true, "UFUNCTION");
// Stands behind the enumerator's value, where C++ has no attributes: the tool finds it in the text.
#define UMETA(...)
#define UPARAM(...) __attribute__((annotate("UPARAM")))
#define GENERATED_BODY(...) \
	static_assert(true, "GENERATED_BODY"); \
	static ::UClass* StaticClass(); \
	static ::UScriptStruct* StaticStruct();

#else

/** Marks a class derived from UObject for reflection. */
#define UCLASS(...)
/** Marks the U half of an interface for reflection. */
#define UINTERFACE(...)
/** Marks a structure for reflection. */
#define USTRUCT(...)
/** Marks an enumeration for reflection. */
#define UENUM(...)
/** Gives a dynamic delegate's signature a category and metadata. */
#define UDELEGATE(...)
/** Marks a member for reflection. */
#define UPROPERTY(...)
/** Marks a member function for reflection. */
#define UFUNCTION(...)
/** Metadata of one enumerator. */
#define UMETA(...)
/** Metadata of one parameter; UPARAM(ref) makes a non-const reference an input. */
#define UPARAM(...)

#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
/** First line inside every reflected class and structure: what the header tool adds to it. */
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)

#endif

/** Body of the classes that describe reflection itself, for which no code is generated; the access that follows is public. */
#define HOST_INTRINSIC_CLASS(TClass, TSuperClass) \
private: \
	friend struct ::Host::FIntrinsicTypes; \
	TClass(const TClass&) = delete; \
	TClass& operator=(const TClass&) = delete; \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	static ::UClass* StaticClass(); \
	static const TCHAR* StaticPackage() { return TEXT("/Script/CoreUObject"); } \
	static void __DefaultConstructor(const FObjectInitializer& X);
