#pragma once

#include "UObject/Struct.h"

class FOutputDevice;
class FReferenceCollector;

/** Nature of a structure. */
enum EStructFlags : uint32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
	/** Compared with the C++ operator rather than property by property. */
	STRUCT_IdenticalNative = 0x00000002,
	STRUCT_HasInstancedReference = 0x00000004,
	/** Copying the bytes copies the value. */
	STRUCT_IsPlainOldData = 0x00000040,
	/** Needs no destructor. */
	STRUCT_NoDestructor = 0x00000100,
};
ENUM_CLASS_FLAGS(EStructFlags)

namespace Host
{
	/** What C++ does with values of a structure; null functions are not available. */
	struct FStructOps
	{
		int32 Size;
		int32 Alignment;
		bool bPlainOldData;
		void (*Construct)(void* Dest);
		void (*Destruct)(void* Dest);
		void (*Copy)(void* Dest, const void* Src);
		bool (*Identical)(const void* A, const void* B);
		uint32 (*GetTypeHash)(const void* Value);
		/** Gathers references that the structure holds outside its properties, by its own AddStructReferencedObjects. */
		void (*AddReferencedObjects)(void* Value, FReferenceCollector& Collector);
		/** Its own text form, see TStructOpsTypeTraitsBase2; false falls back to "(Name=Value,...)". */
		bool (*ExportTextItem)(FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* ExportRootScope);
		bool (*ImportTextItem)(const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	};
}

/** Describes a structure. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	HOST_INTRINSIC_CLASS(UScriptStruct, UStruct)

	EStructFlags StructFlags = STRUCT_NoFlags;

	UScriptStruct(const FObjectInitializer& ObjectInitializer);
	UScriptStruct(EStaticConstructor, EObjectFlags InFlags);

	/** What C++ does with the values; null for a structure made at run time. */
	const Host::FStructOps* GetCppStructOps() const { return CppStructOps; }
	void SetCppStructOps(const Host::FStructOps* InOps);

	/** "F" and the name. */
	FString GetStructCPPName() const;

	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	/** Copies ArrayDim values. */
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	/** Sets ArrayDim values back to their defaults. */
	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	/** Equality of two values: the operator where the structure declares that it is meant, otherwise property by property. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;
	/** Hash of a value; asserts that the structure has one. */
	uint32 GetStructTypeHash(const void* Src) const;

	/**
	 * Reads "(Name=Value,...)". Returns the first character behind it, null when the text is not of that form. Members that are
	 * not named keep their value; an unknown one is logged.
	 */
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
		const FString& StructName) const;
	/** Writes "(Name=Value,...)"; members equal to Defaults are left out when that is given. */
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags, UObject* ExportRootScope) const;

private:
	friend struct ::Host::FTypeBuilder;

	const Host::FStructOps* CppStructOps = nullptr;
};

/**
 * What C++ says about a structure beyond its members. Specialise it beside the structure; see the flags.
 */
template<typename TStruct>
struct TStructOpsTypeTraitsBase2
{
	enum
	{
		/** Compare with operator==. */
		WithIdenticalViaEquality = false,
		/** Has void AddStructReferencedObjects(FReferenceCollector&). */
		WithAddStructReferencedObjects = false,
		/** Has bool ExportTextItem(FString& ValueStr, const T& Default, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const. */
		WithExportTextItem = false,
		/** Has bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText). */
		WithImportTextItem = false,
	};
};

template<typename TStruct>
struct TStructOpsTypeTraits : TStructOpsTypeTraitsBase2<TStruct>
{
};

/** The description of a structure: of its own StaticStruct(), or of one of the core structures, which have none. */
template<typename TStruct>
struct TBaseStructure
{
	static UScriptStruct* Get() { return TStruct::StaticStruct(); }
};
