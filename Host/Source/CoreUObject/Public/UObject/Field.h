#pragma once

#include "CoreMinimal.h"
#include "Host/Reflection/MetaData.h"
#include "UObject/ObjectMacros.h"

class FField;
class UField;
class UObject;
class UStruct;

/** Kind of a field: what CastField compares, as there is no run-time type information. */
class COREUOBJECT_API FFieldClass
{
public:
	FFieldClass(const TCHAR* InName, EClassCastFlags InId, EClassCastFlags InCastFlags, FFieldClass* InSuper);
	FFieldClass(const FFieldClass&) = delete;
	FFieldClass& operator=(const FFieldClass&) = delete;

	/** Name without the prefix, for example "IntProperty". */
	FName GetFName() const { return Name; }
	FString GetName() const { return Name.ToString(); }
	/** This kind and all kinds that it derives from. */
	EClassCastFlags GetCastFlags() const { return CastFlags; }
	EClassCastFlags GetId() const { return Id; }
	FFieldClass* GetSuperClass() const { return SuperClass; }
	bool IsChildOf(const FFieldClass* Other) const { return EnumHasAllFlags(CastFlags, Other->Id); }

private:
	FName Name;
	EClassCastFlags Id;
	EClassCastFlags CastFlags;
	FFieldClass* SuperClass;
};

/** Declares what every kind of field has. */
#define DECLARE_FIELD(TClass, TSuperClass, CastFlag) \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	static constexpr EClassCastFlags StaticCastFlag = CastFlag; \
	static FFieldClass* StaticClass();

/** Owner of a field: an object, or the field that it is an inner part of. */
class FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(std::nullptr_t) {}
	FFieldVariant(const UObject* InObject) : Object(const_cast<UObject*>(InObject)) {}
	FFieldVariant(const FField* InField) : Field(const_cast<FField*>(InField)) {}

	bool IsValid() const { return Object || Field; }
	bool IsUObject() const { return Object != nullptr; }
	UObject* ToUObject() const { return Object; }
	FField* ToField() const { return Field; }

private:
	UObject* Object = nullptr;
	FField* Field = nullptr;
};

/** A named part of a structure: in practice a property. Not an object; its owner deletes it. */
class COREUOBJECT_API FField
{
public:
	typedef FField ThisClass;
	static constexpr EClassCastFlags StaticCastFlag = CASTCLASS_None;
	static FFieldClass* StaticClass();

	/** What owns the field. */
	FFieldVariant Owner;
	/** Next field of the same owner. */
	FField* Next = nullptr;
	FName NamePrivate;

	FField(FFieldVariant InOwner, FName InName, FFieldClass* InClass) : Owner(InOwner), NamePrivate(InName), ClassPrivate(InClass) {}
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;
	virtual ~FField() = default;

	FFieldClass* GetClass() const { return ClassPrivate; }
	EClassCastFlags GetCastFlags() const { return ClassPrivate->GetCastFlags(); }
	bool IsA(const FFieldClass* FieldType) const { return ClassPrivate->IsChildOf(FieldType); }

	template<typename T>
	bool IsA() const
	{
		return EnumHasAllFlags(GetCastFlags(), T::StaticCastFlag);
	}

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }

	/** Name of the owner's owners and the field, "/Script/Module.Class:Property". */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	/** Kind, a space and the path name. */
	FString GetFullName() const;

	/** The structure that the field, or the outermost field that it is part of, belongs to; null while it belongs to none. */
	UStruct* GetOwnerStruct() const;
	/** GetOwnerStruct() as a class; null when it is none. */
	UClass* GetOwnerClass() const;
	/** The object that owns the field or its owners. */
	UObject* GetOwnerUObject() const;

	/** The value of a metadata key; empty when the field has no such key. Keys compare without case. */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	/** As GetMetaData; null when the field has no such key. */
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const;
	bool HasMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* Value);
	void SetMetaData(const FName& Key, const TCHAR* Value);
	void RemoveMetaData(const FName& Key);
	/** True when the key stands alone or its value is "true". */
	bool GetBoolMetaData(const FName& Key) const;
	int32 GetIntMetaData(const FName& Key) const;
	float GetFloatMetaData(const FName& Key) const;

	/** The name that a user reads: metadata DisplayName, otherwise the name split into words. */
	FText GetDisplayNameText() const;
	/** Metadata ToolTip, which is the comment above the declaration unless written out; otherwise the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** Metadata that the generated code registered and what was set since. */
	Host::FMetaDataMap& GetMetaDataMap() const { return MetaData; }

	/** Takes the other fields that the metadata of a generated field stands in. */
	void SetCompiledMetaData(Host::FMetaDataSpan Compiled) { MetaData.SetCompiled(Compiled); }

private:
	FFieldClass* ClassPrivate;
	mutable Host::FMetaDataMap MetaData;
};

/** The field as a T, null when it is null or another kind. */
template<typename T>
T* CastField(FField* Src)
{
	return Src && Src->IsA<T>() ? static_cast<T*>(Src) : nullptr;
}

template<typename T>
const T* CastField(const FField* Src)
{
	return Src && Src->IsA<T>() ? static_cast<const T*>(Src) : nullptr;
}

/** As CastField; asserts that the field is a T. */
template<typename T>
T* CastFieldChecked(FField* Src)
{
	T* Result = CastField<T>(Src);
	checkf(Result, TEXT("the field is not of the kind asked for"));
	return Result;
}

template<typename T>
const T* CastFieldChecked(const FField* Src)
{
	const T* Result = CastField<T>(Src);
	checkf(Result, TEXT("the field is not of the kind asked for"));
	return Result;
}
