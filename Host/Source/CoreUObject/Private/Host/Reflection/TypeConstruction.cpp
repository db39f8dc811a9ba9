#include "Host/Reflection/TypeBuilder.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	namespace
	{
		TArray<UClass*>& GetMutableNativeClasses()
		{
			static TArray<UClass*> Classes;
			return Classes;
		}

		/** Constructions nest; what they leave open is completed when the outermost ends. */
		struct FConstructionScope
		{
			FConstructionScope() { FTypeBuilder::Enter(); }
			~FConstructionScope() { FTypeBuilder::Leave(); }
		};

		void CheckNameIsFree(const UPackage* Package, const TCHAR* Name)
		{
			checkf(!StaticFindObjectFast(nullptr, const_cast<UPackage*>(Package), FName(Name)),
				TEXT("two reflected types are named %s.%s"), *Package->GetName(), Name);
		}

		void AddClassMembers(UStruct* Struct, const void* Data)
		{
			const FClassInfo& Info = *static_cast<const FClassInfo*>(Data);
			UClass* Class = static_cast<UClass*>(Struct);
			for (const FPropertyInfo& Property : Info.Properties)
			{
				FTypeBuilder::AddProperty(Class, Property);
			}
			for (const FInterfaceInfo& Interface : Info.Interfaces)
			{
				Class->Interfaces.Emplace(Interface.Class(), Interface.GetOffset(), false);
			}
			for (const FFunctionInfo& Function : Info.Functions)
			{
				FTypeBuilder::AddFunction(Class, Function);
			}
		}

		void AddStructMembers(UStruct* Struct, const void* Data)
		{
			for (const FPropertyInfo& Property : static_cast<const FStructInfo*>(Data)->Properties)
			{
				FTypeBuilder::AddProperty(Struct, Property);
			}
		}

		void AddSignatureMembers(UStruct* Struct, const void* Data)
		{
			FTypeBuilder::FillFunction(static_cast<UFunction*>(Struct), static_cast<const FSignatureInfo*>(Data)->Function);
		}
	} // namespace

	const TArray<UClass*>& GetAllNativeClasses()
	{
		return GetMutableNativeClasses();
	}

	UClass* ConstructClass(UClass*& Slot, const FClassInfo& Info)
	{
		const FConstructionScope Scope;
		UClass* Super = Info.Super();
		if (Slot)
		{
			// The base refers to this class.
			return Slot;
		}
		UPackage* Package = FTypeBuilder::GetPackage(Info.Package);
		CheckNameIsFree(Package, Info.Name);
		UClass* Class = FTypeBuilder::Allocate<UClass>();
		Slot = Class;
		Class->SetSuperStruct(Super);
		Class->ClassFlags |= static_cast<EClassFlags>(Info.Flags) | CLASS_Native;
		Class->ClassConstructor = Info.Constructor;
		Class->ClassAddReferencedObjects = Info.AddReferencedObjects;
		Class->ClassConfigName = Info.Config ? FName(Info.Config) : Super->ClassConfigName;
		Class->PropertiesSize = Info.Size;
		Class->MinAlignment = Info.Alignment;
		Class->GetMetaDataMap().SetCompiled(Info.MetaData);
		Class->Register(UClass::StaticClass(), Package, FName(Info.Name));
		Class->ClassWithin = Info.Within ? Info.Within() : Super->ClassWithin;
		GetMutableNativeClasses().Add(Class);
		FTypeBuilder::AddPending(Class, &AddClassMembers, &Info);
		return Class;
	}

	UScriptStruct* ConstructStruct(UScriptStruct*& Slot, const FStructInfo& Info)
	{
		const FConstructionScope Scope;
		UScriptStruct* Super = Info.Super ? Info.Super() : nullptr;
		if (Slot)
		{
			return Slot;
		}
		UPackage* Package = FTypeBuilder::GetPackage(Info.Package);
		CheckNameIsFree(Package, Info.Name);
		UScriptStruct* Struct = FTypeBuilder::Allocate<UScriptStruct>();
		Slot = Struct;
		Struct->SetSuperStruct(Super);
		Struct->SetCppStructOps(Info.Ops);
		Struct->GetMetaDataMap().SetCompiled(Info.MetaData);
		Struct->Register(UScriptStruct::StaticClass(), Package, FName(Info.Name));
		FTypeBuilder::AddPending(Struct, &AddStructMembers, &Info);
		return Struct;
	}

	UEnum* ConstructEnum(UEnum*& Slot, const FEnumInfo& Info)
	{
		UPackage* Package = FTypeBuilder::GetPackage(Info.Package);
		CheckNameIsFree(Package, Info.Name);
		UEnum* Enum = FTypeBuilder::Allocate<UEnum>();
		Slot = Enum;
		Enum->Register(UEnum::StaticClass(), Package, FName(Info.Name));
		Enum->CppType = Info.CppType;
		Enum->GetMetaDataMap().SetCompiled(Info.MetaData);
		TArray<TPair<FName, int64>> Names;
		for (const FEnumeratorInfo& Enumerator : Info.Enumerators)
		{
			Names.Emplace(FName(Enumerator.Name), Enumerator.Value);
		}
		Enum->SetEnums(Names, Info.Form, Info.bFlags ? EEnumFlags::Flags : EEnumFlags::None);
		int32 Index = 0;
		for (const FEnumeratorInfo& Enumerator : Info.Enumerators)
		{
			Enum->SetCompiledMetaData(Index++, Enumerator.MetaData);
		}
		return Enum;
	}

	UFunction* ConstructSignature(UFunction*& Slot, const FSignatureInfo& Info)
	{
		const FConstructionScope Scope;
		UObject* Outer = Info.OuterClass ? static_cast<UObject*>(Info.OuterClass()) : FTypeBuilder::GetPackage(Info.Package);
		if (Slot)
		{
			return Slot;
		}
		UDelegateFunction* Function = FTypeBuilder::Allocate<UDelegateFunction>();
		Slot = Function;
		Function->Register(UDelegateFunction::StaticClass(), Outer, FName(Info.Function.Name));
		FTypeBuilder::AddPending(Function, &AddSignatureMembers, &Info);
		return Function;
	}
} // namespace Host
