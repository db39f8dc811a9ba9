#pragma once

#include "Host/Reflection/MetaData.h"
#include "UObject/Class.h"
#include "UObject/Field.h"

namespace Host
{
	/** A table of the generated code. */
	template<typename T>
	struct TTable
	{
		const T* Data = nullptr;
		int32 Num = 0;

		constexpr TTable() = default;
		template<int32 Count>
		constexpr TTable(const T (&InData)[Count]) : Data(InData), Num(Count) {}

		const T* begin() const { return Data; }
		const T* end() const { return Data + Num; }
	};

	/** One property of a structure, or one parameter of a function. */
	struct FPropertyInfo
	{
		const TCHAR* Name;
		/** Makes the property from the C++ type of the member. */
		FProperty* (*Make)(FFieldVariant Owner, FName Name);
		uint32 Offset;
		uint64 Flags;
		FMetaDataSpan MetaData;
		/** For a bit field: sets it in a structure, which shows where it lies. */
		void (*SetBit)(void* Container) = nullptr;
	};

	struct FFunctionInfo
	{
		const TCHAR* Name;
		uint32 Flags;
		/** Null for events that only scripts implement. */
		FNativeFuncPtr Native;
		/** Size and alignment of the parameters, the result included. */
		uint16 ParmsSize;
		uint16 ParmsAlignment;
		TTable<FPropertyInfo> Parameters;
		FMetaDataSpan MetaData;
	};

	struct FInterfaceInfo
	{
		UClass* (*Class)();
		/** Offset in bytes of the I-part in the object. */
		int32 (*GetOffset)();
	};

	struct FClassInfo
	{
		/** Without the prefix. */
		const TCHAR* Name;
		/** "/Script/Module". */
		const TCHAR* Package;
		UClass* (*Super)();
		/** Null takes the super's. */
		UClass* (*Within)();
		int32 Size;
		int32 Alignment;
		uint32 Flags;
		/** Configuration family; null takes the super's. */
		const TCHAR* Config;
		UClass::ClassConstructorType Constructor;
		UClass::ClassAddReferencedObjectsType AddReferencedObjects;
		TTable<FInterfaceInfo> Interfaces;
		TTable<FPropertyInfo> Properties;
		TTable<FFunctionInfo> Functions;
		FMetaDataSpan MetaData;
	};

	struct FStructInfo
	{
		const TCHAR* Name;
		const TCHAR* Package;
		/** Null when the structure derives from no reflected one. */
		UScriptStruct* (*Super)();
		const FStructOps* Ops;
		TTable<FPropertyInfo> Properties;
		FMetaDataSpan MetaData;
	};

	struct FEnumeratorInfo
	{
		const TCHAR* Name;
		int64 Value;
		FMetaDataSpan MetaData;
	};

	struct FEnumInfo
	{
		const TCHAR* Name;
		const TCHAR* Package;
		/** "EMode", or "EMode::Type" for an enumeration in a namespace. */
		const TCHAR* CppType;
		UEnum::ECppForm Form;
		bool bFlags;
		TTable<FEnumeratorInfo> Enumerators;
		FMetaDataSpan MetaData;
	};

	struct FSignatureInfo
	{
		FFunctionInfo Function;
		const TCHAR* Package;
		/** The class that the delegate is declared in; null at file scope. */
		UClass* (*OuterClass)();
	};

	/**
	 * Make the description on the first call and remember it in Slot. Slot is set before members are added, so that types may
	 * refer to each other; members of types reached on the way are added once the outermost call has its shell.
	 */
	COREUOBJECT_API UClass* ConstructClass(UClass*& Slot, const FClassInfo& Info);
	COREUOBJECT_API UScriptStruct* ConstructStruct(UScriptStruct*& Slot, const FStructInfo& Info);
	COREUOBJECT_API UEnum* ConstructEnum(UEnum*& Slot, const FEnumInfo& Info);
	COREUOBJECT_API UFunction* ConstructSignature(UFunction*& Slot, const FSignatureInfo& Info);

	/** Native classes in the order of their registration: a base always stands before what derives from it. */
	COREUOBJECT_API const TArray<UClass*>& GetAllNativeClasses();
}
