#include "Host/Reflection/IntrinsicTypes.h"

#include "Host/Reflection/TypeBuilder.h"
#include "UObject/Interface.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	constinit UClass* FIntrinsicTypes::Classes[NumTypes] = {};

	namespace
	{
		struct FIntrinsicInfo
		{
			const TCHAR* Name;
			/** Same as the type itself for the root. */
			FIntrinsicTypes::EType Super;
			int32 Size;
			int32 Alignment;
			EClassFlags Flags;
			EClassCastFlags CastFlags;
			UClass::ClassConstructorType Constructor;
			UClass::ClassAddReferencedObjectsType AddReferencedObjects;
		};

		template<typename T>
		constexpr FIntrinsicInfo MakeInfo(
			const TCHAR* Name, FIntrinsicTypes::EType Super, EClassFlags Flags, EClassCastFlags CastFlags)
		{
			return {Name, Super, sizeof(T), alignof(T), Flags, CastFlags, &T::__DefaultConstructor, &T::AddReferencedObjects};
		}

		// In the order of FIntrinsicTypes::EType; a base stands ahead of what derives from it.
		constexpr FIntrinsicInfo Infos[] = {
			MakeInfo<UObject>(TEXT("Object"), FIntrinsicTypes::Object, CLASS_Abstract, CASTCLASS_None),
			MakeInfo<UInterface>(TEXT("Interface"), FIntrinsicTypes::Object, CLASS_Abstract | CLASS_Interface, CASTCLASS_None),
			MakeInfo<UPackage>(TEXT("Package"), FIntrinsicTypes::Object, CLASS_None, CASTCLASS_UPackage),
			MakeInfo<UField>(TEXT("Field"), FIntrinsicTypes::Object, CLASS_Abstract, CASTCLASS_UField),
			MakeInfo<UStruct>(TEXT("Struct"), FIntrinsicTypes::Field, CLASS_None, CASTCLASS_UStruct),
			MakeInfo<UScriptStruct>(TEXT("ScriptStruct"), FIntrinsicTypes::Struct, CLASS_None, CASTCLASS_UScriptStruct),
			MakeInfo<UFunction>(TEXT("Function"), FIntrinsicTypes::Struct, CLASS_None, CASTCLASS_UFunction),
			MakeInfo<UDelegateFunction>(
				TEXT("DelegateFunction"), FIntrinsicTypes::Function, CLASS_None, CASTCLASS_UDelegateFunction),
			MakeInfo<UClass>(TEXT("Class"), FIntrinsicTypes::Struct, CLASS_None, CASTCLASS_UClass),
			MakeInfo<UEnum>(TEXT("Enum"), FIntrinsicTypes::Field, CLASS_None, CASTCLASS_UEnum),
		};
		static_assert(UE_ARRAY_COUNT(Infos) == FIntrinsicTypes::NumTypes);
	} // namespace

	void FIntrinsicTypes::MakeAll()
	{
		// All classes exist before the first object is registered: each object needs its class, and each class is an object.
		for (UClass*& Class : Classes)
		{
			Class = FTypeBuilder::Allocate<UClass>();
		}
		for (int32 Index = 0; Index < NumTypes; ++Index)
		{
			const FIntrinsicInfo& Info = Infos[Index];
			UClass* Class = Classes[Index];
			Class->SetSuperStruct(Info.Super == Index ? nullptr : Classes[Info.Super]);
			Class->ClassFlags |= Info.Flags | CLASS_Native | CLASS_Intrinsic;
			Class->ClassCastFlags |= Info.CastFlags;
			Class->ClassConstructor = Info.Constructor;
			Class->ClassAddReferencedObjects = Info.AddReferencedObjects;
			Class->PropertiesSize = Info.Size;
			Class->MinAlignment = Info.Alignment;
			Class->ClassWithin = Classes[Object];
			Class->ClassConfigName = FName(TEXT("Engine"));
		}
		UPackage* Outer = FTypeBuilder::GetPackage(TEXT("/Script/CoreUObject"));
		for (int32 Index = 0; Index < NumTypes; ++Index)
		{
			Classes[Index]->Register(Classes[FIntrinsicTypes::Class], Outer, FName(Infos[Index].Name));
			FTypeBuilder::EnsureLinked(Classes[Index]);
		}
	}
} // namespace Host

#define HOST_INTRINSIC_TYPE(TClass, Type)                                                                                        \
	UClass* TClass::StaticClass()                                                                                                \
	{                                                                                                                            \
		return Host::FIntrinsicTypes::Get(Host::FIntrinsicTypes::Type);                                                          \
	}                                                                                                                            \
	template<>                                                                                                                   \
	UClass* StaticClass<TClass>()                                                                                                \
	{                                                                                                                            \
		return TClass::StaticClass();                                                                                            \
	}

#define HOST_INTRINSIC_CONSTRUCTOR(TClass, ...)                                                                                  \
	void TClass::__DefaultConstructor(const FObjectInitializer& X)                                                               \
	{                                                                                                                            \
		::new (static_cast<void*>(X.GetObj())) TClass(__VA_ARGS__);                                                              \
	}

HOST_INTRINSIC_TYPE(UObject, Object)
HOST_INTRINSIC_TYPE(UInterface, Interface)
HOST_INTRINSIC_TYPE(UPackage, Package)
HOST_INTRINSIC_TYPE(UField, Field)
HOST_INTRINSIC_TYPE(UStruct, Struct)
HOST_INTRINSIC_TYPE(UScriptStruct, ScriptStruct)
HOST_INTRINSIC_TYPE(UFunction, Function)
HOST_INTRINSIC_TYPE(UDelegateFunction, DelegateFunction)
HOST_INTRINSIC_TYPE(UClass, Class)
HOST_INTRINSIC_TYPE(UEnum, Enum)

HOST_INTRINSIC_CONSTRUCTOR(UObject, X)
HOST_INTRINSIC_CONSTRUCTOR(UInterface)
HOST_INTRINSIC_CONSTRUCTOR(UPackage)
HOST_INTRINSIC_CONSTRUCTOR(UField, X)
HOST_INTRINSIC_CONSTRUCTOR(UStruct, X)
HOST_INTRINSIC_CONSTRUCTOR(UScriptStruct, X)
HOST_INTRINSIC_CONSTRUCTOR(UFunction, X)
HOST_INTRINSIC_CONSTRUCTOR(UDelegateFunction, X)
HOST_INTRINSIC_CONSTRUCTOR(UClass, X)
HOST_INTRINSIC_CONSTRUCTOR(UEnum, X)
