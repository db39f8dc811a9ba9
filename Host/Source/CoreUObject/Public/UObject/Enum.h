#pragma once

#include "UObject/Struct.h"

/** Nature of an enumeration. */
enum class EEnumFlags : uint8
{
	None = 0,
	/** Values are bits, or the positions of bits. */
	Flags = 1,
	NewerVersionExists = 2,
};
ENUM_CLASS_FLAGS(EEnumFlags)

/** Whether a name lookup may log. */
enum class EGetByNameFlags : uint8
{
	None = 0,
	/** Logs an error when the name is not found. */
	ErrorIfNotFound = 1,
	/** Compares with case. */
	CaseSensitive = 2,
};
ENUM_CLASS_FLAGS(EGetByNameFlags)

/** Describes an enumeration. Names carry the enumeration where C++ makes it part of them ("EMode::Off"). */
class COREUOBJECT_API UEnum : public UField
{
	HOST_INTRINSIC_CLASS(UEnum, UField)

	/** How the enumeration was declared. */
	enum class ECppForm
	{
		/** enum E { A } */
		Regular,
		/** namespace E { enum Type { A }; } */
		Namespaced,
		/** enum class E { A } */
		EnumClass,
	};

	/** Name of the type in C++, "EMode" or "EMode::Type". */
	FString CppType;

	UEnum(const FObjectInitializer& ObjectInitializer);
	UEnum(EStaticConstructor, EObjectFlags InFlags);

	/**
	 * Sets the enumerators; names without the enumeration's. Adds "<Prefix>_MAX", one above the largest, unless there is one,
	 * as long as the value still fits.
	 */
	void SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags = EEnumFlags::None, bool bAddMaxKeyIfMissing = true);

	ECppForm GetCppForm() const { return CppForm; }
	bool HasAnyEnumFlags(EEnumFlags InFlags) const { return EnumHasAnyFlags(EnumFlags, InFlags); }

	/** Number of enumerators, the MAX one included. */
	int32 NumEnums() const { return Names.Num(); }
	/** The enumerator's whole name; NAME_None when the index is out of range. */
	FName GetNameByIndex(int32 Index) const;
	/** INDEX_NONE when there is none; accepts the short name too. */
	int32 GetIndexByName(FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int32 GetIndexByNameString(const FString& SearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	/** INDEX_NONE when no enumerator has the value. */
	int32 GetIndexByValue(int64 InValue) const;
	int64 GetValueByIndex(int32 Index) const;
	/** NAME_None when no enumerator has the value. */
	FName GetNameByValue(int64 InValue) const;
	/** INDEX_NONE when there is none; accepts the short name too. */
	int64 GetValueByName(FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int64 GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	/** The short name, without the enumeration. */
	FString GetNameStringByIndex(int32 InIndex) const;
	FString GetNameStringByValue(int64 InValue) const;
	/** The name that a user reads. */
	FText GetDisplayNameTextByIndex(int32 InIndex) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetToolTipTextByIndex(int32 InIndex) const;
	/** Names of the flags set in the value, joined by " | ". */
	FString GetValueOrBitfieldAsString(int64 InValue) const;

	int64 GetMaxEnumValue() const;
	bool IsValidEnumValue(int64 InValue) const { return GetIndexByValue(InValue) != INDEX_NONE; }
	bool IsValidEnumName(FName InName) const { return GetIndexByName(InName) != INDEX_NONE; }
	/** True when the last enumerator is the MAX one. */
	bool ContainsExistingMax() const;
	/** Common prefix of the enumerators up to an underscore; the enumeration's name when there is none. */
	FString GenerateEnumPrefix() const;

	using UField::GetMetaData;
	using UField::HasMetaData;
	/** Metadata of one enumerator; of the enumeration itself for INDEX_NONE. */
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;
	FString GetMetaData(const TCHAR* Key, int32 NameIndex) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* Value, int32 NameIndex);

	/** Takes the metadata of one enumerator from the generated code. */
	void SetCompiledMetaData(int32 NameIndex, Host::FMetaDataSpan Compiled);

private:
	FName MakeFullName(FName ShortName) const;

	TArray<TPair<FName, int64>> Names;
	/** One map an enumerator; as long as Names. */
	mutable TArray<Host::FMetaDataMap> EnumeratorMetaData;
	ECppForm CppForm = ECppForm::Regular;
	EEnumFlags EnumFlags = EEnumFlags::None;
};
